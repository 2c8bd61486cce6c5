#include "rules/engine/RealModel.h"
#include "rules/engine/SolverConfirmation.h"

#include "rules/engine/RuleEngine.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

using namespace trellis;

namespace {

constexpr unsigned Seed = 2026;
constexpr int DecisionCount = 6;
constexpr int LargeModel = 5000; // options; of larger ones one question is enough to fill a minute

// One more decision about an option that is free still.
void DecideOne(RuleEngine& engine, std::vector<RuleLiteral>& given, std::mt19937& random) {
    const RuleAnswer& answer = engine.Play({given});
    std::vector<int> free(static_cast<std::size_t>(engine.Model().optionCount));
    std::iota(free.begin(), free.end(), 0);
    std::erase_if(free, [&](int option) {
        const auto isAbout = [&](const RuleLiteral& literal) { return literal.option == option; };
        return std::any_of(given.begin(), given.end(), isAbout) ||
               std::any_of(answer.forced.begin(), answer.forced.end(), isAbout);
    });
    if (!free.empty())
        given.push_back({free[random() % free.size()], random() % 3 != 0});
}

class RealModelTest : public testing::TestWithParam<std::filesystem::path> {};

std::string NameOf(const testing::TestParamInfo<std::filesystem::path>& file) {
    std::string name = file.param.filename().string();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char letter) { return std::isalnum(letter) == 0; }, '_');
    return name;
}

} // namespace

TEST(RealModelFilesTest, AreRead) {
    const auto files = RealModelFiles();
    if (files.empty())
        GTEST_SKIP()
            << "no models in the folder models of TRELLIS_DATA, or of ../shared/data beside the checkout";
    for (const auto& file : files)
        EXPECT_TRUE(ReadRealModel(file)) << file;
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealModelTest);
INSTANTIATE_TEST_SUITE_P(Files, RealModelTest, testing::ValuesIn(RealModelFiles()), NameOf);

TEST_P(RealModelTest, EveryStateIsConfirmedByTwoQuestionsToASolver) {
    auto model = ReadRealModel(GetParam());
    ASSERT_TRUE(model);
    const bool isLarge = model->optionCount > LargeModel;
    const int sessionCount = isLarge ? 1 : 4;
    RuleEngine engine(std::move(*model));
    SolverConfirmation confirmation(engine.Clauses());
    std::mt19937 random(Seed);
    for (int session = 0; session < sessionCount; ++session) {
        std::vector<RuleLiteral> given;
        for (int count = 0; count < DecisionCount; ++count)
            DecideOne(engine, given, random);
        if (!isLarge) {
            EXPECT_EQ(engine.Play({given}).forced, confirmation.Forced(given));
        }
        given.erase(given.begin());
        EXPECT_EQ(engine.Play({given}).forced, confirmation.Forced(given));
    }
}
