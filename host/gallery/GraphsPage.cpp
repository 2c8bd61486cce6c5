#include "gallery/GraphsPage.h"

#include "toolkit/GraphPalette.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSplitter.h"
#include "toolkit/ZOLGraphArc.h"

#include <array>

namespace trellis {

namespace {

constexpr int ViewerWidth = 380;
constexpr int ViewerHeight = 340;
constexpr int DepthMargin = 60; // wide enough to see the line of an arc
const char* const OpenBranch = "diropen.rgb";
const char* const ClosedBranch = "dirclose.rgb";

constexpr std::array GraphNews = {"ZOLNodeSelectNotification", "ZOLNodeExtSelectNotification",
                                  "ZOLNodeContextNotification", "ZOLGraphSelectNotification",
                                  "ZOLGraphContextNotification"};

// Those that mean something, by their number in the palette.
constexpr std::array Colours = {1, 6, 46, 7, 2, 112, 12, 254, 4, 66};

// A look of nodes or arcs: its text, and what brings it about.
template <class Element>
struct Look {
    const char* key;
    void (*apply)(Element&);
};

constexpr std::array<Look<ZOLGraphNode>, 7> NodeLooks = {{
    {"Node.Plain", [](ZOLGraphNode&) {}},
    {"Node.Highlight", [](ZOLGraphNode& node) { node.setHighlight(1); }},
    {"Node.ShadowIn", [](ZOLGraphNode& node) { node.setShadowIn(); }},
    {"Node.Current", [](ZOLGraphNode& node) { node.setCurrent(1); }},
    {"Node.Pixmap", [](ZOLGraphNode& node) { node.setPixmap(OpenBranch); }},
    {"Node.WithoutFrame", [](ZOLGraphNode& node) { node.setDecorationVisibility(0); }},
    {"Node.TwoLines", [](ZOLGraphNode&) {}},
}};

constexpr std::array OptionMarks = {NodeMark::Undecided,      NodeMark::ChosenByUser,
                                    NodeMark::ChosenByRule,   NodeMark::RejectedByUser,
                                    NodeMark::RejectedByRule, NodeMark::Ignored};
constexpr std::array GroupMarks = {NodeMark::Decided, NodeMark::Missing, NodeMark::Ignored};

constexpr int RejectedLine = 2;
constexpr int Red = 4;

constexpr std::array<Look<ZOLGraphArc>, 4> ArcLooks = {{
    {"Arc.Plain", [](ZOLGraphArc&) {}},
    {"Arc.Rejected", [](ZOLGraphArc& arc) { arc.setLineType(RejectedLine); }},
    {"Arc.Coloured", [](ZOLGraphArc& arc) { arc.setColor(Red); }},
    {"Arc.Highlighted", [](ZOLGraphArc& arc) { arc.setHighlight(1); }},
}};

ZOLGraphNode* NodeOf(const ZOLNotification& notification) {
    return static_cast<const ZOLGraphNotification&>(notification).GetNode();
}

void HideBelow(ZOLGraphNode& node) {
    for (const ZOLGraphArc* arc : node.ChildArcs()) {
        arc->GetChild()->hide();
        HideBelow(*arc->GetChild());
    }
    if (node.nChild() > 0)
        node.setPixmap(ClosedBranch);
}

void ShowBelow(ZOLGraphNode& node) {
    for (const ZOLGraphArc* arc : node.ChildArcs())
        arc->GetChild()->show();
    if (node.nChild() > 0)
        node.setPixmap(OpenBranch);
}

} // namespace

void GraphsPage::Build(ZOLDlgFrame* holder) {
    auto* splitter = new ZOLDlgSplitter(holder, "GraphSplitter");
    splitter->SetDefaultOrientation(1);
    ZOLGraphViewer* outline = AddViewer(AddGrowingFrame(splitter, "OutlineFrame"), "Outline");
    outline->GetGraph()->setHorizontalIndented();
    outline->GetGraph()->setPacked();
    BuildOutline(*outline);
    AddAnalyseNotificationCB(outline, GraphNews[0], ZOL_CALLBACK(&GraphsPage::BranchCB));

    ZOLGraphViewer* network = AddViewer(AddGrowingFrame(splitter, "NetworkFrame"), "Network");
    network->GetGraph()->setHorizontalBottom();
    network->GetGraph()->setPacked();
    network->GetGraph()->setWithSquareArc();
    network->GetGraph()->setDepthMargin(DepthMargin);
    for (ZOLGraphNode* root : {BuildArcs(), BuildLooks(), BuildColours(), BuildMarks()})
        network->GetGraph()->addTree(root);
}

ZOLGraphViewer* GraphsPage::AddViewer(ZOLDialog* frame, const char* name) {
    auto* viewer = new ZOLGraphViewer(frame, name, 0, ViewerWidth, ViewerHeight, 0);
    viewer->setBoundedViewpoint();
    viewer->setAnchoredViewpoint();
    new ZOLDlgContextualMenu(viewer, "GraphMenu");
    AddExample(viewer, [=] {
        if (ZOLGraphNode* root = viewer->GetGraph()->firstNode())
            viewer->centre(root);
    });
    for (const char* news : GraphNews)
        Log(viewer, news, [](const ZOLNotification& notification) {
            const ZOLGraphNode* node = NodeOf(notification);
            return node ? node->firstLine() : ZOLUnicodeString();
        });
    AddAnalyseNotificationCB(viewer, "ZOLNodeContextNotification", ZOL_CALLBACK(&GraphsPage::MenuCB));
    return viewer;
}

ZOLGraphNode* GraphsPage::AddNode(ZOLGraphNode* parent, const ZOLUnicodeString& text) {
    _nodes.push_back(std::make_unique<ZOLGraphNode>(text, " "));
    if (parent)
        new ZOLGraphArc(parent, _nodes.back().get());
    return _nodes.back().get();
}

void GraphsPage::BuildOutline(ZOLGraphViewer& viewer) {
    constexpr int Branches = 5;
    constexpr int Leaves = 4;
    const auto text = [this](const char* key, int number) {
        ZOLUnicodeString filled;
        GetResourceValueFromKey(key, filled, {ZOLUnicodeString::FromNumber(number)});
        return filled;
    };
    ZOLGraphNode* root = AddNode(nullptr, Text("Outline.Root"));
    for (int branch = 1; branch <= Branches; ++branch) {
        ZOLGraphNode* assembly = AddNode(root, text("Outline.Branch", branch));
        for (int leaf = 1; leaf <= Leaves; ++leaf)
            AddNode(assembly, text("Outline.Leaf", branch * 10 + leaf));
        if (branch > 1)
            HideBelow(*assembly);
        else
            ShowBelow(*assembly);
    }
    root->setPixmap(OpenBranch);
    viewer.GetGraph()->addTree(root);
}

ZOLGraphNode* GraphsPage::BuildColours() {
    ZOLGraphNode* root = AddNode(nullptr, Text("Network.Colours"));
    for (const int colour : Colours)
        AddNode(root, GraphPalette::At(colour).name)->setColor(colour);
    return root;
}

ZOLGraphNode* GraphsPage::BuildLooks() {
    ZOLGraphNode* root = AddNode(nullptr, Text("Network.Looks"));
    for (const Look<ZOLGraphNode>& look : NodeLooks)
        look.apply(*AddNode(root, Text(look.key)));
    return root;
}

// Those of groups stand behind a text, which needs a pixmap before it.
ZOLGraphNode* GraphsPage::BuildMarks() {
    ZOLGraphNode* root = AddNode(nullptr, Text("Network.Marks"));
    for (const NodeMark mark : OptionMarks)
        AddNode(root, WordsFor(mark))->setMark(mark);
    for (const NodeMark mark : GroupMarks) {
        ZOLGraphNode* group = AddNode(root, WordsFor(mark));
        group->setPixmap(OpenBranch);
        group->setMark(mark);
    }
    for (const NodeAlert alert : {NodeAlert::Irresolution, NodeAlert::Conflict})
        AddNode(root, WordsFor(alert))->setMark(NodeMark::Undecided, alert);
    return root;
}

ZOLGraphNode* GraphsPage::BuildArcs() {
    ZOLGraphNode* root = AddNode(nullptr, Text("Network.Arcs"));
    for (const Look<ZOLGraphArc>& look : ArcLooks)
        look.apply(*AddNode(root, Text(look.key))->firstArcParent());
    return root;
}

void GraphsPage::BranchCB(ZOLCommand*, ZOLNotification* notification, void*) {
    ZOLGraphNode& node = *NodeOf(*notification);
    if (node.getPixmap() == OpenBranch)
        HideBelow(node);
    else
        ShowBelow(node);
}

void GraphsPage::MenuCB(ZOLCommand* viewer, ZOLNotification* notification, void*) {
    for (ZOLDialog* child : static_cast<ZOLGraphViewer*>(viewer)->GetChildren()) {
        auto* item = new ZOLDlgPushItem(child, "NodeItem");
        const ZOLUnicodeString node = NodeOf(*notification)->firstLine();
        Log(item, item->GetMenuIActivateNotification(), [=](const ZOLNotification&) { return node; });
    }
}

} // namespace trellis
