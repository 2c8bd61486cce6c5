#pragma once

#include "entry/ZOLIQRDCategoryGraph.h"
#include "graph/RapidSelect.h"
#include "graph/ZOLCategoryGraphViewer.h"
#include "model/ZOLDMInstance.h"

class ZOLDlgCheckButton;
class ZOLDlgCombo;
class ZOLDlgContextualMenu;
class ZOLDlgDialog;
class ZOLDlgEditor;
class ZOLDlgLabel;
class ZOLDlgProdContextManager;
class ZOLDlgPushButton;
class ZOLDlgRadioButton;
class ZOLQRDDlgOptionList;

// ZOLDlgCategoryGraph: the frame around the selection graph: modes, rules, undo, choice by name, what is shown, and the
// product. What a user does here goes to the viewer, and its select notification to the father, who then reads the
// selection anew.
//
// style  bit 1: with the controls; bit 2: the frame of the current product takes its share of the room
// configMode  1 advanced, 0 simple, -1 as the host's result panel says
class ZOLDlgCategoryGraph : public ZOLIQRDCategoryGraph {
    ZOL_META_OBJECT(ZOLDlgCategoryGraph, ZOLIQRDCategoryGraph)
public:
    // Shows the first of the products. Title: text of the root; width, height in pixels; flag: non-zero keeps that
    // size.
    ZOLDlgCategoryGraph(ZOLDialog* parent, const ZOLString& name, const ZOLUnicodeString& title,
                        const int style, const ZOLListValZOLDMInstance& products, const int configMode,
                        const int width, const int height, const int flag);
    // Shows the current one of the products with a selection.
    ZOLDlgCategoryGraph(ZOLDialog* parent, const ZOLString& name, const ZOLUnicodeString& title,
                        const int style, const ZOLDMInstance& instance,
                        const ZOLListValZOLDMInstance& products, const ZOLListValZOLQRDCfgEffectivity& terms,
                        const int configMode, const int rulesOn, const int checkMode, const int width,
                        const int height, const int flag);
    // Without product, until BuildGraph.
    ZOLDlgCategoryGraph(ZOLDialog* parent, const ZOLString& name, const ZOLUnicodeString& title,
                        const int style, const int configMode, const int width, const int height,
                        const int flag);
    ~ZOLDlgCategoryGraph() override;

    ZOLString GetResourceFilename(int level) const override;

    // Of a configurable part, less the categories that its category file hides. checkRules: looks whether there are
    // rules, where the settings say so. A part without dictionary, and one that cannot be read, leave an empty graph.
    void BuildGraph(const ZOLDMInstance& product, const ZOLListValZOLQRDCfgEffectivity& terms,
                    const int checkRules);
    void BuildGraph(const ZOLListValZOLIQrdCategory_var& categories,
                    const ZOLListValZOLQRDCfgEffectivity& terms,
                    const ZOLListValZOLIQrdConfigItem_var& dictionaries);
    void SetProduct(const ZOLListValZOLDMInstance& products);

    // As those of the viewer, with the controls brought up to date.
    void RulesForSelect();
    void RulesForCheck();
    void RulesOn();
    void RulesOff();
    void DirectiveRulesOn();
    void DirectiveRulesOff();
    void PackagesOn();
    void PackagesOff();
    void MatricesOn();
    void MatricesOff();
    void SimpleConfigMode();
    void AdvancedConfigMode();
    int IsAdvancedConfigMode() const { return _viewer->IsAdvancedConfigMode(); }
    // With the label for dictionaries without rules in place of the controls for rules; and back.
    void DisableRules();
    void EnableRules();
    void HideConfigMode();
    // The menu for the mode offers nothing; and back.
    void LockedConfigMode();
    void UnlockedConfigMode();
    void LockedRulesMode();
    void UnlockedRulesMode();

