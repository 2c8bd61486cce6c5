#include "rules/engine/FormulaCompiler.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace trellis {

namespace {

// False where the clause is a tautology.
bool Normalize(std::vector<Literal>& clause) {
    std::sort(clause.begin(), clause.end());
    clause.erase(std::unique(clause.begin(), clause.end()), clause.end());
    const auto isPair = [](Literal one, Literal other) { return one == Negated(other); };
    return std::adjacent_find(clause.begin(), clause.end(), isPair) == clause.end();
}

FormulaCompiler::Clauses Product(const FormulaCompiler::Clauses& left,
                                 const FormulaCompiler::Clauses& right) {
    FormulaCompiler::Clauses product;
    for (const auto& one : left) {
        for (const auto& other : right) {
            std::vector<Literal> clause = one;
            clause.insert(clause.end(), other.begin(), other.end());
            if (Normalize(clause))
                product.push_back(std::move(clause));
        }
    }
    return product;
}

} // namespace

FormulaCompiler::Clauses FormulaCompiler::Compile(const RuleFormula& formula, bool holds) {
    _definitions.clear();
    Clauses clauses = Parts(formula, holds);
    clauses.insert(clauses.end(), std::make_move_iterator(_definitions.begin()),
                   std::make_move_iterator(_definitions.end()));
    return clauses;
}

FormulaCompiler::Clauses FormulaCompiler::Parts(const RuleFormula& formula, bool holds) {
    switch (formula.kind) {
    case RuleFormula::Kind::Option:
        return {{MakeLiteral(formula.option, holds)}};
    case RuleFormula::Kind::Not:
        return Parts(formula.parts.front(), !holds);
    case RuleFormula::Kind::And:
    case RuleFormula::Kind::Or:
        break;
    }
    if ((formula.kind == RuleFormula::Kind::Or) == holds)
        return Alternatives(formula, holds);
    Clauses all;
    for (const RuleFormula& part : formula.parts) {
        Clauses clauses = Parts(part, holds);
        all.insert(all.end(), std::make_move_iterator(clauses.begin()),
                   std::make_move_iterator(clauses.end()));
    }
    return all;
}

FormulaCompiler::Clauses FormulaCompiler::Alternatives(const RuleFormula& formula, bool holds) {
    Clauses product{{}};
    for (const RuleFormula& part : formula.parts) {
        Clauses clauses = Parts(part, holds);
        if (clauses.size() > 1 && product.size() * clauses.size() > LargestProduct)
            NameParts(clauses);
        product = Product(product, clauses);
    }
    return product;
}

void FormulaCompiler::NameParts(Clauses& clauses) {
    const int name = _newVariable();
    for (auto& clause : clauses) {
        clause.push_back(MakeLiteral(name, false));
        _definitions.push_back(std::move(clause));
    }
    clauses = {{MakeLiteral(name, true)}};
}

} // namespace trellis
