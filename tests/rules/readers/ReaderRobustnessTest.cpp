// Texts that nobody meant as a model: each is read or refused, in time that grows with its length.

#include "rules/readers/DimacsReader.h"
#include "rules/readers/ModelMeaning.h"
#include "rules/readers/ModelProblems.h"
#include "rules/readers/UvlReader.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <set>

namespace trellis::test {
namespace {

constexpr int Many = 100'000;

std::string Times(int count, const std::string& text) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

std::string ProblemsOfConstraint(const std::string& constraint) {
    return Problems(UvlReader::Read("features\n r\n  optional\n   a\nconstraints\n " + constraint + "\n"));
}

TEST(ReaderRobustnessTest, DeepNestingIsRefusedWithItsLine) {
    EXPECT_EQ(ProblemsOfConstraint(Times(100, "(") + "a" + Times(100, ")")), "");
    EXPECT_EQ(ProblemsOfConstraint(Times(Many, "(") + "a" + Times(Many, ")")), "6 60722");
    EXPECT_EQ(ProblemsOfConstraint(Times(Many, "!(") + "a" + Times(Many, ")")), "6 60722");
    EXPECT_EQ(ProblemsOfConstraint(Times(Many, "a => ") + "a"), "6 60722");
    EXPECT_EQ(ProblemsOfConstraint(Times(Many, "a <=> ") + "a"), "6 60723");
    EXPECT_EQ(ProblemsOfConstraint(Times(Many, "a | ") + "a"), "6 60723");
    EXPECT_EQ(ProblemsOfConstraint(Times(Many, "!") + "a"), "");
}

TEST(ReaderRobustnessTest, ADeepTreeIsRead) {
    std::string text = "features\n";
    constexpr int levels = 3000;
    for (int i = 0; i < levels; ++i) {
        text += std::string(static_cast<std::size_t>(2 * i + 1), ' ') + "f" + std::to_string(i) + "\n";
        text += i + 1 < levels ? std::string(static_cast<std::size_t>(2 * i + 2), ' ') + "mandatory\n" : "";
    }
    EXPECT_EQ(UvlReader::Read(text).model.categories.size(), static_cast<std::size_t>(levels));
}

TEST(ReaderRobustnessTest, AFileFullOfMistakesEndsAtAHundred) {
    const std::string tree = "features\n r\n  or\n   a\n";
    const std::string texts[] = {tree + Times(Many, "   b c\n"),
                                 tree + Times(Many, "   b {\n"),
                                 tree + Times(Many, "   \"\n"),
                                 tree + "constraints\n" + Times(Many, " a =>\n"),
                                 tree + "constraints\n" + Times(Many, " (a\n"),
                                 "include\n" + Times(Many, " (\n"),
                                 "imports\n" + Times(Many, " x\n"),
                                 Times(Many, "x\n"),
                                 Times(Many, "\xFF\n")};
    for (const std::string& text : texts)
        EXPECT_EQ(UvlReader::Read(text).problems.size(), ModelProblems::Most) << text.substr(0, 60);
    EXPECT_EQ(DimacsReader::Read("p cnf 1 1\n" + Times(Many, "x\n")).problems.size(), ModelProblems::Most);
}

TEST(ReaderRobustnessTest, AMessageShowsOnlyTheBeginningOfAHugeWord) {
    const ModelReading reading = UvlReader::Read("features\n r\n  " + Times(Many, "äx") + "\n");
    ASSERT_EQ(Problems(reading), "3 60712");
    EXPECT_EQ(reading.problems[0].error.GetParameters().at(1).GetLengthInChar(), 60);
}

void ReadAnything(const ModelReading& reading) {
    RC_ASSERT(reading.problems.empty() == !reading.model.categories.empty());
    RC_ASSERT(reading.problems.size() <= ModelProblems::Most);
    std::set<std::string> options;
    for (const ModelCategory& category : reading.model.categories) {
        RC_ASSERT(!category.options.empty());
        for (const ModelOption& option : category.options)
            RC_ASSERT(options.insert(option.name).second);
    }
}

const std::string goodUvl =
    "namespace n\nfeatures\n r {a 'x', b 1}\n  or\n   \"a b\" // x\n   c\n  [0..1]\n   d\n"
    "constraints\n (a | b)\n  & c <=> !d\n /* */ r => \"a b\"\n";
const std::string goodDimacs = "c 1 a\nc 2 b b\np cnf 3 2\n1 -2 0\n-3 0\n";

std::string Mutated(std::string text) {
    for (int i = *rc::gen::inRange(0, 6); i > 0 && !text.empty(); --i) {
        const std::size_t at = *rc::gen::inRange<std::size_t>(0, text.size());
        const std::size_t length = *rc::gen::inRange<std::size_t>(0, 6);
        const std::string piece = *rc::gen::oneOf(
            rc::gen::container<std::string>(rc::gen::arbitrary<char>()),
            rc::gen::element<std::string>("\"", "(", "\n", "\n  ", "{", "}", "[", "]", "/*", "*/", "//",
                                          "<=>", "!", "\xC3", "or", "features\n", "0", "-"));
        text.replace(at, length, piece);
    }
    return text;
}

RC_GTEST_PROP(ReaderRobustnessPropertyTest, AnyOctetsAreReadOrRefused, ()) {
    const std::string text = *rc::gen::container<std::string>(rc::gen::arbitrary<char>());
    ReadAnything(UvlReader::Read(text));
    ReadAnything(UvlReader::Read("features\n r\n  or\n   a\nconstraints\n " + text));
    ReadAnything(DimacsReader::Read(text));
    ReadAnything(DimacsReader::Read("p cnf 9 1\n" + text));
}

RC_GTEST_PROP(ReaderRobustnessPropertyTest, AnyMutationOfAGoodModelIsReadOrRefused, ()) {
    ReadAnything(UvlReader::Read(Mutated(goodUvl)));
    ReadAnything(DimacsReader::Read(Mutated(goodDimacs)));
}

} // namespace
} // namespace trellis::test
