#include "widgets/ZOLQRDDlgOptionList.h"

#include "model/ZOLDMClipboard.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "values/Settings.h"
#include "widgets/EffectivityOnLinks.h"

#include <chrono>

namespace trellis::test {

namespace {

using Driver = ZOLUserDriver;
using Terms = ZOLListValZOLQRDCfgEffectivity;
using Texts = std::vector<ZOLUnicodeString>;

constexpr int TwoLists = 1;
constexpr int Sorted = 2;
constexpr int Filtered = 4;
constexpr int All = 31;

class OptionList : public EffectivityOnLinks {
protected:
    ~OptionList() override {
        Close();
        for (const Driver::Message& message : Driver::TakeMessages())
            ADD_FAILURE() << "nobody read: " << message.text.Bytes();
        Settings::Current().Forget();
        ZOLDMClipboard::SetObjects({});
    }

    void Open(int style, ZOLDMInstance* instance = nullptr) {
        Close();
        const CallbackScope scope;
        panel = new ListeningPanel;
        list = new ZOLQRDDlgOptionList(panel, "OptionList", style, instance);
        panel->SetVisibility(ZOLShown);
    }
    void Close() {
        if (panel)
            panel->RequestDelayedDestruction();
        panel = nullptr;
        CallbackScope::FreeGivenUp();
    }
    static ZOLQRDCfgEffectivity Term(const char* name, const char* category, int used = 1,
                                     const char* description = "") {
        return {"option", name, 0, 0, {}, {}, category, description, used};
    }
    // RED and BLUE of COLOUR, LED of LAMP, of which BLUE is not used.
    static Terms Some() { return {Term("RED", "COLOUR"), Term("LED", "LAMP"), Term("BLUE", "COLOUR", 0)}; }
    ZOLDialog* Find(const char* name) { return Driver::Find(list, name); }
    bool IsThere(const char* name) {
        try {
            return Find(name) != nullptr;
        } catch (const Driver::Refused&) {
            return false;
        }
    }
    void Press(const char* name) { Driver::Press(Find(name)); }
    void Toggle(const char* name, bool on) { Driver::Toggle(Find(name), on); }
    int State(const char* name) { return static_cast<ZOLDlgCheckButton*>(Find(name))->GetState(); }
    void Filter(const char* name, const char* type) {
        Driver::Type(Find("NameFilterEd"), name);
        Driver::Type(Find("TypeFilterEd"), type);
        Press("FilterBut");
    }
    void Select(const Texts& names) { Driver::SelectLines(Find("QRDOptionList"), names); }
    void Unselect(const Texts& names) { Driver::SelectLines(Find("QRDOptionLIst"), names); }
    // The first columns of the lines.
    std::string Lines(const char* name = "QRDOptionList") {
        const auto* lines = static_cast<ZOLDlgList*>(Find(name));
        std::string text;
        for (int row = 0; row < lines->GetLineCount(); ++row)
            text += lines->GetRowText(row).Bytes() + " ";
        return text;
    }
    std::string Selected() { return Lines("QRDOptionLIst"); }
    std::string Cell(int column, int row) {
        ZOLUnicodeString text;
        static_cast<ZOLDlgMultiList*>(Find("QRDOptionList"))->GetColumnItem(column, text, row);
        return text.Bytes();
    }
    static std::string Text(const Terms& terms) {
        std::string text;
        for (const ZOLQRDCfgEffectivity& term : terms)
            text += term.GetName().Bytes() + "." + term.GetCategory().Bytes() + " ";
        return text;
    }
    std::string TakenSelected() {
        Terms terms;
        list->GetSelected(terms);
        return Text(terms);
    }
    std::string TakenAvailable() {
        Terms terms;
        list->GetAvailable(terms);
        return Text(terms);
    }
    static int TakeMessage() {
        const auto messages = Driver::TakeMessages();
        return messages.size() == 1 ? messages.front().code : -static_cast<int>(messages.size());
    }

