#include "motif/MotifContainerPeer.h"

#include "motif/MotifView.h"
#include "toolkit/DialogLayout.h"
#include "toolkit/ZOLDlgContainer.h"

namespace trellis {

MotifContainerPeer::MotifContainerPeer(MotifView& view, ZOLDlgContainer& container)
    : MotifHolderPeer(view, container) {}

Widget MotifContainerPeer::Build(Widget parent) {
    _scroller.emplace(GetView(), GetDialog().GetName().ConvertToChar(), parent);
    OpensMenu(_scroller->GetSurface());
    return _scroller->GetWindow();
}

// The content is laid out by itself: it may be larger than the layout around knows of.
void MotifContainerPeer::PlaceContent(const DialogLayout&, const LayoutRectangle& place) {
    const TextMeasure& measure = GetView().GetTextMeasure();
    const LayoutSize needed = DialogLayout(GetDialog(), measure).GetSize();
    const LayoutSize room = _scroller->RoomBesideBars({place.width, place.height}, needed);
    const DialogLayout own(GetDialog(), measure, room);
    const LayoutSize size = own.GetSize();
    _scroller->Place(MotifQuirks::PlaceOf(GetWidget()), size);
    MotifHolderPeer::PlaceContent(own, {0, 0, size.width, size.height});
}

} // namespace trellis
