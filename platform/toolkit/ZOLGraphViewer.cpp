#include "toolkit/ZOLGraphViewer.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/DialogDescription.h"
#include "toolkit/GraphDrawing.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLGraphNode.h"

#include <algorithm>

using trellis::DrawnNode;
using trellis::GraphDrawing;
using trellis::LayoutRectangle;

namespace {

ZOLGraphNode* AsNode(const trellis::WeakCommand& command) {
    return dynamic_cast<ZOLGraphNode*>(command.Get());
}

} // namespace

ZOLGraphViewer::ZOLGraphViewer(ZOLDialog* owner, const ZOLString& name, unsigned long style, int width,
                               int height, int sizing)
    : ZOLNavigation2DViewer(owner, name, style, width, height, sizing) {
    CreateGraph();
}

ZOLGraphViewer::~ZOLGraphViewer() {
    _graph->_viewer = nullptr;
}

ZOLGraph* ZOLGraphViewer::CreateGraph() {
    if (_graph)
        _graph->_viewer = nullptr;
    _graph = std::make_unique<ZOLGraph>();
    _graph->_viewer = this;
    MarkChanged();
    return _graph.get();
}

void ZOLGraphViewer::add(ZOLGraphNode* node) {
    _graph->add(node);
}

void ZOLGraphViewer::remove(ZOLGraphNode* node) {
    _graph->remove(node);
}

void ZOLGraphViewer::centre(ZOLGraphNode* node) {
    _toCentre = trellis::WeakCommand(node);
    MarkChanged();
}

void ZOLGraphViewer::doLayout() {
    _graph->MarkRoom();
}

void ZOLGraphViewer::UpdateLayout() {
    doLayout();
    update();
}

void ZOLGraphViewer::defineEventManagement(int on) {
    _takesGestures = on != 0;
}

const GraphDrawing& ZOLGraphViewer::GetDrawing(const trellis::TextMeasure& measure) const {
    return _graph->GetDrawing(measure);
}

trellis::LayoutPoint ZOLGraphViewer::GetViewPoint(const trellis::TextMeasure& measure) {
    const GraphDrawing& drawing = GetDrawing(measure);
    FollowFocus(drawing);
    MoveToWanted(drawing);
    Bound(drawing.Size());
    return StoredViewPoint();
}

// An anchored viewpoint moves with the node that the user acted on last.
void ZOLGraphViewer::FollowFocus(const GraphDrawing& drawing) {
    const int position = drawing.Position(AsNode(_focus));
    if (position < 0)
        return;
    const LayoutRectangle place = drawing.Nodes()[static_cast<std::size_t>(position)].place;
    if (IsAnchored()) {
        const trellis::LayoutPoint old = StoredViewPoint();
        StoreViewPoint({old.x + place.x - _focusPlace.x, old.y + place.y - _focusPlace.y});
    }
    _focusPlace = place;
}

void ZOLGraphViewer::MoveToWanted(const GraphDrawing& drawing) {
    const trellis::LayoutSize area = GetAreaSize();
    trellis::LayoutPoint point = StoredViewPoint();
    if (const int position = drawing.Position(AsNode(_toCentre)); position >= 0) {
        const LayoutRectangle& place = drawing.Nodes()[static_cast<std::size_t>(position)].place;
        point = {place.x + place.width / 2 - area.width / 2, place.y + place.height / 2 - area.height / 2};
    } else if (const int revealed = drawing.Position(AsNode(_toReveal)); revealed >= 0) {
        const LayoutRectangle& place = drawing.Nodes()[static_cast<std::size_t>(revealed)].place;
        point.x = std::min(std::max(point.x, place.x + place.width - area.width), place.x);
        point.y = std::min(std::max(point.y, place.y + place.height - area.height), place.y);
    }
    StoreViewPoint(point);
    _toCentre = {};
    _toReveal = {};
}

ZOLGraphNode* ZOLGraphViewer::FindDrawn(const std::vector<ZOLUnicodeString>& firstLines) const {
    const std::vector<DrawnNode>& nodes = _graph->GetDrawing().Nodes();
    // found[i]: how many of the lines lead to node i; a node is looked at only behind its parent.
    std::vector<std::size_t> found(nodes.size(), 0);
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const auto depth = static_cast<std::size_t>(nodes[i].depth);
        const bool isOnPath = depth == 0 || found[static_cast<std::size_t>(nodes[i].parent)] == depth;
        if (!isOnPath || depth >= firstLines.size() || nodes[i].node->firstLine() != firstLines[depth])
            continue;
        if (depth + 1 == firstLines.size())
            return nodes[i].node;
        found[i] = depth + 1;
    }
    return nullptr;
}

ZOLUserResult ZOLGraphViewer::GestureGate() const {
    const ZOLUserResult gate = UserGate();
    if (gate != ZOLUserResult::Done)
        return gate;
    return _takesGestures ? ZOLUserResult::Done : ZOLUserResult::Insensitive;
}

