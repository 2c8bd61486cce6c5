#include "graph/ZOLDlgCategoryGraph.h"

#include "graph/CategoryFile.h"
#include "graph/GraphColours.h"
#include "service/ZOLQRDCfgManager.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgRadioButton.h"
#include "values/ZOLGYRError.h"
#include "widgets/ZOLDlgProdContextManager.h"

#include <algorithm>
#include <unordered_set>

// ZOLDlgCategoryGraph: what its owner asks of it. The controls are made in CategoryGraphControls.cpp; what a user does
// with them is in CategoryGraphCommands.cpp, and the windows that they open in CategoryGraphWindows.cpp.

namespace {

constexpr unsigned long NoBorder = 0x80000;
constexpr int AsResultPanelSays = -1;
constexpr int FilterOff = 0;
constexpr int RulesOnLine = 0;
constexpr int RulesOffLine = 1;

bool HasRules(const ZOLListValZOLIQrdConfigItem_var& dictionaries) {
    ZOLGYRError error;
    const ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    return manager && std::ranges::any_of(dictionaries, [&](const ZOLIQrdConfigItem_var& dictionary) {
               ZOLListValZOLIQrdConfigRule_var rules;
               manager->GetConfigRulesFromDictionary(dictionary, rules);
               return rules.Size() > 0;
           });
}

ZOLIQrdConfigItem_var DictionaryOf(const ZOLDMInstance& product) {
    ZOLGYRError error;
    const ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (!manager)
        return {};
    ZOLQRDConfigurableObject object;
    manager->GetConfigurableObject(product, object, error);
    return error.GetCode() == 0 ? object.GetDictionary() : ZOLIQrdConfigItem_var();
}

ZOLListValZOLUnicodeString NamesOf(const ZOLListValZOLIQrdCategory_var& categories) {
    ZOLListValZOLUnicodeString names;
    for (const ZOLIQrdCategory_var& category : categories)
        names.Append(category->GetName());
    return names;
}

void SetOn(ZOLDlgCheckButton* button, bool on) {
    if (button)
        button->SetState(on ? ZOLOn : ZOLOff);
}

} // namespace

ZOLDlgCategoryGraph::ZOLDlgCategoryGraph(ZOLDialog* parent, const ZOLString& name,
                                         const ZOLUnicodeString& title, const int style,
                                         const ZOLListValZOLDMInstance& products, const int configMode,
                                         const int width, const int height, const int flag)
    : ZOLIQRDCategoryGraph(parent, name, NoBorder),
      _style(style),
      _title(title),
      _filtersCategories(AsResultPanelSays),
      _configMode(configMode) {
    Build(width, height, flag);
    SetProduct(products);
}

ZOLDlgCategoryGraph::ZOLDlgCategoryGraph(ZOLDialog* parent, const ZOLString& name,
                                         const ZOLUnicodeString& title, const int style,
                                         const ZOLDMInstance& instance,
                                         const ZOLListValZOLDMInstance& products,
                                         const ZOLListValZOLQRDCfgEffectivity& terms, const int configMode,
                                         const int rulesOn, const int checkMode, const int width,
                                         const int height, const int flag)
    : ZOLIQRDCategoryGraph(parent, name, NoBorder),
      _style(style),
      _title(title),
      _filtersCategories(AsResultPanelSays),
      _configMode(configMode),
      _instance(instance),
      _products(products) {
    Build(width, height, flag);
    if (!rulesOn)
        RulesOff();
    if (checkMode)
        RulesForCheck();
    ZOLDMInstance product;
    _context->GetCurrentProduct(product);
    if (product.GetCoid() > 0)
        BuildGraph(product, terms, 0);
    SetProduct(products);
}

ZOLDlgCategoryGraph::ZOLDlgCategoryGraph(ZOLDialog* parent, const ZOLString& name,
                                         const ZOLUnicodeString& title, const int style, const int configMode,
                                         const int width, const int height, const int flag)
    : ZOLIQRDCategoryGraph(parent, name, NoBorder),
      _style(style),
      _title(title),
      _filtersCategories(FilterOff),
      _configMode(configMode) {
    Build(width, height, flag);
}

ZOLDlgCategoryGraph::~ZOLDlgCategoryGraph() = default;

