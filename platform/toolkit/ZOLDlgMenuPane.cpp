#include "toolkit/ZOLDlgMenuPane.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/ToolkitView.h"

#include <algorithm>

namespace {

trellis::WeakCommand& OpenMenu() {
    static trellis::WeakCommand menu;
    return menu;
}

} // namespace

ZOLUserResult ZOLDlgMenuPane::UserOpen() {
    const trellis::CallbackScope scope;
    if (!OpensByItself())
        return ZOLUserResult::NotThere;
    if (const ZOLUserResult gate = OpeningGate(); gate != ZOLUserResult::Done)
        return gate;
    const trellis::WeakCommand self(this);
    SendUserNotification(*GetVisibilityNotification());
    return self.Get() ? ShowBuilt() : ZOLUserResult::NotThere;
}

ZOLUserResult ZOLDlgMenuPane::OpeningGate() const {
    return UserGate();
}

ZOLUserResult ZOLDlgMenuPane::ShowBuilt() {
    if (GetVisibility() != ZOLShown)
        return ZOLUserResult::Hidden;
    const auto isItem = [](const ZOLDialog* child) { return child->GetVisibility() == ZOLShown; };
    if (std::none_of(GetChildren().begin(), GetChildren().end(), isItem))
        return ZOLUserResult::NotThere;
    if (ZOLDlgMenuPane* other = GetOpenMenu(); other && other != this)
        other->Close();
    _isOpen = true;
    OpenMenu() = trellis::WeakCommand(this);
    if (trellis::ToolkitView* view = trellis::ToolkitView::Current())
        view->MenuOpened(*this);
    return ZOLUserResult::Done;
}

void ZOLDlgMenuPane::Close() {
    _isOpen = false;
    MarkChanged();
}

void ZOLDlgMenuPane::Empty() {
    for (ZOLDialog* item : std::vector<ZOLDialog*>(GetChildren()))
        item->RequestDelayedDestruction();
}

ZOLDlgMenuPane* ZOLDlgMenuPane::GetOpenMenu() {
    auto* menu = dynamic_cast<ZOLDlgMenuPane*>(OpenMenu().Get());
    return menu && menu->IsOpen() && menu->GetVisibility() == ZOLShown ? menu : nullptr;
}

bool ZOLDlgMenuPane::ShowsChild(const ZOLDialog&) const {
    return _isOpen || !OpensByItself();
}
