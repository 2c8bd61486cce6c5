#include "graph/ZOLDlgCategoryGraph.h"
#include "panels/ZOLDMDlgResultPanel.h"
#include "service/ServiceFixture.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgToggleButton.h"
#include "toolkit/ZOLDlgWindow.h"
#include "toolkit/ZOLUserDriver.h"
#include "values/Settings.h"

#include <cstdlib>

namespace trellis::test {

namespace {

// A host that says how panels start.
struct Host : ZOLDMDlgResultPanel {
    int isAdvanced = 0;
    int filters = 1;
    int IsAdvancedMode() const override { return isAdvanced; }
    int FiltersCategories() const override { return filters; }
};

// The owner of a panel, which reads the selection whenever it is told.
class Owner : public ZOLDlgWindow {
    ZOL_META_OBJECT(Owner, ZOLDlgWindow)
public:
    Owner() : ZOLDlgWindow(nullptr, "Owner") {}
    void Listen(ZOLDlgCategoryGraph* panel) {
        AddAnalyseNotificationCB(panel, panel->GetSelectOptionNotification(), ZOL_CALLBACK(&Owner::ToldCB));
        AddAnalyseNotificationCB(panel->GetViewer(), panel->GetSelectionShownNotification(),
                                 ZOL_CALLBACK(&Owner::ShownCB));
    }
    int told = 0;
    int shown = 0;

private:
    void ToldCB(ZOLCommand*, ZOLNotification*, void*) { ++told; }
    void ShownCB(ZOLCommand*, ZOLNotification*, void*) { ++shown; }
};

} // namespace

class CategoryGraphPanel : public ServiceFixture {
protected:
    using Driver = ZOLUserDriver;
    static constexpr int Everything = 3;

    CategoryGraphPanel() {
        setenv("XDG_DATA_HOME", folder.Path("data").c_str(), 1);
        for (const char* name : {"RED", "BLUE"})
            Option(colour, name);
        for (const char* name : {"LED", "HALOGEN"})
            Option(lamp, name);
        for (const char* name : {"BELL", "RACK"})
            Option(extra, name);
    }
    ~CategoryGraphPanel() override {
        Close();
        Settings::Current() = Settings();
    }

    void Close() {
        const CallbackScope scope;
        if (owner)
            owner->RequestDelayedDestruction();
        owner = nullptr;
    }
    void Show(int style = Everything) {
        Close();
        const CallbackScope scope;
        owner = new Owner;
        panel = new ZOLDlgCategoryGraph(owner, "Panel", "Options", style, {Part("BIKE")}, -1, 700, 400, 0);
        owner->Listen(panel);
        owner->SetVisibility(ZOLShown);
    }
    void Declare(const char* key, const char* value) {
        std::vector<ZOLGYRError> problems;
        Settings::Current().Declare(key, value, SettingOrigin::Option, "test", problems);
    }
    void Rule(const char* text, ZOLConfigRuleType type = ZOLDirectiveRuleType) {
        Manager().AddConfigRuleToDictionary(dictionary, "", text, type, "", error);
    }
    ZOLDialog* Find(const char* path) { return Driver::Find(owner, path); }
    void Press(const char* button) { Driver::Press(Find(button)); }
    bool Sees(const std::string& text) { return Driver::Describe(owner).find(text) != std::string::npos; }
    ZOLGraphNode* Node(const char* category, const char* option) {
        const auto text = [](const char* name) { return ZOLUnicodeString(name) + " (" + name + ")"; };
        return Driver::Node(panel->GetViewer(), {"Options", text(category), text(option)});
    }
    void Click(const char* category, const char* option) {
        Driver::Click(panel->GetViewer(), Node(category, option));
    }
    // As in the tests of the viewer: + and - by the user, * and / by the rules.
    std::string Selection() {
        std::string text;
        for (const ZOLParameter* parameter : panel->GetParameters()) {
            const bool byRules = parameter->GetParameterSource() == ZOLParameter::SourceRule;
            text += (byRules ? "*/" : "+-")[parameter->IsNot()] + parameter->GetOption().Bytes() + " ";
        }
        return text;
    }
    std::string Status() {
        std::string text;
        for (const int number : panel->GetListOfStatus())
            text += std::to_string(number) + " ";
        return text;
    }

