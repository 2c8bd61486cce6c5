#pragma once

#include <X11/Xlib.h>

namespace trellis {

// WindowIcon: the picture by which window managers show windows of this program in lists and bars.
class WindowIcon {
public:
    // Gives a window the icon of the program, as "_NET_WM_ICON", in the sizes that are in use. The window must be
    // realized. Without a readable picture it keeps none.
    static void Set(Display* display, Window window);
};

} // namespace trellis
