#include "motif/MotifToggleButtonPeer.h"

#include "toolkit/ZOLDlgRadioButton.h"

#include <Xm/ToggleB.h>

namespace trellis {

MotifToggleButtonPeer::MotifToggleButtonPeer(MotifView& view, ZOLDlgToggleButton& button)
    : MotifPeer(view, button),
      _button(button),
      _face(view, dynamic_cast<ZOLDlgRadioButton*>(&button) ? Face::Radio : Face::Check) {}

Widget MotifToggleButtonPeer::Build(Widget parent) {
    Widget button = XtVaCreateWidget(_button.GetName().ConvertToChar(), xmToggleButtonWidgetClass, parent,
                                     XmNrecomputeSize, False, nullptr);
    Connect<&MotifToggleButtonPeer::Toggled>(button, XmNvalueChangedCallback);
    OpensMenu(button);
    return button;
}

void MotifToggleButtonPeer::Mirror() {
    MotifPeer::Mirror();
    Face face;
    face.text = _button.GetTitle().Bytes();
    face.isSensitive = _button.IsSensitive();
    face.mnemonic = GetMnemonic();
    face.isOn = _button.IsOn();
    _face.Show(GetWidget(), face);
    if (XmToggleButtonGetState(GetWidget()) != _button.IsOn())
        XmToggleButtonSetState(GetWidget(), _button.IsOn(), False);
}

void MotifToggleButtonPeer::Place(const LayoutRectangle& place) {
    MotifPeer::Place(place);
    _face.Fit(GetWidget());
}

void MotifToggleButtonPeer::Toggled(Widget, XtPointer) {
    _button.UserToggle();
}

} // namespace trellis
