#include "toolkit/ZOLDlgSeparatorItem.h"

ZOLDlgSeparatorItem::ZOLDlgSeparatorItem(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDlgMenuEntry(father, name, style) {}

const char* ZOLDlgSeparatorItem::GetKind() const {
    return "separator";
}
