#include "navigator/NavigatorCommand.h"

#include "cli/MessageOutput.h"
#include "navigator/NavigatorWindow.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/MotifToolkit.h"

#include <iostream>

namespace trellis {

ExitCode RunNavigator(HostSession& session) {
    char name[] = "trellis";
    char* arguments[] = {name, nullptr};
    int count = 1;
    ZOLGYRError error;
    if (!MotifToolkit::Start(count, arguments, error)) {
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
