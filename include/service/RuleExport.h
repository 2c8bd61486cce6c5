#pragma once

#include "service/ZOLIQrdConfigItem.h"

#include <string>

namespace trellis {

// RuleExport: the rules, packages and matrices of a dictionary as a text that RuleImport reads.
class TRELLIS_API RuleExport {
public:
    // In order of creation, rules before matrices, in neutral words. A rule that cannot be read stands in it as it is.
    // Rows that are in no matrix are left out: they bind nothing. Empty for a null handle.
    static std::string Text(const ZOLIQrdConfigItem_var& dictionary);
};

} // namespace trellis
