#include "motif/MotifTextMeasure.h"

#include <algorithm>

namespace trellis {

MotifTextMeasure::MotifTextMeasure(Display* display, const Theme& theme)
    : PangoTextMeasure(theme),
      _display(display),
      _font(XftFontOpen(display, DefaultScreen(display), XFT_FAMILY, XftTypeString,
                        theme.FontFamily().c_str(), XFT_SIZE, XftTypeDouble, theme.FontPoints(), nullptr)) {}

MotifTextMeasure::~MotifTextMeasure() {
    if (_font)
        XftFontClose(_display, _font);
}

int MotifTextMeasure::GetTextWidth(const ZOLUnicodeString& line) const {
    const int drawn = PangoTextMeasure::GetTextWidth(line);
    if (!_font)
        return drawn;
    XGlyphInfo extents = {};
    XftTextExtentsUtf8(_display, _font, reinterpret_cast<const FcChar8*>(line.ConvertToChar()),
                       line.GetLengthInByte(), &extents);
    return std::max<int>(drawn, extents.xOff + 1);
}

} // namespace trellis
