#pragma once

#include "toolkit/ZOLDialog.h"

// ZOLDlgSplitter: holds panes, each of its children being one, between which the user may move the borders.
// Panes fill the splitter; they stand below each other, or beside each other where the orientation says so.
// Where a border was moved to is a matter of display.
class TRELLIS_API ZOLDlgSplitter : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgSplitter, ZOLDialog)
public:
    ZOLDlgSplitter(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    const char* GetKind() const override;
    void DescribeTo(trellis::DialogDescription& description) const override;
    bool GrowsByClass() const override;
    bool HoldsChildren() const override;
};
