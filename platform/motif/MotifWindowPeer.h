#pragma once

#include "motif/MotifButtonRow.h"
#include "motif/MotifScroller.h"
#include "motif/MotifShellPeer.h"

#include <optional>

class ZOLDlgDialog;
class ZOLDlgWindow;

namespace trellis {

class MotifMenuBarPeer;

// MotifWindowPeer: shows a window, with its menu bar, and its row of buttons when it is a dialog. What it holds scrolls
// where the window is too small for it; menu bar and buttons stay.
class MotifWindowPeer : public MotifShellPeer {
public:
    MotifWindowPeer(MotifView& view, ZOLDlgWindow& window);
    void Mirror() override;
    void Close() override;

protected:
    void BuildContent(Widget shell) override;
    Widget GetSurface() const override { return _scroller->GetSurface(); }
    Widget GetSurfaceOf(const ZOLDialog& child) const override;
    void PlaceChild(const ZOLDialog& child, const DialogLayout& layout,
                    const LayoutRectangle& corner) override;
    LayoutSize LayOut(LayoutSize size) override;
    const MotifButtonRow* GetButtons() const override { return _buttons ? &*_buttons : nullptr; }
    bool StaysAbove() const override;

private:
    void Pressed(Widget button, XtPointer);
    void KeyboardMoved(Widget shell, XEvent* event);
    MotifMenuBarPeer* FindBar() const;
    void EnterMainPart() const;
    const MotifPeer* MainPartIn(const ZOLDialog& holder) const;
    LayoutSize WithBar(LayoutSize needed) const;

    ZOLDlgWindow& _window;
    ZOLDlgDialog* _asDialog;
    std::optional<MotifButtonRow> _buttons;
    Widget _box = nullptr;
    LayoutRectangle _barPlace;
    bool _hadKeyboard = false; // before, so that it comes back
    std::optional<MotifScroller> _scroller;
};

} // namespace trellis
