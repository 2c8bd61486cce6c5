#pragma once

namespace trellis {

// The few distances of the layout, in pixels.
struct LayoutMetrics {
    static constexpr int spacing = 6;    // between neighbours, and between a border and what it holds
    static constexpr int textMargin = 4; // around the text of a button or field
    static constexpr int cellMargin = 8; // left and right of the text of a list's cell
    static constexpr int indicator = 20; // the mark of check and radio buttons, the arrow of a combo
    static constexpr int scrollBar = 16;
    static constexpr int separator = 2;
};

} // namespace trellis
