#include "graph/ZOLCategoryGraphViewer.h"

#include "graph/GraphColours.h"
#include "service/ZOLQRDCfgBase.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLGraphArc.h"

namespace {

constexpr unsigned long ViewerStyle = 0x80000;
constexpr int FixedSize = 4;
constexpr const char* OpenPixmap = "diropen.rgb";
constexpr const char* ClosedPixmap = "dirclose.rgb";

namespace Colours = trellis::GraphColours;

} // namespace

ZOLCategoryGraphViewer::ZOLCategoryGraphViewer(ZOLDialog* parent, const ZOLString& name,
                                               const ZOLUnicodeString rootText, const int advanced,
                                               const int width, const int height, const int flag)
    : ZOLGraphViewer(parent, name, ViewerStyle, width, height, flag ? FixedSize : 0),
      _root(new ZOLGraphNode(rootText, OpenPixmap)),
      _menu(new ZOLDlgContextualMenu(this, "ContextualMenu")),
      _isAdvanced(advanced),
      _selectionShownNotification("SelectionShownNotification") {
    _root->setColor(Colours::Plain);
    ZOLGraph* graph = GetGraph();
    graph->setPacked();
    graph->setWidthMargin(1);
    graph->setDepthMargin(10);
    graph->setWithSquareArc();
    for (const char* notification : {"ZOLNodeSelectNotification", "ZOLGraphSelectNotification"})
        AddAnalyseNotificationCB(this, notification, ZOL_CALLBACK(&ZOLCategoryGraphViewer::ElemSelected));
    for (const char* notification : {"ZOLNodeContextNotification", "ZOLGraphContextNotification"})
        AddAnalyseNotificationCB(this, notification, ZOL_CALLBACK(&ZOLCategoryGraphViewer::ElemContext));
    ResetSavedParameters();
}

ZOLCategoryGraphViewer::~ZOLCategoryGraphViewer() {
    ZOLDeleteElements(_current);
    GetGraph()->removeTree(_root);
    ZOLDeleteElements(_nodes);
    delete _root;
}

ZOLString ZOLCategoryGraphViewer::GetResourceFilename(int level) const {
    return level == 0 ? "ZOLCategoryGraphViewer" : ZOLGraphViewer::GetResourceFilename(level - 1);
}

void ZOLCategoryGraphViewer::RulesOn(const int update) {
    _areRulesOn = 1;
    if (!update)
        return;
    PlayRules();
    UpdateLayout();
}

void ZOLCategoryGraphViewer::RulesOff(const int update) {
    _areRulesOn = 0;
    if (!update)
        return;
    ClearConflicts();
    UpdateWithParameters();
    UpdateLayout();
}

void ZOLCategoryGraphViewer::RulesCheckMode(const int update) {
    _isCheckMode = 1;
    if (!update)
        return;
    ClearRuleDefined();
    if (_areRulesOn)
        PlayRules();
}

void ZOLCategoryGraphViewer::RulesSelectMode(const int update) {
    _isCheckMode = 0;
    if (update && _areRulesOn)
        PlayRules();
}

void ZOLCategoryGraphViewer::AllExclusivityOn() {
    _forcedExclusivity = 1;
    for (ZOLCategoryNode* node : _nodes)
        node->SetExclusivity(1);
}

void ZOLCategoryGraphViewer::AllExclusivityOff() {
    _forcedExclusivity = 0;
    for (ZOLCategoryNode* node : _nodes)
        node->SetExclusivity(0);
}

void ZOLCategoryGraphViewer::ExpandAll() {
    _root->setPixmap(OpenPixmap);
    for (ZOLCategoryNode* node : _nodes)
        node->Open();
    _isExpanded = 1;
    doLayout();
}

void ZOLCategoryGraphViewer::CollapseAll() {
    _root->setPixmap(ClosedPixmap);
    for (ZOLCategoryNode* node : _nodes)
        node->Close();
    _isExpanded = 0;
    doLayout();
}

