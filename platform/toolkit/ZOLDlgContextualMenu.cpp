#include "toolkit/ZOLDlgContextualMenu.h"

ZOLDlgContextualMenu::ZOLDlgContextualMenu(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDlgMenuPane(father, name, style) {}

bool ZOLDlgContextualMenu::OpensByItself() const {
    return true;
}

// The gesture is made on the father.
ZOLUserResult ZOLDlgContextualMenu::OpeningGate() const {
    return GetVisibility() == ZOLShown && GetOwner() ? GetOwner()->UserGate() : ZOLUserResult::Hidden;
}

const char* ZOLDlgContextualMenu::GetKind() const {
    return "menu";
}
