#pragma once

#include "toolkit/ZOLDlgMenuPane.h"

// ZOLDlgSubMenu: an item of a menu, or a title of a menu bar, that holds further items.
class TRELLIS_API ZOLDlgSubMenu : public ZOLDlgMenuPane {
    ZOL_META_OBJECT(ZOLDlgSubMenu, ZOLDlgMenuPane)
public:
    ZOLDlgSubMenu(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    // Only in a menu bar.
    bool OpensByItself() const override;
    const char* GetKind() const override;

protected:
    ZOLUnicodeString GetFallbackTitle() const override;
};
