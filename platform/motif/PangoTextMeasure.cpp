#include "motif/PangoTextMeasure.h"

namespace trellis {

int PangoTextMeasure::GetTextWidth(const ZOLUnicodeString& line) const {
    return _text.Width(line.Bytes());
}

} // namespace trellis
