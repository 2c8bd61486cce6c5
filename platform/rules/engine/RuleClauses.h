#pragma once

#include "rules/engine/Literals.h"
#include "rules/engine/RuleQuestion.h"

#include <span>
#include <vector>

namespace trellis {

// RuleClauses: a rule model as clauses over numbered variables, each clause known by the rule that it comes from.
// That an exclusive category has at most one option chosen is no clause here: see Options().
class RuleClauses {
public:
    struct Block {
        RuleReason reason; // never of kind Exclusive
        int firstClause = 0;
        int endClause = 0;
    };

    explicit RuleClauses(const RuleModel& model);

    int OptionCount() const { return _optionCount; }
    int VariableCount() const { return _variableCount; }
    const std::vector<Block>& Blocks() const { return _blocks; }
    std::span<const Literal> Clause(int number) const {
        return std::span(_literals).subspan(_starts[number], _starts[number + 1] - _starts[number]);
    }
    int CategoryCount() const { return static_cast<int>(_categories.size()); }
    // The options of a category, none twice.
    std::span<const int> Options(int category) const { return _categories[category]; }
    bool IsExclusive(int category) const { return _isExclusive[category]; }

private:
    int NewVariable() { return _variableCount++; }
    void AddClause(std::span<const Literal> clause);
    void AddBlock(RuleReason reason, const std::vector<std::vector<Literal>>& clauses);
    void AddDirective(const DirectiveModel& directive, int number);
    void AddPackage(const PackageModel& package, int number);
    void AddMatrix(const MatrixModel& matrix, int number);

    int _optionCount = 0;
    int _variableCount = 0;
    std::vector<Block> _blocks;
    std::vector<Literal> _literals;
    std::vector<int> _starts{0};
    std::vector<std::vector<int>> _categories;
    std::vector<bool> _isExclusive;
};

} // namespace trellis
