#pragma once

#include "rules/engine/RuleClauses.h"
#include "rules/engine/SolverLink.h"

#include <vector>

namespace trellis {

// SolverConfirmation: asks a solver of its own about every option, twice, with all rules on; for rule sets too large
// to go through every choice.
class SolverConfirmation {
public:
    explicit SolverConfirmation(const RuleClauses& clauses);

    bool CanStand(const std::vector<RuleLiteral>& literals);
    // What follows from literals that can stand together, beside themselves.
    std::vector<RuleLiteral> Forced(const std::vector<RuleLiteral>& given);

private:
    int _optionCount;
    SolverLink _solver;
};

} // namespace trellis
