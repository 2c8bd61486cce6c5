#pragma once

#include "toolkit/WeakCommand.h"

#include "motif/MotifNative.h"

#include <optional>
#include <unordered_map>
#include <vector>

class ZOLDialog;
class ZOLDlgMenuPane;

namespace trellis {

// The gesture that brings a menu up.
struct MenuGesture {
    int x = 0; // place on the root window
    int y = 0;
    std::optional<XButtonEvent> press; // none for a key
};

// MotifMenu: the menu that is open: a contextual one, or one of a menu bar. The native items live from opening to
// closing; they are built anew each time.
class MotifMenu {
public:
    // Contextual menus hang on a shell that is always there and never seen.
    explicit MotifMenu(Widget application);
    ~MotifMenu();
    MotifMenu(const MotifMenu&) = delete;
    MotifMenu& operator=(const MotifMenu&) = delete;

    // Pops a contextual menu up at the place of the gesture. After a press it stays until the next one when the
    // button is let go at once, else the release chooses; after a key its first item is armed.
    void PopUp(ZOLDlgMenuPane& menu, const MenuGesture& gesture);
    // Fills the native pane of a menu of a bar, which the native bar is about to show.
    void Fill(ZOLDlgMenuPane& menu, Widget pane);
    bool IsOpen() const { return _pane && !_isDown; }
    // Once per turn: brings the native menu and that of the model to agree. A menu that went down closes that of
    // the model only now, when the chosen item has been told: an item of a closed menu takes no press.
    void Settle();

private:
    void Begin(ZOLDlgMenuPane& menu, Widget pane);
    void FillPane(Widget pane, const ZOLDialog& holder);
    Widget MakeItem(Widget pane, ZOLDialog& item, char mnemonic);
    void Discard();
    void TakeDown();
    static void ChosenCB(Widget item, XtPointer self, XtPointer);
    static void DownCB(Widget, XtPointer self, XtPointer);
    static void GoneCB(Widget, XtPointer self, XtPointer);

    Widget _application;
    Widget _pane = nullptr;
    bool _isPopup = false; // else the pane belongs to a menu bar
    WeakCommand _model;
    std::unordered_map<Widget, WeakCommand> _items;
    bool _isDown = false;
};

} // namespace trellis
