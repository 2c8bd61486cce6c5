#pragma once

#include "session/ExitCode.h"
#include "session/HostSession.h"

namespace trellis {

// Opens the navigator on the session's database and serves its windows until the user leaves. Without a display it
// says so in one line, with the ways to work without one.
ExitCode RunNavigator(HostSession& session);

} // namespace trellis
