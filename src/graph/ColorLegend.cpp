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
    bool isHighlighted = false;
    bool isPressed = false;
};

namespace {

constexpr int Width = 351;
constexpr int Height = 137;

} // namespace

ZOLGraphViewer* ColorLegend::AddGraph(ZOLDialog* frame, const char* label, const char* name) {
    new ZOLDlgLabel(frame, label);
    auto* graph = new ZOLGraphViewer(frame, name, 0x80000, Width, Height, 0);
    graph->defineEventManagement(0);
    return graph;
}

void ColorLegend::AddNode(ZOLGraphViewer& graph, const Look& look) {
    ZOLUnicodeString text;
    _dialog.GetResourceValueFromKey(_isAdvanced ? look.advancedKey : look.simpleKey, text);
    auto* node = new ZOLGraphNode(text, "");
    node->setColor(look.colour);
    node->setHighlight(look.isHighlighted);
    if (look.isPressed)
        node->setShadowIn();
    graph.add(node);
}

void ColorLegend::Build() {
    namespace Colours = GraphColours;
    static const Look categories[] = {
        {"LegendUnselectedCategory.Title", "LegendRejectedCategory.Title", Colours::Plain},
        {"LegendSelectedCategory.Title", "LegendSelectUndefCategory.Title", Colours::Decided},
        {"LegendNoSelMandatoryCategory.Title", "LegendIgnoredMandatoryCategory.Title", Colours::Missing},
        {"LegendIrresolCategory.Title", "LegendIrresolCategory.Title", Colours::Irresolution},
        {"LegendConflictCategory.Title", "LegendConflictCategory.Title", Colours::Conflict},
    };
    static const Look options[] = {
        {"LegendIgnoredOption.Title", "LegendIgnoredOption.Title", Colours::Ignored},
        {"LegendUndefinedOption.Title", "LegendUndefinedOption.Title", Colours::PlainOption},
        {"LegendUnselectedOption.Title", "LegendUnselectedOption.Title", Colours::PlainOption},
        {"LegendUserSelectedOption.Title", "LegendUserSelectedOption.Title", Colours::PlainOption, true,
         true},
        {"LegendRuleSelectedOption.Title", "LegendRuleSelectedOption.Title", Colours::RuleSelected, false,
         true},
        {"LegendUserRejectedOption.Title", "LegendUserRejectedOption.Title", Colours::UserRejected},
        {"LegendRuleRejectedOption.Title", "LegendRuleRejectedOption.Title", Colours::RuleRejected},
    };
    auto* frame = new ZOLDlgFrame(&_dialog, "LegendFrame", 0x80000);
    ZOLGraphViewer* ofCategories = AddGraph(frame, "CategoryLabel", "LegendCategGraph");
    for (const Look& look : categories)
        AddNode(*ofCategories, look);
    ZOLGraphViewer* ofOptions = AddGraph(frame, "OptionLabel", "LegendGraph");
    for (const Look& look : options)
        AddNode(*ofOptions, look);
}

} // namespace trellis
