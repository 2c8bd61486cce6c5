#pragma once

#include "motif/MotifButtonRow.h"
#include "motif/MotifShellPeer.h"

#include <optional>

class ZOLDlgNotify;

namespace trellis {

// MotifNotifyPeer: shows a message box. Its text wraps, scrolls when it is long, and can be selected with the
// mouse. A box that is shown again is made anew.
class MotifNotifyPeer : public MotifShellPeer {
public:
    MotifNotifyPeer(MotifView& view, ZOLDlgNotify& notify);
    void Mirror() override;
    void Close() override;

protected:
    void BuildContent(Widget shell) override;
    LayoutSize LayOut(LayoutSize size) override;
    const MotifButtonRow* GetButtons() const override { return _buttons ? &*_buttons : nullptr; }
    ZOLDialog* GetBelow() const override;

private:
    void BuildText();
    void DrawMark(Widget mark, XEvent* event);
    void Pressed(Widget button, XtPointer);

    ZOLDlgNotify& _notify;
    std::optional<MotifButtonRow> _buttons;
    Widget _box = nullptr;
    Widget _mark = nullptr;
    Widget _text = nullptr; // with its scroll bar, where it has one
    LayoutSize _textSize;
};

} // namespace trellis