ZOLString ZOLDlgCategoryGraph::GetResourceFilename(int level) const {
    return level == 0 ? "ZOLDlgCategoryGraph" : ZOLIQRDCategoryGraph::GetResourceFilename(level - 1);
}

ZOLUnicodeString ZOLDlgCategoryGraph::Text(const char* key) const {
    ZOLUnicodeString text;
    GetResourceValueFromKey(key, text);
    return text;
}

void ZOLDlgCategoryGraph::BuildGraph(const ZOLDMInstance& product,
                                     const ZOLListValZOLQRDCfgEffectivity& terms, const int checkRules) {
    const ZOLIQrdConfigItem_var dictionary = DictionaryOf(product);
    ZOLListValZOLIQrdConfigItem_var dictionaries;
    ZOLListValZOLIQrdCategory_var categories;
    ZOLGYRError error;
    if (dictionary != NULL_var) {
        dictionaries.Append(dictionary);
        ZOLQRDCfgManager::CurrentCfgManager(error)->GetCategoriesFromDictionary(dictionary, categories);
    }
    if (checkRules)
        CheckRules(dictionaries);
    ShowRules();
    if (_filtersCategories == 1)
        FilterCategories(product, categories);
    _viewer->BuildGraph(categories, terms, dictionaries);
}

void ZOLDlgCategoryGraph::BuildGraph(const ZOLListValZOLIQrdCategory_var& categories,
                                     const ZOLListValZOLQRDCfgEffectivity& terms,
                                     const ZOLListValZOLIQrdConfigItem_var& dictionaries) {
    CheckRules(dictionaries);
    ShowRules();
    _viewer->BuildGraph(categories, terms, dictionaries);
}

void ZOLDlgCategoryGraph::CheckRules(const ZOLListValZOLIQrdConfigItem_var& dictionaries) {
    if (_hidesRules)
        HasRules(dictionaries) ? EnableRules() : DisableRules();
}

void ZOLDlgCategoryGraph::ShowRules() {
    if (_rulesFrame)
        _rulesFrame->SetVisibility(ZOLShown);
}

void ZOLDlgCategoryGraph::SetProduct(const ZOLListValZOLDMInstance& products) {
    _products = products;
    _context->SetProduct(products, 1);
}

void ZOLDlgCategoryGraph::RulesForSelect() {
    if (_selectMode)
        _selectMode->SetState(ZOLOn);
    _viewer->RulesSelectMode(1);
}

void ZOLDlgCategoryGraph::RulesForCheck() {
    if (_checkMode)
        _checkMode->SetState(ZOLOn);
    _viewer->RulesCheckMode(1);
}

void ZOLDlgCategoryGraph::RulesOn() {
    _viewer->RulesOn(1);
    ShowRulesState();
}

void ZOLDlgCategoryGraph::RulesOff() {
    _viewer->RulesOff(1);
    ShowRulesState();
}

void ZOLDlgCategoryGraph::ShowRulesState() {
    const bool areOn = _viewer->AreRulesOn() != 0;
    if (_rulesCombo)
        _rulesCombo->SetSelect(areOn ? RulesOnLine : RulesOffLine);
    if (_applyRules)
        _applyRules->SetSensitivity(areOn ? ZOLGreyed : ZOLActive);
}

void ZOLDlgCategoryGraph::DirectiveRulesOn() {
    _viewer->DirectiveRulesOn();
    SetOn(_directiveRulesCheck, true);
}

void ZOLDlgCategoryGraph::DirectiveRulesOff() {
    _viewer->DirectiveRulesOff();
    SetOn(_directiveRulesCheck, false);
}

void ZOLDlgCategoryGraph::PackagesOn() {
    _viewer->PackagesOn();
    SetOn(_packagesCheck, true);
}

void ZOLDlgCategoryGraph::PackagesOff() {
    _viewer->PackagesOff();
    SetOn(_packagesCheck, false);
}

void ZOLDlgCategoryGraph::MatricesOn() {
    _viewer->MatricesOn();
    SetOn(_matricesCheck, true);
}

void ZOLDlgCategoryGraph::MatricesOff() {
    _viewer->MatricesOff();
    SetOn(_matricesCheck, false);
}

