#pragma once

#include "toolkit/ZOLDlgToggleButton.h"

// ZOLDlgCheckButton: a choice of yes or no.
class TRELLIS_API ZOLDlgCheckButton : public ZOLDlgToggleButton {
    ZOL_META_OBJECT(ZOLDlgCheckButton, ZOLDlgToggleButton)
public:
    ZOLDlgCheckButton(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    ZOLNotification* GetChkBModifyNotification() { return &GetModifyNotification(); }

    const char* GetKind() const override;
};
