#include "navigator/StructureGraph.h"

#include <algorithm>

// What the user chooses in the outline, and looks for.

namespace trellis {

namespace {

using Nodes = StructureGraph::Nodes;

NavigatorNode* NodeOf(ZOLNotification* notification) {
    auto* graphNotification = dynamic_cast<ZOLGraphNotification*>(notification);
    return graphNotification ? dynamic_cast<NavigatorNode*>(graphNotification->GetNode()) : nullptr;
}

ZOLUnicodeString Folded(ZOLUnicodeString text) {
    text.ToUpper();
    return text;
}

bool Holds(const Nodes& nodes, const NavigatorNode* node) {
    return std::find(nodes.begin(), nodes.end(), node) != nodes.end();
}

} // namespace

std::vector<ZOLDMInstance> StructureGraph::Chosen() const {
    std::vector<ZOLDMInstance> parts;
    for (const NavigatorNode* node : _chosen)
        if (std::find(parts.begin(), parts.end(), node->Part()) == parts.end())
            parts.push_back(node->Part());
    return parts;
}

void StructureGraph::Choose(const Nodes& nodes) {
    for (NavigatorNode* chosen : _chosen)
        chosen->setHighlight(0);
    _chosen = nodes;
    for (NavigatorNode* chosen : _chosen)
        chosen->setHighlight(1);
    update();
    SendNotification(GetFather(), &_choiceNotification);
}

void StructureGraph::ChooseLinks(const std::vector<SdaiAppInstance*>& links) {
    Nodes nodes;
    for (SdaiAppInstance* link : links)
        for (NavigatorNode* node : _nodes)
            if (node->Link() == link && nodes.size() < links.size())
                nodes.push_back(node);
    if (nodes.empty())
        return;
    Choose(nodes);
    reveal(nodes.back());
}

void StructureGraph::SelectCB(ZOLCommand*, ZOLNotification* notification, void*) {
    NavigatorNode* node = NodeOf(notification);
    if (!node)
        return;
    const bool wasChosen = _chosen.size() == 1 && _chosen.front() == node;
    if (!wasChosen)
        Choose({node});
    if (wasChosen || node->GetBranch() != NavigatorNode::Branch::Open)
        Toggle(node);
}

void StructureGraph::ExtendCB(ZOLCommand*, ZOLNotification* notification, void*) {
    NavigatorNode* node = NodeOf(notification);
    if (!node)
        return;
    Nodes chosen = _chosen;
    if (std::erase(chosen, node) == 0)
        chosen.push_back(node);
    Choose(chosen);
}

// A context gesture on a part that is not chosen means that part; the menu itself is built by the window.
void StructureGraph::ContextCB(ZOLCommand*, ZOLNotification* notification, void*) {
    NavigatorNode* node = NodeOf(notification);
    if (node && !Holds(_chosen, node))
        Choose({node});
    SendNotification(GetFather(), notification);
}

// All nodes that are on the screen, row by row.
Nodes StructureGraph::Outline() const {
    Nodes rows;
    Nodes waiting = Roots();
    std::reverse(waiting.begin(), waiting.end());
    while (!waiting.empty()) {
        NavigatorNode* node = waiting.back();
        waiting.pop_back();
        rows.push_back(node);
        if (node->GetBranch() != NavigatorNode::Branch::Open)
            continue;
        const Nodes children = node->Children();
        waiting.insert(waiting.end(), children.rbegin(), children.rend());
    }
    return rows;
}

bool StructureGraph::ChooseNext(const ZOLUnicodeString& text, Direction direction) {
    const ZOLUnicodeString wanted = Folded(text);
    Nodes rows = Outline();
    if (direction == Direction::Back)
        std::reverse(rows.begin(), rows.end());
    const auto chosen = _chosen.empty() ? rows.end() : std::find(rows.begin(), rows.end(), _chosen.back());
    if (chosen != rows.end())
        std::rotate(rows.begin(), chosen + 1, rows.end());
    for (NavigatorNode* node : rows)
        if (Folded(node->getText()).SearchSubString(wanted, 0) >= 0) {
            Choose({node});
            reveal(node);
            return true;
        }
    return false;
}

} // namespace trellis
