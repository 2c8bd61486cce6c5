#pragma once

#include "toolkit/WeakCommand.h"

#include "motif/MotifNative.h"

#include <unordered_map>

class ZOLDialog;
class ZOLDlgContextualMenu;

namespace trellis {

// MotifMenu: the contextual menu that is open. Its native widgets live from opening to closing; the items of the
// model are built anew each time.
class MotifMenu {
public:
    MotifMenu() = default;
    ~MotifMenu();
    MotifMenu(const MotifMenu&) = delete;
    MotifMenu& operator=(const MotifMenu&) = delete;

    // Pops the menu up at a place of the root window.
    void Open(ZOLDlgContextualMenu& menu, Widget parent, int rootX, int rootY);
    bool IsOpen() const { return _menu && !_isDown; }
    // Once per turn: brings the native menu and that of the model to agree. A menu that went down closes that of
    // the model only now, when the chosen item has been told: an item of a closed menu takes no press.
    void Settle();

private:
    void Fill(Widget pane, const ZOLDialog& holder);
    void AddItem(Widget pane, ZOLDialog& item);
    void Discard();
    static void ChosenCB(Widget item, XtPointer self, XtPointer);
    static void DownCB(Widget, XtPointer self, XtPointer);
    static void GoneCB(Widget, XtPointer self, XtPointer);

    Widget _menu = nullptr;
    WeakCommand _model;
    std::unordered_map<Widget, WeakCommand> _items;
    bool _isDown = false;
};

} // namespace trellis
