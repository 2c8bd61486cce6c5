#pragma once

#include "session/ExitCode.h"
#include "session/HostSession.h"

namespace trellis {

// WindowSession: the windows of a job, on the display and in the font that options and settings ask for.
//
// When the display goes away, the job ends at once with EnvironmentFailed: the standard error tells so in one line,
// then each change that was not saved, and the database is closed.
class WindowSession {
public:
    // Opens the display. Without one false, and one line on the standard error tells so with the ways to work without
    // windows.
    static bool Open(const HostSession& session);
    // Serves the windows until none is shown any more, then closes the display.
    static void Run();
};

} // namespace trellis
