#pragma once

#include "site/TrellisControls.h"

#include <string>

class ZOLGYRError;

namespace trellis {

// ControlLibrary: the shared object with the control functions of the site.
class ControlLibrary {
public:
    // The table of the library that the settings name now; null without one. It is loaded when it is asked
    // for the first time, and a failure is told (60530 to 60532) that time alone.
    static const TrellisControls* Controls(ZOLGYRError& error);

private:
    static const TrellisControls* Load(const std::string& path, ZOLGYRError& error);
};

} // namespace trellis
