#pragma once

#include "rules/engine/RuleQuestion.h"

#include <random>

namespace trellis {

// RandomRules: small rule sets and questions about them, the same ones for the same seed.
class RandomRules {
public:
    explicit RandomRules(unsigned seed) : _source(seed) {}

    RuleModel Model();
    // A first question, or one that a click or two lead to from the last.
    RuleQuestion Question(const RuleModel& model);
    RuleQuestion NextQuestion(const RuleModel& model, RuleQuestion last);

private:
    int Below(int limit) { return static_cast<int>(_source() % static_cast<unsigned>(limit)); }
    bool Happens(int percent) { return Below(100) < percent; }
    RuleFormula Formula(int optionCount, int depth);
    PackageModel Package(int optionCount);
    MatrixModel Matrix(const RuleModel& model);
    int Cell(const std::vector<int>& column);

    std::mt19937 _source;
};

} // namespace trellis
