#include "rules/engine/ModelRepair.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace trellis {

ModelRepair::ModelRepair(const ClauseStore& store, const UnitTrail& trail)
    : _store(store), _trail(trail), _isFixed(store.VariableCount()) {}

void ModelRepair::SetModel(std::vector<char> values) {
    _values = std::move(values);
    _trueLiterals.assign(_store.ClauseCount(), 0);
    _trueOptions.assign(_store.GroupCount(), 0);
    _trueSum.assign(_store.GroupCount(), 0);
    for (int variable = 0; variable < _store.VariableCount(); ++variable) {
        for (int clause : _store.ClausesWith(ModelLiteral(variable)))
            ++_trueLiterals[clause];
        for (int group : _store.GroupsOf(variable)) {
            _trueOptions[group] += IsTrue(variable) ? 1 : 0;
            _trueSum[group] += IsTrue(variable) ? variable : 0;
        }
    }
}

bool ModelRepair::CanFlip(int variable) const {
    return !_isFixed[variable] && !_trail.IsTrue(ModelLiteral(variable));
}

// The true variable of a group beside this one, or -1.
int ModelRepair::TrueSister(int group, int variable) const {
    const int own = IsTrue(variable) ? 1 : 0;
    return _trueOptions[group] == own ? -1 : _trueSum[group] - own * variable;
}

// Whether flipping its variable can make the literal true.
bool ModelRepair::IsWayOut(Literal literal) const {
    const int variable = VariableOf(literal);
    if (!CanFlip(variable))
        return false;
    if (!IsPositive(literal))
        return true;
    const auto groups = _store.GroupsOf(variable);
    return std::all_of(groups.begin(), groups.end(), [&](int group) {
        const int sister = TrueSister(group, variable);
        return sister < 0 || CanFlip(sister);
    });
}

void ModelRepair::Toggle(int variable) {
    const Literal nowFalse = ModelLiteral(variable);
    _values[variable] ^= 1;
    for (int clause : _store.ClausesWith(nowFalse))
        if (--_trueLiterals[clause] == 0)
            _broken.push_back(clause);
    for (int clause : _store.ClausesWith(Negated(nowFalse)))
        ++_trueLiterals[clause];
    for (int group : _store.GroupsOf(variable)) {
        if (IsTrue(variable) && _trueOptions[group] > 0)
            _pending.push_back(_trueSum[group]);
        _trueOptions[group] += IsTrue(variable) ? 1 : -1;
        _trueSum[group] += IsTrue(variable) ? variable : -variable;
    }
}

void ModelRepair::ToggleSilently(int variable) {
    const Literal nowFalse = ModelLiteral(variable);
    _values[variable] ^= 1;
    for (int clause : _store.ClausesWith(nowFalse))
        --_trueLiterals[clause];
    for (int clause : _store.ClausesWith(Negated(nowFalse)))
        ++_trueLiterals[clause];
    for (int group : _store.GroupsOf(variable)) {
        _trueOptions[group] += IsTrue(variable) ? 1 : -1;
        _trueSum[group] += IsTrue(variable) ? variable : -variable;
    }
}

ModelRepair::Progress ModelRepair::FlipPending() {
    while (!_pending.empty()) {
        const int variable = _pending.back();
        _pending.pop_back();
        if (!CanFlip(variable))
            return Progress::Conflict;
        _isFixed[variable] = 1;
        _steps.push_back({variable, true});
        --_flipsLeft;
        Toggle(variable);
    }
    return Progress::Going;
}

// A clause with one way out takes it.
ModelRepair::Progress ModelRepair::MendClause(int clause) {
    if (_trueLiterals[clause] > 0)
        return Progress::Done;
    int ways = 0;
    int way = -1;
    for (Literal literal : _store.Clause(clause)) {
        if (!IsWayOut(literal))
            continue;
        way = VariableOf(literal);
        if (++ways > 1)
            return Progress::Going;
    }
    if (ways == 0)
        return Progress::Conflict;
    _pending.push_back(way);
    return FlipPending() == Progress::Conflict ? Progress::Conflict : Progress::Done;
}

ModelRepair::Progress ModelRepair::FollowBroken() {
    if (FlipPending() == Progress::Conflict)
        return Progress::Conflict;
    while (_lookedAt < _broken.size() && _flipsLeft > 0)
        if (MendClause(_broken[_lookedAt++]) == Progress::Conflict)
            return Progress::Conflict;
    return Progress::Going;
}

