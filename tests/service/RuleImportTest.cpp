#include "service/RuleImport.h"

#include "service/RuleExport.h"
#include "service/RuleFile.h"
#include "service/ServiceFixture.h"
#include "store/Workspace.h"

#include <rapidcheck/gtest.h>

namespace trellis::test {

namespace {

const char* const Good = R"(# Colours and lamps
rule "R1": if ("COLOUR"."RED") then "LED"
    description: what sells
rule: if ("BLUE") then not "LAMP"."DYNAMO"
package "P": "COLOUR"."RED" and not "LAMP"."DYNAMO"

matrix "M": "COLOUR" | "LAMP"
    description: what fits
    | "RED"  | "LED" |
    | "BLUE" | -     |
)";

} // namespace

class RuleImportTest : public ServiceFixture {
protected:
    RuleImportTest() {
        for (const char* part : {"BIKE", "FRAME"}) {
            const ZOLIQrdCategory_var colour = Category(Dictionary(part), "COLOUR");
            const ZOLIQrdCategory_var lamp = Category(Dictionary(part), "LAMP");
            for (const char* option : {"RED", "BLUE", "a \"b\" | - \\"})
                Option(colour, option);
            Option(lamp, "LED");
            Option(lamp, "DYNAMO");
        }
        EXPECT_EQ(Save(), 0);
    }
    bool Import(const std::string& text, RuleImport::Others others = RuleImport::Others::Keep,
                const char* part = "BIKE") {
        error.Clear();
        return RuleImport::ReadText(text, "file", part, others, report, error);
    }
    // As another session finds it.
    std::string Exported(const char* part = "BIKE") {
        Reopen();
        return RuleExport::Text(Object(part).GetDictionary());
    }
    // Line and number of each problem.
    std::string Problems() const {
        std::string text;
        for (const ImportProblem& problem : report.problems)
            text += std::to_string(problem.line) + ":" + std::to_string(problem.error.GetCode()) + " ";
        return text;
    }
    std::string Counts() const {
        return std::to_string(report.newRules) + " " + std::to_string(report.changedRules) + ", " +
               std::to_string(report.newMatrices) + " " + std::to_string(report.changedMatrices) + ", " +
               std::to_string(report.removed);
    }

    RuleImportReport report;
};

TEST_F(RuleImportTest, WhatIsExportedAndImportedIsTheSame) {
    ASSERT_TRUE(Import(Good)) << Message();
    EXPECT_EQ(Counts(), "3 0, 1 0, 0");
    const std::string text = Exported();
    EXPECT_EQ("# Colours and lamps\n" + text, Good);
    ASSERT_TRUE(Import(text, RuleImport::Others::Keep, "FRAME")) << Message();
    EXPECT_EQ(Exported("FRAME"), text);
    ASSERT_TRUE(Import(text));
    EXPECT_EQ(Counts(), "0 0, 0 0, 0") << "importing again changes nothing";
}

TEST_F(RuleImportTest, HostileTextsSurviveTheRoundTrip) {
    const auto dictionary = Object("BIKE").GetDictionary();
    const char* const text = "if (\"COLOUR\".\"a \"\"b\"\" | - \\\")\n\t then \"LED\" ";
    Manager().AddConfigRuleToDictionary(dictionary, "rule \"x\": \\n", text, ZOLDirectiveRuleType,
                                        " two\nlines \\ ", error);
    Manager().AddConfigRuleToDictionary(dictionary, " #", "\"RED\" and \"LED\"", ZOLPackageRuleType, "\\",
                                        error);
    const auto matrix = Manager().AddCompatibilityMatrixToDictionary(dictionary, "| \"-\" |", "", error);
    ZOLListValZOLIQrdCategory_var columns;
    Manager().GetCategoriesFromDictionary(dictionary, columns);
    matrix->SetCategories(columns, error);
    for (const char* row : {"\"COLOUR\".\"a \"\"b\"\" | - \\\" and \"LAMP\".\"\"", "\"LAMP\".\"LED\""})
        matrix->AddRule(
            Manager().AddConfigRuleToDictionary(dictionary, "", row, ZOLCompatibilityRuleType, "", error),
            error);
    ASSERT_EQ(Save(), 0);
    const std::string exported = Exported();
    ASSERT_TRUE(Import(exported, RuleImport::Others::Keep, "FRAME")) << Message() << Problems() << exported;
    EXPECT_EQ(Exported("FRAME"), exported);
    ZOLListValZOLIQrdConfigRule_var rules;
    Manager().GetConfigRulesFromDictionary(Object("FRAME").GetDictionary(), rules);
    EXPECT_EQ(rules[1]->GetName(), "rule \"x\": \\n");
    EXPECT_EQ(rules[1]->GetRuleString(), text);
    EXPECT_EQ(rules[1]->GetDescription(), " two\nlines \\ ");
}

