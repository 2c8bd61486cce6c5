#include "motif/MotifScroller.h"

#include "motif/MotifHolderPeer.h"
#include "motif/MotifView.h"

#include <Xm/ScrollBar.h>
#include <Xm/ScrolledW.h>

#include <algorithm>

namespace trellis {

namespace {

constexpr int barSpacing = 2; // before a scroll bar
constexpr int wheelPixels = 48;
constexpr unsigned wheelLeft = 6;
constexpr unsigned wheelRight = 7;

// The bar of a scrolled window that a step of the wheel moves; null when it is not shown.
Widget BarOf(Widget scrolled, bool isUpright) {
    Widget bar = nullptr;
    XtVaGetValues(scrolled, isUpright ? XmNverticalScrollBar : XmNhorizontalScrollBar, &bar, nullptr);
    return bar && XtIsManaged(bar) ? bar : nullptr;
}

void Move(Widget bar, int pixels) {
    int value = 0;
    int slider = 0;
    int step = 0;
    int page = 0;
    int most = 0;
    XmScrollBarGetValues(bar, &value, &slider, &step, &page);
    XtVaGetValues(bar, XmNmaximum, &most, nullptr);
    XmScrollBarSetValues(bar, std::clamp(value + pixels, 0, std::max(0, most - slider)), slider, step, page,
                         True);
}

} // namespace

MotifScroller::MotifScroller(MotifView& view, const char* name, Widget parent)
    : _view(view),
      _window(XtVaCreateWidget(name, xmScrolledWindowWidgetClass, parent, XmNscrollingPolicy, XmAUTOMATIC,
                               XmNshadowThickness, 0, XmNspacing, barSpacing, nullptr)),
      _surface(MotifHolderPeer::MakeSurface("surface", _window)) {
    XtAddCallback(_window, MotifQuirks::Name(XmNtraverseObscuredCallback), &MotifScroller::ObscuredCB,
                  nullptr);
    MotifQuirks::LeaveScrollKeys(XtParent(_surface));
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

bool MotifScroller::TurnWheel(Widget under, unsigned button) {
    const bool isUpright = button == Button4 || button == Button5;
    if (!isUpright && button != wheelLeft && button != wheelRight)
        return false;
    for (Widget widget = under; widget && !XtIsShell(widget); widget = XtParent(widget)) {
        if (!XtIsSubclass(widget, xmScrolledWindowWidgetClass))
            continue;
        if (Widget bar = BarOf(widget, isUpright)) {
            Move(bar, button == Button4 || button == wheelLeft ? -wheelPixels : wheelPixels);
            return true;
        }
    }
    return false;
}

LayoutSize MotifScroller::RoomBesideBars(LayoutSize room, LayoutSize needed) const {
    const int bar = _view.GetTheme().Pixels(Theme::ScrollBar) + barSpacing;
    const bool isTooHigh = needed.height > room.height;
    const bool isTooWide = needed.width > room.width - (isTooHigh ? bar : 0);
    return {std::max(1, room.width - (isTooHigh ? bar : 0)),
            std::max(1, room.height - (isTooWide ? bar : 0))};
}

} // namespace trellis
