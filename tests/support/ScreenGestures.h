#pragma once

#include "support/ScreenUser.h"
#include "toolkit/DialogButtons.h"

class ZOLGraphNode;
class ZOLGraphViewer;

// ScreenGestures: what a person does with menus, dialogs and graphs on a real screen, on top of mouse and keys.
class ScreenGestures {
public:
    using Names = std::vector<std::string>;

    explicit ScreenGestures(ScreenUser& user) : _user(user) {}

    // The middle of a node, or a place on the background where the node is not drawn.
    ScreenUser::Place PlaceOf(ZOLGraphViewer& viewer, const ZOLGraphNode* node);
    Widget ButtonOf(ZOLDialog& dialog, ZOLDialogButton button);
    // The application that all windows and menus hang below. It outlives what it is asked for.
    Widget RootOf(ZOLDialog& dialog);

    // Clicks one item after the other, from an open menu below this widget down to the last; ends at the first that
    // cannot be seen.
    void ClickItems(Widget root, const Names& items);
    // The same by the letters that are underlined.
    void PressLetters(Widget root, const Names& items);
    // The same by arrows and Return, in a menu that has just opened with its first item ready.
    void WalkDown(ZOLDialog& menu, const Names& items);
    // Opens a menu of the bar and walks to the item.
    void WalkInBar(ZOLDialog& bar, const Names& items);

    // From widget to widget with Tab, until the keyboard is there. The test fails when it does not get there.
    void Focus(Widget widget);
    // Brings the keyboard to a button of the dialog and presses it.
    void WalkToButton(ZOLDialog& dialog, ZOLDialogButton button);

private:
    void PressOften(const char* key, int times);

    ScreenUser& _user;
};
