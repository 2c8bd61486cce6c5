// ZOLCategoryGraphViewer: making the graph and choosing what it begins with.

#include "graph/ZOLCategoryGraphViewer.h"
#include "service/ZOLQRDCfgBase.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLGraphArc.h"

#include <memory>
#include <unordered_set>

void ZOLCategoryGraphViewer::BuildGraph(const ZOLListValZOLIQrdCategory_var& categories,
                                        const ZOLListValZOLQRDCfgEffectivity& terms,
                                        const ZOLListValZOLIQrdConfigItem_var& dictionaries) {
    _dictionaries = dictionaries;
    _categories.RemoveAll();
    _otherCategories.RemoveAll();
    std::unordered_set<ZOLUnicodeString> seen;
    for (const ZOLIQrdCategory_var& category : categories) {
        const bool isNew = dictionaries.Size() < 2 || seen.insert(category->GetName()).second;
        (isNew ? _categories : _otherCategories).Append(category);
    }
    BuildGraph(terms);
}

void ZOLCategoryGraphViewer::BuildGraph(const ZOLListValZOLQRDCfgEffectivity& terms) {
    ZOLDeleteElements(_current);
    DeleteNodes();
    BuildNodes();
    if (terms.Size() > 0)
        ChooseTerms(terms);
    if (_current.Size() == 0 && _ignored.Size() == 0 && !_isCheckMode)
        ChooseDefaults();
    IgnoreCategories(_ignored);
    if (_areRulesOn)
        PlayRules();
    else
        UpdateWithParameters();
    SetInitialSelection(_current, _ignored);
    SaveCurrentParameters();
    UpdateLayout();
}

// Nodes may be in the middle of their own notification, so they end with it. The items of an open menu point at them.
void ZOLCategoryGraphViewer::DeleteNodes() {
    if (_menu->IsOpen())
        _menu->Close();
    GetGraph()->removeTree(_root);
    for (ZOLCategoryNode* node : _nodes)
        node->RequestDelayedDestruction();
    _nodes.RemoveAll();
    _nodesByName.clear();
    _nodesByOption.clear();
}

void ZOLCategoryGraphViewer::BuildNodes() {
    _categories.QuickSort(&ZOLQRDCfgBase::CompareCategoryName);
    std::unordered_map<ZOLUnicodeString, ZOLListValZOLIQrdCategory_var> others;
    for (const ZOLIQrdCategory_var& category : _otherCategories)
        others[category->GetName()].Append(category);
    for (const ZOLIQrdCategory_var& category : _categories) {
        ZOLListValZOLIQrdCategory_var same;
        same.Append(category);
        if (const auto found = others.find(category->GetName()); found != others.end())
            same.Append(found->second);
        auto* node = new ZOLCategoryNode(same, _isAdvanced, 1);
        if (_forcedExclusivity != -1)
            node->SetExclusivity(_forcedExclusivity);
        AddCategoryNode(node);
    }
    GetGraph()->addTree(_root);
}

void ZOLCategoryGraphViewer::AddCategoryNode(ZOLCategoryNode* node) {
    _nodes.Append(node);
    new ZOLGraphArc(_root, node); // belongs to its ends
    _nodesByName.emplace(node->GetCategoryName(), node);
    for (const ZOLOptionNode* option : node->GetOptionNodes())
        _nodesByOption.emplace(option->GetOptionName(), node);
}

// The rules take the exclusivity of a category from its parameters.
std::unique_ptr<ZOLParameter> ZOLCategoryGraphViewer::ParameterOf(const ZOLQRDCfgEffectivity& term,
                                                                  const ZOLUnicodeString& category,
                                                                  const ZOLCategoryNode* node,
                                                                  const CategoriesByOption& outOfSight) {
    const auto stored = outOfSight.find(term.GetOptionName());
    const bool isOutOfSight = category.IsEmpty() && stored != outOfSight.end();
    auto parameter = std::make_unique<ZOLParameter>(isOutOfSight ? stored->second->GetName() : category,
                                                    term.GetOptionName(), term.IsRejected());
    parameter->SetParameterSource(term.IsRuleDefined() ? ZOLParameter::SourceRule : ZOLParameter::SourceUser);
    if (node)
        parameter->SetCategoryExclusivity(node->GetExclusivity());
    else if (stored != outOfSight.end())
        parameter->SetCategoryExclusivity(stored->second->GetExclusivity());
    return parameter;
}

ZOLCategoryGraphViewer::CategoriesByOption ZOLCategoryGraphViewer::CategoriesOutOfSight() const {
    CategoriesByOption categories;
    for (const ZOLIQrdCategory_var& category : AllCategories()) {
        if (NodeOfCategory(category->GetName()))
            continue;
        ZOLListValZOLIQrdEffectivity_var options;
        category->GetOptions(options);
        for (const ZOLIQrdEffectivity_var& option : options)
            categories.emplace(option->GetOption(), category);
    }
    return categories;
}

