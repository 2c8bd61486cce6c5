#pragma once

#include "values/ZOLUnicodeString.h"

#include <vector>

namespace trellis {

// A text as lines and back; an empty text is one empty line.
std::vector<ZOLUnicodeString> SplitLines(const ZOLUnicodeString& text);
ZOLUnicodeString JoinLines(const std::vector<ZOLUnicodeString>& lines);

} // namespace trellis
