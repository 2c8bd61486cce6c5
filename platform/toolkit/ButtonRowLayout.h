#pragma once

#include "toolkit/DialogButtons.h"
#include "toolkit/LayoutMetrics.h"
#include "toolkit/LayoutTypes.h"

#include <vector>

namespace trellis {

// ButtonRowLayout: where the buttons of a dialog or message box stand: in the order of the screen at the right
// end of their row, all as large as the largest.
class ButtonRowLayout {
public:
    struct Place {
        ZOLDialogButton button;
        LayoutRectangle place;
    };

    // `dialog` owns the buttons.
    ButtonRowLayout(const DialogButtons& buttons, const ZOLDialog& dialog, const TextMeasure& measure);

    // The room that the buttons need, without any around them.
    LayoutSize GetSize() const { return _size; }
    // In a row that is too narrow for them they share its width.
    std::vector<Place> PlaceIn(const LayoutRectangle& row) const;

private:
    std::vector<ZOLDialogButton> _shown;
    int _buttonWidth;
    int _gap;
    LayoutSize _size;
};

} // namespace trellis
