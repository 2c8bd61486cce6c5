// What all widgets have in common: who tells what when, and what keeps a user from acting.

#include "toolkit/ToolkitFixture.h"

#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgRadioButton.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgTabPage.h"

namespace {

class WidgetRulesTest : public ToolkitTest {
protected:
    void SetUp() override {
        panel = OpenPanel();
        frame = new ZOLDlgFrame(panel, "Frame");
    }
    ListeningPanel* panel = nullptr;
    ZOLDlgFrame* frame = nullptr;
};

} // namespace

TEST_F(WidgetRulesTest, AStateSetByCodeTellsNobodyAndWithTheFlagAlwaysAlsoWhenItIsTheOldOne) {
    auto* check = new ZOLDlgCheckButton(frame, "Check");
    panel->Listen(check, check->GetChkBModifyNotification());
    check->SetState(ZOLOn);
    check->SetState(ZOLOn);
    EXPECT_TRUE(panel->heard.empty());
    check->SetState(ZOLOn, 1);
    check->SetState(ZOLOn, 1);
    EXPECT_EQ(panel->heard.size(), 2u);
}

TEST_F(WidgetRulesTest, AnyWordIsAStateAndOnlyOneOfThemIsOn) {
    auto* check = new ZOLDlgCheckButton(frame, "Check");
    for (const int word : {0, 1, 16, 0x80000}) {
        check->SetState(word);
        EXPECT_EQ(check->GetState(), word);
        EXPECT_FALSE(check->IsOn());
    }
    ZOLUserDriver::Toggle(check, true);
    EXPECT_EQ(check->GetState(), 0x40000);
    ZOLUserDriver::Toggle(check, false);
    EXPECT_EQ(check->GetState(), 0x80000);
}

TEST_F(WidgetRulesTest, AWidgetThatIsGreyedHiddenOrInSuchAHolderSendsNothingAndSaysWhy) {
    auto* button = new ZOLDlgPushButton(frame, "Button");
    panel->Listen(button, button->GetPushBActivateNotification());
    const auto press = [&] { return ReasonOf([&] { ZOLUserDriver::Press(button); }); };

    frame->SetSensitivity(ZOLGreyed);
    EXPECT_EQ(button->GetSensitivity(), ZOLActive);
    EXPECT_EQ(press(), "cannot press button \"Button\": it is greyed");
    frame->SetSensitivity(ZOLActive);
    button->SetSensitivity(ZOLGreyed);
    EXPECT_EQ(press(), "cannot press button \"Button\": it is greyed");
    button->SetSensitivity(ZOLActive);
    frame->SetVisibility(ZOLHidden);
    EXPECT_EQ(press(), "cannot press button \"Button\": it is not on the screen");
    frame->SetVisibility(ZOLShown);
    panel->SetVisibility(ZOLHidden);
    EXPECT_EQ(press(), "cannot press button \"Button\": it is not on the screen");
    panel->SetVisibility(ZOLShown);
    EXPECT_TRUE(panel->heard.empty());
    EXPECT_EQ(press(), "not refused");
    EXPECT_EQ(ReasonOf([&] { ZOLUserDriver::Press(frame); }),
              "cannot press frame \"Frame\": it is of another kind");
    EXPECT_EQ(ReasonOf([&] { ZOLUserDriver::Press(nullptr); }), "cannot press a dialog: there is none");
}

TEST_F(WidgetRulesTest, AGreyedOrHiddenPanelLeavesTheWindowsThatItOwnsAsTheyAre) {
    ListeningPanel* owned = OpenPanel("Owned", frame);
    auto* button = new ZOLDlgPushButton(owned, "Button");
    owned->Listen(button, button->GetPushBActivateNotification());
    frame->SetSensitivity(ZOLGreyed);
    panel->SetVisibility(ZOLHidden);
    ZOLUserDriver::Press(button);
    EXPECT_EQ(owned->heard.size(), 1u);
}

TEST_F(WidgetRulesTest, OfTheRadioButtonsOfOneFrameAtMostOneIsOn) {
    auto* first = new ZOLDlgRadioButton(frame, "First");
    auto* second = new ZOLDlgRadioButton(frame, "Second");
    auto* elsewhere = new ZOLDlgRadioButton(panel, "Elsewhere");
    for (ZOLDlgRadioButton* radio : {first, second, elsewhere})
        panel->Listen(radio, radio->GetRadBModifyNotification());
    elsewhere->SetState(ZOLOn);
    first->SetState(ZOLOn);
    second->SetState(ZOLOn);
    EXPECT_FALSE(first->IsOn());
    EXPECT_TRUE(elsewhere->IsOn());
    EXPECT_TRUE(panel->heard.empty());

    panel->reaction = [&](ZOLCommand*, ZOLNotification*, void*) {
        EXPECT_TRUE(first->IsOn() && !second->IsOn()) << "a listener sees the group as it became";
    };
    ZOLUserDriver::Toggle(first, true);
    EXPECT_EQ(panel->heard, (Heard{"Second", "First"}));
    EXPECT_EQ(first->UserToggle(), ZOLUserResult::Done);
    EXPECT_EQ(panel->heard.size(), 2u) << "a click on the one that is on changes nothing";
    EXPECT_THROW(ZOLUserDriver::Toggle(first, false), ZOLUserDriver::Refused);
    first->SetState(ZOLOff);
    EXPECT_FALSE(first->IsOn() || second->IsOn());
}

