#include "service/RuleReasonText.h"

#include "values/FailureTrace.h"

namespace trellis {

namespace {

std::shared_ptr<ConfigurationMemory> OpenMemory() {
    FailureTrace trace("RuleReasonText");
    return ConfigurationMemory::Current(trace);
}

} // namespace

RuleReasonText::RuleReasonText(const DictionaryRules& rules) : _rules(rules), _memory(OpenMemory()) {}

ZOLParameter RuleReasonText::Parameter(const DictionaryRules& rules, const RuleLiteral& literal) {
    const DictionaryRules::Option& option = rules.Options()[static_cast<std::size_t>(literal.option)];
    return ZOLParameter(option.name.category, rules.CategoryDescription(option.category), option.name.option,
                        option.description, !literal.isChosen);
}

std::vector<RuleReasonItem> RuleReasonText::Items(const RuleExplanation& explanation) const {
    std::vector<RuleReasonItem> items;
    for (const RuleLiteral& choice : explanation.given) {
        RuleReasonItem item;
        item.text = Parameter(_rules, choice).GetParameterString(1);
        items.push_back(std::move(item));
    }
    for (const RuleReason& reason : explanation.rules)
        items.push_back(Item(reason));
    return items;
}

RuleReasonItem RuleReasonText::Item(const RecordOf<ConfigRuleRow>& rule, RuleReasonItem::Kind kind) const {
    FailureTrace trace("RuleReasonText::Item");
    RuleReasonItem item;
    item.kind = kind;
    item.name = rule->Row().name;
    const auto dictionary = _memory ? _memory->ItemOfId(rule->Row().configItem, trace) : nullptr;
    if (dictionary)
        item.rule = _memory->Handle(rule, dictionary);
    item.text = item.rule ? item.rule->GetRuleString() : ZOLUnicodeString(rule->Row().text);
    return item;
}

RuleReasonItem RuleReasonText::Item(const RuleReason& reason) const {
    FailureTrace trace("RuleReasonText::Item");
    RuleReasonItem item;
    switch (reason.kind) {
    case RuleReason::Kind::Directive:
        return Item(_rules.Directive(reason.number), RuleReasonItem::Kind::Directive);
    case RuleReason::Kind::Package:
        return Item(_rules.Package(reason.number), RuleReasonItem::Kind::Package);
    case RuleReason::Kind::Matrix: {
        const auto& matrix = _rules.Matrix(reason.number);
        item.kind = RuleReasonItem::Kind::Matrix;
        item.name = matrix->Row().name;
        const auto dictionary = _memory ? _memory->ItemOfId(matrix->Row().configItem, trace) : nullptr;
        if (dictionary)
            item.matrix = _memory->Handle(matrix, dictionary);
        return item;
    }
    case RuleReason::Kind::Exclusive:
        item.kind = RuleReasonItem::Kind::ExclusiveCategory;
        break;
    case RuleReason::Kind::Mandatory:
        item.kind = RuleReasonItem::Kind::MandatoryCategory;
        break;
    }
    item.name = _rules.Category(reason.number).name;
    return item;
}

std::vector<RuleFinding> RuleReasonText::LeftOut() const {
    std::vector<RuleFinding> findings;
    for (const DictionaryRules::LeftOut& rule : _rules.RulesLeftOut()) {
        RuleFinding finding;
        finding.subject =
            Item(rule.rule, rule.rule->Row().type == ConfigRuleRow::Package ? RuleReasonItem::Kind::Package
                                                                            : RuleReasonItem::Kind::Directive)
                .Line();
        finding.verdict = rule.verdict;
        findings.push_back(std::move(finding));
    }
    return findings;
}

std::vector<RuleFinding> RuleReasonText::Findings(const RuleFindings& findings) const {
    std::vector<RuleFinding> result;
    if (findings.contradiction)
        result.push_back({RuleFinding::Kind::Contradiction, {}, {}, Items(*findings.contradiction)});
    for (const RuleFindings::FixedOption& option : findings.fixedOptions)
        result.push_back(
            {option.literal.isChosen ? RuleFinding::Kind::AlwaysChosen : RuleFinding::Kind::NeverChosen,
             Parameter(_rules, {option.literal.option, true}).GetParameterString(0),
             {},
             Items(option.reason)});
    for (const RuleFindings::IdleRule& rule : findings.idleRules)
        result.push_back({RuleFinding::Kind::SaysNothing, Item(rule.rule).Line(), {}, Items(rule.reason)});
    return result;
}

} // namespace trellis
