#pragma once

#include "motif/MotifNative.h"
#include "motif/Theme.h"
#include "toolkit/LayoutTypes.h"
#include "toolkit/TreeLayout.h"

#include <string>

class ZOLUnicodeString;

namespace trellis {

// MotifQuirks: everything about the native widgets that is not as one would expect, in one place.
class MotifQuirks {
public:
    // Native widgets call back for values that the program sets, also for the same value. While one of these
    // lives, no callback of a widget reaches the toolkit.
    class QuietScope {
    public:
        QuietScope() { ++_depth; }
        ~QuietScope() { --_depth; }
        QuietScope(const QuietScope&) = delete;
        QuietScope& operator=(const QuietScope&) = delete;

    private:
        friend class MotifQuirks;
        static inline int _depth = 0;
    };
    static bool IsQuiet() { return QuietScope::_depth > 0; }

    // Resource names are string literals, yet the native interface wants writable ones.
    static char* Name(const char* literal) { return const_cast<char*>(literal); }

    // A native string, freed with this. Lines are separated by line feeds; a tab is a tab.
    class Text {
    public:
        explicit Text(const ZOLUnicodeString& text);
        ~Text() { XmStringFree(_string); }
        Text(const Text&) = delete;
        Text& operator=(const Text&) = delete;
        XmString Get() const { return _string; }

    private:
        XmString _string;
    };

    // Sets the text of a label or button, unless it has it: setting the same text flickers.
    static void SetLabel(Widget label, const ZOLUnicodeString& text);
    // The pixel of a colour on the screen of a widget; black where the screen has no more colours.
    static Pixel Colour(Widget widget, ThemeColour colour);
    // The top left corner of a widget on the root window; asks the server nothing.
    static LayoutPoint RootPlaceOf(Widget widget);
    // Where a widget stands in its parent.
    static LayoutRectangle PlaceOf(Widget widget);
    // Greys a widget or not, when it is not so already.
    static void SetSensitive(Widget widget, bool isSensitive);
    // Moves and sizes a widget; sizes of 0, which the server refuses, become 1.
    static void Configure(Widget widget, int x, int y, int width, int height);
    // Destroys what stands in a widget, and the menus that hang on it.
    static void DestroyChildren(Widget widget);
    // Lets the native menus know of the press that brings a popup menu up, which must have been made on that
    // shell. They tell a click, after which the menu stays, from a drag by the time of the press, and look only
    // at presses of the third button on the widget on which the menu was made.
    static void NoteMenuPress(Widget shell, XButtonEvent press);
    // A menu takes a click that comes soon after it for a part of the one that brought it up, and passes over what
    // was chosen. Before any press in an open menu: by then the other click is over.
    static void EndMenuClick(Widget application);
    // Arrows walk in menus only while no button is held, and a menu that a key brought up is treated as if one were.
    static void LetKeysWalkMenus(Widget application);
    // Has a widget draw all of it again, behind what is under way.
    static void Redraw(Widget widget);
    // Menus take two events of a button or key that came within one millisecond for one, and pass the second
    // over: gives each a serial number of its own. Their times stay: the server refuses the keyboard to whoever asks
    // for it with a time that has not come yet. For all events that reach menus, in their order.
    static void TellApart(XEvent& event);
    // Manages or unmanages, when it is not so already.
    static void SetManaged(Widget widget, bool isManaged);
    // The native window inside a scrolled one takes Home, End, Page Up and Page Down away from whatever in it has
    // the keyboard; lists and fields want them themselves. Before it is realized.
    static void LeaveScrollKeys(Widget clipWindow);
    // The native dispatch remembers the last widget that got a key or a press by its address, together with what
    // stands above it. A widget of a new window may get the address of one that went: its keys would be looked
    // for among windows that are gone. Makes it remember another widget, which has to outlive all windows.
    static void RememberInstead(Widget lasting, XtEventDispatchProc nativeKeys);
};

} // namespace trellis
