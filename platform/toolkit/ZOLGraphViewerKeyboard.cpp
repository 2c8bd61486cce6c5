// The keyboard of ZOLGraphViewer: which node has the focus, and where the keys lead.

#include "toolkit/GraphDrawing.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLGraphViewer.h"

using trellis::DrawnNode;
using trellis::GraphStep;
using trellis::TreeShape;

namespace {

enum class TreeStep { ToParent, ToFirstChild, Back, Forth };

struct StepMeaning {
    GraphStep step;
    TreeStep sideways; // in trees that grow to the right
    TreeStep downward; // in trees that grow downwards
};

constexpr StepMeaning Meanings[] = {
    {GraphStep::Left, TreeStep::ToParent, TreeStep::Back},
    {GraphStep::Right, TreeStep::ToFirstChild, TreeStep::Forth},
    {GraphStep::Up, TreeStep::Back, TreeStep::ToParent},
    {GraphStep::Down, TreeStep::Forth, TreeStep::ToFirstChild},
};

TreeStep MeaningOf(GraphStep step, TreeShape shape) {
    const StepMeaning& meaning = Meanings[static_cast<std::size_t>(step)];
    return shape == TreeShape::VerticalCentred ? meaning.downward : meaning.sideways;
}

// The next position in a direction that has the same depth, or any in an outline; -1 when there is none.
int Neighbour(const std::vector<DrawnNode>& nodes, int from, int direction, bool isOutline) {
    const int depth = nodes[static_cast<std::size_t>(from)].depth;
    for (int i = from + direction; i >= 0 && i < static_cast<int>(nodes.size()); i += direction)
        if (isOutline || nodes[static_cast<std::size_t>(i)].depth == depth)
            return i;
    return -1;
}

int Target(const std::vector<DrawnNode>& nodes, int from, TreeStep step, bool isOutline) {
    const int next = from + 1;
    switch (step) {
    case TreeStep::ToParent:
        return nodes[static_cast<std::size_t>(from)].parent;
    case TreeStep::ToFirstChild:
        return next < static_cast<int>(nodes.size()) && nodes[static_cast<std::size_t>(next)].parent == from
                   ? next
                   : -1;
    case TreeStep::Back:
        return Neighbour(nodes, from, -1, isOutline);
    case TreeStep::Forth:
        return Neighbour(nodes, from, 1, isOutline);
    }
    return -1;
}

} // namespace

ZOLGraphNode* ZOLGraphViewer::GetFocusNode() const {
    const trellis::GraphDrawing& drawing = GetGraph()->GetDrawing();
    auto* focus = dynamic_cast<ZOLGraphNode*>(_focus.Get());
    // The node may have been hidden since, with the branch that holds it. Parents may go in a circle.
    for (int left = GetGraph()->nNode(); left > 0 && focus && focus->graph() == GetGraph(); --left) {
        if (drawing.Position(focus) >= 0)
            return focus;
        focus = focus->firstParent();
    }
    return drawing.Nodes().empty() ? nullptr : drawing.Nodes().front().node;
}

void ZOLGraphViewer::SetFocus(ZOLGraphNode* node) {
    const trellis::GraphDrawing& drawing = GetGraph()->GetDrawing();
    _focus = trellis::WeakCommand(node);
    _focusPlace = drawing.Nodes()[static_cast<std::size_t>(drawing.Position(node))].place;
}

void ZOLGraphViewer::reveal(ZOLGraphNode* node) {
    if (GetGraph()->GetDrawing().Position(node) < 0)
        return;
    SetFocus(node);
    _toReveal = _focus;
    MarkChanged();
}

ZOLGraphNode* ZOLGraphViewer::NodeAt(GraphStep step) const {
    const std::vector<DrawnNode>& nodes = GetGraph()->GetDrawing().Nodes();
    const TreeShape shape = GetGraph()->GetLayoutStyle().shape;
    const int from = GetGraph()->GetDrawing().Position(GetFocusNode());
    const int target =
        from < 0 ? -1 : Target(nodes, from, MeaningOf(step, shape), shape == TreeShape::HorizontalIndented);
    return target < 0 ? nullptr : nodes[static_cast<std::size_t>(target)].node;
}

ZOLUserResult ZOLGraphViewer::UserMoveFocus(GraphStep step) {
    const ZOLUserResult gate = NodeGate(GetFocusNode());
    if (gate != ZOLUserResult::Done)
        return gate;
    ZOLGraphNode* target = NodeAt(step);
    if (!target)
        return ZOLUserResult::NotThere;
    reveal(target);
    return UserPointAt(target);
}

ZOLUserResult ZOLGraphViewer::UserExtendFocus() {
    return UserClickNode(GetFocusNode(), true);
}

ZOLUserResult ZOLGraphViewer::UserExtendTo(GraphStep step) {
    const ZOLUserResult gate = NodeGate(GetFocusNode());
    if (gate != ZOLUserResult::Done)
        return gate;
    const ZOLGraphNode* target = NodeAt(step);
    if (!target || target->getHighlight() == 0) {
        const ZOLUserResult moved = UserMoveFocus(step);
        return moved == ZOLUserResult::Done ? UserExtendFocus() : moved;
    }
    // What is left is asked first: the notification may change what is drawn.
    const ZOLUserResult left = UserExtendFocus();
    return left == ZOLUserResult::Done ? UserMoveFocus(step) : left;
}

ZOLUserResult ZOLGraphViewer::UserClickFocus() {
    return UserClickNode(GetFocusNode());
}

ZOLUserResult ZOLGraphViewer::UserContextFocus() {
    return UserContextNode(GetFocusNode());
}

ZOLUserResult ZOLGraphViewer::UserOpenFocus() {
    return ClickFocusWithPixmap("dirclose.rgb");
}

ZOLUserResult ZOLGraphViewer::UserCloseFocus() {
    return ClickFocusWithPixmap("diropen.rgb");
}

ZOLUserResult ZOLGraphViewer::ClickFocusWithPixmap(const char* pixmap) {
    ZOLGraphNode* focus = GetFocusNode();
    const ZOLUserResult gate = NodeGate(focus);
    if (gate != ZOLUserResult::Done)
        return gate;
    return trellis::PixmapBaseName(focus->getPixmap()) == pixmap ? UserClickNode(focus)
                                                                 : ZOLUserResult::NotThere;
}
