#include "rules/engine/RuleCheck.h"

#include "rules/engine/FormulaCompiler.h"
#include "rules/engine/RuleViolation.h"
#include "rules/engine/SingleRuleBreaker.h"

#include <algorithm>

namespace trellis {

RuleFindings RuleCheck::Run() {
    RuleFindings findings;
    findings.contradiction = _engine.WhyConflict({});
    if (findings.contradiction)
        return findings;
    findings.fixedOptions = FixedOptions();
    findings.idleRules = IdleRules();
    return findings;
}

std::vector<RuleFindings::FixedOption> RuleCheck::FixedOptions() {
    std::vector<RuleFindings::FixedOption> fixed;
    const std::vector<RuleLiteral> forced = _engine.Play({}).forced;
    for (const RuleLiteral& literal : forced)
        fixed.push_back({literal, *_engine.Why({}, literal)});
    return fixed;
}

std::vector<RuleFindings::IdleRule> RuleCheck::IdleRules() {
    std::vector<RuleFindings::IdleRule> idle;
    SingleRuleBreaker breaker(_engine.Clauses());
    for (const RuleClauses::Block& block : _engine.Clauses().Blocks()) {
        if (block.reason.kind == RuleReason::Kind::Mandatory || breaker.CanBreak(block))
            continue;
        if (auto reason = ReasonOf(block.reason))
            idle.push_back({block.reason, std::move(*reason)});
    }
    return idle;
}

// That the rule is broken contradicts all the others.
std::optional<RuleExplanation> RuleCheck::ReasonOf(RuleReason rule) {
    Explanation& reasons = _engine.Reasons();
    FormulaCompiler compiler([&] { return reasons.NewVariable(); });
    auto broken = compiler.Compile(ViolationOf(_engine.Model(), rule), true);
    return reasons.Find({RuleSetting({}, _engine.Clauses()), {}, std::move(broken), rule});
}

} // namespace trellis
