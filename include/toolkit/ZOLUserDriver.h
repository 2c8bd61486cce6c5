#pragma once

#include "toolkit/ZOLShownMessage.h"
#include "values/TrellisApi.h"
#include "values/ZOLString.h"
#include "values/ZOLUnicodeString.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

class ZOLDialog;
class ZOLGraphNode;
class ZOLGraphViewer;

// Keys that do something beyond text. In a graph they act on the node that has the focus.
enum class ZOLUserKey {
    Return,    // confirms a heard editor, activates a selected row, presses a button; else the default button
    Escape,    // closes an open menu, else acts as the close box of a window without menu bar
    Space,     // presses a button, switches a check or radio button; clicks the node of a graph
    Backspace, // takes the selected text, or the character before the caret
    Delete,    // takes the selected text, or the character behind the caret
    Up,        // the row or line before the selected one; the caret; the focus of a graph
    Down,
    Left, // the caret; the focus of a graph; the page before of tabs
    Right,
    Home, // the first row or line; the begin of the caret's line
    End,
    PageUp, // as many rows or lines up as show at once
    PageDown,
    Tab,        // goes on to the next widget, which leaves an editor
    F1,         // opens the help page of the class; presses no button
    Menu,       // opens the contextual menu, of the nearest holder where the widget has none
    Plus,       // opens the branch of a node
    Minus,      // closes it
    ShiftSpace, // the other click on a node: rejects an option, opens the menu of others
    CtrlSpace,  // the extended click on a node
    ShiftUp,    // takes the next node, or gives up the last one on the way back
    ShiftDown,
};

// ZOLUserDriver: does what a user can do, for tests, scripts and hosts. Nothing else: what a user could not
// do now is refused by throwing Refused with the reason, and is not done.
//
// Paths are resource names joined by '/', each searched depth first below the one before; "A/B[2]" is the
// second B under A. An error message shown by a callback does not throw; read it with TakeMessages. Things
// given up are freed at the end of the verb that gave them up.
class TRELLIS_API ZOLUserDriver {
public:
    class TRELLIS_API Refused : public std::runtime_error {
    public:
        using std::runtime_error::runtime_error;
    };
    using Message = ZOLShownMessage;

    struct MenuLine {
        ZOLString name;
        ZOLUnicodeString text;
        bool isSensitive = true;
        int level = 0; // 0 in the menu itself, 1 in a submenu of it, and so on
    };

    // The dialog at a path below `root`, which may be null: then below the windows that are shown, the top
    // one first. Hidden dialogs are found too, those that are given up are not. Refused when there is none.
    static ZOLDialog* Find(ZOLDialog* root, const std::string& path);
    // The window shown last; null when none is shown.
    static ZOLDialog* Top();

    static void Press(ZOLDialog* button);
    // Opens the contextual menu of a dialog, lets it build itself and presses the item at the path in it. In a
    // menu bar the first step of the path names the menu: "Part/SetConfigurable".
    static void Menu(ZOLDialog* owner, const std::string& path);
    // Opens it only, and answers its lines; the next verb closes it. `owner` may be a menu of a menu bar itself.
    static std::vector<MenuLine> OpenMenu(ZOLDialog* owner);
    // Brings a check or radio button into a state; nothing is done when it is in it. A radio button cannot be
    // put off.
    static void Toggle(ZOLDialog* button, bool on);
    // Chooses the line of a combo that has this text.
    static void Choose(ZOLDialog* combo, const ZOLUnicodeString& text);
    // Brings the page with this resource name to the front.
    static void ShowPage(ZOLDialog* tabs, const std::string& name);

    // Replaces the selected text, or all when none is selected, key by key; the field of an editable combo
    // likewise. Keys that the limit or the verify function of the editor swallow do not appear, and are no
    // refusal. Any other verb leaves the editor, which confirms; only a button that takes no focus does not.
    static void Type(ZOLDialog* editor, const ZOLUnicodeString& text);
    static void Enter(ZOLDialog* editor);
    // Selects from `from` up to, not with, `to`, in code points; equal ones set the caret.
    static void SelectText(ZOLDialog* editor, int from, int to);
    static void Key(ZOLDialog* dialog, ZOLUserKey key);

    // One gesture after which exactly these model rows are selected; one notification.
    static void Select(ZOLDialog* list, const std::vector<int>& rows);
    // The same by the text of the first column; refused when a text is absent or stands in several rows.
    static void SelectLines(ZOLDialog* list, const std::vector<ZOLUnicodeString>& texts);
    // A double click.
    static void Activate(ZOLDialog* list, int row);

    // The node reached from the root by the first lines of root, child and so on; null when there is none on
    // the screen.
    static ZOLGraphNode* Node(ZOLGraphViewer* viewer, const std::vector<ZOLUnicodeString>& firstLines);
    // A null node is the background.
    static void Click(ZOLGraphViewer* viewer, ZOLGraphNode* node, bool extend = false);
    static void ContextClick(ZOLGraphViewer* viewer, ZOLGraphNode* node);
    // Moves the pointer there without a click; null: away from all nodes. Leaves no editor.
    static void PointAt(ZOLGraphViewer* viewer, ZOLGraphNode* node);

    // The buttons of a dialog or message box, and the close box of any window.
    static void Ok(ZOLDialog* dialog);
    static void Apply(ZOLDialog* dialog);
    static void Cancel(ZOLDialog* dialog);
    static void Help(ZOLDialog* dialog);
    static void CloseWindow(ZOLDialog* dialog);

    // Answers for the blocking questions to come, in order, behind those that are laid ready: 1 OK, 2 Cancel,
    // 3 Help, 0 the close box. No answers at all drops those laid ready. A question without an answer, or
    // with one that it does not offer, is recorded as unexpected and gets 0. Notices need no answer.
    static void Answer(const std::vector<int>& buttons);
    // Asked where no answer lies ready, while the question is open: it may use every verb, also on the
    // question's own window. Its result answers, unless a verb has answered already. What it throws leaves
    // the verb that raised the question. An empty function asks nobody.
    static void WhenAsked(std::function<int(const Message&)> asker);
    // What was shown since the last call.
    static std::vector<Message> TakeMessages();
    // Answers laid ready that nobody asked for yet.
    static int PendingAnswers();

    // The dialog as an indented text: what a user sees, no more. Empty when it is not on the screen.
    static std::string Describe(const ZOLDialog* dialog);
};
