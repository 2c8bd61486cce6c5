#include "toolkit/ZOLDlgToggleButton.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/TextMeasure.h"

ZOLDlgToggleButton::ZOLDlgToggleButton(ZOLDialog* father, const ZOLString& name, unsigned long style,
                                       const char* notificationClass)
    : ZOLDialog(father, name, style), _modifyNotification(notificationClass) {}

void ZOLDlgToggleButton::StoreState(int state) {
    _state = state;
    MarkChanged();
}

void ZOLDlgToggleButton::SetState(int state, int notify) {
    StoreState(state);
    if (notify)
        SendUserNotification(_modifyNotification);
}

ZOLUserResult ZOLDlgToggleButton::UserToggle() {
    const trellis::CallbackScope scope;
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    SetState(IsOn() ? ZOLOff : ZOLOn, 1);
    return ZOLUserResult::Done;
}

std::string ZOLDlgToggleButton::GetMarks() const {
    return IsOn() ? "on" : "off";
}

ZOLUnicodeString ZOLDlgToggleButton::GetFallbackTitle() const {
    return GetName().ConvertToChar();
}

trellis::LayoutSize ZOLDlgToggleButton::GetNaturalSize(const trellis::TextMeasure& measure) const {
    const trellis::LayoutMetrics metrics(measure);
    return {measure.GetTextWidth(GetTitle()) + metrics.Indicator() + metrics.Spacing(),
            measure.GetLineHeight() + metrics.TextMargin()};
}
