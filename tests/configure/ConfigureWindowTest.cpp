#include "ConfigureFixture.h"

#include "model/ZOLDMClipboard.h"
#include "model/ZOLDMTools.h"
#include "panels/ZOLDMDlgResultPanel.h"

#include <filesystem>
#include <fstream>

namespace trellis::test {

class ConfigureWindowTest : public ConfigureFixture {};

TEST_F(ConfigureWindowTest, TheWindowTellsWhyAnOptionIsInItsState) {
    Rule(R"(if "RED" then "LED")");
    Show();
    EXPECT_TRUE(Sees("Point at an option"));
    EXPECT_TRUE(Sees("categories still open: 3"));
    Driver::PointAt(viewer, Node("COLOUR", "RED"));
    EXPECT_TRUE(Sees("RED (COLOUR) is open"));
    Click("COLOUR", "RED");
    EXPECT_TRUE(Sees("RED (COLOUR) is chosen by you")) << "what one looks at is told anew after a click";
    EXPECT_TRUE(Sees("categories still open: 1"));
    EXPECT_TRUE(Sees("chosen by you: 1"));
    Driver::PointAt(viewer, Node("LAMP", "LED"));
    EXPECT_TRUE(Sees("LED (LAMP) is chosen by the rules"));
    EXPECT_TRUE(Sees(R"(if "RED" then "LED")"));
    EXPECT_TRUE(Sees(R"("COLOUR"."RED")")) << "the choice behind it";
    Driver::PointAt(viewer, Node("COLOUR", "BLUE"));
    EXPECT_TRUE(Sees("BLUE (COLOUR) is rejected by your choice of RED"));
    Driver::PointAt(viewer, Node("LAMP", "LED"));
    Driver::PointAt(viewer, nullptr);
    EXPECT_TRUE(Sees("LED (LAMP) is chosen by the rules")) << "stays while the pointer travels";
    Driver::PointAt(viewer, Node("LAMP", "HALOGEN"));
    EXPECT_TRUE(Sees("HALOGEN (LAMP) is rejected by the rules"));
    Driver::Choose(Driver::Find(window, "RulesCombo"), "Rules off");
    EXPECT_TRUE(Sees("HALOGEN (LAMP) was rejected by the rules"));
}

TEST_F(ConfigureWindowTest, AConflictIsEndedByOneStepAndThatIsTakenBack) {
    Rule(R"(if "RED" then "LED")");
    Show();
    EXPECT_FALSE(Sees("What can I do?"));
    Click("LAMP", "HALOGEN");
    Driver::PointAt(viewer, Node("COLOUR", "RED"));
    EXPECT_TRUE(Sees("RED (COLOUR) is rejected by the rules, because of"));
    Click("COLOUR", "RED");
    EXPECT_TRUE(Sees("cannot stand together"));
    const std::string told = AskRepairs([](ZOLDialog* dialog) {
        Driver::SelectLines(Driver::Find(dialog, "RepairList"), {"the choice of RED (COLOUR)"});
        Driver::Ok(dialog);
        return 1;
    });
    EXPECT_NE(told.find("\"the choice of HALOGEN (LAMP)\""), std::string::npos)
        << "the rejection of LED goes with it, unsaid: " << told;
    EXPECT_NE(told.find(R"(if "RED" then "LED")"), std::string::npos) << told;
    EXPECT_FALSE(Sees("cannot stand together"));
    EXPECT_TRUE(Sees("chosen by you: 1"));
    Press("Undo");
    EXPECT_TRUE(Sees("cannot stand together"));
    Press("Redo");
    EXPECT_FALSE(Sees("cannot stand together"));
}

TEST_F(ConfigureWindowTest, WhatARuleWantsAndWhatClashesIsSaidOfTheOption) {
    Rule(R"(if "RED" then "BELL" or "RACK")");
    Rule(R"(if "BLUE" then "LED")");
    Show();
    Click("COLOUR", "RED");
    Driver::PointAt(viewer, Node("EXTRA", "BELL"));
    EXPECT_TRUE(Sees("A rule that holds wants it"));
    Click("EXTRA", "BELL");
    EXPECT_FALSE(Sees("A rule that holds wants it"));
    Click("LAMP", "HALOGEN");
    Driver::PointAt(viewer, Node("LAMP", "LED"));
    Click("COLOUR", "BLUE");
    Driver::PointAt(viewer, Node("COLOUR", "BLUE"));
    EXPECT_TRUE(Sees("cannot stand with your other choices"));
}

TEST_F(ConfigureWindowTest, TwoChoicesOfOneCategoryAreRepairedWithWhatWentWithThem) {
    Option(colour, "GREEN");
    Show();
    Click("COLOUR", "RED");
    Driver::Type(Driver::Find(window, "RapidSelectField"), "BLUE"); // as it is: RED stays
    Driver::Enter(Driver::Find(window, "RapidSelectField"));
    EXPECT_TRUE(Sees("cannot stand together"));
    const std::string told = AskRepairs([](ZOLDialog* dialog) {
        Driver::SelectLines(Driver::Find(dialog, "RepairList"), {"the choice of RED (COLOUR)"});
        Driver::Ok(dialog);
        return 1;
    });
    EXPECT_NE(told.find("takes one option at most"), std::string::npos) << told;
    EXPECT_FALSE(Sees("cannot stand together"));
    Driver::PointAt(viewer, Node("COLOUR", "BLUE"));
    EXPECT_TRUE(Sees("BLUE (COLOUR) is chosen by you"));
    Driver::PointAt(viewer, Node("COLOUR", "GREEN"));
    EXPECT_TRUE(Sees("GREEN (COLOUR) is rejected by your choice of BLUE"));
}

TEST_F(ConfigureWindowTest, ARepairThatIsNotTakenChangesNothing) {
    Rule(R"(if "RED" then "LED")");
    Show();
    Click("LAMP", "HALOGEN");
    Click("COLOUR", "RED");
    const std::string before = Driver::Describe(window);
    AskRepairs([](ZOLDialog*) { return 2; });
    EXPECT_EQ(Driver::Describe(window), before);
}

TEST_F(ConfigureWindowTest, RulesThatContradictThemselvesOfferNoRepair) {
    Rule(R"(if "RED" then "LED")");
    Rule(R"(if not "RED" then "LED")");
    Rule(R"(if "BELL" or not "BELL" then not "LED")");
    Show();
    EXPECT_TRUE(Sees("cannot stand together"));
    const std::string told = AskRepairs([](ZOLDialog* dialog) {
        EXPECT_THROW(Driver::Ok(dialog), Driver::Refused);
        return 2;
    });
    EXPECT_NE(told.find("the rules contradict each other"), std::string::npos) << told;
}

TEST_F(ConfigureWindowTest, ASelectionIsKeptInAFileAndTakenBack) {
    Show();
    Click("COLOUR", "RED");
    Driver::ContextClick(viewer, Node("EXTRA", "RACK"));
    const std::string chosen = Driver::Describe(window);
    GiveFile("SaveSelection", folder.Path("mine.json"));
    Menu("SelectionMenu/SaveAsItem");
    Press("ClearAll");
    EXPECT_NE(Driver::Describe(window), chosen);
    GiveFile("OpenSelection", folder.Path("mine.json"));
    Menu("SelectionMenu/OpenItem");
    EXPECT_EQ(Driver::Describe(window), chosen);
    Press("Undo");
    EXPECT_NE(Driver::Describe(window), chosen) << "opening is one step";

    Manager().RemoveOptionFromDictionary(Option(extra, "GONE"), error);
    std::ofstream(folder.Path("old.json"))
        << R"({"trellis selection":1,"choices":[{"category":"EXTRA","option":"GONE"},)"
        << R"({"category":"COLOUR","option":"BLUE"}]})";
    GiveFile("OpenSelection", folder.Path("old.json"));
    Menu("SelectionMenu/OpenItem");
    EXPECT_NE(TakeMessage().find("\"EXTRA\".\"GONE\""), std::string::npos);
    EXPECT_TRUE(Sees("chosen by you: 1")) << "the rest is taken";

    std::ofstream(folder.Path("bad.json")) << "{]";
    GiveFile("OpenSelection", folder.Path("bad.json"));
    Menu("SelectionMenu/OpenItem");
    EXPECT_NE(TakeMessage().find("holds no kept selection"), std::string::npos);
    EXPECT_TRUE(Sees("chosen by you: 1"));
}

TEST_F(ConfigureWindowTest, ThePictureOfTheGraphIsSavedAndNotReplacedUnasked) {
    Show();
    const std::string file = folder.Path("options.svg");
    GiveFile("SavePicture", file);
    Menu("SelectionMenu/SavePictureItem");
    ASSERT_TRUE(std::filesystem::exists(file));
    std::ofstream(file) << "mine";
    int questions = 0;
    Driver::WhenAsked([&](const Driver::Message&) {
        if (++questions == 2)
            return 2;
        ZOLDialog* asked = Driver::Find(window, "SavePicture");
        Driver::Type(Driver::Find(asked, "PathEd"), file);
        Driver::Ok(asked);
        return 1;
    });
    Menu("SelectionMenu/SavePictureItem");
    TakeMessage();
    EXPECT_EQ(questions, 2);
    EXPECT_EQ(std::filesystem::file_size(file), 4U);
}

TEST_F(ConfigureWindowTest, ARuleThatCannotBeReadIsNamedAndLeftOut) {
    Rule(R"(if "RED" then "LED")");
    Rule(R"(if "NOBODY" then "BELL")");
    Show();
    EXPECT_TRUE(Sees("bind nothing: 1"));
    Press("LeftOutButton");
    EXPECT_NE(TakeMessage().find("NOBODY"), std::string::npos);
    Click("COLOUR", "RED");
    Driver::PointAt(viewer, Node("LAMP", "LED"));
    EXPECT_TRUE(Sees("LED (LAMP) is chosen by the rules")) << "the other rule binds";
}

TEST_F(ConfigureWindowTest, WithoutProductsTheOneUsedLastComesBack) {
    struct Host : ZOLDMDlgResultPanel {
        int KeepsProducts() const override { return 1; }
    } host;
    Show({});
    EXPECT_TRUE(Sees("(no product)"));
    EXPECT_TRUE(Sees("no options"));
    ZOLListValZOLDMInstance copied;
    copied.Append(Part("BIKE"));
    ZOLDMClipboard::SetObjects(copied);
    Driver::Menu(Driver::Find(window, "ProdContextManager"), "PasteNewItem");
    EXPECT_NE(Node("COLOUR", "RED"), nullptr);
    Driver::CloseWindow(window);
    Show({});
    EXPECT_NE(Node("COLOUR", "RED"), nullptr);
    const ZOLUnicodeString file = ZOLDMTools::ZOLDMDefaultDirectory() + Part("BIKE").GetLeadingString() +
                                  "." + Part("BIKE").GetXCoid() + ".Products";
    EXPECT_TRUE(std::filesystem::exists(file.Bytes())) << file.Bytes();
}

TEST_F(ConfigureWindowTest, TheDictionaryMayChangeOrGoUnderTheWindow) {
    Rule(R"(if "RED" then "LED")");
    EXPECT_EQ(Save(), 0);
    Show();
    Click("COLOUR", "RED");
    Manager().UnloadDictionary(dictionary, 1);
    Click("EXTRA", "BELL");
    EXPECT_TRUE(Sees("chosen by you: 2"));
    Option(extra, "STAND");
    Manager().RemoveCategoryFromDictionary(lamp, error);
    Click("EXTRA", "RACK");
    Press("ResetDefault");
    Press("Categories");
    Driver::Ok(Driver::Find(window, "CheckListPanel"));
    EXPECT_EQ(Node("LAMP", "LED"), nullptr);
    EXPECT_NE(Node("EXTRA", "STAND"), nullptr);
    Manager().DeleteDictionary(Part("BIKE"), error);
    EXPECT_EQ(TakeCode(), 0);
    for (const char* button : {"Undo", "Undo", "Redo", "ResetAll", "ResetDefault", "ClearAll"})
        Press(button);
    Driver::PointAt(viewer, nullptr);
    EXPECT_EQ(Save(), 0);
    Press("OptSearch");
}

} // namespace trellis::test
