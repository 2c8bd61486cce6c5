#include "rules/engine/ClauseStore.h"

#include <utility>

namespace trellis {

NumberLists::NumberLists(std::size_t listCount, std::span<const std::pair<int, int>> entries)
    : _entries(entries.size()), _starts(listCount + 1) {
    for (const auto& [list, entry] : entries)
        ++_starts[list + 1];
    for (std::size_t list = 0; list < listCount; ++list)
        _starts[list + 1] += _starts[list];
    std::vector<int> next(_starts.begin(), _starts.end() - 1);
    for (const auto& [list, entry] : entries)
        _entries[next[list]++] = entry;
}

ClauseStore::ClauseStore(const RuleClauses& clauses, const RuleSetting& setting)
    : _variableCount(clauses.VariableCount()), _optionCount(clauses.OptionCount()) {
    std::vector<std::pair<int, int>> entries;
    std::vector<std::pair<int, int>> places;
    int count = 0;
    for (const RuleClauses::Block& block : clauses.Blocks()) {
        for (int clause = block.firstClause; setting.Binds(block.reason) && clause < block.endClause;
             ++clause) {
            for (Literal literal : clauses.Clause(clause)) {
                entries.emplace_back(count, literal);
                places.emplace_back(literal, count);
            }
            ++count;
        }
    }
    _clauses = NumberLists(static_cast<std::size_t>(count), entries);
    _clausesWith = NumberLists(2 * static_cast<std::size_t>(_variableCount), places);
    entries.clear();
    places.clear();
    count = 0;
    for (int category = 0; category < clauses.CategoryCount(); ++category) {
        const bool binds = setting.Binds({RuleReason::Kind::Exclusive, category});
        if (!binds || clauses.Options(category).size() < 2)
            continue;
        for (int option : clauses.Options(category)) {
            entries.emplace_back(count, option);
            places.emplace_back(option, count);
        }
        ++count;
    }
    _groups = NumberLists(static_cast<std::size_t>(count), entries);
    _groupsOf = NumberLists(static_cast<std::size_t>(_variableCount), places);
}

} // namespace trellis
