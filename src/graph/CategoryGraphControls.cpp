// ZOLDlgCategoryGraph: making the controls, and changing what is offered.

#include "graph/ZOLDlgCategoryGraph.h"
#include "panels/ZOLDMDlgResultPanel.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgRadioButton.h"
#include "values/ZOLDMTarvex.h"
#include "widgets/ZOLDlgProdContextManager.h"

namespace {

constexpr int WithControls = 1;
constexpr int WithAttachedProduct = 2;
constexpr unsigned long Plain = 0x80000;
constexpr int Beside = 1;
constexpr int NameWidth = 16; // of the field for names, in characters
constexpr const char* SmartRapidSelect = "SMART";

// A logical setting that is on where nobody declared it.
int IsOnUnlessDeclaredOff(const char* key) {
    int isUndeclared = 0;
    const int value = ZOLDMTarvex::GetLogicalDec(key, isUndeclared);
    return isUndeclared ? 1 : value;
}

trellis::RapidSelect::Mode RapidModeOfSettings() {
    int isUndeclared = 0;
    const ZOLUnicodeString word =
        ZOLDMTarvex::GetStringDec("ZOLWVTA.QRD.OPT_GRAPH.RAPID_SELECT_MNGT", isUndeclared);
    if (isUndeclared || word == SmartRapidSelect)
        return trellis::RapidSelect::Mode::Smart;
    return word.IsEmpty() ? trellis::RapidSelect::Mode::None : trellis::RapidSelect::Mode::Exact;
}

// Of no size of its own: the names of these spacers are known to sites.
void AddSpacer(ZOLDialog* father, const char* name) {
    auto* spacer = new ZOLDlgLabel(father, name);
    spacer->SetTitle({});
    spacer->SetVisibility(ZOLHidden);
}

ZOLDlgFrame* AddRow(ZOLDialog* father, const char* name) {
    auto* row = new ZOLDlgFrame(father, name, Plain);
    row->SetDefaultOrientation(Beside);
    return row;
}

} // namespace

void ZOLDlgCategoryGraph::ReadSettings() {
    const ZOLDMDlgResultPanel* host = ZOLDMDlgResultPanel::GetListResultPanel()[1];
    if (_configMode == -1)
        _configMode = host->IsAdvancedMode() == 1;
    if (_filtersCategories == -1)
        _filtersCategories = host->FiltersCategories() == 1;
    _hidesRules = IsOnUnlessDeclaredOff("ZOLWVTA.QRD.OPT_GRAPH.HIDE_RULES_MNGT");
    _hidesRejected = IsOnUnlessDeclaredOff("ZOLWVTA.QRD.OPT_GRAPH.HIDE_REJECTED_MNGT");
    _rapidMode = RapidModeOfSettings();
}

void ZOLDlgCategoryGraph::Build(const int width, const int height, const int flag) {
    ReadSettings();
    _mainFrame = AddRow(this, "MainFrame");
    _mainFrame->Attach4Sides();
    if (_style & WithControls)
        BuildControls();
    _viewer =
        new ZOLCategoryGraphViewer(_mainFrame, "CategoryGraph", _title, _configMode, width, height, flag);
    AddAnalyseNotificationCB(_viewer, _viewer->GetSelectOptionNotification(),
                             ZOL_CALLBACK(&ZOLDlgCategoryGraph::SelectOptionCB));
    _context = new ZOLDlgProdContextManager(this, _instance, _products, "OP");
    AddAnalyseNotificationCB(_context, _context->GetChangeProductNotification(),
                             ZOL_CALLBACK(&ZOLDlgCategoryGraph::ChangeDictionaryCB));
    if (!(_style & WithAttachedProduct))
        _context->ResetAttachment();
    SetConfigMode(_configMode);
    ShowRulesState();
}

ZOLDlgPushButton* ZOLDlgCategoryGraph::AddButton(ZOLDialog* father, const char* name,
                                                 ZOLNotificationMethod method) {
    auto* button = new ZOLDlgPushButton(father, name);
    AddAnalyseNotificationCB(button, button->GetPushBActivateNotification(), method);
    return button;
}

