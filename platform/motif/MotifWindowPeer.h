#pragma once

#include "motif/MotifButtonRow.h"
#include "motif/MotifScroller.h"
#include "motif/MotifShellPeer.h"

#include <optional>

class ZOLDlgDialog;
class ZOLDlgWindow;

namespace trellis {

// MotifWindowPeer: shows a window, with its row of buttons when it is a dialog. What it holds scrolls where the
// window is too small for it; the buttons stay.
class MotifWindowPeer : public MotifShellPeer {
public:
    MotifWindowPeer(MotifView& view, ZOLDlgWindow& window);
    void Mirror() override;
    void Close() override;

protected:
    void BuildContent(Widget shell) override;
    Widget GetSurface() const override { return _scroller->GetSurface(); }
    LayoutSize LayOut(LayoutSize size) override;
    const MotifButtonRow* GetButtons() const override { return _buttons ? &*_buttons : nullptr; }
    bool StaysAbove() const override;

private:
    void Pressed(Widget button, XtPointer);
    LayoutSize WithBar(LayoutSize needed) const;

    ZOLDlgWindow& _window;
    ZOLDlgDialog* _asDialog;
    std::optional<MotifButtonRow> _buttons;
    Widget _box = nullptr;
    std::optional<MotifScroller> _scroller;
};

} // namespace trellis
