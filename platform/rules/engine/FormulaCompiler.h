#pragma once

#include "rules/engine/Literals.h"

#include <functional>
#include <vector>

namespace trellis {

// FormulaCompiler: turns formulas into clauses. Where plain distribution would make too many, a part gets a variable
// of its own that implies it; such a variable may be false although its part holds.
class FormulaCompiler {
public:
    using Clauses = std::vector<std::vector<Literal>>;

    explicit FormulaCompiler(std::function<int()> newVariable) : _newVariable(std::move(newVariable)) {}

    // Clauses that hold for some values of the new variables exactly where the formula has the given truth. Each
    // clause is sorted, has no literal twice and is no tautology; no clause at all is true, an empty one is false.
    Clauses Compile(const RuleFormula& formula, bool holds);

private:
    static constexpr std::size_t LargestProduct = 12;

    Clauses Parts(const RuleFormula& formula, bool holds);
    Clauses Alternatives(const RuleFormula& formula, bool holds);
    void NameParts(Clauses& clauses);

    std::function<int()> _newVariable;
    Clauses _definitions;
};

} // namespace trellis
