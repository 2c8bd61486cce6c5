#include "rules/engine/RuleClauses.h"

#include <gtest/gtest.h>

using namespace trellis;

namespace {

int LiteralCount(const RuleClauses& clauses) {
    int count = 0;
    for (const RuleClauses::Block& block : clauses.Blocks())
        for (int clause = block.firstClause; clause < block.endClause; ++clause)
            count += static_cast<int>(clauses.Clause(clause).size());
    return count;
}

RuleFormula Option(int option) {
    return {RuleFormula::Kind::Option, option, {}};
}

} // namespace

TEST(RuleClausesTest, AnAlternativeOfManyConjunctionsGrowsWithItsLength) {
    RuleModel model;
    model.optionCount = 80;
    RuleFormula alternative{RuleFormula::Kind::Or, -1, {}};
    for (int option = 0; option < model.optionCount; option += 2)
        alternative.parts.push_back({RuleFormula::Kind::And, -1, {Option(option), Option(option + 1)}});
    model.directives.push_back({Option(0), alternative});
    EXPECT_LT(LiteralCount(RuleClauses(model)), 1000);
}

TEST(RuleClausesTest, RowsOfAMatrixThatShareACellShareItsClauses) {
    RuleModel model;
    model.optionCount = 40;
    MatrixModel matrix{{{}, {}}, {}};
    for (int option = 0; option < 20; ++option) {
        matrix.columns[0].push_back(option);
        matrix.columns[1].push_back(20 + option);
    }
    for (int row = 0; row < 400; ++row)
        matrix.rows.push_back({row / 20, 20 + row % 20});
    model.matrices.push_back(matrix);
    EXPECT_LT(LiteralCount(RuleClauses(model)), 5 * 400 + 4 * 400);
}
