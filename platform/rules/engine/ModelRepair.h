#pragma once

#include "rules/engine/UnitTrail.h"

#include <span>
#include <vector>

namespace trellis {

// ModelRepair: one model of all clauses and groups, and the search for others near to it. A search flips some
// variables and mends what that breaks, flipping each variable at most once; its cost grows with what it touches, not
// with the size of the rule set. Pinned variables are never flipped away from their pinned value.
//
//     model --Search: Mended--> neighbour --TakeBack--> model
//                                         --Keep------> the neighbour is the model
//     model --Search: Refuted or GivenUp--> model
class ModelRepair {
public:
    enum class Outcome {
        Mended,
        Refuted, // no model has the pinned literals and these flips
        GivenUp, // the bound was reached
    };

    struct Bound {
        int conflicts;
        int flips; // beside the first ones
    };

    ModelRepair(const ClauseStore& store, const UnitTrail& trail);

    // `values`: by variable; a model.
    void SetModel(std::vector<char> values);
    bool IsTrue(int variable) const { return _values[variable] != 0; }
    Literal ModelLiteral(int variable) const { return MakeLiteral(variable, IsTrue(variable)); }

    // Counts so many literals of the clause as true that are not there: while it is above 0, the clause never breaks.
    void Relax(int clause, int count) { _trueLiterals[clause] += count; }

    Outcome Search(std::span<const int> flips, Bound bound);
    // What the search flipped, the first flips included; until TakeBack or Keep.
    std::vector<int> Flips() const;
    void TakeBack();
    void Keep();

    // Flipping exactly these leads to a model, which is the model from now on.
    void MoveBy(std::span<const int> flips);
    // Whether flipping exactly these, none of them pinned, leads to a model.
    bool IsNeighbour(std::span<const int> flips);

private:
    struct Step {
        int variable;
        bool isFlip; // otherwise the variable must stay: flipping it was refuted
    };
    struct Choice {
        std::size_t stepCount;
        std::size_t brokenCount;
        int variable;
    };
    enum class Progress { Going, Conflict, Done };

    bool CanFlip(int variable) const;
    int TrueSister(int group, int variable) const;
    bool IsWayOut(Literal literal) const;
    void Toggle(int variable);
    void ToggleSilently(int variable);
    Progress FlipPending();
    Progress FollowBroken();
    Progress Choose();
    Progress MendClause(int clause);
    int BestWayOut(int clause) const;
    int CostOf(Literal literal) const;
    int BreakCount(int variable) const;
    void UndoTo(std::size_t stepCount);
    bool RetractChoice();

    const ClauseStore& _store;
    const UnitTrail& _trail;
    std::vector<char> _values;
    std::vector<int> _trueLiterals; // by clause
    std::vector<int> _trueOptions;  // by group
    std::vector<int> _trueSum;  // by group: the sum of its true variables, so the only one where it has one
    std::vector<char> _isFixed; // by variable: a step of this search
    std::vector<Step> _steps;
    std::vector<Choice> _choices;
    std::vector<int> _pending;
    std::vector<int> _broken; // clauses in the order in which they broke; some are mended since
    std::size_t _lookedAt = 0;
    int _flipsLeft = 0;
};

} // namespace trellis
