#pragma once

#include "rules/readers/DirectiveForm.h"
#include "rules/readers/UvlConstraint.h"

#include <functional>

namespace trellis {

// UvlConstraintRules: the directives that say together what a constraint says. An implication stays one, an
// equivalence becomes two, a conjunction one for each part, and of a disjunction the negated parts become the
// condition.
class UvlConstraintRules {
public:
    using Naming = std::function<OptionReference(int feature)>;

    explicit UvlConstraintRules(Naming naming) : _naming(std::move(naming)) {}

    std::vector<DirectiveTerm> Of(const UvlConstraint& constraint) const;

private:
    void Demand(const UvlConstraint& constraint, bool isWanted, std::vector<DirectiveTerm>& rules) const;
    void DemandEquality(const UvlConstraint& constraint, bool isWanted,
                        std::vector<DirectiveTerm>& rules) const;
    RuleTerm TermOf(const UvlConstraint& constraint) const;
    std::vector<RuleTerm> TermsOf(const std::vector<UvlConstraint>& parts, bool areWanted) const;

    Naming _naming;
};

} // namespace trellis
