#include "motif/MotifPushButtonPeer.h"

#include "toolkit/ZOLDlgPushButton.h"

#include <Xm/PushB.h>

namespace trellis {

MotifPushButtonPeer::MotifPushButtonPeer(MotifView& view, ZOLDlgPushButton& button)
    : MotifPeer(view, button), _button(button) {}

Widget MotifPushButtonPeer::Build(Widget parent) {
    const MotifQuirks::Text text(_button.GetTitle());
    Widget button = XtVaCreateWidget(_button.GetName().ConvertToChar(), xmPushButtonWidgetClass, parent,
                                     XmNlabelString, text.Get(), XmNrecomputeSize, False, nullptr);
    Connect<&MotifPushButtonPeer::Pressed>(button, XmNactivateCallback);
    OpensMenu(button);
    return button;
}

// A button that takes no focus leaves it to the editor in which the user types.
void MotifPushButtonPeer::Mirror() {
    MotifPeer::Mirror();
    MotifQuirks::SetLabel(GetWidget(), _button.GetTitle());
    XtVaSetValues(GetWidget(), XmNtraversalOn, static_cast<Boolean>(_button.TakesFocus()), nullptr);
}

void MotifPushButtonPeer::Pressed(Widget, XtPointer) {
    _button.UserActivate();
}

} // namespace trellis
