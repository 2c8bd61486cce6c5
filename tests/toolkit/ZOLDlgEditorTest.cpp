#include "toolkit/ZOLDlgEditor.h"

#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgPushButton.h"

namespace {

// A verify function that writes down what it is asked.
struct Verifier {
    static int Ask(const ZOLUnicodeString& text, void* data) {
        auto* self = static_cast<Verifier*>(data);
        self->asked.push_back(text.Bytes());
        if (self->whileAsked)
            self->whileAsked();
        return text.Bytes().find(self->forbidden) == std::string::npos ? 1 : 0;
    }
    std::vector<std::string> asked;
    std::string forbidden = "!";
    std::function<void()> whileAsked;
};

class ZOLDlgEditorTest : public ToolkitTest {
protected:
    void SetUp() override {
        panel = OpenPanel();
        editor = new ZOLDlgEditor(panel, "Editor");
        button = new ZOLDlgPushButton(panel, "Button");
        panel->Listen(editor, editor->GetEditModifyNotification());
        panel->Listen(button, button->GetPushBActivateNotification());
        editor->SetVerifyCallback(&Verifier::Ask, &verifier);
    }
    std::string Text() const { return editor->GetText().Bytes(); }
    std::pair<int, int> Selection() const {
        std::pair<int, int> selection;
        editor->GetSelection(selection.first, selection.second);
        return selection;
    }
    Verifier verifier;
    ListeningPanel* panel = nullptr;
    ZOLDlgEditor* editor = nullptr;
    ZOLDlgPushButton* button = nullptr;
};

} // namespace

TEST_F(ZOLDlgEditorTest, EachKeyIsAskedForOnceWithTheTextAsItWouldBecome) {
    verifier.whileAsked = [&] { EXPECT_NE(Text(), verifier.asked.back()); };
    ZOLUserDriver::Type(editor, "aé");
    EXPECT_EQ(verifier.asked, (std::vector<std::string>{"a", "aé"}));
    ZOLUserDriver::Type(editor, "");
    EXPECT_EQ(verifier.asked.back(), "");
}

TEST_F(ZOLDlgEditorTest, AKeyThatTheFunctionRefusesDoesNotAppearAndTheOthersDo) {
    ZOLUserDriver::Type(editor, "a!b");
    EXPECT_EQ(Text(), "ab");
}

TEST_F(ZOLDlgEditorTest, ATextSetByCodeIsAskedForOnceAndNeverConfirmed) {
    editor->SetText("code");
    editor->SetText("code");
    editor->ClearLine();
    EXPECT_EQ(verifier.asked, (std::vector<std::string>{"code", "code", ""}));
    editor->SetText("a!");
    EXPECT_EQ(Text(), "");
    ZOLUserDriver::Press(button);
    EXPECT_EQ(panel->heard, Heard{"Button"});
}

TEST_F(ZOLDlgEditorTest, WhatTheFunctionItselfSetsIsNotAskedForAgain) {
    auto* other = new ZOLDlgEditor(panel, "Other");
    Verifier back;
    other->SetVerifyCallback(&Verifier::Ask, &back);
    verifier.whileAsked = [&] { other->SetText(verifier.asked.back()); };
    back.whileAsked = [&] { editor->SetText("from other"); };
    editor->SetText("start");
    EXPECT_EQ(verifier.asked.size(), 1u);
    EXPECT_EQ(back.asked.size(), 1u);
    EXPECT_EQ(Text(), "start");
}

TEST_F(ZOLDlgEditorTest, LeavingAChangedEditorConfirmsOnceBeforeWhatTheUserDoesThen) {
    ZOLUserDriver::Type(editor, "abc");
    EXPECT_TRUE(panel->heard.empty());
    ZOLUserDriver::Press(button);
    ZOLUserDriver::Press(button);
    EXPECT_EQ(panel->heard, (Heard{"Editor", "Button", "Button"}));
}

TEST_F(ZOLDlgEditorTest, ReturnConfirmsAlsoAnUnchangedTextAndLeavingAfterItDoesNot) {
    ZOLUserDriver::Enter(editor);
    ZOLUserDriver::Type(editor, "abc");
    ZOLUserDriver::Enter(editor);
    ZOLUserDriver::Press(button);
    EXPECT_EQ(panel->heard, (Heard{"Editor", "Editor", "Button"}));
}

TEST_F(ZOLDlgEditorTest, AButtonThatTakesNoFocusLeavesTheTypedTextUnconfirmed) {
    button->SetTakesFocus(0);
    ZOLUserDriver::Type(editor, "abc");
    ZOLUserDriver::Press(button);
    EXPECT_EQ(panel->heard, Heard{"Button"});
    ZOLUserDriver::Ok(panel);
    EXPECT_EQ(panel->heard.back(), "Editor");
}

