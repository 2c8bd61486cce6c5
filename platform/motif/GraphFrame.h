#pragma once

#include "toolkit/LayoutTypes.h"
#include "toolkit/TreeLayout.h"

namespace trellis {

// GraphFrame: how a drawing meets the screen: which point of it stands in the top left corner of the area, and
// how large a unit of it is. A margin is left free around the drawing.
struct GraphFrame {
    static constexpr int Margin = 8; // pixels of the screen
    static constexpr double SmallestZoom = 0.1;
    static constexpr double LargestZoom = 4;

    LayoutPoint viewPoint; // in units of the drawing
    LayoutSize area;       // in pixels of the screen
    double zoom = 1;       // pixels of a unit

    // How much of the drawing has room inside the margins, in its units.
    LayoutSize ShownArea() const;
    LayoutPoint ToDrawing(LayoutPoint pixel) const;
    // The part of the drawing that is in sight, margins included, rounded outwards.
    LayoutRectangle InSight() const;
    // The frame with another zoom, cut to the bounds, in which the same point of the drawing stands at a pixel.
    GraphFrame ZoomedAt(LayoutPoint pixel, double newZoom) const;
};

} // namespace trellis
