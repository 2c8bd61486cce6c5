#include "rules/engine/ConflictSearch.h"

#include <algorithm>
#include <iterator>

namespace trellis {

namespace {

ConflictSearch::Literals Without(const ConflictSearch::Literals& literals, const std::set<Literal>& gone) {
    ConflictSearch::Literals rest;
    std::copy_if(literals.begin(), literals.end(), std::back_inserter(rest),
                 [&](Literal literal) { return !gone.contains(literal); });
    return rest;
}

bool Meets(const ConflictSearch::Literals& literals, const std::set<Literal>& others) {
    return std::any_of(literals.begin(), literals.end(),
                       [&](Literal literal) { return others.contains(literal); });
}

} // namespace

// Of literals that cannot stand together those that the solver needed to see it; all, where it sees no conflict.
ConflictSearch::Literals ConflictSearch::Failed(const Literals& literals) const {
    SolverLink& solver = _deduction.Solver();
    if (solver.IsSatisfiable(literals))
        return literals;
    Literals failed;
    std::copy_if(literals.begin(), literals.end(), std::back_inserter(failed),
                 [&](Literal literal) { return solver.HasFailed(literal); });
    return failed;
}

// That literals can stand together is found near the last model, in far less time than by the solver, which is quick
// to see that they cannot. What failed there only saves questions: a literal outside of it can go without asking.
ConflictSearch::Literals ConflictSearch::Conflict(const Literals& given) {
    Literals rest = given;
    Literals failed = Failed(given);
    for (Literal literal : given) {
        const Literals without = Without(rest, {literal});
        if (std::binary_search(failed.begin(), failed.end(), literal)) {
            if (_deduction.CanStand(without))
                continue;
            failed = Failed(without);
        }
        rest = without;
    }
    return rest;
}

const ConflictSearch::Literals* ConflictSearch::OpenConflict(const std::set<Literal>& givenUp) const {
    const auto isOpen = [&](const Literals& conflict) { return !Meets(conflict, givenUp); };
    const auto found = std::find_if(_conflicts.begin(), _conflicts.end(), isOpen);
    return found == _conflicts.end() ? nullptr : &*found;
}

// So many more literals at least must be given up.
std::size_t ConflictSearch::SeparateConflicts(const std::set<Literal>& givenUp) const {
    std::set<Literal> met = givenUp;
    std::size_t count = 0;
    for (const Literals& conflict : _conflicts) {
        if (Meets(conflict, met))
            continue;
        ++count;
        met.insert(conflict.begin(), conflict.end());
    }
    return count;
}

bool ConflictSearch::IsTried(const std::set<Literal>& givenUp) {
    const auto isWithin = [&](const std::set<Literal>& found) {
        return std::includes(givenUp.begin(), givenUp.end(), found.begin(), found.end());
    };
    return std::any_of(_found.begin(), _found.end(), isWithin) || !_seen.insert(givenUp).second;
}

// Goes through the sets of `size` that have a literal of every conflict met so far.
void ConflictSearch::Extend(std::set<Literal>& givenUp, std::size_t size) {
    if (_found.size() == _limit || IsTried(givenUp))
        return;
    if (!OpenConflict(givenUp)) {
        const Literals rest = Without(_given, givenUp);
        if (_deduction.CanStand(rest)) {
            _found.push_back(givenUp);
            return;
        }
        _conflicts.push_back(Conflict(rest));
    }
    if (givenUp.size() + SeparateConflicts(givenUp) > size) {
        _isCut = true;
        return;
    }
    const Literals conflict = *OpenConflict(givenUp);
    for (Literal literal : conflict) {
        givenUp.insert(literal);
        Extend(givenUp, size);
        givenUp.erase(literal);
    }
}

std::vector<ConflictSearch::Literals> ConflictSearch::Repairs(const Literals& given, std::size_t limit) {
    _given = given;
    _limit = limit;
    _isCut = true;
    std::vector<Literals> repairs;
    for (std::size_t size = 1; _isCut && _found.size() < _limit; ++size) {
        _isCut = false;
        _seen.clear();
        const std::size_t before = _found.size();
        std::set<Literal> givenUp;
        Extend(givenUp, size);
        std::sort(_found.begin() + static_cast<std::ptrdiff_t>(before), _found.end());
    }
    for (const std::set<Literal>& found : _found)
        repairs.emplace_back(found.begin(), found.end());
    return repairs;
}

} // namespace trellis