void ZOLDlgCategoryGraph::BuildControls() {
    _optionsFrame = new ZOLDlgFrame(_mainFrame, "OptionsFrame", Plain);
    _optionsFrame->SetHorizontalAttachment(0);
    BuildConfigMode();
    BuildRules();
    BuildSelection();
    BuildDisplay();
}

void ZOLDlgCategoryGraph::BuildConfigMode() {
    _configModeFrame = new ZOLDlgFrame(_optionsFrame, "ConfigModeFrame");
    _configModeLabel = new ZOLDlgLabel(_configModeFrame, "ConfigMode");
    // Of all controls, so that the Menu key opens it from any of them: a label takes no focus.
    _configModeMenu = new ZOLDlgContextualMenu(_optionsFrame, "ConfigModeCtxtMenu");
    UnlockedConfigMode();
}

void ZOLDlgCategoryGraph::BuildRules() {
    _rulesFrame = new ZOLDlgFrame(_optionsFrame, "RulesFrame");
    _rulesControls = new ZOLDlgFrame(_rulesFrame, "RulesFrame1", Plain);
    for (const auto& [field, name] :
         {std::pair(&_selectMode, "HelpSelectMode"), std::pair(&_checkMode, "CheckConflictMode")}) {
        *field = new ZOLDlgRadioButton(_rulesControls, name);
        AddAnalyseNotificationCB(*field, (*field)->GetRadBModifyNotification(),
                                 ZOL_CALLBACK(&ZOLDlgCategoryGraph::RulesModeCB));
    }
    _selectMode->SetState(ZOLOn);
    auto* row = AddRow(_rulesControls, "RulesComboFrame");
    _rulesCombo = new ZOLDlgCombo(row, "RulesCombo");
    _rulesCombo->SetLine(Text("RulesOn.Title"));
    _rulesCombo->SetLine(Text("RulesOff.Title"));
    AddAnalyseNotificationCB(_rulesCombo, _rulesCombo->GetComboSelectNotification(),
                             ZOL_CALLBACK(&ZOLDlgCategoryGraph::RulesOnOffCB));
    AddButton(row, "RulesOptions", ZOL_CALLBACK(&ZOLDlgCategoryGraph::RulesOptionsCB));
    auto* buttons = AddRow(_rulesControls, "RulesButtonFrame");
    _applyRules = AddButton(buttons, "ApplyRules", ZOL_CALLBACK(&ZOLDlgCategoryGraph::ApplyRulesCB));
    AddButton(buttons, "ClearRuleDefined", ZOL_CALLBACK(&ZOLDlgCategoryGraph::ClearRuleDefinedCB));
    if (_hidesRules)
        _rulesFrame->SetVisibility(ZOLHidden);
}

void ZOLDlgCategoryGraph::BuildSelection() {
    _selectFrame = new ZOLDlgFrame(_optionsFrame, "SelectFrame");
    auto* steps = AddRow(_selectFrame, "SelectSubFrame1");
    AddButton(steps, "Undo", ZOL_CALLBACK(&ZOLDlgCategoryGraph::UndoCB));
    AddButton(steps, "Redo", ZOL_CALLBACK(&ZOLDlgCategoryGraph::RedoCB));
    AddSpacer(steps, "Bidon0Label");
    AddButton(steps, "ClearAll", ZOL_CALLBACK(&ZOLDlgCategoryGraph::ClearAllCB));
    auto* resets = AddRow(_selectFrame, "SelectSubFrame2");
    AddSpacer(resets, "Bidon1Label");
    AddButton(resets, "ResetAll", ZOL_CALLBACK(&ZOLDlgCategoryGraph::ResetAllCB));
    AddButton(resets, "ResetDefault", ZOL_CALLBACK(&ZOLDlgCategoryGraph::ResetDefaultCB));
    if (_rapidMode != trellis::RapidSelect::Mode::None)
        BuildRapidSelect();
}

