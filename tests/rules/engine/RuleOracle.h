#pragma once

#include "rules/engine/RuleQuestion.h"

#include <bitset>
#include <cstddef>
#include <map>
#include <vector>

namespace trellis {

// RuleOracle: the meaning of a rule set of at most nine options, by going through every choice of options.
class RuleOracle {
public:
    static constexpr int MostOptions = 9;
    // One bit per choice of options; the choice's own bits tell which options it has.
    using Choices = std::bitset<1 << MostOptions>;

    explicit RuleOracle(const RuleModel& model);

    Choices All() const { return _all; }
    Choices Fulfilling(RuleLiteral literal) const;
    Choices Fulfilling(const std::vector<RuleLiteral>& literals) const;
    Choices Fulfilling(RuleReason rule) const { return _fulfilling.at(rule); }
    Choices Fulfilling(const std::vector<RuleReason>& rules) const;
    // Those rules that bind for the question.
    std::vector<RuleReason> Binding(const RuleQuestion& question) const;

    std::vector<RuleLiteral> Forced(const RuleQuestion& question) const;
    std::vector<int> Irresolutions(const RuleQuestion& question) const;
    // All sets of given literals to give up that are none too large, smallest first.
    std::vector<std::vector<RuleLiteral>> Repairs(const RuleQuestion& question) const;

private:
    void AddRules(RuleReason::Kind kind, std::size_t count);
    bool Fulfills(unsigned choice, RuleReason rule) const;

    const RuleModel& _model;
    Choices _all;
    std::map<RuleReason, Choices> _fulfilling;
};

} // namespace trellis
