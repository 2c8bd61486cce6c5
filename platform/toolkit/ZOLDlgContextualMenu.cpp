#include "toolkit/ZOLDlgContextualMenu.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/ToolkitView.h"

#include <algorithm>

namespace {

trellis::WeakCommand& OpenMenu() {
    static trellis::WeakCommand menu;
    return menu;
}

} // namespace

ZOLDlgContextualMenu::ZOLDlgContextualMenu(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDlgMenuEntry(father, name, style) {}

ZOLUserResult ZOLDlgContextualMenu::UserOpen() {
    const trellis::CallbackScope scope;
    if (GetVisibility() != ZOLShown || !GetOwner())
        return ZOLUserResult::Hidden;
    if (const ZOLUserResult gate = GetOwner()->UserGate(); gate != ZOLUserResult::Done)
        return gate;
    const trellis::WeakCommand self(this);
    SendUserNotification(*GetVisibilityNotification());
    return self.Get() ? ShowBuilt() : ZOLUserResult::NotThere;
}

ZOLUserResult ZOLDlgContextualMenu::ShowBuilt() {
    if (GetVisibility() != ZOLShown)
        return ZOLUserResult::Hidden;
    const auto isItem = [](const ZOLDialog* child) { return child->GetVisibility() == ZOLShown; };
    if (std::none_of(GetChildren().begin(), GetChildren().end(), isItem))
        return ZOLUserResult::NotThere;
    if (ZOLDlgContextualMenu* other = GetOpenMenu(); other && other != this)
        other->Close();
    _isOpen = true;
    OpenMenu() = trellis::WeakCommand(this);
    if (trellis::ToolkitView* view = trellis::ToolkitView::Current())
        view->MenuOpened(*this);
    return ZOLUserResult::Done;
}

void ZOLDlgContextualMenu::Close() {
    _isOpen = false;
    MarkChanged();
}

ZOLDlgContextualMenu* ZOLDlgContextualMenu::GetOpenMenu() {
    auto* menu = dynamic_cast<ZOLDlgContextualMenu*>(OpenMenu().Get());
    return menu && menu->IsOpen() && menu->GetVisibility() == ZOLShown ? menu : nullptr;
}

bool ZOLDlgContextualMenu::ShowsChild(const ZOLDialog&) const {
    return _isOpen;
}

const char* ZOLDlgContextualMenu::GetKind() const {
    return "menu";
}
