#pragma once

#include "toolkit/ZOLDialog.h"

class ZOLDlgTabPage;

// ZOLDlgTabContainer: holds pages of which one is shown.
class TRELLIS_API ZOLDlgTabContainer : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgTabContainer, ZOLDialog)
public:
    ZOLDlgTabContainer(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    // The user chose another page.
    ZOLNotification* GetTabSelectNotification() { return &_selectNotification; }

    // The page that is shown: the one chosen last, else the first that is not hidden; null when there is
    // none.
    ZOLDlgTabPage* GetSelectedPage() const;
    // notify  non-zero sends the user's notification, also for the page that is shown; 0 sends nothing
    void SetSelectedPage(ZOLDlgTabPage* page, int notify = 0);
    std::vector<ZOLDlgTabPage*> GetPages() const;

    // Choosing the page that is shown sends nothing.
    ZOLUserResult UserSelectPage(ZOLDlgTabPage* page);

    bool ShowsChild(const ZOLDialog& child) const override;
    const char* GetKind() const override;
    void DescribeTo(trellis::DialogDescription& description) const override;
    bool GrowsByClass() const override;
    bool HoldsChildren() const override;

private:
    trellis::WeakCommand _selected;
    ZOLNotification _selectNotification;
};
