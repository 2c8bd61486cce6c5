#include "service/ModelImport.h"

#include "service/ServiceFixture.h"

#include "store/Workspace.h"

namespace trellis::test {

namespace {

const char* const GoodUvl = "features\n"
                            "\tBike\n"
                            "\t\tmandatory\n"
                            "\t\t\tFrame\n"
                            "\t\t\t\talternative\n"
                            "\t\t\t\t\t\"Steel \\ 'old' (not new)\"\n"
                            "\t\t\t\t\tCarbon\n"
                            "\t\toptional\n"
                            "\t\t\tBell\n"
                            "constraints\n"
                            "\tBell => !Carbon\n";

} // namespace

class ModelImportTest : public ServiceFixture {
protected:
    ModelImportTest() {
        Manager().SetConfigurable(Part("BIKE"), error);
        EXPECT_EQ(Save(), 0);
    }
    bool Import(const std::string& text, ModelImport::Form form = ModelImport::Form::Uvl) {
        error.Clear();
        return ModelImport::ReadText(text, form, "file", "BIKE", report, error);
    }
    // Categories with options, and rules with their texts, as another session finds them.
    std::string Stored() {
        Reopen();
        const ZOLIQrdConfigItem_var dictionary = Object("BIKE").GetDictionary();
        ZOLListValZOLIQrdConfigRule_var rules;
        Manager().GetConfigRulesFromDictionary(dictionary, rules);
        std::string text = Names(dictionary);
        for (const ZOLIQrdConfigRule_var& rule : rules)
            text += "\n" + rule->GetName().Bytes() + ": " + rule->GetRuleString().Bytes();
        return text;
    }

    ModelImportReport report;
};

TEST_F(ModelImportTest, GroupsAndConstraintsAreStored) {
    ASSERT_TRUE(Import(GoodUvl)) << Message();
    EXPECT_EQ(report.categories, 3);
    EXPECT_EQ(report.options, 5);
    EXPECT_EQ(report.rules, 2);
    EXPECT_EQ(Stored(), "Bike~1(Bike )Bike(Frame Bell )Frame(Steel \\ 'old' (not new) Carbon )\n"
                        "mandatory: Bike: if (\"Bike~1\".\"Bike\") then \"Bike\".\"Frame\"\n"
                        "constraints 11: if (\"Bike\".\"Bell\") then not \"Frame\".\"Carbon\"");
    ZOLListValZOLIQrdCategory_var categories;
    Manager().GetCategoriesFromDictionary(Object("BIKE").GetDictionary(), categories);
    EXPECT_TRUE(categories[1]->GetMandatory() && !categories[1]->GetExclusivity());
    EXPECT_TRUE(categories[3]->GetMandatory() && categories[3]->GetExclusivity());
}

TEST_F(ModelImportTest, ClausesAreStored) {
    ASSERT_TRUE(Import("c 1 a\np cnf 2 1\n-1 2 0\n", ModelImport::Form::Dimacs)) << Message();
    EXPECT_EQ(Stored(), "cnf(a 2 )\ncnf 3: if (\"cnf\".\"a\") then \"cnf\".\"2\"");
}

TEST_F(ModelImportTest, AFileWithProblemsChangesNothing) {
    std::string longRule = "features\n r\n  optional\n   p\n    or\n";
    for (int i = 0; i < 2000; ++i)
        longRule += "     " + std::string(30, 'x') + std::to_string(i) + "\n";
    struct Case {
        std::string text;
        int line;
        int number;
    };
    const Case cases[] = {{"features\n\tBike\n\t\tmandatory\n", 3, 60714}, {longRule, 5, 60740}};
    for (const Case& example : cases) {
        EXPECT_FALSE(Import(example.text));
        EXPECT_EQ(error.GetCode(), 60203);
        ASSERT_EQ(report.problems.size(), 1u);
        EXPECT_EQ(report.problems[0].line, example.line);
        EXPECT_EQ(report.problems[0].error.GetCode(), example.number);
        EXPECT_FALSE(Workspace::Current()->HasUnsaved());
    }
    EXPECT_FALSE(Object("BIKE").GetDictionary());
}

TEST_F(ModelImportTest, ADictionaryThatIsNotEmptyIsLeftAsItIs) {
    ASSERT_TRUE(Import(GoodUvl));
    const std::string before = Stored();
    EXPECT_FALSE(Import("features\n\tOther\n"));
    EXPECT_EQ(error.GetCode(), 60423);
    EXPECT_EQ(report.options, 0);
    EXPECT_EQ(Stored(), before);
}

} // namespace trellis::test
