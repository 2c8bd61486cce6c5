#pragma once

#include "toolkit/ZOLDlgMenuEntry.h"

// ZOLDlgMenuPane: what holds the items of a menu. A contextual menu and a submenu of a menu bar open by
// themselves; a submenu of another menu is seen with that one. A menu builds itself when it opens: its visibility
// notification comes first, then what was built is shown; when nothing was built, nothing is.
class TRELLIS_API ZOLDlgMenuPane : public ZOLDlgMenuEntry {
    ZOL_META_OBJECT(ZOLDlgMenuPane, ZOLDlgMenuEntry)
public:
    // The user's gesture: sends the visibility notification to the fathers, then opens. NotThere when it is
    // empty, or does not open by itself.
    ZOLUserResult UserOpen();
    // Opens with the items that are there, and closes any other menu; NotThere when none is.
    ZOLUserResult ShowBuilt();
    void Close();
    // Gives up what it holds: for menus that are built anew each time.
    void Empty();
    bool IsOpen() const { return _isOpen; }
    // The menu that is open now; null when none is. Only one ever is.
    static ZOLDlgMenuPane* GetOpenMenu();

    // Whether it is no part of another menu.
    virtual bool OpensByItself() const = 0;
    bool ShowsChild(const ZOLDialog& child) const override;

protected:
    using ZOLDlgMenuEntry::ZOLDlgMenuEntry;
    // What keeps a user from opening it now.
    virtual ZOLUserResult OpeningGate() const;

private:
    bool _isOpen = false;
};
