#include "toolkit/MenuOpening.h"

#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLGraphViewer.h"

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
    const ZOLDlgContextualMenu* open = ZOLDlgContextualMenu::GetOpenMenu();
    return open && open->GetOwner() == &owner;
}

ZOLUserResult OpenMenuOf(ZOLDialog& owner) {
    if (HasOpenMenu(owner))
        return ZOLUserResult::Done;
    if (auto* viewer = dynamic_cast<ZOLGraphViewer*>(&owner))
        return AfterGesture(owner, viewer->UserContextBackground());
    ZOLDlgContextualMenu* menu = MenuOf(owner);
    return menu ? menu->UserOpen() : ZOLUserResult::NotThere;
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
