#include "toolkit/ZOLGraph.h"

#include "toolkit/GraphDrawing.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLGraphViewer.h"

#include <algorithm>
#include <unordered_set>

using trellis::GraphDrawing;
using trellis::TreeShape;

namespace {

// The node and all that hangs under it, parents before children, each once, whatever circles there are.
std::vector<ZOLGraphNode*> Subtree(ZOLGraphNode* root) {
    std::vector<ZOLGraphNode*> nodes;
    std::unordered_set<const ZOLGraphNode*> seen;
    std::vector<ZOLGraphNode*> open{root};
    while (!open.empty()) {
        ZOLGraphNode* node = open.back();
        open.pop_back();
        if (!seen.insert(node).second)
            continue;
        nodes.push_back(node);
        const auto& arcs = node->ChildArcs();
        for (auto arc = arcs.rbegin(); arc != arcs.rend(); ++arc)
            open.push_back((*arc)->GetChild());
    }
    return nodes;
}

} // namespace

ZOLGraph::ZOLGraph() : _nextNode(_nodes.end()) {}

ZOLGraph::~ZOLGraph() {
    for (ZOLGraphNode* node : _nodes)
        node->_graph = nullptr;
}

void ZOLGraph::addTree(ZOLGraphNode* node) {
    if (!node)
        return;
    for (ZOLGraphNode* part : Subtree(node))
        add(part);
}

void ZOLGraph::removeTree(ZOLGraphNode* node) {
    if (!node)
        return;
    for (ZOLGraphNode* part : Subtree(node))
        remove(part);
}

void ZOLGraph::add(ZOLGraphNode* node) {
    if (!node || node->_graph == this || node->IsBeingDestroyed())
        return;
    node->remove();
    node->_graph = this;
    node->_placeInGraph = _nodes.insert(_nodes.end(), node);
    MarkRoom();
}

void ZOLGraph::remove(ZOLGraphNode* node) {
    if (!node || node->_graph != this)
        return;
    // A walk over the nodes goes on behind the one that leaves.
    if (_nextNode == node->_placeInGraph)
        ++_nextNode;
    _nodes.erase(node->_placeInGraph);
    node->_graph = nullptr;
    MarkRoom();
}

ZOLGraphNode* ZOLGraph::firstNode() {
    _nextNode = _nodes.begin();
    return nextNode();
}

ZOLGraphNode* ZOLGraph::nextNode() {
    if (_nextNode == _nodes.end())
        return nullptr;
    return *_nextNode++;
}

void ZOLGraph::setHorizontalBottom() {
    _style.shape = TreeShape::HorizontalBottom;
    MarkRoom();
}

void ZOLGraph::setHorizontalIndented() {
    _style.shape = TreeShape::HorizontalIndented;
    MarkRoom();
}

void ZOLGraph::setVerticalCentered() {
    _style.shape = TreeShape::VerticalCentred;
    MarkRoom();
}

void ZOLGraph::setPacked() {
    _style.packed = true;
    MarkRoom();
}

void ZOLGraph::setWidthMargin(int margin) {
    _style.widthMargin = std::max(margin, 0);
    MarkRoom();
}

void ZOLGraph::setDepthMargin(int margin) {
    _style.depthMargin = std::max(margin, 0);
    MarkRoom();
}

void ZOLGraph::setWithSquareArc() {
    _style.squareArcs = true;
    MarkLook();
}

void ZOLGraph::updateColorMap() {
    MarkLook();
}

void ZOLGraph::MarkRoom() {
    _drawing.reset();
    MarkLook();
}

void ZOLGraph::MarkLook() {
    if (_viewer)
        _viewer->MarkChanged();
}

const GraphDrawing& ZOLGraph::GetDrawing(const trellis::TextMeasure& measure) const {
    if (!_drawing || _measure != &measure) {
        _drawing = std::make_unique<GraphDrawing>(*this, measure);
        _measure = &measure;
    }
    return *_drawing;
}

const GraphDrawing& ZOLGraph::GetDrawing() const {
    static const trellis::TextMeasure cells;
    return _drawing ? *_drawing : GetDrawing(cells);
}
