#include "configure/ConfigureFixture.h"

#include "support/Program.h"
#include "values/Settings.h"

#include <nlohmann/json.hpp>

#include <algorithm>

// Whole ways of a user who chooses options: through the window, into the file in which the selection is kept, and from
// there to the program, which says the same of every option as the window does.

namespace trellis::test {

class ChoosingJourneyTest : public ConfigureFixture {
protected:
    ~ChoosingJourneyTest() override { Settings::Current() = Settings(); }

    using States = std::map<std::string, std::string>; // by option

    void Setting(const char* key, const char* value) {
        std::vector<ZOLGYRError> problems;
        Settings::Current().Declare(key, value, SettingOrigin::Option, "test", problems);
        ASSERT_TRUE(problems.empty());
    }
    void SetDefault(const ZOLIQrdCategory_var& category, int option) {
        ZOLListValZOLIQrdEffectivity_var options;
        category->GetOptions(options);
        category->SetDefaultOptions({options[option]}, error);
        ASSERT_EQ(error.GetCode(), 0) << Message();
    }
    void ChangeMode(const char* item) { Driver::Menu(Driver::Find(window, "OptionsFrame"), item); }
    void ChooseOfCategory(const char* category, const char* item) {
        Driver::ContextClick(
            viewer, Driver::Node(viewer, {"Options", ZOLUnicodeString(category) + " (" + category + ")"}));
        Driver::Menu(viewer, item);
    }
    void ChangeProduct(const char* part) {
        ZOLDialog* frame = Driver::Find(window, "ProdContextManager");
        int place = 0;
        for (const Driver::MenuLine& line : Driver::OpenMenu(frame)) {
            place += line.name == "ProductItem";
            if (line.name == "ProductItem" && line.text == part)
                return Driver::Menu(frame, "ProductItem[" + std::to_string(place) + "]");
        }
        FAIL() << "not offered: " << part;
    }
    bool IsInConflict() { return Sees("cannot stand together"); }

    // What the window says of each option that one can point at; nothing of open ones.
    States InWindow() {
        States states;
        for (const char* category : {"COLOUR", "LAMP", "EXTRA"})
            for (const char* option : {"RED", "BLUE", "LED", "HALOGEN", "BELL", "RACK", "GREEN"})
                if (ZOLGraphNode* node = Node(category, option)) {
                    Driver::PointAt(viewer, node);
                    const std::string text = Plain(Driver::Describe(Driver::Find(window, "WhyEd")));
                    for (const char* state : {"chosen by you", "rejected by you", "chosen by the rules",
                                              "rejected by the rules", "ignored with its whole category"})
                        if (text.find(option + std::string(" (") + category + ") is " + state) !=
                                std::string::npos ||
                            text.find(option + std::string(" is ") + state) != std::string::npos)
                            states[option] = state;
                }
        return states;
    }
    std::string File() const { return folder.Path("selection.json"); }
    void Keep() {
        std::filesystem::remove(File());
        GiveFile("SaveSelection", File());
        Menu("SelectionMenu/SaveAsItem");
        Driver::WhenAsked({});
        TakeMessage();
    }
    void OpenKept() {
        GiveFile("OpenSelection", File());
        Menu("SelectionMenu/OpenItem");
        Driver::WhenAsked({});
        EXPECT_EQ(TakeMessage(), "\n") << "nothing but the question for the file";
    }
    // Keeps the selection and gives the file to the program, which reads the database anew; what that says.
    nlohmann::json AskProgram(const char* product = "BIKE") {
        Keep();
        EXPECT_EQ(Save(), 0);
        const ProgramResult result = Program().Run(
            {"--database", path, "configure", "--product", product, "--selection", File(), "--json"});
        EXPECT_EQ(result.messages, "");
        return nlohmann::json::parse(result.output, nullptr, false);
    }
    static States InProgram(const nlohmann::json& answer) {
        States states;
        for (const auto& [key, word] :
             {std::pair("chosen", "chosen by you"), std::pair("rejected", "rejected by you"),
              std::pair("follows", "chosen by the rules"), std::pair("excluded", "rejected by the rules")})
            if (answer.contains(key))
                for (const nlohmann::json& option : answer[key])
                    states[option["option"]] = word;
        return states;
    }
    // The same in the window and in the program, and that.
    void ExpectBoth(const States& expected, const char* product = "BIKE") {
        EXPECT_EQ(InWindow(), expected);
        const nlohmann::json answer = AskProgram(product);
        EXPECT_EQ(InProgram(answer), expected) << answer;
        EXPECT_TRUE(answer["conflict"].is_null()) << answer;
        EXPECT_FALSE(IsInConflict());
    }
    void ExpectConflictInBoth(const std::vector<std::string>& choices) {
        EXPECT_TRUE(IsInConflict());
        std::vector<std::string> told;
        const nlohmann::json answer = AskProgram();
        for (const nlohmann::json& choice : answer["conflict"]["choices"])
            told.push_back(choice["option"]);
        std::ranges::sort(told);
        EXPECT_EQ(told, choices) << answer;
    }

