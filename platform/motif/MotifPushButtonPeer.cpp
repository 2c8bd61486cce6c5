#include "motif/MotifPushButtonPeer.h"

#include "toolkit/ZOLDlgPushButton.h"

#include <Xm/PushB.h>

namespace trellis {

MotifPushButtonPeer::MotifPushButtonPeer(MotifView& view, ZOLDlgPushButton& button)
    : MotifPeer(view, button), _button(button), _face(view, Face::Button) {}

Widget MotifPushButtonPeer::Build(Widget parent) {
    Widget button = XtVaCreateWidget(_button.GetName().ConvertToChar(), xmPushButtonWidgetClass, parent,
                                     XmNrecomputeSize, False, nullptr);
    Connect<&MotifPushButtonPeer::Pressed>(button, XmNactivateCallback);
    OpensMenu(button);
    return button;
}

// A button that takes no focus leaves it to the editor in which the user types.
void MotifPushButtonPeer::Mirror() {
    MotifPeer::Mirror();
    Face face;
    face.text = _button.GetTitle().Bytes();
    face.isSensitive = _button.IsSensitive();
    face.mnemonic = GetMnemonic();
    _face.Show(GetWidget(), face);
    XtVaSetValues(GetWidget(), XmNtraversalOn, static_cast<Boolean>(_button.TakesFocus()), nullptr);
}

void MotifPushButtonPeer::Place(const LayoutRectangle& place) {
    MotifPeer::Place(place);
    _face.Fit(GetWidget());
}

void MotifPushButtonPeer::Pressed(Widget, XtPointer) {
    _button.UserActivate();
}

} // namespace trellis
