#pragma once

#include "motif/MotifNative.h"
#include "toolkit/LayoutTypes.h"

namespace trellis {

class DialogLayout;
class MotifView;

// MotifScroller: a surface that may be larger than the room for it: scroll bars come when it is. Whatever gets
// the keyboard is brought into sight.
class MotifScroller {
public:
    // Makes the native window around the surface, unmanaged.
    MotifScroller(MotifView& view, const char* name, Widget parent);

    Widget GetWindow() const { return _window; }
    Widget GetSurface() const { return _surface; }
    // Places the window, and sizes the surface behind it.
    void Place(const LayoutRectangle& place, LayoutSize content);
    // How much of a room is left for a content that needs so much: a scroll bar takes its part of one side when
    // the other is too short.
    LayoutSize RoomBesideBars(LayoutSize room, LayoutSize needed) const;
    // A step of the wheel over a widget: scrolls what is nearest around it and has room to scroll. False where nothing
    // does, or the button is none of the wheel's.
    static bool TurnWheel(Widget under, unsigned button);

private:
    static void ObscuredCB(Widget window, XtPointer, XtPointer callData);

    MotifView& _view;
    Widget _window;
    Widget _surface;
};

} // namespace trellis
