#include "service/ServiceFixture.h"

#include "service/ZOLExpression.h"
#include "service/ZOLRuleHandler.h"

namespace trellis::test {

class RuleHandler : public ServiceFixture {
protected:
    RuleHandler() {
        for (const char* name : {"RED", "BLUE", "GREEN"})
            Option(colour, name);
        for (const char* name : {"LED", "HALOGEN"})
            Option(lamp, name);
        for (const char* name : {"BELL", "RACK", "BASKET"})
            Option(extra, name);
    }
    ~RuleHandler() override { ZOLDeleteElements(given); }

    void Rule(const char* name, const char* text, ZOLConfigRuleType type = ZOLDirectiveRuleType) {
        Manager().AddConfigRuleToDictionary(dictionary, name, text, type, "", error);
        EXPECT_EQ(error.GetCode(), 0) << Message();
    }
    void Give(const char* category, const char* option, int isNot = 0, int exclusivity = 1) {
        given.Append(new ZOLParameter(category, option, isNot));
        given[given.Size()]->SetCategoryExclusivity(exclusivity);
    }
    static std::string Taken(ZOLListPtrZOLParameter list) {
        std::string names;
        for (const ZOLParameter* parameter : list)
            names += (parameter->IsNot() ? "-" : "+") + parameter->GetOption().Bytes() + " ";
        ZOLDeleteElements(list);
        return names;
    }
    // What follows, what conflicts, what is without solution.
    std::string Play(ZOLRuleHandler& handler) {
        ZOLExpression result(0);
        ZOLListPtrZOLExpression expressions;
        ZOLListPtrZOLParameter conflicts;
        ZOLListPtrZOLParameter irresolutions;
        int incompatible = 0;
        handler.SolveRulesForOptions(given, result, expressions, incompatible, conflicts, irresolutions);
        EXPECT_EQ(expressions.Size(), 0);
        return Taken(result.GetParameters()) + "| " + Taken(conflicts) + "| " + Taken(irresolutions) +
               (incompatible ? "incompatible" : "");
    }
    std::string Play() {
        ZOLRuleHandler handler(Dictionaries());
        return Play(handler);
    }
    ZOLListValZOLIQrdConfigItem_var Dictionaries() {
        ZOLListValZOLIQrdConfigItem_var dictionaries;
        dictionaries.Append(dictionary);
        return dictionaries;
    }
    static std::string Lines(const std::vector<RuleReasonItem>& items) {
        std::string lines;
        for (const RuleReasonItem& item : items)
            lines += item.Line().Bytes() + "\n";
        return lines;
    }

