#pragma once

#include "toolkit/ZOLDialog.h"

// ZOLDlgSeparator: a line between widgets.
class TRELLIS_API ZOLDlgSeparator : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgSeparator, ZOLDialog)
public:
    ZOLDlgSeparator(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    const char* GetKind() const override;
};
