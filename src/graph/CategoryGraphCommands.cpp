// ZOLDlgCategoryGraph: what its controls do.

#include "graph/ZOLDlgCategoryGraph.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgRadioButton.h"
#include "widgets/ZOLDlgProdContextManager.h"

namespace {

void* AsData(int value) {
    return reinterpret_cast<void*>(static_cast<std::intptr_t>(value));
}

int FromData(void* data) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(data));
}

} // namespace

void ZOLDlgCategoryGraph::TellFather() {
    SendNotification(GetFather(), GetSelectOptionNotification());
}

void ZOLDlgCategoryGraph::SelectOptionCB(ZOLCommand*, ZOLNotification*, void*) {
    TellFather();
}

void ZOLDlgCategoryGraph::ChangeConfigModeMenuCB(ZOLCommand*, ZOLNotification*, void*) {
    _configModeMenu->Empty();
    const auto add = [&](const char* name, const char* title, int isAdvanced) {
        auto* item = new ZOLDlgPushItem(_configModeMenu, name);
        item->SetTitle(Text(title));
        AddAnalyseNotificationCB(item, item->GetMenuIActivateNotification(),
                                 ZOL_CALLBACK(&ZOLDlgCategoryGraph::ChangeConfigModeCB), AsData(isAdvanced));
    };
    add("SimpleConfigMode", "ConfigModeSimpleItem.Title", 0);
    add("AdvancedConfigMode", "ConfigModeAdvancedItem.Title", 1);
}

// The states of one mode mean little in the other, so the selection begins anew with the defaults.
void ZOLDlgCategoryGraph::ChangeConfigModeCB(ZOLCommand*, ZOLNotification*, void* isAdvanced) {
    SetConfigMode(FromData(isAdvanced));
    if (_legend) {
        _legend->RequestDelayedDestruction();
        _legend = nullptr;
    }
    _viewer->ForgetIgnoredCategories();
    _viewer->BuildGraph(ZOLListValZOLQRDCfgEffectivity());
    TellFather();
}

void ZOLDlgCategoryGraph::RulesModeCB(ZOLCommand* button, ZOLNotification*, void*) {
    if (!static_cast<ZOLDlgRadioButton*>(button)->IsOn())
        return;
    button == _checkMode ? RulesForCheck() : RulesForSelect();
    TellFather();
}

void ZOLDlgCategoryGraph::RulesOnOffCB(ZOLCommand*, ZOLNotification*, void*) {
    _rulesCombo->GetSelect() == 0 ? RulesOn() : RulesOff();
    TellFather();
}

void ZOLDlgCategoryGraph::ApplyRulesCB(ZOLCommand*, ZOLNotification*, void*) {
    _viewer->PlayRules();
    TellFather();
}

void ZOLDlgCategoryGraph::ClearRuleDefinedCB(ZOLCommand*, ZOLNotification*, void*) {
    _viewer->ClearRuleDefined();
    TellFather();
}

void ZOLDlgCategoryGraph::UndoCB(ZOLCommand*, ZOLNotification*, void*) {
    _viewer->Undo();
    TellFather();
}

void ZOLDlgCategoryGraph::RedoCB(ZOLCommand*, ZOLNotification*, void*) {
    _viewer->Redo();
    TellFather();
}

void ZOLDlgCategoryGraph::ClearAllCB(ZOLCommand*, ZOLNotification*, void*) {
    _viewer->ClearAll(1);
    TellFather();
}

void ZOLDlgCategoryGraph::ResetAllCB(ZOLCommand*, ZOLNotification*, void*) {
    _viewer->ResetAll();
    TellFather();
}

void ZOLDlgCategoryGraph::ResetDefaultCB(ZOLCommand*, ZOLNotification*, void*) {
    _viewer->ResetDefault();
    TellFather();
}

void ZOLDlgCategoryGraph::RapidSelectCB(ZOLCommand*, ZOLNotification*, void*) {
    const ZOLUnicodeString typed = _rapidField->GetText();
    if (typed.IsEmpty())
        return;
    ZOLListValZOLUnicodeString names;
    ZOLListValZOLQRDCfgEffectivity terms;
    ExtractOptFromString(typed, names);
    GetOptFromName(names, terms);
    const bool isMeant =
        _rapidMode == trellis::RapidSelect::Mode::Smart ? terms.Size() > 0 : terms.Size() == names.Size();
    if (!isMeant)
        return;
    _viewer->SetSelected(terms, 0, 0);
    TellFather();
    _rapidField->ClearLine();
}

int ZOLDlgCategoryGraph::EditRapidSelectCB(const ZOLUnicodeString& text, void* panel) {
    static_cast<ZOLDlgCategoryGraph*>(panel)->HighlightTyped(text);
    return 1;
}

void ZOLDlgCategoryGraph::HighlightTyped(const ZOLUnicodeString& text) {
    _viewer->UnHighlightAll();
    ZOLListValZOLUnicodeString names;
    ZOLListValZOLQRDCfgEffectivity terms;
    ExtractOptFromString(text, names);
    GetOptFromName(names, terms);
    if (terms.Size() > 0)
        _viewer->SetHighlighted(terms, terms.Size());
}

void ZOLDlgCategoryGraph::HideRejectedCB(ZOLCommand*, ZOLNotification*, void* byRule) {
    if (FromData(byRule))
        _hideRuleRejected->IsOn() ? _viewer->HideRuleRejectedOn() : _viewer->HideRuleRejectedOff();
    else
        _hideUserRejected->IsOn() ? _viewer->HideUserRejectedOn() : _viewer->HideUserRejectedOff();
    _viewer->UpdateWithParameters();
}

void ZOLDlgCategoryGraph::ChangeDictionaryCB(ZOLCommand*, ZOLNotification*, void*) {
    if (GetVisibility() != ZOLShown)
        return;
    ZOLDMInstance product;
    _context->GetCurrentProduct(product);
    BuildGraph(product, GetOptions(0), 1);
    TellFather();
}
