#include "navigator/StructureGraph.h"

#include "model/LinksUnderEdit.h"
#include "service/ConfigurablePartQuery.h"
#include "service/EffectivityQuery.h"
#include "session/StructureTree.h"
#include "toolkit/ZOLGraphArc.h"
#include "values/ZOLGYRError.h"

#include <algorithm>
#include <unordered_map>

namespace trellis {

namespace {

// The least that is of use; the window gives it all the room it has.
constexpr int Width = 600;
constexpr int Height = 240;
constexpr int WidthMargin = 4;
constexpr int DepthMargin = 10;
constexpr std::size_t MostOpened = 2000;

using Branch = NavigatorNode::Branch;
using Nodes = StructureGraph::Nodes;

} // namespace

StructureGraph::StructureGraph(ZOLDialog* father, const ZOLString& name, const StructureEdit& edit)
    : ZOLGraphViewer(father, name, 0x80000, Width, Height, 0),
      _edit(edit),
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

Nodes StructureGraph::Roots() const {
    Nodes roots;
    for (NavigatorNode* node : _nodes)
        if (!node->Link())
            roots.push_back(node);
    return roots;
}

void StructureGraph::Adopt(NavigatorNode* node) {
    _nodes.push_back(node);
    GetGraph()->addTree(node);
}

ZOLDMInstance StructureGraph::FirstRoot() const {
    const Nodes roots = Roots();
    return roots.empty() ? ZOLDMInstance() : roots.front()->Part();
}

void StructureGraph::ShowRoots(const ZOLListValZOLDMInstance& roots) {
    Nodes gone;
    std::unordered_set<ZOLDMInstance> present;
    for (NavigatorNode* node : Roots())
        if (roots.Locate(node->Part()) > 0)
            present.insert(node->Part());
        else
            gone.push_back(node);
    Drop(gone);
    _dropped.clear();
    for (const ZOLDMInstance& root : roots)
        if (!present.contains(root))
            Adopt(new NavigatorNode(root));
    Synchronise();
}

// Takes nodes and all below them out.
void StructureGraph::Drop(const Nodes& tops) {
    Nodes waiting = tops;
    std::unordered_set<const NavigatorNode*> gone;
    while (!waiting.empty()) {
        NavigatorNode* node = waiting.back();
        waiting.pop_back();
        const Nodes children = node->Children();
        waiting.insert(waiting.end(), children.begin(), children.end());
        gone.insert(node);
        node->RequestDelayedDestruction();
    }
    const auto isGone = [&gone](const NavigatorNode* node) { return gone.contains(node); };
    std::erase_if(_nodes, isGone);
    std::erase_if(_chosen, isGone);
    _dropped.merge(gone);
}

void StructureGraph::Synchronise() {
    Nodes read;
    for (NavigatorNode* node : _nodes)
        if (node->WasRead())
            read.push_back(node);
    ReadBranches(read);
    Refresh(_nodes);
    UpdateLayout();
    SendNotification(GetFather(), &_choiceNotification);
}

void StructureGraph::ReadBranches(const Nodes& nodes) {
    std::vector<ZOLDMInstance> parts;
    for (const NavigatorNode* node : nodes)
        parts.push_back(node->Part());
    const std::vector<LinksUnderEdit::Links> lists = LinksUnderEdit::Below(parts);
    for (std::size_t i = 0; i < nodes.size(); ++i)
        if (!_dropped.contains(nodes[i]))
            SynchroniseBranch(nodes[i], lists[i]);
    _dropped.clear(); // later nodes may stand at the same addresses
}

void StructureGraph::SynchroniseBranch(NavigatorNode* node, const std::vector<SdaiAppInstance*>& links) {
    std::unordered_map<const SdaiAppInstance*, NavigatorNode*> present;
    std::vector<SdaiAppInstance*> before;
    for (NavigatorNode* child : node->Children()) {
        present[child->Link()] = child;
        before.push_back(child->Link());
    }
    if (before == links)
        return;
    Nodes gone;
    for (SdaiAppInstance* link : before)
        if (std::find(links.begin(), links.end(), link) == links.end())
            gone.push_back(present[link]);
    Drop(gone);
    // The order of the arcs is that of the children, and a new arc comes last.
    for (ZOLGraphArc* arc : std::list<ZOLGraphArc*>(node->ChildArcs()))
        delete arc;
    for (SdaiAppInstance* link : links) {
        const auto known = present.find(link);
        NavigatorNode* child = known == present.end() ? new NavigatorNode(*link) : known->second;
        new ZOLGraphArc(node, child);
        if (known == present.end())
            Adopt(child);
        node->GetBranch() == Branch::Open ? child->show() : child->hide();
    }
}

// Texts, marks, and whether there is a branch to open.
void StructureGraph::Refresh(const Nodes& nodes) {
    std::vector<ZOLDMInstance> parts;
    std::vector<ZOLDMInstance> links;
    for (const NavigatorNode* node : nodes) {
        parts.push_back(node->Part());
        links.push_back(node->Link() ? node->Link()->GetInstance() : ZOLDMInstance());
    }
    ZOLGYRError error; // the outline is readable without
    const auto effectivities = EffectivityQuery::OfLinks(links, error);
    const std::vector<bool> haveLinks = LinksUnderEdit::HaveLinks(parts);
    const std::vector<bool> areConfigurable = ConfigurablePartQuery::Among(parts, error);
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        nodes[i]->Refresh(effectivities[i],
                          areConfigurable[i] ? StructureTree::State(parts[i]) : ZOLUnicodeString(), _edit);
        if (nodes[i]->WasRead() ? nodes[i]->nChild() == 0 : !haveLinks[i])
            nodes[i]->SetBranch(Branch::Leaf);
        else if (nodes[i]->GetBranch() == Branch::Leaf)
            nodes[i]->SetBranch(Branch::NeverOpened);
    }
}

void StructureGraph::Toggle(NavigatorNode* node) {
    if (node->GetBranch() == Branch::Open)
        Close(node);
    else
        Open({node});
    UpdateLayout();
}

void StructureGraph::Close(NavigatorNode* node) {
    if (node->GetBranch() != Branch::Open)
        return;
    node->SetBranch(Branch::Closed);
    for (NavigatorNode* child : node->Children())
        child->hide();
}

void StructureGraph::Open(const Nodes& nodes) {
    Nodes unread;
    for (NavigatorNode* node : nodes) {
        if (node->GetBranch() == Branch::NeverOpened)
            unread.push_back(node);
        if (node->GetBranch() != Branch::Leaf)
            node->SetBranch(Branch::Open);
        for (NavigatorNode* child : node->Children())
            child->show();
    }
    ReadBranches(unread);
    Nodes children;
    for (const NavigatorNode* node : unread) {
        const Nodes below = node->Children();
        children.insert(children.end(), below.begin(), below.end());
    }
    Refresh(children);
    for (NavigatorNode* node : unread)
        if (node->nChild() == 0)
            node->SetBranch(Branch::Leaf);
}

bool StructureGraph::OpenChosen(int levels) {
    Nodes level = _chosen;
    std::size_t count = 0;
    for (; levels > 0 && !level.empty() && count < MostOpened; --levels) {
        Open(level);
        Nodes below;
        for (const NavigatorNode* node : level) {
            const Nodes children = node->Children();
            below.insert(below.end(), children.begin(), children.end());
        }
        count += below.size();
        level = below;
    }
    UpdateLayout();
    return level.empty();
}

void StructureGraph::CloseChosen() {
    for (NavigatorNode* node : _chosen)
        Close(node);
    UpdateLayout();
}

} // namespace trellis
