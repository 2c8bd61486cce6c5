#pragma once

#include "cli/ScriptVerb.h"
#include "session/HostSession.h"

namespace trellis {

// The verbs with which a script does what a user does in the navigator: choose parts, ask for one of the 17
// operations, save. They work on the database and the module of a session, which must outlive them.
std::vector<ScriptVerb> HostVerbs(HostSession& session);

} // namespace trellis
