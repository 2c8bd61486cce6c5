#include "toolkit/ButtonRowLayout.h"

#include <algorithm>

namespace trellis {

ButtonRowLayout::ButtonRowLayout(const DialogButtons& buttons, const ZOLDialog& dialog,
                                 const TextMeasure& measure) {
    const LayoutMetrics metrics(measure);
    _gap = metrics.Spacing();
    _buttonWidth = metrics.ButtonWidth();
    for (const ZOLDialogButton button : DialogButtons::Row) {
        if (!buttons.At(button).isThere)
            continue;
        _shown.push_back(button);
        const int title = measure.GetTextWidth(buttons.GetTitle(button, dialog));
        _buttonWidth = std::max(_buttonWidth, title + 2 * metrics.ButtonMargin());
    }
    const int count = static_cast<int>(_shown.size());
    _size = {std::max(0, count * (_buttonWidth + _gap) - _gap), metrics.LineOfText()};
}

std::vector<ButtonRowLayout::Place> ButtonRowLayout::PlaceIn(const LayoutRectangle& row) const {
    const int count = static_cast<int>(_shown.size());
    std::vector<Place> places;
    for (int i = 0; i < count; ++i) {
        const int width = std::min(_buttonWidth, std::max(1, (row.width + _gap) / count - _gap));
        const int x = row.x + row.width + _gap - (count - i) * (width + _gap);
        places.push_back({_shown[static_cast<std::size_t>(i)], {x, row.y, width, row.height}});
    }
    return places;
}

} // namespace trellis
