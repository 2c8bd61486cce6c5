// ZOLCategoryGraphViewer: the selection: taking it over, telling it, playing the rules on it, and undo.

#include "graph/ZOLCategoryGraphViewer.h"
#include "service/ZOLQRDCfgManager.h"
#include "service/ZOLRuleHandler.h"
#include "toolkit/ZOLInteractiveApplication.h"
#include "values/ZOLGYRError.h"

#include <iostream>
#include <memory>
#include <unordered_set>

namespace {

// Finds equal parameters among others that live elsewhere.
struct ByContent {
    std::size_t operator()(const ZOLParameter* parameter) const {
        constexpr std::size_t odd = 31;
        return std::hash<ZOLUnicodeString>{}(parameter->GetOption()) * odd +
               std::hash<ZOLUnicodeString>{}(parameter->GetCategory()) +
               static_cast<std::size_t>(parameter->IsNot());
    }
    bool operator()(const ZOLParameter* a, const ZOLParameter* b) const { return *a == *b; }
};
using ParameterSet = std::unordered_set<const ZOLParameter*, ByContent, ByContent>;

// Each node gets the parameters of its own category alone: the whole list for each would be compared a thousand times.
std::unordered_map<ZOLUnicodeString, ZOLListPtrZOLParameter>
ByCategory(const ZOLListPtrZOLParameter& parameters) {
    std::unordered_map<ZOLUnicodeString, ZOLListPtrZOLParameter> grouped;
    for (ZOLParameter* parameter : parameters)
        grouped[parameter->GetCategory()].Append(parameter);
    return grouped;
}

} // namespace

void ZOLCategoryGraphViewer::SetSelected(const ZOLListValZOLQRDCfgEffectivity& terms, const int centre,
                                         const int resetSaved) {
    if (resetSaved)
        ResetSavedParameters();
    const ParameterSet known(_current.begin(), _current.end());
    const CategoriesByOption outOfSight = CategoriesOutOfSight();
    for (const ZOLQRDCfgEffectivity& term : terms) {
        if (term.IsUndefined() || term.IsIgnored())
            continue;
        const ZOLCategoryNode* node = NodeOfTerm(term);
        const ZOLUnicodeString category = !term.GetCategory().IsEmpty() ? term.GetCategory()
                                          : node                        ? node->GetCategoryName()
                                                                        : ZOLUnicodeString();
        auto parameter = ParameterOf(term, category, node, outOfSight);
        if (!known.contains(parameter.get()))
            _current.Append(parameter.release());
    }
    PlayOrUpdate();
    SaveCurrentParameters();
    if (centre > 0 && centre <= terms.Size())
        SetCentered(terms[centre]);
}

void ZOLCategoryGraphViewer::SetSelected(const ZOLListPtrZOLParameter& parameters, const int resetSaved) {
    if (resetSaved)
        ResetSavedParameters();
    SetCurrent(parameters);
    PlayOrUpdate();
    SaveCurrentParameters();
}

void ZOLCategoryGraphViewer::ChooseInstead(const ZOLListPtrZOLParameter& parameters,
                                           const ZOLListValZOLUnicodeString& ignored) {
    if (_isAdvanced) {
        _ignored = ignored;
        IgnoreCategories(_ignored);
    }
    SetSelected(parameters, 0);
}

ZOLListValZOLIQrdCategory_var ZOLCategoryGraphViewer::AllCategories() const {
    ZOLListValZOLIQrdCategory_var all;
    ZOLGYRError error;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    for (int i = 1; manager && i <= _dictionaries.Size(); ++i) {
        ZOLListValZOLIQrdCategory_var categories;
        manager->GetCategoriesFromDictionary(_dictionaries[i], categories);
        all.Append(categories);
    }
    return all;
}

