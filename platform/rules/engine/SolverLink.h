#pragma once

#include "rules/engine/ClauseStore.h"

#include <memory>
#include <span>
#include <vector>

namespace CaDiCaL {
class Solver;
}

namespace trellis {

// SolverLink: the one place that talks to the solver's library. Clauses are added and stay; each question has
// assumptions of its own.
class SolverLink {
public:
    // `variableCount`: variables below it belong to the caller, who gets more by NewVariable.
    explicit SolverLink(int variableCount);
    ~SolverLink();
    SolverLink(const SolverLink&) = delete;
    SolverLink& operator=(const SolverLink&) = delete;

    int NewVariable() { return _variableCount++; }
    void Add(std::span<const Literal> clause);
    // The clause binds only where the guard is true.
    void AddGuarded(std::span<const Literal> clause, Literal guard);
    // At most one of the literals is true, where the guard is (always, if it is negative). Few clauses: long
    // lists are cut in pieces tied by new variables.
    void AddAtMostOne(std::vector<Literal> literals, Literal guard = NoLiteral);

    void AddAll(const ClauseStore& store);

    bool IsSatisfiable(std::span<const Literal> assumptions);
    // After a satisfiable question.
    bool IsTrue(int variable) const;
    // After an unsatisfiable one: whether the assumption had a part in it. Not minimal.
    bool HasFailed(Literal assumption) const;
    // The value that the search tries first.
    void Prefer(Literal literal);

    static constexpr Literal NoLiteral = -1;

private:
    std::unique_ptr<CaDiCaL::Solver> _solver;
    int _variableCount;
};

} // namespace trellis
