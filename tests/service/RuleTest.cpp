#include "service/ServiceFixture.h"

#include "service/ZOLCompatibilityMatrix.h"
#include "service/ZOLDirectiveRule.h"
#include "service/ZOLExpression.h"
#include "service/ZOLPackageRule.h"

namespace trellis::test {

class Rules : public ServiceFixture {
protected:
    Rules() {
        Option(colour, "RED");
        Option(colour, "BLUE");
        Option(lamp, "LED");
        EXPECT_EQ(Save(), 0);
    }

    ZOLIQrdConfigRule_var Rule(const char* name, const char* text,
                               ZOLConfigRuleType type = ZOLDirectiveRuleType) {
        return Manager().AddConfigRuleToDictionary(dictionary, name, text, type, "", error);
    }
    ZOLIQrdConfigRule_var Row(const char* first, const char* second) {
        ZOLExpression cells(0);
        cells.AddParameter(ZOLParameter("COLOUR", first, 0), 1);
        cells.AddParameter(ZOLParameter("LAMP", second, 0), 1);
        return Rule("", cells.GetExpressionString().ConvertToChar(), ZOLCompatibilityRuleType);
    }
    ZOLIQrdCompatibilityMatrix_var Matrix(const char* name) {
        const auto matrix = Manager().AddCompatibilityMatrixToDictionary(dictionary, name, "", error);
        ZOLListValZOLIQrdCategory_var columns;
        columns.Append(colour);
        columns.Append(lamp);
        matrix->SetCategories(columns, error);
        return matrix;
    }
    // What stands of rules and matrices, in order.
    std::string Texts() {
        ZOLListValZOLIQrdConfigRule_var rules;
        Manager().GetConfigRulesFromDictionary(Object("BIKE").GetDictionary(), rules);
        std::string texts;
        for (const ZOLIQrdConfigRule_var& rule : rules)
            texts += rule->GetName().Bytes() + ": " + rule->GetRuleString().Bytes() + "\n";
        ZOLListValZOLIQrdCompatibilityMatrix_var matrices;
        Manager().GetCompatibilityMatricesFromDictionary(Object("BIKE").GetDictionary(), matrices);
        for (const ZOLIQrdCompatibilityMatrix_var& matrix : matrices) {
            ZOLListValZOLIQrdConfigRule_var rows;
            matrix->GetRules(rows);
            texts += matrix->GetName().Bytes() + " with " + std::to_string(rows.Size()) + " rows\n";
        }
        return texts;
    }
    std::string RulesNaming(const char* option) {
        ZOLListValZOLIQrdConfigRule_var rules;
        ZOLQRDCfgBase::GetRuleWithOpt(option, rules);
        std::string names;
        for (const ZOLIQrdConfigRule_var& rule : rules)
            names += rule->GetName().Bytes() + ";";
        return names;
    }

