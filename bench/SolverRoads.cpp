#include "SolverRoads.h"

#include <algorithm>
#include <utility>

namespace trellis {

PlainRoad::PlainRoad(const RuleModel& model) : _clauses(model), _solver(_clauses.VariableCount()) {
    _solver.AddAll(ClauseStore(_clauses, RuleSetting({}, _clauses)));
}

std::vector<char> PlainRoad::Model() const {
    std::vector<char> model;
    for (int option = 0; option < _clauses.OptionCount(); ++option)
        model.push_back(_solver.IsTrue(option) ? 1 : 0);
    return model;
}

std::vector<RuleLiteral> PlainRoad::Forced(const std::vector<RuleLiteral>& given) {
    std::vector<Literal> assumptions;
    std::vector<bool> isGiven(_clauses.OptionCount());
    for (const RuleLiteral& literal : given) {
        assumptions.push_back(MakeLiteral(literal));
        isGiven[literal.option] = true;
    }
    std::vector<RuleLiteral> forced;
    if (!_solver.IsSatisfiable(assumptions))
        return forced;
    Begin(assumptions);
    for (int option = 0; option < _clauses.OptionCount(); ++option)
        if (!isGiven[option] && Follows(option, assumptions))
            forced.push_back({option, _first[option] != 0});
    return forced;
}

void PlainRoad::Begin(const std::vector<Literal>&) {
    _first = Model();
}

bool PlainRoad::Follows(int option, const std::vector<Literal>& given) {
    std::vector<Literal> assumptions = given;
    assumptions.push_back(MakeLiteral(option, _first[option] == 0));
    return !_solver.IsSatisfiable(assumptions);
}

void PooledRoad::Begin(const std::vector<Literal>& given) {
    PlainRoad::Begin(given);
    const auto has = [](const std::vector<char>& model, Literal literal) {
        return (model[VariableOf(literal)] != 0) == IsPositive(literal);
    };
    std::erase_if(_pool, [&](const std::vector<char>& model) {
        return !std::all_of(given.begin(), given.end(), [&](Literal literal) { return has(model, literal); });
    });
    _isFree.assign(_clauses.OptionCount(), 0);
    for (int option = 0; option < _clauses.OptionCount(); ++option)
        _solver.Prefer(MakeLiteral(option, _first[option] == 0));
    for (const std::vector<char>& model : _pool)
        NoteFree(model);
    _pool.push_back(_first);
}

bool PooledRoad::Follows(int option, const std::vector<Literal>& given) {
    if (_isFree[option])
        return false;
    if (PlainRoad::Follows(option, given)) {
        _solver.Prefer(MakeLiteral(option, _first[option] != 0));
        return true;
    }
    _pool.push_back(Model());
    NoteFree(_pool.back());
    return false;
}

void PooledRoad::NoteFree(const std::vector<char>& model) {
    for (int option = 0; option < _clauses.OptionCount(); ++option) {
        if (model[option] == _first[option] || _isFree[option])
            continue;
        _isFree[option] = 1;
        _solver.Prefer(MakeLiteral(option, _first[option] != 0));
    }
}

} // namespace trellis
