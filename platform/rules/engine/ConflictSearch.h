#pragma once

#include "rules/engine/Deduction.h"

#include <set>
#include <vector>

namespace trellis {

// ConflictSearch: which of the given literals cannot stand together, and which to give up so that the rest can. For
// rules that do not contradict each other. Lists of literals are sorted.
class ConflictSearch {
public:
    using Literals = std::vector<Literal>;

    explicit ConflictSearch(Deduction& deduction) : _deduction(deduction) {}

    // A subset that cannot stand together, none of it too many: the one whose literals come last in `given`, whatever
    // was asked before. `given`: cannot stand together.
    Literals Conflict(const Literals& given);
    // The sets to give up, none larger than needed, smallest first and among equals in the order of `given`; at most
    // `limit`. Each was tried: the rest stands.
    std::vector<Literals> Repairs(const Literals& given, std::size_t limit);

private:
    Literals Failed(const Literals& literals) const;
    void Extend(std::set<Literal>& givenUp, std::size_t size);
    bool IsTried(const std::set<Literal>& givenUp);
    std::size_t SeparateConflicts(const std::set<Literal>& givenUp) const;
    const Literals* OpenConflict(const std::set<Literal>& givenUp) const;

    Deduction& _deduction;
    Literals _given;
    std::size_t _limit = 0;
    bool _isCut = false; // larger sets may be found
    std::vector<Literals> _conflicts;
    std::vector<std::set<Literal>> _found;
    std::set<std::set<Literal>> _seen;
};

} // namespace trellis
