#include "toolkit/ZOLDlgPushButton.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/TextMeasure.h"

using trellis::LayoutMetrics;

ZOLDlgPushButton::ZOLDlgPushButton(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style), _activateNotification("ZOLDlgPushBActivateNotification") {}

ZOLUserResult ZOLDlgPushButton::UserActivate() {
    const trellis::CallbackScope scope;
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    SendUserNotification(_activateNotification);
    return ZOLUserResult::Done;
}

const char* ZOLDlgPushButton::GetKind() const {
    return "button";
}

ZOLUnicodeString ZOLDlgPushButton::GetFallbackTitle() const {
    return GetName().ConvertToChar();
}

trellis::LayoutSize ZOLDlgPushButton::GetNaturalSize(const trellis::TextMeasure& measure) const {
    const LayoutMetrics metrics(measure);
    return {measure.GetTextWidth(GetTitle()) + 2 * metrics.ButtonMargin(), metrics.LineOfText()};
}
