#pragma once

#include "rules/engine/ModelRepair.h"
#include "rules/engine/SolverLink.h"
#include "rules/engine/WitnessPool.h"

#include <optional>
#include <span>
#include <vector>

namespace trellis {

// Deduction: what follows from given literals in one setting of the rules, exactly. Of every option one of three is
// known after each question: it was given or follows, or the current model and a witness differ in it. What is known
// is carried from question to question as far as it holds.
class Deduction {
public:
    Deduction(const RuleClauses& clauses, RuleSetting setting);

    const RuleSetting& Setting() const { return _setting; }
    bool IsContradictory() const { return _isContradictory; }
    // The forced literals in the order of options, without those given; nothing where the given ones cannot stand
    // together. `given`: sorted. Not for contradictory rules.
    std::optional<std::vector<RuleLiteral>> Forced(std::span<const Literal> given);
    // Whether the literals can stand together. `given`: sorted. Not for contradictory rules.
    bool CanStand(std::span<const Literal> given);
    // Holds all that binds, for other questions than these.
    SolverLink& Solver() { return _solver; }

private:
    static constexpr ModelRepair::Bound Quick{4, 400};
    static constexpr int LongestSearch = 4000; // in flips
    static constexpr int LeastPatience = 4;
    static constexpr int MostPatience = 256;

    void Open();
    bool MoveModel(std::span<const Literal> given, std::size_t pinnedBefore);
    std::optional<std::vector<int>> SolvedFlips(std::span<const Literal> assumptions);
    void RecheckWitnesses(std::span<const int> moved, std::size_t pinnedBefore);
    std::vector<int> Suspects(std::span<const int> moved);
    void Recheck(int witness);
    void DecideUncovered(std::span<const Literal> given);
    bool DecideByRepair(int option, ModelRepair::Bound bound);
    void DecideBySolver(int option, std::span<const Literal> given);

    RuleSetting _setting;
    ClauseStore _store;
    UnitTrail _trail;
    ModelRepair _repair;
    WitnessPool _witnesses;
    SolverLink _solver;
    std::vector<Literal> _assumed; // one per level of the trail
    std::vector<char> _hasMoved;   // by variable, while witnesses are checked
    // Conflicts that a second search may meet before the solver is asked: more where such searches come to an end.
    int _patience = 64;
    bool _isContradictory = false;
};

} // namespace trellis
