#include "values/Settings.h"

#include "support/TemporaryFolder.h"
#include "values/OperationTrace.h"
#include "values/ZOLDMTarvex.h"

#include <gtest/gtest.h>

namespace {

using trellis::SettingOrigin;
using trellis::Settings;
using trellis::test::TemporaryFolder;

const char* const Upper = "ZOLWVTA.QRD.UPPERCASE_CFG_ID";
const char* const Rapid = "ZOLWVTA.QRD.OPT_GRAPH.RAPID_SELECT_MNGT";
const char* const Multiple = "ZOLWVTA.QRD.OPT_DICO.MULTIPLE_DEFAULT_OPT";

class SettingsTest : public testing::Test {
protected:
    SettingsTest() { Settings::Current().Forget(); }
    ~SettingsTest() override {
        Settings::Current().Forget();
        for (const char* name : {"TRELLIS_SITE_FOLDER", "XDG_CONFIG_HOME"})
            unsetenv(name);
        unsetenv(Settings::EnvironmentName(Upper).c_str());
        unsetenv(Settings::EnvironmentName("TRACE.SINK").c_str());
    }

    void Declare(const std::string& key, const std::string& value,
                 SettingOrigin origin = SettingOrigin::SiteFile) {
        Settings::Current().Declare(key, value, origin, "test", _problems);
    }

