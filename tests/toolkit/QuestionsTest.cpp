#include "panels/ZOLGYRDlgError.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ToolkitView.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLInteractiveApplication.h"
#include "values/ZOLGYRError.h"

namespace {

using Message = ZOLUserDriver::Message;

class QuestionsTest : public ToolkitTest {
protected:
    void SetUp() override {
        outer = OpenPanel("Outer");
        panel = OpenPanel("Panel", outer);
        button = new ZOLDlgPushButton(panel, "Button");
        panel->Listen(button, button->GetPushBActivateNotification());
    }
    static int Ask(ZOLDialog* father) {
        ZOLDlgNotify box(father, "Box", 0x2000000);
        return box.DisplayBlocked("Go on?", "Cleaner");
    }
    static ZOLGYRError Error(int code, int mode = 0) {
        ZOLGYRError error;
        error.Set(code, mode);
        return error;
    }
    ListeningPanel* outer = nullptr;
    ListeningPanel* panel = nullptr;
    ZOLDlgPushButton* button = nullptr;
};

} // namespace

TEST_F(QuestionsTest, AnswersAreTakenInOrderAndEveryMessageIsKept) {
    ZOLUserDriver::Answer({2, 0});
    ZOLUserDriver::Answer({1});
    EXPECT_EQ(Ask(panel), 2);
    EXPECT_EQ(Ask(panel), 0);
    EXPECT_EQ(ZOLUserDriver::PendingAnswers(), 1);
    EXPECT_EQ(Ask(panel), 1);
    const std::vector<Message> messages = ZOLUserDriver::TakeMessages();
    ASSERT_EQ(messages.size(), 3u);
    EXPECT_EQ(messages[0].text, "Go on?");
    EXPECT_EQ(messages[0].title, "Cleaner");
    EXPECT_TRUE(messages[0].isQuestion && messages[1].wasExpected);
    EXPECT_EQ(messages[1].answer, 0);
}

TEST_F(QuestionsTest, AQuestionWithoutAnAnswerOrWithOneItDoesNotOfferIsUnexpectedAndGetsNone) {
    EXPECT_EQ(Ask(panel), 0);
    ZOLUserDriver::Answer({3});
    EXPECT_EQ(Ask(panel), 0);
    for (const Message& message : ZOLUserDriver::TakeMessages())
        EXPECT_FALSE(message.wasExpected);
}

TEST_F(QuestionsTest, ANoticeNeedsNoAnswerAndTakesNone) {
    ZOLUserDriver::Answer({2});
    ZOLDlgNotify notice(panel, "Report");
    EXPECT_EQ(notice.DisplayBlocked("Done", "Report"), 1);
    EXPECT_EQ(ZOLUserDriver::PendingAnswers(), 1);
    notice.SetHELPTitle("All");
    EXPECT_EQ(notice.DisplayBlocked("Done?", "Report"), 0) << "it has no Cancel";
    const std::vector<Message> messages = ZOLUserDriver::TakeMessages();
    EXPECT_FALSE(messages[0].isQuestion);
    EXPECT_EQ(messages[1].buttons, (std::vector{1, 3}));
}

TEST_F(QuestionsTest, AQuestionDisablesItsWindowAndTheOwnersWhileOtherPanelsGoOn) {
    auto* other = OpenPanel("Other");
    auto* otherButton = new ZOLDlgPushButton(other, "OtherButton");
    other->Listen(otherButton, otherButton->GetPushBActivateNotification());
    ZOLUserDriver::WhenAsked([&](const Message&) {
        EXPECT_EQ(ReasonOf([&] { ZOLUserDriver::Press(button); }),
                  "cannot press button \"Button\": a question is open before it");
        EXPECT_THROW(ZOLUserDriver::CloseWindow(outer), ZOLUserDriver::Refused);
        ZOLUserDriver::Press(otherButton);
        return 1;
    });
    EXPECT_EQ(Ask(panel), 1);
    EXPECT_EQ(other->heard.size(), 1u);
    ZOLUserDriver::Press(button);
    ZOLUserDriver::TakeMessages();
}

TEST_F(QuestionsTest, TheQuestionItselfIsAnsweredByTheVerbsAndASecondOneOnTopComesFirst) {
    auto* other = OpenPanel("Other");
    ZOLDialog* first = nullptr;
    ZOLUserDriver::WhenAsked([&](const Message& message) {
        ZOLDialog* box = ZOLUserDriver::Top();
        if (message.title == "Second") {
            EXPECT_THROW(ZOLUserDriver::Ok(first), ZOLUserDriver::Refused);
            ZOLUserDriver::Cancel(box);
            return 1;
        }
        first = box;
        ZOLDlgNotify second(other, "Second", 0x2000000);
        EXPECT_EQ(ZOLUserDriver::Describe(box), "question \"Cleaner\"\n"
                                                "  text \"Go on?\"\n"
                                                "  buttons \"OK\" default, \"Cancel\"\n");
        EXPECT_EQ(second.DisplayBlocked("And this?", "Second"), 2);
        EXPECT_THROW(ZOLUserDriver::Help(box), ZOLUserDriver::Refused);
        ZOLUserDriver::CloseWindow(box);
        return 2;
    });
    EXPECT_EQ(Ask(panel), 0);
    EXPECT_EQ(ZOLUserDriver::TakeMessages().size(), 2u);
}

