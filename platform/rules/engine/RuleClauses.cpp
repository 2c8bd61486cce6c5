#include "rules/engine/RuleClauses.h"

#include "rules/engine/FormulaCompiler.h"

#include <algorithm>
#include <map>
#include <utility>

namespace trellis {

RuleClauses::RuleClauses(const RuleModel& model)
    : _optionCount(model.optionCount), _variableCount(model.optionCount) {
    for (const CategoryModel& category : model.categories) {
        const int number = CategoryCount();
        std::vector<int>& options = _categories.emplace_back(category.options);
        _isExclusive.push_back(category.isExclusive);
        std::sort(options.begin(), options.end());
        options.erase(std::unique(options.begin(), options.end()), options.end());
        if (!category.isMandatory || options.empty())
            continue;
        std::vector<Literal> some;
        for (int option : options)
            some.push_back(MakeLiteral(option, true));
        AddBlock({RuleReason::Kind::Mandatory, number}, {some});
    }
    for (std::size_t number = 0; number < model.directives.size(); ++number)
        AddDirective(model.directives[number], static_cast<int>(number));
    for (std::size_t number = 0; number < model.packages.size(); ++number)
        AddPackage(model.packages[number], static_cast<int>(number));
    for (std::size_t number = 0; number < model.matrices.size(); ++number)
        AddMatrix(model.matrices[number], static_cast<int>(number));
}

void RuleClauses::AddClause(std::span<const Literal> clause) {
    _literals.insert(_literals.end(), clause.begin(), clause.end());
    _starts.push_back(static_cast<int>(_literals.size()));
}

void RuleClauses::AddBlock(RuleReason reason, const std::vector<std::vector<Literal>>& clauses) {
    const int first = static_cast<int>(_starts.size()) - 1;
    for (const auto& clause : clauses)
        AddClause(clause);
    _blocks.push_back({reason, first, static_cast<int>(_starts.size()) - 1});
}

void RuleClauses::AddDirective(const DirectiveModel& directive, int number) {
    const RuleFormula unless{RuleFormula::Kind::Not, -1, {directive.condition}};
    const RuleFormula implication{RuleFormula::Kind::Or, -1, {unless, directive.consequence}};
    AddBlock({RuleReason::Kind::Directive, number},
             FormulaCompiler([this] { return NewVariable(); }).Compile(implication, true));
}

void RuleClauses::AddPackage(const PackageModel& package, int number) {
    std::vector<int> plain;
    for (const RuleLiteral& literal : package.literals)
        if (literal.isChosen)
            plain.push_back(literal.option);
    std::sort(plain.begin(), plain.end());
    plain.erase(std::unique(plain.begin(), plain.end()), plain.end());
    std::vector<std::vector<Literal>> clauses;
    for (std::size_t place = 0; plain.size() > 1 && place < plain.size(); ++place) {
        const int next = plain[(place + 1) % plain.size()];
        clauses.push_back({MakeLiteral(plain[place], false), MakeLiteral(next, true)});
    }
    for (const RuleLiteral& literal : package.literals) {
        if (literal.isChosen || plain.empty())
            continue;
        std::vector<Literal> clause{MakeLiteral(plain.front(), false)};
        if (literal.option != plain.front())
            clause.push_back(MakeLiteral(literal));
        clauses.push_back(std::move(clause));
    }
    AddBlock({RuleReason::Kind::Package, number}, clauses);
}

void RuleClauses::AddMatrix(const MatrixModel& matrix, int number) {
    std::vector<std::vector<Literal>> clauses;
    std::map<std::pair<std::size_t, int>, int>
        limits; // (column, cell) to "nothing but the cell is chosen there"
    const auto limit = [&](std::size_t column, int cell) {
        const auto [place, isNew] = limits.try_emplace({column, cell}, -1);
        if (!isNew)
            return place->second;
        place->second = NewVariable();
        for (int option : matrix.columns[column])
            if (option != cell)
                clauses.push_back({MakeLiteral(place->second, false), MakeLiteral(option, false)});
        return place->second;
    };
    std::vector<Literal> some;
    for (const std::vector<int>& row : matrix.rows) {
        if (std::find(row.begin(), row.end(), MatrixModel::GoneCell) != row.end())
            continue;
        const int fits = NewVariable();
        some.push_back(MakeLiteral(fits, true));
        for (std::size_t column = 0; column < row.size(); ++column)
            if (row[column] != MatrixModel::EmptyCell)
                clauses.push_back({MakeLiteral(fits, false), MakeLiteral(limit(column, row[column]), true)});
    }
    if (!matrix.rows.empty())
        clauses.push_back(std::move(some));
    AddBlock({RuleReason::Kind::Matrix, number}, clauses);
}

} // namespace trellis
