#include "rules/readers/DirectiveForm.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace trellis {

namespace {

using Kind = RuleTerm::Kind;

// The parts, with those of the kind itself opened up.
std::vector<RuleTerm> Opened(Kind kind, std::vector<RuleTerm> parts) {
    if (std::ranges::none_of(parts, [kind](const RuleTerm& part) { return part.kind == kind; }))
        return parts;
    std::vector<RuleTerm> opened;
    for (RuleTerm& part : parts) {
        if (part.kind == kind)
            std::ranges::move(part.parts, std::back_inserter(opened));
        else
            opened.push_back(std::move(part));
    }
    return opened;
}

RuleTerm Connected(Kind kind, std::vector<RuleTerm> parts) {
    if (parts.size() == 1)
        return std::move(parts.front());
    return {kind, {}, Opened(kind, std::move(parts))};
}

// Takes the part out that reads best as "if not ...": an option before a longer term.
RuleTerm TakeCondition(std::vector<RuleTerm>& parts) {
    auto best = std::ranges::find(parts, Kind::Reference, &RuleTerm::kind);
    if (best == parts.end())
        best = parts.begin();
    RuleTerm condition = Negation(std::move(*best));
    parts.erase(best);
    return condition;
}

} // namespace

RuleTerm AllOf(std::vector<RuleTerm> parts) {
    return Connected(Kind::And, std::move(parts));
}

RuleTerm AnyOf(std::vector<RuleTerm> parts) {
    return Connected(Kind::Or, std::move(parts));
}

RuleTerm Negation(RuleTerm part) {
    if (part.kind != Kind::Not)
        return RuleTerm::Not(std::move(part));
    RuleTerm inner = std::move(part.parts.front());
    return inner;
}

DirectiveTerm Disjunction(std::vector<RuleTerm> parts) {
    parts = Opened(Kind::Or, std::move(parts));
    // A rule has two sides; a term alone stands on both: "if not x then x".
    if (parts.size() == 1)
        return {Negation(parts.front()), parts.front()};
    const auto negated = [](const RuleTerm& part) { return part.kind == Kind::Not; };
    const auto middle = std::stable_partition(parts.begin(), parts.end(), negated);
    std::vector<RuleTerm> conditions(std::make_move_iterator(parts.begin()), std::make_move_iterator(middle));
    std::vector<RuleTerm> consequences(std::make_move_iterator(middle), std::make_move_iterator(parts.end()));
    for (RuleTerm& condition : conditions)
        condition = Negation(std::move(condition));
    if (conditions.empty())
        conditions.push_back(TakeCondition(consequences));
    if (consequences.empty()) {
        consequences.push_back(Negation(std::move(conditions.back())));
        conditions.pop_back();
    }
    return {AllOf(std::move(conditions)), AnyOf(std::move(consequences))};
}

} // namespace trellis
