#pragma once

#include "toolkit/ZOLDlgMenuEntry.h"

// ZOLDlgSeparatorItem: a line between the items of a menu.
class TRELLIS_API ZOLDlgSeparatorItem : public ZOLDlgMenuEntry {
    ZOL_META_OBJECT(ZOLDlgSeparatorItem, ZOLDlgMenuEntry)
public:
    ZOLDlgSeparatorItem(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    const char* GetKind() const override;
};