TEST_F(QuestionsTest, ARefusalInsideTheAskerLeavesTheVerbThatRaisedTheQuestion) {
    panel->reaction = [&](ZOLCommand*, ZOLNotification*, void*) { EXPECT_EQ(Ask(panel), 0); };
    ZOLUserDriver::WhenAsked([&](const Message&) {
        ZOLUserDriver::Find(panel, "Nowhere");
        return 1;
    });
    EXPECT_EQ(ReasonOf([&] { ZOLUserDriver::Press(button); }), "there is no \"Nowhere\"");
    EXPECT_EQ(ZOLUserDriver::TakeMessages().size(), 1u) << "no second box tells of the exception";
}

TEST_F(QuestionsTest, AParentThatDiesUnderItsQuestionLivesUntilTheCallbackHasReturned) {
    const long number = panel->GetNumber();
    panel->reaction = [&](ZOLCommand*, ZOLNotification*, void*) {
        EXPECT_EQ(ZOLGYRDlgError::Display(panel, Error(50102), 1), 1);
        EXPECT_EQ(panel->GetNumber(), number);
        EXPECT_EQ(ZOLGYRDlgError::Display(panel, Error(50103)), 1) << "shown over the top window";
    };
    ZOLUserDriver::WhenAsked([&](const Message&) {
        panel->RequestDelayedDestruction();
        return 1;
    });
    ZOLUserDriver::Press(button);
    EXPECT_THROW(ZOLUserDriver::Find(outer, "Panel"), ZOLUserDriver::Refused);
    EXPECT_EQ(ZOLUserDriver::TakeMessages().size(), 2u);
}

TEST_F(QuestionsTest, AMessageForAFatherThatIsDeletedOrMissingStandsOverTheTopWindow) {
    auto* gone = new ListeningPanel(nullptr, "Gone");
    delete gone;
    ZOLUserDriver::WhenAsked([&](const Message&) {
        EXPECT_THROW(ZOLUserDriver::Ok(panel), ZOLUserDriver::Refused) << "the top window waits";
        return 2;
    });
    EXPECT_EQ(ZOLGYRDlgError::Display(gone, Error(50102), 1), 2);
    EXPECT_EQ(ZOLGYRDlgError::Display(nullptr, Error(50102), 1), 2);
    ZOLUserDriver::TakeMessages();
}

TEST_F(QuestionsTest, AnErrorThatWasShownAlreadyOrIsNoneShowsNothing) {
    EXPECT_EQ(ZOLGYRDlgError::Display(panel, Error(-50102), 1), 0);
    EXPECT_EQ(ZOLGYRDlgError::Display(panel, Error(0), 1), 0);
    EXPECT_TRUE(ZOLUserDriver::TakeMessages().empty());
}

TEST_F(QuestionsTest, AnErrorBoxSaysWhatItIsByItsTitleAndButtons) {
    ZOLUserDriver::Answer({2});
    ZOLGYRDlgError::Display(panel, Error(50102), 1);
    ZOLGYRDlgError::Display(panel, Error(50102, 0));
    ZOLGYRDlgError::Display(panel, Error(50102, -1));
    const std::vector<Message> messages = ZOLUserDriver::TakeMessages();
    ASSERT_EQ(messages.size(), 3u);
    EXPECT_EQ(messages[0].title, "Question");
    EXPECT_EQ(messages[1].title, "Error");
    EXPECT_EQ(messages[2].title, "Notice");
    EXPECT_EQ(messages[0].code, 50102);
    EXPECT_EQ(messages[0].buttons, (std::vector{1, 2}));
    EXPECT_EQ(messages[1].buttons, std::vector{1});
}

TEST_F(QuestionsTest, ABlockedDialogAnswersByItsButtonsWhileItsWidgetsWork) {
    auto* dialog = new ListeningPanel(outer, "Confirm", 0x1c00);
    auto* check = new ZOLDlgCheckButton(dialog, "Check");
    dialog->Listen(dialog, dialog->GetDiaOKNotification());
    dialog->Listen(check, check->GetChkBModifyNotification());
    ZOLUserDriver::WhenAsked([&](const Message&) {
        ZOLUserDriver::Toggle(check, true);
        ZOLUserDriver::Help(dialog);
        return 0;
    });
    EXPECT_EQ(dialog->DisplayBlocked(), 3);
    EXPECT_EQ(dialog->heard, Heard{"Check"});
    EXPECT_EQ(dialog->GetVisibility(), ZOLHidden);
    ZOLUserDriver::WhenAsked([&](const Message&) {
        ZOLUserDriver::CloseWindow(dialog);
        return 1;
    });
    EXPECT_EQ(dialog->DisplayBlocked(), 0);
    EXPECT_EQ(dialog->heard, Heard{"Check"});
    ZOLUserDriver::TakeMessages();
}

