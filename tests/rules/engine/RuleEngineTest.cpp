#include "rules/engine/RandomRules.h"
#include "rules/engine/RuleOracle.h"

#include "rules/engine/RuleEngine.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>

using namespace trellis;

namespace {

constexpr unsigned FirstSeed = 20260;
constexpr unsigned ModelCount = 2000;
constexpr int PlaysPerModel = 10;

template <typename Entry>
std::vector<Entry> Without(std::vector<Entry> entries, std::size_t place) {
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(place));
    return entries;
}

// Plays against the oracle.
class Judge {
public:
    Judge(const RuleOracle& oracle, const RuleQuestion& question)
        : _oracle(oracle), _question(question), _binding(oracle.Binding(question)) {}

    void ExpectRight(const RuleAnswer& answer) const {
        const RuleOracle::Choices rules = _oracle.Fulfilling(_binding);
        EXPECT_EQ(answer.isContradictory, rules.none());
        EXPECT_EQ(answer.forced, _oracle.Forced(_question));
        EXPECT_EQ(answer.irresolutions, _oracle.Irresolutions(_question));
        const bool isConflict = rules.any() && (rules & _oracle.Fulfilling(_question.given)).none();
        EXPECT_EQ(!answer.conflict.empty(), isConflict);
        if (isConflict)
            ExpectReason({{}, answer.conflict}, rules);
    }

    // Enough for a contradiction within these choices, and no part too many.
    void ExpectReason(const RuleExplanation& reason, const RuleOracle::Choices& within) const {
        EXPECT_TRUE((Left(reason) & within).none());
        EXPECT_TRUE(std::is_sorted(reason.rules.begin(), reason.rules.end()));
        EXPECT_TRUE(std::is_sorted(reason.given.begin(), reason.given.end()));
        for (std::size_t place = 0; place < reason.rules.size(); ++place)
            EXPECT_TRUE((Left({Without(reason.rules, place), reason.given}) & within).any());
        for (std::size_t place = 0; place < reason.given.size(); ++place)
            EXPECT_TRUE((Left({reason.rules, Without(reason.given, place)}) & within).any());
        for (const RuleReason& rule : reason.rules)
            EXPECT_NE(std::find(_binding.begin(), _binding.end(), rule), _binding.end());
        for (const RuleLiteral& literal : reason.given)
            EXPECT_NE(std::find(_question.given.begin(), _question.given.end(), literal),
                      _question.given.end());
    }

    // Only what was given or follows has a reason, and what was given has itself.
    void ExpectReasonOf(const RuleLiteral& literal, const RuleAnswer& answer,
                        const std::optional<RuleExplanation>& reason) const {
        const auto isIn = [&](const auto& list) {
            return std::find(list.begin(), list.end(), literal) != list.end();
        };
        if (isIn(_question.given)) {
            EXPECT_EQ(reason, (RuleExplanation{{}, {literal}}));
            return;
        }
        ASSERT_EQ(reason.has_value(), isIn(answer.forced));
        if (reason)
            ExpectReason(*reason, _oracle.Fulfilling(RuleLiteral{literal.option, !literal.isChosen}));
    }

private:
    RuleOracle::Choices Left(const RuleExplanation& reason) const {
        return _oracle.Fulfilling(reason.rules) & _oracle.Fulfilling(reason.given);
    }

    const RuleOracle& _oracle;
    const RuleQuestion& _question;
    std::vector<RuleReason> _binding;
};

// Calls `play` with models, and questions that follow one another, until something fails.
template <typename Play>
void ForManyQuestions(Play play) {
    for (unsigned seed = FirstSeed; seed < FirstSeed + ModelCount && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RandomRules random(seed);
        const RuleModel model = random.Model();
        const RuleOracle oracle(model);
        RuleEngine engine(model);
        RuleQuestion question = random.Question(model);
        for (int count = 0; count < PlaysPerModel && !testing::Test::HasFailure(); ++count) {
            SCOPED_TRACE("play " + std::to_string(count));
            play(engine, oracle, question);
            question = random.NextQuestion(model, question);
        }
    }
}

} // namespace

TEST(RuleEngineTest, AnswersAsGoingThroughAllChoicesDoes) {
    ForManyQuestions([](RuleEngine& engine, const RuleOracle& oracle, const RuleQuestion& question) {
        Judge(oracle, question).ExpectRight(engine.Play(question));
    });
}

TEST(RuleEngineTest, EveryReasonIsEnoughAndHasNothingTooMany) {
    ForManyQuestions([](RuleEngine& engine, const RuleOracle& oracle, const RuleQuestion& question) {
        const Judge judge(oracle, question);
        const RuleAnswer answer = engine.Play(question);
        const auto conflict = engine.WhyConflict(question);
        ASSERT_EQ(conflict.has_value(), !answer.IsConsistent());
        if (conflict) {
            EXPECT_EQ(conflict->given, answer.conflict);
            judge.ExpectReason(*conflict, oracle.All());
            EXPECT_FALSE(engine.Why(question, {0, true}));
            return;
        }
        for (int option = 0; option < engine.Model().optionCount; ++option)
            for (bool isChosen : {false, true})
                judge.ExpectReasonOf({option, isChosen}, answer, engine.Why(question, {option, isChosen}));
    });
}

TEST(RuleEngineTest, OffersEverySmallestSetToGiveUp) {
    ForManyQuestions([](RuleEngine& engine, const RuleOracle& oracle, const RuleQuestion& question) {
        const RuleAnswer answer = engine.Play(question);
        auto repairs = engine.Repairs(question, 1000);
        if (answer.conflict.empty()) {
            EXPECT_TRUE(repairs.empty());
            return;
        }
        const auto isSmaller = [](const auto& one, const auto& other) { return one.size() < other.size(); };
        EXPECT_TRUE(std::is_sorted(repairs.begin(), repairs.end(), isSmaller));
        const auto first = engine.Repairs(question, 1);
        ASSERT_EQ(first.size(), 1U);
        EXPECT_EQ(first.front().size(), repairs.front().size());
        auto expected = oracle.Repairs(question);
        std::sort(expected.begin(), expected.end());
        std::sort(repairs.begin(), repairs.end());
        EXPECT_EQ(repairs, expected);
    });
}
