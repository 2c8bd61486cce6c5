#pragma once

#include "motif/MotifFocus.h"
#include "motif/MotifNative.h"

#include <array>

class ZOLDialog;

namespace trellis {

class MotifPeer;
class MotifView;

// MotifInput: what is done with an input event before the native widgets see it. Windows behind a question get
// none; keys that belong to no single widget mean the same in every window: Return, Escape, F1, the menu key, Tab,
// letters with Alt. It hooks into the native
// dispatch, so that it works in loops of hosts as well.
class MotifInput {
public:
    explicit MotifInput(MotifView& view);
    ~MotifInput();
    MotifInput(const MotifInput&) = delete;
    MotifInput& operator=(const MotifInput&) = delete;

private:
    static constexpr std::array<int, 7> types = {KeyPress,    KeyRelease,  ButtonPress, ButtonRelease,
                                                 EnterNotify, LeaveNotify, MotionNotify};

    static Boolean Dispatch(XEvent* event);
    Boolean PassOn(XEvent& event);
    // Whether the event goes no further.
    bool Takes(XEvent& event);
    bool TakesKey(XKeyEvent& event, ZOLDialog& window);
    bool WalksByKey(const XKeyEvent& event, KeySym key, ZOLDialog& window, ZOLDialog& focus);
    bool OpensMenu(ZOLDialog& focus, unsigned keycode);
    // A menu that this key opens comes up at the focus. False where that is not on the screen.
    bool NoteKey(const ZOLDialog& focus, unsigned keycode);
    bool TurnsWheel(const XButtonEvent& event) const;
    void WatchToolTip(const XEvent& event, const ZOLDialog* window);
    void WatchPointer(const XEvent& event);
    // The innermost dialog that shows a widget, perhaps as a part; null for a null widget.
    const ZOLDialog* DialogAround(Widget widget) const;
    // The window of ours in whose shell the event happened; null when it was in a menu or an unfolded list.
    ZOLDialog* WindowOf(const XEvent& event) const;
    void KeepAlt(XEvent& event);
    // The dialog that has the keyboard in the shell of a window, else the window.
    ZOLDialog& KeyboardIn(ZOLDialog& window) const;

    MotifView& _view;
    const MotifFocus _focus;
    std::array<XtEventDispatchProc, types.size()> _native = {};
    static inline MotifInput* _instance = nullptr;
    unsigned _altKey = 0;   // that went down last, with Alt held
    unsigned _menuKey = 0;  // that has opened a menu and is still held
    long _underPointer = 0; // the dialog that was told so last
    long _lastWindow = 0;   // that got a key or a press; 0 after a menu or an unfolded list
};

} // namespace trellis
