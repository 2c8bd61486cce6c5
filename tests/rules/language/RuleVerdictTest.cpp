// Mistakes that people make who write rules, and what they are told.

#include "rules/language/RuleParser.h"

#include <gtest/gtest.h>

namespace trellis {
namespace {

struct Mistake {
    const char* rule;
    const char* verdict;
};

std::string VerdictOf(const char* rule, int kind) {
    RuleParser parser(rule, RuleWords::Neutral());
    if (kind == 0)
        parser.Directive();
    else if (kind == 1)
        parser.Package();
    else
        parser.Row();
    return parser.GetFault().number ? parser.GetFault().Verdict(rule).Bytes() : "valid";
}

TEST(RuleVerdictTest, TypicalMistakesOfDirectiveRules) {
    const Mistake mistakes[] = {
        {R"()", R"~(At character 1 the rule ends, where "if" was expected.)~"},
        {R"("A" then "B")", R"~(At character 1: expected "if", found "A".)~"},
        {R"(if "A")", R"~(At character 7 the rule ends, where "and", "or" or "then" was expected.)~"},
        {R"(if "A" then)",
         R"~(At character 12 the rule ends, where an option such as "CATEGORY"."OPTION" was expected.)~"},
        {R"(if then "B")",
         R"~(At character 4: expected an option such as "CATEGORY"."OPTION", found "then".)~"},
        {R"(if ("A" then "B")",
         R"~(At character 9: expected "and", "or" or a closing bracket, found "then".)~"},
        {R"(if ("A")) then "B")", "At character 9: this closing bracket has no opening one."},
        {R"(if ("A" and) then "B")",
         R"~(At character 12: expected an option such as "CATEGORY"."OPTION", found ")".)~"},
        {R"(if ("A" "C") then "B")",
         R"~(At character 9: expected "and", "or" or a closing bracket, found "C".)~"},
        {R"(if ("A" or or "C") then "B")",
         R"~(At character 12: expected an option such as "CATEGORY"."OPTION", found "or".)~"},
        {R"(if (A) then "B")", R"~(At character 5: names stand in quotation marks: "A".)~"},
        {R"(if ("A) then "B")",
         R"~(At character 15: "B" stands right behind a name; perhaps the mark that closes the name before is missing.)~"},
        {R"(if ("A"."X) then B)", "At character 9: the name that begins here has no closing quotation mark."},
        {R"(if ("A".X) then "B")",
         R"~(At character 8: the point joins a category and its option, both in quotation marks and without blanks: "CATEGORY"."OPTION".)~"},
        {R"(if ("A" . "X") then "B")",
         R"~(At character 9: the point joins a category and its option, both in quotation marks and without blanks: "CATEGORY"."OPTION".)~"},
        {R"(if ("") then "B")", "At character 5: the name of the option is empty."},
        {R"(if ("A" && "C") then "B")", R"~(At character 9: instead of "&&" write "and".)~"},
        {R"(if (!"A") then "B")", R"~(At character 5: instead of "!" write "not".)~"},
        {R"("A" => "B")", R"~(At character 1: expected "if", found "A".)~"},
        {R"(if "A" => "B")", R"~(At character 8: instead of "=>" write "then".)~"},
        {R"(if "A" then "B" else "C")",
         R"~(At character 17: a rule has no "else"; write a second rule for the other case, with "not" behind "if".)~"},
        {R"(if "A" then "B" then "C")",
         R"~(At character 17: expected "and", "or" or the end of the rule, found "then".)~"},
        {R"(if "A" then "B")"
         "\n"
         R"(if "C" then "D")",
         R"~(At character 17: expected "and", "or" or the end of the rule, found "if".)~"},
        {R"(if "A" then "B";)",
         R"~(At character 16: expected "and", "or" or the end of the rule, found ";".)~"},
        {"if \u201cA\u201d then \u201cB\u201d",
         R"~(At character 4: names stand between straight quotation marks, as in "NAME".)~"},
        {R"(if "A" then "B" "C")",
         R"~(At character 17: expected "and", "or" or the end of the rule, found "C".)~"},
        {R"(when "A" then "B")", R"~(At character 1: instead of "when" write "if".)~"},
        {R"(if "A" xor "C" then "B")", R"~(At character 8: names stand in quotation marks: "xor".)~"},
        {R"(if "A" not "C" then "B")", R"~(At character 8: expected "and", "or" or "then", found "not".)~"},
        {R"(if () then "B")",
         R"~(At character 5: expected an option such as "CATEGORY"."OPTION", found ")".)~"},
        {R"("Farbe"."Größe" then "Ö)", R"~(At character 1: expected "if", found "Farbe"."Größe".)~"},
    };
    for (const Mistake& mistake : mistakes)
        EXPECT_EQ(VerdictOf(mistake.rule, 0), mistake.verdict) << mistake.rule;
}

TEST(RuleVerdictTest, TypicalMistakesOfPackagesAndRows) {
    EXPECT_EQ(
        VerdictOf(R"("A" or "B")", 1),
        R"~(At character 5: a package joins options by "and", each perhaps under "not"; "or" belongs in a directive rule.)~");
    EXPECT_EQ(
        VerdictOf(R"("A" and not)", 1),
        R"~(At character 12 the rule ends, where an option such as "CATEGORY"."OPTION" was expected.)~");
    EXPECT_EQ(VerdictOf(R"(not not "A")", 1),
              R"~(At character 5: expected an option such as "CATEGORY"."OPTION", found "not".)~");
    EXPECT_EQ(VerdictOf(R"(("A" and "B"))", 1),
              R"~(At character 1: expected an option such as "CATEGORY"."OPTION", found "(".)~");
    EXPECT_EQ(VerdictOf(R"("A", "B")", 1), R"~(At character 4: instead of "," write "and".)~");
    EXPECT_EQ(VerdictOf(R"(if "A" then "B")", 1),
              R"~(At character 1: expected an option such as "CATEGORY"."OPTION", found "if".)~");
    EXPECT_EQ(VerdictOf(R"("C"."A" and "C"."B")", 2),
              R"~(At character 13: the category "C" stands twice in the row.)~");
    EXPECT_EQ(
        VerdictOf(R"("C"."A" or "D"."B")", 2),
        R"~(At character 9: a row joins one option of each category by "and"; "or" has no place in it.)~");
    EXPECT_EQ(VerdictOf(R"("C"."" and "D"."B")", 2), "valid");
}

} // namespace
} // namespace trellis
