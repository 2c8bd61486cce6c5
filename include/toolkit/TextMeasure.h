#pragma once

#include "toolkit/LayoutTypes.h"
#include "values/TrellisApi.h"
#include "values/ZOLUnicodeString.h"

namespace trellis {

// TextMeasure: how large texts are on the screen of a view. The base is a cell of 8 by 16 pixels per code
// point.
class TRELLIS_API TextMeasure {
public:
    virtual ~TextMeasure();
    // Of one line, without any space around it.
    virtual int GetTextWidth(const ZOLUnicodeString& line) const;
    // Of a character of middling width, in which visible widths are counted.
    virtual int GetCharacterWidth() const;
    virtual int GetLineHeight() const;
    // Of a row of a list, with the space above and below its text.
    virtual int GetRowHeight() const;
    // A distance of the plain size as it is now: distances follow the size of the font.
    virtual int GetPixels(int plain) const;
};

} // namespace trellis
