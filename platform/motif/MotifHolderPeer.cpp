#include "motif/MotifHolderPeer.h"

#include "motif/MotifView.h"
#include "toolkit/DialogLayout.h"
#include "toolkit/ZOLDialog.h"

#include <Xm/BulletinB.h>

#include <utility>

namespace trellis {

Widget MotifHolderPeer::MakeSurface(const char* name, Widget parent) {
    return XtVaCreateWidget(name, xmBulletinBoardWidgetClass, parent, XmNmarginWidth, 0, XmNmarginHeight, 0,
                            XmNresizePolicy, XmRESIZE_NONE, XmNshadowThickness, 0, nullptr);
}

Widget MotifHolderPeer::Build(Widget parent) {
    Widget surface = MakeSurface(GetDialog().GetName().ConvertToChar(), parent);
    OpensMenu(surface);
    return surface;
}

void MotifHolderPeer::MirrorContent() {
    const bool isSensitive = GetDialog().IsSensitive();
    const bool turnsGrey = std::exchange(_wasSensitive, isSensitive) != isSensitive;
    for (ZOLDialog* child : GetDialog().GetChildren()) {
        if (!child->IsLaidOut() || child->IsBeingDestroyed())
            continue;
        MotifPeer* peer = GetView().FindPeer(*child);
        if (!peer && !GetDialog().ShowsChild(*child))
            continue; // a page nobody has looked at yet
        const Widget surface = GetSurfaceOf(*child);
        const bool isNew = !peer || !peer->GetWidget() || XtParent(peer->GetWidget()) != surface;
        if (isNew)
            peer = &GetView().MakePeer(*child, surface);
        if (GetView().TakeMark(*child) || isNew || turnsGrey)
            peer->Mirror();
        peer->MirrorContent();
    }
}

void MotifHolderPeer::PlaceContent(const DialogLayout& layout, const LayoutRectangle& place) {
    for (const ZOLDialog* child : GetDialog().GetChildren())
        PlaceChild(*child, layout, place);
}

void MotifHolderPeer::CollectStops(std::vector<Widget>& stops) const {
    MotifPeer::CollectStops(stops);
    for (const ZOLDialog* child : GetDialog().GetChildren())
        if (const MotifPeer* peer = GetDialog().ShowsChild(*child) ? GetView().FindPeer(*child) : nullptr;
            peer && child->IsLaidOut() && child->GetVisibility() == ZOLShown)
            peer->CollectStops(stops);
}

void MotifHolderPeer::PlaceChild(const ZOLDialog& child, const DialogLayout& layout,
                                 const LayoutRectangle& corner) {
    MotifPeer* peer = child.IsLaidOut() ? GetView().FindPeer(child) : nullptr;
    if (!peer || !peer->GetWidget())
        return;
    const auto found = layout.Find(child);
    const bool isVisible = found && child.GetVisibility() == ZOLShown && GetDialog().ShowsChild(child);
    if (isVisible) {
        peer->Place({found->x - corner.x, found->y - corner.y, found->width, found->height});
        peer->PlaceContent(layout, *found);
    }
    peer->SetShown(isVisible);
}

} // namespace trellis
