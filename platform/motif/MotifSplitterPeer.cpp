#include "motif/MotifSplitterPeer.h"

#include "motif/MotifView.h"
#include "toolkit/DialogLayout.h"
#include "toolkit/ZOLDlgSplitter.h"

#include <X11/cursorfont.h>
#include <X11/keysym.h>
#include <Xm/DrawingA.h>

#include <algorithm>

namespace trellis {

namespace {

constexpr int sashWidth = 6;
constexpr int leastExtent = 24;
constexpr int keyStep = 16; // of an arrow key, in pixels of the plain theme

} // namespace

MotifSplitterPeer::MotifSplitterPeer(MotifView& view, ZOLDlgSplitter& splitter)
    : MotifHolderPeer(view, splitter) {}

Widget MotifSplitterPeer::Build(Widget parent) {
    return MakeSurface(GetDialog().GetName().ConvertToChar(), parent);
}

bool MotifSplitterPeer::IsBeside() const {
    return GetDialog().GetLayoutHints().orientation == 1;
}

// The extents of the layout, and what the user moved between neighbours.
std::vector<MotifSplitterPeer::Part> MotifSplitterPeer::PartsOf(const DialogLayout& layout) {
    std::vector<Part> parts;
    for (ZOLDialog* child : GetDialog().GetChildren()) {
        const auto found = layout.Find(*child);
        if (found && child->GetVisibility() == ZOLShown)
            parts.push_back({child, IsBeside() ? found->width : found->height});
    }
    for (std::size_t i = 0; i + 1 < parts.size(); ++i) {
        const int least = std::min(0, leastExtent - parts[i].extent);
        const int most = std::max(0, parts[i + 1].extent - leastExtent);
        const int moved = std::clamp(_moved[parts[i].dialog->GetNumber()], least, most);
        _taken[parts[i].dialog->GetNumber()] = moved;
        parts[i].extent += moved;
        parts[i + 1].extent -= moved;
    }
    return parts;
}

void MotifSplitterPeer::PlaceContent(const DialogLayout& layout, const LayoutRectangle& place) {
    const std::vector<Part> parts = PartsOf(layout);
    int from = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        PlacePart(parts[i], from, place);
        from += parts[i].extent + sashWidth;
        if (i + 1 < parts.size())
            PlaceSash(i, from - sashWidth, place);
    }
    for (std::size_t i = std::max<std::size_t>(parts.size(), 1) - 1; i < _sashes.size(); ++i)
        MotifQuirks::SetManaged(_sashes[i], false);
    for (const ZOLDialog* child : GetDialog().GetChildren())
        if (!layout.Find(*child))
            PlaceChild(*child, layout, place);
}

void MotifSplitterPeer::PlacePart(const Part& part, int from, const LayoutRectangle& place) {
    MotifPeer* peer = GetView().FindPeer(*part.dialog);
    if (!peer || !peer->GetWidget())
        return;
    const LayoutSize size =
        IsBeside() ? LayoutSize{part.extent, place.height} : LayoutSize{place.width, part.extent};
    peer->Place({IsBeside() ? from : 0, IsBeside() ? 0 : from, size.width, size.height});
    const DialogLayout own(*part.dialog, GetView().GetTextMeasure(), size);
    peer->PlaceContent(own, {0, 0, size.width, size.height});
    MotifQuirks::SetManaged(peer->GetWidget(), true);
}

void MotifSplitterPeer::PlaceSash(std::size_t index, int from, const LayoutRectangle& place) {
    if (index == _sashes.size())
        MakeSash();
    Widget sash = _sashes[index];
    if (IsBeside())
        MotifQuirks::Configure(sash, from, 0, sashWidth, place.height);
    else
        MotifQuirks::Configure(sash, 0, from, place.width, sashWidth);
    MotifQuirks::SetManaged(sash, true);
}

void MotifSplitterPeer::MakeSash() {
    Widget sash = XtVaCreateWidget("sash", xmDrawingAreaWidgetClass, GetWidget(), XmNmarginWidth, 0,
                                   XmNmarginHeight, 0, XmNresizePolicy, XmRESIZE_NONE, XmNtraversalOn, True,
                                   XmNnavigationType, XmTAB_GROUP, nullptr);
    Listen<&MotifSplitterPeer::Grabbed>(sash, ButtonPressMask);
    Listen<&MotifSplitterPeer::Entered>(sash, EnterWindowMask);
    Listen<&MotifSplitterPeer::Dragged>(sash, Button1MotionMask);
    Listen<&MotifSplitterPeer::KeyPressed>(sash, KeyPressMask);
    Listen<&MotifSplitterPeer::FocusMoved>(sash, FocusChangeMask);
    _sashes.push_back(sash);
}

void MotifSplitterPeer::CollectStops(std::vector<Widget>& stops) const {
    std::size_t index = 0;
    for (const ZOLDialog* child : GetDialog().GetChildren()) {
        if (child->GetVisibility() != ZOLShown || child->IsBeingDestroyed())
            continue;
        if (index > 0 && index <= _sashes.size() && XtIsManaged(_sashes[index - 1]))
            stops.push_back(_sashes[index - 1]);
        if (const MotifPeer* peer = GetView().FindPeer(*child))
            peer->CollectStops(stops);
        ++index;
    }
}

ZOLDialog* MotifSplitterPeer::PartBefore(Widget sash) const {
    auto index = std::find(_sashes.begin(), _sashes.end(), sash) - _sashes.begin();
    for (ZOLDialog* child : GetDialog().GetChildren())
        if (child->GetVisibility() == ZOLShown && index-- == 0)
            return child;
    return nullptr;
}

void MotifSplitterPeer::Grabbed(Widget sash, XEvent* event) {
    const ZOLDialog* part = PartBefore(sash);
    if (!part)
        return;
    _grabbed = part->GetNumber();
    _movedBefore = _taken[_grabbed];
    _grabbedAt = IsBeside() ? event->xbutton.x_root : event->xbutton.y_root;
}

void MotifSplitterPeer::KeyPressed(Widget sash, XEvent* event) {
    const KeySym key = XLookupKeysym(&event->xkey, 0);
    const KeySym less = IsBeside() ? XK_Left : XK_Up;
    const KeySym more = IsBeside() ? XK_Right : XK_Down;
    const ZOLDialog* part = PartBefore(sash);
    if (!part || (key != less && key != more))
        return;
    const int step = GetView().GetTheme().Pixels(keyStep);
    _moved[part->GetNumber()] = _taken[part->GetNumber()] + (key == less ? -step : step);
    GetView().Changed(GetDialog());
}

// Only now: at the first layout the bar has no window yet.
void MotifSplitterPeer::Entered(Widget sash, XEvent*) {
    XDefineCursor(GetView().GetDisplay(), XtWindow(sash),
                  GetView().GetCursor(IsBeside() ? XC_sb_h_double_arrow : XC_sb_v_double_arrow));
}

void MotifSplitterPeer::FocusMoved(Widget sash, XEvent* event) {
    const ThemeColour colour = event->type == FocusIn ? Theme::Accent : Theme::Background;
    XtVaSetValues(sash, XmNbackground, MotifQuirks::Colour(sash, colour), nullptr);
}

void MotifSplitterPeer::Dragged(Widget, XEvent* event) {
    const int at = IsBeside() ? event->xmotion.x_root : event->xmotion.y_root;
    _moved[_grabbed] = _movedBefore + at - _grabbedAt;
    GetView().Changed(GetDialog());
}

} // namespace trellis
