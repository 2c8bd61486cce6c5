#include "motif/GraphFrame.h"

#include <algorithm>
#include <cmath>

namespace trellis {

namespace {

int Floor(double value) {
    return static_cast<int>(std::floor(value));
}

} // namespace

LayoutSize GraphFrame::ShownArea() const {
    return {std::max(Floor((area.width - 2 * Margin) / zoom), 1),
            std::max(Floor((area.height - 2 * Margin) / zoom), 1)};
}

LayoutPoint GraphFrame::ToDrawing(LayoutPoint pixel) const {
    return {viewPoint.x + Floor((pixel.x - Margin) / zoom), viewPoint.y + Floor((pixel.y - Margin) / zoom)};
}

LayoutRectangle GraphFrame::InSight() const {
    const LayoutPoint topLeft = ToDrawing({0, 0});
    const LayoutPoint bottomRight = ToDrawing({area.width, area.height});
    return {topLeft.x, topLeft.y, bottomRight.x - topLeft.x + 1, bottomRight.y - topLeft.y + 1};
}

GraphFrame GraphFrame::ZoomedAt(LayoutPoint pixel, double newZoom) const {
    GraphFrame zoomed = *this;
    zoomed.zoom = std::clamp(newZoom, SmallestZoom, LargestZoom);
    zoomed.viewPoint.x =
        viewPoint.x + static_cast<int>(std::lround((pixel.x - Margin) * (1 / zoom - 1 / zoomed.zoom)));
    zoomed.viewPoint.y =
        viewPoint.y + static_cast<int>(std::lround((pixel.y - Margin) * (1 / zoom - 1 / zoomed.zoom)));
    return zoomed;
}

} // namespace trellis
