#include "toolkit/ZOLDlgRadioButton.h"

#include "toolkit/CallbackScope.h"

ZOLDlgRadioButton::ZOLDlgRadioButton(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDlgToggleButton(father, name, style, "ZOLDlgRadBModifyNotification") {}

std::vector<ZOLDlgRadioButton*> ZOLDlgRadioButton::OthersThatAreOn() const {
    std::vector<ZOLDlgRadioButton*> others;
    if (!GetOwner())
        return others;
    for (ZOLDialog* sibling : GetOwner()->GetChildren()) {
        auto* radio = dynamic_cast<ZOLDlgRadioButton*>(sibling);
        if (radio && radio != this && radio->IsOn() && !radio->IsBeingDestroyed())
            others.push_back(radio);
    }
    return others;
}

// All states stand before the first listener hears of any: it may read the whole group.
void ZOLDlgRadioButton::SetState(int state, int notify) {
    const trellis::CallbackScope scope;
    std::vector<ZOLDlgRadioButton*> goingOff;
    if (state == ZOLOn)
        goingOff = OthersThatAreOn();
    for (ZOLDlgRadioButton* other : goingOff)
        other->StoreState(ZOLOff);
    StoreState(state);
    if (!notify)
        return;
    const std::vector<trellis::WeakCommand> senders(goingOff.begin(), goingOff.end());
    const trellis::WeakCommand self(this);
    for (const trellis::WeakCommand& sender : senders)
        if (auto* other = dynamic_cast<ZOLDlgRadioButton*>(sender.Get()))
            other->SendUserNotification(other->GetModifyNotification());
    if (self.Get())
        SendUserNotification(GetModifyNotification());
}

ZOLUserResult ZOLDlgRadioButton::UserToggle() {
    const trellis::CallbackScope scope;
    const ZOLUserResult gate = UserGate();
    if (gate == ZOLUserResult::Done && !IsOn())
        SetState(ZOLOn, 1);
    return gate;
}

const char* ZOLDlgRadioButton::GetKind() const {
    return "radio";
}
