#include "motif/MotifWindowPeer.h"

#include "motif/MotifView.h"
#include "toolkit/DialogLayout.h"
#include "toolkit/ZOLDlgDialog.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr unsigned long secondaryBit = 0x200;
constexpr unsigned long modalBit = 0x2000000;

} // namespace

MotifWindowPeer::MotifWindowPeer(MotifView& view, ZOLDlgWindow& window)
    : MotifShellPeer(view, window), _window(window), _asDialog(dynamic_cast<ZOLDlgDialog*>(&window)) {}

void MotifWindowPeer::BuildContent(Widget shell) {
    if (_asDialog) {
        _box = MotifButtonRow::MakeBox("box", shell);
        _buttons.emplace(GetView(), _box);
        for (const ZOLDialogButton button : DialogButtons::Row)
            Connect<&MotifWindowPeer::Pressed>(_buttons->GetWidget(button), XmNactivateCallback);
    } else {
        _box = MakeSurface("box", shell);
    }
    _scroller.emplace(GetView(), "content", _box);
    OpensMenu(_scroller->GetSurface());
    XtVaSetValues(_box, XmNinitialFocus, _scroller->GetWindow(), nullptr);
    XtManageChild(_scroller->GetWindow());
    XtManageChild(_box);
}

bool MotifWindowPeer::StaysAbove() const {
    return _window.GetStyle() & (secondaryBit | modalBit);
}

void MotifWindowPeer::Mirror() {
    if (_buttons)
        _buttons->Mirror(_asDialog->GetButtons(), _window, _asDialog->GetDefaultButton());
}

LayoutSize MotifWindowPeer::LayOut(LayoutSize size) {
    const TextMeasure& measure = GetView().GetTextMeasure();
    const LayoutSize needed = DialogLayout(_window, measure).GetSize();
    size = {size.width > 0 ? size.width : needed.width, size.height > 0 ? size.height : needed.height};
    const DialogLayout layout(_window, measure, _scroller->RoomBesideBars(size, needed));
    const LayoutSize laid = layout.GetSize();
    const LayoutRectangle row = layout.GetButtonRow();
    const bool scrolls = needed.height > size.height || needed.width > size.width;
    const int footer = _buttons ? laid.height - row.y : 0;
    const int gap = _buttons && scrolls ? row.x : 0; // else what is above ends in room enough
    MotifQuirks::Configure(_box, 0, 0, size.width, size.height);
    _scroller->Place({0, 0, size.width, std::max(1, size.height - footer - gap)},
                     {laid.width, laid.height - footer});
    PlaceContent(layout, {0, 0, laid.width, laid.height});
    if (_buttons)
        _buttons->Place(_asDialog->GetButtons(), _window,
                        {row.x, size.height - footer, size.width - 2 * row.x, row.height});
    return WithBar(needed);
}

// What is too high for the screen gets a scroll bar, and the window room for it.
LayoutSize MotifWindowPeer::WithBar(LayoutSize needed) const {
    const LayoutSize screen = ScreenSize();
    if (needed.height > screen.height)
        needed.width += needed.width - _scroller->RoomBesideBars({needed.width, screen.height}, needed).width;
    return needed;
}

void MotifWindowPeer::Close() {
    _window.UserClose();
}

void MotifWindowPeer::Pressed(Widget button, XtPointer) {
    _asDialog->UserPress(_buttons->GetButton(button));
}

} // namespace trellis
