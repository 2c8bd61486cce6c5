#pragma once

#include "values/ZOLUnicodeString.h"

#include <vector>

namespace trellis {

class TextMeasure;

// The lines of a text none of which is wider than `width` pixels: broken at its line feeds, else at blanks, else
// within a word. A single character that is wider stands alone.
std::vector<ZOLUnicodeString> WrapText(const ZOLUnicodeString& text, const TextMeasure& measure, int width);

} // namespace trellis
