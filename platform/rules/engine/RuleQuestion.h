#pragma once

#include "rules/engine/RuleModel.h"

#include <utility>
#include <vector>

namespace trellis {

// What is asked of a rule set. Literals of options or categories that the model lacks are a caller's mistake.
struct RuleQuestion {
    std::vector<RuleLiteral> given; // the user's own choices and rejections, in any order
    bool areDirectivesOn = true;
    bool arePackagesOn = true;
    bool areMatricesOn = true;
    // Categories, by number, whose exclusivity is to be another than the stored one; the last one wins.
    std::vector<std::pair<int, bool>> exclusivity = {};
};

// What follows. All lists are in the order of options.
struct RuleAnswer {
    std::vector<RuleLiteral> forced;   // every option whose state follows, without those given
    std::vector<RuleLiteral> conflict; // given literals that cannot stand together, none of them too many
    bool isContradictory = false;      // the rules contradict each other with nothing given
    // Undecided options of the consequences of directives whose condition holds by what is given and forced, and
    // which are not fulfilled by it.
    std::vector<int> irresolutions;
    // With a conflict or a contradiction nothing is forced and nothing is without solution: both lists are empty.
    bool IsConsistent() const { return conflict.empty() && !isContradictory; }
};

// A rule of the model, by kind and by its place among its kind; the two about categories by the category's place.
struct RuleReason {
    enum class Kind { Directive, Package, Matrix, Exclusive, Mandatory };

    Kind kind = Kind::Directive;
    int number = 0;

    friend bool operator==(const RuleReason&, const RuleReason&) = default;
    friend auto operator<=>(const RuleReason&, const RuleReason&) = default;
};

// Why something follows: rules and given literals that are enough for it together, none of them too many. Never
// other deductions. Sorted.
struct RuleExplanation {
    std::vector<RuleReason> rules;
    std::vector<RuleLiteral> given;

    friend bool operator==(const RuleExplanation&, const RuleExplanation&) = default;
};

} // namespace trellis
