#include "toolkit/ZOLGYRResource.h"

#include "support/TemporaryFolder.h"
#include "values/Settings.h"
#include "values/ZOLGYRError.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using trellis::Settings;
using trellis::test::TemporaryFolder;

namespace {

// A variable of the environment for the life of one test.
class VariableScope {
public:
    VariableScope(const char* name, const std::string& value) : _name(name) {
        if (const char* old = std::getenv(name))
            _old = old;
        setenv(name, value.c_str(), 1);
    }
    ~VariableScope() {
        if (_old.empty())
            unsetenv(_name);
        else
            setenv(_name, _old.c_str(), 1);
    }
    VariableScope(const VariableScope&) = delete;
    VariableScope& operator=(const VariableScope&) = delete;

private:
    const char* _name;
    std::string _old;
};

class ZOLGYRResourceTest : public testing::Test {
protected:
    ~ZOLGYRResourceTest() override { Settings::Current().Forget(); }

    void Declare(const char* key, const std::string& value) {
        std::vector<ZOLGYRError> problems;
        Settings::Current().Declare(key, value, trellis::SettingOrigin::SiteFile, "test", problems);
        ASSERT_TRUE(problems.empty());
    }
    std::string Text(const char* file, const char* key) {
        return ZOLGYRResource(file).GetValueOr(key, "(missing)").Bytes();
    }

    TemporaryFolder _folder;
    TemporaryFolder _site;
    VariableScope _base{"TRELLIS_RESOURCES", _folder.Path()};
    VariableScope _siteVariable{"TRELLIS_SITE_FOLDER", _site.Path()};
};

} // namespace

TEST_F(ZOLGYRResourceTest, OnlyTheExactKeyIsFound) {
    _folder.Write("en/Panel", "Ok.Title: Fine\n*Loose.Title: Everywhere\nOk: Short\n");
    EXPECT_EQ(Text("Panel", "Ok.Title"), "Fine");
    EXPECT_EQ(Text("Panel", "Ok"), "Short");
    EXPECT_EQ(Text("Panel", "ok.Title"), "(missing)");
    EXPECT_EQ(Text("Panel", "Panel.Ok.Title"), "(missing)");
    EXPECT_EQ(Text("Panel", "Ok.Title.Title"), "(missing)");
    EXPECT_EQ(Text("Panel", "Loose.Title"), "(missing)");
    EXPECT_EQ(Text("Panel", ""), "(missing)");
}

TEST_F(ZOLGYRResourceTest, AnEmptyTextIsATextAndAMissingKeyLeavesTheValueAlone) {
    _folder.Write("en/Panel", "Owner.Title:\nName.Title: Name\n");
    const ZOLGYRResource resource("Panel");
    ZOLUnicodeString value("before");
    EXPECT_EQ(resource.GetValue("Absent.Title", value), 0);
    EXPECT_EQ(value, "before");
    EXPECT_EQ(resource.GetValue("Owner.Title", value), 1);
    EXPECT_EQ(value, "");
}

TEST_F(ZOLGYRResourceTest, BlanksLineFeedsAndOtherLanguagesSurvive) {
    struct Case {
        const char* written;
        const char* read;
    };
    const Case cases[] = {
        {"   plain", "plain"},
        {"\\ two blanks  ", " two blanks  "},
        {"\\040octal", " octal"},
        {"first\\nsecond\\n", "first\nsecond\n"},
        {"\\\n  carried on", "carried on"},
        {"a: b ! c # d", "a: b ! c # d"},
        {"Gr\xc3\xb6\xc3\x9f"
         "e \xe6\xbc\xa2",
         "Gr\xc3\xb6\xc3\x9f"
         "e \xe6\xbc\xa2"},
    };
    std::string content = "! texts\n";
    for (std::size_t i = 0; i < std::size(cases); ++i)
        content += "Key" + std::to_string(i) + ":" + cases[i].written + "\n";
    _folder.Write("en/Panel", content);
    for (std::size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(Text("Panel", ("Key" + std::to_string(i)).c_str()), cases[i].read) << cases[i].written;
}

TEST_F(ZOLGYRResourceTest, TheSiteComesBeforeTheLanguageAndThatBeforeEnglishKeyByKey) {
    _folder.Write("en/Panel", "One: one\nTwo: two\nThree: three\n");
    _folder.Write("xx/Panel", "One: uno\nTwo: due\n");
    _site.Write("resources/Panel", "One: first\n");
    EXPECT_EQ(Text("Panel", "One"), "first");
    EXPECT_EQ(Text("Panel", "Two"), "two");

    Declare("LANGUAGE", "xx");
    EXPECT_EQ(Text("Panel", "One"), "first");
    EXPECT_EQ(Text("Panel", "Two"), "due");
    EXPECT_EQ(Text("Panel", "Three"), "three");
}

TEST_F(ZOLGYRResourceTest, ParametersTakeTheirPlacesOnceAndMissingOnesVanish) {
    _folder.Write("en/Panel", "Text: %2 of %1, %3. 100% %0\n");
    ZOLUnicodeString value;
    ZOLListVal<ZOLUnicodeString> parameters{"%2", "bolt"};
    EXPECT_EQ(ZOLGYRResource("Panel").GetValue("Text", value, parameters), 1);
    EXPECT_EQ(value, "bolt of %2, . 100% %0");
    EXPECT_EQ(ZOLGYRResource("Panel").GetValue("Absent", value, parameters), 0);
}

TEST_F(ZOLGYRResourceTest, AMissingOrUnreadableFileIsTracedByItsNameAndHasNoKeys) {
    struct Case {
        const char* file;
        int code;
    };
    std::filesystem::create_directories(_folder.Path("en/Folder"));
    const std::string trace = _folder.Path("trace");
    Declare("TRACE.SINK", trace);
    for (const Case& c :
         {Case{"NoSuchPanel", 60180}, Case{"Folder", 60181}, Case{"../en/Panel", 60180}, Case{"", 60180}}) {
        const ZOLGYRResource resource(c.file);
        ZOLUnicodeString value;
        ZOLGYRError error;
        resource.GetStatus(error);
        EXPECT_EQ(error.GetCode(), c.code) << c.file;
        EXPECT_EQ(resource.GetValue("Ok.Title", value), 0);
        EXPECT_NE(TemporaryFolder::Read(trace).find(c.file), std::string::npos);
    }
    _folder.Write("en/Empty", "");
    ZOLGYRError error;
    ZOLGYRResource("Empty").GetStatus(error);
    EXPECT_EQ(error.GetCode(), 0);
}

RC_GTEST_FIXTURE_PROP(ZOLGYRResourceTest, NoContentOfAFileDoesHarm, (std::vector<std::string> pieces)) {
    static int number = 0;
    const std::vector<std::string> seeds{
        "Key.Title: text\n",  "*",        ".", ":",  "\\",   "\\\n", "\n", "!", "#include \"Panel\"\n",
        std::string(1, '\0'), "\xff\xfe", "?", "\t", "\\07", "\\400"};
    std::string content;
    for (const std::string& piece : pieces)
        content += piece + *rc::gen::elementOf(seeds);
    const std::string name = "Panel" + std::to_string(++number);
    _folder.Write("en/" + name, content + "\nLast.Key: read\n");
    ZOLUnicodeString value;
    const ZOLGYRResource resource(name);
    if (resource.GetValue("Last.Key", value))
        RC_ASSERT(value == "read");
}
