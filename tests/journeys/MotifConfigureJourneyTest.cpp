#include "navigator/NavigatorFixture.h"

#include "service/ZOLQRDCfgManager.h"
#include "support/ScreenGestures.h"
#include "toolkit/GraphDrawing.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ToolkitView.h"
#include "toolkit/ZOLDlgMenuPane.h"
#include "toolkit/ZOLDlgSelectorList.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>

// A user chooses options in real windows, with the mouse alone and with the keyboard alone, from the navigator into a
// conflict and out of it. What the windows show is compared with what was expected.

namespace {

using trellis::test::NavigatorFixture;

enum class By { Mouse, Keys };

// The screen is there before the windows and goes after them.
struct Screened {
    ScreenUser user;
    ScreenGestures gestures{user};
};

class MotifConfigureJourneyTest : private Screened,
                                  public NavigatorFixture,
                                  public testing::WithParamInterface<By> {
protected:
    using Options = std::vector<std::pair<const char*, std::vector<const char*>>>;

    MotifConfigureJourneyTest() {
        setenv("XDG_DATA_HOME", _folder.Path("data").c_str(), 1);
        const auto dictionary = MakeDictionary(
            Node({"BIKE Bike"})->Part(),
            {{"COLOUR", {"RED", "BLUE"}}, {"EXTRA", {"BELL", "RACK"}}, {"LAMP", {"LED", "HALOGEN"}}});
        ZOLGYRError error;
        ZOLQRDCfgManager& manager = *ZOLQRDCfgManager::CurrentCfgManager(error);
        manager.AddConfigRuleToDictionary(dictionary, "", R"(if "RED" then "LED")", ZOLDirectiveRuleType, "",
                                          error);
        manager.Save(error);
        EXPECT_EQ(error.GetCode(), 0);
    }
    ~MotifConfigureJourneyTest() override {
        if (_configure)
            Driver::CloseWindow(_configure);
    }

    // Exclusive categories, except for EXTRA.
    static ZOLIQrdConfigItem_var MakeDictionary(const ZOLDMInstance& part, const Options& content) {
        ZOLGYRError error;
        ZOLQRDCfgManager& manager = *ZOLQRDCfgManager::CurrentCfgManager(error);
        manager.SetConfigurable(part, error);
        manager.AddDictionary(part, error);
        ZOLQRDConfigurableObject object;
        manager.GetConfigurableObject(part, object, error);
        for (const auto& [name, options] : content) {
            const auto category = manager.AddCategoryToDictionary(object.GetDictionary(), name, name,
                                                                  name != std::string("EXTRA"), 0, error);
            for (const char* option : options)
                manager.AddOptionToDictionary(object.GetDictionary(), category, option, option, error);
        }
        EXPECT_EQ(error.GetCode(), 0);
        return object.GetDictionary();
    }

    bool IsByMouse() const { return GetParam() == By::Mouse; }

    // Chooses BIKE, the first of the structure, which opens it.
    void ChooseBike() {
        if (IsByMouse())
            return user.Click(gestures.PlaceOf(*_graph, _graph->GetGraph()->GetDrawing().Nodes()[0].node));
        gestures.Focus(user.NativeOf(*_graph));
        user.Press("space");
    }
    // And FRAME, which stands below it.
    void ChooseFrameToo() {
        if (IsByMouse())
            return user.Click(gestures.PlaceOf(*_graph, _graph->GetGraph()->GetDrawing().Nodes()[1].node), 1,
                              {"Control_L"});
        user.Press("Down");
        user.Press("space", {"Control_L"});
    }
    void OpenConfigure() {
        if (IsByMouse())
            gestures.ClickItems(user.NativeOf(*_bar), {"Dictionary", "ConfigureItem"});
        else
            gestures.WalkInBar(*_bar, {"Dictionary", "ConfigureItem"});
        _configure = Driver::Top();
        ASSERT_NE(_configure, _window) << "the window did not open";
        _options = static_cast<ZOLGraphViewer*>(Driver::Find(_configure, "CategoryGraph/CategoryGraph"));
    }

    struct Option {
        const char* category;
        const char* name;
    };
    static ZOLUnicodeString Line(const char* name) { return ZOLUnicodeString(name) + " (" + name + ")"; }
    void StepTo(const ZOLGraphNode* node, const char* key) {
        constexpr int MostSteps = 10;
        for (int step = 0; step < MostSteps && _options->GetFocusNode() != node; ++step)
            user.Press(key);
        EXPECT_EQ(_options->GetFocusNode(), node) << key << " does not lead there";
    }
    // Looks at an option.
    void GoTo(const Option& option) {
        const Path path = {"Options", Line(option.category), Line(option.name)};
        if (IsByMouse())
            return user.MoveTo(gestures.PlaceOf(*_options, Driver::Node(_options, path)));
        gestures.Focus(user.NativeOf(*_options));
        StepTo(Driver::Node(_options, {path[0]}), "Left");
        user.Press("Right");
        StepTo(Driver::Node(_options, {path[0], path[1]}), "Down");
        user.Press("Right");
        StepTo(Driver::Node(_options, path), "Down");
    }
    void Choose(const Option& option) { Act(option, 1, {}); }
    void Reject(const Option& option) { Act(option, 3, {"Shift_L"}); }
    void Act(const Option& option, unsigned button, const ScreenUser::Modifiers& modifiers) {
        GoTo(option);
        if (!IsByMouse())
            return user.Press("space", modifiers);
        const Path path = {"Options", Line(option.category), Line(option.name)};
        user.Click(gestures.PlaceOf(*_options, Driver::Node(_options, path)), button);
    }
    void Use(ZOLDialog* control) {
        if (IsByMouse())
            return user.Click(*control);
        gestures.Focus(user.NativeOf(*control));
        user.Press("space");
    }
    void Use(const char* control) { Use(Driver::Find(_configure, control)); }
    void Close(ZOLDialog* window) { IsByMouse() ? user.PressCloseBox(*window) : user.Press("Escape"); }

    std::string Plain(const ZOLDialog* dialog) const {
        std::string text = Driver::Describe(dialog);
        std::erase(text, '\\');
        return text;
    }
    bool Tells(const std::string& text) const { return Plain(_configure).find(text) != std::string::npos; }
    void ExpectTold(const char* text) { EXPECT_TRUE(Tells(text)) << text << "\n" << Plain(_configure); }

    // Asks what can be done, and gives up the choice that the line names.
    void Repair(const char* line) {
        user.WhenItIs([this] { return Driver::Top() != _configure; },
                      [this, line] {
                          ZOLDialog& dialog = *Driver::Top();
                          _asked = Plain(&dialog);
                          TakeLine(*Driver::Find(&dialog, "RepairList"), line);
                          if (IsByMouse())
                              user.Click(user.MiddleOf(gestures.ButtonOf(dialog, ZOLDialogButton::OK)));
                          else
                              user.Press("Return");
                      });
        Use("RepairButton");
        Driver::TakeMessages();
    }
    // Of a list in which the first line is chosen at first.
    void TakeLine(ZOLDialog& list, const ZOLUnicodeString& line) {
        const auto& lines = static_cast<ZOLDlgSelectorList&>(list);
        int place = 0;
        for (ZOLUnicodeString text; lines.GetLine(text, place) && text != line;)
            ++place;
        ASSERT_LT(place, lines.GetLineCount()) << Plain(&list);
        const int height = trellis::ToolkitView::Current()->GetTextMeasure().GetRowHeight();
        if (IsByMouse())
            return user.Click(user.PlaceIn(list, height, place * height + height / 2));
        gestures.Focus(user.NativeOf(list));
        for (int step = 0; step < place; ++step)
            user.Press("Down");
    }

    // In the menu that the button opens, the products stand below all else.
    void ChangeToSecondProduct() {
        Use("ChangeProduct");
        ASSERT_TRUE(ZOLDlgMenuPane::GetOpenMenu());
        if (!IsByMouse()) {
            for (int item = 0; item < 2; ++item)
                user.Press("Down");
            return user.Press("Return");
        }
        Widget first = XtNameToWidget(gestures.RootOf(*_configure), "*ProductItem");
        Dimension height = 0;
        XtVaGetValues(first, XtNheight, &height, nullptr);
        const ScreenUser::Place place = user.MiddleOf(first);
        user.PauseBetweenClicks();
        user.Click({place.x, place.y + height});
    }

    ZOLDialog* _configure = nullptr;
    ZOLGraphViewer* _options = nullptr;
    std::string _asked; // what the question for a repair said
    const Option red = {"COLOUR", "RED"};
    const Option rack = {"EXTRA", "RACK"};
    const Option led = {"LAMP", "LED"};
    const Option halogen = {"LAMP", "HALOGEN"};
};

TEST_P(MotifConfigureJourneyTest, OptionsAreChosenIntoAConflictAndARepairLeadsOut) {
    ChooseBike();
    OpenConfigure();
    ExpectTold("categories still open: 3");
    Choose(red);
    ExpectTold("RED (COLOUR) is chosen by you");
    GoTo(led);
    ExpectTold("LED (LAMP) is chosen by the rules");
    ExpectTold(R"(if "RED" then "LED")");
    Reject(rack);
    ExpectTold("RACK (EXTRA) is rejected by you");
    Choose(halogen);
    ExpectTold("cannot stand together");

    Repair("the choice of RED (COLOUR)");
    EXPECT_NE(_asked.find(R"(if "RED" then "LED")"), std::string::npos) << _asked;
    EXPECT_FALSE(Tells("cannot stand together")) << Plain(_configure);
    ExpectTold("HALOGEN (LAMP) is chosen by you");
    GoTo(red);
    ExpectTold("RED (COLOUR) is rejected by the rules");

    Use("Undo");
    ExpectTold("cannot stand together");
    Use("Undo");
    EXPECT_FALSE(Tells("cannot stand together")) << Plain(_configure);
    GoTo(halogen);
    ExpectTold("HALOGEN (LAMP) is rejected by the rules");
}

TEST_P(MotifConfigureJourneyTest, LegendAndRulesOptionsOpenAndGo) {
    ChooseBike();
    OpenConfigure();
    Choose(red);
    Use("ColorLegend");
    ZOLDialog* legend = Driver::Top();
    ASSERT_NE(legend, _configure);
    EXPECT_NE(Plain(legend).find("Selected by rules"), std::string::npos) << Plain(legend);
    Close(legend);
    EXPECT_EQ(Driver::Top(), _configure);

    GoTo(led);
    ExpectTold("LED (LAMP) is chosen by the rules");
    Use("RulesOptions");
    ZOLDialog* rules = Driver::Top();
    ASSERT_NE(rules, _configure);
    Use(Driver::Find(rules, "DirectiveRulesCheck"));
    ExpectTold("LED (LAMP) is chosen by the rules");
    Close(rules);
    ASSERT_EQ(Driver::Top(), _configure);
    ExpectTold("LED (LAMP) is open");
    Use("Undo");
    ExpectTold("chosen by you: 0");
}

TEST_P(MotifConfigureJourneyTest, TheProductIsChangedBelowTheGraph) {
    ChooseBike();
    const auto* frame =
        static_cast<trellis::NavigatorNode*>(_graph->GetGraph()->GetDrawing().Nodes()[1].node);
    MakeDictionary(frame->Part(), {{"COLOUR", {"RED", "GREEN"}}});
    ChooseFrameToo();
    OpenConfigure();
    Choose(red);
    ChangeToSecondProduct();
    ExpectTold("FRAME Frame   |   categories still open: 0   |   chosen by you: 1");
    GoTo({"COLOUR", "GREEN"});
    ExpectTold("GREEN (COLOUR) is rejected by the rules");
}

INSTANTIATE_TEST_SUITE_P(Everybody, MotifConfigureJourneyTest, testing::Values(By::Mouse, By::Keys),
                         [](const testing::TestParamInfo<By>& info) {
                             return info.param == By::Mouse ? "ByMouse" : "ByKeys";
                         });

} // namespace
