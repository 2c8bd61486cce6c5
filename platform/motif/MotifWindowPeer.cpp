#include "motif/MotifWindowPeer.h"

#include "motif/MotifView.h"
#include "toolkit/DialogLayout.h"
#include "toolkit/ZOLDlgDialog.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr unsigned long secondaryBit = 0x200;
constexpr unsigned long modalBit = 0x2000000;
constexpr int edge = Theme::FormMargin / 2; // around the layout, which has a margin of its own

} // namespace

MotifWindowPeer::MotifWindowPeer(MotifView& view, ZOLDlgWindow& window)
    : MotifShellPeer(view, window), _window(window), _asDialog(dynamic_cast<ZOLDlgDialog*>(&window)) {}

void MotifWindowPeer::BuildContent(Widget shell) {
    if (_asDialog) {
        _box = MotifButtonRow::MakeBox("box", shell);
        _buttons.emplace(_box, GetView().GetTheme(), GetView().GetTextMeasure());
        for (const ZOLDialogButton button : DialogButtons::Row)
            Connect<&MotifWindowPeer::Pressed>(_buttons->GetWidget(button), XmNactivateCallback);
    } else {
        _box = MakeSurface("box", shell);
    }
    _surface = MakeSurface("surface", _box);
    OpensMenu(_surface);
    XtVaSetValues(_box, XmNinitialFocus, _surface, nullptr);
    XtManageChild(_surface);
    XtManageChild(_box);
}

bool MotifWindowPeer::StaysAbove() const {
    return _window.GetStyle() & (secondaryBit | modalBit);
}

void MotifWindowPeer::Mirror() {
    MotifQuirks::SetSensitive(_box, _window.GetSensitivity() == ZOLActive);
    if (_buttons)
        _buttons->Mirror(_asDialog->GetButtons(), _window, _asDialog->GetDefaultButton());
}

LayoutSize MotifWindowPeer::LayOut(LayoutSize size) {
    const LayoutSize buttons = _buttons ? _buttons->GetSize(_asDialog->GetButtons(), _window) : LayoutSize();
    const LayoutSize room = {std::max(size.width - 2 * edge, buttons.width + 2 * edge),
                             size.height - 2 * edge};
    const DialogLayout layout(_window, GetView().GetTextMeasure(), room);
    const LayoutSize laid = layout.GetSize();
    const LayoutRectangle row = layout.GetButtonRow();
    const int contentHeight = _buttons ? row.y : laid.height;
    MotifQuirks::Configure(_box, 0, 0, laid.width + 2 * edge, laid.height + 2 * edge);
    MotifQuirks::Configure(_surface, edge, edge, laid.width, contentHeight);
    PlaceContent(layout, {0, 0, laid.width, laid.height});
    if (_buttons)
        _buttons->Place(
            _asDialog->GetButtons(), _window,
            {edge + row.x, edge + row.y + row.height - buttons.height, row.width, buttons.height});
    return {laid.width + 2 * edge, laid.height + 2 * edge};
}

void MotifWindowPeer::Close() {
    _window.UserClose();
}

void MotifWindowPeer::Pressed(Widget button, XtPointer) {
    _asDialog->UserPress(_buttons->GetButton(button));
}

} // namespace trellis
