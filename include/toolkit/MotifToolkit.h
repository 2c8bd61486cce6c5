#pragma once

#include "values/TrellisApi.h"

#include <functional>

class ZOLGYRError;

namespace trellis {

// MotifToolkit: puts the toolkit's windows on an X display. A host starts it once, before its first dialog; from
// then on every window that is shown is a real one.
class TRELLIS_API MotifToolkit {
public:
    // Opens the display of the option -display, else of the variable DISPLAY, and makes its view the current one.
    // The options of X programs, and -fontSize and -fontFamily, are taken out of argc and argv. False with the
    // error 60150 and the name of the display when it cannot be opened; nothing is chosen then.
    static bool Start(int& argc, char** argv, ZOLGYRError& error);
    // What is done when the connection to the display breaks. It runs once, in the middle of whatever touched the
    // screen, touches no window itself, and answers the exit code with which the process then ends, without
    // unwinding. At first: one line on the standard error and exit code 3.
    static void WhenDisplayIsLost(std::function<int()> action);
    // Serves the windows until none is shown any more, or until Quit. Nothing without a display.
    static void Run();
    // Lets Run return after the callback that is served now.
    static void Quit();
    // Takes all windows off the screen; the dialogs live on, without a view.
    static void Stop();
};

} // namespace trellis
