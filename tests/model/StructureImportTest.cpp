#include "model/ModelFixture.h"
#include "store/Workspace.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>

namespace trellis::test {
namespace {

using Form = StructureImport::Form;

class StructureImportTest : public ModelFixture {
protected:
    StructureImportTest() : ModelFixture(Place::Memory) {}

    // "LINE NUMBER, LINE NUMBER" of the problems of the last import.
    std::string Problems() const {
        std::string text;
        for (const ImportProblem& problem : report.problems)
            text += (text.empty() ? "" : ", ") + std::to_string(problem.line) + " " +
                    std::to_string(problem.error.GetCode());
        return text;
    }
};

TEST_F(StructureImportTest, ATableOfLinksMakesItsParts) {
    ASSERT_TRUE(Import("\xEF\xBB\xBFparent_id,parent_name,child_id,child_name,link_id\r\n"
                       "b,\"Bike, \"\"red\"\"\",f,Frame,1\r\n\r\n"
                       "b,,w,Wheel,2\n"
                       "f,Frame,w,Wheel,1"));
    EXPECT_EQ(report.newParts, 3);
    EXPECT_EQ(report.newLinks, 3);
    EXPECT_EQ(Name(Part("b")), "b Bike, \"red\"");
    EXPECT_EQ(Children(Part("b")), "f Frame, w Wheel");
}

TEST_F(StructureImportTest, JsonAndCsvOfTheSameStructureAreTheSame) {
    constexpr std::string_view json = R"({
        "parts": [{"id": "b", "number": "4711", "name": "Bike", "attributes": {"MASS": 31, "NOTE": "a\nb"}},
                  {"number": "100", "revision": "A", "site": null}],
        "links": [{"parent": "b", "child": "100/A", "id": "f", "name": "Frame", "position": 3}]})";
    ASSERT_TRUE(Import(json, Form::Json)) << Problems();
    EXPECT_EQ(Name(Links(Part("4711"))[1]), "4711 Bike / 100 A");
    ZOLListValZOLUnicodeString values;
    Part("b").GetAttributes({"MASS", "NOTE"}, values);
    EXPECT_EQ(values[1], "31");
    EXPECT_EQ(values[2], "a\nb");

    ASSERT_TRUE(Import("record,id,number,revision,name,attribute:MASS,attribute:NOTE,parent,child,link_id,"
                       "link_name,position\n"
                       "part,b,4711,,Bike,31,\"a\nb\",,,,,\n"
                       "part,,100,A,,,,,,,,\n"
                       "link,,,,,,,b,100/A,f,Frame,3\n"))
        << Problems();
    EXPECT_EQ(report.newParts + report.changedParts + report.newLinks + report.changedLinks, 0);
}

TEST_F(StructureImportTest, ImportingAgainUpdatesAndDoesNotDouble) {
    ASSERT_TRUE(Import("record,id,number,name,site,attribute:MASS,parent,child,link_id,link_name\n"
                       "part,b,4711,Bike,LYON,31,,,,\npart,f,100,Frame,,,,,,\npart,w,200,Wheel,,,,,,\n"
                       "link,,,,,,b,f,1,old\nlink,,,,,,b,w,2,\n"));
    const ZOLDMInstance bike = Part("b");
    const ZOLDMInstance link = Links(bike)[1];
    ASSERT_TRUE(Import("record,id,number,name,site,attribute:MASS,parent,child,link_id,link_name\n"
                       "part,b,4711,Cargo bike,,32,,,,\npart,w,200,Wheel,,,,,,\n"
                       "link,,,,,,b,w,1,new\n"));
    EXPECT_EQ(report.newParts + report.newLinks, 0);
    EXPECT_EQ(report.changedParts, 1);
    EXPECT_EQ(report.changedLinks, 1);
    EXPECT_EQ(Name(bike), "4711 Cargo bike");
    EXPECT_EQ(Name(link), "4711 Cargo bike / 200 Wheel");
    ZOLUnicodeString site;
    bike.GetSiteResponsible(site);
    EXPECT_EQ(site, "LYON");
    ZOLListValZOLUnicodeString values;
    bike.GetAttributes({"MASS"}, values);
    EXPECT_EQ(values[1], "32");
    EXPECT_EQ(Stored("links"), "2");
    EXPECT_EQ(Stored("attributes"), "1");

    ASSERT_TRUE(Import("parent,child,link_id\nb,f,3\n"));
    EXPECT_EQ(report.changedParts, 0) << "a table of links knows nothing of numbers";
    EXPECT_EQ(Name(bike), "4711 Cargo bike");
}

