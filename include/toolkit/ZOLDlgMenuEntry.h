#pragma once

#include "toolkit/ZOLDialog.h"

class ZOLDlgContextualMenu;

// ZOLDlgMenuEntry: something inside a contextual menu. It takes no room in a panel and is on the screen only
// while the menu is open.
class TRELLIS_API ZOLDlgMenuEntry : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgMenuEntry, ZOLDialog)
public:
    // The menu at the root; null outside any.
    ZOLDlgContextualMenu* GetMenu() const;
    bool IsLaidOut() const override;

protected:
    using ZOLDialog::ZOLDialog;
};
