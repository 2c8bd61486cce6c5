#pragma once

#include "motif/MotifNative.h"
#include "motif/PangoTextMeasure.h"

#include <X11/Xft/Xft.h>

namespace trellis {

// MotifTextMeasure: sizes that hold a text whoever draws it: native widgets round each letter to whole pixels,
// so that the same text is a little wider there.
class MotifTextMeasure : public PangoTextMeasure {
public:
    MotifTextMeasure(Display* display, const Theme& theme);
    ~MotifTextMeasure() override;
    MotifTextMeasure(const MotifTextMeasure&) = delete;
    MotifTextMeasure& operator=(const MotifTextMeasure&) = delete;

    int GetTextWidth(const ZOLUnicodeString& line) const override;

private:
    Display* _display;
    XftFont* _font; // null when the screen has none at all
};

} // namespace trellis
