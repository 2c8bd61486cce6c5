#pragma once

#include "rules/readers/UvlTree.h"

#include <optional>
#include <vector>

namespace trellis {

// A constraint over features. Not has one part, Implies and Equals have two, And and Or at least two.
struct UvlConstraint {
    enum class Kind { Feature, Not, And, Or, Implies, Equals };

    Kind kind = Kind::Feature;
    int feature = 0; // of Feature: its place in the tree
    std::vector<UvlConstraint> parts;
    int levels = 1;        // how deep it is nested
    std::size_t terms = 1; // how many features it names once every equivalence is written as two implications
};

// UvlConstraintParser: reads one constraint. ! binds most, then &, |, => and <=>; like signs bind from the
// left.
class UvlConstraintParser {
public:
    // What is nested deeper is refused: rules are read by people, and by recursion.
    static constexpr int MostLevels = 100;
    // The same for constraints that grow too large for any rule: each <=> inside another doubles them.
    static constexpr std::size_t MostTerms = 10'000;

    UvlConstraintParser(const UvlLine& line, const UvlTree& tree, ModelProblems& problems)
        : _tree(tree), _tokens(line, problems) {}

    // Nothing when it is wrong, which is noted: 60704, 60719 to 60723.
    std::optional<UvlConstraint> Read();

private:
    UvlConstraint ReadBinary(int level);
    UvlConstraint ReadUnary();
    UvlConstraint ReadBracket();
    UvlConstraint Joined(UvlConstraint::Kind kind, UvlConstraint left, UvlConstraint right);
    UvlConstraint Checked(UvlConstraint constraint);
    UvlConstraint Failed(int number);
    UvlConstraint Failed(int number, const std::vector<std::string>& parameters);

    const UvlTree& _tree;
    UvlTokens _tokens;
    int _openBrackets = 0;
    bool _hasFailed = false;
};

} // namespace trellis
