#include "navigator/NavigatorFixture.h"

#include "service/ZOLQRDCfgManager.h"
#include "support/Program.h"
#include "support/ScreenGestures.h"
#include "toolkit/ZOLDlgMenuPane.h"

// A user makes a part configurable and takes that away again in real windows, with the mouse alone and with the
// keyboard alone. What the windows show is compared with what the file holds.

namespace {

using trellis::test::NavigatorFixture;
using trellis::test::Program;

enum class By { Mouse, Keys };

// The screen is there before the windows and goes after them.
struct Screened {
    ScreenUser user;
    ScreenGestures gestures{user};
};

class MotifJourneyTest : private Screened, public NavigatorFixture, public testing::WithParamInterface<By> {
protected:
    bool IsByMouse() const { return GetParam() == By::Mouse; }

    // A part that stands in that line of the outline, the first being 0.
    struct Line {
        Path path;
        int number = 0;
    };

    void WalkTo(const Line& line) {
        constexpr int Lines = 4; // of the open outline
        gestures.Focus(user.NativeOf(*_graph));
        for (int step = 0; step < Lines; ++step)
            user.Press("Up");
        for (int step = 0; step < line.number; ++step)
            user.Press("Down");
    }
    // Opens its branch, too.
    void Pick(const Line& line) {
        if (IsByMouse())
            return user.Click(gestures.PlaceOf(*_graph, Node(line.path)));
        WalkTo(line);
        user.Press("space");
    }
    // Chooses an operation in the menu of a part.
    void Operate(const ScreenGestures::Names& items, const Line& line) {
        if (IsByMouse()) {
            user.Click(gestures.PlaceOf(*_graph, Node(line.path)), 3);
            EXPECT_TRUE(ZOLDlgMenuPane::GetOpenMenu()) << "the menu did not open";
            return gestures.ClickItems(gestures.RootOf(*_window), items);
        }
        WalkTo(line);
        user.Press("Menu");
        EXPECT_TRUE(ZOLDlgMenuPane::GetOpenMenu()) << "the menu did not open";
        gestures.PressLetters(gestures.RootOf(*_window), items);
    }
    // Chooses an operation in the menu bar.
    void OperateBar(const ScreenGestures::Names& items) {
        if (IsByMouse())
            gestures.ClickItems(user.NativeOf(*_bar), items);
        else
            gestures.WalkInBar(*_bar, items);
    }
    // What answers the box that comes up next; by keyboard OK is Return.
    void AnswerNext(ZOLDialogButton button) {
        user.WhenItIs([this] { return Driver::Top() != _window; },
                      [this, button] {
                          ZOLDialog& box = *Driver::Top();
                          _boxes += Driver::Describe(&box);
                          if (IsByMouse())
                              user.Click(user.MiddleOf(gestures.ButtonOf(box, button)));
                          else if (button == ZOLDialogButton::OK)
                              user.Press("Return");
                          else
                              gestures.WalkToButton(box, button);
                      });
    }
    void GiveEffectivity() {
        ZOLGYRError error;
        ZOLQRDCfgManager& manager = *ZOLQRDCfgManager::CurrentCfgManager(error);
        ZOLQRDConfigurableObject bike;
        manager.GetConfigurableObject(Node({"BIKE Bike [configurable]"})->Part(), bike, error);
        bike.GetConfigItem()->AddEffectivity({"option_range", "LHD", 5, 0, {}, {}}, error);
        manager.Save(error);
        ASSERT_EQ(error.GetCode(), 0);
    }
    // Other people join, and one of them opens the window; to that one the right "Unset" is refused.
    void LetBoWork() {
        const std::vector<std::vector<std::string>> jobs = {
            {"role", "helper"},
            {"person", "bo", "--role", "helper", "--privilege", "1"},
            {"right", "refuse", "Unset"}};
        for (std::vector<std::string> job : jobs) {
            job.insert(job.begin(), {"--database", _folder.Path("a.db"), "db"});
            const auto result = Program().Run(job);
            ASSERT_EQ(result.exitCode, 0) << result.messages;
        }
        _folder.Write("site/trellis.conf", "USER = bo\n");
        setenv("TRELLIS_SITE_FOLDER", _folder.Path("site").c_str(), 1);
        _window->RequestDelayedDestruction();
        trellis::CallbackScope::FreeGivenUp();
        ASSERT_TRUE(_session.LoadSettings());
        Open();
    }

