#pragma once

#include "values/ZOLGYRError.h"

#include <string>
#include <vector>

namespace trellis {

// MessageOutput: errors and notices for people, one per line on the standard error, as "error 60010: text".
class MessageOutput {
public:
    static std::string Line(const ZOLGYRError& error);
    static void Print(const ZOLGYRError& error);
    static void Print(const std::vector<ZOLGYRError>& errors);
    // Whether any is an error rather than a notice or warning.
    static bool AnyError(const std::vector<ZOLGYRError>& errors);
};

} // namespace trellis
