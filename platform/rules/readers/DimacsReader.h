#pragma once

#include "rules/readers/VariabilityModel.h"

#include <string_view>

namespace trellis {

// DimacsReader: reads clauses in DIMACS form. Every variable becomes an option of the one category "cnf",
// named by a comment "c NUMBER NAME" or else by its number; every clause becomes a directive called "cnf"
// with its line. A clause that always holds is left out.
class DimacsReader {
public:
    // Problems have the numbers 60212 and 60730 to 60739.
    static ModelReading Read(std::string_view text);
};

} // namespace trellis
