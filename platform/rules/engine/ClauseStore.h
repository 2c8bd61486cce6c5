#pragma once

#include "rules/engine/RuleClauses.h"
#include "rules/engine/RuleSetting.h"

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace trellis {

// Lists of numbers by number, in one piece of memory.
class NumberLists {
public:
    NumberLists() = default;
    // From pairs of list and entry; the entries of a list keep their order.
    NumberLists(std::size_t listCount, std::span<const std::pair<int, int>> entries);

    std::span<const int> operator[](int list) const {
        return std::span(_entries).subspan(_starts[list], _starts[list + 1] - _starts[list]);
    }
    int Count() const { return static_cast<int>(_starts.size()) - 1; }

private:
    std::vector<int> _entries;
    std::vector<int> _starts{0};
};

// ClauseStore: what binds in one setting, indexed by literal: clauses, and exclusive groups of variables of which at
// most one is true. Never changes.
class ClauseStore {
public:
    ClauseStore(const RuleClauses& clauses, const RuleSetting& setting);

    int VariableCount() const { return _variableCount; }
    int OptionCount() const { return _optionCount; }
    int ClauseCount() const { return _clauses.Count(); }
    std::span<const Literal> Clause(int clause) const { return _clauses[clause]; }
    std::span<const int> ClausesWith(Literal literal) const { return _clausesWith[literal]; }
    int GroupCount() const { return _groups.Count(); }
    std::span<const int> Group(int group) const { return _groups[group]; }
    std::span<const int> GroupsOf(int variable) const { return _groupsOf[variable]; }

private:
    int _variableCount;
    int _optionCount;
    NumberLists _clauses;
    NumberLists _clausesWith;
    NumberLists _groups;
    NumberLists _groupsOf;
};

} // namespace trellis