    // As those of the viewer.
    void ExpandAll() { _viewer->ExpandAll(); }
    void CollapseAll() { _viewer->CollapseAll(); }
    void ClearAll(const int ignore) { _viewer->ClearAll(ignore); }
    void ResetAll() { _viewer->ResetAll(); }
    void ResetDefault() { _viewer->ResetDefault(); }
    void PlayRules() { _viewer->PlayRules(); }
    int AllMandatoryCategoriesSelected() const { return _viewer->AllMandatoryCategoriesSelected(); }
    ZOLListValZOLQRDCfgEffectivity GetOptions(const int withOthers) const {
        return _viewer->GetOptions(withOthers);
    }
    ZOLIQrdConfigItem_var GetDictionary() const { return _viewer->GetDictionary(); }
    ZOLNotification* GetSelectOptionNotification() { return _viewer->GetSelectOptionNotification(); }
    void NoRejectManagement() { _viewer->NoRejectManagement(); }
    void AllExclusivityOn() { _viewer->AllExclusivityOn(); }
    void AllExclusivityOff() { _viewer->AllExclusivityOff(); }
    // Both forget the states for undo; the second takes the parameters over.
    void SetSelected(const ZOLListValZOLQRDCfgEffectivity& terms) { _viewer->SetSelected(terms, 0, 1); }
    void SetSelected(const ZOLListPtrZOLParameter& parameters) { _viewer->SetSelected(parameters, 1); }
    // Of all that are chosen, by the user or by rules.
    ZOLListValZOLUnicodeString GetSelectedOptionName() const;

    // Which categories the user keeps in the graph of a product; see trellis::CategoryFile.
    void WriteCategoryFile(const ZOLDMInstance& instance, const ZOLListValZOLIQrdCategory_var& shown,
                           const ZOLListValZOLIQrdCategory_var& hidden) const;
    void ReadCategoryFile(const ZOLDMInstance& instance, ZOLListValZOLUnicodeString& names) const;
    // Takes the hidden ones out.
    void FilterCategories(const ZOLDMInstance& instance, ZOLListValZOLIQrdCategory_var& categories) const;

    // See trellis::RapidSelect. The first appends; the second empties the terms first.
    void ExtractOptFromString(const ZOLUnicodeString& typed, ZOLListValZOLUnicodeString& names) const;
    void GetOptFromName(const ZOLListValZOLUnicodeString& names, ZOLListValZOLQRDCfgEffectivity& terms);

    ZOLGraphViewer* GetViewer() override { return _viewer; }
    ZOLNotification* GetSelectionShownNotification() override {
        return _viewer->GetSelectionShownNotification();
    }
    std::optional<ZOLParameter> GetOption(const ZOLGraphNode* node) const override;
    const ZOLListPtrZOLParameter& GetParameters() const override { return _viewer->GetParameters(); }
    const ZOLListValZOLUnicodeString& GetIgnoredCategories() const override {
        return _viewer->GetIgnoredCategories();
    }
    ZOLListValZOLIQrdConfigItem_var GetDictionaries() const override { return _viewer->GetDictionaries(); }
    ZOLListVal<int> GetListOfStatus() const override;
    int IsInConflict() const override;
    int CountOpenCategories() const override;
    void ChooseInstead(const ZOLListPtrZOLParameter& parameters,
                       const ZOLListValZOLUnicodeString& ignoredCategories) override;

private:
    void Build(const int width, const int height, const int flag);
    void ReadSettings();
    void BuildControls();
    void BuildConfigMode();
    void BuildRules();
    void BuildSelection();
    void BuildRapidSelect();
    void BuildDisplay();
    ZOLDlgPushButton* AddButton(ZOLDialog* father, const char* name, ZOLNotificationMethod method);
    ZOLUnicodeString Text(const char* key) const;
    void SetConfigMode(int isAdvanced);
    void CheckRules(const ZOLListValZOLIQrdConfigItem_var& dictionaries);
    void ShowRules();
    void ShowRulesState();
    // The user acted: the father reads the selection anew.
    void TellFather();