    ListeningPanel* panel = nullptr;
    ZOLQRDDlgOptionList* list = nullptr;
};

} // namespace

TEST_F(OptionList, HasThePiecesOfItsStyle) {
    ZOLDMInstance bike = Part("BIKE");
    const struct {
        const char* widget;
        int style;
    } pieces[] = {{"QRDOptionLIst", 1},       {"SortByNameBut", 2}, {"SortByTypeBut", 2},
                  {"FilterBut", 4},           {"UsedOnlyBut", 4},   {"AssUsedOnlyBut", 4 + 8},
                  {"CurrentProductName", 16}, {"QRDOptionList", 0}};
    for (int style = 0; style <= All; ++style) {
        Open(style, &bike);
        for (const auto& [widget, needed] : pieces) {
            const bool isThere = IsThere(widget);
            EXPECT_EQ(isThere, (style & needed) == needed) << widget << " in style " << style;
        }
    }
    Open(All);
    EXPECT_FALSE(IsThere("AssUsedOnlyBut")) << "without an instance";
    EXPECT_EQ(Lines(), "");
}

TEST_F(OptionList, ShowsNameCategoryDescriptionInOneLineAndTheUsedMark) {
    Open(0);
    list->SetList({Term("RED", "COLOUR", 1, "Signal\nred"), Term("BLUE", "COLOUR", 0)}, {}, 0);
    for (const auto& [column, text] :
         std::map<int, std::string>{{0, "RED"}, {1, "COLOUR"}, {2, "Signal red"}, {3, "XXX"}})
        EXPECT_EQ(Cell(column, 0), text);
    EXPECT_EQ(Cell(3, 1), " ");
    EXPECT_EQ(list->GetAvailableSelect().Size(), 0);
}

TEST_F(OptionList, TellsItsFatherOfASelectionWhereItHasNoSecondList) {
    Open(Sorted | Filtered);
    panel->Listen(list, list->GetSelectOptionNotification());
    list->SetList(Some(), {}, 0);
    Select({"LED", "RED"});
    EXPECT_EQ(panel->heard, Heard{"OptionList"});
    EXPECT_EQ(Text(list->GetAvailableSelect()), "RED.COLOUR LED.LAMP ");
    list->DeselectAll();
    EXPECT_EQ(list->GetAvailableSelect().Size(), 0);
    EXPECT_EQ(panel->heard.size(), 1u);
}

TEST_F(OptionList, OneNameOfTwoCategoriesIsOneLineAndMovesAsOne) {
    Open(TwoLists);
    panel->Listen(list, list->GetSelectOptionNotification());
    list->SetList({Term("RED", "COLOUR"), Term("LED", "LAMP"), Term("RED", "SEAT")}, {}, 0);
    EXPECT_EQ(Lines(), "RED LED ");
    Select({"RED"});
    EXPECT_EQ(Lines() + "| " + Selected(), "LED | RED ");
    EXPECT_EQ(TakenSelected(), "RED.COLOUR RED.SEAT ");
    Unselect({"RED"});
    EXPECT_EQ(Lines() + "| " + Selected(), "LED RED | ");
    EXPECT_EQ(TakenSelected(), "");
    EXPECT_TRUE(panel->heard.empty());
}

TEST_F(OptionList, NeitherMovingNorFilteringMakesMoreOfAnOption) {
    Open(TwoLists | Filtered);
    list->SetList(Some(), {}, 0);
    for (int i = 0; i < 3; ++i) {
        Driver::Choose(Find("AddRepalceComb"), i == 1 ? "Add" : "Replace");
        Press("FilterBut");
        Press("FilterBut");
        Select({"RED", "LED"});
        Press("FilterBut");
        EXPECT_EQ(Lines() + "| " + Selected(), "BLUE | RED LED ");
        EXPECT_EQ(TakenSelected(), "RED.COLOUR LED.LAMP ");
        Unselect({"LED", "RED"});
    }
    EXPECT_EQ(TakenSelected(), "");
    EXPECT_EQ(TakenAvailable(), "RED.COLOUR LED.LAMP BLUE.COLOUR ");
}

TEST_F(OptionList, WhatMayNotBeRemovedStaysAndTheOthersMove) {
    Open(TwoLists);
    list->SetList({Term("BLUE", "COLOUR")}, {Term("RED", "COLOUR"), Term("LED", "LAMP")}, 1);
    Select({"BLUE"});
    Unselect({"RED", "BLUE"});
    EXPECT_EQ(TakeMessage(), 40010);
    EXPECT_EQ(Lines() + "| " + Selected(), "BLUE | RED LED ");
    Unselect({"LED"});
    EXPECT_EQ(TakeMessage(), 40010);
    list->SetList({}, {Term("RED", "COLOUR")}, 0);
    Unselect({"RED"});
    EXPECT_EQ(Lines() + "| " + Selected(), "RED | ");
}

TEST_F(OptionList, AGivenSelectionLeavesTheAvailableOptions) {
    Open(TwoLists | Filtered);
    list->SetList(Some(), {Term("LED", "")}, 0);
    EXPECT_EQ(Lines() + "| " + Selected(), "RED BLUE | LED ");
    list->SetList(Some(), {}, 0);
    list->SetSelected({Term("RED", ""), Term("RACK", "EXTRA")}, 0);
    EXPECT_EQ(TakenSelected(), "RED.COLOUR RACK.EXTRA ");
    EXPECT_EQ(Lines() + "| " + Selected(), "LED BLUE | RED RACK ");
    EXPECT_EQ(TakenAvailable(), "LED.LAMP BLUE.COLOUR ");
    Unselect({"RACK"});
    Press("FilterBut");
    EXPECT_EQ(Lines(), "LED BLUE RACK ") << "available from now on";
    list->SetANDSelectedTitle();
    EXPECT_NE(Driver::Describe(list).find("Selected options (all of them together)"), std::string::npos);
}

TEST_F(OptionList, SortingBringsItsColumnToTheFront) {
    Open(TwoLists | Sorted);
    list->SetList(Some(), {}, 0);
    Press("SortByNameBut");
    EXPECT_EQ(Lines(), "BLUE LED RED ");
    for (int i = 0; i < 2; ++i) {
        Press("SortByTypeBut");
        EXPECT_EQ(Lines(), "COLOUR COLOUR LAMP ");
        EXPECT_EQ(Cell(1, 0) + Cell(1, 1) + Cell(1, 2), "BLUEREDLED");
    }
    const auto* lines = static_cast<ZOLDlgMultiList*>(Find("QRDOptionList"));
    EXPECT_EQ(lines->GetColumnTitle(0) + "," + lines->GetColumnTitle(1), "Category,Option");
    Driver::Select(Find("QRDOptionList"), {2});
    EXPECT_EQ(Lines() + "| " + Selected(), "COLOUR COLOUR | LED ");
    Press("SortByNameBut");
    EXPECT_EQ(Lines(), "BLUE RED ");
    EXPECT_EQ(lines->GetColumnTitle(0) + "," + lines->GetColumnTitle(1), "Option,Category");
}

TEST_F(OptionList, TheFilterReplacesTheListOrAddsToIt) {
    Open(Filtered);
    list->SetList(Some(), {}, 0);
    EXPECT_EQ(Lines(), "RED LED BLUE ");
    Filter("*E", "COL*");
    EXPECT_EQ(Lines(), "RED BLUE ") << "an E behind the first letter";
    Filter("LED", "*");
    EXPECT_EQ(Lines(), "LED ");
    Driver::Choose(Find("AddRepalceComb"), "Add");
    Filter(" R* ", "*");
    Press("FilterBut");
    EXPECT_EQ(Lines(), "LED RED ");
    Driver::Choose(Find("AddRepalceComb"), "Replace");
    Filter("", "*");
    EXPECT_EQ(Lines(), "");
}

TEST_F(OptionList, ReturnInTheFilterFiltersAndLeavingItDoesNot) {
    Open(Filtered);
    list->SetList(Some(), {}, 0);
    Driver::Type(Find("NameFilterEd"), "R*");
    Toggle("UsedOnlyBut", false); // leaves the field
    EXPECT_EQ(Lines(), "RED LED BLUE ");
    Driver::Enter(Find("NameFilterEd"));
    EXPECT_EQ(Lines(), "RED ");
    Filter("*", "*");
}

TEST_F(OptionList, TheNextPanelBeginsWithTheFilterAndTheUsedOptionsOfTheLastOne) {
    Open(Filtered);
    list->SetList(Some(), {}, 0);
    Filter("*E*", "COL*");
    Toggle("UsedOnlyBut", true);
    EXPECT_EQ(Lines(), "RED ");

    Open(Filtered);
    EXPECT_EQ(State("UsedOnlyBut"), ZOLOn);
    list->SetList(Some(), {}, 0);
    EXPECT_EQ(Lines(), "RED ");
    EXPECT_EQ(static_cast<ZOLDlgEditor*>(Find("NameFilterEd"))->GetText(), "*E*");
    Open(0);
    list->SetList(Some(), {}, 0);
    EXPECT_EQ(Lines(), "RED LED ") << "no filter, but used options only";

    Open(Filtered);
    list->SetList(Some(), {}, 0);
    Toggle("UsedOnlyBut", false);
    EXPECT_EQ(Lines(), "RED BLUE ");
}

TEST_F(OptionList, APanelSeesThatAnotherOneChangedTheUsedOptions) {
    ZOLDlgDialog* first = new ZOLDlgDialog(nullptr, "First");
    auto* early = new ZOLQRDDlgOptionList(first, "OptionList", Filtered, nullptr);
    first->SetVisibility(ZOLShown);
    early->SetList(Some(), {}, 0);
    Open(Filtered);
    Toggle("UsedOnlyBut", true);
    Driver::Press(Driver::Find(early, "FilterBut"));
    EXPECT_EQ(early->GetAvailableList()->GetLineCount(), 2);
    EXPECT_TRUE(static_cast<ZOLDlgCheckButton*>(Driver::Find(early, "UsedOnlyBut"))->IsOn());
    Toggle("UsedOnlyBut", false);
    first->RequestDelayedDestruction();
}

TEST_F(OptionList, UsedAtAllAndUsedInTheAssemblyPutEachOtherOff) {
    Put({"option_range", "BLUE", 3, 9, {}, {}}, "FRAME", "TUBE");
    Put({"pack_undef", ZOLListValZOLUnicodeString{"LED", "OTHER"}, 0, 0, {}, {}}, "TUBE", "BOLT");
    ZOLDMInstance bike = Part("BIKE");
    Open(Filtered | 8, &bike);
    list->SetList(Some(), {}, 0);
    Toggle("AssUsedOnlyBut", true);
    EXPECT_EQ(Lines(), "LED BLUE ");
    Toggle("UsedOnlyBut", true);
    EXPECT_EQ(Lines(), "RED LED ");
    EXPECT_EQ(State("AssUsedOnlyBut"), 16);
    Toggle("AssUsedOnlyBut", true);
    EXPECT_EQ(Lines(), "LED BLUE ");
    EXPECT_EQ(State("UsedOnlyBut"), 16);

    Put({"option", "RED", 0, 0, {}, {}}, "BIKE", "FRAME");
    Press("FilterBut");
    EXPECT_EQ(Lines(), "LED BLUE ") << "looked up once";
    list->SetList(Some(), {}, 0);
    EXPECT_EQ(Lines(), "RED LED BLUE ") << "a new list is looked up anew";
    Toggle("AssUsedOnlyBut", false);
    EXPECT_EQ(Lines(), "RED LED BLUE ");
}

TEST_F(OptionList, AnAssemblyThatCannotBeReadTakesTheChoiceBack) {
    ZOLDMInstance bike = Part("BIKE");
    Open(Filtered | 8, &bike);
    list->SetList(Some(), {}, 0);
    DatabaseSession::Close();
    Toggle("AssUsedOnlyBut", true);
    EXPECT_EQ(TakeMessage(), 60201);
    EXPECT_EQ(Lines(), "RED LED BLUE ");
    EXPECT_EQ(State("AssUsedOnlyBut"), ZOLOff);
}

TEST_F(OptionList, CopiesForAllPanelsAndLetsTheFatherPaste) {
    Open(0);
    list->SetList(Some(), {}, 0);
    panel->Listen(list, list->GetMenuDisplayNotification());
    panel->reaction = [this](ZOLCommand*, ZOLNotification*, void*) {
        new ZOLDlgPushItem(list->GetContextualMenu(), "ExtraItem");
    };
    ZOLDialog* lines = Find("QRDOptionList");
    auto menu = Driver::OpenMenu(lines);
    ASSERT_EQ(menu.size(), 3u) << "with the item of the father";
    EXPECT_EQ(std::string(menu[0].name.View()) + "," + std::string(menu[1].name.View()),
              "CopyItem,PasteItem");
    EXPECT_FALSE(menu[0].isSensitive || menu[1].isSensitive);
    panel->reaction = {};
    Select({"RED", "BLUE"});
    Driver::Menu(lines, "CopyItem");

    Open(0);
    lines = Find("QRDOptionList");
    Driver::Menu(lines, "PasteItem");
    EXPECT_EQ(Lines(), "") << "nobody pastes";
    panel->Listen(list, list->GetPasteOptionNotification());
    panel->reaction = [this](ZOLCommand*, ZOLNotification*, void*) {
        Terms options;
        list->GetOptionsToPaste(options);
        list->SetList(options, {}, 0);
    };
    Driver::Menu(lines, "PasteItem");
    EXPECT_EQ(Lines(), "RED BLUE ");
}

TEST_F(OptionList, ListsADictionaryAndStaysAsItIsWhenThereIsNone) {
    const ZOLIQrdCategory_var colour = Category(Dictionary("BIKE"), "COLOUR");
    for (const char* name : {"RED", "BLUE"})
        Option(colour, name);
    Open(TwoLists);
    EXPECT_FALSE(list->GetCurrentDictionary());
    list->UpdateDictionary(Part("BIKE"), {Term("BLUE", ""), Term("GONE", "")});
    EXPECT_EQ(Lines() + "| " + Selected(), "RED | BLUE GONE ");
    EXPECT_EQ(TakenSelected(), "BLUE.COLOUR GONE. ");
    EXPECT_EQ(list->GetCurrentDictionary(), Object("BIKE").GetDictionary());
    list->UpdateDictionary(Part("FRAME"));
    EXPECT_EQ(TakeMessage(), 20265);
    EXPECT_EQ(Lines() + "| " + Selected(), "RED | BLUE GONE ");
    EXPECT_EQ(list->GetCurrentDictionary(), Object("BIKE").GetDictionary());
    list->UpdateDictionary(Part("BIKE"));
    EXPECT_EQ(Lines() + "| " + Selected(), "RED BLUE | ");
}

TEST_F(OptionList, FollowsTheProductThatTheUserChooses) {
    Option(Category(Dictionary("BIKE"), "COLOUR"), "RED");
    Option(Category(Dictionary("WHEEL"), "RIM"), "STEEL");
    ZOLDMInstance bike = Part("BIKE");
    Open(16, &bike);
    EXPECT_EQ(Lines(), "RED ");
    ZOLDMClipboard::SetObjects({Part("WHEEL")});
    Driver::Menu(Find("CurrentProductFrame")->GetOwner(), "PasteNewItem");
    EXPECT_EQ(Lines(), "STEEL ");
    EXPECT_EQ(list->GetCurrentDictionary(), Object("WHEEL").GetDictionary());
    list->UpdateDictionary(bike);
    EXPECT_EQ(Lines(), "RED ");
    EXPECT_NE(Driver::Describe(list).find("BIKE"), std::string::npos);
}

TEST_F(OptionList, ShowsWhatTheSiteLetsPeopleSee) {
    const ZOLIQrdCategory_var colour = Category(Dictionary("BIKE"), "COLOUR");
    Option(colour, "RED");
    Option(colour, "LIME")->SetDescription("Draft: next year", error);
    std::vector<ZOLGYRError> problems;
    Open(0);
    Settings::Current().Declare("CONTROL_LIBRARY", CONTROLS_SAMPLE, SettingOrigin::SiteFile, "", problems);
    list->UpdateDictionary(Part("BIKE"));
    EXPECT_EQ(Lines(), "RED ");
    EXPECT_EQ(Cell(1, 0) + Cell(2, 0) + Cell(3, 0), "COLOURRED ") << "a site's option is not used";
    Settings::Current().Declare("CONTROL_LIBRARY", folder.Path("none.so"), SettingOrigin::SiteFile, "",
                                problems);
    list->UpdateDictionary(Part("BIKE"));
    EXPECT_EQ(TakeMessage(), 60530);
    EXPECT_EQ(Lines(), "RED LIME ");
    list->UpdateDictionary(Part("BIKE"));
    EXPECT_EQ(Lines(), "RED LIME ");
}

TEST_F(OptionList, ManyOptionsAreFilteredShownAndMovedWithoutAWait) {
    constexpr int count = 14000;
    Terms many;
    for (int i = 0; i < count; ++i)
        many.Append(
            Term(("OPTION" + std::to_string(i)).c_str(), ("CATEGORY" + std::to_string(i % 90)).c_str()));
    Open(TwoLists | Sorted | Filtered);
    const auto start = std::chrono::steady_clock::now();
    list->SetList(many, {}, 0);
    Filter("OPTION*", "*");
    Press("SortByTypeBut");
    list->GetAvailableList()->SetFirstLine(5000);
    Driver::Select(Find("QRDOptionList"), {5003});
    EXPECT_EQ(list->GetAvailableList()->GetFirstLine(), 5000)
        << "the next option stands where the user looks";
    Driver::Select(Find("QRDOptionLIst"), {0});
    std::vector<int> rows(count);
    for (int i = 0; i < count; ++i)
        rows[static_cast<std::size_t>(i)] = i;
    Driver::Select(Find("QRDOptionList"), rows);
    EXPECT_EQ(list->GetAvailableList()->GetLineCount(), 0);
    Driver::Select(Find("QRDOptionLIst"), rows);
    EXPECT_EQ(list->GetAvailableList()->GetLineCount(), count);
    list->SetSelected(many, 0);
    // Comparing each with each other takes minutes.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

} // namespace trellis::test