ZOLIQrdConfigItem_var ZOLCategoryGraphViewer::GetDictionary() const {
    return _dictionaries.Size() == 0 ? ZOLIQrdConfigItem_var() : _dictionaries[1];
}

int ZOLCategoryGraphViewer::GetCategories(ZOLListValZOLIQrdCategory_var& categories,
                                          const int withOthers) const {
    categories = _categories;
    if (!withOthers || _otherCategories.Size() == 0)
        return 0;
    categories.Append(_otherCategories);
    return _categories.Size() + 1;
}

ZOLNotification* ZOLCategoryGraphViewer::GetSelectOptionNotification() {
    return _root->GetSelectNotification();
}

int ZOLCategoryGraphViewer::AllMandatoryCategoriesSelected() const {
    return _current.Size() == 0 || _root->getColor() != Colours::Missing;
}

ZOLCategoryNode* ZOLCategoryGraphViewer::NodeOfCategory(const ZOLUnicodeString& name) const {
    const auto found = _nodesByName.find(name);
    return found == _nodesByName.end() ? nullptr : found->second;
}

ZOLCategoryNode* ZOLCategoryGraphViewer::NodeWithOption(const ZOLUnicodeString& option) const {
    const auto found = _nodesByOption.find(option);
    return found == _nodesByOption.end() ? nullptr : found->second;
}

ZOLCategoryNode* ZOLCategoryGraphViewer::NodeOfTerm(const ZOLQRDCfgEffectivity& term) const {
    return term.GetCategory().IsEmpty() ? NodeWithOption(term.GetOptionName())
                                        : NodeOfCategory(term.GetCategory());
}

void ZOLCategoryGraphViewer::SetHighlighted(const ZOLListValZOLQRDCfgEffectivity& terms, const int centre) {
    for (int i = 1; i <= terms.Size(); ++i) {
        const ZOLCategoryNode* category = NodeOfTerm(terms[i]);
        ZOLOptionNode* option = category ? category->GetOptionNode(terms[i].GetOptionName()) : nullptr;
        if (!option)
            continue;
        if (i == centre)
            ZOLGraphViewer::centre(option);
        option->Highlight();
    }
}

void ZOLCategoryGraphViewer::UnHighlightAll() {
    for (ZOLCategoryNode* node : _nodes)
        node->UnHighlightAll();
}

void ZOLCategoryGraphViewer::SetCentered(const ZOLQRDCfgEffectivity& term) {
    const ZOLCategoryNode* category = NodeOfTerm(term);
    if (ZOLOptionNode* option = category ? category->GetOptionNode(term.GetOptionName()) : nullptr)
        centre(option);
}

void ZOLCategoryGraphViewer::UpdateRootNodeState() {
    _isExpanded = 0;
    for (const ZOLCategoryNode* node : _nodes)
        if (node->IsOpen())
            _isExpanded = 1;
    _root->setPixmap(_isExpanded ? OpenPixmap : ClosedPixmap);
}

void ZOLCategoryGraphViewer::UpdateRootNodeColor(const int conflict) {
    bool hasConflict = conflict != 0;
    bool hasIrresolution = false;
    bool hasMissing = false;
    int decided = 0;
    for (const ZOLCategoryNode* node : _nodes) {
        if (hasConflict)
            break;
        const int color = node->getColor();
        hasConflict = color == Colours::Conflict;
        hasIrresolution = hasIrresolution || color == Colours::Irresolution;
        hasMissing = hasMissing || color == Colours::Missing;
        decided += color == Colours::Decided;
    }
    const bool isDecided = decided == _nodes.Size();
    _root->setColor(hasConflict       ? Colours::Conflict
                    : hasIrresolution ? Colours::Irresolution
                    : hasMissing      ? Colours::Missing
                    : isDecided       ? Colours::Decided
                                      : Colours::Plain);
    UpdateLayout();
}
