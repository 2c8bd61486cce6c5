#pragma once

#include "rules/readers/VariabilityModel.h"

#include <string_view>

namespace trellis {

// UvlReader: reads a variability model in UVL. Understood are the sections namespace, features and
// constraints, groups of all kinds whose cardinality is one of 0..1, 1..1, 0..n, 1..n and n..n, and
// constraints over features. Attributes are passed over, and the section include, which names parts of the
// language only. What would say something and cannot be told by options and rules is a problem: imported
// models, features with a value or with copies, other cardinalities, arithmetic. Rules of constraints are
// called "constraints" with their line. UvlTreeRules and UvlConstraintRules tell what becomes of tree and
// constraints.
class UvlReader {
public:
    // Problems have the numbers 60212 and 60700 to 60724.
    static ModelReading Read(std::string_view text);
};

} // namespace trellis
