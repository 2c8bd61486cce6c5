#pragma once

#include "rules/engine/RuleEngine.h"

#include <optional>
#include <vector>

namespace trellis {

// What is wrong or needless about a rule set, each with its reason. Reasons have no given literals.
struct RuleFindings {
    struct FixedOption {
        RuleLiteral literal; // chosen: always; rejected: it never can be
        RuleExplanation reason;
    };
    struct IdleRule {
        RuleReason rule;        // never about a category
        RuleExplanation reason; // other rules that say it already; no rule at all where it always holds
    };

    std::optional<RuleExplanation> contradiction; // then nothing else is looked for: everything follows
    std::vector<FixedOption> fixedOptions;        // in the order of options
    std::vector<IdleRule> idleRules;              // sorted
};

// RuleCheck: looks through a whole rule set as it stands, all kinds of rules on and nothing chosen. Of rules that say
// the same each is a finding.
class RuleCheck {
public:
    explicit RuleCheck(RuleEngine& engine) : _engine(engine) {}

    RuleFindings Run();

private:
    std::vector<RuleFindings::FixedOption> FixedOptions();
    std::vector<RuleFindings::IdleRule> IdleRules();
    std::optional<RuleExplanation> ReasonOf(RuleReason rule);

    RuleEngine& _engine;
};

} // namespace trellis
