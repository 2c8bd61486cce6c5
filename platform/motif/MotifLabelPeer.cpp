#include "motif/MotifLabelPeer.h"

#include "toolkit/ZOLDlgLabel.h"

#include <Xm/Label.h>

namespace trellis {

MotifLabelPeer::MotifLabelPeer(MotifView& view, ZOLDlgLabel& label) : MotifPeer(view, label) {}

Widget MotifLabelPeer::Build(Widget parent) {
    const MotifQuirks::Text text(GetDialog().GetTitle());
    Widget label =
        XtVaCreateWidget(GetDialog().GetName().ConvertToChar(), xmLabelWidgetClass, parent, XmNlabelString,
                         text.Get(), XmNrecomputeSize, False, XmNalignment, XmALIGNMENT_BEGINNING, nullptr);
    OpensMenu(label);
    return label;
}

void MotifLabelPeer::Mirror() {
    MotifPeer::Mirror();
    MotifQuirks::SetLabel(GetWidget(), GetDialog().GetTitle());
}

} // namespace trellis