    ZOLIQrdConfigItem_var dictionary = ServiceFixture::Dictionary("BIKE");
    ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR");
    ZOLIQrdCategory_var lamp = Category(dictionary, "LAMP");
};

TEST_F(Rules, AreKeptWithTheirTextWhetherItCanBeReadOrNot) {
    Rule("R1", R"(If ("RED") then "LED")");
    Rule("R2", R"("RED" and not "BLUE")", ZOLPackageRuleType);
    Rule("R3", "if this then that");
    EXPECT_EQ(Save(), 0);
    Reopen();
    EXPECT_EQ(Texts(),
              "R1: if (\"RED\") then \"LED\"\nR2: \"RED\" and not \"BLUE\"\nR3: if this then that\n");
    EXPECT_EQ(RulesNaming("RED"), "R1;R2;");
}

TEST_F(Rules, ATakenNameGivesItsHolderWithinOneKind) {
    const auto first = Rule("R", R"(if "RED" then "LED")");
    EXPECT_EQ(Rule("R", "another"), first);
    EXPECT_EQ(TakeCode(), 50075);
    EXPECT_NE(Rule("R", R"("RED")", ZOLPackageRuleType), first);
    EXPECT_TRUE(Rule("", R"(if "RED" then "LED")"));
    EXPECT_TRUE(Rule("", R"(if "RED" then "LED")")) << "empty names never clash";
    EXPECT_EQ(TakeCode(), 0);
    Manager().RemoveConfigRuleFromDictionary(first, error);
    EXPECT_TRUE(Rule("R", R"(if "BLUE" then "LED")"));
    EXPECT_EQ(Save(), 0) << "a name is free as soon as its holder is removed in memory";
    EXPECT_EQ(Rule("R with a name that is longer than forty characters", ""), nullptr);
    EXPECT_EQ(TakeCode(), 60400);
}

TEST_F(Rules, AnEqualRowIsRefusedInWhateverOrderAndMatrix) {
    const auto matrix = Matrix("M");
    matrix->AddRule(Row("RED", "LED"), error);
    EXPECT_FALSE(Rule("", R"("LAMP"."LED" and "COLOUR"."RED")", ZOLCompatibilityRuleType));
    EXPECT_EQ(TakeCode(), 50082);
    EXPECT_TRUE(Row("RED", "")) << "an empty cell counts";
    EXPECT_EQ(TakeCode(), 0);
}

TEST_F(Rules, AMatrixIsStoredWithItsColumnsAndRowsAndGoesWithThem) {
    const auto matrix = Matrix("M");
    matrix->AddRule(Row("RED", "LED"), error);
    matrix->AddRule(Row("BLUE", ""), error);
    const auto taken = Row("BLUE", "LED");
    matrix->AddRule(taken, error);
    matrix->RemoveRule(taken, error);
    EXPECT_EQ(Save(), 0);
    Reopen();
    ZOLListValZOLIQrdCompatibilityMatrix_var matrices;
    Manager().GetCompatibilityMatricesFromDictionary(Object("BIKE").GetDictionary(), matrices);
    ASSERT_EQ(matrices.Size(), 1);
    const ZOLCompatibilityMatrix copy(matrices[1]);
    EXPECT_EQ(copy.GetMatrixDefinition().Size(), 2);
    ASSERT_EQ(copy.GetMatrixRules().Size(), 2);
    EXPECT_EQ(copy.GetMatrixRules()[2], R"("COLOUR"."BLUE" and "LAMP"."")");
    Manager().RemoveCompatibilityMatrixFromDictionary(matrices[1], error);
    EXPECT_EQ(Save(), 0);
    Reopen();
    EXPECT_EQ(Texts(), ": \"COLOUR\".\"BLUE\" and \"LAMP\".\"LED\"\n") << "the row that was taken out";
    EXPECT_EQ(copy.GetMatrixId(), "M") << "a copy outlives its source";
}

TEST_F(Rules, RemovingACategoryTakesItsColumnAndLeavesRowsDangling) {
    const auto matrix = Matrix("M");
    matrix->AddRule(Row("RED", "LED"), error);
    Manager().RemoveCategoryFromDictionary(lamp, error);
    EXPECT_EQ(Save(), 0);
    ZOLListValZOLIQrdCategory_var columns;
    matrix->GetCategories(columns);
    EXPECT_EQ(columns.Size(), 1);
    EXPECT_EQ(RulesNaming("LED"), ";") << "a rename still reaches the row";
    Manager().DeleteDictionary(Part("BIKE"), error);
    EXPECT_EQ(Save(), 0);
    EXPECT_EQ(RulesNaming("LED"), "");
}

TEST_F(Rules, RenamingByARuleObjectMovesTheIndex) {
    const auto stored = Rule("R1", R"(if ("COLOUR"."RED") then "LED")");
    EXPECT_EQ(Save(), 0);
    ZOLDirectiveRule rule(stored->GetRuleString(), stored->GetName());
    rule.RenameOption("RED", "CRIMSON");
    stored->SetRuleString(rule.GetRuleString(), error);
    EXPECT_EQ(RulesNaming("RED") + RulesNaming("CRIMSON"), "R1;") << "memory is the truth before a save";
    EXPECT_EQ(Save(), 0);
    Reopen();
    EXPECT_EQ(RulesNaming("RED") + RulesNaming("CRIMSON"), "R1;");
}

TEST_F(Rules, DiscardingForgetsNewRulesWithWhatTheyName) {
    Rule("R1", R"(if "RED" then "LED")");
    Matrix("M");
    Manager().DiscardUnsaved(dictionary, error);
    EXPECT_EQ(Unsaved(), 0U);
    Rule("R2", R"(if "RED" then "LED")");
    Manager().UnloadDictionary(dictionary, 0);
    EXPECT_EQ(Unsaved(), 0U);
    EXPECT_EQ(Save(), 0);
    EXPECT_EQ(Texts(), "");
}

TEST_F(Rules, NeedTheirRightAndTheirOwner) {
    const auto rule = Rule("R1", R"(if "RED" then "LED")");
    const auto matrix = Matrix("M");
    const auto row = Row("RED", "LED");
    matrix->AddRule(row, error);
    EXPECT_EQ(Save(), 0);
    EXPECT_TRUE(ZOLQRDCfgBase::DoIModifyIt(rule));
    rule->SetOwner("bert", error);
    matrix->SetOwner("bert", error);
    EXPECT_EQ(TakeCode(), 0);
    EXPECT_FALSE(ZOLQRDCfgBase::DoIModifyIt(rule));
    EXPECT_FALSE(ZOLQRDCfgBase::DoIModifyIt(row)) << "a row belongs to the owner of its matrix";
    rule->SetRuleString("other", error);
    EXPECT_EQ(TakeCode(), 60402);
    Manager().RemoveCompatibilityMatrixFromDictionary(matrix, error);
    EXPECT_EQ(TakeCode(), 60402);
    EXPECT_NE(Texts().find("M with 1 rows"), std::string::npos);
}

TEST_F(Rules, CheckSaysWhatIsWrongAndWhatWasPerhapsMeant) {
    ZOLListPtrZOLParameter options;
    options.Append(new ZOLParameter("COLOUR", "RED", 0));
    options.Append(new ZOLParameter("COLOUR", "WHITE", 0));
    options.Append(new ZOLParameter("LAMP", "WHITE", 0));
    const auto verdict = [&](const ZOLConfigRule& rule) {
        ZOLUnicodeString message;
        return std::to_string(rule.Check(options, message)) + " " + message.Bytes();
    };
    EXPECT_EQ(verdict(ZOLDirectiveRule(R"(if "COLOUR"."RED" then "LAMP"."WHITE")")), "1 The rule is valid.");
    EXPECT_EQ(verdict(ZOLDirectiveRule(R"(if "COLOR"."RED" then "RED")")),
              R"(0 At character 4: there is no category "COLOR". Did you mean "COLOUR"?)");
    EXPECT_EQ(verdict(ZOLPackageRule(R"("RED" and "COLOUR"."WHITER")")),
              R"(0 At character 11: the category "COLOUR" has no option "WHITER". Did you mean "WHITE"?)");
    EXPECT_EQ(verdict(ZOLPackageRule(R"("RED" and "WHITE")")),
              R"(0 At character 11: the option "WHITE" is in several categories, as "COLOUR" and "LAMP"; )"
              "write the category before it.");
    EXPECT_EQ(verdict(ZOLCompatibilityRule(R"("COLOUR"."" and "LAMP"."WHITE")")), "1 The rule is valid.");
    EXPECT_EQ(verdict(ZOLPackageRule("")).substr(0, 2), "0 ");
    ZOLDeleteElements(options);
}

} // namespace trellis::test
