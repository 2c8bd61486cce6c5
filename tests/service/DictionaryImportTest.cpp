#include "service/ServiceFixture.h"

#include "model/ZOLDMPubSub.h"
#include "service/DictionaryImport.h"
#include "store/Workspace.h"

#include <rapidcheck.h>

#include <algorithm>

namespace trellis::test {

namespace {

const char* const GoodCsv = "record,name,category,description,mandatory,exclusive,default\n"
                            "category,COLOUR,,\"Colour, of the frame\",yes,yes,\n"
                            "option,RED,COLOUR,\"Signal \"\"red\"\"\",,,yes\n"
                            "option,BLUE,COLOUR,,,,\n"
                            "option,LED,LAMP,,,,1\n"
                            "category,LAMP,,,0,no,\n";

const char* const GoodJson = R"({"categories": [
  {"name": "COLOUR", "description": "Colour, of the frame", "mandatory": true, "exclusive": true, "options": [
    {"name": "RED", "description": "Signal \"red\"", "default": true},
    {"name": "BLUE"}]},
  {"options": [{"name": "LED", "default": true}], "name": "LAMP"}]})";

} // namespace

class DictionaryImportTest : public ServiceFixture {
protected:
    DictionaryImportTest() {
        Manager().SetConfigurable(Part("BIKE"), error);
        EXPECT_EQ(Save(), 0);
    }
    bool Import(const std::string& text, const char* product = "BIKE",
                DictionaryImport::Form form = DictionaryImport::Form::Csv) {
        return DictionaryImport::ReadText(text, form, "file", product, report, error);
    }
    // Problems as "line:number ".
    std::string Problems() const {
        std::string text;
        for (const ImportProblem& problem : report.problems)
            text += std::to_string(problem.line) + ":" + std::to_string(problem.error.GetCode()) + " ";
        return text;
    }

    DictionaryImportReport report;
};

TEST_F(DictionaryImportTest, BothFormsGiveTheSameDictionary) {
    for (const auto form : {DictionaryImport::Form::Csv, DictionaryImport::Form::Json}) {
        ASSERT_TRUE(Import(form == DictionaryImport::Form::Csv ? GoodCsv : GoodJson, "BIKE", form))
            << Message();
        EXPECT_EQ(report.newCategories, 2);
        EXPECT_EQ(report.newOptions, 3);
        Reopen();
        ZOLListValZOLIQrdCategory_var categories;
        Manager().GetCategoriesFromDictionary(Object("BIKE").GetDictionary(), categories);
        EXPECT_EQ(Names(Object("BIKE").GetDictionary()), "COLOUR(RED BLUE )LAMP(LED )");
        EXPECT_EQ(categories[1]->GetDescription(), "Colour, of the frame");
        EXPECT_TRUE(categories[1]->GetMandatory() && categories[1]->GetExclusivity());
        EXPECT_FALSE(categories[2]->GetMandatory() || categories[2]->GetExclusivity());
        ZOLListValZOLIQrdEffectivity_var defaults;
        categories[1]->GetDefaultOptions(defaults);
        ASSERT_EQ(defaults.Size(), 1);
        EXPECT_EQ(defaults[1]->GetDescription(), "Signal \"red\"");
        Manager().DeleteDictionary(Part("BIKE"), error);
        ASSERT_EQ(Save(), 0);
    }
}

TEST_F(DictionaryImportTest, ASecondImportUpdatesAndKeepsWhatTheFileDoesNotName) {
    ASSERT_TRUE(Import(GoodCsv));
    ASSERT_TRUE(Import(GoodCsv));
    EXPECT_EQ(report.newCategories + report.newOptions + report.changedCategories + report.changedOptions, 0);
    ASSERT_TRUE(Import("name,record,category,description\nRED,option,COLOUR,other\nBELL,category,,\n"));
    EXPECT_EQ(report.changedOptions, 1);
    EXPECT_EQ(report.newCategories, 1);
    EXPECT_EQ(Names(Object("BIKE").GetDictionary()), "COLOUR(RED BLUE )LAMP(LED )BELL()");
    EXPECT_EQ(Stored("SELECT count(*) FROM category_default"), "2")
        << "a file without the column leaves defaults";
    ASSERT_TRUE(Import("record,name,default\ncategory,COLOUR,\n", "BIKE"));
    EXPECT_EQ(Stored("SELECT count(*) FROM category_default"), "1");
}

