#include "motif/MotifSeparatorPeer.h"

#include "toolkit/ZOLDlgSeparator.h"

#include <Xm/Separator.h>

namespace trellis {

MotifSeparatorPeer::MotifSeparatorPeer(MotifView& view, ZOLDlgSeparator& separator)
    : MotifPeer(view, separator) {}

Widget MotifSeparatorPeer::Build(Widget parent) {
    return XtVaCreateWidget(GetDialog().GetName().ConvertToChar(), xmSeparatorWidgetClass, parent, nullptr);
}

} // namespace trellis
