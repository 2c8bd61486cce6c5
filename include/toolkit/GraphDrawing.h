#pragma once

#include "toolkit/TreeLayout.h"

#include <unordered_map>
#include <vector>

class ZOLGraph;
class ZOLGraphArc;
class ZOLGraphNode;

namespace trellis {

class TextMeasure;

// A node that is drawn: where, and under which other one.
struct DrawnNode {
    ZOLGraphNode* node = nullptr;
    ZOLGraphArc* arc = nullptr; // from the parent, null for a root; the arc itself may be hidden
    int parent = -1;            // position in the drawing, -1 for a root
    int depth = 0;
    LayoutRectangle place;
};

// GraphDrawing: what a graph draws at one moment, in the order in which a reader meets it: each node before
// its children. A node is drawn when it is in the graph and visible, and so are its ancestors in the graph. A
// node with several parents hangs under the first that the walk meets; a circle of nodes is entered where it
// came into the graph.
class TRELLIS_API GraphDrawing {
public:
    GraphDrawing(const ZOLGraph& graph, const TextMeasure& measure);

    const std::vector<DrawnNode>& Nodes() const { return _nodes; }
    LayoutSize Size() const { return _size; }
    // Position of a node in Nodes(), or -1 when it is not drawn.
    int Position(const ZOLGraphNode* node) const;
    // What lies at a point: the node or null.
    ZOLGraphNode* NodeAt(LayoutPoint point) const;
    // The arcs that are drawn between two drawn nodes, also those to a child that hangs elsewhere.
    std::vector<ZOLGraphArc*> Arcs() const;

    // Distances inside a node, in pixels: around its text with and without decoration, the gap behind a pixmap or
    // the mark that stands in its place, as high and wide as a line, and the gap before the sign.
    static constexpr int Frame = 4;
    static constexpr int Bare = 1;
    static constexpr int IconGap = 4;
    static constexpr int SignGap = 6;
    // The room that one node takes: frame, pixmap or mark, the lines of the text, and behind them a gap and one character
    // for the sign of the colour.
    static LayoutSize NodeSize(const ZOLGraphNode& node, const TextMeasure& measure);

private:
    std::vector<DrawnNode> _nodes;
    std::unordered_map<const ZOLGraphNode*, int> _positions;
    LayoutSize _size;
};

} // namespace trellis
