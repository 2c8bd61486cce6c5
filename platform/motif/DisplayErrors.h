#pragma once

#include "motif/MotifNative.h"

#include <functional>

namespace trellis {

// DisplayErrors: what happens when the X server complains or goes away. A complaint is traced and passed over: it
// mostly tells of a window that went in the meantime. So are warnings of the native toolkit, which tell users nothing. When the server goes away, the process ends in order.
class DisplayErrors {
public:
    static void Watch(Display* display);
    // Runs once when a connection broke, and answers the exit code. The native library cannot go on after that, nor
    // may its frames be unwound, so the process ends behind the action. Empty: one line on the standard error and 3.
    static void SetLostAction(std::function<int()> action);

private:
    static int ComplaintCB(Display* display, XErrorEvent* complaint);
    static void WarningCB(char* text);
    static int BrokenCB(Display*) { return 0; }
    static void LostCB(Display* display, void*);

    static std::function<int()>& LostAction();
};

} // namespace trellis
