#include "rules/engine/SolverConfirmation.h"

#include "rules/engine/RuleEngine.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

using namespace trellis;

namespace {

// Random rules of three options each, so many that few choices are left: what search near a model does not find.
RuleModel HardRules(int optionCount, double rulesPerOption, std::mt19937& random) {
    const auto option = [&] { return static_cast<int>(random() % static_cast<unsigned>(optionCount)); };
    const auto literal = [&] {
        const RuleFormula plain{RuleFormula::Kind::Option, option(), {}};
        return random() % 2 ? plain : RuleFormula{RuleFormula::Kind::Not, -1, {plain}};
    };
    RuleModel model;
    model.optionCount = optionCount;
    for (int first = 0; first + 3 < optionCount; first += 12)
        model.categories.push_back({"", {first, first + 1, first + 2, first + 3}, true, random() % 2 == 0});
    for (int count = static_cast<int>(optionCount * rulesPerOption); count > 0; --count)
        model.directives.push_back({literal(), {RuleFormula::Kind::Or, -1, {literal(), literal()}}});
    return model;
}

} // namespace

TEST(HardRulesTest, AreAnsweredAsASolverConfirms) {
    int consistentCount = 0;
    for (unsigned seed = 300; seed < 340 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        const RuleModel model = HardRules(100, 2.6 + 0.02 * (seed - 300), random);
        RuleEngine engine(model);
        SolverConfirmation confirmation(engine.Clauses());
        ASSERT_EQ(engine.Play({}).isContradictory, !confirmation.CanStand({}));
        std::vector<RuleLiteral> given;
        for (int count = 0; count < 12 && !engine.Play({}).isContradictory; ++count) {
            const RuleAnswer& answer = engine.Play({given});
            ASSERT_EQ(answer.conflict.empty(), confirmation.CanStand(given));
            if (answer.conflict.empty()) {
                ++consistentCount;
                ASSERT_EQ(answer.forced, confirmation.Forced(given));
            } else {
                EXPECT_FALSE(confirmation.CanStand(answer.conflict));
                given.erase(given.begin() + static_cast<std::ptrdiff_t>(random() % given.size()));
            }
            given.push_back({static_cast<int>(random() % 100), random() % 2 == 0});
        }
    }
    EXPECT_GT(consistentCount, 100);
}
