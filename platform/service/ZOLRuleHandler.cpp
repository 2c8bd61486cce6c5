#include "service/ZOLRuleHandler.h"

#include "rules/engine/RuleCheck.h"
#include "rules/language/RuleText.h"
#include "service/DictionaryRules.h"
#include "service/RuleReasonText.h"
#include "service/StoredConfigItem.h"
#include "service/ZOLCompatibilityRule.h"
#include "service/ZOLDirectiveRule.h"
#include "service/ZOLPackageRule.h"
#include "service/ZOLQRDCfgManager.h"
#include "values/FailureTrace.h"

#include <algorithm>

using trellis::ConfigurationMemory;
using trellis::DictionaryRules;
using trellis::OptionReference;
using trellis::RuleLiteral;
using trellis::RuleQuestion;
using trellis::RuleReasonItem;
using trellis::RuleReasonText;

namespace {

OptionReference NameOf(const ZOLParameter& parameter) {
    return {parameter.GetCategory().Bytes(), parameter.GetOption().Bytes()};
}

// The parameters given that mean these literals, as new objects.
void AppendGiven(const DictionaryRules& rules, const std::vector<RuleLiteral>& literals,
                 const ZOLListPtrZOLParameter& given, ZOLListPtrZOLParameter& list) {
    for (const ZOLParameter* parameter : given) {
        if (!parameter)
            continue;
        const RuleLiteral literal{rules.NumberOf(NameOf(*parameter)), !parameter->IsNot()};
        if (std::ranges::find(literals, literal) != literals.end() &&
            !ParameterInList(parameter, list, 1, -1))
            list.Append(new ZOLParameter(*parameter));
    }
}

bool MentionsAny(const ZOLListValZOLUnicodeString& names, const std::string& name) {
    return !name.empty() && names.Locate(name, 1) > 0;
}

} // namespace

ZOLRuleHandler::ZOLRuleHandler(const ZOLListValZOLIQrdConfigItem_var& dictionaries)
    : _dictionaries(dictionaries) {}

ZOLRuleHandler::ZOLRuleHandler(const ZOLIQrdConfigItem_var& dictionary,
                               const ZOLListValZOLIQrdCategory_var& categories,
                               const ZOLListValZOLQRDCfgEffectivity& options) {
    if (dictionary)
        _dictionaries.Append(dictionary);
    for (const ZOLIQrdCategory_var& category : categories)
        if (category)
            _categories.Append(category->GetName());
    for (const ZOLQRDCfgEffectivity& option : options)
        _options.Append(option.GetName());
}

ZOLRuleHandler::~ZOLRuleHandler() = default;

void ZOLRuleHandler::DisableDirectiveRules() {
    _useDirectives = false;
}

void ZOLRuleHandler::DisablePackages() {
    _usePackages = false;
}

void ZOLRuleHandler::DisableMatrices() {
    _useMatrices = false;
}

bool ZOLRuleHandler::PassesFilter(const ZOLUnicodeString& text) const {
    if (_categories.Size() == 0 && _options.Size() == 0)
        return true;
    const auto references = trellis::RuleText::References(text);
    return std::ranges::any_of(references, [this](const OptionReference& reference) {
        return MentionsAny(_categories, reference.category) || MentionsAny(_options, reference.option);
    });
}

ZOLListValZOLIQrdConfigRule_var ZOLRuleHandler::GetListOfConfigRules() const {
    trellis::FailureTrace trace("ZOLRuleHandler::GetListOfConfigRules");
    ZOLListValZOLIQrdConfigRule_var passed;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(trace);
    for (int i = 1; manager && i <= _dictionaries.Size(); ++i) {
        ZOLListValZOLIQrdConfigRule_var rules;
        manager->GetConfigRulesFromDictionary(_dictionaries[i], rules);
        for (const ZOLIQrdConfigRule_var& rule : rules)
            if (rule->GetType() != ZOLCompatibilityRuleType && PassesFilter(rule->GetRuleString()))
                passed.Append(rule);
    }
    return passed;
}

