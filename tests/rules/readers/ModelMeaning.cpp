#include "rules/readers/ModelMeaning.h"

#include <algorithm>

namespace trellis::test {

namespace {

using Kind = RuleTerm::Kind;

bool Holds(const RuleTerm& term, const Choice& chosen) {
    const auto holds = [&chosen](const RuleTerm& part) { return Holds(part, chosen); };
    switch (term.kind) {
    case Kind::Reference:
        return chosen.contains(term.reference.option);
    case Kind::Not:
        return !holds(term.parts.at(0));
    case Kind::And:
        return std::ranges::all_of(term.parts, holds);
    case Kind::Or:
        return std::ranges::any_of(term.parts, holds);
    }
    return false;
}

std::string Described(const RuleTerm& term) {
    if (term.kind == Kind::Reference)
        return term.reference.option;
    std::string text;
    for (const RuleTerm& part : term.parts) {
        if (!text.empty())
            text += term.kind == Kind::And ? " and " : " or ";
        const bool isBracketed = part.kind == Kind::And || part.kind == Kind::Or;
        text += isBracketed ? "(" + Described(part) + ")" : Described(part);
    }
    return (term.kind == Kind::Not ? "not " : "") + text;
}

} // namespace

bool Allows(const VariabilityModel& model, const Choice& chosen) {
    for (const ModelCategory& category : model.categories) {
        const auto count = std::ranges::count_if(
            category.options, [&chosen](const ModelOption& option) { return chosen.contains(option.name); });
        if ((category.isExclusive && count > 1) || (category.isMandatory && count < 1))
            return false;
    }
    return std::ranges::all_of(model.rules, [&chosen](const ModelRule& rule) {
        return !Holds(rule.term.condition, chosen) || Holds(rule.term.consequence, chosen);
    });
}

std::string Described(const VariabilityModel& model) {
    std::string text;
    for (const ModelCategory& category : model.categories) {
        text += "[" + category.name + "]" + (category.isExclusive ? " exclusive" : "") +
                (category.isMandatory ? " mandatory" : "");
        for (const ModelOption& option : category.options)
            text += (&option == &category.options.front() ? ": " : ", ") + option.name;
        text += "\n";
    }
    for (const ModelRule& rule : model.rules)
        text += rule.name + ": if (" + Described(rule.term.condition) + ") then " +
                Described(rule.term.consequence) + "\n";
    return text;
}

std::string Problems(const ModelReading& reading) {
    std::string text;
    for (const ImportProblem& problem : reading.problems)
        text += (text.empty() ? "" : ", ") + std::to_string(problem.line) + " " +
                std::to_string(problem.error.GetCode());
    return text;
}

} // namespace trellis::test
