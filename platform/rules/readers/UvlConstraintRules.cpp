#include "rules/readers/UvlConstraintRules.h"

namespace trellis {

namespace {

using Kind = UvlConstraint::Kind;

RuleTerm Implication(RuleTerm condition, RuleTerm consequence) {
    return AnyOf({Negation(std::move(condition)), std::move(consequence)});
}

} // namespace

std::vector<DirectiveTerm> UvlConstraintRules::Of(const UvlConstraint& constraint) const {
    std::vector<DirectiveTerm> rules;
    Demand(constraint, true, rules);
    return rules;
}

void UvlConstraintRules::Demand(const UvlConstraint& constraint, bool isWanted,
                                std::vector<DirectiveTerm>& rules) const {
    const std::vector<UvlConstraint>& parts = constraint.parts;
    switch (constraint.kind) {
    case Kind::Feature:
        rules.push_back(Disjunction(TermsOf({constraint}, isWanted)));
        return;
    case Kind::Not:
        Demand(parts.front(), !isWanted, rules);
        return;
    case Kind::And:
    case Kind::Or:
        if ((constraint.kind == Kind::And) != isWanted) {
            rules.push_back(Disjunction(TermsOf(parts, isWanted)));
            return;
        }
        for (const UvlConstraint& part : parts)
            Demand(part, isWanted, rules);
        return;
    case Kind::Implies:
        if (isWanted) {
            rules.push_back({TermOf(parts[0]), TermOf(parts[1])});
            return;
        }
        Demand(parts[0], true, rules);
        Demand(parts[1], false, rules);
        return;
    case Kind::Equals:
        DemandEquality(constraint, isWanted, rules);
        return;
    }
}

void UvlConstraintRules::DemandEquality(const UvlConstraint& constraint, bool isWanted,
                                        std::vector<DirectiveTerm>& rules) const {
    const RuleTerm left = TermOf(constraint.parts[0]);
    const RuleTerm right = TermOf(constraint.parts[1]);
    if (isWanted) {
        rules.push_back({left, right});
        rules.push_back({right, left});
        return;
    }
    rules.push_back({left, Negation(right)});
    rules.push_back({Negation(left), right});
}

RuleTerm UvlConstraintRules::TermOf(const UvlConstraint& constraint) const {
    if (constraint.kind == Kind::Feature)
        return RuleTerm::Of(_naming(constraint.feature));
    std::vector<RuleTerm> parts = TermsOf(constraint.parts, true);
    switch (constraint.kind) {
    case Kind::And:
        return AllOf(std::move(parts));
    case Kind::Or:
        return AnyOf(std::move(parts));
    case Kind::Implies:
        return Implication(std::move(parts[0]), std::move(parts[1]));
    case Kind::Equals:
        return AllOf({Implication(parts[0], parts[1]), Implication(parts[1], parts[0])});
    default:
        return Negation(std::move(parts.front()));
    }
}

std::vector<RuleTerm> UvlConstraintRules::TermsOf(const std::vector<UvlConstraint>& parts,
                                                  bool areWanted) const {
    std::vector<RuleTerm> terms;
    terms.reserve(parts.size());
    for (const UvlConstraint& part : parts)
        terms.push_back(areWanted ? TermOf(part) : Negation(TermOf(part)));
    return terms;
}

} // namespace trellis
