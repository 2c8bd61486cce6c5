#pragma once

#include "rules/engine/ClauseStore.h"

#include <span>
#include <vector>

namespace trellis {

// UnitTrail: literals that are known to hold, and what follows from them clause by clause. In levels: level 0 holds
// without any assumption, each further one under an assumption of its own; the newest levels are taken back first.
class UnitTrail {
public:
    enum class Outcome { Settled, Contradiction };

    explicit UnitTrail(const ClauseStore& store);

    // Pins the clauses of one literal, at level 0.
    Outcome Start();
    // A new level under this assumption. After a contradiction the level stands and must be taken back.
    Outcome PushLevel(Literal assumption);
    // A literal known to follow, at the newest level.
    Outcome Pin(Literal literal);
    void PopTo(std::size_t levelCount);

    // Levels above level 0.
    std::size_t LevelCount() const { return _levelStarts.size(); }
    bool IsPinned(int variable) const { return _values[variable] != Unknown; }
    bool IsTrue(Literal literal) const {
        return _values[VariableOf(literal)] == (IsPositive(literal) ? True : False);
    }
    bool IsFalse(Literal literal) const { return IsTrue(Negated(literal)); }
    std::span<const Literal> Pinned() const { return _trail; }

private:
    enum Value : signed char { False = -1, Unknown = 0, True = 1 };

    void Assign(Literal literal);
    Outcome Propagate();
    Outcome FollowClauses(Literal literal);
    Outcome FollowGroups(int variable);

    const ClauseStore& _store;
    std::vector<Value> _values;
    std::vector<int> _openLiterals; // of a clause: those that are not false
    std::vector<Literal> _trail;
    std::vector<std::size_t> _levelStarts;
    std::size_t _followed = 0; // so many of the trail have been followed
};

} // namespace trellis