ZOLListValZOLQRDCfgEffectivity ZOLCategoryGraphViewer::GetOptions(const int withOthers) const {
    ZOLListValZOLQRDCfgEffectivity terms;
    ZOLListValZOLIQrdCategory_var categories;
    if (withOthers)
        GetCategories(categories, 1);
    else
        categories = AllCategories();
    if (_ignored.Size() == categories.Size())
        return terms;
    const bool isMerging = _otherCategories.Size() > 0 || _dictionaries.Size() >= 2;
    std::unordered_map<ZOLUnicodeString, const ZOLParameter*> chosen; // the first of each option name
    for (const ZOLParameter* parameter : _current)
        chosen.emplace(parameter->GetOption(), parameter);
    const std::unordered_set<ZOLUnicodeString> ignored(_ignored.begin(), _ignored.end());
    std::unordered_set<ZOLUnicodeString> told;
    for (const ZOLIQrdCategory_var& category : categories) {
        const bool isIgnored = ignored.contains(category->GetName());
        ZOLListValZOLIQrdEffectivity_var options;
        category->GetOptions(options);
        for (const ZOLIQrdEffectivity_var& option : options) {
            ZOLQRDCfgEffectivity term(option);
            const auto found = chosen.find(term.GetOptionName());
            if (isIgnored) {
                term.SetIgnored();
            } else if (found != chosen.end()) {
                term.SetRuleDefined(found->second->GetParameterSource() == ZOLParameter::SourceRule);
                term.SetRejected(found->second->IsNot());
            } else if (_isAdvanced) {
                term.SetUndefined();
            } else {
                continue;
            }
            // Terms of options are equal by their name.
            if (!isMerging || told.insert(term.GetOptionName()).second)
                terms.Append(term);
        }
    }
    return terms;
}

trellis::SelectionMerge ZOLCategoryGraphViewer::Merge() {
    return {_current, {_isAdvanced != 0, _managesRejection != 0}};
}

void ZOLCategoryGraphViewer::AddUserSelectedToCurrent(ZOLParameter* parameter) {
    ZOLListValZOLUnicodeString names;
    Merge().Select(std::unique_ptr<ZOLParameter>(parameter), [&](const ZOLUnicodeString& category) {
        const ZOLCategoryNode* node = NodeOfCategory(category);
        if (node)
            names = node->GetOptNameList();
        return node ? &names : nullptr;
    });
}

void ZOLCategoryGraphViewer::AddUserRejectedToCurrent(ZOLParameter* parameter) {
    Merge().Reject(std::unique_ptr<ZOLParameter>(parameter));
}

void ZOLCategoryGraphViewer::AddRuleParamToCurrent(const ZOLParameter* parameter) {
    ZOLListPtrZOLParameter copies;
    copies.Append(new ZOLParameter(*parameter));
    TakeOver(copies);
}

void ZOLCategoryGraphViewer::RemoveRuleDefinedFromCurrent() {
    ZOLListPtrZOLParameter kept;
    for (ZOLParameter* parameter : _current)
        if (parameter->GetParameterSource() == ZOLParameter::SourceRule)
            delete parameter;
        else
            kept.Append(parameter);
    _current = kept;
}

void ZOLCategoryGraphViewer::SetCurrent(const ZOLListPtrZOLParameter& parameters) {
    ZOLDeleteElements(_current);
    _current = parameters;
}

