#include "widgets/ZOLDlgCheckList.h"

#include "service/ServiceFixture.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgCheckButton.h"

namespace trellis::test {

namespace {

using Driver = ZOLUserDriver;

class CheckList : public ServiceFixture {
protected:
    CheckList() { father->SetVisibility(ZOLShown); }
    ~CheckList() override {
        father->RequestDelayedDestruction();
        CallbackScope::FreeGivenUp();
        EXPECT_TRUE(Driver::TakeMessages().empty());
        EXPECT_EQ(ZOLInteractiveApplication::GetApplication()->CountDialogs(), 0);
    }

    template <class List>
    void Open(const List& list) {
        panel = new ZOLDlgCheckList(father, "Choose", list);
        panel->SetVisibility(ZOLShown);
    }
    ZOLDlgCheckButton* Line(int position) {
        return static_cast<ZOLDlgCheckButton*>(
            Driver::Find(panel, "EltCheck[" + std::to_string(position) + "]"));
    }
    // The texts of the lines, with a star behind those that are ticked.
    std::string Lines(int count) {
        std::string lines;
        for (int i = 1; i <= count; ++i)
            lines += Line(i)->GetTitle().Bytes() + (Line(i)->IsOn() ? "*; " : "; ");
        return lines;
    }
    template <class Handle>
    static std::string NamesOf(const ZOLListVal<Handle>& list) {
        std::string names;
        for (const Handle& element : list)
            names += element->GetName().Bytes() + ":" + element->GetDescription().Bytes() + " ";
        return names;
    }
    template <class List>
    List Checked() {
        List checked;
        panel->GetChecked(checked);
        return checked;
    }
    ZOLIQrdCategory_var Category(const ZOLIQrdConfigItem_var& dictionary, const char* name,
                                 const char* description) {
        return Manager().AddCategoryToDictionary(dictionary, name, description, 1, 0, error);
    }
    ZOLIQrdConfigRule_var Rule(const char* name, const char* text, const char* description) {
        return Manager().AddConfigRuleToDictionary(dictionary, name, text, ZOLDirectiveRuleType, description,
                                                   error);
    }

