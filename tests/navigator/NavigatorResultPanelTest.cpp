#include "navigator/NavigatorFixture.h"

#include "values/Settings.h"

namespace trellis::test {

namespace {

class NavigatorResultPanelTest : public NavigatorFixture {
protected:
    ~NavigatorResultPanelTest() override { Settings::Current().Forget(); }

    static void Set(const char* key, const char* value) {
        std::vector<ZOLGYRError> problems;
        Settings::Current().Declare(key, value, SettingOrigin::UserFile, "test", problems);
        EXPECT_TRUE(problems.empty());
    }
    // What the panel that everybody asks says to the questions, in the order of the class.
    static std::string Answers() {
        const ZOLDMDlgResultPanel* first = ZOLDMDlgResultPanel::GetListResultPanel()[1];
        return std::to_string(first->IsAdvancedMode()) + std::to_string(first->FiltersCategories()) +
               std::to_string(first->KeepsProducts());
    }
};

class AdvancedHost : public ZOLDMDlgResultPanel {
public:
    int IsAdvancedMode() const override { return 1; }
};

} // namespace

TEST_F(NavigatorResultPanelTest, TheNavigatorAnswersFromItsSettingsWhileItsWindowLives) {
    EXPECT_EQ(Answers(), "011");
    Set("CONFIGURE.ADVANCED", "on");
    EXPECT_EQ(Answers(), "111");
    Set("CONFIGURE.FILTER_CATEGORIES", "off");
    EXPECT_EQ(Answers(), "101");
    Set("CONFIGURE.KEEP_PRODUCTS", "off");
    EXPECT_EQ(Answers(), "100");

    _window->Leave();
    CallbackScope::FreeGivenUp();
    _hasLeft = true;
    EXPECT_EQ(Answers(), "000") << "without a host there is still somebody to ask";
}

TEST_F(NavigatorResultPanelTest, TheHostThatCameFirstIsAskedUntilItGoes) {
    const AdvancedHost second;
    EXPECT_EQ(Answers(), "011");
    EXPECT_EQ(ZOLDMDlgResultPanel::GetListResultPanel().Size(), 3);
    _window->Leave();
    CallbackScope::FreeGivenUp();
    _hasLeft = true;
    EXPECT_EQ(Answers(), "100");
}

} // namespace trellis::test
