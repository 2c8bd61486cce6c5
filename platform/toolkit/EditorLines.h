#pragma once

#include "values/ZOLUnicodeString.h"

#include <vector>

namespace trellis {

// A text as lines and back, with line feeds or something else between them; an empty text is one empty line.
std::vector<ZOLUnicodeString> SplitLines(const ZOLUnicodeString& text);
ZOLUnicodeString JoinLines(const std::vector<ZOLUnicodeString>& lines, const char* between = "\n");

} // namespace trellis
