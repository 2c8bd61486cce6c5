#include "toolkit/ZOLDlgTabContainer.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/DialogDescription.h"
#include "toolkit/ZOLDlgTabPage.h"

#include <algorithm>

ZOLDlgTabContainer::ZOLDlgTabContainer(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDialog(father, name, style), _selectNotification("ZOLDlgTabSelectNotification") {}

std::vector<ZOLDlgTabPage*> ZOLDlgTabContainer::GetPages() const {
    std::vector<ZOLDlgTabPage*> pages;
    for (ZOLDialog* child : GetChildren()) {
        auto* page = dynamic_cast<ZOLDlgTabPage*>(child);
        if (page && page->GetVisibility() == ZOLShown)
            pages.push_back(page);
    }
    return pages;
}

ZOLDlgTabPage* ZOLDlgTabContainer::GetSelectedPage() const {
    const std::vector<ZOLDlgTabPage*> pages = GetPages();
    const ZOLCommand* selected = _selected.Get();
    const auto found = std::find(pages.begin(), pages.end(), selected);
    if (found != pages.end())
        return *found;
    return pages.empty() ? nullptr : pages.front();
}

void ZOLDlgTabContainer::SetSelectedPage(ZOLDlgTabPage* page, int notify) {
    const trellis::CallbackScope scope;
    _selected = trellis::WeakCommand(page);
    MarkChanged();
    if (notify)
        SendUserNotification(_selectNotification);
}

ZOLUserResult ZOLDlgTabContainer::UserSelectPage(ZOLDlgTabPage* page) {
    const trellis::CallbackScope scope;
    if (const ZOLUserResult gate = UserGate(); gate != ZOLUserResult::Done)
        return gate;
    const std::vector<ZOLDlgTabPage*> pages = GetPages();
    if (std::find(pages.begin(), pages.end(), page) == pages.end())
        return ZOLUserResult::NotThere;
    if (!page->IsSensitive())
        return ZOLUserResult::Insensitive;
    if (page != GetSelectedPage())
        SetSelectedPage(page, 1);
    return ZOLUserResult::Done;
}

bool ZOLDlgTabContainer::ShowsChild(const ZOLDialog& child) const {
    return &child == GetSelectedPage();
}

const char* ZOLDlgTabContainer::GetKind() const {
    return "tabs";
}

void ZOLDlgTabContainer::DescribeTo(trellis::DialogDescription& description) const {
    std::string line = GetKind();
    const char* separator = " ";
    for (const ZOLDlgTabPage* page : GetPages()) {
        line += separator + trellis::DialogDescription::Quoted(page->GetTitle());
        if (page == GetSelectedPage())
            line += " selected";
        if (!page->IsSensitive())
            line += " greyed";
        separator = ", ";
    }
    description.Line(line);
    description.Children(*this);
}

bool ZOLDlgTabContainer::GrowsByClass() const {
    return true;
}

bool ZOLDlgTabContainer::HoldsChildren() const {
    return true;
}
