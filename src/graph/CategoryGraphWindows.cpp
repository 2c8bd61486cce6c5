// ZOLDlgCategoryGraph: the windows that its buttons open.

#include "graph/ColorLegend.h"
#include "graph/ZOLDlgCategoryGraph.h"
#include "service/ZOLQRDCfgManager.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLInteractiveApplication.h"
#include "values/ZOLGYRError.h"
#include "widgets/ZOLDlgCheckList.h"
#include "widgets/ZOLDlgProdContextManager.h"
#include "widgets/ZOLQRDDlgOptionList.h"

#include <unordered_set>

namespace {

constexpr unsigned long OkAlone = 0x600; // and above its father, as the next
constexpr unsigned long OkApplyCancel = 0x2e00;
constexpr int SearchListStyle = 6;
constexpr int LegendWidth = 420; // in pixels, as the next: all looks in sight
constexpr int LegendHeight = 600;

ZOLButtonState StateOf(int isOn) {
    return isOn ? ZOLOn : ZOLOff;
}

} // namespace

ZOLListValZOLIQrdCategory_var ZOLDlgCategoryGraph::AllCategories() const {
    ZOLListValZOLIQrdCategory_var all;
    ZOLGYRError error;
    const ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (!manager)
        return all;
    for (const ZOLIQrdConfigItem_var& dictionary : _viewer->GetDictionaries()) {
        ZOLListValZOLIQrdCategory_var categories;
        manager->GetCategoriesFromDictionary(dictionary, categories);
        all.Append(categories);
    }
    return all;
}

void ZOLDlgCategoryGraph::CategoriesCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLInteractiveApplication::GetApplication()->SetBusyCursor();
    if (ZOLCommand* former = _checkList.Get())
        former->RequestDelayedDestruction();
    ZOLListValZOLIQrdCategory_var shown;
    _viewer->GetCategories(shown, 0);
    std::unordered_set<ZOLUnicodeString> names;
    for (const ZOLIQrdCategory_var& category : shown)
        names.insert(category->GetName());
    auto* list = new ZOLDlgCheckList(this, Text("ShowCategories.Title"), AllCategories());
    ZOLListValZOLIQrdCategory_var listed;
    list->GetList(listed);
    ZOLRawCollint positions;
    for (int i = 1; i <= listed.Size(); ++i)
        if (names.contains(listed[i]->GetName()))
            positions.Append(i);
    list->SetChecked(positions);
    AddAnalyseNotificationCB(list, list->GetDiaOKNotification(),
                             ZOL_CALLBACK(&ZOLDlgCategoryGraph::ApplyCategoriesCB));
    list->SetVisibility(ZOLShown);
    _checkList = trellis::WeakCommand(list);
}

void ZOLDlgCategoryGraph::ApplyCategoriesCB(ZOLCommand* sender, ZOLNotification*, void*) {
    auto* list = static_cast<ZOLDlgCheckList*>(sender);
    ZOLListValZOLIQrdCategory_var checked;
    ZOLListValZOLIQrdCategory_var hidden;
    list->GetChecked(checked);
    list->GetList(hidden);
    hidden.Remove(checked);
    ZOLDMInstance product;
    _context->GetCurrentProduct(product);
    if (_filtersCategories == 1 && product.GetCoid() > 0)
        WriteCategoryFile(product, checked, hidden);
    list->RequestDelayedDestruction();
    if (_search) { // its list is that of the old categories
        _search->RequestDelayedDestruction();
        _search = nullptr;
    }
    const ZOLListValZOLIQrdConfigItem_var dictionaries = _viewer->GetDictionaries();
    _viewer->BuildGraph(checked, GetOptions(0), dictionaries);
    TellFather();
}

void ZOLDlgCategoryGraph::RulesOptionsCB(ZOLCommand*, ZOLNotification*, void*) {
    if (!_rulesOptions) {
        _rulesOptions = new ZOLDlgDialog(this, "RulesOptionsPanel", OkAlone);
        const auto add = [&](const char* name, int isOn) {
            auto* button = new ZOLDlgCheckButton(_rulesOptions, name);
            button->SetState(StateOf(isOn));
            AddAnalyseNotificationCB(button, button->GetChkBModifyNotification(),
                                     ZOL_CALLBACK(&ZOLDlgCategoryGraph::RulesOptionCheckCB));
            return button;
        };
        _directiveRulesCheck = add("DirectiveRulesCheck", _viewer->AreDirectiveRulesOn());
        _packagesCheck = add("PackagesCheck", _viewer->ArePackagesOn());
        _matricesCheck = add("MatricesCheck", _viewer->AreMatricesOn());
        for (ZOLNotification* end :
             {_rulesOptions->GetDiaOKNotification(), _rulesOptions->GetWindCloseNotification()})
            AddAnalyseNotificationCB(_rulesOptions, end,
                                     ZOL_CALLBACK(&ZOLDlgCategoryGraph::RulesOptionsCloseCB));
    }
    _rulesOptions->SetVisibility(ZOLShown);
}

