#pragma once

// Words of the layout, in pixels of the view; without a view a character is a cell of fixed size.

namespace trellis {

struct LayoutSize {
    int width = 0;
    int height = 0;
    friend bool operator==(const LayoutSize&, const LayoutSize&) = default;
};

struct LayoutRectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const LayoutRectangle&, const LayoutRectangle&) = default;
};

// What a panel may ask of the layout of one dialog.
struct LayoutHints {
    enum Growth { ByClass, Fixed, Grows };

    int orientation = 0; // of the children: 0 below each other, 1 beside each other
    int columns = 0;     // of the children: above 0 they stand in a grid of so many columns
    Growth horizontal = ByClass;
    Growth vertical = ByClass;
    LayoutSize size;          // 0: the natural one
    LayoutRectangle position; // x and y alone, of windows
    bool hasPosition = false;
};

} // namespace trellis
