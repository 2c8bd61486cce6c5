#include "motif/MotifInput.h"

#include "motif/MotifPeer.h"
#include "motif/MotifView.h"
#include "toolkit/OpenQuestions.h"
#include "toolkit/UserKeys.h"
#include "toolkit/ZOLDlgEditor.h"

#include <X11/Shell.h>
#include <X11/keysym.h>

#include <algorithm>

namespace trellis {

namespace {

// An editor of several lines takes Return as a line feed.
bool TakesReturn(const ZOLDialog& dialog) {
    const auto* editor = dynamic_cast<const ZOLDlgEditor*>(&dialog);
    return editor && editor->HasSeveralLines() && !editor->IsReadOnly();
}

} // namespace

MotifInput::MotifInput(MotifView& view) : _view(view) {
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
    if (_instance->Takes(*event))
        return True;
    const auto type = std::find(types.begin(), types.end(), event->type);
    return _instance->_native[static_cast<std::size_t>(type - types.begin())](event);
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
    if (event.type == EnterNotify || event.type == LeaveNotify)
        return window && _view.IsAsking();
    if (!window || _view.IsMenuOpen())
        return false;
    if (OpenQuestions::Instance().Blocks(*window)) {
        if (event.type == ButtonPress)
            _view.RaiseQuestion();
        return true;
    }
    if (event.type == ButtonPress)
        _view.NoteGesture(event.xbutton.x_root, event.xbutton.y_root);
    return event.type == KeyPress && TakesKey(event.xkey, *window);
}

bool MotifInput::TakesKey(XKeyEvent& event, ZOLDialog& window) {
    const KeySym key = XLookupKeysym(&event, 0);
    const bool isPlain = !(event.state & (ShiftMask | ControlMask | Mod1Mask));
    ZOLDialog& focus = KeyboardIn(window);
    if (key == XK_Escape)
        return PressKey(window, ZOLUserKey::Escape), true;
    if (key == XK_Menu || (key == XK_F10 && (event.state & ShiftMask)))
        return OpensMenu(focus);
    if ((key == XK_Return || key == XK_KP_Enter) && isPlain && !TakesReturn(focus))
        return PressKey(focus, ZOLUserKey::Return), true;
    return false;
}

bool MotifInput::OpensMenu(ZOLDialog& focus) {
    const MotifPeer* peer = _view.FindPeer(focus);
    if (!peer || !peer->GetWidget() || !XtIsRealized(peer->GetWidget()))
        return false;
    const LayoutRectangle place = peer->GetMenuPlace();
    Position left = 0;
    Position top = 0;
    XtTranslateCoords(peer->GetWidget(), static_cast<Position>(place.x),
                      static_cast<Position>(place.y + place.height), &left, &top);
    _view.OpenMenuOf(focus, left, top);
    return true;
}

} // namespace trellis
