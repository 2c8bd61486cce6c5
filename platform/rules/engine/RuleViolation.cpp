#include "rules/engine/RuleViolation.h"

#include <algorithm>

namespace trellis {

namespace {

using Kind = RuleFormula::Kind;

RuleFormula Not(RuleFormula part) {
    return {Kind::Not, -1, {std::move(part)}};
}

RuleFormula ViolationOf(const PackageModel& package) {
    RuleFormula somePlain{Kind::Or, -1, {}};
    RuleFormula allPlain{Kind::And, -1, {}};
    RuleFormula someNegated{Kind::Or, -1, {}};
    for (const RuleLiteral& literal : package.literals) {
        const RuleFormula option{Kind::Option, literal.option, {}};
        if (!literal.isChosen) {
            someNegated.parts.push_back(option);
            continue;
        }
        somePlain.parts.push_back(option);
        allPlain.parts.push_back(option);
    }
    const RuleFormula wrong{Kind::Or, -1, {Not(allPlain), someNegated}};
    return {Kind::And, -1, {somePlain, wrong}};
}

RuleFormula ViolationOf(const MatrixModel& matrix) {
    if (matrix.rows.empty())
        return {Kind::Or, -1, {}};
    RuleFormula all{Kind::And, -1, {}};
    for (const std::vector<int>& row : matrix.rows) {
        if (std::find(row.begin(), row.end(), MatrixModel::GoneCell) != row.end())
            continue;
        RuleFormula misfit{Kind::Or, -1, {}};
        for (std::size_t column = 0; column < row.size(); ++column)
            for (int option : matrix.columns[column])
                if (row[column] != MatrixModel::EmptyCell && option != row[column])
                    misfit.parts.push_back({Kind::Option, option, {}});
        all.parts.push_back(std::move(misfit));
    }
    return all;
}

} // namespace

RuleFormula ViolationOf(const RuleModel& model, RuleReason rule) {
    const auto place = static_cast<std::size_t>(rule.number);
    if (rule.kind == RuleReason::Kind::Package)
        return ViolationOf(model.packages[place]);
    if (rule.kind == RuleReason::Kind::Matrix)
        return ViolationOf(model.matrices[place]);
    const DirectiveModel& directive = model.directives[place];
    return {Kind::And, -1, {directive.condition, Not(directive.consequence)}};
}

} // namespace trellis