void ZOLDlgCategoryGraph::SetConfigMode(int isAdvanced) {
    _configMode = isAdvanced;
    isAdvanced ? _viewer->AdvancedConfigMode() : _viewer->SimpleConfigMode();
    if (_configModeLabel)
        _configModeLabel->SetTitle(Text(isAdvanced ? "ConfigModeAdvanced.Title" : "ConfigModeSimple.Title"));
}

void ZOLDlgCategoryGraph::SimpleConfigMode() {
    SetConfigMode(0);
}

void ZOLDlgCategoryGraph::AdvancedConfigMode() {
    SetConfigMode(1);
}

ZOLListValZOLUnicodeString ZOLDlgCategoryGraph::GetSelectedOptionName() const {
    ZOLListValZOLUnicodeString names;
    for (const ZOLParameter* parameter : GetParameters())
        if (!parameter->IsNot())
            names.Append(parameter->GetOption());
    return names;
}

ZOLListVal<int> ZOLDlgCategoryGraph::GetListOfStatus() const {
    ZOLListVal<int> status;
    const auto append = [&](bool isFirst) {
        const int first = 2 * status.Size() + 1;
        status.Append(isFirst ? first : first + 1);
    };
    append(_viewer->IsAdvancedConfigMode() != 0);
    append(_viewer->IsRulesCheckMode() == 0);
    append(_viewer->AreRulesOn() != 0);
    append(_viewer->AreDirectiveRulesOn() != 0);
    append(_viewer->ArePackagesOn() != 0);
    append(_viewer->AreMatricesOn() != 0);
    return status;
}

void ZOLDlgCategoryGraph::WriteCategoryFile(const ZOLDMInstance& instance,
                                            const ZOLListValZOLIQrdCategory_var& shown,
                                            const ZOLListValZOLIQrdCategory_var& hidden) const {
    trellis::CategoryFile::Write(trellis::CategoryFile::PathOf(instance), NamesOf(shown), NamesOf(hidden));
}

void ZOLDlgCategoryGraph::ReadCategoryFile(const ZOLDMInstance& instance,
                                           ZOLListValZOLUnicodeString& names) const {
    names = trellis::CategoryFile::ReadHidden(trellis::CategoryFile::PathOf(instance));
}

void ZOLDlgCategoryGraph::FilterCategories(const ZOLDMInstance& instance,
                                           ZOLListValZOLIQrdCategory_var& categories) const {
    ZOLListValZOLUnicodeString names;
    ReadCategoryFile(instance, names);
    const std::unordered_set<ZOLUnicodeString> hidden(names.begin(), names.end());
    ZOLListValZOLIQrdCategory_var kept;
    for (const ZOLIQrdCategory_var& category : categories)
        if (!hidden.contains(category->GetName()))
            kept.Append(category);
    categories = kept;
}

void ZOLDlgCategoryGraph::ExtractOptFromString(const ZOLUnicodeString& typed,
                                               ZOLListValZOLUnicodeString& names) const {
    names.Append(trellis::RapidSelect::Split(typed));
}

void ZOLDlgCategoryGraph::GetOptFromName(const ZOLListValZOLUnicodeString& names,
                                         ZOLListValZOLQRDCfgEffectivity& terms) {
    if (!_rapidSelect.HasNames())
        _rapidSelect.ReadNames(_viewer->GetDictionaries());
    terms = _rapidSelect.Find(names, _rapidMode);
}

std::optional<ZOLParameter> ZOLDlgCategoryGraph::GetOption(const ZOLGraphNode* node) const {
    const auto* option = dynamic_cast<const ZOLOptionNode*>(node);
    if (!option)
        return std::nullopt;
    return ZOLParameter(option->GetOption().GetCategory(), option->GetOptionName(), 0);
}

int ZOLDlgCategoryGraph::IsInConflict() const {
    return _viewer->GetRootNode()->getColor() == trellis::GraphColours::Conflict;
}

int ZOLDlgCategoryGraph::CountOpenCategories() const {
    return static_cast<int>(std::ranges::count_if(
        _viewer->GetCategoryNodes(), [](const ZOLCategoryNode* node) { return node->IsUndecided(); }));
}

void ZOLDlgCategoryGraph::ChooseInstead(const ZOLListPtrZOLParameter& parameters,
                                        const ZOLListValZOLUnicodeString& ignoredCategories) {
    _viewer->ChooseInstead(parameters, ignoredCategories);
}
