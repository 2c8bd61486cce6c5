#pragma once

#include "rules/engine/RuleModel.h"

namespace trellis {

// A variable with its sign inside the engine: twice the variable, plus one where it is false. Variables below the
// number of options are the options; those above are helpers of the translation into clauses.
using Literal = int;

constexpr Literal MakeLiteral(int variable, bool isTrue) {
    return 2 * variable + (isTrue ? 0 : 1);
}
constexpr Literal MakeLiteral(RuleLiteral literal) {
    return MakeLiteral(literal.option, literal.isChosen);
}
constexpr Literal Negated(Literal literal) {
    return literal ^ 1;
}
constexpr int VariableOf(Literal literal) {
    return literal >> 1;
}
constexpr bool IsPositive(Literal literal) {
    return (literal & 1) == 0;
}
constexpr RuleLiteral RuleLiteralOf(Literal literal) {
    return {VariableOf(literal), IsPositive(literal)};
}

} // namespace trellis
