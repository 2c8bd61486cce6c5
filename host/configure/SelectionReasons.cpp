#include "configure/SelectionReasons.h"

#include "session/KeptSelection.h"

#include <algorithm>
#include <unordered_map>

namespace trellis {

namespace {

constexpr int MostRepairs = 8;
// Places in the list of states, and what stands there for the advanced mode and for rules that are off.
constexpr int ModePlace = 1;
constexpr int AdvancedMode = 1;
constexpr int RulesPlace = 3;
constexpr int RulesOff = 6;
constexpr int DirectivesPlace = 4;
constexpr int DirectivesOff = 8;
constexpr int PackagesPlace = 5;
constexpr int PackagesOff = 10;
constexpr int MatricesPlace = 6;
constexpr int MatricesOff = 12;

std::vector<ZOLUnicodeString> Lines(const std::vector<RuleReasonItem>& reasons) {
    std::vector<ZOLUnicodeString> lines;
    for (const RuleReasonItem& reason : reasons)
        lines.push_back(reason.Line());
    return lines;
}

bool IsAmong(const ZOLParameter& parameter, const SelectionReasons::Parameters& list) {
    return std::ranges::find(list, parameter) != list.end();
}

// What is chosen in each category, by index: a large selection has thousands of rejections.
class ChosenOptions {
public:
    explicit ChosenOptions(const SelectionReasons::Parameters& choices) {
        for (const ZOLParameter& choice : choices)
            if (!choice.IsNot())
                _options[choice.GetCategory()].push_back(choice.GetOption());
    }

    bool Has(const ZOLParameter& option) const {
        const auto found = _options.find(option.GetCategory());
        return found != _options.end() &&
               std::ranges::find(found->second, option.GetOption()) != found->second.end();
    }
    // Whether a rejection goes with the choice of another option in its exclusive category.
    bool Bring(const ZOLParameter& rejection) const {
        if (!rejection.IsNot() || !rejection.GetCategoryExclusivity())
            return false;
        const auto found = _options.find(rejection.GetCategory());
        return found != _options.end() && std::ranges::any_of(found->second, [&](const auto& option) {
                   return option != rejection.GetOption();
               });
    }

private:
    std::unordered_map<ZOLUnicodeString, std::vector<ZOLUnicodeString>> _options;
};

} // namespace

// One question to the rules: the handler, and the choices as it takes them.
class SelectionReasons::Question {
public:
    Question(const ZOLIQRDCategoryGraph& panel, Parameters choices)
        : handler(panel.GetDictionaries()), _choices(std::move(choices)) {
        for (ZOLParameter& choice : _choices)
            list.Append(&choice);
        const ZOLListVal<int> status = panel.GetListOfStatus();
        const bool areAllOff = status[RulesPlace] == RulesOff;
        if (areAllOff || status[DirectivesPlace] == DirectivesOff)
            handler.DisableDirectiveRules();
        if (areAllOff || status[PackagesPlace] == PackagesOff)
            handler.DisablePackages();
        if (areAllOff || status[MatricesPlace] == MatricesOff)
            handler.DisableMatrices();
    }

    ZOLRuleHandler handler;
    ZOLListPtrZOLParameter list;

private:
    Parameters _choices;
};

SelectionReasons::Parameters SelectionReasons::Choices() const {
    Parameters choices;
    for (const ZOLParameter* parameter : _panel.GetParameters())
        if (parameter->GetParameterSource() != ZOLParameter::SourceRule)
            choices.push_back(*parameter);
    return choices;
}

SelectionReasons::Parameters SelectionReasons::KnownChoices() const {
    KeptSelection known;
    known.choices = Choices();
    known.TakeOutUnknown(_panel.GetDictionaries());
    return known.choices;
}

ZOLListValZOLUnicodeString SelectionReasons::IgnoredCategories() const {
    const bool isAdvanced = _panel.GetListOfStatus()[ModePlace] == AdvancedMode;
    return isAdvanced ? _panel.GetIgnoredCategories() : ZOLListValZOLUnicodeString();
}

SelectionReasons::Parameters SelectionReasons::ChoicesWithout(const Parameters& givenUp) const {
    const Parameters choices = Choices();
    Parameters remaining = choices;
    std::erase_if(remaining, [&](const ZOLParameter& choice) { return IsAmong(choice, givenUp); });
    const ChosenOptions before(choices);
    const ChosenOptions now(remaining);
    Parameters kept = remaining;
    std::erase_if(kept, [&](const ZOLParameter& choice) {
        return before.Bring(choice) && (!now.Bring(choice) || now.Has(choice));
    });
    return kept;
}

SelectionReasons::Parameters SelectionReasons::Stated() const {
    Parameters stated = Choices();
    const ChosenOptions chosen(stated);
    std::erase_if(stated, [&](const ZOLParameter& choice) { return chosen.Bring(choice); });
    return stated;
}

ZOLUnicodeString SelectionReasons::ChosenInstead(const ZOLParameter& option) const {
    for (const ZOLParameter* parameter : _panel.GetParameters())
        if (!parameter->IsNot() && parameter->GetParameterSource() != ZOLParameter::SourceRule &&
            parameter->GetCategoryExclusivity() && parameter->GetCategory() == option.GetCategory() &&
            parameter->GetOption() != option.GetOption())
            return parameter->GetOption();
    return {};
}

int SelectionReasons::CountChosen() const {
    const Parameters choices = KnownChoices();
    return static_cast<int>(
        std::ranges::count_if(choices, [](const ZOLParameter& choice) { return !choice.IsNot(); }));
}

SelectionReasons::State SelectionReasons::StateOf(const ZOLParameter& option) const {
    for (const ZOLParameter* parameter : _panel.GetParameters()) {
        if (parameter->GetOption() != option.GetOption() || parameter->GetCategory() != option.GetCategory())
            continue;
        const bool byRules = parameter->GetParameterSource() == ZOLParameter::SourceRule;
        if (parameter->IsNot() && !byRules)
            return ChosenInstead(option).IsEmpty() ? State::Rejected : State::RejectedWithChoice;
        if (parameter->IsNot())
            return State::RejectedByRules;
        return byRules ? State::ChosenByRules : State::Chosen;
    }
    return IgnoredCategories().Locate(option.GetCategory()) > 0 ? State::Ignored : State::Open;
}

std::vector<ZOLUnicodeString> SelectionReasons::Why(const ZOLParameter& option) const {
    const State state = StateOf(option);
    if (state != State::ChosenByRules && state != State::RejectedByRules)
        return {};
    Question question(_panel, Stated());
    return Lines(question.handler.Why(question.list, ZOLParameter(option.GetCategory(), option.GetOption(),
                                                                  state == State::RejectedByRules)));
}

std::vector<ZOLUnicodeString> SelectionReasons::WhyConflict() const {
    Question question(_panel, Stated());
    return Lines(question.handler.WhyConflict(question.list));
}

std::vector<SelectionReasons::Parameters> SelectionReasons::Repairs() const {
    Question question(_panel, Stated());
    return question.handler.Repairs(question.list, MostRepairs);
}

std::vector<ZOLUnicodeString> SelectionReasons::RulesLeftOut() const {
    ZOLRuleHandler handler(_panel.GetDictionaries());
    std::vector<ZOLUnicodeString> lines;
    for (const RuleFinding& finding : handler.RulesLeftOut())
        lines.push_back(finding.subject + " - " + finding.verdict);
    return lines;
}

} // namespace trellis