// Once nothing follows by itself: the first broken clause with two ways or more is mended in the cheapest one.
ModelRepair::Progress ModelRepair::Choose() {
    int open = -1;
    for (std::size_t place = 0; place < _broken.size(); ++place) {
        const std::size_t stepCount = _steps.size();
        const Progress progress = MendClause(_broken[place]);
        if (progress == Progress::Conflict || _steps.size() > stepCount)
            return progress == Progress::Conflict ? progress : Progress::Going;
        if (progress == Progress::Going && open < 0)
            open = _broken[place];
    }
    if (open < 0)
        return Progress::Done;
    const int variable = BestWayOut(open);
    _choices.push_back({_steps.size(), _broken.size(), variable});
    _pending.push_back(variable);
    return Progress::Going;
}

int ModelRepair::BreakCount(int variable) const {
    const auto clauses = _store.ClausesWith(ModelLiteral(variable));
    return static_cast<int>(std::count_if(clauses.begin(), clauses.end(),
                                          [&](int clause) { return _trueLiterals[clause] == 1; }));
}

int ModelRepair::CostOf(Literal literal) const {
    const int variable = VariableOf(literal);
    int cost = BreakCount(variable);
    for (int group : _store.GroupsOf(variable))
        if (const int sister = IsPositive(literal) ? TrueSister(group, variable) : -1; sister >= 0)
            cost += BreakCount(sister);
    return cost;
}

int ModelRepair::BestWayOut(int clause) const {
    int best = -1;
    int bestCost = std::numeric_limits<int>::max();
    for (Literal literal : _store.Clause(clause)) {
        if (!IsWayOut(literal))
            continue;
        if (const int cost = CostOf(literal); cost < bestCost) {
            best = VariableOf(literal);
            bestCost = cost;
        }
    }
    return best;
}

void ModelRepair::UndoTo(std::size_t stepCount) {
    while (_steps.size() > stepCount) {
        const Step step = _steps.back();
        _steps.pop_back();
        _isFixed[step.variable] = 0;
        if (step.isFlip)
            ToggleSilently(step.variable);
    }
    _pending.clear();
}

// The newest choice was refuted: its variable stays as it is. False without a choice.
bool ModelRepair::RetractChoice() {
    if (_choices.empty())
        return false;
    const Choice choice = _choices.back();
    _choices.pop_back();
    UndoTo(choice.stepCount);
    _broken.resize(choice.brokenCount);
    _lookedAt = _broken.size();
    _steps.push_back({choice.variable, false});
    _isFixed[choice.variable] = 1;
    return true;
}

ModelRepair::Outcome ModelRepair::Search(std::span<const int> flips, Bound bound) {
    _choices.clear();
    _broken.clear();
    _lookedAt = 0;
    _flipsLeft = bound.flips + static_cast<int>(flips.size());
    Progress progress = Progress::Going;
    for (int variable : flips) {
        if (progress == Progress::Conflict || _isFixed[variable])
            continue;
        _pending.push_back(variable);
        progress = FlipPending();
    }
    int conflicts = 0;
    while (progress != Progress::Done) {
        if (progress == Progress::Going)
            progress = FollowBroken();
        if (progress == Progress::Going && _flipsLeft > 0)
            progress = Choose();
        if (progress == Progress::Conflict) {
            const bool canGoOn = RetractChoice();
            if (!canGoOn || ++conflicts > bound.conflicts) {
                TakeBack();
                return canGoOn ? Outcome::GivenUp : Outcome::Refuted;
            }
            progress = Progress::Going;
        }
        if (_flipsLeft <= 0 && progress != Progress::Done) {
            TakeBack();
            return Outcome::GivenUp;
        }
    }
    return Outcome::Mended;
}

std::vector<int> ModelRepair::Flips() const {
    std::vector<int> flips;
    for (const Step& step : _steps)
        if (step.isFlip)
            flips.push_back(step.variable);
    return flips;
}

void ModelRepair::MoveBy(std::span<const int> flips) {
    for (int variable : flips)
        ToggleSilently(variable);
}

void ModelRepair::TakeBack() {
    UndoTo(0);
}

void ModelRepair::Keep() {
    for (const Step& step : _steps)
        _isFixed[step.variable] = 0;
    _steps.clear();
}

bool ModelRepair::IsNeighbour(std::span<const int> flips) {
    _broken.clear();
    for (int variable : flips)
        Toggle(variable);
    _pending.clear();
    const auto isOneTooMany = [&](int variable) {
        const auto groups = _store.GroupsOf(variable);
        return std::any_of(groups.begin(), groups.end(), [&](int group) { return _trueOptions[group] > 1; });
    };
    const bool isModel = std::none_of(_broken.begin(), _broken.end(),
                                      [&](int clause) { return _trueLiterals[clause] == 0; }) &&
                         std::none_of(flips.begin(), flips.end(), isOneTooMany);
    for (int variable : flips)
        ToggleSilently(variable);
    return isModel;
}

} // namespace trellis