    const ScreenGestures::Names set = {"Part", "SetConfigurable"};
    const ScreenGestures::Names unset = {"Part", "UnSetConfigurable"};
    const Line plain = {{"BIKE Bike"}};
    const Line configurable = {{"BIKE Bike [configurable]"}};
    std::string _boxes; // what the boxes said
};

TEST_P(MotifJourneyTest, APartBecomesConfigurableAndStopsBeingSoOnlyAfterAYes) {
    Operate(set, plain);
    EXPECT_NE(Node({"BIKE Bike [configurable]"}), nullptr) << Driver::Describe(_window);
    EXPECT_EQ(Stored("configurable_part"), 1);
    GiveEffectivity();

    AnswerNext(ZOLDialogButton::Cancel);
    Operate(unset, configurable);
    EXPECT_NE(Node({"BIKE Bike [configurable]"}), nullptr) << Driver::Describe(_window);
    EXPECT_EQ(Stored("configurable_part"), 1);
    EXPECT_EQ(Stored("effectivity"), 1);

    AnswerNext(ZOLDialogButton::OK);
    Operate(unset, configurable);
    EXPECT_NE(Node({"BIKE Bike"}), nullptr) << Driver::Describe(_window);
    EXPECT_EQ(Stored("configurable_part"), 0);
    EXPECT_EQ(Stored("effectivity"), 0);
    EXPECT_EQ(TakeCodes(), (std::vector<int>{20296, 20296}));
    EXPECT_NE(_boxes.find("no longer configurable"), std::string::npos) << _boxes;
}

TEST_P(MotifJourneyTest, WhoHasNotTheRightIsToldSoAndChangesNothing) {
    Operate(set, plain);
    LetBoWork();
    EXPECT_TRUE(Sees("bo")) << Driver::Describe(_window);

    AnswerNext(ZOLDialogButton::OK);
    Operate(unset, configurable);
    EXPECT_EQ(TakeCodes(), std::vector<int>{60511});
    EXPECT_NE(_boxes.find("is refused"), std::string::npos) << _boxes;
    EXPECT_NE(Node({"BIKE Bike [configurable]"}), nullptr) << Driver::Describe(_window);
    EXPECT_EQ(Stored("configurable_part"), 1);
}

TEST_P(MotifJourneyTest, ALinkIsCutAndPastedElsewhereAndTakenBackByDiscard) {
    Pick(plain);
    Pick({{"BIKE Bike", "WHEEL Wheel (front)"}, 2});
    OperateBar({"EditMenu", "CutItem"});
    Pick({{"BIKE Bike", "FRAME Frame"}, 1});
    OperateBar({"EditMenu", "PasteItem"});
    EXPECT_EQ(Below({"BIKE Bike"}).back(), "− WHEEL Wheel (front) [moved to FRAME Frame]");
    EXPECT_TRUE(Sees("link changes to commit: 1")) << Driver::Describe(_window);

    AnswerNext(ZOLDialogButton::OK);
    OperateBar({"FileMenu", "DiscardItem"});
    EXPECT_EQ(TakeCodes(), std::vector<int>{0});
    EXPECT_EQ(Below({"BIKE Bike"}), (std::vector<std::string>{"FRAME Frame", "WHEEL Wheel (front)"}));
    EXPECT_TRUE(Sees("link changes to commit: 0")) << Driver::Describe(_window);
    EXPECT_EQ(Stored("link"), 3);
}

INSTANTIATE_TEST_SUITE_P(Everybody, MotifJourneyTest, testing::Values(By::Mouse, By::Keys),
                         [](const testing::TestParamInfo<By>& info) {
                             return info.param == By::Mouse ? "ByMouse" : "ByKeys";
                         });

} // namespace
