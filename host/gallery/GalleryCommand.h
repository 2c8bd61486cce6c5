#pragma once

#include "session/ExitCode.h"
#include "session/HostSession.h"

namespace trellis {

// Opens the gallery of widgets and serves its windows until the user closes it.
ExitCode RunGallery(HostSession& session);
// Writes what the gallery shows to the standard output, without a display.
ExitCode DescribeGallery(HostSession& session);

} // namespace trellis
