#pragma once

#include "toolkit/ZOLDialog.h"

class ZOLDlgMenuPane;

// ZOLDlgMenuEntry: something inside a menu. It takes no room in a panel and is on the screen only while the menu
// is open.
class TRELLIS_API ZOLDlgMenuEntry : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgMenuEntry, ZOLDialog)
public:
    // The menu with which it opens, perhaps itself: a contextual menu, or one of a menu bar; null outside any.
    ZOLDlgMenuPane* GetMenu() const;
    bool IsLaidOut() const override;

protected:
    using ZOLDialog::ZOLDialog;
};
