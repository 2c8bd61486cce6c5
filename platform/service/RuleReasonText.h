#pragma once

#include "rules/engine/RuleCheck.h"
#include "service/DictionaryRules.h"
#include "service/ZOLRuleHandler.h"

namespace trellis {

// RuleReasonText: what the engine says by numbers, by names and handles.
class RuleReasonText {
public:
    explicit RuleReasonText(const DictionaryRules& rules);

    static ZOLParameter Parameter(const DictionaryRules& rules, const RuleLiteral& literal);

    // The user's choices first.
    std::vector<RuleReasonItem> Items(const RuleExplanation& explanation) const;
    std::vector<RuleFinding> LeftOut() const;
    std::vector<RuleFinding> Findings(const RuleFindings& findings) const;

private:
    RuleReasonItem Item(const RuleReason& reason) const;
    RuleReasonItem Item(const RecordOf<ConfigRuleRow>& rule, RuleReasonItem::Kind kind) const;

    const DictionaryRules& _rules;
    const std::shared_ptr<ConfigurationMemory> _memory;
};

} // namespace trellis
