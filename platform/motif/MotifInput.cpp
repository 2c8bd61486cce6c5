#include "motif/MotifInput.h"

#include "motif/MotifCanvasPeer.h"
#include "motif/MotifPeer.h"
#include "motif/MotifScroller.h"
#include "motif/MotifView.h"
#include "toolkit/MenuOpening.h"
#include "toolkit/OpenQuestions.h"
#include "toolkit/UserKeys.h"
#include "toolkit/ZOLDlgEditor.h"

#include <X11/Shell.h>
#include <X11/keysym.h>
#include <Xm/RowColumn.h>

#include <algorithm>
#include <utility>

namespace trellis {

namespace {

// An editor of several lines takes Return as a line feed.
bool TakesReturn(const ZOLDialog& dialog) {
    const auto* editor = dynamic_cast<const ZOLDlgEditor*>(&dialog);
    return editor && editor->HasSeveralLines() && !editor->IsReadOnly();
}

// Keys go to the bar itself while a title of it is lit and nothing is open yet.
bool IsInMenuBar(const XEvent& event) {
    for (Widget widget = XtWindowToWidget(event.xany.display, event.xany.window); widget;
         widget = XtParent(widget)) {
        unsigned char type = XmWORK_AREA;
        if (XtIsSubclass(widget, xmRowColumnWidgetClass))
            XtVaGetValues(widget, XmNrowColumnType, &type, nullptr);
        if (type == XmMENU_BAR)
            return true;
    }
    return false;
}

} // namespace

MotifInput::MotifInput(MotifView& view) : _view(view), _focus(view) {
    _instance = this;
    for (std::size_t i = 0; i < types.size(); ++i)
        _native[i] = XtSetEventDispatcher(view.GetDisplay(), types[i], &MotifInput::Dispatch);
}

MotifInput::~MotifInput() {
    for (std::size_t i = 0; i < types.size(); ++i)
        XtSetEventDispatcher(_view.GetDisplay(), types[i], _native[i]);
    _instance = nullptr;
}

Boolean MotifInput::Dispatch(XEvent* event) {
    return _instance->Takes(*event) ? True : _instance->PassOn(*event);
}

Boolean MotifInput::PassOn(XEvent& event) {
    if (event.type >= KeyPress && event.type <= ButtonRelease) {
        const ZOLDialog* window = WindowOf(event);
        const long number = window ? window->GetNumber() : 0;
        if (std::exchange(_lastWindow, number) != number && window)
            MotifQuirks::RememberInstead(_view.GetApplication(), _native[0]);
    }
    const auto type = std::find(types.begin(), types.end(), event.type);
    return _native[static_cast<std::size_t>(type - types.begin())](&event);
}

ZOLDialog* MotifInput::WindowOf(const XEvent& event) const {
    Widget widget = XtWindowToWidget(event.xany.display, event.xany.window);
    while (widget && !XtIsShell(widget))
        widget = XtParent(widget);
    return widget ? _view.FindWindow(widget) : nullptr;
}

ZOLDialog& MotifInput::KeyboardIn(ZOLDialog& window) const {
    const Widget shell = _view.FindPeer(window)->GetWidget();
    for (Widget widget = XmGetFocusWidget(shell); widget && widget != shell; widget = XtParent(widget))
        if (ZOLDialog* dialog = _view.FindDialog(widget))
            return *dialog;
    return window;
}

// While a question waits, crossing a border means nothing to the windows around.
bool MotifInput::Takes(XEvent& event) {
    ZOLDialog* window = WindowOf(event);
    MotifQuirks::TellApart(event);
    KeepAlt(event);
    WatchToolTip(event, window);
    if (event.type == MotionNotify || event.type == EnterNotify || event.type == LeaveNotify) {
        const bool isTaken = event.type != MotionNotify && window && _view.IsAsking();
        WatchPointer(event);
        return isTaken;
    }
    // The native menu would take the release for the next press of that key, which closes it.
    if (event.type == KeyRelease && event.xkey.keycode == _menuKey)
        return _menuKey = 0, true;
    if (event.type == ButtonPress && _view.IsMenuOpen())
        MotifQuirks::EndMenuClick(_view.GetApplication());
    if (!window || _view.IsMenuOpen())
        return false;
    if (OpenQuestions::Instance().Blocks(*window)) {
        if (event.type == ButtonPress)
            _view.RaiseBlocker(*window);
        return true;
    }
    if (event.type == ButtonPress && TurnsWheel(event.xbutton))
        return true;
    if (event.type == ButtonPress) {
        _view.NotePress(event.xbutton);
        _view.ActivateWindow(*window);
    }
    return event.type == KeyPress && !IsInMenuBar(event) && TakesKey(event.xkey, *window);
}

// The native bar opens a menu only when its letter goes up with Alt held. A quick hand lets go of Alt first.
void MotifInput::KeepAlt(XEvent& event) {
    if (event.type == KeyPress)
        _altKey = event.xkey.state & Mod1Mask ? event.xkey.keycode : 0;
    else if (event.type == KeyRelease && event.xkey.keycode == _altKey)
        event.xkey.state |= Mod1Mask;
}

// Lists and graphs scroll by themselves, whether they are at their end or not.
bool MotifInput::TurnsWheel(const XButtonEvent& event) const {
    Widget under = XtWindowToWidget(event.display, event.window);
    const ZOLDialog* dialog = DialogAround(under);
    const bool scrollsItself = dynamic_cast<MotifCanvasPeer*>(dialog ? _view.FindPeer(*dialog) : nullptr);
    return !scrollsItself && MotifScroller::TurnWheel(under, event.button);
}

bool MotifInput::TakesKey(XKeyEvent& event, ZOLDialog& window) {
    const KeySym key = XLookupKeysym(&event, 0);
    const bool isPlain = !(event.state & (ShiftMask | ControlMask | Mod1Mask));
    ZOLDialog& focus = KeyboardIn(window);
    if (key == XK_Escape)
        return PressKey(window, ZOLUserKey::Escape), true;
    if (key == XK_F1 && isPlain)
        return PressKey(focus, ZOLUserKey::F1), true;
    if (key == XK_space && isPlain) // a button may open a menu
        NoteKey(focus, event.keycode);
    if (key == XK_Menu || (key == XK_F10 && (event.state & ShiftMask)))
        return OpensMenu(focus, event.keycode);
    if ((key == XK_Return || key == XK_KP_Enter) && isPlain && !TakesReturn(focus))
        return PressKey(focus, ZOLUserKey::Return), true;
    return WalksByKey(event, key, window, focus);
}

bool MotifInput::WalksByKey(const XKeyEvent& event, KeySym key, ZOLDialog& window, ZOLDialog& focus) {
    const unsigned modifiers = event.state & (ShiftMask | ControlMask | Mod1Mask);
    if (key == XK_Tab && !(modifiers & ~static_cast<unsigned>(ShiftMask)))
        return _focus.Step(window, modifiers & ShiftMask ? -1 : 1), true;
    const bool isBack = key == XK_Up || key == XK_Left;
    if ((isBack || key == XK_Down || key == XK_Right) && modifiers == 0)
        return _focus.StepInGroup(focus, isBack ? -1 : 1);
    const bool isLetter = key > XK_space && key <= XK_asciitilde;
    if (!isLetter || (modifiers & ~static_cast<unsigned>(ShiftMask)) != Mod1Mask)
        return false;
    NoteKey(focus, 0);
    if (!MotifMnemonics::Press(window, static_cast<char>(key), _focus))
        return false; // perhaps a menu of the bar, which needs to see the key go up
    _menuKey = event.keycode;
    return true;
}

// Crossing a border inside a window is a motion, too: not everybody in it asks for those.
void MotifInput::WatchToolTip(const XEvent& event, const ZOLDialog* window) {
    const bool isMotion =
        event.type == MotionNotify && event.xmotion.state >> 8 == 0; // whoever drags reads nothing
    const bool isCrossing =
        event.type == EnterNotify || (event.type == LeaveNotify && event.xcrossing.detail == NotifyInferior);
    if (!window || !(isMotion || isCrossing))
        _view.GetToolTip().Hide();
    else if (isMotion)
        _view.GetToolTip().PointerMoved(*window, {event.xmotion.x_root, event.xmotion.y_root});
    else
        _view.GetToolTip().PointerMoved(*window, {event.xcrossing.x_root, event.xcrossing.y_root});
}

const ZOLDialog* MotifInput::DialogAround(Widget widget) const {
    const ZOLDialog* dialog = nullptr;
    for (; widget && !dialog; widget = XtParent(widget))
        dialog = _view.FindDialog(widget);
    return dialog;
}

// What is greyed gets no events, but can be looked at. Who is told may end any window, so this comes last.
void MotifInput::WatchPointer(const XEvent& event) {
    const bool isDrag = event.type == MotionNotify && event.xmotion.state >> 8 != 0;
    if (isDrag || _view.IsMenuOpen())
        return;
    Widget under =
        event.type == LeaveNotify ? nullptr : XtWindowToWidget(event.xany.display, event.xany.window);
    const ZOLDialog* dialog = DialogAround(under);
    const long now = dialog ? dialog->GetNumber() : 0;
    if (const long before = std::exchange(_underPointer, now); before != now)
        if (MotifPeer* peer = MotifPeer::Find(before))
            peer->PointerLeft();
    MotifPeer* peer = MotifPeer::Find(now);
    if (!peer || !peer->GetWidget())
        return;
    const LayoutPoint root = event.type == MotionNotify
                                 ? LayoutPoint{event.xmotion.x_root, event.xmotion.y_root}
                                 : LayoutPoint{event.xcrossing.x_root, event.xcrossing.y_root};
    const LayoutPoint corner = MotifQuirks::RootPlaceOf(peer->GetWidget());
    peer->PointerAt({root.x - corner.x, root.y - corner.y});
}

bool MotifInput::OpensMenu(ZOLDialog& focus, unsigned keycode) {
    const bool isThere = NoteKey(focus, keycode);
    if (isThere)
        OpenMenuByKey(focus);
    return isThere;
}

bool MotifInput::NoteKey(const ZOLDialog& focus, unsigned keycode) {
    const MotifPeer* peer = _view.FindPeer(focus);
    if (!peer || !peer->GetWidget() || !XtIsRealized(peer->GetWidget()))
        return false;
    const LayoutRectangle place = peer->GetMenuPlace();
    Position left = 0;
    Position top = 0;
    XtTranslateCoords(peer->GetWidget(), static_cast<Position>(place.x),
                      static_cast<Position>(place.y + place.height), &left, &top);
    _view.NoteGesture(left, top);
    _menuKey = keycode;
    return true;
}

} // namespace trellis