    const char* const ByYou = "chosen by you";
    const char* const NotByYou = "rejected by you";
    const char* const ByRules = "chosen by the rules";
    const char* const NotByRules = "rejected by the rules";
    const char* const Ignored = "ignored with its whole category";
};

TEST_F(ChoosingJourneyTest, InSimpleModeAClickMovesTheChoiceIntoAConflictAndUndoLeadsBack) {
    Rule(R"(if "RED" then "LED")");
    Show();
    ExpectBoth({});
    Click("COLOUR", "BLUE");
    ExpectBoth({{"BLUE", ByYou}, {"RED", NotByYou}});
    Click("LAMP", "HALOGEN");
    const States before = {{"BLUE", ByYou}, {"RED", NotByYou}, {"HALOGEN", ByYou}, {"LED", NotByYou}};
    ExpectBoth(before);
    Click("COLOUR", "RED");
    ExpectConflictInBoth({"HALOGEN", "RED"});
    Press("Undo");
    ExpectBoth(before);
    Press("Undo");
    Press("Undo");
    ExpectBoth({});
    Press("Undo");
    ExpectBoth({});
    for (int step = 0; step < 3; ++step)
        Press("Redo");
    ExpectConflictInBoth({"HALOGEN", "RED"});
    Click("LAMP", "LED");
    ExpectBoth({{"RED", ByYou}, {"BLUE", NotByYou}, {"LED", ByYou}, {"HALOGEN", NotByYou}});
}

TEST_F(ChoosingJourneyTest, InAdvancedModeAChoiceIsFirstTakenAwayAndRulesAreNotClickedAgainst) {
    Rule(R"(if "RED" then "LED")");
    Show();
    ChangeMode("AdvancedConfigMode");
    Click("COLOUR", "RED");
    const States red = {{"RED", ByYou},          {"BLUE", NotByYou}, {"LED", ByRules},
                        {"HALOGEN", NotByRules}, {"BELL", Ignored},  {"RACK", Ignored}};
    EXPECT_EQ(InWindow(), red);
    Click("COLOUR", "BLUE");
    EXPECT_EQ(InWindow(), (States{{"BELL", Ignored}, {"RACK", Ignored}})) << "the first click takes away";
    Click("COLOUR", "BLUE");
    EXPECT_EQ(InProgram(AskProgram()), (States{{"BLUE", ByYou}, {"RED", NotByYou}}));
    Press("Undo");
    Press("Undo");
    EXPECT_EQ(InWindow(), red);
    Click("LAMP", "HALOGEN");
    EXPECT_EQ(InWindow(), red) << "what the rules reject is not chosen by a click here";

    Driver::Choose(Driver::Find(window, "RulesCombo"), "Rules off");
    Press("ClearRuleDefined");
    Click("LAMP", "HALOGEN");
    EXPECT_FALSE(IsInConflict());
    Driver::Choose(Driver::Find(window, "RulesCombo"), "Rules on");
    ExpectConflictInBoth({"HALOGEN", "RED"});
    Press("Undo");
    EXPECT_EQ(InWindow(), red);
}

TEST_F(ChoosingJourneyTest, WhileRulesAreOnlyCheckedTheyDecideNothing) {
    Rule(R"(if "RED" then "LED")");
    Show();
    Driver::Toggle(Driver::Find(window, "CheckConflictMode"), true);
    Click("COLOUR", "RED");
    EXPECT_EQ(InWindow(), (States{{"RED", ByYou}, {"BLUE", NotByYou}}));
    Click("LAMP", "HALOGEN");
    ExpectConflictInBoth({"HALOGEN", "RED"});
    Press("Undo");
    EXPECT_FALSE(IsInConflict());
    Driver::Toggle(Driver::Find(window, "HelpSelectMode"), true);
    ExpectBoth({{"RED", ByYou}, {"BLUE", NotByYou}, {"LED", ByRules}, {"HALOGEN", NotByRules}});
}

TEST_F(ChoosingJourneyTest, DefaultsAreChosenAtFirstAndAgainWhenTheyAreAskedFor) {
    SetDefault(lamp, 1);
    SetDefault(extra, 2);
    Rule(R"(if "LED" then "BELL")");
    Show();
    const States defaults = {{"LED", ByYou}, {"HALOGEN", NotByYou}, {"RACK", ByYou}, {"BELL", ByRules}};
    ExpectBoth(defaults);
    Press("ClearAll");
    ExpectBoth({});
    Click("LAMP", "HALOGEN");
    ExpectBoth({{"HALOGEN", ByYou}, {"LED", NotByYou}});
    Press("ResetDefault");
    ExpectBoth(defaults);
    Press("ClearAll");
    Press("ResetAll");
    ExpectBoth(defaults);
}

TEST_F(ChoosingJourneyTest, IgnoredCategoriesAreKeptAndComeBackWithTheSelection) {
    Show();
    ChangeMode("AdvancedConfigMode");
    ChooseOfCategory("EXTRA", "ConsiderAllItem");
    ChooseOfCategory("EXTRA", "SelectAllItem");
    const States chosen = {{"BELL", ByYou},   {"RACK", ByYou},  {"RED", Ignored},
                           {"BLUE", Ignored}, {"LED", Ignored}, {"HALOGEN", Ignored}};
    EXPECT_EQ(InWindow(), chosen);
    EXPECT_EQ(InProgram(AskProgram()), (States{{"BELL", ByYou}, {"RACK", ByYou}}));
    ChooseOfCategory("EXTRA", "IgnoreAllItem");
    ChooseOfCategory("LAMP", "ConsiderAllItem");
    const States other = {{"BELL", Ignored}, {"RACK", Ignored}, {"RED", Ignored}, {"BLUE", Ignored}};
    EXPECT_EQ(InWindow(), other);
    OpenKept();
    EXPECT_EQ(InWindow(), chosen);
    Press("Undo");
    EXPECT_EQ(InWindow(), other);
}

TEST_F(ChoosingJourneyTest, NamesAreTypedUntilTheyClash) {
    Show();
    ZOLDialog* field = Driver::Find(window, "RapidSelectField");
    Driver::Type(field, "RED & LE & BE");
    Driver::Enter(field);
    const States three = {
        {"RED", ByYou}, {"BLUE", NotByRules}, {"LED", ByYou}, {"HALOGEN", NotByRules}, {"BELL", ByYou}};
    ExpectBoth(three);
    Driver::Type(field, "BLUE");
    Driver::Enter(field);
    ExpectConflictInBoth({"BLUE", "RED"});
    Press("Undo");
    ExpectBoth(three);
    Driver::CloseWindow(window);

    Setting("ZOLWVTA.QRD.OPT_GRAPH.RAPID_SELECT_MNGT", "EXACT");
    Show();
    field = Driver::Find(window, "RapidSelectField");
    Driver::Type(field, "RED AND LE");
    Press("RapidSelect");
    ExpectBoth({});
    Driver::Type(field, "RED and LED");
    Press("RapidSelect");
    ExpectBoth({{"RED", ByYou}, {"BLUE", NotByRules}, {"LED", ByYou}, {"HALOGEN", NotByRules}});
}

TEST_F(ChoosingJourneyTest, AnotherProductTakesOverWhatItKnowsOfTheSelection) {
    const ZOLIQrdConfigItem_var ofFrame = Dictionary("FRAME");
    const ZOLIQrdCategory_var paint = Category(ofFrame, "COLOUR");
    Option(paint, "RED");
    Option(paint, "GREEN");
    Show({"BIKE", "FRAME"});
    Click("COLOUR", "RED");
    Click("EXTRA", "RACK");
    ChangeProduct("FRAME");
    EXPECT_TRUE(Sees("chosen by you: 1"));
    ExpectBoth({{"RED", ByYou}, {"GREEN", NotByRules}}, "FRAME");
    Click("COLOUR", "GREEN");
    ExpectBoth({{"GREEN", ByYou}, {"RED", NotByYou}}, "FRAME");
    ChangeProduct("BIKE");
    ExpectBoth({{"RED", NotByYou}});
    for (int step = 0; step < 3; ++step)
        Press("Undo");
    ExpectBoth({{"RED", ByYou}, {"BLUE", NotByYou}, {"RACK", ByYou}});
}

TEST_F(ChoosingJourneyTest, WhatIsChosenInACategoryOutOfSightIsKept) {
    Show();
    Click("LAMP", "LED");
    Press("Categories");
    Driver::Toggle(Driver::Find(window, "CheckListPanel/EltCheck[3]"), false);
    Driver::Ok(Driver::Find(window, "CheckListPanel"));
    ASSERT_EQ(Node("LAMP", "LED"), nullptr);
    EXPECT_TRUE(Sees("chosen by you: 1"));
    EXPECT_EQ(InProgram(AskProgram()), (States{{"LED", ByYou}, {"HALOGEN", NotByYou}}));
    Press("ClearAll");
    Driver::Type(Driver::Find(window, "RapidSelectField"), "HALOGEN");
    Press("RapidSelect");
    EXPECT_EQ(InProgram(AskProgram()), (States{{"LED", NotByRules}, {"HALOGEN", ByYou}}));
    Press("Undo");
    Press("Undo");
    EXPECT_EQ(InProgram(AskProgram()), (States{{"LED", ByYou}, {"HALOGEN", NotByYou}}));
    Press("ClearAll");
    OpenKept();
    EXPECT_TRUE(Sees("chosen by you: 1"));
}

} // namespace trellis::test