TEST_F(DictionaryImportTest, EveryBadLineIsReportedAndNothingIsChanged) {
    const std::string header = "record,name,category,description,mandatory,exclusive,default\n";
    const std::string forty(41, 'x');
    const struct {
        const char* name;
        std::string text;
        const char* problems;
    } cases[] = {
        {"empty", "", "0:60210 "},
        {"header only", header, "0:60210 "},
        {"unknown and double columns", "record,name,nam,name\n", "1:60217 1:60218 "},
        {"missing columns", "category,description\n", "1:60411 1:60411 "},
        {"unknown record", header + "categorie,A,,,,,\n", "2:60410 "},
        {"too few fields", header + "category,A,,,,,\ncategory,B\n", "3:60216 "},
        {"names", header + "category,,,,,,\ncategory," + forty + ",,,,,\n", "2:60400 3:60400 "},
        {"names twice", header + "category,A,,,,,\ncategory,A,,,,,\noption,O,A,,,,\noption,O,A,,,,\n",
         "3:60413 5:60414 "},
        {"option without category", header + "option,O,,,,,\n", "2:60415 "},
        {"unknown category", header + "option,O,A,,,,\n", "2:60416 "},
        {"no flag", header + "category,A,,,maybe,,\n", "2:60418 "},
        {"field of the other kind", header + "category,A,B,,,,\noption,O,A,,yes,,\n", "2:60231 3:60231 "},
        {"several defaults", header + "category,A,,,,yes,\noption,O,A,,,,yes\noption,P,A,,,,yes\n",
         "4:60419 "},
        {"open quote", header + "category,\"A,,,,,\n", "2:60213 "},
        {"no UTF-8", header + "category,A\xff,,,,,\ncategory,B,,,,,\ncategory,\xc3,,,,,\n",
         "2:60212 4:60212 "},
        {"control character", header + "category,A\tB,,,,,\n", "2:60224 "},
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(Import(c.text)) << c.name;
        EXPECT_EQ(TakeCode(), 60203) << c.name;
        EXPECT_EQ(Problems(), c.problems) << c.name;
        EXPECT_EQ(Unsaved(), 0u) << c.name;
        EXPECT_FALSE(Object("BIKE").GetDictionary()) << c.name;
    }
    ASSERT_TRUE(Import(GoodCsv));
    EXPECT_FALSE(Import("record,name,category\noption,RED,LAMP\n"));
    EXPECT_EQ(Problems(), "2:60417 ");
}

TEST_F(DictionaryImportTest, JsonThatIsNoneOrHoldsWhatHasNoPlaceIsReportedByLine) {
    const struct {
        const char* text;
        const char* problems;
    } cases[] = {
        {"", "1:60230 "},
        {"{\"categories\": [\n{\"name\": }]}", "2:60230 "},
        {"[]", "1:60231 "},
        {"{\"categories\": [\n{\"name\": \"A\",\n\"nam\": {\"x\": [1, 2]}}]}", "3:60231 "},
        {"{\"categories\": [\n{\"name\": 7}]}", "2:60232 2:60400 "},
        {"{\"categories\": [{\"name\": \"A\", \"options\": [{\"name\": \"O\",\n\"mandatory\": true}]}]}",
         "2:60232 "},
        {"{\"parts\": [{\"name\": \"A\"}]}", "1:60231 "},
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(Import(c.text, "BIKE", DictionaryImport::Form::Json)) << c.text;
        EXPECT_EQ(TakeCode(), 60203) << c.text;
        EXPECT_EQ(Problems(), c.problems) << c.text;
    }
}

