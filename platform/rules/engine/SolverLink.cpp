#include "rules/engine/SolverLink.h"

#include <cadical.hpp>

#include <algorithm>

namespace trellis {

namespace {

int Numbered(Literal literal) {
    const int number = VariableOf(literal) + 1;
    return IsPositive(literal) ? number : -number;
}

} // namespace

SolverLink::SolverLink(int variableCount)
    : _solver(std::make_unique<CaDiCaL::Solver>()), _variableCount(variableCount) {
    _solver->set("quiet", 1);
}

SolverLink::~SolverLink() = default;

void SolverLink::Add(std::span<const Literal> clause) {
    for (Literal literal : clause)
        _solver->add(Numbered(literal));
    _solver->add(0);
}

void SolverLink::AddGuarded(std::span<const Literal> clause, Literal guard) {
    if (guard != NoLiteral)
        _solver->add(Numbered(Negated(guard)));
    Add(clause);
}

void SolverLink::AddAtMostOne(std::vector<Literal> literals, Literal guard) {
    constexpr std::size_t piece = 3;
    while (literals.size() > 1) {
        const bool isLast = literals.size() <= piece + 2;
        const std::size_t count = isLast ? literals.size() : piece;
        std::vector<Literal> now(literals.begin(), literals.begin() + static_cast<std::ptrdiff_t>(count));
        literals.erase(literals.begin(), literals.begin() + static_cast<std::ptrdiff_t>(count));
        if (!isLast) {
            const Literal later = MakeLiteral(NewVariable(), true);
            now.push_back(later);
            literals.push_back(Negated(later));
        }
        for (std::size_t one = 0; one < now.size(); ++one)
            for (std::size_t other = one + 1; other < now.size(); ++other)
                AddGuarded(std::vector<Literal>{Negated(now[one]), Negated(now[other])}, guard);
        if (isLast)
            return;
    }
}

void SolverLink::AddAll(const ClauseStore& store) {
    for (int clause = 0; clause < store.ClauseCount(); ++clause)
        Add(store.Clause(clause));
    for (int group = 0; group < store.GroupCount(); ++group) {
        std::vector<Literal> literals;
        for (int variable : store.Group(group))
            literals.push_back(MakeLiteral(variable, true));
        AddAtMostOne(std::move(literals));
    }
}

bool SolverLink::IsSatisfiable(std::span<const Literal> assumptions) {
    for (Literal literal : assumptions)
        _solver->assume(Numbered(literal));
    return _solver->solve() == 10;
}

bool SolverLink::IsTrue(int variable) const {
    return _solver->val(variable + 1) > 0;
}

bool SolverLink::HasFailed(Literal assumption) const {
    return _solver->failed(Numbered(assumption));
}

void SolverLink::Prefer(Literal literal) {
    _solver->phase(Numbered(literal));
}

} // namespace trellis
