#pragma once

#include "toolkit/DialogButtons.h"
#include "toolkit/ZOLDialog.h"
#include "toolkit/ZOLShownMessage.h"

// ZOLDlgNotify: a message box that waits for its answer. It has OK; Cancel when titled or with style
// 0x2000000; Help when titled. With OK alone it is a notice, else a question.
class TRELLIS_API ZOLDlgNotify : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgNotify, ZOLDialog)
public:
    // The father may be null, gone or going: the box then stands over the top window. A box on the stack
    // wants a callback around it (see trellis::CallbackScope), since its father may be given up while it
    // waits.
    ZOLDlgNotify(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    void SetOKTitle(const ZOLUnicodeString& title) { _buttons.SetTitle(ZOLDialogButton::OK, title); }
    void SetCANCELTitle(const ZOLUnicodeString& title) { _buttons.SetTitle(ZOLDialogButton::Cancel, title); }
    void SetHELPTitle(const ZOLUnicodeString& title) { _buttons.SetTitle(ZOLDialogButton::Help, title); }

    // Shows the box and waits: 1, 2 or 3 for OK, Cancel and Help, 0 when its window was closed. Meanwhile the
    // window of the father and the owners of that window take no input; all others work and may call back.
    // Without a view the next queued answer is taken, and a notice answers 1 by itself (see ZOLUserDriver). A
    // box that goes with its father while it waits answers 0.
    int DisplayBlocked(const ZOLUnicodeString& text, const ZOLUnicodeString& title);
    // The same for a message with a number, over the window of any dialog: null, gone or going means the top
    // window.
    int DisplayOver(ZOLDialog* over, const ZOLUnicodeString& text, const ZOLUnicodeString& title, int code,
                    bool isNotice);

    // The dialog over whose window the box stands while it waits; null when there is none.
    ZOLDialog* GetDialogBelow() const;
    bool IsQuestion() const;
    // What the message on the screen is to its reader.
    enum class Sign { Notice, Question, Error };
    Sign GetSign() const;
    const ZOLUnicodeString& GetText() const { return _text; }
    const trellis::DialogButtons& GetButtons() const { return _buttons; }

    ZOLUserResult UserPress(ZOLDialogButton button);
    ZOLUserResult UserClose();

    bool IsWindow() const override;
    const char* GetKind() const override;
    void DescribeTo(trellis::DialogDescription& description) const override;

private:
    trellis::DialogButtons _buttons;
    ZOLUnicodeString _text;
    bool _isNotice = true;
    trellis::WeakCommand _below;
};
