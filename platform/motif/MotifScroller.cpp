#include "motif/MotifScroller.h"

#include "motif/MotifHolderPeer.h"
#include "motif/MotifView.h"

#include <Xm/ScrolledW.h>

#include <algorithm>

namespace trellis {

namespace {

constexpr int barSpacing = 2; // before a scroll bar

} // namespace

MotifScroller::MotifScroller(MotifView& view, const char* name, Widget parent)
    : _view(view),
      _window(XtVaCreateWidget(name, xmScrolledWindowWidgetClass, parent, XmNscrollingPolicy, XmAUTOMATIC,
                               XmNshadowThickness, 0, XmNspacing, barSpacing, nullptr)),
      _surface(MotifHolderPeer::MakeSurface("surface", _window)) {
    XtAddCallback(_window, MotifQuirks::Name(XmNtraverseObscuredCallback), &MotifScroller::ObscuredCB,
                  nullptr);
    MotifQuirks::LeaveScrollKeys(_window);
    XtManageChild(_surface);
}

void MotifScroller::ObscuredCB(Widget window, XtPointer, XtPointer callData) {
    constexpr Dimension margin = 8;
    const auto* traversal = static_cast<XmTraverseObscuredCallbackStruct*>(callData);
    XmScrollVisible(window, traversal->traversal_destination, margin, margin);
}

// The native window answers a new size of either with bars of its own.
void MotifScroller::Place(const LayoutRectangle& place, LayoutSize content) {
    MotifQuirks::Configure(_window, place.x, place.y, place.width, place.height);
    const LayoutRectangle scrolled = MotifQuirks::PlaceOf(_surface);
    if (scrolled.width != content.width || scrolled.height != content.height)
        XtVaSetValues(_surface, XmNwidth, std::max(1, content.width), XmNheight, std::max(1, content.height),
                      nullptr);
}

LayoutSize MotifScroller::RoomBesideBars(LayoutSize room, LayoutSize needed) const {
    const int bar = _view.GetTheme().Pixels(Theme::ScrollBar) + barSpacing;
    const bool isTooHigh = needed.height > room.height;
    const bool isTooWide = needed.width > room.width - (isTooHigh ? bar : 0);
    return {std::max(1, room.width - (isTooHigh ? bar : 0)),
            std::max(1, room.height - (isTooWide ? bar : 0))};
}

} // namespace trellis