void ZOLCategoryGraphViewer::PlayRules() {
    ZOLInteractiveApplication::GetApplication()->SetBusyCursor();
    ZOLRuleHandler handler(_dictionaries);
    ZOLListPtrZOLParameter backup;
    for (const ZOLParameter* parameter : _current)
        backup.Append(new ZOLParameter(*parameter));
    RemoveRuleDefinedFromCurrent();
    if (!_areDirectiveRulesOn)
        handler.DisableDirectiveRules();
    if (!_arePackagesOn)
        handler.DisablePackages();
    if (!_areMatricesOn)
        handler.DisableMatrices();
    ZOLExpression result(0);
    ZOLListPtrZOLExpression expressions;
    ZOLListPtrZOLParameter conflicts;
    ZOLListPtrZOLParameter irresolutions;
    int incompatible = 0;
    handler.SolveRulesForOptions(_current, result, expressions, incompatible, conflicts, irresolutions);
    if (!_isCheckMode)
        TakeOver(result.GetParameters());
    if (conflicts.Size() > 0)
        SetCurrent(backup);
    else
        ZOLDeleteElements(backup);
    ClearConflicts();
    DrawParameters();
    if (conflicts.Size() > 0 || incompatible)
        HighlightConflicts(conflicts);
    else if (irresolutions.Size() > 0 && !_isCheckMode)
        HighlightIrresolutions(irresolutions);
    if (incompatible)
        std::cout << "Rules incompatibility detected" << std::endl;
    ZOLDeleteElements(conflicts);
    ZOLDeleteElements(irresolutions);
    ZOLDeleteElements(expressions);
    TellShown();
}

void ZOLCategoryGraphViewer::TakeOver(const ZOLListPtrZOLParameter& parameters) {
    ParameterSet known(_current.begin(), _current.end());
    for (ZOLParameter* parameter : parameters)
        if (known.insert(parameter).second)
            _current.Append(parameter);
        else
            delete parameter;
}

void ZOLCategoryGraphViewer::DrawParameters() {
    auto parametersOf = ByCategory(_current);
    ZOLListValZOLUnicodeString considered;
    for (ZOLCategoryNode* node : _nodes) {
        const ZOLUnicodeString category = node->GetCategoryName();
        node->ClearDefined();
        if (!node->SetParameters(parametersOf[category], _hidesRuleRejected, _hidesUserRejected))
            considered.Append(category);
    }
    _ignored.Remove(considered);
    UpdateRootNodeColor(0);
}

void ZOLCategoryGraphViewer::UpdateWithParameters() {
    DrawParameters();
    TellShown();
}

void ZOLCategoryGraphViewer::TellShown() {
    SendNotification(this, &_selectionShownNotification);
}

void ZOLCategoryGraphViewer::PlayOrUpdate() {
    _areRulesOn ? PlayRules() : UpdateWithParameters();
}

void ZOLCategoryGraphViewer::HighlightConflicts(const ZOLListPtrZOLParameter& parameters) {
    auto parametersOf = ByCategory(parameters);
    for (ZOLCategoryNode* node : _nodes)
        node->HighlightConflicts(parametersOf[node->GetCategoryName()]);
    UpdateRootNodeColor(1);
}

void ZOLCategoryGraphViewer::HighlightIrresolutions(const ZOLListPtrZOLParameter& parameters) {
    auto parametersOf = ByCategory(parameters);
    for (ZOLCategoryNode* node : _nodes)
        node->HighlightIrresolutions(parametersOf[node->GetCategoryName()]);
    UpdateRootNodeColor(0);
}

void ZOLCategoryGraphViewer::ClearConflicts() {
    for (ZOLCategoryNode* node : _nodes)
        node->ClearConflicts();
    UpdateRootNodeColor(0);
}

void ZOLCategoryGraphViewer::SaveCurrentParameters() {
    _undo.Save(_current, _ignored);
}

void ZOLCategoryGraphViewer::ResetSavedParameters() {
    _undo.Clear();
}

void ZOLCategoryGraphViewer::Undo() {
    Restore(_undo.Undo());
}

void ZOLCategoryGraphViewer::Redo() {
    Restore(_undo.Redo());
}

void ZOLCategoryGraphViewer::Restore(const trellis::UndoRing::State* state) {
    if (!state)
        return;
    ZOLDeleteElements(_current);
    for (const ZOLParameter& parameter : state->parameters)
        _current.Append(new ZOLParameter(parameter));
    if (_isAdvanced) {
        _ignored = state->ignoredCategories;
        IgnoreCategories(_ignored);
    }
    PlayOrUpdate();
}
