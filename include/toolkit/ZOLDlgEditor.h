#pragma once

#include "toolkit/ZOLDialog.h"

// Asked before an edit is taken, with the text as it would become: non-zero takes it, 0 leaves the text as it
// is.
using ZOLVerifyFunction = int (*)(const ZOLUnicodeString& newText, void* data);

// ZOLDlgEditor: a field of one or several lines. Positions count code points from 0.
// Style bits: 0x80000 several lines, 0x4000000 read-only.
class TRELLIS_API ZOLDlgEditor : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgEditor, ZOLDialog)
public:
    ZOLDlgEditor(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    // The user confirmed: by Return (in editors of one line), or by leaving the editor after a change. Never
    // sent for a text that is set by code.
    ZOLNotification* GetEditModifyNotification() { return &_modifyNotification; }
    // Return in an editor of one line, where nobody took the confirmation: for fields that act on Return, but not when
    // they are left. Where nobody takes this one either, Return presses the default button.
    ZOLNotification* GetEditReturnNotification() { return &_returnNotification; }

    // 1 and the text of a line, or 0 when there is no such line.
    int GetLine(ZOLUnicodeString& text, int line = 0) const;
    // Replaces one line; a line behind the last brings empty ones before it.
    void SetLine(const ZOLUnicodeString& text, int line = 0);
    void GetText(ZOLUnicodeString& text) const { text = _text; }
    const ZOLUnicodeString& GetText() const { return _text; }
    // All texts set by code go through the verify function once, which may refuse them; the limit does not
    // count. The caret goes to the end, and what the user had typed is not confirmed any more.
    void SetText(const ZOLUnicodeString& text);
    void ClearLine() { SetText({}); }

    // The selected text from `start` up to, not with, `end`. Without a selection `end` is -1 and `start` the
    // caret.
    void GetSelection(int& start, int& end) const;
    // Cut to the text; -1 as `end` only sets the caret.
    void SetSelection(int start, int end);

    // The most characters that the user can type; 0, as at first, for no limit. A longer text set by code
    // stays.
    void SetMaxCharacterWidth(int characters) { _maximum = characters; }
    void SetVisibleTextWidth(int characters);
    void SetVisibleTextHeight(int lines);
    int GetVisibleTextWidth() const { return _visibleWidth; }
    int GetVisibleTextHeight() const { return _visibleHeight; }
    int GetMaxCharacterWidth() const { return _maximum; }
    // Asked once for each key, each paste and each text set by code, before the text changes: GetText still
    // gives the old one. A text that the function itself sets on this editor is not asked for again. Null
    // asks nobody.
    void SetVerifyCallback(ZOLVerifyFunction function, void* data = nullptr);

    bool IsReadOnly() const;
    bool HasSeveralLines() const;
    // One key or one paste: replaces the selection, or goes in at the caret. Line feeds become blanks in an
    // editor of one line. Refused when the limit or the verify function do not let it in.
    ZOLUserResult UserInsert(const ZOLUnicodeString& pasted);
    ZOLUserResult UserSelectText(int start, int end);
    // Return: confirms, or begins a new line in an editor of several. Where nobody takes the confirmation, Return means
    // the whole dialog, and its default button is pressed.
    ZOLUserResult UserEnter();
    // The user goes elsewhere: confirms when something was typed since the last confirmation, unless the
    // editor cannot be acted on any more.
    void UserLeave();

    const char* GetKind() const override;
    std::string GetMarks() const override;
    trellis::LayoutSize GetNaturalSize(const trellis::TextMeasure& measure) const override;

private:
    bool Verify(const ZOLUnicodeString& text);
    // Whether anybody took it.
    bool Confirm();

    ZOLUnicodeString _text;
    int _start = 0;
    int _end = -1;
    int _maximum = 0;
    int _visibleWidth = 20;
    int _visibleHeight = 1;
    ZOLVerifyFunction _verify = nullptr;
    void* _verifyData = nullptr;
    bool _isVerifying = false;
    bool _isUnconfirmed = false;
    ZOLNotification _modifyNotification;
    ZOLNotification _returnNotification;
};
