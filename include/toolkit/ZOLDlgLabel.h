#pragma once

#include "toolkit/ZOLDialog.h"

// ZOLDlgLabel: a text that only tells. One whose text is empty takes no room.
class TRELLIS_API ZOLDlgLabel : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgLabel, ZOLDialog)
public:
    ZOLDlgLabel(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    const char* GetKind() const override;
    void DescribeTo(trellis::DialogDescription& description) const override;

protected:
    ZOLUnicodeString GetFallbackTitle() const override;
};
