#include "toolkit/ZOLDlgCheckButton.h"

ZOLDlgCheckButton::ZOLDlgCheckButton(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDlgToggleButton(father, name, style, "ZOLDlgChkBModifyNotification") {}

const char* ZOLDlgCheckButton::GetKind() const {
    return "check";
}
