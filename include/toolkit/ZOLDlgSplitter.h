#pragma once

#include "toolkit/ZOLDialog.h"

// ZOLDlgSplitter: holds widgets between which the user may move the borders.
class TRELLIS_API ZOLDlgSplitter : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgSplitter, ZOLDialog)
public:
    ZOLDlgSplitter(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    const char* GetKind() const override;
    void DescribeTo(trellis::DialogDescription& description) const override;
    bool GrowsByClass() const override;
    bool HoldsChildren() const override;
};