void ZOLDlgCategoryGraph::BuildRapidSelect() {
    auto* row = AddRow(_selectFrame, "SelectSubFrame3");
    _rapidField = new ZOLDlgEditor(row, "RapidSelectField");
    _rapidField->SetVisibleTextWidth(NameWidth);
    _rapidField->SetHorizontalAttachment(1);
    AddAnalyseNotificationCB(_rapidField, _rapidField->GetEditModifyNotification(),
                             ZOL_CALLBACK(&ZOLDlgCategoryGraph::RapidSelectCB));
    if (_rapidMode == trellis::RapidSelect::Mode::Smart)
        _rapidField->SetVerifyCallback(&ZOLDlgCategoryGraph::EditRapidSelectCB, this);
    AddSpacer(row, "Bidon2Label");
    // Leaving the field for the button would choose twice.
    AddButton(row, "RapidSelect", ZOL_CALLBACK(&ZOLDlgCategoryGraph::RapidSelectCB))->SetTakesFocus(0);
}

void ZOLDlgCategoryGraph::BuildDisplay() {
    auto* frame = new ZOLDlgFrame(_optionsFrame, "DisplayFrame");
    const auto addCheck = [&](const char* name, int byRule) {
        auto* button = new ZOLDlgCheckButton(frame, name);
        AddAnalyseNotificationCB(button, button->GetChkBModifyNotification(),
                                 ZOL_CALLBACK(&ZOLDlgCategoryGraph::HideRejectedCB),
                                 reinterpret_cast<void*>(static_cast<std::intptr_t>(byRule)));
        return button;
    };
    if (!_hidesRejected) {
        _hideRuleRejected = addCheck("HideRuleRejected", 1);
        _hideUserRejected = addCheck("HideUserRejected", 0);
    }
    AddButton(frame, "Categories", ZOL_CALLBACK(&ZOLDlgCategoryGraph::CategoriesCB));
    AddButton(frame, "OptSearch", ZOL_CALLBACK(&ZOLDlgCategoryGraph::SearchOptionCB));
    AddButton(frame, "ColorLegend", ZOL_CALLBACK(&ZOLDlgCategoryGraph::ColorLegendCB));
}

void ZOLDlgCategoryGraph::DisableRules() {
    if (!_rulesFrame)
        return;
    if (!_noRules) {
        _rulesControls->SetVisibility(ZOLHidden);
        _noRules = new ZOLDlgFrame(_rulesFrame, "RulesFrame0", Plain);
        new ZOLDlgLabel(_noRules, "NoRuleLabel");
    }
    _rulesFrame->SetSensitivity(ZOLGreyed);
    if (_hideRuleRejected)
        _hideRuleRejected->SetSensitivity(ZOLGreyed);
}

void ZOLDlgCategoryGraph::EnableRules() {
    if (!_rulesFrame)
        return;
    if (_noRules) {
        _noRules->RequestDelayedDestruction();
        _noRules = nullptr;
        _rulesControls->SetVisibility(ZOLShown);
    }
    _rulesFrame->SetSensitivity(ZOLActive);
    if (_hideRuleRejected)
        _hideRuleRejected->SetSensitivity(ZOLActive);
}

void ZOLDlgCategoryGraph::HideConfigMode() {
    if (!_configModeFrame)
        return;
    _configModeFrame->SetVisibility(ZOLHidden);
    _configModeMenu->SetVisibility(ZOLHidden);
}

void ZOLDlgCategoryGraph::LockedConfigMode() {
    if (!_configModeMenu)
        return;
    _configModeMenu->Empty();
    RemoveAnalyseNotificationCB(_configModeMenu, _configModeMenu->GetVisibilityNotification());
}

void ZOLDlgCategoryGraph::UnlockedConfigMode() {
    if (_configModeMenu)
        AddAnalyseNotificationCB(_configModeMenu, _configModeMenu->GetVisibilityNotification(),
                                 ZOL_CALLBACK(&ZOLDlgCategoryGraph::ChangeConfigModeMenuCB));
}

void ZOLDlgCategoryGraph::LockedRulesMode() {
    for (ZOLDialog* button : {_selectMode, _checkMode})
        if (button)
            button->SetSensitivity(ZOLGreyed);
}

void ZOLDlgCategoryGraph::UnlockedRulesMode() {
    for (ZOLDialog* button : {_selectMode, _checkMode})
        if (button)
            button->SetSensitivity(ZOLActive);
}
