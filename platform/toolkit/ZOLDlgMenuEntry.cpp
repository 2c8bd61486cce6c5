#include "toolkit/ZOLDlgMenuEntry.h"

#include "toolkit/ZOLDlgContextualMenu.h"

ZOLDlgContextualMenu* ZOLDlgMenuEntry::GetMenu() const {
    for (ZOLDialog* dialog = const_cast<ZOLDlgMenuEntry*>(this); dialog; dialog = dialog->GetOwner())
        if (auto* menu = dynamic_cast<ZOLDlgContextualMenu*>(dialog))
            return menu;
    return nullptr;
}

bool ZOLDlgMenuEntry::IsLaidOut() const {
    return false;
}
