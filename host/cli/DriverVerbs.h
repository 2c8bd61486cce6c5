#pragma once

#include "cli/ScriptVerb.h"

namespace trellis {

// The verbs with which a script acts on dialogs: those of ZOLUserDriver, one to one. A path is looked for in the
// dialogs that are open, the one shown last first; "." is that dialog itself.
std::vector<ScriptVerb> DriverVerbs();

} // namespace trellis