bool ZOLRuleHandler::PassesFilter(const ZOLIQrdCompatibilityMatrix_var& matrix) const {
    if (_categories.Size() == 0 && _options.Size() == 0)
        return true;
    ZOLListValZOLIQrdCategory_var columns;
    matrix->GetCategories(columns);
    for (const ZOLIQrdCategory_var& column : columns)
        if (_categories.Locate(column->GetName(), 1) > 0)
            return true;
    ZOLListValZOLIQrdConfigRule_var rows;
    matrix->GetRules(rows);
    for (const ZOLIQrdConfigRule_var& row : rows)
        for (const OptionReference& cell : trellis::RuleText::References(row->GetRuleString()))
            if (MentionsAny(_options, cell.option))
                return true;
    return false;
}

ZOLListValZOLIQrdCompatibilityMatrix_var ZOLRuleHandler::GetListOfMatrices() const {
    trellis::FailureTrace trace("ZOLRuleHandler::GetListOfMatrices");
    ZOLListValZOLIQrdCompatibilityMatrix_var passed;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(trace);
    for (int i = 1; manager && i <= _dictionaries.Size(); ++i) {
        ZOLListValZOLIQrdCompatibilityMatrix_var matrices;
        manager->GetCompatibilityMatricesFromDictionary(_dictionaries[i], matrices);
        for (const ZOLIQrdCompatibilityMatrix_var& matrix : matrices)
            if (PassesFilter(matrix))
                passed.Append(matrix);
    }
    return passed;
}

ZOLConfigRule* ZOLRuleHandler::RuleFromConfigRule(const ZOLIQrdConfigRule_var& rule) {
    if (!rule)
        return nullptr;
    switch (rule->GetType()) {
    case ZOLDirectiveRuleType:
        return new ZOLDirectiveRule(rule->GetRuleString(), rule->GetName(), rule->GetDescription());
    case ZOLPackageRuleType:
        return new ZOLPackageRule(rule->GetRuleString(), rule->GetName(), rule->GetDescription());
    default:
        return new ZOLCompatibilityRule(rule);
    }
}

std::shared_ptr<DictionaryRules> ZOLRuleHandler::Rules() const {
    trellis::FailureTrace trace("ZOLRuleHandler::Rules");
    const auto memory = ConfigurationMemory::Current(trace);
    if (!memory)
        return nullptr;
    std::vector<trellis::RecordOf<trellis::ConfigItemRow>> records;
    for (const ZOLIQrdConfigItem_var& dictionary : _dictionaries) {
        const auto* stored = dynamic_cast<const trellis::StoredConfigItem*>(dictionary.Get());
        if (stored && stored->Record()->IsAlive())
            records.push_back(stored->Record());
    }
    return DictionaryRules::Of(*memory, records, trace);
}

RuleQuestion ZOLRuleHandler::Question(const DictionaryRules& rules,
                                      const ZOLListPtrZOLParameter& parameters) const {
    RuleQuestion question;
    question.areDirectivesOn = _useDirectives;
    question.arePackagesOn = _usePackages;
    question.areMatricesOn = _useMatrices;
    for (const ZOLParameter* parameter : parameters) {
        if (!parameter)
            continue;
        const OptionReference name = NameOf(*parameter);
        if (const int option = rules.NumberOf(name); option >= 0)
            question.given.push_back({option, !parameter->IsNot()});
        if (const int category = rules.NumberOfCategory(name.category); category >= 0)
            question.exclusivity.emplace_back(category, parameter->GetCategoryExclusivity() != 0);
    }
    return question;
}

