#include "site/ZOLDMUsrMethod.h"
#include "support/TemporaryFolder.h"
#include "values/Settings.h"
#include "values/ZOLGYRError.h"

#include <gtest/gtest.h>

#include <string>

namespace trellis::test {

namespace {

class SiteControls : public testing::Test {
protected:
    ~SiteControls() override {
        ZOLDMUsrMethod::FreeOptionList(shown);
        Settings::Current().Forget();
        unsetenv("TRELLIS_SITE_FOLDER");
    }

    static void Use(const std::string& library) {
        std::vector<ZOLGYRError> problems;
        Settings::Current().Declare("CONTROL_LIBRARY", library, SettingOrigin::SiteFile, "test", problems);
        EXPECT_TRUE(problems.empty());
    }
    int Ask(const char* person, const char* role = "") {
        ZOLDMUsrMethod::FreeOptionList(shown);
        return ZOLDMUsrMethod::OptionListToDisplay(person, role, "", ObjID(), given, shown, error);
    }
    int TakeCode() {
        const int code = error.GetCode();
        error.Clear();
        return code;
    }
    std::string Shown() const {
        std::string text;
        for (int i = 0; i < shown.count; ++i)
            text +=
                std::string(shown.names[i]) + "/" + shown.categories[i] + "/" + shown.descriptions[i] + " ";
        return text;
    }

    char red[4] = "RED";
    char lime[5] = "LIME";
    char colour[7] = "COLOUR";
    char shade[6] = "Shade";
    char draft[12] = "Draft: new!";
    char* names[2] = {red, lime};
    char* categories[2] = {colour, colour};
    char* descriptions[2] = {shade, draft};
    TrellisOptionList given = {2, names, categories, descriptions};
    TrellisOptionList shown = {};
    ZOLGYRError error;
};

} // namespace

TEST_F(SiteControls, WithoutALibraryTheListStays) {
    EXPECT_EQ(Ask("anna"), 0);
    EXPECT_EQ(shown.count, 0);
    EXPECT_EQ(TakeCode(), 0);
}

TEST_F(SiteControls, TheExampleShowsDraftsToEngineersAlone) {
    Use(CONTROLS_SAMPLE);
    EXPECT_EQ(Ask("anna", "engineer"), 0);
    EXPECT_EQ(Shown(), "RED/COLOUR/Shade LIME/COLOUR/Draft: new! ");
    EXPECT_EQ(Ask("bo", "buyer"), 0);
    EXPECT_EQ(Shown(), "RED/COLOUR/Shade ");
    given.count = 0;
    EXPECT_EQ(Ask("bo", "buyer"), 0);
    EXPECT_EQ(shown.count, 0);
    EXPECT_EQ(TakeCode(), 0);
}

TEST_F(SiteControls, ARelativePathBeginsAtTheFolderOfTheSite) {
    TemporaryFolder site;
    std::filesystem::copy_file(CONTROLS_SAMPLE, site.Path("controls.so"));
    setenv("TRELLIS_SITE_FOLDER", site.Path().c_str(), 1);
    Use("controls.so");
    EXPECT_EQ(Ask("bo", "buyer"), 0);
    EXPECT_EQ(Shown(), "RED/COLOUR/Shade ");
}

TEST_F(SiteControls, ALibraryThatCannotBeUsedIsToldOnceAndCountsAsNone) {
    TemporaryFolder folder;
    const struct {
        std::string path;
        int code;
    } cases[] = {{folder.Path("missing.so"), 60530},
                 {folder.Write("text.so", "no library"), 60530},
                 {CONTROLS_NAMELESS, 60531},
                 {CONTROLS_NEWER, 60532}};
    for (const auto& [path, code] : cases) {
        Use(path);
        EXPECT_EQ(Ask("no arrays"), 0) << path;
        ASSERT_FALSE(error.GetParameters().empty());
        EXPECT_EQ(error.GetParameters()[0], ZOLUnicodeString(path));
        EXPECT_EQ(TakeCode(), code) << path;
        EXPECT_EQ(Ask("no arrays"), 0) << path;
        EXPECT_EQ(TakeCode(), 0) << path;
    }
}

TEST_F(SiteControls, AnAnswerThatCannotBeReadIsRefusedAndFreedWithoutHarm) {
    Use(CONTROLS_FAULTY);
    for (const char* fault : {"no arrays", "a missing array", "a count below 0", "a missing text",
                              "an array twice", "a text twice", "what was given", "a text that was given"}) {
        EXPECT_EQ(Ask(fault), -1) << fault;
        EXPECT_EQ(TakeCode(), 60533) << fault;
    }
    EXPECT_STREQ(given.names[0], "RED");
    EXPECT_EQ(Ask("nothing, though it may not be asked"), 7);
    EXPECT_EQ(TakeCode(), 0);
    EXPECT_EQ(Ask("no fault"), 0);
    EXPECT_EQ(Shown(), "name/category/description name/category/description ");
}

} // namespace trellis::test
