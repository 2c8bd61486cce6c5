#include "rules/engine/RandomRules.h"

#include <algorithm>
#include <string>

namespace trellis {

RuleModel RandomRules::Model() {
    RuleModel model;
    model.optionCount = 2 + Below(8);
    for (int option = 0; option < model.optionCount;) {
        CategoryModel category;
        category.isExclusive = Happens(60);
        category.isMandatory = Happens(50);
        for (int size = 1 + Below(Happens(15) ? 9 : 4); size > 0 && option < model.optionCount; --size)
            category.options.push_back(option++);
        model.categories.push_back(category);
    }
    if (Happens(20)) // an option may stand in two categories
        model.categories.front().options.push_back(Below(model.optionCount));
    if (Happens(20))
        model.categories.push_back({"empty", {}, Happens(50), true});
    for (int count = Below(6); count > 0; --count)
        model.directives.push_back({Formula(model.optionCount, 2), Formula(model.optionCount, 3)});
    for (int count = Below(3); count > 0; --count)
        model.packages.push_back(Package(model.optionCount));
    for (int count = Below(3); count > 0; --count)
        model.matrices.push_back(Matrix(model));
    return model;
}

RuleFormula RandomRules::Formula(int optionCount, int depth) {
    const int kind = depth == 0 ? 0 : Below(6);
    if (kind <= 2)
        return {RuleFormula::Kind::Option, Below(optionCount), {}};
    if (kind == 3)
        return {RuleFormula::Kind::Not, -1, {Formula(optionCount, depth - 1)}};
    RuleFormula formula{kind == 4 ? RuleFormula::Kind::And : RuleFormula::Kind::Or, -1, {}};
    for (int count = Happens(4) ? 0 : 2 + Below(3); count > 0; --count)
        formula.parts.push_back(Formula(optionCount, depth - 1));
    return formula;
}

PackageModel RandomRules::Package(int optionCount) {
    PackageModel package;
    for (int count = 1 + Below(4); count > 0; --count)
        package.literals.push_back({Below(optionCount), Happens(65)});
    return package;
}

int RandomRules::Cell(const std::vector<int>& column) {
    if (Happens(25) || column.empty())
        return MatrixModel::EmptyCell;
    if (Happens(5))
        return MatrixModel::GoneCell;
    return column[Below(static_cast<int>(column.size()))];
}

MatrixModel RandomRules::Matrix(const RuleModel& model) {
    MatrixModel matrix;
    for (int count = 1 + Below(3); count > 0; --count)
        matrix.columns.push_back(model.categories[Below(static_cast<int>(model.categories.size()))].options);
    for (int count = Below(5); count > 0; --count) {
        std::vector<int>& row = matrix.rows.emplace_back();
        for (const auto& column : matrix.columns)
            row.push_back(Cell(column));
    }
    return matrix;
}

RuleQuestion RandomRules::Question(const RuleModel& model) {
    RuleQuestion question;
    return Happens(50) ? question : NextQuestion(model, question);
}

RuleQuestion RandomRules::NextQuestion(const RuleModel& model, RuleQuestion last) {
    const auto toggle = [&](bool& isOn, int percent) { isOn = Happens(percent) ? !isOn : isOn; };
    toggle(last.areDirectivesOn, 4);
    toggle(last.arePackagesOn, 4);
    toggle(last.areMatricesOn, 4);
    if (Happens(4))
        last.exclusivity.clear();
    for (int percent = 6; Happens(percent); percent = 50) // of two for the same category the last one wins
        last.exclusivity.emplace_back(Below(static_cast<int>(model.categories.size())), Happens(50));
    if (!last.given.empty() && Happens(35))
        last.given.erase(last.given.begin() + Below(static_cast<int>(last.given.size())));
    for (int count = 1 + Below(2); count > 0; --count)
        if (Happens(70))
            last.given.push_back({Below(model.optionCount), Happens(60)});
    return last;
}

} // namespace trellis
