#pragma once

#include "motif/GraphFrame.h"
#include "motif/GraphNodePainter.h"
#include "toolkit/GraphDrawing.h"

namespace trellis {

// What of a graph is on the screen at one moment.
struct GraphPicture {
    const GraphDrawing& drawing;
    const TreeLayoutStyle& style;
    GraphFrame frame;
    int background = 6;                  // index of the palette
    const ZOLGraphNode* focus = nullptr; // null where the graph does not have the keyboard
    bool isSensitive = true;
};

// What lies at a pixel of a graph.
struct GraphHit {
    ZOLGraphNode* node = nullptr;
    bool isOnExpander = false; // on the pixmap by which a branch is opened or closed
};

// GraphPainter: draws a graph on any Cairo surface; draws only what is in sight. Texts that would be too small
// to be read are left out.
class GraphPainter {
public:
    explicit GraphPainter(TextPainter& text) : _text(text), _nodes(text) {}

    void Paint(cairo_t* context, const GraphPicture& picture);
    bool ShowsTexts(const GraphFrame& frame) const;
    GraphHit HitAt(const GraphPicture& picture, LayoutPoint pixel) const;

private:
    void PaintNodes(cairo_t* context, const GraphPicture& picture);
    void PaintFocus(cairo_t* context, const GraphPicture& picture);

    TextPainter& _text;
    GraphNodePainter _nodes;
};

} // namespace trellis
