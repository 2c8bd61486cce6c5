#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

#include <vector>

namespace trellis {

// The letter of each title that chooses it from the keyboard, as it stands in the title; 0 where none is left. No
// two titles have the same one, whatever their case, and all are ASCII letters or digits. The first letter of a
// word is taken before any other, and an earlier title before a later one.
TRELLIS_API std::vector<char> Mnemonics(const std::vector<ZOLUnicodeString>& titles);

} // namespace trellis
