#pragma once

#include "toolkit/ZOLDlgMenuEntry.h"

// ZOLDlgContextualMenu: the menu of a label, frame, list or graph, its father. Its visibility is a switch and
// says nothing about being open: ZOLShown from the start, ZOLHidden switches it off. It builds itself when it
// opens: the news comes first, then what was built is shown; when nothing was built, nothing is.
class TRELLIS_API ZOLDlgContextualMenu : public ZOLDlgMenuEntry {
    ZOL_META_OBJECT(ZOLDlgContextualMenu, ZOLDlgMenuEntry)
public:
    ZOLDlgContextualMenu(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    // The gesture on the father: sends the visibility notification to the fathers, then opens. NotThere when
    // it is empty. A graph sends its context notification instead and calls ShowBuilt.
    ZOLUserResult UserOpen();
    // Opens with the items that are there; NotThere when none is.
    ZOLUserResult ShowBuilt();
    void Close();
    bool IsOpen() const { return _isOpen; }
    // The menu that is open now; null when none is. Only one ever is.
    static ZOLDlgContextualMenu* GetOpenMenu();

    bool ShowsChild(const ZOLDialog& child) const override;
    const char* GetKind() const override;

private:
    bool _isOpen = false;
};
