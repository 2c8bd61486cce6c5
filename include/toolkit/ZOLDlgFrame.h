#pragma once

#include "toolkit/ZOLDialog.h"

// ZOLDlgFrame: holds widgets and lays them out; the base of every panel that is embedded in another. Style
// 0x80000: no border, 0x40000: no title. Without a text for its title it has none.
class TRELLIS_API ZOLDlgFrame : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgFrame, ZOLDialog)
public:
    ZOLDlgFrame(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    bool HasBorder() const;
    bool HasTitle() const;
    const char* GetKind() const override;
    void DescribeTo(trellis::DialogDescription& description) const override;
    // A frame grows when something in it does.
    bool GrowsByClass() const override;
    bool HoldsChildren() const override;
};