    Host host;
    ZOLIQrdConfigItem_var dictionary = Dictionary("BIKE");
    ZOLIQrdCategory_var colour = Category(dictionary, "COLOUR"); // exclusive, as the next
    ZOLIQrdCategory_var lamp = Category(dictionary, "LAMP");
    ZOLIQrdCategory_var extra = Manager().AddCategoryToDictionary(dictionary, "EXTRA", "EXTRA", 0, 0, error);
    Owner* owner = nullptr;
    ZOLDlgCategoryGraph* panel = nullptr;
};

TEST_F(CategoryGraphPanel, StepsAreTakenBackAndTheOwnerIsTold) {
    Rule(R"(if "RED" then "LED")");
    Show();
    EXPECT_EQ(panel->CountOpenCategories(), 3);
    Click("COLOUR", "RED");
    EXPECT_EQ(owner->told, 1);
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN ");
    EXPECT_EQ(panel->CountOpenCategories(), 1);
    Press("Undo");
    EXPECT_EQ(Selection(), "");
    Press("Redo");
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN ");
    Press("ClearRuleDefined");
    EXPECT_EQ(Selection(), "-BLUE +RED ");
    Press("ClearAll");
    EXPECT_EQ(Selection(), "");
    Press("ResetAll");
    Press("ResetDefault");
    EXPECT_EQ(owner->told, 7);
    EXPECT_GE(owner->shown, 7);
    EXPECT_FALSE(panel->GetOption(Node("LAMP", "LED")->firstParent()));
    EXPECT_EQ(panel->GetOption(Node("LAMP", "LED"))->GetParameterString(), R"("LAMP"."LED")");
}

TEST_F(CategoryGraphPanel, RulesGoOnAndOffAndCheckOnly) {
    Rule(R"(if "RED" then "LED")");
    Rule(R"("RED" and "BELL")", ZOLPackageRuleType);
    Show();
    EXPECT_EQ(Status(), "2 3 5 7 9 11 ");
    Click("COLOUR", "RED");
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN *BELL ");
    EXPECT_EQ(Find("ApplyRules")->GetSensitivity(), ZOLGreyed);
    Driver::Choose(Find("RulesCombo"), "Rules off");
    EXPECT_EQ(Find("ApplyRules")->GetSensitivity(), ZOLActive);
    Press("ClearRuleDefined");
    EXPECT_EQ(Selection(), "-BLUE +RED ");
    Press("ApplyRules");
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN *BELL ");
    Driver::Choose(Find("RulesCombo"), "Rules on");
    Driver::Toggle(Find("CheckConflictMode"), true);
    EXPECT_EQ(Selection(), "-BLUE +RED ") << "what the rules chose goes";
    Driver::Toggle(Find("HelpSelectMode"), true);

    Press("RulesOptions");
    Driver::Toggle(Find("RulesOptionsPanel/PackagesCheck"), false);
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN *BELL ") << "not before the window closes";
    Driver::Ok(Find("RulesOptionsPanel"));
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN ");
    panel->PackagesOn();
    Press("RulesOptions");
    EXPECT_EQ(static_cast<ZOLDlgToggleButton*>(Find("RulesOptionsPanel/PackagesCheck"))->GetState(), ZOLOn);
    Driver::CloseWindow(Find("RulesOptionsPanel"));
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN *BELL ");
}

TEST_F(CategoryGraphPanel, TheStatusTellsEverySwitch) {
    Rule(R"(if "RED" then "LED")");
    host.isAdvanced = 1;
    Show();
    EXPECT_EQ(Status(), "1 3 5 7 9 11 ");
    panel->SimpleConfigMode();
    panel->RulesForCheck();
    panel->RulesOff();
    panel->DirectiveRulesOff();
    panel->PackagesOff();
    panel->MatricesOff();
    EXPECT_EQ(Status(), "2 4 6 8 10 12 ");
    EXPECT_TRUE(Sees("Simple"));
    EXPECT_TRUE(Sees("Rules off"));
}

TEST_F(CategoryGraphPanel, AnotherModeBeginsAnewWithTheDefaults) {
    ZOLListValZOLIQrdEffectivity_var options;
    extra->GetOptions(options);
    extra->SetDefaultOptions(options, error);
    Show();
    Click("COLOUR", "RED");
    Press("ColorLegend");
    EXPECT_NE(Driver::Describe(Find("ColorLegendPanel")).find("Nothing selected"), std::string::npos);
    Driver::Menu(Find("OptionsFrame"), "AdvancedConfigMode");
    EXPECT_EQ(Selection(), "+BELL +RACK ");
    EXPECT_TRUE(panel->IsAdvancedConfigMode());
    EXPECT_THROW(Find("ColorLegendPanel"), Driver::Refused) << "its texts are those of the other mode";
    Press("ColorLegend");
    EXPECT_NE(Driver::Describe(Find("ColorLegendPanel")).find("Selected or undefined"), std::string::npos);
    Driver::Ok(Find("ColorLegendPanel"));
    panel->LockedConfigMode();
    EXPECT_THROW(Driver::Menu(Find("OptionsFrame"), "SimpleConfigMode"), Driver::Refused);
    panel->UnlockedConfigMode();
    Driver::Menu(Find("OptionsFrame"), "SimpleConfigMode");
    EXPECT_FALSE(panel->IsAdvancedConfigMode());
    EXPECT_EQ(Selection(), "+BELL +RACK ") << "whatever was ignored before";
}

TEST_F(CategoryGraphPanel, ADictionaryWithoutRulesSaysSo) {
    Show();
    EXPECT_TRUE(Sees("There are no rules."));
    EXPECT_FALSE(Sees("Rules on"));
    Rule(R"(if "RED" then "LED")");
    Show();
    EXPECT_FALSE(Sees("There are no rules."));
    EXPECT_TRUE(Sees("Rules on"));
    panel->DisableRules();
    panel->DisableRules();
    panel->EnableRules();
    EXPECT_TRUE(Sees("Rules on"));
    panel->LockedRulesMode();
    EXPECT_EQ(Find("HelpSelectMode")->GetSensitivity(), ZOLGreyed);
    panel->UnlockedRulesMode();
    EXPECT_EQ(Find("CheckConflictMode")->GetSensitivity(), ZOLActive);
    panel->HideConfigMode();
    EXPECT_FALSE(Sees("Configuration mode"));
}

TEST_F(CategoryGraphPanel, OptionsAreChosenByTypingTheirNames) {
    Show();
    auto* field = static_cast<ZOLDlgEditor*>(Find("RapidSelectField"));
    Driver::Type(field, "RE & be");
    EXPECT_EQ(Node("COLOUR", "RED")->getColor(), 112) << "stands out while one types";
    Driver::Press(Find("RapidSelect"));
    EXPECT_EQ(Selection(), "+RED /BLUE ") << "be begins no name, as case counts";
    EXPECT_EQ(field->GetText(), "");
    EXPECT_NE(Node("COLOUR", "RED")->getColor(), 112);
    Driver::Type(field, "nothing of this");
    Driver::Enter(field);
    EXPECT_EQ(field->GetText(), "nothing of this") << "stays for a second look";
    Press("Undo");
    EXPECT_EQ(Selection(), "") << "one step";

    Declare("ZOLWVTA.QRD.OPT_GRAPH.RAPID_SELECT_MNGT", "EXACT");
    Show();
    field = static_cast<ZOLDlgEditor*>(Find("RapidSelectField"));
    Driver::Type(field, "RED and LE and BELL");
    Driver::Enter(field);
    EXPECT_EQ(Selection(), "") << "one unknown name among three";
    Driver::Type(field, "RED and LED");
    Driver::Enter(field);
    EXPECT_EQ(panel->GetSelectedOptionName().Size(), 2);

    Declare("ZOLWVTA.QRD.OPT_GRAPH.RAPID_SELECT_MNGT", "");
    Show();
    EXPECT_THROW(Find("RapidSelectField"), Driver::Refused);
}

TEST_F(CategoryGraphPanel, CategoriesTakenOutStayOutInTheNextPanel) {
    Show();
    Click("LAMP", "LED");
    Press("OptSearch");
    Press("Categories");
    Driver::Cancel(Find("CheckListPanel"));
    Press("Categories");
    Driver::Toggle(Find("CheckListPanel/EltCheck[3]"), false);
    Driver::Ok(Find("CheckListPanel"));
    EXPECT_EQ(Node("LAMP", "LED"), nullptr);
    EXPECT_NE(Node("COLOUR", "RED"), nullptr);
    EXPECT_EQ(panel->GetSelectedOptionName().Size(), 1) << "out of sight, not out of the selection";
    EXPECT_THROW(Find("SearchOptPanel"), Driver::Refused) << "its list was that of all categories";
    Show();
    EXPECT_EQ(Node("LAMP", "LED"), nullptr);
    host.filters = 0;
    Show();
    EXPECT_NE(Node("LAMP", "LED"), nullptr) << "only where the host asks for it";
}

TEST_F(CategoryGraphPanel, SearchStepsThroughWhatIsFound) {
    Show();
    Press("OptSearch");
    ZOLDialog* search = Find("SearchOptPanel");
    ZOLDialog* list = Driver::Find(search, "QRDOptionList");
    Driver::Ok(search);
    Driver::SelectLines(list, {"LED", "RACK"});
    const TextMeasure measure;
    std::vector<int> heights; // of the viewpoint after each press
    for (int press = 0; press < 3; ++press) {
        Driver::Ok(search);
        heights.push_back(panel->GetViewer()->GetViewPoint(measure).y);
    }
    EXPECT_NE(heights[0], heights[1]) << "the next one stands in the middle";
    EXPECT_EQ(heights[0], heights[2]) << "and behind the last the first";
    EXPECT_EQ(Node("LAMP", "LED")->getColor(), 112);
    EXPECT_EQ(Node("EXTRA", "RACK")->getColor(), 112);
    Driver::Apply(search);
    EXPECT_EQ(panel->GetSelectedOptionName().Size(), 2);
    Driver::Cancel(search);
    EXPECT_NE(Node("LAMP", "LED")->getColor(), 112);
    Press("OptSearch");
    EXPECT_EQ(Find("SearchOptPanel"), search) << "the same window again";
}

TEST_F(CategoryGraphPanel, RejectedOptionsHideWhereTheSiteOffersIt) {
    Declare("ZOLWVTA.QRD.OPT_GRAPH.HIDE_REJECTED_MNGT", "0");
    Rule(R"(if "RED" then "LED")");
    Show();
    Click("COLOUR", "RED");
    Driver::Toggle(Find("HideRuleRejected"), true);
    EXPECT_EQ(Node("LAMP", "HALOGEN"), nullptr);
    EXPECT_NE(Node("COLOUR", "BLUE"), nullptr);
    Driver::Toggle(Find("HideUserRejected"), true);
    EXPECT_EQ(Node("COLOUR", "BLUE"), nullptr);
    Driver::Toggle(Find("HideRuleRejected"), false);
    EXPECT_NE(Node("LAMP", "HALOGEN"), nullptr);
}

TEST_F(CategoryGraphPanel, WithoutControlsEveryOperationStillWorks) {
    Rule(R"(if "RED" then "LED")");
    Show(0);
    EXPECT_THROW(Find("OptionsFrame"), Driver::Refused);
    panel->RulesForCheck();
    panel->RulesForSelect();
    panel->RulesOff();
    panel->RulesOn();
    panel->DirectiveRulesOff();
    panel->DirectiveRulesOn();
    panel->AdvancedConfigMode();
    panel->SimpleConfigMode();
    panel->DisableRules();
    panel->EnableRules();
    panel->HideConfigMode();
    panel->LockedConfigMode();
    panel->UnlockedConfigMode();
    panel->LockedRulesMode();
    panel->UnlockedRulesMode();
    Click("COLOUR", "RED");
    EXPECT_EQ(Selection(), "-BLUE +RED *LED /HALOGEN ");
}

TEST_F(CategoryGraphPanel, AProductThatIsGoneLeavesAnEmptyGraph) {
    Show();
    Click("COLOUR", "RED");
    ZOLListValZOLDMInstance products;
    products.Append(Part("FRAME")); // not configurable
    {
        const CallbackScope scope;
        panel->SetProduct(products);
    }
    EXPECT_EQ(panel->GetDictionaries().Size(), 0);
    EXPECT_EQ(Node("COLOUR", "RED"), nullptr);
    Press("Categories");
    Driver::Ok(Find("CheckListPanel"));
    Press("OptSearch");
    Press("Undo");
}

} // namespace trellis::test
