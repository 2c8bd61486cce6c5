#pragma once

#include "graph/SelectionMerge.h"
#include "graph/UndoRing.h"
#include "graph/ZOLCategoryNode.h"
#include "service/ZOLIQrdConfigItem.h"
#include "toolkit/ZOLGraphViewer.h"

#include <memory>
#include <unordered_map>

class ZOLDlgContextualMenu;

// ZOLCategoryGraphViewer: the graph in which a user chooses options: a root, the categories under it, their options
// under these. The list of current parameters is the one truth of the selection: nodes are drawn from it, never the
// other way round. After each change the rules are played, if they are on, and the state is kept for undo.
//
// The parent is told of a change by the select notification of the root node.
class ZOLCategoryGraphViewer : public ZOLGraphViewer {
    ZOL_META_OBJECT(ZOLCategoryGraphViewer, ZOLGraphViewer)
public:
    // advanced: 1 advanced configuration mode, 0 simple; width, height: in pixels; flag: non-zero keeps that size.
    ZOLCategoryGraphViewer(ZOLDialog* parent, const ZOLString& name, const ZOLUnicodeString rootText,
                           const int advanced, const int width, const int height, const int flag);
    ~ZOLCategoryGraphViewer() override;

    ZOLString GetResourceFilename(int level) const override;

    // Switches without further effect: they act at the next play or update.
    void DirectiveRulesOn() { _areDirectiveRulesOn = 1; }
    void DirectiveRulesOff() { _areDirectiveRulesOn = 0; }
    int AreDirectiveRulesOn() const { return _areDirectiveRulesOn; }
    void PackagesOn() { _arePackagesOn = 1; }
    void PackagesOff() { _arePackagesOn = 0; }
    int ArePackagesOn() const { return _arePackagesOn; }
    void MatricesOn() { _areMatricesOn = 1; }
    void MatricesOff() { _areMatricesOn = 0; }
    int AreMatricesOn() const { return _areMatricesOn; }
    void SimpleConfigMode() { _isAdvanced = 0; }
    void AdvancedConfigMode() { _isAdvanced = 1; }
    int IsAdvancedConfigMode() const { return _isAdvanced; }
    int IsRulesCheckMode() const { return _isCheckMode; }
    // There is no way back.
    void NoRejectManagement() { _managesRejection = 0; }
    void HideRuleRejectedOn() { _hidesRuleRejected = 1; }
    void HideRuleRejectedOff() { _hidesRuleRejected = 0; }
    void HideUserRejectedOn() { _hidesUserRejected = 1; }
    void HideUserRejectedOff() { _hidesUserRejected = 0; }
    int AreRulesOn() const { return _areRulesOn; }

    // Switches that, with `update`, show their effect at once.
    void RulesOn(const int update);
    void RulesOff(const int update);
    void RulesCheckMode(const int update);
    void RulesSelectMode(const int update);
    // Force the exclusivity of all categories, those of later graphs too.
    void AllExclusivityOn();
    void AllExclusivityOff();
    void ExpandAll();
    void CollapseAll();

    // Shares its elements with the viewer.
    const ZOLListPtrZOLParameter& GetParameters() const { return _current; }
    ZOLIQrdConfigItem_var GetDictionary() const;
    const ZOLListValZOLIQrdConfigItem_var& GetDictionaries() const { return _dictionaries; }
    // With `withOthers` also the same-named categories of further dictionaries, behind the shown ones; gives the
    // position of the first of them, or 0.
    int GetCategories(ZOLListValZOLIQrdCategory_var& categories, const int withOthers) const;
    const ZOLListPtrZOLCategoryNode& GetCategoryNodes() const { return _nodes; }
    const ZOLListValZOLUnicodeString& GetIgnoredCategories() const { return _ignored; }
    ZOLNotification* GetSelectOptionNotification();
    // Sent to the viewer and its fathers when a changed selection has been drawn. (The select notification of a click
    // comes before the change.)
    ZOLNotification* GetSelectionShownNotification() { return &_selectionShownNotification; }
    // 1 when nothing is chosen at all, or no mandatory category is without a choice.
    int AllMandatoryCategoriesSelected() const;
    ZOLGraphNode* GetRootNode() const { return _root; }

