#include "rules/engine/SolverConfirmation.h"

#include <algorithm>

namespace trellis {

SolverConfirmation::SolverConfirmation(const RuleClauses& clauses)
    : _optionCount(clauses.OptionCount()), _solver(clauses.VariableCount()) {
    _solver.AddAll(ClauseStore(clauses, RuleSetting({}, clauses)));
}

bool SolverConfirmation::CanStand(const std::vector<RuleLiteral>& literals) {
    std::vector<Literal> assumptions;
    for (const RuleLiteral& literal : literals)
        assumptions.push_back(MakeLiteral(literal));
    return _solver.IsSatisfiable(assumptions);
}

std::vector<RuleLiteral> SolverConfirmation::Forced(const std::vector<RuleLiteral>& given) {
    std::vector<RuleLiteral> forced;
    std::vector<RuleLiteral> question = given;
    for (int option = 0; option < _optionCount; ++option) {
        const auto isGiven = [&](const RuleLiteral& literal) { return literal.option == option; };
        if (std::any_of(given.begin(), given.end(), isGiven))
            continue;
        question.push_back({option, true});
        const bool canStand = CanStand(question);
        question.back().isChosen = false;
        if (canStand != CanStand(question))
            forced.push_back({option, canStand});
        question.pop_back();
    }
    return forced;
}

} // namespace trellis
