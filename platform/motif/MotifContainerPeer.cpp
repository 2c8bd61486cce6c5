#include "motif/MotifContainerPeer.h"

#include "motif/MotifView.h"
#include "toolkit/DialogLayout.h"
#include "toolkit/ZOLDlgContainer.h"

#include <Xm/ScrolledW.h>

namespace trellis {

MotifContainerPeer::MotifContainerPeer(MotifView& view, ZOLDlgContainer& container)
    : MotifHolderPeer(view, container) {}

Widget MotifContainerPeer::Build(Widget parent) {
    Widget window = XtVaCreateWidget(GetDialog().GetName().ConvertToChar(), xmScrolledWindowWidgetClass,
                                     parent, XmNscrollingPolicy, XmAUTOMATIC, XmNshadowThickness, 0, nullptr);
    _surface = MakeSurface("surface", window);
    OpensMenu(_surface);
    XtManageChild(_surface);
    return window;
}

// The content is laid out by itself: beside a scroll bar it has less width than the layout around knows of.
void MotifContainerPeer::PlaceContent(const DialogLayout&, const LayoutRectangle& place) {
    const TextMeasure& measure = GetView().GetTextMeasure();
    const int bar = GetView().GetTheme().Pixels(Theme::ScrollBar) + 6;
    LayoutSize size = DialogLayout(GetDialog(), measure, {place.width, place.height}).GetSize();
    if (size.height > place.height)
        size.width = place.width - bar;
    const DialogLayout own(GetDialog(), measure, {size.width, place.height});
    size = own.GetSize();
    const LayoutRectangle scrolled = MotifQuirks::PlaceOf(_surface);
    MotifQuirks::Configure(_surface, scrolled.x, scrolled.y, size.width, size.height);
    MotifHolderPeer::PlaceContent(own, {0, 0, size.width, size.height});
}

} // namespace trellis