    // Shows these categories, each name once, and chooses what the terms say; without any, in select mode, the
    // default options. The first form keeps the categories for the second.
    void BuildGraph(const ZOLListValZOLIQrdCategory_var& categories,
                    const ZOLListValZOLQRDCfgEffectivity& terms,
                    const ZOLListValZOLIQrdConfigItem_var& dictionaries);
    void BuildGraph(const ZOLListValZOLQRDCfgEffectivity& terms);
    // Forgets what is ignored, without further effect: a graph that is built without terms then begins with the
    // defaults.
    void ForgetIgnoredCategories() { _ignored.RemoveAll(); }
    // Only in advanced mode: ignores these, considers the others.
    void IgnoreCategories(const ZOLListValZOLUnicodeString& names);
    // Kept the first time, for ResetAll.
    void SetInitialSelection(const ZOLListPtrZOLParameter& parameters,
                             const ZOLListValZOLUnicodeString& ignored);
    // Ends the whole selection; with `ignore` all categories are ignored, where they can be.
    void ClearAll(const int ignore);
    // What the rules chose; no state is kept for undo.
    void ClearRuleDefined();
    void ResetAll();
    void ResetDefault();

    // Adds terms to the selection as they are, without the checks of a click. `centre`: the position of the term to
    // centre on, from 1; 0 for none. resetSaved: forgets the states for undo first.
    void SetSelected(const ZOLListValZOLQRDCfgEffectivity& terms, const int centre, const int resetSaved);
    // Takes the list over in place of the selection, with its elements.
    void SetSelected(const ZOLListPtrZOLParameter& parameters, const int resetSaved);
    // The same in one step with the ignored categories, which only count in advanced mode.
    void ChooseInstead(const ZOLListPtrZOLParameter& parameters, const ZOLListValZOLUnicodeString& ignored);
    void SetHighlighted(const ZOLListValZOLQRDCfgEffectivity& terms, const int centre);
    void UnHighlightAll();
    void SetCentered(const ZOLQRDCfgEffectivity& term);
    // The selection as terms: with 1 over the categories of the graph, with 0 over all of the dictionaries. In simple
    // mode what has a parameter, in advanced mode every option.
    ZOLListValZOLQRDCfgEffectivity GetOptions(const int withOthers) const;

    // Plays the rules on the selection, takes over what follows (in select mode) and draws; after a conflict the
    // parameters stand as they were before.
    void PlayRules();
    // Draws the selection.
    void UpdateWithParameters();
    // Both take the parameter over.
    void AddUserSelectedToCurrent(ZOLParameter* parameter);
    void AddUserRejectedToCurrent(ZOLParameter* parameter);
    // Appends a copy unless an equal one is there.
    void AddRuleParamToCurrent(const ZOLParameter* parameter);
    void RemoveRuleDefinedFromCurrent();
    void HighlightConflicts(const ZOLListPtrZOLParameter& parameters);
    void HighlightIrresolutions(const ZOLListPtrZOLParameter& parameters);
    void ClearConflicts();
    void SaveCurrentParameters();
    void ResetSavedParameters();
    void Undo();
    void Redo();

    // 1 while any category is open.
    void UpdateRootNodeState();
    // The categories in one colour: conflict 4 (also when `conflict` is set), irresolution 2, a mandatory category
    // without choice 7, all decided 46, else 1.
    void UpdateRootNodeColor(const int conflict);
    // Nothing: texts of the graph are not edited.
    void ElemEdit(ZOLCommand*, ZOLNotification*, void*) {}

private:
    using CategoriesByOption = std::unordered_map<ZOLUnicodeString, ZOLIQrdCategory_var>;

