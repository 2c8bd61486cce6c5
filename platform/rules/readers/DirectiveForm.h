#pragma once

#include "rules/language/RuleTerm.h"

#include <vector>

namespace trellis {

// Terms and directives put together in the form that people read best: no connective inside one of its own
// kind, no double negation.

// All of them, or one of them; at least one part is needed.
RuleTerm AllOf(std::vector<RuleTerm> parts);
RuleTerm AnyOf(std::vector<RuleTerm> parts);
RuleTerm Negation(RuleTerm part);

// One of the parts holds, as "if the negated ones then one of the others".
DirectiveTerm Disjunction(std::vector<RuleTerm> parts);

} // namespace trellis
