#include "toolkit/MenuOpening.h"

#include "toolkit/DialogPath.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgSubMenu.h"
#include "toolkit/ZOLGraphViewer.h"

#include <algorithm>

namespace trellis {

namespace {

ZOLDlgContextualMenu* MenuOf(const ZOLDialog& owner) {
    for (ZOLDialog* child : owner.GetChildren()) {
        auto* menu = dynamic_cast<ZOLDlgContextualMenu*>(child);
        if (menu && menu->GetVisibility() == ZOLShown)
            return menu;
    }
    return nullptr;
}

// A graph opens its menu by a gesture on it alone.
ZOLUserResult AfterGesture(const ZOLDialog& graph, ZOLUserResult gesture) {
    return gesture == ZOLUserResult::Done && !HasOpenMenu(graph) ? ZOLUserResult::NotThere : gesture;
}

} // namespace

bool HasOpenMenu(const ZOLDialog& owner) {
    const ZOLDlgMenuPane* open = ZOLDlgMenuPane::GetOpenMenu();
    return open && (open == &owner || open->GetOwner() == &owner);
}

ZOLUserResult OpenMenuOf(ZOLDialog& owner) {
    if (HasOpenMenu(owner))
        return ZOLUserResult::Done;
    if (auto* viewer = dynamic_cast<ZOLGraphViewer*>(&owner))
        return AfterGesture(owner, viewer->UserContextBackground());
    if (auto* subMenu = dynamic_cast<ZOLDlgSubMenu*>(&owner))
        return subMenu->UserOpen();
    ZOLDlgContextualMenu* menu = MenuOf(owner);
    return menu ? menu->UserOpen() : ZOLUserResult::NotThere;
}

ZOLDialog* TakeMenuHolder(ZOLDialog& owner, std::string& path) {
    if (!dynamic_cast<ZOLDlgMenuBar*>(&owner))
        return &owner;
    const std::size_t end = std::min(path.find('/'), path.size());
    const DialogPath first(path.substr(0, end));
    path.erase(0, std::min(end + 1, path.size()));
    return dynamic_cast<ZOLDlgSubMenu*>(first.FindBelow(owner));
}

ZOLUserResult OpenMenuByKey(ZOLDialog& dialog) {
    if (auto* viewer = dynamic_cast<ZOLGraphViewer*>(&dialog); viewer && viewer->GetFocusNode())
        return viewer->UserContextFocus();
    for (ZOLDialog* holder = &dialog; holder; holder = holder->GetOwner()) {
        if (MenuOf(*holder) || dynamic_cast<ZOLGraphViewer*>(holder))
            return OpenMenuOf(*holder);
        if (holder->IsWindow())
            break;
    }
    return ZOLUserResult::NotThere;
}

} // namespace trellis
