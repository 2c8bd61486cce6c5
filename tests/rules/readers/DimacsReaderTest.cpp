#include "rules/readers/DimacsReader.h"

#include "rules/readers/ModelMeaning.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace trellis::test {
namespace {

std::string Read(std::string_view text) {
    const ModelReading reading = DimacsReader::Read(text);
    return reading.problems.empty() ? Described(reading.model) : Problems(reading);
}

TEST(DimacsReaderTest, ClausesBecomeDirectivesOverNamedVariables) {
    EXPECT_EQ(Read("c made by hand\nc 1 Rear light\r\nc 3 2\np cnf 4 5\n"
                   "-1 2 0\n1 2 -3\n 4 0 -4\n0\n2 0\n-2 -3 -2 0\nc 99 no variable\n"),
              "[cnf]: Rear light, 2~1, 2, 4\n"
              "cnf 5: if (Rear light) then 2~1\n"
              "cnf 7: if (2) then Rear light or 2~1 or 4\n"
              "cnf 8: if (4) then not 4\n"
              "cnf 9: if (not 2~1) then 2~1\n"
              "cnf 10: if (2~1) then not 2\n");
}

TEST(DimacsReaderTest, AClauseThatAlwaysHoldsIsLeftOut) {
    EXPECT_EQ(Read("p cnf 2 1\n1 2 -1 0\n"), "[cnf]: 1, 2\n");
}

TEST(DimacsReaderTest, EveryBadLineIsTold) {
    struct Case {
        const char* text;
        const char* problems;
    };
    constexpr Case cases[] = {{"", "0 60730"},
                              {"c only a comment\n", "0 60730"},
                              {"1 2 0\n-1 0\n", "1 60730"},
                              {"p dnf 1 1\n1 0\n", "1 60730"},
                              {"p cnf 1\n", "1 60730"},
                              {"p cnf 1 1 1\n", "1 60730"},
                              {"p cnf -1 1\n", "1 60730"},
                              {"p cnf 0 0\n", "1 60739"},
                              {"p cnf 100001 0\n", "1 60738"},
                              {"p cnf 99999999999999999999 1\n", "1 60730"},
                              {"p cnf 1 1\np cnf 1 1\n1 0\n", "2 60731"},
                              {"p cnf 2 2\n1 x 0\n3 0\n", "2 60732, 3 60733"},
                              {"p cnf 2 2\n-2147483648 0\n", "2 60733"},
                              {"p cnf 2 2\n1 0\n0\n", "3 60734"},
                              {"p cnf 2 1\n1 0\n2", "3 60735"},
                              {"p cnf 2 3\n1 0\n2 0\n", "0 60736"},
                              {"c 1 a\nc 1 b\np cnf 1 0\n", "2 60737"},
                              {"c 1 \xFF\np cnf 1 0\n", "1 60212"}};
    for (const Case& example : cases)
        EXPECT_EQ(Read(example.text), example.problems) << example.text;
}

RC_GTEST_PROP(DimacsReaderPropertyTest, TheModelAllowsWhatTheClausesAllow, ()) {
    constexpr int variables = 6;
    const auto literal = rc::gen::distinctFrom(rc::gen::inRange(-variables, variables + 1), 0);
    const auto clauses = *rc::gen::container<std::vector<std::vector<int>>>(
        rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(literal)));
    std::string text = "p cnf " + std::to_string(variables) + " " + std::to_string(clauses.size()) + "\n";
    for (const std::vector<int>& clause : clauses) {
        for (const int number : clause)
            text += std::to_string(number) + " ";
        text += "0\n";
    }
    const ModelReading reading = DimacsReader::Read(text);
    RC_ASSERT(Problems(reading) == "");
    for (int chosen = 0; chosen < 1 << variables; ++chosen) {
        Choice choice;
        for (int i = 0; i < variables; ++i)
            if ((chosen >> i & 1) != 0)
                choice.insert(std::to_string(i + 1));
        const auto holds = [chosen](int number) {
            return ((chosen >> (std::abs(number) - 1) & 1) != 0) == (number > 0);
        };
        const bool isAllowed = std::ranges::all_of(
            clauses, [&](const std::vector<int>& clause) { return std::ranges::any_of(clause, holds); });
        RC_ASSERT(Allows(reading.model, choice) == isAllowed);
    }
}

} // namespace
} // namespace trellis::test
