#include "toolkit/TextMeasure.h"

namespace trellis {

TextMeasure::~TextMeasure() = default;

int TextMeasure::GetTextWidth(const ZOLUnicodeString& line) const {
    return line.GetLengthInChar() * GetCharacterWidth();
}

int TextMeasure::GetCharacterWidth() const {
    return 8;
}

int TextMeasure::GetLineHeight() const {
    return 16;
}

int TextMeasure::GetRowHeight() const {
    return GetLineHeight();
}

int TextMeasure::GetPixels(int plain) const {
    return plain;
}

} // namespace trellis
