#include "motif/MotifShellPeer.h"

#include "motif/MotifView.h"
#include "toolkit/ZOLDialog.h"

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
    Listen<&MotifShellPeer::Resized>(shell, StructureNotifyMask);
    BuildContent(shell);
    return shell;
}

void MotifShellPeer::CloseBox(Widget, XtPointer) {
    Close();
}

void MotifShellPeer::Resized(Widget, XEvent* event) {
    if (event->type != ConfigureNotify)
        return;
    const LayoutSize size = {event->xconfigure.width, event->xconfigure.height};
    _size = size; // also when it is the old one: the native box has moved its buttons
    GetView().MarkLayout(GetDialog());
}

LayoutSize MotifShellPeer::ScreenSize() const {
    Screen* screen = XtScreen(GetShell());
    constexpr int frame = 40; // what a window manager puts around
    return {WidthOfScreen(screen) - frame, HeightOfScreen(screen) - frame};
}

// The window grows with what it holds, as far as the screen goes; it never shrinks by itself.
void MotifShellPeer::FitSize() {
    const LayoutSize needed = LayOut(_size);
    const LayoutSize screen = ScreenSize();
    const LayoutSize fitting = {std::max(_size.width, std::min(needed.width, screen.width)),
                                std::max(_size.height, std::min(needed.height, screen.height))};
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
    XtVaSetValues(GetShell(), XmNx, x, XmNy, y, nullptr);
}

void MotifShellPeer::MirrorWindow() {
    const bool isWanted = GetDialog().IsOnScreen();
    if (!isWanted) {
        if (std::exchange(_isUp, false))
            XtPopdown(GetShell());
        return;
    }
    const std::string title = GetDialog().GetTitle().Bytes();
    XtVaSetValues(GetShell(), XmNtitle, title.c_str(), XmNiconName, title.c_str(), nullptr);
    Mirror();
    MirrorContent();
    FitSize();
    if (std::exchange(_isUp, true))
        return;
    ChoosePlace();
    XtPopup(GetShell(), XtGrabNone);
    LayOut(_size); // realized, the native box has put its buttons where it likes
}

void MotifShellPeer::Raise() {
    if (_isUp && XtIsRealized(GetShell()))
        XMapRaised(XtDisplay(GetShell()), XtWindow(GetShell()));
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