TEST_F(StructureImportTest, LinksWithoutIdAreToldApartByOrder) {
    const char* twoWheels = "parent,child\nbike,wheel\nbike,wheel\n";
    ASSERT_TRUE(Import(twoWheels));
    ASSERT_TRUE(Import(twoWheels));
    EXPECT_EQ(report.newLinks, 0);
    EXPECT_EQ(Links(Part("bike")).Size(), 2);
}

struct BadFile {
    const char* name;
    Form form;
    std::string text;
    std::string problems;
};

class BadStructureTest : public StructureImportTest, public testing::WithParamInterface<BadFile> {};

TEST_P(BadStructureTest, IsRefusedWholeWithEveryBadLine) {
    ASSERT_TRUE(Import("parent,child,link_id\nbike,frame,1\nframe,tube,1\n"));
    EXPECT_FALSE(Import(GetParam().text, GetParam().form));
    EXPECT_EQ(error.GetCode(), 60203);
    EXPECT_EQ(Problems(), GetParam().problems);
    EXPECT_EQ(Stored("parts") + Stored("links") + Stored("attributes"), "320");
    for (const ImportProblem& problem : report.problems) {
        ZOLUnicodeString message;
        problem.error.GetLongMsg(message);
        EXPECT_EQ(message.SearchSubString(std::to_string(problem.error.GetCode())), -1) << "no text for it";
    }
}

const std::string longText(300, 'x');

INSTANTIATE_TEST_SUITE_P(
    Files, BadStructureTest,
    testing::Values(
        BadFile{"Empty", Form::Csv, "", "0 60210"}, BadFile{"OnlyEmptyLines", Form::Csv, "\n\r\n", "0 60210"},
        BadFile{"OnlyHeader", Form::Csv, "parent,child\n", "0 60210"},
        BadFile{"NotUtf8", Form::Csv, "parent,child\na,b\n\xFF,b\na,c\xC3\n\xE0\x80\x80,\n",
                "3 60212, 4 60212, 5 60212"},
        BadFile{"UnclosedQuote", Form::Csv, "parent,child\na,b\nc,\"d\ne,f\n", "3 60213"},
        BadFile{"StrayQuote", Form::Csv, "parent,child\na\"b,c\n\"a\"b,c\na,b\n", "2 60215, 3 60215"},
        BadFile{"OversizeField", Form::Csv, "parent,child\na," + std::string(70000, 'x') + "\n", "2 60214"},
        BadFile{"RowWidth", Form::Csv, "parent,child\na\na,b,c\na,b\n", "2 60216, 3 60216"},
        BadFile{"Columns", Form::Csv, "parent,child,colour,parent_id\na,b,c,d\n", "1 60217, 1 60218"},
        BadFile{"NoLinkColumns", Form::Csv, "parent,name\na,b\n", "1 60219"},
        BadFile{"Record", Form::Csv, "record,id,parent,child\npart,a,,\nassembly,a,,\n", "3 60220"},
        BadFile{"PartWithoutKey", Form::Csv, "record,id,name\npart,,x\n", "2 60221"},
        BadFile{"LinkWithoutEnd", Form::Csv, "parent,child\n,b\na,\n", "2 60222, 3 60222"},
        BadFile{"LongAndControl", Form::Csv, "parent,child,link_name\na,b," + longText + "\na,\"b\nc\",\n",
                "2 60223, 3 60224"},
        BadFile{"PartTwice", Form::Csv, "record,id,number\npart,a,\npart,,a\n", "3 60225"},
        BadFile{"LinkTwice", Form::Csv, "parent,child,link_id\na,b,1\na,c,1\nb,c,1\n", "3 60226"},
        BadFile{"UnknownPart", Form::Csv, "record,id,parent,child\npart,a,,\nlink,,a,nowhere\nlink,,a,bike\n",
                "3 60227"},
        BadFile{"CycleInFile", Form::Csv, "parent,child\na,b\nb,c\nc,a\na,d\nd,c\n", "4 60228"},
        BadFile{"PartInItself", Form::Csv, "parent,child\na,a\n", "2 60228"},
        BadFile{"CycleThroughDatabase", Form::Csv, "parent,child\nnew,x\ntube,bike\n", "3 60228"},
        BadFile{"Position", Form::Csv, "parent,child,position\na,b,-1\na,c,x\na,d,99999999999\n",
                "2 60229, 3 60229, 4 60229"},
        BadFile{"TwoNames", Form::Csv, "parent,child,child_name\na,b,B\nc,b,C\n", "3 60233"},
        BadFile{"JsonSyntax", Form::Json, "{\"parts\": [\n{\"id\": \"a\"},\n{\"id\" 1}]}", "3 60230"},
        BadFile{"JsonEndsBeforeItsParts", Form::Json,
                "{\"links\": [{\"parent\": \"x\", \"child\": \"y\"}],\n\"parts\": [", "2 60230"},
        BadFile{"JsonEnds", Form::Json, "{\"parts\": [{\"id\": \"a\"}", "1 60230"},
        BadFile{"JsonOfAnotherKind", Form::Json, "[1, 2]", "1 60232"},
        BadFile{"JsonEmpty", Form::Json, "{}", "0 60210"},
        BadFile{"JsonKeys", Form::Json,
                "{\"parts\": [\n{\"id\": \"a\", \"colour\": \"red\"},\n{\"id\": true},\n7,\n{\"id\": \"b\", "
                "\"name\": {\"x\": [1]}}],\n"
                "\"more\": 1}",
                "2 60231, 3 60232, 3 60221, 4 60232, 5 60232, 6 60232"}),
    [](const testing::TestParamInfo<BadFile>& info) { return std::string(info.param.name); });

