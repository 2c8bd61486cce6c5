#include "toolkit/ZOLDlgSubMenu.h"

#include "toolkit/ZOLDlgMenuBar.h"

ZOLDlgSubMenu::ZOLDlgSubMenu(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDlgMenuPane(father, name, style) {}

bool ZOLDlgSubMenu::OpensByItself() const {
    return dynamic_cast<const ZOLDlgMenuBar*>(GetOwner());
}

const char* ZOLDlgSubMenu::GetKind() const {
    return "submenu";
}

ZOLUnicodeString ZOLDlgSubMenu::GetFallbackTitle() const {
    return GetName().ConvertToChar();
}