void ZOLCategoryGraphViewer::ChooseTerms(const ZOLListValZOLQRDCfgEffectivity& terms) {
    std::unordered_set<ZOLUnicodeString> told;
    const CategoriesByOption outOfSight = CategoriesOutOfSight();
    for (const ZOLQRDCfgEffectivity& term : terms) {
        const ZOLCategoryNode* node = NodeWithOption(term.GetOptionName());
        const ZOLUnicodeString category = node ? node->GetCategoryName() : ZOLUnicodeString();
        told.insert(category);
        if (term.IsIgnored()) {
            // One of a category that is not shown must not turn into a choice.
            if (node)
                _ignored.Append(category);
        } else if (!term.IsUndefined()) {
            _current.Append(ParameterOf(term, category, node, outOfSight).release());
        }
    }
    for (const ZOLCategoryNode* node : _nodes)
        if (_isAdvanced && !node->GetMandatory() && !told.contains(node->GetCategoryName()))
            _ignored.Append(node->GetCategoryName());
    _ignored.RemoveDuplicates(); // there is a term for every option of a category
}

void ZOLCategoryGraphViewer::ChooseDefaults() {
    for (const ZOLIQrdCategory_var& category : _categories)
        ChooseDefaultsOf(category);
}

void ZOLCategoryGraphViewer::ChooseDefaultsOf(const ZOLIQrdCategory_var& category) {
    ZOLListValZOLIQrdEffectivity_var defaults;
    category->GetDefaultOptions(defaults);
    for (const ZOLIQrdEffectivity_var& option : defaults) {
        auto* parameter = new ZOLParameter(category->GetName(), option->GetOption(), 0);
        parameter->SetCategoryExclusivity(category->GetExclusivity());
        parameter->SetParameterSource(ZOLParameter::SourceUser);
        AddUserSelectedToCurrent(parameter);
    }
    if (_isAdvanced && defaults.Size() == 0 && !category->GetMandatory())
        _ignored.Append(category->GetName());
}

void ZOLCategoryGraphViewer::IgnoreCategories(const ZOLListValZOLUnicodeString& names) {
    if (!_isAdvanced)
        return;
    const std::unordered_set<ZOLUnicodeString> ignored(names.begin(), names.end());
    for (ZOLCategoryNode* node : _nodes)
        ignored.contains(node->GetCategoryName()) ? node->SetIgnored(0) : node->UnsetIgnored();
}

void ZOLCategoryGraphViewer::SetInitialSelection(const ZOLListPtrZOLParameter& parameters,
                                                 const ZOLListValZOLUnicodeString& ignored) {
    if (_hasInitial)
        return;
    _hasInitial = true;
    _initial.parameters.clear();
    for (const ZOLParameter* parameter : parameters)
        _initial.parameters.push_back(*parameter);
    _initial.ignoredCategories = ignored;
}

void ZOLCategoryGraphViewer::ClearAll(const int ignore) {
    _ignored.RemoveAll();
    for (ZOLCategoryNode* node : _nodes) {
        node->ClearDefined();
        node->ClearConflicts();
        if (!ignore)
            continue;
        node->SetIgnored(0);
        _ignored.Append(node->GetCategoryName());
    }
    UpdateRootNodeColor(0);
    ZOLDeleteElements(_current);
    SaveCurrentParameters();
    TellShown();
}

void ZOLCategoryGraphViewer::ClearRuleDefined() {
    for (ZOLCategoryNode* node : _nodes)
        node->ClearRuleDefined();
    UpdateRootNodeColor(0);
    RemoveRuleDefinedFromCurrent();
    TellShown();
}

void ZOLCategoryGraphViewer::ResetAll() {
    for (ZOLCategoryNode* node : _nodes)
        node->ClearDefined();
    ZOLDeleteElements(_current);
    for (const ZOLParameter& parameter : _initial.parameters)
        _current.Append(new ZOLParameter(parameter));
    _ignored = _initial.ignoredCategories;
    IgnoreCategories(_ignored);
    PlayOrUpdate();
    SaveCurrentParameters();
}

void ZOLCategoryGraphViewer::ResetDefault() {
    for (ZOLCategoryNode* node : _nodes)
        node->ClearDefined();
    ZOLDeleteElements(_current);
    _ignored.RemoveAll();
    if (!_isCheckMode)
        ChooseDefaults();
    IgnoreCategories(_ignored);
    PlayOrUpdate();
    SaveCurrentParameters();
}
