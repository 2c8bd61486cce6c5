#pragma once

#include "entry/ZOLIQRDCfgInterfaces.h"

#include <memory>

namespace trellis {

// ModuleLoader: loads the configuration module and makes its interface object.
class ModuleLoader {
public:
    // The object, or null with 60600 and the module's file when the library cannot be loaded or does not register
    // itself under its name. The library is looked for beside the program, then in lib/trellis beside its folder.
    // It stays loaded until the process ends.
    static std::unique_ptr<ZOLIQRDCfgInterfaces> Load(ZOLGYRError& error);
};

} // namespace trellis
