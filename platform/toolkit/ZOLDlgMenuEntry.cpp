#include "toolkit/ZOLDlgMenuEntry.h"

#include "toolkit/ZOLDlgMenuPane.h"

ZOLDlgMenuPane* ZOLDlgMenuEntry::GetMenu() const {
    for (ZOLDialog* dialog = const_cast<ZOLDlgMenuEntry*>(this); dialog; dialog = dialog->GetOwner())
        if (auto* menu = dynamic_cast<ZOLDlgMenuPane*>(dialog); menu && menu->OpensByItself())
            return menu;
    return nullptr;
}

bool ZOLDlgMenuEntry::IsLaidOut() const {
    return false;
}
