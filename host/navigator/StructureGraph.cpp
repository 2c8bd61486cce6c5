#include "navigator/StructureGraph.h"

#include "toolkit/ZOLGraphArc.h"

#include <algorithm>

namespace trellis {

namespace {

constexpr int Width = 700;
constexpr int Height = 480;
constexpr int WidthMargin = 4;
constexpr int DepthMargin = 10;

NavigatorNode* NodeOf(ZOLNotification* notification) {
    auto* graphNotification = dynamic_cast<ZOLGraphNotification*>(notification);
    return graphNotification ? dynamic_cast<NavigatorNode*>(graphNotification->GetNode()) : nullptr;
}

ZOLUnicodeString Folded(ZOLUnicodeString text) {
    text.ToUpper();
    return text;
}

} // namespace

StructureGraph::StructureGraph(ZOLDialog* father, const ZOLString& name)
    : ZOLGraphViewer(father, name, 0x80000, Width, Height, 0),
      _choiceNotification("NavigatorChoiceNotification") {
    ZOLGraph* graph = CreateGraph();
    graph->setHorizontalIndented();
    graph->setPacked();
    graph->setWidthMargin(WidthMargin);
    graph->setDepthMargin(DepthMargin);
    graph->setWithSquareArc();
    AddAnalyseNotificationCB(this, "ZOLNodeSelectNotification", ZOL_CALLBACK(&StructureGraph::SelectCB));
    AddAnalyseNotificationCB(this, "ZOLNodeExtSelectNotification", ZOL_CALLBACK(&StructureGraph::ExtendCB));
    AddAnalyseNotificationCB(this, "ZOLNodeContextNotification", ZOL_CALLBACK(&StructureGraph::ContextCB));
}

StructureGraph::~StructureGraph() {
    for (auto node = _nodes.rbegin(); node != _nodes.rend(); ++node)
        delete *node;
}

void StructureGraph::Clear() {
    _chosen.clear();
    for (NavigatorNode* node : _nodes)
        node->RequestDelayedDestruction();
    _nodes.clear();
}

NavigatorNode* StructureGraph::AddNode(const ZOLDMInstance& part) {
    auto* node = new NavigatorNode(part);
    _nodes.push_back(node);
    return node;
}

void StructureGraph::ShowRoots(const ZOLListValZOLDMInstance& roots) {
    Clear();
    for (const ZOLDMInstance& root : roots)
        GetGraph()->addTree(AddNode(root));
    UpdateLayout();
    SendNotification(GetFather(), &_choiceNotification);
}

void StructureGraph::RefreshNodes() {
    for (NavigatorNode* node : _nodes)
        node->Refresh();
    UpdateLayout();
}

std::vector<ZOLDMInstance> StructureGraph::Chosen() const {
    std::vector<ZOLDMInstance> parts;
    for (const NavigatorNode* node : _chosen)
        if (std::find(parts.begin(), parts.end(), node->Part()) == parts.end())
            parts.push_back(node->Part());
    return parts;
}

void StructureGraph::Choose(NavigatorNode* node) {
    for (NavigatorNode* chosen : _chosen)
        chosen->setHighlight(0);
    _chosen = {node};
    node->setHighlight(1);
    SendNotification(GetFather(), &_choiceNotification);
}

void StructureGraph::SelectCB(ZOLCommand*, ZOLNotification* notification, void*) {
    NavigatorNode* node = NodeOf(notification);
    if (!node)
        return;
    const bool wasChosen = _chosen.size() == 1 && _chosen.front() == node;
    if (!wasChosen)
        Choose(node);
    if (wasChosen || node->GetBranch() != NavigatorNode::Branch::Open)
        Toggle(node);
}

void StructureGraph::ExtendCB(ZOLCommand*, ZOLNotification* notification, void*) {
    NavigatorNode* node = NodeOf(notification);
    if (!node)
        return;
    const auto chosen = std::find(_chosen.begin(), _chosen.end(), node);
    node->setHighlight(chosen == _chosen.end() ? 1 : 0);
    if (chosen == _chosen.end())
        _chosen.push_back(node);
    else
        _chosen.erase(chosen);
    update();
    SendNotification(GetFather(), &_choiceNotification);
}

// A context gesture on a part that is not chosen means that part; the menu itself is built by the window.
void StructureGraph::ContextCB(ZOLCommand*, ZOLNotification* notification, void*) {
    NavigatorNode* node = NodeOf(notification);
    if (node && std::find(_chosen.begin(), _chosen.end(), node) == _chosen.end())
        Choose(node);
    SendNotification(GetFather(), notification);
}

void StructureGraph::Toggle(NavigatorNode* node) {
    switch (node->GetBranch()) {
    case NavigatorNode::Branch::Open:
        node->SetBranch(NavigatorNode::Branch::Closed);
        SetBranchShown(node, false);
        break;
    case NavigatorNode::Branch::Leaf:
        break;
    default:
        Open(node);
    }
    UpdateLayout();
}

void StructureGraph::Open(NavigatorNode* node) {
    if (node->GetBranch() == NavigatorNode::Branch::NeverOpened)
        ReadBranch(node);
    else
        SetBranchShown(node, true);
    node->SetBranch(node->nChild() == 0 ? NavigatorNode::Branch::Leaf : NavigatorNode::Branch::Open);
}

void StructureGraph::ReadBranch(NavigatorNode* node) {
    ZOLListValZOLDMInstance links;
    node->Part().GetChildren(0, "ZOLASS", links, 1);
    for (const ZOLDMInstance& link : links) {
        NavigatorNode* child = AddNode(link.GetChildPart(1));
        new ZOLGraphArc(node, child);
        GetGraph()->addTree(child);
    }
}

void StructureGraph::SetBranchShown(NavigatorNode* node, bool shown) {
    for (const ZOLGraphArc* arc : node->ChildArcs())
        shown ? arc->GetChild()->show() : arc->GetChild()->hide();
}

// All nodes that are on the screen, row by row.
std::vector<NavigatorNode*> StructureGraph::Outline() {
    std::vector<NavigatorNode*> rows;
    std::vector<ZOLGraphNode*> waiting;
    for (auto node = _nodes.rbegin(); node != _nodes.rend(); ++node)
        if ((*node)->nParent() == 0)
            waiting.push_back(*node);
    while (!waiting.empty()) {
        auto* node = static_cast<NavigatorNode*>(waiting.back());
        waiting.pop_back();
        rows.push_back(node);
        if (node->GetBranch() != NavigatorNode::Branch::Open)
            continue;
        const auto& arcs = node->ChildArcs();
        for (auto arc = arcs.rbegin(); arc != arcs.rend(); ++arc)
            waiting.push_back((*arc)->GetChild());
    }
    return rows;
}

bool StructureGraph::ChooseNext(const ZOLUnicodeString& text) {
    const ZOLUnicodeString wanted = Folded(text);
    std::vector<NavigatorNode*> rows = Outline();
    const auto chosen = _chosen.empty() ? rows.end() : std::find(rows.begin(), rows.end(), _chosen.back());
    if (chosen != rows.end())
        std::rotate(rows.begin(), chosen + 1, rows.end());
    for (NavigatorNode* node : rows)
        if (Folded(node->getText()).SearchSubString(wanted, 0) >= 0) {
            Choose(node);
            centre(node);
            update();
            return true;
        }
    return false;
}

} // namespace trellis
