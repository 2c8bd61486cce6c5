#pragma once

#include "rules/language/RuleFault.h"
#include "values/ZOLParameter.h"

#include <map>
#include <vector>

namespace trellis {

// ReferenceCheck: whether the options that a rule names are among those that may be named.
class ReferenceCheck {
public:
    explicit ReferenceCheck(const ZOLListPtrZOLParameter& parameters);

    // The first reference that names no option, or more than one; number 0 when all name one. Empty cells need
    // their category alone.
    RuleFault FindFault(const ZOLUnicodeString& rule) const;

private:
    using Names = std::vector<ZOLUnicodeString>;

    RuleFault FaultOf(const std::string& category, const std::string& option, std::size_t offset) const;

    std::map<std::string, Names> _optionsOf;    // by category
    std::map<std::string, Names> _categoriesOf; // by option
};

} // namespace trellis
