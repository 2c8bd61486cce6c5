#include "motif/MotifWindowPeer.h"

#include "motif/MotifMenuBarPeer.h"
#include "motif/MotifView.h"
#include "toolkit/DialogLayout.h"
#include "toolkit/Growth.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLWindowEnterNotification.h"

#include <algorithm>
#include <utility>

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
    Listen<&MotifWindowPeer::KeyboardMoved>(shell, FocusChangeMask);
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

MotifMenuBarPeer* MotifWindowPeer::FindBar() const {
    const ZOLDlgMenuBar* bar = ZOLDlgMenuBar::Find(_window);
    return bar ? dynamic_cast<MotifMenuBarPeer*>(GetView().FindPeer(*bar)) : nullptr;
}

Widget MotifWindowPeer::GetSurfaceOf(const ZOLDialog& child) const {
    return dynamic_cast<const ZOLDlgMenuBar*>(&child) ? _box : GetSurface();
}

void MotifWindowPeer::PlaceChild(const ZOLDialog& child, const DialogLayout& layout,
                                 const LayoutRectangle& corner) {
    if (!dynamic_cast<const ZOLDlgMenuBar*>(&child))
        return MotifShellPeer::PlaceChild(child, layout, corner);
    MotifPeer* peer = GetView().FindPeer(child);
    if (!peer || !peer->GetWidget())
        return;
    peer->Place(_barPlace);
    peer->SetShown(child.GetVisibility() == ZOLShown);
}

// The keyboard begins in what a window with a menu bar is there for: what takes most of its room. Elsewhere it begins
// where the native side puts it: in the first of all.
void MotifWindowPeer::EnterMainPart() const {
    if (const MotifPeer* main = FindBar() ? MainPartIn(_window) : nullptr)
        XmProcessTraversal(main->GetFocusWidget(), XmTRAVERSE_CURRENT);
}

// What grows both ways and takes the keyboard, itself or deep inside a holder that grows.
const MotifPeer* MotifWindowPeer::MainPartIn(const ZOLDialog& holder) const {
    for (const ZOLDialog* child : holder.GetChildren()) {
        const MotifPeer* peer = GetView().FindPeer(*child);
        if (!peer || !GrowsHorizontally(*child) || !GrowsVertically(*child))
            continue;
        if (child->HoldsChildren())
            peer = MainPartIn(*child);
        if (peer && peer->GetFocusWidget())
            return peer;
    }
    return nullptr;
}

// In a narrow window the bar has more rows than in the layout, and the rest less room.
LayoutSize MotifWindowPeer::LayOut(LayoutSize size) {
    const TextMeasure& measure = GetView().GetTextMeasure();
    const DialogLayout natural(_window, measure);
    const LayoutSize needed = natural.GetSize();
    const LayoutSize wanted = _window.GetLayoutHints().size;
    const LayoutSize opening = {std::max(wanted.width, needed.width), std::max(wanted.height, needed.height)};
    size = {size.width > 0 ? size.width : opening.width, size.height > 0 ? size.height : opening.height};
    const MotifMenuBarPeer* bar = FindBar();
    const int usual = bar ? natural.Find(bar->GetDialog())->height : 0;
    const int upper = usual * (1 + (bar ? bar->FurtherRows(size.width) : 0));
    _barPlace = {0, 0, size.width, upper};

    const LayoutSize rest = {size.width, size.height - upper};
    const LayoutSize neededRest = {needed.width, needed.height - usual};
    const LayoutSize room = _scroller->RoomBesideBars(rest, neededRest);
    const DialogLayout layout(_window, measure, {room.width, room.height + usual});
    const LayoutSize laid = layout.GetSize();
    const LayoutRectangle row = layout.GetButtonRow();
    const bool scrolls = neededRest.height > rest.height || neededRest.width > rest.width;
    const int footer = _buttons ? laid.height - row.y : 0;
    const int gap = _buttons && scrolls ? row.x : 0; // else what is above ends in room enough
    MotifQuirks::Configure(_box, 0, 0, size.width, size.height);
    _scroller->Place({0, upper, size.width, std::max(1, rest.height - footer - gap)},
                     {laid.width, laid.height - usual - footer});
    PlaceContent(layout, {0, usual, laid.width, laid.height});
    if (_buttons)
        _buttons->Place(_asDialog->GetButtons(), _window,
                        {row.x, size.height - footer, size.width - 2 * row.x, row.height});
    return WithBar(opening);
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

void MotifWindowPeer::KeyboardMoved(Widget, XEvent* event) {
    if (event->type != FocusIn || event->xfocus.detail == NotifyPointer || event->xfocus.mode == NotifyUngrab)
        return;
    if (!std::exchange(_hadKeyboard, true))
        return EnterMainPart();
    ZOLWindowEnterNotification entered;
    _window.SendNotification(&_window, &entered);
}

void MotifWindowPeer::Pressed(Widget button, XtPointer) {
    _asDialog->UserPress(_buttons->GetButton(button));
}

} // namespace trellis