TEST_F(StructureImportTest, ADiamondIsNoCycle) {
    EXPECT_TRUE(Import("parent,child\na,b\na,c\nb,d\nc,d\n"));
    EXPECT_TRUE(Import("parent,child\nd,e\n"));
}

TEST_F(StructureImportTest, ALinkThatIsMovedAwayBreaksTheOldCycle) {
    ASSERT_TRUE(Import("parent,child,link_id\na,b,1\nb,c,1\n"));
    EXPECT_TRUE(Import("parent,child,link_id\na,d,1\nc,a,1\n")) << Problems();
}

TEST_F(StructureImportTest, AFileThatCannotBeReadIsNamed) {
    for (const std::string& name : {folder.Path("missing.csv"), folder.Path()}) {
        error.Clear();
        EXPECT_FALSE(StructureImport::ReadFile(name, report, error));
        EXPECT_EQ(error.GetCode(), 60202);
        EXPECT_EQ(error.GetParameters().at(0), name);
    }
    EXPECT_TRUE(StructureImport::ReadFile(folder.Write("a.csv", "parent,child\na,b\n"), report, error));
    EXPECT_TRUE(
        StructureImport::ReadFile(folder.Write("a.json", R"({"parts":[{"id":"z"}]})"), report, error));
}

TEST_F(StructureImportTest, TellsHowFarItIsAboutAHundredTimesAPieceOfWork) {
    std::string table = "parent,child\n";
    for (int i = 0; i < 1000; ++i)
        table += "bike,part " + std::to_string(i) + "\n";
    std::map<std::string, std::vector<std::int64_t>> told;
    ASSERT_TRUE(
        StructureImport::ReadText(table, Form::Csv, "file", report, error,
                                  [&](const ZOLUnicodeString& text, std::int64_t done, std::int64_t of) {
                                      EXPECT_EQ(of, text == "parts" ? 1001 : 1000);
                                      told[text.Bytes()].push_back(done);
                                  }));
    ASSERT_EQ(told.size(), 2u);
    EXPECT_EQ(told["parts"].back(), 1001);
    EXPECT_EQ(told["links"].back(), 1000);
    for (const auto& [text, steps] : told) {
        EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end())) << text;
        EXPECT_LE(steps.size(), 102u) << text;
        EXPECT_GE(steps.size(), 50u) << text;
    }
}

