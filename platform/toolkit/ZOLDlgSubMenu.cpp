#include "toolkit/ZOLDlgSubMenu.h"

ZOLDlgSubMenu::ZOLDlgSubMenu(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDlgMenuEntry(father, name, style) {}

const char* ZOLDlgSubMenu::GetKind() const {
    return "submenu";
}

ZOLUnicodeString ZOLDlgSubMenu::GetFallbackTitle() const {
    return GetName().ConvertToChar();
}