    ZOLIQrdConfigItem_var dictionary = Dictionary("BIKE");
    ListeningPanel* father = new ListeningPanel;
    ZOLDlgCheckList* panel = nullptr;
};

} // namespace

TEST_F(CheckList, TextsAreSortedAndTickedByPositionAndByTheUser) {
    Open(ZOLListValZOLUnicodeString{"pear", "Apple", "fig", "apple"});
    EXPECT_EQ(Lines(4), "Apple; apple; fig; pear; ");
    panel->SetChecked({2, 0, -3, 99, 4});
    EXPECT_EQ(Lines(4), "Apple; apple*; fig; pear*; ");
    Driver::Toggle(Line(1), true);
    Driver::Toggle(Line(4), false);
    const auto checked = Checked<ZOLListValZOLUnicodeString>();
    ASSERT_EQ(checked.Size(), 2);
    EXPECT_EQ(checked[1], "Apple");
    EXPECT_EQ(checked[2], "apple");
    panel->SetChecked({3});
    EXPECT_EQ(Lines(4), "Apple; apple; fig*; pear; ") << "exactly those that are given";

    Driver::Press(Driver::Find(panel, "CheckAllButton"));
    EXPECT_EQ(Checked<ZOLListValZOLUnicodeString>().Size(), 4);
    Driver::Press(Driver::Find(panel, "UncheckAllButton"));
    EXPECT_EQ(Checked<ZOLListValZOLUnicodeString>().Size(), 0);
    EXPECT_EQ(Checked<ZOLListValZOLIQrdCategory_var>().Size(), 0) << "the panel holds texts";
}

TEST_F(CheckList, CategoriesOfOneNameShareALineAndAreTickedTogether) {
    const ZOLIQrdConfigItem_var other = Dictionary("FRAME");
    const ZOLIQrdConfigItem_var third = Dictionary("WHEEL");
    Open(ZOLListValZOLIQrdCategory_var{
        Category(dictionary, "LAMP", ""), Category(dictionary, "COLOUR", "one"),
        Category(other, "LAMP", "second"), Category(other, "COLOUR", "two"),
        Category(third, "COLOUR", "three"), Category(third, "BELL", "\nloud\n\nvery")});
    EXPECT_EQ(Lines(3), "BELL ( loud  very); COLOUR (one); LAMP; ");
    EXPECT_THROW(Line(4), Driver::Refused);
    ZOLListValZOLIQrdCategory_var all;
    panel->GetList(all);
    EXPECT_EQ(NamesOf(all), "BELL:\nloud\n\nvery COLOUR:one LAMP: COLOUR:two COLOUR:three LAMP:second ");

    panel->SetChecked({3, 4});
    EXPECT_EQ(NamesOf(Checked<ZOLListValZOLIQrdCategory_var>()), "LAMP: LAMP:second ");
    panel->SetChecked({2, 1});
    EXPECT_EQ(NamesOf(Checked<ZOLListValZOLIQrdCategory_var>()),
              "BELL:\nloud\n\nvery COLOUR:one COLOUR:two COLOUR:three ");
}

TEST_F(CheckList, ARuleWithoutNameAndDescriptionShowsItsText) {
    Category(dictionary, "COLOUR", "");
    Open(ZOLListValZOLIQrdConfigRule_var{Rule("R2", "a", "second"), Rule("", "x\ny", ""),
                                         Rule("R1", "c", "")});
    EXPECT_EQ(Lines(3), "x y; R1; R2 (second); ");
    Driver::Toggle(Line(3), true);
    EXPECT_EQ(NamesOf(Checked<ZOLListValZOLIQrdConfigRule_var>()), "R2:second ");
    ZOLListValZOLIQrdConfigRule_var all;
    panel->GetList(all);
    EXPECT_EQ(NamesOf(all), ": R1: R2:second ");
}

TEST_F(CheckList, MatricesAreListedByName) {
    const auto matrix = [&](const char* name, const char* description) {
        return Manager().AddCompatibilityMatrixToDictionary(dictionary, name, description, error);
    };
    Open(ZOLListValZOLIQrdCompatibilityMatrix_var{matrix("M2", ""), matrix("M1", "first")});
    EXPECT_EQ(Lines(2), "M1 (first); M2; ");
    panel->SetChecked({2});
    EXPECT_EQ(NamesOf(Checked<ZOLListValZOLIQrdCompatibilityMatrix_var>()), "M2: ");
    ZOLListValZOLIQrdCompatibilityMatrix_var all;
    panel->GetList(all);
    EXPECT_EQ(NamesOf(all), "M1:first M2: ");
}

TEST_F(CheckList, ALineThatIsTooLongIsCutAndShownWholeAsToolTip) {
    const std::string text(5000, 'x');
    Open(ZOLListValZOLUnicodeString{text, std::string(120, 'w')});
    EXPECT_EQ(Line(1)->GetTitle(), std::string(120, 'w'));
    EXPECT_EQ(Line(2)->GetTitle(), std::string(117, 'x') + "...");
    EXPECT_EQ(Line(2)->GetToolTip(), text);
    panel->SetChecked({2});
    EXPECT_EQ(Checked<ZOLListValZOLUnicodeString>()[1], text);
}

TEST_F(CheckList, ManyLinesStandInSeveralColumns) {
    ZOLListValZOLUnicodeString names;
    for (int i = 1; i <= 1200; ++i)
        names.Append(ZOLUnicodeString::FromNumber(i + 1000));
    Open(names);
    EXPECT_EQ(Line(1200)->GetTitle(), "2200");
    Driver::Toggle(Line(1200), true);
    EXPECT_EQ(Checked<ZOLListValZOLUnicodeString>()[1], "2200");
    for (const ZOLDialog* column : Driver::Find(panel, "Container")->GetChildren())
        EXPECT_LE(column->GetChildren().size(), 500u) << "higher than a window can be";
}

TEST_F(CheckList, WhatTheFatherDoesNotTakeClosesThePanel) {
    const ZOLListValZOLUnicodeString names{"a"};
    Open(names);
    father->Listen(panel, panel->GetDiaOKNotification());
    Driver::Ok(panel);
    EXPECT_EQ(father->heard, Heard{"CheckListPanel"});
    EXPECT_EQ(Driver::Top(), panel) << "the father closes it when it has read what is ticked";
    Driver::Cancel(panel);
    EXPECT_EQ(Driver::Top(), father);

    Open(names);
    Driver::CloseWindow(panel);
    EXPECT_EQ(Driver::Top(), father);
    Open(names);
    Driver::Ok(panel);
    EXPECT_EQ(Driver::Top(), father);
}

} // namespace trellis::test
