#include "rules/engine/UnitTrail.h"

namespace trellis {

UnitTrail::UnitTrail(const ClauseStore& store) : _store(store), _values(store.VariableCount(), Unknown) {
    _openLiterals.reserve(store.ClauseCount());
    for (int clause = 0; clause < store.ClauseCount(); ++clause)
        _openLiterals.push_back(static_cast<int>(store.Clause(clause).size()));
}

UnitTrail::Outcome UnitTrail::Start() {
    for (int clause = 0; clause < _store.ClauseCount(); ++clause) {
        const auto literals = _store.Clause(clause);
        if (literals.empty())
            return Outcome::Contradiction;
        if (literals.size() == 1 && Pin(literals.front()) == Outcome::Contradiction)
            return Outcome::Contradiction;
    }
    return Outcome::Settled;
}

UnitTrail::Outcome UnitTrail::PushLevel(Literal assumption) {
    _levelStarts.push_back(_trail.size());
    return Pin(assumption);
}

UnitTrail::Outcome UnitTrail::Pin(Literal literal) {
    if (IsFalse(literal))
        return Outcome::Contradiction;
    if (!IsTrue(literal))
        Assign(literal);
    return Propagate();
}

void UnitTrail::Assign(Literal literal) {
    _values[VariableOf(literal)] = IsPositive(literal) ? True : False;
    _trail.push_back(literal);
}

UnitTrail::Outcome UnitTrail::Propagate() {
    while (_followed < _trail.size()) {
        const Literal literal = _trail[_followed++];
        if (FollowClauses(literal) == Outcome::Contradiction)
            return Outcome::Contradiction;
        if (IsPositive(literal) && FollowGroups(VariableOf(literal)) == Outcome::Contradiction)
            return Outcome::Contradiction;
    }
    return Outcome::Settled;
}

// Counts every clause even after a contradiction, so that PopTo can count them all back.
UnitTrail::Outcome UnitTrail::FollowClauses(Literal literal) {
    Outcome outcome = Outcome::Settled;
    for (int clause : _store.ClausesWith(Negated(literal))) {
        if (--_openLiterals[clause] > 1)
            continue;
        if (_openLiterals[clause] == 0) {
            outcome = Outcome::Contradiction;
            continue;
        }
        for (Literal other : _store.Clause(clause)) {
            if (IsFalse(other))
                continue;
            if (!IsTrue(other))
                Assign(other);
            break;
        }
    }
    return outcome;
}

UnitTrail::Outcome UnitTrail::FollowGroups(int variable) {
    for (int group : _store.GroupsOf(variable)) {
        for (int other : _store.Group(group)) {
            if (other == variable || _values[other] == False)
                continue;
            if (_values[other] == True)
                return Outcome::Contradiction;
            Assign(MakeLiteral(other, false));
        }
    }
    return Outcome::Settled;
}

void UnitTrail::PopTo(std::size_t levelCount) {
    if (levelCount >= _levelStarts.size())
        return;
    const std::size_t size = _levelStarts[levelCount];
    while (_trail.size() > size) {
        const Literal literal = _trail.back();
        if (_followed == _trail.size()) {
            --_followed;
            for (int clause : _store.ClausesWith(Negated(literal)))
                ++_openLiterals[clause];
        }
        _values[VariableOf(literal)] = Unknown;
        _trail.pop_back();
    }
    _levelStarts.resize(levelCount);
}

} // namespace trellis
