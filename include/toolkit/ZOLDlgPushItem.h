#pragma once

#include "toolkit/ZOLDlgMenuEntry.h"

// ZOLDlgPushItem: an item of a menu that does something.
class TRELLIS_API ZOLDlgPushItem : public ZOLDlgMenuEntry {
    ZOL_META_OBJECT(ZOLDlgPushItem, ZOLDlgMenuEntry)
public:
    ZOLDlgPushItem(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    ZOLNotification* GetMenuIActivateNotification() { return &_activateNotification; }

    // Closes the menu, then sends. Hidden while the menu is not open.
    ZOLUserResult UserActivate();

    const char* GetKind() const override;

protected:
    ZOLUnicodeString GetFallbackTitle() const override;

private:
    ZOLNotification _activateNotification;
};
