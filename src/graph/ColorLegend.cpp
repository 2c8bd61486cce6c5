#include "graph/ColorLegend.h"

#include "graph/GraphColours.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLGraphViewer.h"

namespace trellis {

struct ColorLegend::Look {
    const char* simpleKey;
    const char* advancedKey;
    int colour;
    NodeMark mark;
    NodeAlert alert = NodeAlert::None;
    bool isHighlighted = false;
    bool isPressed = false;
};

namespace {

constexpr int Width = 351;
constexpr int Height = 137;

// A graph owns no node; this one ends with those that it was given.
class LegendGraph : public ZOLGraphViewer {
public:
    using ZOLGraphViewer::ZOLGraphViewer;
    ~LegendGraph() override {
        while (ZOLGraphNode* node = GetGraph()->firstNode())
            delete node;
    }
};

} // namespace

ZOLGraphViewer* ColorLegend::AddGraph(ZOLDialog* frame, const char* label, const char* name) {
    new ZOLDlgLabel(frame, label);
    auto* graph = new LegendGraph(frame, name, 0x80000, Width, Height, 0);
    graph->defineEventManagement(0);
    return graph;
}

// What has a pixmap is a category. In advanced mode one without a choice is an ignored one.
void ColorLegend::AddNode(ZOLGraphViewer& graph, const Look& look, const char* pixmap) {
    ZOLUnicodeString text;
    _dialog.GetResourceValueFromKey(_isAdvanced ? look.advancedKey : look.simpleKey, text);
    auto* node = new ZOLGraphNode(text, pixmap);
    node->setColor(look.colour);
    node->setMark(_isAdvanced && look.mark == NodeMark::Missing ? NodeMark::Ignored : look.mark, look.alert);
    node->setHighlight(look.isHighlighted);
    if (look.isPressed)
        node->setShadowIn();
    graph.add(node);
}

void ColorLegend::Build() {
    namespace Colours = GraphColours;
    static const Look categories[] = {
        {"LegendUnselectedCategory.Title", "LegendRejectedCategory.Title", Colours::Plain,
         NodeMark::Undecided},
        {"LegendSelectedCategory.Title", "LegendSelectUndefCategory.Title", Colours::Decided,
         NodeMark::Decided},
        {"LegendNoSelMandatoryCategory.Title", "LegendIgnoredMandatoryCategory.Title", Colours::Missing,
         NodeMark::Missing},
        {"LegendIrresolCategory.Title", "LegendIrresolCategory.Title", Colours::Irresolution,
         NodeMark::Undecided, NodeAlert::Irresolution},
        {"LegendConflictCategory.Title", "LegendConflictCategory.Title", Colours::Conflict,
         NodeMark::Undecided, NodeAlert::Conflict},
    };
    static const Look options[] = {
        {"LegendIgnoredOption.Title", "LegendIgnoredOption.Title", Colours::Ignored, NodeMark::Ignored},
        {"LegendUndefinedOption.Title", "LegendUndefinedOption.Title", Colours::PlainOption,
         NodeMark::Undecided},
        {"LegendUnselectedOption.Title", "LegendUnselectedOption.Title", Colours::PlainOption,
         NodeMark::Undecided},
        {"LegendUserSelectedOption.Title", "LegendUserSelectedOption.Title", Colours::PlainOption,
         NodeMark::ChosenByUser, NodeAlert::None, true, true},
        {"LegendRuleSelectedOption.Title", "LegendRuleSelectedOption.Title", Colours::RuleSelected,
         NodeMark::ChosenByRule, NodeAlert::None, false, true},
        {"LegendUserRejectedOption.Title", "LegendUserRejectedOption.Title", Colours::UserRejected,
         NodeMark::RejectedByUser},
        {"LegendRuleRejectedOption.Title", "LegendRuleRejectedOption.Title", Colours::RuleRejected,
         NodeMark::RejectedByRule},
    };
    auto* frame = new ZOLDlgFrame(&_dialog, "LegendFrame", 0x80000);
    ZOLGraphViewer* ofCategories = AddGraph(frame, "CategoryLabel", "LegendCategGraph");
    for (const Look& look : categories)
        AddNode(*ofCategories, look, "diropen.rgb");
    ZOLGraphViewer* ofOptions = AddGraph(frame, "OptionLabel", "LegendGraph");
    for (const Look& look : options)
        AddNode(*ofOptions, look, "");
}

} // namespace trellis
