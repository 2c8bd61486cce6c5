#pragma once

#include "toolkit/TreeLayout.h"
#include "values/TrellisApi.h"

#include <list>
#include <memory>

class ZOLGraphNode;
class ZOLGraphViewer;

namespace trellis {
class GraphDrawing;
class TextMeasure;
} // namespace trellis

// ZOLGraph: the nodes that one viewer draws, and the way in which they are laid out. It owns no node; one
// that is destroyed leaves it. Nothing is laid out by an operation: the drawing is computed when somebody
// looks.
class TRELLIS_API ZOLGraph {
public:
    ZOLGraph();
    ~ZOLGraph();
    ZOLGraph(const ZOLGraph&) = delete;
    ZOLGraph& operator=(const ZOLGraph&) = delete;

    // Puts a node and all that hangs under it into the graph, parents before children. Those that are in it
    // already stay where they are, so it may be repeated. A node of another graph leaves that one. Null is
    // ignored.
    void addTree(ZOLGraphNode* node);
    // Takes a node and all that hangs under it out; the objects and their arcs live on. Nodes that are not in
    // this graph are passed over.
    void removeTree(ZOLGraphNode* node);
    // The same for one node alone.
    void add(ZOLGraphNode* node);
    void remove(ZOLGraphNode* node);

    // Walking all nodes in the order in which they came in, hidden ones too, until null. A node that is
    // destroyed during the walk does not disturb it; a second walk at the same time does.
    ZOLGraphNode* firstNode();
    ZOLGraphNode* nextNode();
    int nNode() const { return static_cast<int>(_nodes.size()); }
    const std::list<ZOLGraphNode*>& Nodes() const { return _nodes; }

    // How trees are laid out; see trellis::TreeLayoutStyle. Of the three shapes the last call counts.
    void setHorizontalBottom();
    void setHorizontalIndented();
    void setVerticalCentered();
    void setPacked();
    // In pixels; below 0 counts as 0.
    void setWidthMargin(int margin);
    void setDepthMargin(int margin);
    void setWithSquareArc();
    const trellis::TreeLayoutStyle& GetLayoutStyle() const { return _style; }

    // Marks that colours have to be painted anew.
    void updateColorMap();
    // Marks that sizes or places may have changed, or only how something looks.
    void MarkRoom();
    void MarkLook();

    // What is drawn where, with texts as large as the measure says. Valid until the next change of graph or
    // nodes; computed at the first call after one, or when the measure is another object.
    const trellis::GraphDrawing& GetDrawing(const trellis::TextMeasure& measure) const;
    // The same where places do not matter, with a cell of fixed size per character if nothing was computed
    // yet.
    const trellis::GraphDrawing& GetDrawing() const;

private:
    friend class ZOLGraphViewer;

    ZOLGraphViewer* _viewer = nullptr; // owns this graph
    std::list<ZOLGraphNode*> _nodes;
    std::list<ZOLGraphNode*>::iterator _nextNode;
    trellis::TreeLayoutStyle _style;
    mutable std::unique_ptr<trellis::GraphDrawing> _drawing;
    mutable const trellis::TextMeasure* _measure = nullptr;
};