void ZOLDlgCategoryGraph::RulesOptionCheckCB(ZOLCommand* button, ZOLNotification*, void*) {
    const bool isOn = static_cast<ZOLDlgCheckButton*>(button)->IsOn();
    if (button == _directiveRulesCheck)
        isOn ? DirectiveRulesOn() : DirectiveRulesOff();
    else if (button == _packagesCheck)
        isOn ? PackagesOn() : PackagesOff();
    else
        isOn ? MatricesOn() : MatricesOff();
}

void ZOLDlgCategoryGraph::RulesOptionsCloseCB(ZOLCommand*, ZOLNotification*, void*) {
    _rulesOptions->SetVisibility(ZOLHidden);
    if (!_viewer->AreRulesOn())
        return;
    _viewer->PlayRules();
    TellFather();
}

ZOLListValZOLQRDCfgEffectivity ZOLDlgCategoryGraph::OptionsOfGraph() const {
    ZOLListValZOLIQrdCategory_var categories;
    const int firstOther = _viewer->GetCategories(categories, 1);
    ZOLListValZOLQRDCfgEffectivity terms;
    std::unordered_set<ZOLUnicodeString> names;
    for (int i = 1; i <= categories.Size(); ++i) {
        ZOLListValZOLIQrdEffectivity_var options;
        categories[i]->GetOptions(options);
        for (const ZOLIQrdEffectivity_var& option : options) {
            const bool isNew = names.insert(option->GetOption()).second;
            if (isNew || firstOther == 0 || i < firstOther)
                terms.Append(ZOLQRDCfgEffectivity(option));
        }
    }
    return terms;
}

void ZOLDlgCategoryGraph::SearchOptionCB(ZOLCommand*, ZOLNotification*, void*) {
    if (!_search) {
        ZOLInteractiveApplication::GetApplication()->SetBusyCursor();
        _search = new ZOLDlgDialog(this, "SearchOptPanel", OkApplyCancel);
        _search->SetOKTitle(Text("SearchOptPanel.OK.Title"));
        _search->SetAPPLYTitle(Text("SearchOptPanel.Apply.Title"));
        _search->SetCANCELTitle(Text("SearchOptPanel.Cancel.Title"));
        _searchList = new ZOLQRDDlgOptionList(_search, "OptionList", SearchListStyle, nullptr);
        _searchList->SetList(OptionsOfGraph(), {}, 0);
        const auto on = [&](ZOLNotification* notification, ZOLNotificationMethod method) {
            AddAnalyseNotificationCB(_search, notification, method);
        };
        on(_search->GetDiaOKNotification(), ZOL_CALLBACK(&ZOLDlgCategoryGraph::SearchOptionHighlightCB));
        on(_search->GetDiaAPPLYNotification(), ZOL_CALLBACK(&ZOLDlgCategoryGraph::SearchOptionSelectCB));
        on(_search->GetDiaCANCELNotification(), ZOL_CALLBACK(&ZOLDlgCategoryGraph::SearchOptionCloseCB));
        on(_search->GetWindCloseNotification(), ZOL_CALLBACK(&ZOLDlgCategoryGraph::SearchOptionCloseCB));
    }
    _search->SetVisibility(ZOLShown);
}

ZOLListValZOLQRDCfgEffectivity ZOLDlgCategoryGraph::NextFound() {
    ZOLListValZOLQRDCfgEffectivity terms = _searchList->GetAvailableSelect();
    if (terms.Size() > 0 && ++_searchPosition > terms.Size())
        _searchPosition = 1;
    return terms;
}

void ZOLDlgCategoryGraph::SearchOptionHighlightCB(ZOLCommand*, ZOLNotification*, void*) {
    const ZOLListValZOLQRDCfgEffectivity terms = NextFound();
    if (terms.Size() > 0)
        _viewer->SetHighlighted(terms, _searchPosition);
}

void ZOLDlgCategoryGraph::SearchOptionSelectCB(ZOLCommand*, ZOLNotification*, void*) {
    const ZOLListValZOLQRDCfgEffectivity terms = NextFound();
    if (terms.Size() == 0)
        return;
    _viewer->SetSelected(terms, _searchPosition, 0);
    TellFather();
}

void ZOLDlgCategoryGraph::SearchOptionCloseCB(ZOLCommand*, ZOLNotification*, void*) {
    _search->SetVisibility(ZOLHidden);
    _viewer->UnHighlightAll();
}

void ZOLDlgCategoryGraph::ColorLegendCB(ZOLCommand*, ZOLNotification*, void*) {
    if (!_legend) {
        _legend = new ZOLDlgDialog(this, "ColorLegendPanel", OkAlone);
        _legend->SetRectDimensions(LegendWidth, LegendHeight);
        trellis::ColorLegend(*_legend, IsAdvancedConfigMode() != 0).Build();
        for (ZOLNotification* end : {_legend->GetDiaOKNotification(), _legend->GetWindCloseNotification()})
            AddAnalyseNotificationCB(_legend, end, ZOL_CALLBACK(&ZOLDlgCategoryGraph::ColorLegendCloseCB));
    }
    _legend->SetVisibility(ZOLShown);
}

void ZOLDlgCategoryGraph::ColorLegendCloseCB(ZOLCommand*, ZOLNotification*, void*) {
    _legend->SetVisibility(ZOLHidden);
}