TEST_F(StructureImportTest, AFailedWriteLeavesTheDatabaseAsItWas) {
    const char* text = "record,id,attribute:M,parent,child\npart,a,1,,\npart,b,,,\nlink,,,a,b\n";
    StoreSession& session = Workspace::Current()->Session();
    int n = 1;
    for (;; ++n) {
        session.FailStatement(n);
        const bool done = Import(text);
        session.FailStatement(0);
        if (done)
            break;
        EXPECT_EQ(error.GetCode(), 20903) << n;
        EXPECT_TRUE(report.problems.empty());
        EXPECT_EQ(report.newParts, 0);
        EXPECT_EQ(Stored("parts") + Stored("links") + Stored("attributes"), "000") << n;
    }
    EXPECT_GE(n, 7);
    EXPECT_EQ(Stored("parts") + Stored("links") + Stored("attributes"), "211");
}

// The table of a real assembly: in TRELLIS_DATA or beside the checkout. Its nine parts and thirteen links are also
// here, so that the test never depends on it.
TEST_F(StructureImportTest, TheTableOfARealAssemblyComesIn) {
    const char* data = std::getenv("TRELLIS_DATA");
    const std::string real = std::string(data ? data : TRELLIS_DATA_BESIDE) + "/structures/as1-structure.csv";
    if (std::filesystem::exists(real)) {
        ASSERT_TRUE(StructureImport::ReadFile(real, report, error)) << Problems();
    } else {
        ASSERT_TRUE(Import("entity,link_id,link_name,parent_id,parent_name,child_id,child_name\n"
                           "#751,1,nut_1,rod-assembly,rod-assembly,nut,nut\n"
                           "#757,2,nut_2,rod-assembly,rod-assembly,nut,nut\n"
                           "#1131,3,rod_1,rod-assembly,rod-assembly,rod,rod\n"
                           "#1137,4,rod-assembly_1,as1,as1,rod-assembly,rod-assembly\n"));
    }
    ZOLListValZOLDMInstance roots;
    PartQuery::Roots(roots, error);
    EXPECT_EQ(Names(roots), "as1");
    EXPECT_EQ(Children(Part("rod-assembly")), "nut, rod");
    EXPECT_EQ(Links(Part("rod-assembly")).Size(), 3);
}

// Whatever octets come, an import ends, and writes all or nothing.
void ImportAnything(const std::string& text, Form form) {
    ZOLGYRError error;
    if (!DatabaseSession::IsOpen())
        DatabaseSession::Create("sqlite::memory:", error);
    ImportReport report;
    const bool done = StructureImport::ReadText(text, form, "x", report, error);
    RC_ASSERT(done == (error.GetCode() == 0));
    RC_ASSERT(done == report.problems.empty());
}

const std::string goodCsv =
    "record,id,number,name,attribute:M,parent,child,link_id,position\npart,a,1,\"A, a\",x,,,,\n"
    "part,b,2,B,,,,,\nlink,,,,,a,b,l,1\n";
const std::string goodJson =
    R"({"parts":[{"id":"a","attributes":{"M":"x"}},{"id":"b"}],"links":[{"parent":"a","child":"b"}]})";

std::string Mutated(std::string text) {
    for (int i = *rc::gen::inRange(0, 6); i > 0 && !text.empty(); --i) {
        const std::size_t at = *rc::gen::inRange<std::size_t>(0, text.size());
        const std::size_t length = *rc::gen::inRange<std::size_t>(0, 6);
        const std::string piece =
            *rc::gen::oneOf(rc::gen::container<std::string>(rc::gen::arbitrary<char>()),
                            rc::gen::element<std::string>("\"", ",", "\n", "{", "}", "[", "]", "a", "b", ":",
                                                          "\xC3", "part", "link", ""));
        text.replace(at, length, piece);
    }
    return text;
}

RC_GTEST_PROP(StructureImportPropertyTest, AnyOctetsAreReadOrRefused, ()) {
    const std::string text = *rc::gen::container<std::string>(rc::gen::arbitrary<char>());
    ImportAnything(text, Form::Csv);
    ImportAnything("parent,child\n" + text, Form::Csv);
    ImportAnything(text, Form::Json);
}

RC_GTEST_PROP(StructureImportPropertyTest, AnyMutationOfAGoodFileIsReadOrRefused, ()) {
    ImportAnything(Mutated(goodCsv), Form::Csv);
    ImportAnything(Mutated(goodJson), Form::Json);
}

} // namespace
} // namespace trellis::test