TEST_F(QuestionsTest, ABlockedDialogThatIsHiddenOrGivenUpAnswersNothing) {
    auto* dialog = new ListeningPanel(outer, "Confirm", 0xc00);
    ZOLUserDriver::WhenAsked([&](const Message&) {
        dialog->SetVisibility(ZOLHidden);
        return 1;
    });
    EXPECT_EQ(dialog->DisplayBlocked(), 0);
    ZOLUserDriver::WhenAsked([&](const Message&) {
        dialog->RequestDelayedDestruction();
        return 1;
    });
    EXPECT_EQ(dialog->DisplayBlocked(), 0);
    ZOLUserDriver::TakeMessages();
}

TEST_F(QuestionsTest, AModalDialogKeepsTheWindowsThatOwnItFromAnsweringWhileItIsShown) {
    auto* other = OpenPanel("Other");
    auto* otherButton = new ZOLDlgPushButton(other, "OtherButton");
    auto* modal = OpenPanel("Modal", panel, 0x2000e00);
    auto* inside = new ZOLDlgPushButton(modal, "Inside");
    EXPECT_THROW(ZOLUserDriver::Press(button), ZOLUserDriver::Refused);
    EXPECT_THROW(ZOLUserDriver::CloseWindow(outer), ZOLUserDriver::Refused);
    EXPECT_EQ(button->UserActivate(), ZOLUserResult::BehindQuestion);
    ZOLUserDriver::Press(otherButton);
    ZOLUserDriver::Press(inside);
    modal->SetVisibility(ZOLHidden);
    ZOLUserDriver::Press(button);
}

TEST_F(QuestionsTest, TheBusyCursorIsLiftedWhileAQuestionWaitsAndGoesWithTheReturnToTheLoop) {
    auto* application = ZOLInteractiveApplication::GetApplication();
    panel->reaction = [&](ZOLCommand*, ZOLNotification*, void*) {
        application->SetBusyCursor();
        Ask(panel);
        EXPECT_EQ(application->GetBusyCursor(), 1);
    };
    ZOLUserDriver::WhenAsked([&](const Message&) {
        EXPECT_EQ(application->GetBusyCursor(), 0);
        return 1;
    });
    ZOLUserDriver::Press(button);
    EXPECT_EQ(application->GetBusyCursor(), 0);
    ZOLUserDriver::TakeMessages();
}

namespace {

// A view that presses Cancel on whatever waits, as its loop would when the user does.
class CancellingView : public trellis::ToolkitView {
public:
    CancellingView() { Choose(this); }
    ~CancellingView() override { Choose(nullptr); }

    void Shown(ZOLDialog& window) override { shown.push_back(&window); }
    void Changed(ZOLDialog&) override { ++changes; }
    void Destroyed(ZOLDialog&) override {}
    void MenuOpened(ZOLDialog&) override {}
    void RunUntil(const std::function<bool()>& isAnswered) override {
        auto* box = dynamic_cast<ZOLDlgNotify*>(shown.back());
        EXPECT_EQ(box->UserPress(ZOLDialogButton::Apply), ZOLUserResult::NotThere);
        EXPECT_FALSE(isAnswered());
        EXPECT_EQ(box->UserPress(ZOLDialogButton::Cancel), ZOLUserResult::Done);
        EXPECT_TRUE(isAnswered());
    }
    void UpdateDisplay() override {}
    void SetBusy(bool) override {}
    const trellis::TextMeasure& GetTextMeasure() const override { return measure; }
    void* GetNativeFather(ZOLDialog&) override { return nullptr; }
    void* GetNativeApplication() override { return nullptr; }

    std::vector<ZOLDialog*> shown;
    int changes = 0;
    trellis::TextMeasure measure;
};

} // namespace

TEST_F(QuestionsTest, WithAViewItsLoopRunsUntilTheUserAnswersAndNothingLaidReadyIsTaken) {
    ZOLUserDriver::Answer({1});
    {
        CancellingView view;
        EXPECT_EQ(Ask(panel), 2);
        panel->SetTitle("new");
        EXPECT_GT(view.changes, 0);
    }
    EXPECT_EQ(ZOLUserDriver::PendingAnswers(), 1);
    ZOLUserDriver::Answer({});
    EXPECT_EQ(ZOLUserDriver::TakeMessages().size(), 1u);
}
