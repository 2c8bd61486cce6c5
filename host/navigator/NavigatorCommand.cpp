#include "navigator/NavigatorCommand.h"

#include "navigator/NavigatorWindow.h"
#include "session/MessageOutput.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/MotifToolkit.h"

#include <cstdlib>
#include <iostream>

namespace trellis {

namespace {

constexpr int NoDisplay = 60150;

// Nothing of the native toolkit is touched where there cannot be a display.
bool StartWindows(ZOLGYRError& error) {
    const char* display = std::getenv("DISPLAY");
    if (!display || !*display) {
        error.Set(NoDisplay, 0);
        return false;
    }
    char name[] = "trellis";
    char* arguments[] = {name, nullptr};
    int count = 1;
    return MotifToolkit::Start(count, arguments, error);
}

} // namespace

ExitCode RunNavigator(HostSession& session) {
    ZOLGYRError error;
    if (!StartWindows(error)) {
        ZOLUnicodeString reason;
        error.GetLongMsg(reason);
        std::cerr << "trellis: " << reason.Bytes()
                  << " Without windows there are tree, script, import, db and config (trellis --help).\n";
        return ExitCode::EnvironmentFailed;
    }
    if (!session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    {
        const CallbackScope scope;
        (new NavigatorWindow(session))->SetVisibility(ZOLShown);
    }
    MotifToolkit::Run();
    MotifToolkit::Stop();
    return ExitCode::Fine;
}

} // namespace trellis
