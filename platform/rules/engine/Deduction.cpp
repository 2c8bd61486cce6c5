#include "rules/engine/Deduction.h"

#include <algorithm>
#include <utility>

namespace trellis {

Deduction::Deduction(const RuleClauses& clauses, RuleSetting setting)
    : _setting(std::move(setting)),
      _store(clauses, _setting),
      _trail(_store),
      _repair(_store, _trail),
      _witnesses(_store.VariableCount()),
      _solver(_store.VariableCount()),
      _hasMoved(_store.VariableCount()) {
    _solver.AddAll(_store);
    Open();
}

void Deduction::Open() {
    if (_trail.Start() == UnitTrail::Outcome::Contradiction || !_solver.IsSatisfiable({})) {
        _isContradictory = true;
        return;
    }
    std::vector<char> values(_store.VariableCount());
    for (int variable = 0; variable < _store.VariableCount(); ++variable) {
        values[variable] = _solver.IsTrue(variable) ? 1 : 0;
        _solver.Prefer(MakeLiteral(variable, values[variable] != 0));
    }
    _repair.SetModel(std::move(values));
    DecideUncovered({});
}

std::optional<std::vector<RuleLiteral>> Deduction::Forced(std::span<const Literal> given) {
    if (!CanStand(given))
        return std::nullopt;
    DecideUncovered(given);
    std::vector<char> isGiven(_store.OptionCount());
    for (Literal literal : given)
        isGiven[VariableOf(literal)] = 1;
    std::vector<RuleLiteral> forced;
    for (int option = 0; option < _store.OptionCount(); ++option)
        if (_trail.IsPinned(option) && !isGiven[option])
            forced.push_back({option, _repair.IsTrue(option)});
    return forced;
}

// Keeps the levels under which all assumptions are given again, and adds one for each literal that does not follow.
bool Deduction::CanStand(std::span<const Literal> given) {
    const auto isGiven = [&](Literal literal) {
        return std::binary_search(given.begin(), given.end(), literal);
    };
    const auto firstGone = std::find_if_not(_assumed.begin(), _assumed.end(), isGiven);
    _assumed.erase(firstGone, _assumed.end());
    const std::size_t kept = _assumed.size();
    _trail.PopTo(kept);
    const std::size_t pinnedBefore = _trail.Pinned().size();
    bool isConsistent = true;
    for (Literal literal : given) {
        if (!isConsistent || _trail.IsTrue(literal))
            continue;
        _assumed.push_back(literal);
        isConsistent = _trail.PushLevel(literal) == UnitTrail::Outcome::Settled;
    }
    if (isConsistent && MoveModel(given, pinnedBefore))
        return true;
    _trail.PopTo(kept);
    _assumed.resize(kept);
    return false;
}

// Brings the model to what is pinned now; false where there is no model.
bool Deduction::MoveModel(std::span<const Literal> given, std::size_t pinnedBefore) {
    std::vector<int> wrong;
    for (Literal literal : _trail.Pinned().subspan(pinnedBefore))
        if (_repair.ModelLiteral(VariableOf(literal)) != literal)
            wrong.push_back(VariableOf(literal));
    std::vector<int> moved;
    switch (_repair.Search(wrong, {MostPatience, LongestSearch})) {
    case ModelRepair::Outcome::Refuted:
        return false;
    case ModelRepair::Outcome::Mended:
        moved = _repair.Flips();
        _repair.Keep();
        break;
    case ModelRepair::Outcome::GivenUp: {
        auto flips = SolvedFlips(given);
        if (!flips)
            return false;
        moved = std::move(*flips);
        _repair.MoveBy(moved);
        break;
    }
    }
    for (int variable : moved)
        _solver.Prefer(_repair.ModelLiteral(variable));
    RecheckWitnesses(moved, pinnedBefore);
    return true;
}

// Where a model of the solver's under these assumptions differs from the current one.
std::optional<std::vector<int>> Deduction::SolvedFlips(std::span<const Literal> assumptions) {
    if (!_solver.IsSatisfiable(assumptions))
        return std::nullopt;
    std::vector<int> flips;
    for (int variable = 0; variable < _store.VariableCount(); ++variable)
        if (_solver.IsTrue(variable) != _repair.IsTrue(variable))
            flips.push_back(variable);
    return flips;
}

void Deduction::RecheckWitnesses(std::span<const int> moved, std::size_t pinnedBefore) {
    for (Literal literal : _trail.Pinned().subspan(pinnedBefore)) {
        const auto found = _witnesses.FlippedBy(VariableOf(literal));
        for (int witness : std::vector<int>(found.begin(), found.end()))
            _witnesses.Remove(witness);
    }
    for (int variable : moved)
        _hasMoved[variable] = 1;
    for (int witness : Suspects(moved))
        Recheck(witness);
    for (int variable : moved)
        _hasMoved[variable] = 0;
}

// The witnesses that may be broken by what moved. Beside those that flip what moved, a witness breaks a clause only
// if it flips all that is true in it, so any one of these variables tells.
std::vector<int> Deduction::Suspects(std::span<const int> moved) {
    std::vector<char> isSuspect(_witnesses.LimitOfNumbers());
    std::vector<int> suspects;
    std::vector<char> isAsked(_store.VariableCount());
    const auto ask = [&](int variable) {
        if (isAsked[variable])
            return;
        isAsked[variable] = 1;
        for (int witness : _witnesses.FlippedBy(variable)) {
            if (!isSuspect[witness])
                suspects.push_back(witness);
            isSuspect[witness] = 1;
        }
    };
    for (int variable : moved) {
        ask(variable);
        for (int clause : _store.ClausesWith(Negated(_repair.ModelLiteral(variable)))) {
            int best = -1;
            for (Literal literal : _store.Clause(clause)) {
                const int other = VariableOf(literal);
                if (_repair.ModelLiteral(other) == literal &&
                    (best < 0 || _witnesses.CoverCount(other) < _witnesses.CoverCount(best)))
                    best = other;
            }
            ask(best);
        }
        for (int group : _store.GroupsOf(variable))
            for (int other : _store.Group(group))
                if (_repair.IsTrue(variable))
                    ask(other);
    }
    return suspects;
}

void Deduction::Recheck(int witness) {
    std::vector<int> flips;
    for (int variable : _witnesses.Flips(witness))
        if (!_hasMoved[variable])
            flips.push_back(variable);
    const bool isSame = flips.size() == _witnesses.Flips(witness).size();
    const bool isKept = !flips.empty() && _repair.IsNeighbour(flips);
    if (isSame && isKept)
        return;
    _witnesses.Remove(witness);
    if (isKept)
        _witnesses.Add(std::move(flips));
}

void Deduction::DecideUncovered(std::span<const Literal> given) {
    const auto isOpen = [&](int option) { return !_trail.IsPinned(option) && !_witnesses.IsCovered(option); };
    std::vector<int> hard;
    for (int option = 0; option < _store.OptionCount(); ++option)
        if (isOpen(option) && !DecideByRepair(option, Quick))
            hard.push_back(option);
    for (int option : hard) {
        if (!isOpen(option))
            continue;
        if (DecideByRepair(option, {_patience, LongestSearch})) {
            _patience = std::min(2 * _patience, MostPatience);
            continue;
        }
        _patience = std::max(_patience / 2, LeastPatience);
        DecideBySolver(option, given);
    }
}

bool Deduction::DecideByRepair(int option, ModelRepair::Bound bound) {
    switch (_repair.Search(std::span(&option, 1), bound)) {
    case ModelRepair::Outcome::GivenUp:
        return false;
    case ModelRepair::Outcome::Refuted:
        _trail.Pin(_repair.ModelLiteral(option));
        return true;
    case ModelRepair::Outcome::Mended:
        break;
    }
    _witnesses.Add(_repair.Flips());
    _repair.TakeBack();
    return true;
}

void Deduction::DecideBySolver(int option, std::span<const Literal> given) {
    std::vector<Literal> assumptions(given.begin(), given.end());
    assumptions.push_back(Negated(_repair.ModelLiteral(option)));
    if (auto flips = SolvedFlips(assumptions))
        _witnesses.Add(std::move(*flips));
    else
        _trail.Pin(_repair.ModelLiteral(option));
}

} // namespace trellis