ZOLUserResult ZOLGraphViewer::NodeGate(const ZOLGraphNode* node) const {
    const ZOLUserResult gate = GestureGate();
    if (gate != ZOLUserResult::Done)
        return gate;
    if (!node || node->graph() != _graph.get())
        return ZOLUserResult::NotThere;
    return _graph->GetDrawing().Position(node) >= 0 ? ZOLUserResult::Done : ZOLUserResult::Hidden;
}

// The notification may end its node, but not before the scope does.
void ZOLGraphViewer::Send(ZOLGraphNotification& notification, ZOLGraphNode* node) {
    notification.SetNode(node);
    SendNotification(this, &notification);
}

// A menu is empty before each context gesture, so that what an earlier one built for another node cannot
// appear.
void ZOLGraphViewer::SendContext(ZOLGraphNotification& notification, ZOLGraphNode* node) {
    if (ZOLDlgContextualMenu* menu = FindContextualMenu())
        menu->Empty();
    Send(notification, node);
    notification.SetNode(nullptr);
    if (IsBeingDestroyed())
        return;
    ZOLDlgContextualMenu* built = FindContextualMenu();
    if (built && built->GetVisibility() == ZOLShown)
        built->ShowBuilt();
}

ZOLDlgContextualMenu* ZOLGraphViewer::FindContextualMenu() const {
    ZOLDlgContextualMenu* menu = nullptr;
    for (ZOLDialog* child : GetChildren())
        if (auto* found = dynamic_cast<ZOLDlgContextualMenu*>(child); found && !found->IsBeingDestroyed())
            menu = found;
    return menu;
}

ZOLUserResult ZOLGraphViewer::UserClickNode(ZOLGraphNode* node, bool extend) {
    const ZOLUserResult gate = NodeGate(node);
    if (gate != ZOLUserResult::Done)
        return gate;
    const trellis::CallbackScope scope;
    SetFocus(node);
    if (extend) {
        Send(_extSelectNotification, node);
        _extSelectNotification.SetNode(nullptr);
    } else {
        Send(*node->GetSelectNotification(), node);
    }
    return ZOLUserResult::Done;
}

ZOLUserResult ZOLGraphViewer::UserContextNode(ZOLGraphNode* node) {
    const ZOLUserResult gate = NodeGate(node);
    if (gate != ZOLUserResult::Done)
        return gate;
    const trellis::CallbackScope scope;
    SetFocus(node);
    SendContext(_contextNotification, node);
    return ZOLUserResult::Done;
}

ZOLUserResult ZOLGraphViewer::UserClickBackground() {
    const ZOLUserResult gate = GestureGate();
    if (gate != ZOLUserResult::Done)
        return gate;
    const trellis::CallbackScope scope;
    Send(_graphSelectNotification, nullptr);
    return ZOLUserResult::Done;
}

ZOLUserResult ZOLGraphViewer::UserContextBackground() {
    const ZOLUserResult gate = GestureGate();
    if (gate != ZOLUserResult::Done)
        return gate;
    const trellis::CallbackScope scope;
    SendContext(_graphContextNotification, nullptr);
    return ZOLUserResult::Done;
}

ZOLUserResult ZOLGraphViewer::UserPointAt(ZOLGraphNode* node) {
    const ZOLUserResult gate = UserGate();
    if (gate != ZOLUserResult::Done && gate != ZOLUserResult::Insensitive)
        return gate;
    if (node && node->graph() != _graph.get())
        return ZOLUserResult::NotThere;
    if (node && _graph->GetDrawing().Position(node) < 0)
        return ZOLUserResult::Hidden;
    const bool isOther = node ? node != _pointed.Get() : _hasPointed;
    if (!isOther)
        return ZOLUserResult::Done;
    const trellis::CallbackScope scope;
    _pointed = trellis::WeakCommand(node);
    _hasPointed = node != nullptr;
    Send(_pointNotification, node);
    _pointNotification.SetNode(nullptr);
    return ZOLUserResult::Done;
}

ZOLGraphNode* ZOLGraphViewer::GetPointedNode() const {
    ZOLGraphNode* node = AsNode(_pointed);
    return node && node->graph() == _graph.get() ? node : nullptr;
}

const char* ZOLGraphViewer::GetKind() const {
    return "graph";
}

void ZOLGraphViewer::DescribeTo(trellis::DialogDescription& description) const {
    description.Widget(*this);
    std::vector<std::unique_ptr<trellis::DialogDescription::Indent>> indents;
    for (const DrawnNode& drawn : _graph->GetDrawing().Nodes()) {
        const auto levels = static_cast<std::size_t>(drawn.depth) + 1;
        if (indents.size() > levels)
            indents.resize(levels);
        while (indents.size() < levels)
            indents.push_back(std::make_unique<trellis::DialogDescription::Indent>(description));
        drawn.node->toCompose(description);
    }
}
