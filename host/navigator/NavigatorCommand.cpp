#include "navigator/NavigatorCommand.h"

#include "navigator/NavigatorWindow.h"
#include "session/WindowSession.h"
#include "toolkit/CallbackScope.h"

namespace trellis {

ExitCode RunNavigator(HostSession& session) {
    if (!WindowSession::Open(session) || !session.OpenDatabase())
        return ExitCode::EnvironmentFailed;
    {
        const CallbackScope scope;
        (new NavigatorWindow(session))->SetVisibility(ZOLShown);
    }
    WindowSession::Run();
    return ExitCode::Fine;
}

} // namespace trellis
