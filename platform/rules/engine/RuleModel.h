#pragma once

#include <string>
#include <vector>

namespace trellis {

// A rule set over numbered options, as the engine knows it: names are translated before and after.

// A condition over options: a reference, or a connective over parts. A connective without parts is true for And,
// false for Or; Not has exactly one part.
struct RuleFormula {
    enum class Kind { Option, Not, And, Or };

    Kind kind = Kind::And;
    int option = -1; // of Option
    std::vector<RuleFormula> parts;
};

// An option, chosen or rejected.
struct RuleLiteral {
    int option = 0;
    bool isChosen = true;

    friend bool operator==(const RuleLiteral&, const RuleLiteral&) = default;
    friend auto operator<=>(const RuleLiteral&, const RuleLiteral&) = default;
};

// Of a mandatory category at least one option is chosen, if it has any; of an exclusive one at most one.
struct CategoryModel {
    std::string name;
    std::vector<int> options;
    bool isExclusive = false;
    bool isMandatory = false;
};

// Where the condition holds, the consequence holds.
struct DirectiveModel {
    RuleFormula condition;
    RuleFormula consequence;
};

// The plain options stand or fall together; where they stand, the negated ones do not.
struct PackageModel {
    std::vector<RuleLiteral> literals;
};

// The options chosen in the columns must fit at least one row. An empty cell fits anything; a column in which
// nothing is chosen binds nothing; a matrix without rows binds nothing; a row that names an option that is gone
// fits nothing.
struct MatrixModel {
    static constexpr int EmptyCell = -1;
    static constexpr int GoneCell = -2;

    std::vector<std::vector<int>> columns; // the options of each column's category
    std::vector<std::vector<int>> rows;    // one cell per column: an option, EmptyCell or GoneCell
};

// A whole rule set. Options are numbered from 0 in dictionary order; rules of each kind by their place here.
struct RuleModel {
    int optionCount = 0;
    std::vector<CategoryModel> categories;
    std::vector<DirectiveModel> directives;
    std::vector<PackageModel> packages;
    std::vector<MatrixModel> matrices;
};

} // namespace trellis
