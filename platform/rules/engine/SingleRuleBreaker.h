#pragma once

#include "rules/engine/ModelRepair.h"

namespace trellis {

// SingleRuleBreaker: finds, without a solver and near one model, a choice of options that breaks one rule alone. What
// it finds is sure; what it does not find may still exist.
class SingleRuleBreaker {
public:
    // The rules do not contradict each other.
    explicit SingleRuleBreaker(const RuleClauses& clauses);

    bool CanBreak(const RuleClauses::Block& rule);

private:
    bool CanBreakClause(std::span<const Literal> clause);

    const RuleClauses& _clauses;
    ClauseStore _store;
    UnitTrail _trail; // pins nothing: what follows may follow from the very rule that is to be broken
    ModelRepair _repair;
};

} // namespace trellis
