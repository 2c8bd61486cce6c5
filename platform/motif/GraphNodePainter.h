#pragma once

#include "motif/GraphIcons.h"
#include "motif/TextPainter.h"
#include "toolkit/GraphPalette.h"
#include "toolkit/LayoutTypes.h"

class ZOLGraphNode;

namespace trellis {

// GraphNodePainter: draws one node of a graph into the room that the drawing gave it. Each state has a form
// of its own besides its colour:
//   mark        a box before the text, else a sign on the strip at the right end; what is ignored has a dashed frame,
//               what a rule rejected is struck out
//   alert       its sign on that strip
//   colour      of a node without mark, the sign of the palette on that strip
//   highlight   a thick dark frame
//   shadow in   an inner shadow along top and left, as of something pressed
//   current     a dark bar at the left end
class GraphNodePainter {
public:
    explicit GraphNodePainter(TextPainter& text) : _text(text) {}

    enum Detail { Full, WithoutText };
    void Paint(cairo_t* context, const ZOLGraphNode& node, const LayoutRectangle& place, Detail detail);
    // Where the pixmap stands; no width for a node without one.
    LayoutRectangle IconPlace(const ZOLGraphNode& node, const LayoutRectangle& place) const;

private:
    void PaintBody(cairo_t* context, const ZOLGraphNode& node, const LayoutRectangle& place, Detail detail);
    void PaintSign(cairo_t* context, const ZOLGraphNode& node, const LayoutRectangle& place,
                   const GraphColour& colour, Detail detail);
    void PaintLead(cairo_t* context, const ZOLGraphNode& node, const LayoutRectangle& place);
    // The square before the text.
    LayoutRectangle LeadPlace(const ZOLGraphNode& node, const LayoutRectangle& place) const;
    void PaintText(cairo_t* context, const ZOLGraphNode& node, const LayoutRectangle& place);

    TextPainter& _text;
    GraphIcons _icons;
};

} // namespace trellis
