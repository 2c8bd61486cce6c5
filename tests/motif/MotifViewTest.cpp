#include "motif/VirtualScreen.h"
#include "toolkit/MotifToolkit.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ToolkitView.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "values/ZOLGYRError.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>

#include <array>

namespace {

// What a user does with the mouse and the keyboard of a real server.
class MotifViewTest : public ToolkitTest {
protected:
    static void SetUpTestSuite() {
        _screen = new VirtualScreen;
        std::string program = "test";
        std::string option = "-display";
        std::string display = _screen->GetDisplay();
        std::array<char*, 4> arguments = {program.data(), option.data(), display.data(), nullptr};
        int count = 3;
        ZOLGYRError error;
        ASSERT_TRUE(trellis::MotifToolkit::Start(count, arguments.data(), error)) << error.GetCode();
        EXPECT_EQ(count, 1) << "the option was left to the program";
    }
    static void TearDownTestSuite() {
        trellis::MotifToolkit::Stop();
        delete _screen;
    }

    // The native widget of a dialog, and its middle on the root window.
    static Widget NativeOf(ZOLDialog& dialog) {
        trellis::ToolkitView::Current()->UpdateDisplay();
        return static_cast<Widget>(trellis::ToolkitView::Current()->GetNativeFather(dialog));
    }
    static void Click(Widget widget, unsigned int button = 1) {
        Dimension width = 0;
        Dimension height = 0;
        XtVaGetValues(widget, XtNwidth, &width, XtNheight, &height, nullptr);
        Position x = 0;
        Position y = 0;
        XtTranslateCoords(widget, static_cast<Position>(width / 2), static_cast<Position>(height / 2), &x,
                          &y);
        _screen->Click(x, y, button);
    }
    static void Click(ZOLDialog& dialog) { Click(NativeOf(dialog)); }
    static void Press(const char* key) { _screen->Press(key); }
    // Serves events until that is so.
    static void Until(const std::function<bool()>& isSo) { trellis::ToolkitView::Current()->RunUntil(isSo); }
    // Serves what was sent before: a click on a button of another window comes behind it.
    void ServeAll() {
        auto* marker = new ListeningPanel(nullptr, "Marker");
        auto* button = new ZOLDlgPushButton(marker, "Here");
        marker->Listen(button, button->GetPushBActivateNotification());
        marker->SetRectPosition(900, 600);
        marker->SetVisibility(ZOLShown);
        Click(*button);
        Until([marker] { return !marker->heard.empty(); });
        marker->RequestDelayedDestruction();
        trellis::CallbackScope::FreeGivenUp();
    }

    static inline VirtualScreen* _screen = nullptr;
};

TEST_F(MotifViewTest, AClickOnAButtonTellsThePanelOnce) {
    ListeningPanel* panel = OpenPanel();
    auto* button = new ZOLDlgPushButton(panel, "Rename");
    panel->Listen(button, button->GetPushBActivateNotification());
    Click(*button);
    ServeAll();
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
    Click(*button);
    Click(*check);
    ServeAll();
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
        ServeAll();
    }
    EXPECT_EQ(panel->heard, Heard{});
}

TEST_F(MotifViewTest, AClickSwitchesACheckButton) {
    ListeningPanel* panel = OpenPanel();
    auto* check = new ZOLDlgCheckButton(panel, "Mandatory");
    panel->Listen(check, check->GetChkBModifyNotification());
    Click(*check);
    ServeAll();
    EXPECT_TRUE(check->IsOn());
    EXPECT_EQ(panel->heard, Heard{"Mandatory"});
}

TEST_F(MotifViewTest, AWindowMayGoInsideTheCallbackOfItsOwnButton) {
    auto* panel = new ListeningPanel;
    auto* button = new ZOLDlgPushButton(panel, "Close");
    panel->Listen(button, button->GetPushBActivateNotification());
    bool isGone = false;
    panel->reaction = [&](ZOLCommand*, ZOLNotification*, void*) {
        panel->RequestDelayedDestruction();
        isGone = true;
    };
    panel->SetVisibility(ZOLShown);
    Click(*button);
    Until([&] { return isGone; });
    ServeAll();
    EXPECT_EQ(ZOLInteractiveApplication::GetApplication()->CountDialogs(), 0);
}

TEST_F(MotifViewTest, TypedKeysReachTheModelAndReturnConfirms) {
    ListeningPanel* panel = OpenPanel();
    auto* editor = new ZOLDlgEditor(panel, "Name");
    panel->Listen(editor, editor->GetEditModifyNotification());
    editor->SetVerifyCallback(
        [](const ZOLUnicodeString& text, void*) { return text.SearchSubString("x") == -1 ? 1 : 0; });
    Click(*editor);
    for (const char* key : {"b", "x", "o", "Return"})
        Press(key);
    Until([&] { return !panel->heard.empty(); });
    EXPECT_EQ(editor->GetText(), ZOLUnicodeString("bo"));
    EXPECT_EQ(panel->heard, Heard{"Name"});
}

TEST_F(MotifViewTest, AQuestionIsAnsweredByAClickAndKeepsItsWindowStill) {
    ListeningPanel* panel = OpenPanel();
    auto* check = new ZOLDlgCheckButton(panel, "Mandatory");
    Click(*check);
    ServeAll();
    ASSERT_TRUE(check->IsOn());

    ZOLDlgNotify box(panel, "Confirm", 0x2000200);
    const auto answerLater = [](XtPointer notify, XtIntervalId*) {
        Widget shell = NativeOf(*static_cast<ZOLDlgNotify*>(notify));
        Click(XtNameToWidget(shell, "*Cancel"));
    };
    Click(*check);
    XtAppAddTimeOut(static_cast<XtAppContext>(trellis::ToolkitView::Current()->GetNativeApplication()), 0,
                    answerLater, &box);
    EXPECT_EQ(box.DisplayBlocked("Delete it?", "Delete"), 2);
    EXPECT_TRUE(check->IsOn()) << "the click went through the question";
    ZOLUserDriver::TakeMessages();
}

} // namespace
