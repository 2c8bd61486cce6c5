#pragma once

#include "values/ImportProblem.h"

#include <cstddef>
#include <string_view>

namespace trellis {

// The text without its byte order mark. Each line that is no UTF-8 is noted: 60212 (octet, from 1); the check
// ends when `most` problems stand.
std::string_view CheckedUtf8(std::string_view text, std::vector<ImportProblem>& problems,
                             std::size_t most = static_cast<std::size_t>(-1));

} // namespace trellis
