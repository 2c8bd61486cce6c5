#include "toolkit/GraphDrawing.h"

#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLGraph.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLGraphNode.h"

#include <algorithm>
#include <unordered_set>

namespace trellis {

namespace {

bool HasParentIn(const ZOLGraph& graph, const ZOLGraphNode& node) {
    const auto& arcs = node.ParentArcs();
    return std::any_of(arcs.begin(), arcs.end(),
                       [&](const ZOLGraphArc* arc) { return arc->GetParent()->graph() == &graph; });
}

// Walks the trees of a graph without recursion and notes what is drawn. Hidden nodes are walked too: what
// hangs under them is not drawn, and must not pass for the begin of another tree.
class DrawingWalk {
public:
    DrawingWalk(const ZOLGraph& graph, std::vector<DrawnNode>& drawn) : _graph(graph), _drawn(drawn) {}

    void Run() {
        for (ZOLGraphNode* node : _graph.Nodes())
            if (!HasParentIn(_graph, *node))
                WalkFrom(node);
        // What is left hangs in circles.
        for (ZOLGraphNode* node : _graph.Nodes())
            WalkFrom(node);
    }

private:
    struct Step {
        ZOLGraphNode* node;
        ZOLGraphArc* arc;
        int parent;
        bool isParentDrawn;
    };

    void WalkFrom(ZOLGraphNode* root) {
        _open.push_back({root, nullptr, -1, true});
        while (!_open.empty()) {
            const Step step = _open.back();
            _open.pop_back();
            if (_seen.insert(step.node).second)
                Visit(step);
        }
    }

    void Visit(const Step& step) {
        const bool isDrawn = step.isParentDrawn && step.node->isVisible();
        const int position = static_cast<int>(_drawn.size());
        if (isDrawn) {
            const int depth = step.parent < 0 ? 0 : _drawn[static_cast<std::size_t>(step.parent)].depth + 1;
            _drawn.push_back({step.node, step.arc, step.parent, depth, {}});
        }
        const auto& arcs = step.node->ChildArcs();
        for (auto arc = arcs.rbegin(); arc != arcs.rend(); ++arc)
            if ((*arc)->GetChild()->graph() == &_graph)
                _open.push_back({(*arc)->GetChild(), *arc, position, isDrawn});
    }

    const ZOLGraph& _graph;
    std::vector<DrawnNode>& _drawn;
    std::vector<Step> _open;
    std::unordered_set<const ZOLGraphNode*> _seen;
};

} // namespace

GraphDrawing::GraphDrawing(const ZOLGraph& graph, const TextMeasure& measure) {
    DrawingWalk(graph, _nodes).Run();
    std::vector<TreeLayoutNode> sizes;
    sizes.reserve(_nodes.size());
    for (const DrawnNode& drawn : _nodes)
        sizes.push_back({NodeSize(*drawn.node, measure), drawn.parent});
    const TreeLayout layout(sizes, graph.GetLayoutStyle());
    for (std::size_t i = 0; i < _nodes.size(); ++i) {
        _nodes[i].place = layout.Rectangles()[i];
        _positions.emplace(_nodes[i].node, static_cast<int>(i));
    }
    _size = layout.Size();
}

int GraphDrawing::Position(const ZOLGraphNode* node) const {
    const auto found = _positions.find(node);
    return found == _positions.end() ? -1 : found->second;
}

ZOLGraphNode* GraphDrawing::NodeAt(LayoutPoint point) const {
    for (const DrawnNode& drawn : _nodes) {
        const LayoutRectangle& place = drawn.place;
        if (point.x >= place.x && point.x < place.x + place.width && point.y >= place.y &&
            point.y < place.y + place.height)
            return drawn.node;
    }
    return nullptr;
}

std::vector<ZOLGraphArc*> GraphDrawing::Arcs() const {
    std::vector<ZOLGraphArc*> arcs;
    for (const DrawnNode& drawn : _nodes)
        for (ZOLGraphArc* arc : drawn.node->ChildArcs())
            if (arc->isVisible() && Position(arc->GetChild()) >= 0)
                arcs.push_back(arc);
    return arcs;
}

LayoutSize GraphDrawing::NodeSize(const ZOLGraphNode& node, const TextMeasure& measure) {
    const std::string& text = node.getText().Bytes();
    int width = 0;
    int lines = 0;
    for (std::size_t begin = 0, end = 0; end != std::string::npos; begin = end + 1, ++lines) {
        end = text.find('\n', begin);
        width = std::max(width, measure.GetTextWidth(text.substr(begin, end - begin)));
    }
    const int border = node.getDecorationVisibility() ? Frame : Bare;
    const bool hasIcon = node.HasPixmap() || node.getMark() != NodeMark::None;
    const int icon = hasIcon ? measure.GetLineHeight() + IconGap : 0;
    // The sign has its room always, so that a change of colour moves nothing.
    return {icon + width + SignGap + measure.GetCharacterWidth() + 2 * border,
            lines * measure.GetLineHeight() + 2 * border};
}

} // namespace trellis
