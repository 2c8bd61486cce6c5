#pragma once

#include "toolkit/DialogButtons.h"
#include "toolkit/ZOLUserDriver.h"

#include <functional>
#include <string>
#include <vector>

class ZOLDialog;

// What a row that is clicked or reached does to the rows that are selected.
enum class RowTaking {
    Alone, // gives them up
    UpTo,  // takes those between as well
    Too    // leaves them as they are
};

// GalleryHand: what a user does with widgets, in words that both views understand: without a display the driver does
// it, else a mouse and a keyboard of a real X server. What a widget refuses is not done; nothing tells.
class GalleryHand {
public:
    virtual ~GalleryHand() = default;

    // Mouse.
    virtual void Click(ZOLDialog& widget) = 0;
    virtual void ClickRow(ZOLDialog& list, int row, RowTaking taking = RowTaking::Alone) = 0;
    virtual void DoubleClickRow(ZOLDialog& list, int row) = 0;
    virtual void ClickLineOfCombo(ZOLDialog& combo, int line) = 0;
    virtual void ClickPage(ZOLDialog& tabs, const std::string& page) = 0;
    virtual void ClickNode(ZOLDialog& viewer, const std::vector<ZOLUnicodeString>& path,
                           bool extend = false) = 0;
    // The right button; then, with names, the items from the menu down to the one that is chosen.
    virtual void ClickForMenu(ZOLDialog& owner, const std::vector<std::string>& items) = 0;
    virtual void ClickMenuBar(ZOLDialog& bar, const std::vector<std::string>& items) = 0;
    virtual void ClickNodeForMenu(ZOLDialog& viewer, const std::vector<ZOLUnicodeString>& path,
                                  const std::string& item) = 0;
    // No button: the close box of the window.
    virtual void ClickButton(ZOLDialog& dialog, ZOLDialogButton button) = 0;
    // Steps downwards.
    virtual void TurnWheel(ZOLDialog& widget, int steps) = 0;
    // Keyboard, after it was brought to the widget by the keyboard alone.
    virtual void Focus(ZOLDialog& widget) = 0;
    virtual void Type(ZOLDialog& editor, const std::string& text) = 0;
    virtual void Press(ZOLDialog& widget, ZOLUserKey key) = 0;
    // A radio button, from the one of its group that Tab reaches.
    virtual void ChooseInGroup(ZOLDialog& radio) = 0;
    // From the row of the list that was reached or clicked last to the next one.
    virtual void StepDown(ZOLDialog& list, RowTaking taking) = 0;
    // Opens the menu of the widget that has the keyboard, and walks to the item.
    virtual void WalkInMenu(ZOLDialog& owner, const std::vector<std::string>& items) = 0;
    virtual void WalkInMenuBar(ZOLDialog& bar, const std::vector<std::string>& items) = 0;
    virtual void WalkToButton(ZOLDialog& dialog, ZOLDialogButton button) = 0;

    // What is done as soon as something comes up that waits for an answer, with that. Laid ready before the gesture
    // that brings it up.
    virtual void WhenAsked(std::function<void(ZOLDialog& box)> act) = 0;
    // Nobody asked, or nobody will.
    virtual void ForgetQuestions() = 0;
};

// The hand of this program, which has one view for all its tests.
GalleryHand& TheHand();
