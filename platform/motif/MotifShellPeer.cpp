#include "motif/MotifShellPeer.h"

#include "motif/MotifButtonRow.h"
#include "motif/MotifView.h"
#include "motif/WindowIcon.h"
#include "toolkit/ZOLDialog.h"
#include "toolkit/ZOLDlgWindow.h"

#include <X11/Shell.h>

#include <algorithm>

namespace trellis {

ZOLDialog* MotifShellPeer::GetBelow() const {
    return GetDialog().GetOwner();
}

Widget MotifShellPeer::GetShellBelow() const {
    const ZOLDialog* below = GetBelow();
    const ZOLDialog* window = below ? below->GetHoldingWindow() : nullptr;
    const MotifPeer* peer = window ? GetView().FindPeer(*window) : nullptr;
    return peer ? peer->GetWidget() : nullptr;
}

Widget MotifShellPeer::Build(Widget parent) {
    const Widget below = StaysAbove() ? GetShellBelow() : nullptr;
    Widget shell = XtVaCreatePopupShell(GetDialog().GetName().ConvertToChar(),
                                        below ? transientShellWidgetClass : topLevelShellWidgetClass, parent,
                                        XmNdeleteResponse, XmDO_NOTHING, XmNallowShellResize, False,
                                        XmNmappedWhenManaged, True, XmNtitleEncoding, 0, nullptr);
    if (below)
        XtVaSetValues(shell, XmNtransientFor, below, nullptr);
    const Atom closing = XInternAtom(XtDisplay(shell), "WM_DELETE_WINDOW", False);
    const Atom protocols = XInternAtom(XtDisplay(shell), "WM_PROTOCOLS", False);
    ConnectProtocol<&MotifShellPeer::CloseBox>(shell, protocols, closing);
    Listen<&MotifShellPeer::Happened>(shell, StructureNotifyMask);
    BuildContent(shell);
    return shell;
}

void MotifShellPeer::CloseBox(Widget, XtPointer) {
    Close();
}

void MotifShellPeer::Happened(Widget, XEvent* event) {
    if (event->type == MapNotify || event->type == UnmapNotify)
        _isMapped = event->type == MapNotify;
    if (event->type == MapNotify && std::exchange(_wantsKeyboard, false))
        TakeKeyboard();
    if (event->type != ConfigureNotify)
        return;
    Moved(event->xconfigure);
    const LayoutSize size = {event->xconfigure.width, event->xconfigure.height};
    _size = size; // also when it is the old one: the native box has moved its buttons
    if (auto* window = dynamic_cast<ZOLDlgWindow*>(&GetDialog()))
        window->SetShownSize(size);
    GetView().MarkLayout(GetDialog());
}

// What lies between the corner of the frame and that of the window. Asks the server, so once for each window.
LayoutPoint MotifShellPeer::FrameWidths() const {
    Display* display = XtDisplay(GetShell());
    Window frame = XtWindow(GetShell());
    for (;;) {
        Window root = 0;
        Window parent = 0;
        Window* children = nullptr;
        unsigned count = 0;
        if (!XQueryTree(display, frame, &root, &parent, &children, &count))
            return {};
        if (children)
            XFree(children);
        if (parent == root || parent == 0)
            break;
        frame = parent;
    }
    int x = 0;
    int y = 0;
    Window child = 0;
    XTranslateCoordinates(display, XtWindow(GetShell()), frame, 0, 0, &x, &y, &child);
    return {x, y};
}

// Places of the root window are told by a window manager in an event that it sends itself; what the server tells
// is the place in a frame.
void MotifShellPeer::Moved(const XConfigureEvent& event) {
    if (!_isMapped || (_hasManager && !event.send_event))
        return;
    if (!_frameWidths)
        _frameWidths = _hasManager ? FrameWidths() : LayoutPoint();
    const LayoutPoint place = {event.x - _frameWidths->x, event.y - _frameWidths->y};
    if (std::exchange(_place, place) == place)
        return;
    GetDialog().SetRectPosition(place.x, place.y);
}

LayoutSize MotifShellPeer::ScreenSize() const {
    Screen* screen = XtScreen(GetShell());
    constexpr int frame = 40; // what a window manager puts around
    return {WidthOfScreen(screen) - frame, HeightOfScreen(screen) - frame};
}

// The window grows with what it holds, as far as the screen goes; it never shrinks by itself, and stays as small
// as the user made it.
void MotifShellPeer::FitSize() {
    const LayoutSize needed = LayOut(_size);
    const LayoutSize before = std::exchange(_needed, needed);
    const LayoutSize screen = ScreenSize();
    const auto grown = [](int size, int now, int then, int most) {
        return now > then ? std::max(size, std::min(now, most)) : size;
    };
    const LayoutSize fitting = {grown(_size.width, needed.width, before.width, screen.width),
                                grown(_size.height, needed.height, before.height, screen.height)};
    if (fitting == _size)
        return;
    _size = fitting;
    XtVaSetValues(GetShell(), XmNwidth, fitting.width, XmNheight, fitting.height, nullptr);
    LayOut(_size);
}

// Where nobody chose a place: over the middle of the window below, else of the screen.
void MotifShellPeer::ChoosePlace() {
    const LayoutHints& hints = GetDialog().GetLayoutHints();
    const LayoutSize screen = ScreenSize();
    int x = (screen.width - _size.width) / 2;
    int y = (screen.height - _size.height) / 3;
    if (hints.hasPosition) {
        x = hints.position.x;
        y = hints.position.y;
    } else if (const Widget below = GetShellBelow(); below && XtIsRealized(below)) {
        Position left = 0;
        Position top = 0;
        XtTranslateCoords(below, 0, 0, &left, &top);
        const LayoutRectangle place = MotifQuirks::PlaceOf(below);
        x = left + (place.width - _size.width) / 2;
        y = top + (place.height - _size.height) / 3;
    }
    x = std::clamp(x, 0, std::max(0, screen.width - _size.width));
    y = std::clamp(y, 0, std::max(0, screen.height - _size.height));
    _place = {x, y};
    XtVaSetValues(GetShell(), XmNx, x, XmNy, y, nullptr);
}

void MotifShellPeer::MirrorPlace() {
    const LayoutHints& hints = GetDialog().GetLayoutHints();
    if (!hints.hasPosition || (hints.position.x == _place.x && hints.position.y == _place.y))
        return;
    _place = {hints.position.x, hints.position.y};
    XtVaSetValues(GetShell(), XmNx, _place.x, XmNy, _place.y, nullptr);
}

// Window managers of today read the second property, in UTF-8.
void MotifShellPeer::MirrorTitle() {
    const std::string title = GetDialog().GetTitle().Bytes();
    if (std::exchange(_title, title) == title && _isUp)
        return;
    XtVaSetValues(GetShell(), XmNtitle, title.c_str(), XmNiconName, title.c_str(), nullptr);
    if (!XtIsRealized(GetShell()))
        XtRealizeWidget(GetShell());
    Display* display = XtDisplay(GetShell());
    for (const char* property : {"_NET_WM_NAME", "_NET_WM_ICON_NAME"})
        XChangeProperty(display, XtWindow(GetShell()), XInternAtom(display, property, False),
                        XInternAtom(display, "UTF8_STRING", False), 8, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(title.data()), static_cast<int>(title.size()));
}

void MotifShellPeer::MirrorWindow() {
    const bool isWanted = GetDialog().IsOnScreen();
    if (!isWanted) {
        if (std::exchange(_isUp, false))
            XtPopdown(GetShell());
        return;
    }
    Mirror();
    MirrorContent();
    FitSize();
    if (_isUp)
        MirrorPlace();
    else
        ChoosePlace();
    MirrorTitle();
    if (std::exchange(_isUp, true))
        return;
    // Whoever manages windows has asked the root window to be told first.
    XWindowAttributes root;
    XGetWindowAttributes(XtDisplay(GetShell()), RootWindowOfScreen(XtScreen(GetShell())), &root);
    _hasManager = root.all_event_masks & SubstructureRedirectMask;
    _wantsKeyboard = true;
    XtPopup(GetShell(), XtGrabNone);
    if (!GetShellBelow())
        WindowIcon::Set(XtDisplay(GetShell()), XtWindow(GetShell()));
    LayOut(_size); // realized, the native box has put its buttons where it likes
}

void MotifShellPeer::Raise() {
    if (_isUp && XtIsRealized(GetShell()))
        XMapRaised(XtDisplay(GetShell()), XtWindow(GetShell()));
}

// A window that is not there yet cannot have the keyboard. It takes it with the time of the event that led here: with
// that of the server, a menu that the same press opens would come too late for the keys.
void MotifShellPeer::TakeKeyboard() {
    if (_hasManager)
        return;
    if (_isMapped)
        XSetInputFocus(XtDisplay(GetShell()), XtWindow(GetShell()), RevertToPointerRoot,
                       XtLastTimestampProcessed(XtDisplay(GetShell())));
    else
        _wantsKeyboard = true;
}

void MotifShellPeer::CollectStops(std::vector<Widget>& stops) const {
    MotifHolderPeer::CollectStops(stops);
    const MotifButtonRow* row = GetButtons();
    if (!row)
        return;
    for (const ZOLDialogButton button : DialogButtons::Row)
        if (Widget widget = row->GetWidget(button); XtIsManaged(widget) && XtIsSensitive(widget))
            stops.push_back(widget);
}

void MotifShellPeer::SetCursor(unsigned int shape) {
    if (!XtIsRealized(GetShell()))
        return;
    if (shape)
        XDefineCursor(XtDisplay(GetShell()), XtWindow(GetShell()), GetView().GetCursor(shape));
    else
        XUndefineCursor(XtDisplay(GetShell()), XtWindow(GetShell()));
}

} // namespace trellis
