#include "toolkit/ZOLDlgPushItem.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLDlgMenuPane.h"

ZOLDlgPushItem::ZOLDlgPushItem(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDlgMenuEntry(father, name, style), _activateNotification("ZOLDlgMenuIActivateNotification") {}

ZOLUserResult ZOLDlgPushItem::UserActivate() {
    const trellis::CallbackScope scope;
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    if (ZOLDlgMenuPane* menu = GetMenu())
        menu->Close();
    SendUserNotification(_activateNotification);
    return ZOLUserResult::Done;
}

const char* ZOLDlgPushItem::GetKind() const {
    return "item";
}

ZOLUnicodeString ZOLDlgPushItem::GetFallbackTitle() const {
    return GetName().ConvertToChar();
}