void ZOLRuleHandler::SolveRulesForOptions(const ZOLListPtrZOLParameter& parameters, ZOLExpression& result,
                                          ZOLListPtrZOLExpression&, int& incompatible,
                                          ZOLListPtrZOLParameter& conflicts,
                                          ZOLListPtrZOLParameter& irresolutions) {
    incompatible = 0;
    const std::shared_ptr<DictionaryRules> rules = Rules();
    if (!rules)
        return;
    const RuleQuestion question = Question(*rules, parameters);
    const trellis::RuleAnswer& answer = rules->Engine().Play(question);
    std::vector<int> exclusivity;
    for (const trellis::CategoryModel& category : rules->Engine().Model().categories)
        exclusivity.push_back(category.isExclusive);
    for (const auto& [category, isExclusive] : question.exclusivity)
        exclusivity[static_cast<std::size_t>(category)] = isExclusive;
    const auto parameter = [&](const RuleLiteral& literal) {
        ZOLParameter made = RuleReasonText::Parameter(*rules, literal);
        const int category = rules->Options()[static_cast<std::size_t>(literal.option)].category;
        made.SetCategoryExclusivity(exclusivity[static_cast<std::size_t>(category)]);
        made.SetParameterSource(ZOLParameter::SourceRule);
        return made;
    };
    incompatible = answer.isContradictory;
    for (const RuleLiteral& literal : answer.forced)
        result.AddParameter(parameter(literal), 1);
    AppendGiven(*rules, answer.conflict, parameters, conflicts);
    for (const int option : answer.irresolutions)
        irresolutions.Append(new ZOLParameter(parameter({option, true})));
}

std::vector<RuleReasonItem> ZOLRuleHandler::Why(const ZOLListPtrZOLParameter& parameters,
                                                const ZOLParameter& state) {
    const std::shared_ptr<DictionaryRules> rules = Rules();
    const int option = rules ? rules->NumberOf(NameOf(state)) : -1;
    if (option < 0)
        return {};
    const auto reason = rules->Engine().Why(Question(*rules, parameters), {option, !state.IsNot()});
    return reason ? RuleReasonText(*rules).Items(*reason) : std::vector<RuleReasonItem>();
}

std::vector<RuleReasonItem> ZOLRuleHandler::WhyConflict(const ZOLListPtrZOLParameter& parameters) {
    const std::shared_ptr<DictionaryRules> rules = Rules();
    if (!rules)
        return {};
    const auto reason = rules->Engine().WhyConflict(Question(*rules, parameters));
    return reason ? RuleReasonText(*rules).Items(*reason) : std::vector<RuleReasonItem>();
}

std::vector<std::vector<ZOLParameter>> ZOLRuleHandler::Repairs(const ZOLListPtrZOLParameter& parameters,
                                                               int limit) {
    const std::shared_ptr<DictionaryRules> rules = Rules();
    std::vector<std::vector<ZOLParameter>> repairs;
    if (!rules || limit < 1)
        return repairs;
    for (const auto& literals :
         rules->Engine().Repairs(Question(*rules, parameters), static_cast<std::size_t>(limit))) {
        ZOLListPtrZOLParameter given;
        AppendGiven(*rules, literals, parameters, given);
        repairs.emplace_back();
        for (const ZOLParameter* parameter : given)
            repairs.back().push_back(*parameter);
        ZOLDeleteElements(given);
    }
    return repairs;
}

std::vector<trellis::RuleFinding> ZOLRuleHandler::RulesLeftOut() {
    const std::shared_ptr<DictionaryRules> rules = Rules();
    return rules ? RuleReasonText(*rules).LeftOut() : std::vector<trellis::RuleFinding>();
}

std::vector<trellis::RuleFinding> ZOLRuleHandler::CheckRules() {
    const std::shared_ptr<DictionaryRules> rules = Rules();
    if (!rules)
        return {};
    std::vector<trellis::RuleFinding> findings = RuleReasonText(*rules).LeftOut();
    const auto more = RuleReasonText(*rules).Findings(trellis::RuleCheck(rules->Engine()).Run());
    findings.insert(findings.end(), more.begin(), more.end());
    return findings;
}
