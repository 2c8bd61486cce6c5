#pragma once

#include "motif/Theme.h"
#include "toolkit/GraphDrawing.h"

#include <cairo.h>

namespace trellis {

// GraphArcPainter: draws the arcs of a graph that are in sight. What is not plain differs by its line besides
// its colour: a rejected arc is dashed, a conflict thick, what a rule left open dotted.
class GraphArcPainter {
public:
    GraphArcPainter(const GraphDrawing& drawing, const TreeLayoutStyle& style, const LayoutRectangle& inSight)
        : _drawing(drawing), _style(style), _inSight(inSight) {}

    void Paint(cairo_t* context);

private:
    struct Line {
        double width;
        int dash; // 0 whole, 1 dashed, 2 dotted
        ThemeColour colour;
        friend bool operator==(const Line&, const Line&) = default;
    };
    static Line LineOf(const ZOLGraphArc& arc);

    void PaintArc(cairo_t* context, const ZOLGraphArc& arc, const LayoutRectangle& parent,
                  const LayoutRectangle& child);
    void PaintMoreParents(cairo_t* context, const DrawnNode& drawn);
    void AddPiece(cairo_t* context, LayoutPoint from, LayoutPoint to);
    void Begin(cairo_t* context, const Line& line);
    void Stroke(cairo_t* context);

    const GraphDrawing& _drawing;
    const TreeLayoutStyle& _style;
    const LayoutRectangle _inSight;
    Line _line{0, 0, {0}};
    // The last upright piece: children of one parent share it, however many there are.
    LayoutPoint _lastFrom{-1, -1};
    LayoutPoint _lastTo{-1, -1};
};

} // namespace trellis
