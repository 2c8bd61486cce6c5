#pragma once

#include "toolkit/ZOLDialog.h"

// ZOLDlgSeparator: a line between widgets, across what holds them. A hidden one keeps its room.
class TRELLIS_API ZOLDlgSeparator : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgSeparator, ZOLDialog)
public:
    ZOLDlgSeparator(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    const char* GetKind() const override;
    trellis::LayoutSize GetNaturalSize(const trellis::TextMeasure& measure) const override;
};
