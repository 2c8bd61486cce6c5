#include "motif/MotifLabelPeer.h"

#include "toolkit/ZOLDlgLabel.h"

namespace trellis {

MotifLabelPeer::MotifLabelPeer(MotifView& view, ZOLDlgLabel& label) : MotifPeer(view, label) {}

Widget MotifLabelPeer::Build(Widget parent) {
    _caption.emplace(GetView(), parent, GetDialog().GetName().ConvertToChar());
    OpensMenu(_caption->GetWidget());
    return _caption->GetWidget();
}

void MotifLabelPeer::Mirror() {
    MotifPeer::Mirror();
    _caption->Show(GetDialog().GetTitle(), GetDialog().IsSensitive(), GetMnemonic());
}

void MotifLabelPeer::Place(const LayoutRectangle& place) {
    _caption->Place(place);
}

} // namespace trellis
