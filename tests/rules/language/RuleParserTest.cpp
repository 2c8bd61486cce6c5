#include "rules/language/RuleParser.h"
#include "rules/language/RuleTexts.h"
#include "rules/language/RuleWriter.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace trellis {
namespace {

std::string Directive(const char* text) {
    RuleParser parser(text, RuleWords::Neutral());
    const auto rule = parser.Directive();
    return rule ? RuleWriter(RuleWords::Neutral()).Directive(*rule).Bytes()
                : "fault " + std::to_string(parser.GetFault().number);
}

TEST(RuleParserTest, NotBindsMostAndOrLeast) {
    EXPECT_EQ(Directive(R"(if "A" or "B" and not "C" then "D")"), R"(if ("A" or "B" and not "C") then "D")");
    EXPECT_EQ(Directive(R"(if (("A" or "B") and not ("C" or "D")) then not not "E")"),
              R"(if (("A" or "B") and not ("C" or "D")) then not not "E")");
    EXPECT_EQ(Directive(R"(IF(not"A"."B")THEN("C"))"), R"(if (not "A"."B") then "C")");
}

TEST(RuleParserTest, NamesThatLookLikeRulesAreNames) {
    EXPECT_EQ(Directive(R"(if ("if ""A"" then") then "and"."not")"),
              R"(if ("if ""A"" then") then "and"."not")");
}

TEST(RuleParserTest, ReadingWhatWasWrittenGivesTheSameRule) {
    EXPECT_TRUE(rc::check("directives", [] {
        const DirectiveTerm rule{*Terms(3), *Terms(3)};
        RuleParser parser(RuleWriter(RuleWords::Catalogue()).Directive(rule));
        RC_ASSERT(parser.Directive() == rule);
    }));
    EXPECT_TRUE(rc::check("packages and rows", [] {
        auto references = *rc::gen::nonEmpty(rc::gen::container<std::vector<SignedReference>>(
            rc::gen::construct<SignedReference>(References(), rc::gen::arbitrary<bool>())));
        const RuleWriter writer(RuleWords::Catalogue());
        RuleParser parser(writer.Package(references));
        RC_ASSERT(parser.Package() == references);
        std::vector<OptionReference> cells;
        for (std::size_t i = 0; i < references.size(); ++i)
            cells.push_back({std::to_string(i) + references[i].reference.category,
                             references[i].isChosen ? references[i].reference.option : ""});
        RuleParser row(writer.Row(cells));
        RC_ASSERT(row.Row() == cells);
    }));
}

TEST(RuleParserTest, AnyTextIsReadOrRefusedWithAPlaceInIt) {
    EXPECT_TRUE(rc::check([](const std::string& noise) {
        const std::string piece = *rc::gen::elementOf(std::vector<std::string>{
            "if ", "then", "\"A\"", "(", ")", "not", " and ", " or ", "\"", ".", "\"A\".\"B\""});
        const ZOLUnicodeString text(piece + noise + piece);
        for (int kind = 0; kind < 3; ++kind) {
            RuleParser parser(text);
            const bool isRead = kind == 0   ? parser.Directive().has_value()
                                : kind == 1 ? parser.Package().has_value()
                                            : parser.Row().has_value();
            RC_ASSERT(isRead == (parser.GetFault().number == 0));
            RC_ASSERT(parser.GetFault().offset <= text.Bytes().size());
        }
    }));
}

TEST(RuleParserTest, DeepNestingIsRefusedInsteadOfEndingTheProgram) {
    const std::string deep = "if " + std::string(60000, '(') + "\"A\"";
    RuleParser parser(deep);
    EXPECT_FALSE(parser.Directive());
    EXPECT_EQ(parser.GetFault().number, RuleFault::TooDeep);
    std::string negated = "if ";
    for (int i = 0; i < 15000; ++i)
        negated += "not ";
    RuleParser negations(negated + "\"A\" then \"B\"");
    EXPECT_FALSE(negations.Directive());
    EXPECT_EQ(negations.GetFault().number, RuleFault::TooDeep);
}

} // namespace
} // namespace trellis