    TemporaryFolder _folder;
    std::vector<ZOLGYRError> _problems;
};

TEST_F(SettingsTest, ABuiltInDefaultDoesNotMakeAKeyDeclared) {
    int rc = 0;
    EXPECT_EQ(ZOLDMTarvex::GetLogicalDec(Multiple, rc), 0);
    EXPECT_NE(rc, 0);
    EXPECT_TRUE(Settings::Current().IsOn(Multiple));

    Declare(Multiple, "off");
    rc = 0;
    EXPECT_EQ(ZOLDMTarvex::GetLogicalDec(Multiple, rc), 0);
    EXPECT_EQ(rc, 0);
    EXPECT_FALSE(Settings::Current().IsOn(Multiple));

    // Declared as empty is a value of its own: no rapid select field.
    Declare(Rapid, "");
    EXPECT_TRUE(ZOLDMTarvex::GetStringDec(Rapid, rc).IsEmpty());
    EXPECT_EQ(rc, 0);
}

TEST_F(SettingsTest, StrongerOriginsWinWhateverTheOrder) {
    setenv("TRELLIS_SITE_FOLDER", _folder.Path("site").c_str(), 1);
    setenv("XDG_CONFIG_HOME", _folder.Path("user").c_str(), 1);
    _folder.Write("site/trellis.conf", "# site\n\nLANGUAGE = de\nZOLWVTA.QRD.UPPERCASE_CFG_ID=on\n");
    const std::string user = _folder.Write("user/trellis/trellis.conf", "LANGUAGE=fr\r\n");
    Settings::Current().Load(_problems);
    EXPECT_TRUE(_problems.empty());
    EXPECT_EQ(Settings::Current().Value("LANGUAGE").text, "fr");
    EXPECT_EQ(Settings::Current().Value("LANGUAGE").place, user + ", line 1");
    EXPECT_EQ(Settings::Current().Value(Upper).origin, SettingOrigin::SiteFile);

    setenv(Settings::EnvironmentName(Upper).c_str(), "0", 1);
    Settings::Current().Load(_problems);
    EXPECT_FALSE(Settings::Current().IsOn(Upper));
    Declare(Upper, "yes", SettingOrigin::Option);
    EXPECT_TRUE(Settings::Current().IsOn(Upper));
}

TEST_F(SettingsTest, AWrongLineIsToldWithItsPlaceAndTheRestIsRead) {
    const std::string file = _folder.Write(
        "a.conf",
        "nonsense\nZOLWVTA.QRD.UPPERCASE_CFG_ID = maybe\nNO.SUCH.KEY = 1\nLANGUAGE = de\nX\xFF=1\n");
    Settings::Current().LoadFile(file, SettingOrigin::UserFile, _problems);
    ASSERT_EQ(_problems.size(), 4u);
    EXPECT_EQ(_problems[0].GetCode(), 60011);
    EXPECT_EQ(_problems[1].GetCode(), 60012);
    EXPECT_EQ(_problems[1].GetParameters(),
              (std::vector<ZOLUnicodeString>{file + ", line 2", Upper, "maybe"}));
    EXPECT_EQ(_problems[2].GetCode(), 60013);
    EXPECT_EQ(_problems[3].GetCode(), 60011);
    EXPECT_EQ(Settings::Current().Value("LANGUAGE").text, "de");
    EXPECT_FALSE(Settings::Current().Declared(Upper));

    _problems.clear();
    Settings::Current().LoadFile(_folder.Path(), SettingOrigin::UserFile, _problems);
    ASSERT_EQ(_problems.size(), 1u);
    EXPECT_EQ(_problems[0].GetCode(), 60010);
}

TEST_F(SettingsTest, ANumberIsOneAsAWholeAndAnEmptyOneDeclaresNothing) {
    for (const char* wrong : {"large", "12 points", "1,5", "inf", "nan"})
        Declare("FONT.SIZE", wrong, SettingOrigin::UserFile);
    ASSERT_EQ(_problems.size(), 5U);
    EXPECT_EQ(_problems[0].GetCode(), 60015);
    EXPECT_FALSE(Settings::Current().Declared("FONT.SIZE"));
    Declare("FONT.SIZE", "11.5", SettingOrigin::UserFile);
    Declare("FONT.SIZE", "", SettingOrigin::Environment);
    EXPECT_EQ(Settings::Current().Value("FONT.SIZE").text, "11.5");
    EXPECT_EQ(_problems.size(), 5U);
}

TEST_F(SettingsTest, KeysOfTheSiteAreIgnoredElsewhereWithAWarning) {
    setenv(Settings::EnvironmentName("TRACE.SINK").c_str(), "/tmp/x", 1);
    Settings::Current().Load(_problems);
    ASSERT_EQ(_problems.size(), 1u);
    EXPECT_EQ(_problems[0].GetCode(), 60014);
    EXPECT_EQ(_problems[0].GetMode(), -1);
    EXPECT_EQ(Settings::Current().Value("TRACE.SINK").text, "");
}

class ZOLGYRTraceTest : public SettingsTest {
protected:
    void Run(int code) {
        ZOLGYRError error;
        const trellis::OperationTrace outer("Outer::Operation", 3, error);
        {
            ZOLGYRError inner;
            const trellis::OperationTrace trace("Inner::Operation", 9, inner);
            inner.Set(code);
        }
        error.Set(code);
    }
    std::string Sink() const { return _folder.Path("trace"); }
};

TEST_F(ZOLGYRTraceTest, OddCodesOfActiveLevelsEndWithALine) {
    Declare("TRACE.SINK", Sink());
    Declare("TRACE.LEVELS", "3, 9");
    Run(20267);
    EXPECT_EQ(TemporaryFolder::Read(Sink()),
              "      Inner::Operation ier = 20267\n   Outer::Operation ier = 20267\n");
}

TEST_F(ZOLGYRTraceTest, EvenCodesAndOtherLevelsWriteNothing) {
    Declare("TRACE.SINK", Sink());
    Run(20268);
    Run(0);
    EXPECT_EQ(TemporaryFolder::Read(Sink()), "");
    Declare("TRACE.LEVELS", "37");
    Run(20267);
    EXPECT_EQ(TemporaryFolder::Read(Sink()), "");
}

TEST_F(ZOLGYRTraceTest, ASinkThatCannotBeWrittenStopsNothing) {
    Declare("TRACE.SINK", _folder.Path("no/such/folder"));
    Run(20267);
    EXPECT_FALSE(std::filesystem::exists(_folder.Path("no")));
}

} // namespace