TEST_F(WidgetRulesTest, AComboShowsTheChosenLineThroughInsertingChangingAndClearing) {
    auto* combo = new ZOLDlgCombo(frame, "Combo");
    panel->Listen(combo, combo->GetComboSelectNotification());
    combo->SetLine("b");
    combo->SetLine("c", 9);
    EXPECT_EQ(combo->SetSelect("c"), 1);
    combo->SetLine("a", 0);
    EXPECT_EQ(combo->GetSelect(), 2);
    combo->SetLine("C", 2, ZOLChangeLine);
    combo->SetLine("nothing", 3, ZOLChangeLine);
    EXPECT_EQ(combo->GetField(), "C");
    EXPECT_EQ(combo->GetLineCount(), 3);
    EXPECT_EQ(combo->SetSelect("nothing", 1), 0);
    EXPECT_EQ(combo->SetSelect(3, 1), 0);
    combo->ClearLine(0);
    EXPECT_EQ(combo->GetSelect(), 1);
    combo->ClearLine(1);
    EXPECT_EQ(combo->GetSelect(), -1);
    EXPECT_TRUE(combo->GetField().IsEmpty());
    EXPECT_TRUE(panel->heard.empty());

    ZOLUserDriver::Choose(combo, "b");
    ZOLUserDriver::Choose(combo, "b");
    EXPECT_EQ(panel->heard.size(), 1u);
    EXPECT_EQ(combo->SetSelect(0, 1), 1);
    EXPECT_EQ(panel->heard.size(), 2u);
    EXPECT_THROW(ZOLUserDriver::Choose(combo, "x"), ZOLUserDriver::Refused);
    EXPECT_EQ(ReasonOf([&] { ZOLUserDriver::Type(combo, "x"); }),
              "cannot type into combo \"Combo\": it cannot be edited");
}

TEST_F(WidgetRulesTest, TypingIntoAComboTellsEachKeyAndChoosesTheLineItSpells) {
    auto* combo = new ZOLDlgCombo(frame, "Combo", 0x40000);
    combo->SetLine("ab");
    panel->Listen(combo, combo->GetComboModifyNotification());
    combo->SetField("x");
    EXPECT_TRUE(panel->heard.empty());
    ZOLUserDriver::Type(combo, "ab");
    EXPECT_EQ(panel->heard.size(), 2u);
    EXPECT_EQ(combo->GetSelect(), 0);
    ZOLUserDriver::Type(combo, "");
    EXPECT_EQ(combo->GetSelect(), -1);
}

TEST_F(WidgetRulesTest, OnlyThePageInFrontIsOnTheScreen) {
    auto* tabs = new ZOLDlgTabContainer(frame, "Tabs");
    auto* first = new ZOLDlgTabPage(tabs, "First");
    auto* second = new ZOLDlgTabPage(tabs, "Second");
    auto* button = new ZOLDlgPushButton(second, "Button");
    panel->Listen(tabs, tabs->GetTabSelectNotification());
    EXPECT_EQ(tabs->GetSelectedPage(), first);
    EXPECT_THROW(ZOLUserDriver::Press(button), ZOLUserDriver::Refused);
    ZOLUserDriver::ShowPage(tabs, "First");
    EXPECT_TRUE(panel->heard.empty());
    ZOLUserDriver::ShowPage(tabs, "Second");
    ZOLUserDriver::Press(button);
    EXPECT_EQ(panel->heard, Heard{"Tabs"});
    first->SetSensitivity(ZOLGreyed);
    EXPECT_THROW(ZOLUserDriver::ShowPage(tabs, "First"), ZOLUserDriver::Refused);
    second->SetVisibility(ZOLHidden);
    EXPECT_EQ(tabs->GetSelectedPage(), first) << "a hidden page gives way to the first that is shown";
    tabs->SetSelectedPage(second);
    EXPECT_EQ(panel->heard.size(), 1u);
}

TEST_F(WidgetRulesTest, PathsGoDepthFirstAndCountEqualNames) {
    auto* inner = new ZOLDlgFrame(frame, "Inner");
    auto* deep = new ZOLDlgPushButton(inner, "App");
    auto* second = new ZOLDlgPushButton(frame, "App");
    auto* third = new ZOLDlgPushButton(panel, "App");
    EXPECT_EQ(ZOLUserDriver::Find(panel, "App"), deep);
    EXPECT_EQ(ZOLUserDriver::Find(panel, "App[2]"), second);
    EXPECT_EQ(ZOLUserDriver::Find(panel, "App[3]"), third);
    EXPECT_EQ(ZOLUserDriver::Find(panel, "Frame/App[2]"), second);
    EXPECT_EQ(ZOLUserDriver::Find(nullptr, "Panel/Inner/App"), deep);
    for (const char* path :
         {"app", "App[4]", "App[0]", "App[x]", "App[1", "Frame/Inner/App[2]", "", "/", "App/App"})
        EXPECT_THROW(ZOLUserDriver::Find(panel, path), ZOLUserDriver::Refused) << path;
}

TEST_F(WidgetRulesTest, ShowingAWindowAgainRaisesItAndHidingUncoversTheOneBelow) {
    auto* other = OpenPanel("Other");
    EXPECT_EQ(ZOLUserDriver::Top(), other);
    panel->SetVisibility(ZOLShown);
    EXPECT_EQ(ZOLUserDriver::Top(), panel);
    panel->SetVisibility(ZOLHidden);
    EXPECT_EQ(ZOLUserDriver::Top(), other);
}
