#pragma once

#include "toolkit/TextMeasure.h"

namespace trellis {

// LayoutMetrics: the few distances of the layout, in pixels. All follow the size of the font.
class LayoutMetrics {
public:
    explicit LayoutMetrics(const TextMeasure& measure) : _measure(measure) {}

    int Spacing() const { return _measure.GetPixels(8); }       // between neighbours
    int WindowMargin() const { return _measure.GetPixels(12); } // around what a window holds
    // Above and below the text of a button or field, with its border and the ring that shows the focus.
    int TextMargin() const { return _measure.GetPixels(6); }
    int FieldMargin() const { return _measure.GetPixels(9); }   // left and right of the text of a field
    int ButtonMargin() const { return _measure.GetPixels(16); } // left and right of the title of a button
    int ButtonWidth() const { return _measure.GetPixels(80); }  // of a button of a dialog, at least
    int CellMargin() const { return _measure.GetPixels(8); }    // left and right of the text of a list's cell
    int Indicator() const { return _measure.GetPixels(24); }    // the mark of check and radio buttons
    int Arrow() const { return _measure.GetPixels(24); }        // of a combo
    int MenuMargin() const { return _measure.GetPixels(10); }   // left and right of the title of a menu
    int ScrollBar() const { return _measure.GetPixels(12); }
    int LineOfText() const { return _measure.GetLineHeight() + 2 * TextMargin(); } // a button or field
    static constexpr int separator = 2;

private:
    const TextMeasure& _measure;
};

} // namespace trellis
