#include "rules/engine/RuleEngine.h"

#include "rules/engine/ConflictSearch.h"

#include <algorithm>
#include <utility>

namespace trellis {

namespace {

std::vector<Literal> GivenOf(const RuleQuestion& question) {
    std::vector<Literal> given;
    for (const RuleLiteral& literal : question.given)
        given.push_back(MakeLiteral(literal));
    std::sort(given.begin(), given.end());
    given.erase(std::unique(given.begin(), given.end()), given.end());
    return given;
}

std::vector<RuleLiteral> RuleLiteralsOf(const std::vector<Literal>& literals) {
    std::vector<RuleLiteral> all;
    for (Literal literal : literals)
        all.push_back(RuleLiteralOf(literal));
    std::sort(all.begin(), all.end());
    return all;
}

} // namespace

RuleEngine::RuleEngine(RuleModel model)
    : _model(std::move(model)), _clauses(_model), _irresolutions(_model.directives) {}

RuleEngine::~RuleEngine() = default;

Deduction& RuleEngine::DeductionOf(const RuleSetting& setting) {
    const auto found = std::find_if(_deductions.begin(), _deductions.end(),
                                    [&](const auto& deduction) { return deduction->Setting() == setting; });
    if (found != _deductions.end()) {
        std::rotate(_deductions.begin(), found, found + 1);
        return *_deductions.front();
    }
    _deductions.push_front(std::make_unique<Deduction>(_clauses, setting));
    if (_deductions.size() > SettingsKept)
        _deductions.pop_back();
    return *_deductions.front();
}

Explanation& RuleEngine::Reasons() {
    if (!_explanation)
        _explanation = std::make_unique<Explanation>(_clauses);
    return *_explanation;
}

const RuleAnswer& RuleEngine::Play(const RuleQuestion& question) {
    RuleSetting setting(question, _clauses);
    std::vector<Literal> given = GivenOf(question);
    for (const Kept& kept : _kept)
        if (kept.given == given && kept.setting == setting)
            return kept.answer;
    RuleAnswer answer = Answer(setting, given);
    _kept.push_front({std::move(setting), std::move(given), std::move(answer)});
    if (_kept.size() > AnswersKept)
        _kept.pop_back();
    return _kept.front().answer;
}

RuleAnswer RuleEngine::Answer(const RuleSetting& setting, const std::vector<Literal>& given) {
    Deduction& deduction = DeductionOf(setting);
    RuleAnswer answer;
    answer.isContradictory = deduction.IsContradictory();
    if (answer.isContradictory)
        return answer;
    auto forced = deduction.Forced(given);
    if (!forced) {
        answer.conflict = RuleLiteralsOf(ConflictSearch(deduction).Conflict(given));
        return answer;
    }
    answer.forced = std::move(*forced);
    if (setting.Binds({RuleReason::Kind::Directive, 0}))
        answer.irresolutions = IrresolutionsOf(given, answer.forced);
    return answer;
}

std::vector<int> RuleEngine::IrresolutionsOf(const std::vector<Literal>& given,
                                             const std::vector<RuleLiteral>& forced) const {
    using State = Irresolutions::State;
    std::vector<State> states(_model.optionCount, State::Unknown);
    for (Literal literal : given)
        states[VariableOf(literal)] = IsPositive(literal) ? State::Chosen : State::Rejected;
    for (const RuleLiteral& literal : forced)
        states[literal.option] = literal.isChosen ? State::Chosen : State::Rejected;
    return _irresolutions.Find(states);
}

std::optional<RuleExplanation> RuleEngine::Why(const RuleQuestion& question, RuleLiteral literal) {
    const std::vector<Literal> given = GivenOf(question);
    const RuleAnswer& answer = Play(question);
    if (!answer.IsConsistent())
        return std::nullopt;
    if (std::binary_search(given.begin(), given.end(), MakeLiteral(literal)))
        return RuleExplanation{{}, {literal}};
    if (!std::binary_search(answer.forced.begin(), answer.forced.end(), literal))
        return std::nullopt;
    return Reasons().Find({RuleSetting(question, _clauses), given, {{Negated(MakeLiteral(literal))}}});
}

std::optional<RuleExplanation> RuleEngine::WhyConflict(const RuleQuestion& question) {
    const RuleAnswer& answer = Play(question);
    if (answer.IsConsistent())
        return std::nullopt;
    std::vector<Literal> given;
    for (const RuleLiteral& literal : answer.conflict)
        given.push_back(MakeLiteral(literal));
    return Reasons().Find({RuleSetting(question, _clauses), given, {}});
}

std::vector<std::vector<RuleLiteral>> RuleEngine::Repairs(const RuleQuestion& question, std::size_t limit) {
    std::vector<std::vector<RuleLiteral>> repairs;
    if (Play(question).conflict.empty())
        return repairs;
    Deduction& deduction = DeductionOf(RuleSetting(question, _clauses));
    for (const auto& repair : ConflictSearch(deduction).Repairs(GivenOf(question), limit))
        repairs.push_back(RuleLiteralsOf(repair));
    return repairs;
}

} // namespace trellis