    void ElemSelected(ZOLCommand*, ZOLNotification* notification, void*);
    void ElemContext(ZOLCommand*, ZOLNotification* notification, void*);
    void SelectAllFromCategCB(ZOLCommand*, ZOLNotification*, void* node);
    void ClearSelectedFromCategCB(ZOLCommand*, ZOLNotification*, void* node);
    void RejectAllFromCategCB(ZOLCommand*, ZOLNotification*, void* node);
    void ClearRejectedFromCategCB(ZOLCommand*, ZOLNotification*, void* node);
    void IgnoreAllFromCategCB(ZOLCommand*, ZOLNotification*, void* node);
    void ConsiderAllFromCategCB(ZOLCommand*, ZOLNotification*, void* node);

    void ClickOption(ZOLOptionNode& option, int isNot);
    void FillMenu(ZOLCategoryNode& node);
    void AddAllOf(const ZOLCategoryNode& node, int isNot);
    void RemoveFromCurrent(const ZOLUnicodeString& category, bool (*isToGo)(const ZOLParameter&));
    void FinishCommand();
    void DeleteNodes();
    void BuildNodes();
    void AddCategoryNode(ZOLCategoryNode* node);
    static std::unique_ptr<ZOLParameter> ParameterOf(const ZOLQRDCfgEffectivity& term,
                                                     const ZOLUnicodeString& category,
                                                     const ZOLCategoryNode* node,
                                                     const CategoriesByOption& outOfSight);
    // Categories of the dictionaries that have no node, as the user took them out, by the names of their options.
    CategoriesByOption CategoriesOutOfSight() const;
    void ChooseTerms(const ZOLListValZOLQRDCfgEffectivity& terms);
    void ChooseDefaults();
    void ChooseDefaultsOf(const ZOLIQrdCategory_var& category);
    void PlayOrUpdate();
    void DrawParameters();
    void TellShown();
    void Restore(const trellis::UndoRing::State* state);
    void SetCurrent(const ZOLListPtrZOLParameter& parameters);
    // Appends those to which no equal one is there, and deletes the others.
    void TakeOver(const ZOLListPtrZOLParameter& parameters);
    ZOLCategoryNode* NodeOfCategory(const ZOLUnicodeString& name) const;
    // The first category that has an option of that name; null for none.
    ZOLCategoryNode* NodeWithOption(const ZOLUnicodeString& option) const;
    ZOLCategoryNode* NodeOfTerm(const ZOLQRDCfgEffectivity& term) const;
    ZOLListValZOLIQrdCategory_var AllCategories() const;
    trellis::SelectionMerge Merge();

    ZOLListValZOLIQrdConfigItem_var _dictionaries;
    ZOLGraphNode* _root;
    ZOLDlgContextualMenu* _menu;
    ZOLListPtrZOLCategoryNode _nodes; // owned, in the order of names
    std::unordered_map<ZOLUnicodeString, ZOLCategoryNode*> _nodesByName;
    std::unordered_map<ZOLUnicodeString, ZOLCategoryNode*> _nodesByOption; // the first in node order
    ZOLListValZOLIQrdCategory_var _categories;                             // each name once
    ZOLListValZOLIQrdCategory_var _otherCategories; // of the same names, in further dictionaries
    int _areRulesOn = 1;
    int _forcedExclusivity = -1; // -1: that of each category
    int _isAdvanced;
    int _isCheckMode = 0;
    int _areDirectiveRulesOn = 1;
    int _arePackagesOn = 1;
    int _areMatricesOn = 1;
    int _hidesRuleRejected = 0;
    int _hidesUserRejected = 0;
    int _managesRejection = 1;
    int _isExpanded = 1;
    ZOLListPtrZOLParameter _current; // owned
    ZOLListValZOLUnicodeString _ignored;
    bool _hasInitial = false;
    trellis::UndoRing::State _initial;
    trellis::UndoRing _undo;
    ZOLNotification _selectionShownNotification;
};