    ZOLIQrdConfigItem_var dictionary = ServiceFixture::Dictionary("BIKE");
    ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR"); // exclusive, like the others
    ZOLIQrdCategory_var lamp = Category(dictionary, "LAMP");
    ZOLIQrdCategory_var extra = Manager().AddCategoryToDictionary(dictionary, "EXTRA", "", 0, 0, error);
    ZOLListPtrZOLParameter given;
};

TEST_F(RuleHandler, DeducesByAllKindsOfRulesAndLeavesOutThoseSwitchedOff) {
    Rule("R", R"(if ("RED") then "LED")");
    Rule("P", R"("LED" and "BELL" and not "RACK")", ZOLPackageRuleType);
    Give("COLOUR", "RED");
    EXPECT_EQ(Play(), "-BLUE -GREEN +LED -HALOGEN +BELL -RACK | | ");
    ZOLRuleHandler handler(Dictionaries());
    handler.DisablePackages();
    EXPECT_EQ(Play(handler), "-BLUE -GREEN +LED -HALOGEN | | ");
    handler.DisableDirectiveRules();
    EXPECT_EQ(Play(handler), "-BLUE -GREEN | | ");
}

TEST_F(RuleHandler, ExclusivityIsThatOfTheParametersWhereTheyNameTheCategory) {
    Give("COLOUR", "RED", 0, 0);
    Give("COLOUR", "BLUE", 0, 0);
    EXPECT_EQ(Play(), "| | ");
    for (ZOLParameter* parameter : given)
        parameter->SetCategoryExclusivity(1);
    EXPECT_EQ(Play(), "| +RED +BLUE | ");
}

TEST_F(RuleHandler, AConflictNamesTheChoicesWhyAndWhatCanBeGivenUp) {
    Rule("R", R"(if "RED" then "LED")");
    Rule("S", R"(if "BELL" then "HALOGEN")");
    Give("COLOUR", "RED");
    Give("EXTRA", "BELL", 0, 0);
    Give("EXTRA", "RACK", 0, 0);
    EXPECT_EQ(Play(), "| +RED +BELL | ");
    ZOLRuleHandler handler(Dictionaries());
    EXPECT_EQ(Lines(handler.WhyConflict(given)), "your choice \"COLOUR\".\"RED\"\n"
                                                 "your choice \"EXTRA\".\"BELL\"\n"
                                                 "rule \"R\": if \"RED\" then \"LED\"\n"
                                                 "rule \"S\": if \"BELL\" then \"HALOGEN\"\n"
                                                 "category \"LAMP\" takes one option at most\n");
    const auto repairs = handler.Repairs(given, 5);
    ASSERT_EQ(repairs.size(), 2U);
    EXPECT_EQ(repairs[0].size(), 1U);
    EXPECT_NE(repairs[0][0].GetOption(), "RACK");
}

TEST_F(RuleHandler, SaysWhyAnOptionIsInItsState) {
    Rule("R", R"(if "RED" then "LED")");
    Rule("IDLE", R"(if "BLUE" then "LED")");
    Give("COLOUR", "RED");
    Give("EXTRA", "BELL", 0, 0);
    ZOLRuleHandler handler(Dictionaries());
    EXPECT_EQ(Lines(handler.Why(given, ZOLParameter("LAMP", "HALOGEN", 1))),
              "your choice \"COLOUR\".\"RED\"\nrule \"R\": if \"RED\" then \"LED\"\n"
              "category \"LAMP\" takes one option at most\n");
    EXPECT_TRUE(handler.Why(given, ZOLParameter("EXTRA", "RACK", 0)).empty()) << "it does not follow";
    EXPECT_TRUE(handler.Why(given, ZOLParameter("NO", "SUCH", 0)).empty());
}

TEST_F(RuleHandler, AMatrixLetsOnlyItsRowsThrough) {
    const auto matrix = Manager().AddCompatibilityMatrixToDictionary(dictionary, "M", "", error);
    ZOLListValZOLIQrdCategory_var columns;
    columns.Append(colour);
    columns.Append(lamp);
    matrix->SetCategories(columns, error);
    for (const char* row : {R"("COLOUR"."RED" and "LAMP"."LED")", R"("COLOUR"."BLUE" and "LAMP"."")"})
        matrix->AddRule(
            Manager().AddConfigRuleToDictionary(dictionary, "", row, ZOLCompatibilityRuleType, "", error),
            error);
    Give("COLOUR", "RED");
    EXPECT_EQ(Play(), "-BLUE -GREEN -HALOGEN | | ") << "nothing forces a lamp";
    Give("LAMP", "HALOGEN");
    EXPECT_EQ(Play(), "| +RED +HALOGEN | ");
    ZOLListValZOLQRDCfgEffectivity filter;
    filter.Append(ZOLQRDCfgEffectivity("LED", "LAMP"));
    EXPECT_EQ(ZOLRuleHandler(dictionary, {}, filter).GetListOfMatrices().Size(), 1);
    EXPECT_EQ(ZOLRuleHandler(dictionary, {}, filter).GetListOfConfigRules().Size(), 0) << "never rows";
}

TEST_F(RuleHandler, FollowsTheDictionaryAsItChangesAndLeavesOutWhatCannotBind) {
    Rule("R", R"(if "RED" then "LED")");
    Give("COLOUR", "RED");
    EXPECT_EQ(Play(), "-BLUE -GREEN +LED -HALOGEN | | ");
    Rule("BROKEN", "if RED then LED");
    Rule("GONE", R"(if "RED" then "BASKET")");
    EXPECT_EQ(Play(), "-BLUE -GREEN +LED -HALOGEN +BASKET | | ");
    ZOLListValZOLIQrdEffectivity_var found;
    ZOLQRDCfgBase::GetOptByName("BASKET", found);
    Manager().RemoveOptionFromDictionary(found[1], error);
    EXPECT_EQ(Play(), "-BLUE -GREEN +LED -HALOGEN | | ");
    const auto leftOut = ZOLRuleHandler(Dictionaries()).RulesLeftOut();
    ASSERT_EQ(leftOut.size(), 2U);
    EXPECT_EQ(leftOut[0].verdict, R"(At character 4: names stand in quotation marks: "RED".)");
    EXPECT_EQ(leftOut[1].verdict, R"(At character 15: there is no option "BASKET".)");
    Give("NO", "SUCH");
    EXPECT_EQ(Play(), "-BLUE -GREEN +LED -HALOGEN | | ") << "unknown parameters are passed over";
}

TEST_F(RuleHandler, IrresolutionsAreTheOpenOptionsOfAConsequence) {
    Rule("R", R"(if "RED" then "BELL" or "RACK")");
    Give("COLOUR", "RED");
    EXPECT_EQ(Play(), "-BLUE -GREEN | | +BELL +RACK ");
}

TEST_F(RuleHandler, RulesThatContradictEachOtherAreToldApartFromChoices) {
    colour->SetMandatory(1, error);
    Rule("R", R"(if not "RED" then "RED")");
    Rule("S", R"(if "RED" then not "RED")");
    Give("EXTRA", "BELL", 0, 0);
    EXPECT_EQ(Play(), "| | incompatible");
    const auto findings = ZOLRuleHandler(Dictionaries()).CheckRules();
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].kind, RuleFinding::Kind::Contradiction);
    EXPECT_EQ(findings[0].reasons.size(), 2U);
}

TEST_F(RuleHandler, SameNamedCategoriesOfSeveralDictionariesAreOne) {
    const auto corporate = Manager().GetCorporateDictionary();
    const auto shared = Manager().AddCategoryToDictionary(corporate, "COLOUR", "", 0, 0, error);
    Option(shared, "RED");
    Option(shared, "WHITE");
    Manager().AddConfigRuleToDictionary(corporate, "C", R"(if "WHITE" then not "RED")", ZOLDirectiveRuleType,
                                        "", error);
    ASSERT_EQ(TakeCode(), 0);
    ZOLListValZOLIQrdConfigItem_var both = Dictionaries();
    both.Append(corporate);
    ZOLRuleHandler handler(both);
    Give("COLOUR", "WHITE");
    EXPECT_EQ(Play(handler), "-RED -BLUE -GREEN | | ");
    ZOLRuleHandler nothing{ZOLListValZOLIQrdConfigItem_var()};
    EXPECT_EQ(Play(nothing), "| | ");
}

} // namespace trellis::test