    void SelectOptionCB(ZOLCommand*, ZOLNotification*, void*);
    void ChangeConfigModeMenuCB(ZOLCommand*, ZOLNotification*, void*);
    void ChangeConfigModeCB(ZOLCommand*, ZOLNotification*, void* isAdvanced);
    void RulesModeCB(ZOLCommand* button, ZOLNotification*, void*);
    void RulesOnOffCB(ZOLCommand*, ZOLNotification*, void*);
    void RulesOptionsCB(ZOLCommand*, ZOLNotification*, void*);
    void RulesOptionCheckCB(ZOLCommand* button, ZOLNotification*, void*);
    void RulesOptionsCloseCB(ZOLCommand*, ZOLNotification*, void*);
    void ApplyRulesCB(ZOLCommand*, ZOLNotification*, void*);
    void ClearRuleDefinedCB(ZOLCommand*, ZOLNotification*, void*);
    void UndoCB(ZOLCommand*, ZOLNotification*, void*);
    void RedoCB(ZOLCommand*, ZOLNotification*, void*);
    void ClearAllCB(ZOLCommand*, ZOLNotification*, void*);
    void ResetAllCB(ZOLCommand*, ZOLNotification*, void*);
    void ResetDefaultCB(ZOLCommand*, ZOLNotification*, void*);
    void RapidSelectCB(ZOLCommand*, ZOLNotification*, void*);
    static int EditRapidSelectCB(const ZOLUnicodeString& text, void* panel);
    void HighlightTyped(const ZOLUnicodeString& text);
    void HideRejectedCB(ZOLCommand*, ZOLNotification*, void* byRule);
    void CategoriesCB(ZOLCommand*, ZOLNotification*, void*);
    void ApplyCategoriesCB(ZOLCommand*, ZOLNotification*, void*);
    void SearchOptionCB(ZOLCommand*, ZOLNotification*, void*);
    void SearchOptionHighlightCB(ZOLCommand*, ZOLNotification*, void*);
    void SearchOptionSelectCB(ZOLCommand*, ZOLNotification*, void*);
    void SearchOptionCloseCB(ZOLCommand*, ZOLNotification*, void*);
    void ColorLegendCB(ZOLCommand*, ZOLNotification*, void*);
    void ColorLegendCloseCB(ZOLCommand*, ZOLNotification*, void*);
    void ChangeDictionaryCB(ZOLCommand*, ZOLNotification*, void*);

    ZOLListValZOLIQrdCategory_var AllCategories() const;
    ZOLListValZOLQRDCfgEffectivity OptionsOfGraph() const;
    // The terms chosen in the search panel, and the place of the next of them.
    ZOLListValZOLQRDCfgEffectivity NextFound();

    int _style;
    ZOLUnicodeString _title;
    int _filtersCategories; // -1: not asked yet, as the next
    int _configMode;
    int _hidesRules = 0;
    int _hidesRejected = 0;
    trellis::RapidSelect::Mode _rapidMode = trellis::RapidSelect::Mode::None;
    trellis::RapidSelect _rapidSelect;
    ZOLDMInstance _instance;
    ZOLListValZOLDMInstance _products;
    int _searchPosition = 0;

    ZOLDialog* _mainFrame = nullptr;
    ZOLCategoryGraphViewer* _viewer = nullptr;
    ZOLDlgProdContextManager* _context = nullptr;
    // Null without controls, and where the settings take one away.
    ZOLDialog* _optionsFrame = nullptr;
    ZOLDialog* _configModeFrame = nullptr;
    ZOLDlgLabel* _configModeLabel = nullptr;
    ZOLDlgContextualMenu* _configModeMenu = nullptr;
    ZOLDialog* _rulesFrame = nullptr;
    ZOLDialog* _rulesControls = nullptr;
    ZOLDialog* _noRules = nullptr;
    ZOLDlgRadioButton* _selectMode = nullptr;
    ZOLDlgRadioButton* _checkMode = nullptr;
    ZOLDlgCombo* _rulesCombo = nullptr;
    ZOLDlgPushButton* _applyRules = nullptr;
    ZOLDialog* _selectFrame = nullptr;
    ZOLDlgEditor* _rapidField = nullptr;
    ZOLDlgCheckButton* _hideRuleRejected = nullptr;
    ZOLDlgCheckButton* _hideUserRejected = nullptr;
    // Made at first use.
    ZOLDlgDialog* _rulesOptions = nullptr;
    ZOLDlgCheckButton* _directiveRulesCheck = nullptr;
    ZOLDlgCheckButton* _packagesCheck = nullptr;
    ZOLDlgCheckButton* _matricesCheck = nullptr;
    trellis::WeakCommand _checkList; // ends itself where the user takes nothing
    ZOLDlgDialog* _search = nullptr;
    ZOLQRDDlgOptionList* _searchList = nullptr;
    ZOLDlgDialog* _legend = nullptr;
};
