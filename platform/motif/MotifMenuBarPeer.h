#pragma once

#include "motif/MotifPeer.h"

#include <vector>

class ZOLDlgMenuBar;

namespace trellis {

// MotifMenuBarPeer: shows a menu bar. Its panes are empty but while they are open: their items are built when
// the native bar is about to show them.
class MotifMenuBarPeer : public MotifPeer {
public:
    MotifMenuBarPeer(MotifView& view, ZOLDlgMenuBar& bar);
    // Also when only a title has changed.
    void MirrorContent() override;
    // The native pane of one of its menus; null when it shows none.
    Widget FindPane(const ZOLDialog& menu) const;

    // How many rows below the first its titles need in that width.
    int FurtherRows(int width) const;

protected:
    Widget Build(Widget parent) override;

private:
    struct Title {
        long number; // of the menu
        Widget button;
        Widget pane;
    };

    std::vector<ZOLDialog*> ShownMenus() const;
    void MakeTitles(const std::vector<ZOLDialog*>& menus);
    void Cascading(Widget button, XtPointer);

    std::vector<Title> _titles;
};

} // namespace trellis
