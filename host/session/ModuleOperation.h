#pragma once

#include "entry/ZOLIQRDCfgInterfaces.h"
#include "model/ZOLDMInstance.h"

#include <functional>
#include <string>
#include <vector>

namespace trellis {

// One of the operations of the module, as a host offers it: on a selection of parts.
struct ModuleOperation {
    using Parts = std::vector<ZOLDMInstance>;

    const char* name;
    std::size_t fewest; // parts that it works on
    std::size_t most;
    std::function<void(ZOLIQRDCfgInterfaces&, ZOLDialog*, Parts&, ZOLGYRError&)> call;

    bool Takes(std::size_t parts) const { return parts >= fewest && parts <= most; }

    // All of them, in the order of the interface; those on milestones twice, with "Date" and "Range" behind the name.
    static const std::vector<ModuleOperation>& All();
    static const ModuleOperation* Find(const std::string& name);

    // Calls it as a callback of the toolkit, and shows what comes back in the carrier, as every host must. Answers the
    // text that was shown, or an empty one.
    ZOLUnicodeString Run(ZOLIQRDCfgInterfaces& module, ZOLDialog* parent, Parts parts) const;
};

} // namespace trellis
