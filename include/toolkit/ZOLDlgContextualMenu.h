#pragma once

#include "toolkit/ZOLDlgMenuPane.h"

// ZOLDlgContextualMenu: the menu of a label, frame, list or graph, its father. Its visibility is a switch and
// says nothing about being open: ZOLShown from the start, ZOLHidden switches it off. A graph sends its context
// notification instead of the menu's own when it opens.
class TRELLIS_API ZOLDlgContextualMenu : public ZOLDlgMenuPane {
    ZOL_META_OBJECT(ZOLDlgContextualMenu, ZOLDlgMenuPane)
public:
    ZOLDlgContextualMenu(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    bool OpensByItself() const override;
    const char* GetKind() const override;

protected:
    ZOLUserResult OpeningGate() const override;
};
