#pragma once

#include "toolkit/ZOLDlgMenuEntry.h"

// ZOLDlgSubMenu: an item of a menu that holds further items.
class TRELLIS_API ZOLDlgSubMenu : public ZOLDlgMenuEntry {
    ZOL_META_OBJECT(ZOLDlgSubMenu, ZOLDlgMenuEntry)
public:
    ZOLDlgSubMenu(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    const char* GetKind() const override;

protected:
    ZOLUnicodeString GetFallbackTitle() const override;
};