TEST_F(ZOLDlgEditorTest, AListenerOfTheConfirmationMayTakeTheButtonAwayThatTheUserIsPressing) {
    panel->reaction = [&](ZOLCommand* sender, ZOLNotification*, void*) {
        if (sender == editor)
            button->SetSensitivity(ZOLGreyed);
    };
    ZOLUserDriver::Type(editor, "abc");
    EXPECT_THROW(ZOLUserDriver::Press(button), ZOLUserDriver::Refused);
    EXPECT_EQ(panel->heard, Heard{"Editor"});
}

TEST_F(ZOLDlgEditorTest, TypingReplacesTheSelectionInCodePointsAndLeavesTheCaretBehindIt) {
    editor->SetText("añoß");
    EXPECT_EQ(Selection(), std::pair(4, -1));
    ZOLUserDriver::SelectText(editor, 1, 3);
    ZOLUserDriver::Type(editor, "xy");
    EXPECT_EQ(Text(), "axyß");
    EXPECT_EQ(Selection(), std::pair(3, -1));
    ZOLUserDriver::Key(editor, ZOLUserKey::Backspace);
    ZOLUserDriver::Key(editor, ZOLUserKey::Delete);
    EXPECT_EQ(Text(), "ax");
    ZOLUserDriver::Key(editor, ZOLUserKey::Delete);
    EXPECT_EQ(Text(), "ax");
    editor->SetSelection(-3, 99);
    EXPECT_EQ(Selection(), std::pair(0, 2));
    EXPECT_THROW(ZOLUserDriver::SelectText(editor, 0, 3), ZOLUserDriver::Refused);
}

TEST_F(ZOLDlgEditorTest, TheLimitStopsKeysButNeitherCodeNorTakingAway) {
    editor->SetMaxCharacterWidth(3);
    ZOLUserDriver::Type(editor, "äöüx");
    EXPECT_EQ(Text(), "äöü");
    editor->SetText("longer");
    EXPECT_EQ(Text(), "longer");
    ZOLUserDriver::Key(editor, ZOLUserKey::Backspace);
    EXPECT_EQ(Text(), "longe");
}

TEST_F(ZOLDlgEditorTest, LinesAreSetAndReadOneByOneAndReturnBeginsOneWhereThereAreSeveral) {
    auto* notes = new ZOLDlgEditor(panel, "Notes", 0x80000);
    panel->Listen(notes, notes->GetEditModifyNotification());
    notes->SetLine("third", 2);
    notes->SetLine("first", 0);
    EXPECT_EQ(notes->GetText(), "first\n\nthird");
    ZOLUnicodeString line("untouched");
    EXPECT_EQ(notes->GetLine(line, 3), 0);
    EXPECT_EQ(line, "untouched");
    EXPECT_EQ(notes->GetLine(line, 1), 1);
    EXPECT_TRUE(line.IsEmpty());
    ZOLUserDriver::Enter(notes);
    EXPECT_EQ(notes->GetText(), "first\n\nthird\n");
    EXPECT_TRUE(panel->heard.empty());
}

TEST_F(ZOLDlgEditorTest, AReadOnlyEditorRefusesTypingAndTakesCode) {
    auto* fixed = new ZOLDlgEditor(panel, "Fixed", 0x4080000);
    fixed->SetText("told");
    EXPECT_EQ(ReasonOf([&] { ZOLUserDriver::Type(fixed, "x"); }),
              "cannot type into editor \"Fixed\": it cannot be edited");
    EXPECT_EQ(fixed->GetText(), "told");
}

TEST_F(ZOLDlgEditorTest, APastedTextBecomesOneLineWhereThereIsRoomForOne) {
    EXPECT_EQ(editor->UserInsert("one\ntwo"), ZOLUserResult::Done);
    EXPECT_EQ(Text(), "one two");
    EXPECT_EQ(verifier.asked, std::vector<std::string>{"one two"});
    auto* notes = new ZOLDlgEditor(panel, "Notes", 0x80000);
    EXPECT_EQ(notes->UserInsert("one\ntwo"), ZOLUserResult::Done);
    EXPECT_EQ(notes->GetText(), "one\ntwo");
}

TEST_F(ZOLDlgEditorTest, AnEditorThatWasGreyedOrHiddenMeanwhileConfirmsNothing) {
    ZOLUserDriver::Type(editor, "abc");
    editor->SetSensitivity(ZOLGreyed);
    editor->UserLeave();
    editor->SetSensitivity(ZOLActive);
    editor->SetVisibility(ZOLHidden);
    editor->UserLeave();
    EXPECT_TRUE(panel->heard.empty());
    editor->SetVisibility(ZOLShown);
    editor->UserLeave();
    EXPECT_EQ(panel->heard, Heard{"Editor"});
}

TEST_F(ZOLDlgEditorTest, AnEditorGivenUpByItsOwnVerifyFunctionStopsTheTyping) {
    verifier.whileAsked = [&] { editor->RequestDelayedDestruction(); };
    EXPECT_THROW(ZOLUserDriver::Type(editor, "ab"), ZOLUserDriver::Refused);
    EXPECT_EQ(verifier.asked.size(), 1u);
    EXPECT_TRUE(panel->heard.empty());
}
