#pragma once

#include "toolkit/ZOLDialog.h"

// ZOLDlgTabPage: one page of a tab container; its title stands on the tab. A greyed page cannot be chosen.
class TRELLIS_API ZOLDlgTabPage : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgTabPage, ZOLDialog)
public:
    ZOLDlgTabPage(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    const char* GetKind() const override;
    bool GrowsByClass() const override;
    bool HoldsChildren() const override;

protected:
    ZOLUnicodeString GetFallbackTitle() const override;
};
