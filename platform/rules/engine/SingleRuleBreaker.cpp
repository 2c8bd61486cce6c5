#include "rules/engine/SingleRuleBreaker.h"

#include "rules/engine/SolverLink.h"

#include <algorithm>
#include <utility>

namespace trellis {

SingleRuleBreaker::SingleRuleBreaker(const RuleClauses& clauses)
    : _clauses(clauses), _store(clauses, RuleSetting({}, clauses)), _trail(_store), _repair(_store, _trail) {
    SolverLink solver(_store.VariableCount());
    solver.AddAll(_store);
    solver.IsSatisfiable({});
    std::vector<char> values;
    for (int variable = 0; variable < _store.VariableCount(); ++variable)
        values.push_back(solver.IsTrue(variable) ? 1 : 0);
    _repair.SetModel(std::move(values));
}

bool SingleRuleBreaker::CanBreak(const RuleClauses::Block& rule) {
    // All rules bind here, so that a clause has the same number in the store as among the clauses.
    for (int clause = rule.firstClause; clause < rule.endClause; ++clause)
        _repair.Relax(clause, 1);
    bool isBroken = false;
    for (int clause = rule.firstClause; clause < rule.endClause && !isBroken; ++clause)
        isBroken = CanBreakClause(_clauses.Clause(clause));
    for (int clause = rule.firstClause; clause < rule.endClause; ++clause)
        _repair.Relax(clause, -1);
    return isBroken;
}

// A clause of options alone is broken exactly where each of its literals is false.
bool SingleRuleBreaker::CanBreakClause(std::span<const Literal> clause) {
    std::vector<int> flips;
    for (Literal literal : clause) {
        if (VariableOf(literal) >= _store.OptionCount())
            return false;
        if (_repair.ModelLiteral(VariableOf(literal)) == literal)
            flips.push_back(VariableOf(literal));
    }
    if (_repair.Search(flips, {8, 400}) != ModelRepair::Outcome::Mended)
        return false;
    const bool isBroken = std::none_of(clause.begin(), clause.end(), [&](Literal literal) {
        return _repair.ModelLiteral(VariableOf(literal)) == literal;
    });
    _repair.TakeBack();
    return isBroken;
}

} // namespace trellis