TEST_F(DictionaryImportTest, AnythingElseThatFailsIsTakenBackWhole) {
    EXPECT_FALSE(Import(GoodCsv, "FRAME"));
    EXPECT_EQ(TakeCode(), 20265);
    EXPECT_FALSE(Import(GoodCsv, "TANDEM"));
    EXPECT_EQ(TakeCode(), 60420);
    EXPECT_EQ(parameters, "TANDEM;");

    Manager().SetConfigurable(Part("FRAME"), error);
    EXPECT_FALSE(Import(GoodCsv));
    EXPECT_EQ(TakeCode(), 60422);
    EXPECT_EQ(Unsaved(), 2u) << "what others left unsaved stays";
    ASSERT_EQ(Save(), 0);

    bool done = false;
    for (int n = 1; !done; ++n) {
        Reopen();
        Object("BIKE");
        Workspace::Current()->Session().FailStatement(n);
        done = Import(GoodCsv);
        Workspace::Current()->Session().FailStatement(0);
        EXPECT_EQ(done, TakeCode() == 0) << n;
        if (!done) {
            EXPECT_EQ(Unsaved(), 0u) << n;
            EXPECT_EQ(Stored("SELECT count(*) FROM effectivity"), "0") << n;
        }
    }
    EXPECT_EQ(Stored("SELECT count(*) FROM effectivity"), "3");
    for (const std::string& file : {folder.Path("none.csv"), folder.Path()}) {
        EXPECT_FALSE(DictionaryImport::ReadFile(file, "BIKE", report, error));
        EXPECT_EQ(TakeCode(), 60202) << file;
    }
    EXPECT_TRUE(DictionaryImport::ReadFile(folder.Write("d.json", GoodJson), "corporate", report, error))
        << Message();
    EXPECT_EQ(Names(Manager().GetCorporateDictionary()), "COLOUR(RED BLUE )LAMP(LED )");
}

TEST_F(DictionaryImportTest, ARefusedOneKeepsTheEventsThatWaitForASave) {
    ZOLDMPubSub::PublishEvent(Part("BIKE"), ZOLDMPubSub::ObjectChanged);
    EXPECT_FALSE(Import("record,name\noption,RED\n"));
    ASSERT_TRUE(Import(GoodCsv));
    EXPECT_EQ(Stored("SELECT count(*) FROM event"), "1");
}

TEST_F(DictionaryImportTest, TellsHowFarItIsUntilAllIsDone) {
    std::string told;
    ASSERT_TRUE(
        DictionaryImport::ReadText(GoodCsv, DictionaryImport::Form::Csv, "file", "BIKE", report, error,
                                   [&](const ZOLUnicodeString& text, std::int64_t done, std::int64_t of) {
                                       EXPECT_EQ(text, "categories and options");
                                       told += std::to_string(done) + "/" + std::to_string(of) + " ";
                                   }));
    EXPECT_EQ(told, "1/5 2/5 3/5 4/5 5/5 ");
}

TEST_F(DictionaryImportTest, ARefusedRightChangesNothing) {
    Person("bo", 0, {"ManageOptionDictionary"});
    ASSERT_EQ(Save(), 0);
    As("bo");
    EXPECT_FALSE(Import(GoodCsv));
    EXPECT_EQ(TakeCode(), 60518);
    EXPECT_FALSE(Object("BIKE").GetDictionary());
}

// Any damage of a good file is either read or refused with a line of the file; it never crashes or leaves
// halves.
TEST_F(DictionaryImportTest, DamagedFilesAreReadOrRefusedWhole) {
    EXPECT_TRUE(rc::check([this] {
        const bool isJson = *rc::gen::arbitrary<bool>();
        std::string text = isJson ? GoodJson : GoodCsv;
        for (int i = *rc::gen::inRange(1, 6); i > 0; --i) {
            const auto at = *rc::gen::inRange<std::size_t>(0, text.size());
            const std::string piece = *rc::gen::elementOf(
                std::vector<std::string>{"", "\"", "\n", ",", "}", "[", "\xff", "\\u00",
                                         "option,RED,COLOUR,,,,\n", "{\"name\": 1}", "yes"});
            text.replace(at, *rc::gen::inRange<std::size_t>(0, 4), piece);
        }
        const bool done =
            Import(text, "BIKE", isJson ? DictionaryImport::Form::Json : DictionaryImport::Form::Csv);
        const int lines = static_cast<int>(std::count(text.begin(), text.end(), '\n')) + 1;
        for (const ImportProblem& problem : report.problems)
            RC_ASSERT(problem.line >= 0 && problem.line <= lines);
        RC_ASSERT(done == (TakeCode() == 0));
        RC_ASSERT(done == report.problems.empty());
        RC_ASSERT(Unsaved() == 0u);
        if (!done)
            return;
        Manager().DeleteDictionary(Part("BIKE"), error);
        RC_ASSERT(Save() == 0);
    }));
}

} // namespace trellis::test
