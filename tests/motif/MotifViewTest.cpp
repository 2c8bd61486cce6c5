#include "support/ScreenUser.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"

namespace {

// What a user does with the mouse and the keyboard of a real server.
class MotifViewTest : public ToolkitTest {
protected:
    static void SetUpTestSuite() { _user = new ScreenUser; }
    static void TearDownTestSuite() { delete _user; }

    static inline ScreenUser* _user = nullptr;
};

TEST_F(MotifViewTest, AClickOnAButtonTellsThePanelOnce) {
    ListeningPanel* panel = OpenPanel();
    auto* button = new ZOLDlgPushButton(panel, "Rename");
    panel->Listen(button, button->GetPushBActivateNotification());
    _user->Click(*button);
    EXPECT_EQ(panel->heard, Heard{"Rename"});
}

TEST_F(MotifViewTest, WhatIsGreyedTakesNoClick) {
    ListeningPanel* panel = OpenPanel();
    auto* button = new ZOLDlgPushButton(panel, "Rename");
    auto* check = new ZOLDlgCheckButton(panel, "Mandatory");
    panel->Listen(button, button->GetPushBActivateNotification());
    panel->Listen(check, check->GetChkBModifyNotification());
    button->SetSensitivity(ZOLGreyed);
    check->SetSensitivity(ZOLGreyed);
    _user->Click(*button);
    _user->Click(*check);
    EXPECT_EQ(panel->heard, Heard{});
    EXPECT_FALSE(check->IsOn());
}

TEST_F(MotifViewTest, ValuesSetByCodeTellNobodyHoweverOften) {
    ListeningPanel* panel = OpenPanel();
    auto* check = new ZOLDlgCheckButton(panel, "Mandatory");
    auto* combo = new ZOLDlgCombo(panel, "Type", 0x40000);
    auto* editor = new ZOLDlgEditor(panel, "Name");
    panel->Listen(check, check->GetChkBModifyNotification());
    panel->Listen(combo, combo->GetComboSelectNotification());
    panel->Listen(combo, combo->GetComboModifyNotification());
    panel->Listen(editor, editor->GetEditModifyNotification());
    combo->SetLine("first");
    combo->SetLine("second");
    for (int round = 0; round < 2; ++round) {
        check->SetState(ZOLOn);
        combo->SetSelect(1);
        combo->SetField("third");
        editor->SetText("large");
        _user->Settle();
    }
    EXPECT_EQ(panel->heard, Heard{});
}

TEST_F(MotifViewTest, AClickSwitchesACheckButton) {
    ListeningPanel* panel = OpenPanel();
    auto* check = new ZOLDlgCheckButton(panel, "Mandatory");
    panel->Listen(check, check->GetChkBModifyNotification());
    _user->Click(*check);
    EXPECT_TRUE(check->IsOn());
    EXPECT_EQ(panel->heard, Heard{"Mandatory"});
}

TEST_F(MotifViewTest, AWindowMayGoInsideTheCallbackOfItsOwnButton) {
    auto* panel = new ListeningPanel;
    auto* button = new ZOLDlgPushButton(panel, "Close");
    panel->Listen(button, button->GetPushBActivateNotification());
    panel->reaction = [&](ZOLCommand*, ZOLNotification*, void*) { panel->RequestDelayedDestruction(); };
    panel->SetVisibility(ZOLShown);
    _user->Click(*button);
    EXPECT_EQ(ZOLInteractiveApplication::GetApplication()->CountDialogs(), 0);
}

TEST_F(MotifViewTest, TypedKeysReachTheModelAndReturnConfirms) {
    ListeningPanel* panel = OpenPanel();
    auto* editor = new ZOLDlgEditor(panel, "Name");
    panel->Listen(editor, editor->GetEditModifyNotification());
    editor->SetVerifyCallback(
        [](const ZOLUnicodeString& text, void*) { return text.SearchSubString("x") == -1 ? 1 : 0; });
    _user->Click(*editor);
    _user->Type("bxo\n");
    EXPECT_EQ(editor->GetText(), ZOLUnicodeString("bo"));
    EXPECT_EQ(panel->heard, Heard{"Name"});
}

TEST_F(MotifViewTest, AQuestionIsAnsweredByAClickAndKeepsItsWindowStill) {
    ListeningPanel* panel = OpenPanel();
    auto* check = new ZOLDlgCheckButton(panel, "Mandatory");
    _user->Click(*check);
    ASSERT_TRUE(check->IsOn());

    ZOLDlgNotify box(panel, "Confirm", 0x2000200);
    _user->WhenItIs([&] { return box.IsOnScreen(); },
                    [&] {
                        _user->Click(*check);
                        _user->Click(_user->MiddleOf(_user->PartOf(box, "*Cancel")));
                    });
    EXPECT_EQ(box.DisplayBlocked("Delete it?", "Delete"), 2);
    EXPECT_TRUE(check->IsOn()) << "the click went through the question";
    ZOLUserDriver::TakeMessages();
}

} // namespace