TEST_F(RuleImportTest, EveryBadLineIsToldAndNothingChanges) {
    ASSERT_TRUE(Import(Good));
    const std::string before = Exported();
    EXPECT_FALSE(Import(R"(rule "new": if ("RED") then "LED"
nonsense
rule "unclosed: if
rule "a": if ("RED") than "LED"
rule "b": if ("RED") then "LED" or
rule "c": if ("COLUOR"."RED") then "LED"
rule "new": if ("RED") then "LED"
description: \x
matrix "M2": "COLOUR" | "LAMPS" | "COLOUR"
| "RED" | "LED" |
| "RED" | "LED" | "GREEN" |
| "RED" "LED"
matrix: "LAMP"
row "r": "LED" or "RED"
package "a name of more than forty characters, that is": "RED" and "LED"
)"));
    EXPECT_EQ(error.GetCode(), 60203);
    EXPECT_EQ(Problems(), "2:60741 3:60742 4:60753 5:60760 6:60754 7:60743 8:60745 9:60754 9:60767 10:60748 "
                          "11:60755 12:60746 13:60400 14:60766 15:60400 ");
    EXPECT_EQ(Counts(), "0 0, 0 0, 0");
    EXPECT_EQ(report.problems[4].error.GetParameters().front(), "15")
        << "the place counts from the line's begin";
    EXPECT_FALSE(Workspace::Current()->HasUnsaved());
    EXPECT_EQ(Exported(), before);
}

TEST_F(RuleImportTest, ThePlaceOfAFaultCountsCharactersOfTheLine) {
    const std::string hard = R"(if ("COLOUR"."a ""b"" | - \\") then "GREEN")";
    const std::string matrix = "matrix \"M\": \"COLOUR\" | \"LAMP\"\n";
    const struct {
        std::string before, line;
    } cases[] = {{"", "rule: if (\"GREEN\") then \"LED\""},
                 {"", "  rule  \"Räder\" :  if (\"GREEN\") then \"LED\""},
                 {"", "rule \"e\": " + hard},
                 {matrix, "  |  -  |  \"GREEN\" |"}};
    for (const auto& example : cases) {
        ASSERT_FALSE(Import(example.before + example.line)) << example.line;
        const ZOLUnicodeString upToFault(example.line.substr(0, example.line.find("\"GREEN")));
        EXPECT_EQ(report.problems[0].error.GetParameters()[0],
                  std::to_string(upToFault.GetLengthInChar() + 1))
            << example.line;
    }
}

TEST_F(RuleImportTest, RowsAndDescriptionsNeedSomethingAbove) {
    EXPECT_FALSE(Import("description: x\n| \"RED\" |\nrule: if \"RED\" then \"LED\"\n| \"RED\" |\n"));
    EXPECT_EQ(Problems(), "1:60744 2:60744 4:60744 ");
    EXPECT_FALSE(Import("\xff\n"));
    EXPECT_EQ(Problems(), "1:60212 ");
}

TEST_F(RuleImportTest, WhatHasTheNameBecomesAsTheFileSaysAndOthersStayOrGo) {
    ASSERT_TRUE(Import(Good));
    const std::string changed = "rule \"R1\": if (\"COLOUR\".\"BLUE\") then \"LED\"\n"
                                "\n"
                                "matrix \"M\": \"LAMP\" | \"COLOUR\"\n"
                                "    | \"LED\" | \"RED\" |\n";
    ASSERT_TRUE(Import(changed)) << Message();
    EXPECT_EQ(Counts(), "0 1, 0 1, 0");
    EXPECT_NE(Exported().find("package \"P\""), std::string::npos);
    ASSERT_TRUE(Import(changed, RuleImport::Others::Remove)) << Message();
    EXPECT_EQ(Counts(), "0 0, 0 0, 2");
    EXPECT_EQ(Exported(), changed);
}

TEST_F(RuleImportTest, ARowThatStandsInAnotherMatrixIsABadLineUnlessItMoves) {
    const std::string second = "matrix \"M2\": \"LAMP\" | \"COLOUR\"\n    | \"LED\" | \"RED\" |\n";
    ASSERT_TRUE(Import(Good));
    EXPECT_FALSE(Import(second));
    EXPECT_EQ(Problems(), "2:50082 ");
    EXPECT_FALSE(Workspace::Current()->HasUnsaved());
    EXPECT_TRUE(Import(second + "matrix \"M\": \"COLOUR\"\n"));
    EXPECT_EQ(Counts(), "0 0, 1 1, 0");
}

TEST_F(RuleImportTest, RightsAndOwnersAreThoseOfTheService) {
    ASSERT_TRUE(Import(Good));
    const std::string before = Exported();
    Person("bo", 0);
    Person("refused", 0, {"ManageRules"});
    ASSERT_EQ(Save(), 0);
    As("refused");
    EXPECT_FALSE(Import("rule \"R2\": if \"RED\" then \"LED\"\n"));
    EXPECT_EQ(TakeCode(), 60520);
    As("bo");
    EXPECT_TRUE(Import("rule \"R2\": if \"BLUE\" then \"LED\"\n")) << Message();
    EXPECT_FALSE(Import("rule \"R2\": if \"RED\" then \"LED\"\n", RuleImport::Others::Remove));
    EXPECT_EQ(TakeCode(), 60402) << "anna's rules stay";
    EXPECT_EQ(Exported().substr(0, 20), before.substr(0, 20));
    EXPECT_NE(Exported().find("if \"BLUE\""), std::string::npos);
}

// Any octets are read without harm, and what is read is written so that it is read as the same.
RC_GTEST_PROP(RuleFileProperty, ReadingAnythingAndWritingItIsStable, ()) {
    const auto piece = rc::gen::element<std::string>("rule", "package", "matrix", "row", "|", "description",
                                                     " \"A\"", "\"", "\"\"", ":", " ", "-", "\\", "\\\\",
                                                     "\\n", "\n", "\r\n", "#", "\t", "x", "\xff", "if ");
    const auto pieces = *rc::gen::container<std::vector<std::string>>(piece);
    std::string text;
    for (const std::string& each : pieces)
        text += each;
    const std::string written = RuleFile::Read(text).Text();
    const RuleFile again = RuleFile::Read(written);
    RC_ASSERT(again.problems.empty());
    RC_ASSERT(again.Text() == written);
}

} // namespace trellis::test
