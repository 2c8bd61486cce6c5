#include "rules/engine/RandomRules.h"
#include "rules/engine/RuleOracle.h"

#include "rules/engine/RuleCheck.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

using namespace trellis;

namespace {

// Each of these is needed so that none of the choices is left.
void ExpectIrreducible(const RuleOracle& oracle, const RuleExplanation& reason,
                       const RuleOracle::Choices& within) {
    EXPECT_TRUE(reason.given.empty());
    EXPECT_TRUE((oracle.Fulfilling(reason.rules) & within).none());
    for (const RuleReason& left : reason.rules) {
        std::vector<RuleReason> rules = reason.rules;
        std::erase(rules, left);
        EXPECT_TRUE((oracle.Fulfilling(rules) & within).any());
    }
}

void ExpectFixed(const RuleOracle& oracle, const std::vector<RuleFindings::FixedOption>& fixed) {
    std::vector<RuleLiteral> literals;
    for (const auto& [literal, reason] : fixed) {
        literals.push_back(literal);
        ExpectIrreducible(oracle, reason, oracle.Fulfilling(RuleLiteral{literal.option, !literal.isChosen}));
    }
    EXPECT_EQ(literals, oracle.Forced({}));
}

void ExpectIdle(const RuleOracle& oracle, const std::vector<RuleFindings::IdleRule>& idle) {
    std::vector<RuleReason> found;
    for (const auto& [rule, reason] : idle) {
        found.push_back(rule);
        EXPECT_EQ(std::count(reason.rules.begin(), reason.rules.end(), rule), 0);
        ExpectIrreducible(oracle, reason, oracle.All() & ~oracle.Fulfilling(rule));
    }
    std::vector<RuleReason> expected;
    const std::vector<RuleReason> all = oracle.Binding({});
    for (const RuleReason& rule : all) {
        std::vector<RuleReason> others = all;
        std::erase(others, rule);
        const bool isAboutOptions = rule.kind < RuleReason::Kind::Exclusive;
        if (isAboutOptions && (oracle.Fulfilling(others) & ~oracle.Fulfilling(rule)).none())
            expected.push_back(rule);
    }
    EXPECT_EQ(found, expected);
}

} // namespace

TEST(RuleCheckTest, FindsWhatGoingThroughAllChoicesFinds) {
    for (unsigned seed = 4000; seed < 6000 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const RuleModel model = RandomRules(seed).Model();
        const RuleOracle oracle(model);
        RuleEngine engine(model);
        const RuleFindings findings = RuleCheck(engine).Run();
        const bool isContradictory = oracle.Fulfilling(oracle.Binding({})).none();
        ASSERT_EQ(findings.contradiction.has_value(), isContradictory);
        if (isContradictory) {
            ExpectIrreducible(oracle, *findings.contradiction, oracle.All());
            EXPECT_TRUE(findings.fixedOptions.empty());
            EXPECT_TRUE(findings.idleRules.empty());
            continue;
        }
        ExpectFixed(oracle, findings.fixedOptions);
        ExpectIdle(oracle, findings.idleRules);
    }
}
