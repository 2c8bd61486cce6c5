#include "motif/MotifToggleButtonPeer.h"

#include "toolkit/ZOLDlgRadioButton.h"

#include <Xm/ToggleB.h>

namespace trellis {

MotifToggleButtonPeer::MotifToggleButtonPeer(MotifView& view, ZOLDlgToggleButton& button)
    : MotifPeer(view, button), _button(button) {}

Widget MotifToggleButtonPeer::Build(Widget parent) {
    const MotifQuirks::Text text(_button.GetTitle());
    const bool isRadio = dynamic_cast<ZOLDlgRadioButton*>(&_button);
    Widget button =
        XtVaCreateWidget(_button.GetName().ConvertToChar(), xmToggleButtonWidgetClass, parent, XmNlabelString,
                         text.Get(), XmNrecomputeSize, False, XmNalignment, XmALIGNMENT_BEGINNING,
                         XmNindicatorType, isRadio ? XmONE_OF_MANY_ROUND : XmN_OF_MANY, nullptr);
    Connect<&MotifToggleButtonPeer::Toggled>(button, XmNvalueChangedCallback);
    OpensMenu(button);
    return button;
}

void MotifToggleButtonPeer::Mirror() {
    MotifPeer::Mirror();
    MotifQuirks::SetLabel(GetWidget(), _button.GetTitle());
    if (XmToggleButtonGetState(GetWidget()) != _button.IsOn())
        XmToggleButtonSetState(GetWidget(), _button.IsOn(), False);
}

void MotifToggleButtonPeer::Toggled(Widget, XtPointer) {
    _button.UserToggle();
}

} // namespace trellis
