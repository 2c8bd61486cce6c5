#pragma once

#include "toolkit/ZOLDialog.h"

// ZOLDlgContainer: holds widgets and scrolls over them when they need more room than there is.
class TRELLIS_API ZOLDlgContainer : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgContainer, ZOLDialog)
public:
    ZOLDlgContainer(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    const char* GetKind() const override;
    void DescribeTo(trellis::DialogDescription& description) const override;
    bool GrowsByClass() const override;
    bool HoldsChildren() const override;
};
