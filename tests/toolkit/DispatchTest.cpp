#include "toolkit/ToolkitFixture.h"

#include "toolkit/ZOLDlgPushButton.h"

#include <stdexcept>

namespace {

class PlainCommand : public ZOLCommand {
public:
    explicit PlainCommand(ZOLCommand* father, const char* name = "Command") : ZOLCommand(father, name) {}
};

class DispatchTest : public ToolkitTest {
protected:
    void SetUp() override {
        outer = OpenPanel("Outer");
        inner = OpenPanel("Inner", outer);
        button = new ZOLDlgPushButton(inner, "Button");
        activate = button->GetPushBActivateNotification();
    }
    ListeningPanel* outer = nullptr;
    ListeningPanel* inner = nullptr;
    ZOLDlgPushButton* button = nullptr;
    ZOLNotification* activate = nullptr;
};

} // namespace

TEST_F(DispatchTest, TheFirstFatherThatListensTakesTheNewsAndNobodyBehindItHearsOfIt) {
    outer->Listen(button, activate);
    ZOLUserDriver::Press(button);
    EXPECT_EQ(outer->heard, Heard{"Button"});

    inner->Listen(button, activate);
    ZOLUserDriver::Press(button);
    EXPECT_EQ(inner->heard, Heard{"Button"});
    EXPECT_EQ(outer->heard.size(), 1u);
}

TEST_F(DispatchTest, TheSenderIsToldWhetherAnybodyTookItsNews) {
    ZOLNotification news("News");
    EXPECT_EQ(inner->SendNotification(inner->GetFather(), &news), 0);
    outer->Listen(inner, &news);
    EXPECT_EQ(inner->SendNotification(inner->GetFather(), &news), 1);
    EXPECT_EQ(inner->SendNotification(nullptr, nullptr), 0);
}

TEST_F(DispatchTest, APanelThatChecksAPressFirstPassesTheSameNewsOnToItsFather) {
    inner->Listen(inner, inner->GetDiaOKNotification());
    outer->Listen(inner, inner->GetDiaOKNotification());
    bool isValid = false;
    inner->reaction = [&](ZOLCommand*, ZOLNotification* ok, void*) {
        if (isValid)
            inner->SendNotification(inner->GetFather(), ok);
    };
    ZOLUserDriver::Ok(inner);
    EXPECT_TRUE(outer->heard.empty());
    isValid = true;
    ZOLUserDriver::Ok(inner);
    EXPECT_EQ(outer->heard, Heard{"Inner"});
}

TEST_F(DispatchTest, ASubscriptionOnItselfThatIsBeingServedIsPassedOverSoThatTheNewsClimbs) {
    inner->Listen(inner, inner->GetDiaOKNotification());
    outer->Listen(inner, inner->GetDiaOKNotification());
    inner->reaction = [&](ZOLCommand*, ZOLNotification* ok, void*) { inner->SendNotification(inner, ok); };
    ZOLUserDriver::Ok(inner);
    EXPECT_EQ(inner->heard.size(), 1u);
    EXPECT_EQ(outer->heard.size(), 1u);
}

TEST_F(DispatchTest, ASubscriptionOnAnotherIsServedAgainWhileItIsServed) {
    inner->Listen(button, activate);
    inner->reaction = [&](ZOLCommand*, ZOLNotification*, void*) {
        if (inner->heard.size() < 3)
            button->UserActivate();
    };
    ZOLUserDriver::Press(button);
    EXPECT_EQ(inner->heard.size(), 3u);
}

TEST_F(DispatchTest, SubscriptionsAreCalledInOrderWhetherByObjectOrByClassAndEachOnce) {
    inner->ListenAlso(button, activate);
    inner->AddAnalyseNotificationCB(button, activate->ClassName(), ZOL_CALLBACK(&ListeningPanel::HeardCB));
    inner->Listen(button, activate);
    inner->Listen(button, activate);
    inner->ListenAlso(button, activate);
    ZOLUserDriver::Press(button);
    EXPECT_EQ(inner->heard, (Heard{"also Button", "Button", "Button"}));
}

TEST_F(DispatchTest, TheSameMethodWithOtherDataIsAnotherSubscriptionAndGetsItsOwn) {
    std::vector<void*> data;
    int one = 0;
    int two = 0;
    inner->reaction = [&](ZOLCommand*, ZOLNotification*, void* given) { data.push_back(given); };
    inner->Listen(button, activate, &two);
    inner->Listen(button, activate, &one);
    ZOLUserDriver::Press(button);
    EXPECT_EQ(data, (std::vector<void*>{&two, &one}));
}

TEST_F(DispatchTest, ASubscriptionMadeWhileTheNewsIsServedWaitsForTheNextOne) {
    inner->Listen(button, activate);
    inner->reaction = [&](ZOLCommand*, ZOLNotification*, void*) { inner->ListenAlso(button, activate); };
    ZOLUserDriver::Press(button);
    EXPECT_EQ(inner->heard, Heard{"Button"});
    ZOLUserDriver::Press(button);
    EXPECT_EQ(inner->heard, (Heard{"Button", "Button", "also Button"}));
}

TEST_F(DispatchTest, AListenerThatRemovesListenersIsNotFollowedByThem) {
    inner->Listen(button, activate);
    inner->ListenAlso(button, activate);
    inner->reaction = [&](ZOLCommand*, ZOLNotification*, void*) {
        inner->RemoveAnalyseNotificationCB(button, activate);
    };
    ZOLUserDriver::Press(button);
    ZOLUserDriver::Press(button);
    EXPECT_EQ(inner->heard, Heard{"Button"});
}

TEST_F(DispatchTest, ASubscriptionEndsWithTheListenerTheSenderAndTheNotification) {
    auto news = std::make_unique<ZOLNotification>("News");
    {
        PlainCommand sender(outer, "Gone");
        outer->Listen(&sender, news.get());
        EXPECT_EQ(sender.SendNotification(nullptr, news.get()), 1);
    }
    PlainCommand sender(outer);
    outer->Listen(&sender, news.get());
    news = std::make_unique<ZOLNotification>("News"); // may stand at the same address
    EXPECT_EQ(sender.SendNotification(nullptr, news.get()), 0);

    auto* listener = new ListeningPanel(nullptr, "Listener");
    listener->Listen(&sender, news.get());
    sender.SetFather(listener);
    EXPECT_EQ(sender.SendNotification(nullptr, news.get()), 1);
    delete listener;
    EXPECT_EQ(sender.GetFather(), nullptr);
    EXPECT_EQ(sender.SendNotification(nullptr, news.get()), 0);
}

TEST_F(DispatchTest, SubscriptionsCanBeEndedByPairBySenderByClassAndAltogether) {
    PlainCommand other(inner, "Other");
    ZOLNotification news("News");
    const auto sent = [&] {
        return std::to_string(button->SendNotification(nullptr, activate)) +
               std::to_string(other.SendNotification(nullptr, &news));
    };
    const auto subscribe = [&] {
        inner->Listen(button, activate);
        inner->AddAnalyseNotificationCB(&other, "News", ZOL_CALLBACK(&ListeningPanel::HeardCB));
    };
    subscribe();
    EXPECT_EQ(sent(), "11");
    inner->RemoveAnalyseNotificationCB(&other, "News");
    EXPECT_EQ(sent(), "10");
    subscribe();
    inner->RemoveCallbacksOn(button);
    EXPECT_EQ(sent(), "01");
    subscribe();
    inner->RemoveInterfaceSubscriptions("News");
    EXPECT_EQ(sent(), "10");
    subscribe();
    other.RemoveSubscriberCallbacks(inner);
    EXPECT_EQ(sent(), "10");
    subscribe();
    inner->RemoveCallback({button, activate, nullptr, ZOL_CALLBACK(&ListeningPanel::HeardAlsoCB), nullptr});
    EXPECT_EQ(sent(), "11");
    inner->RemoveInterfaceSubscriptions();
    EXPECT_EQ(sent(), "00");
}

TEST_F(DispatchTest, ANullNotificationOrSenderIsNoSubscription) {
    inner->Listen(button, nullptr);
    inner->Listen(nullptr, activate);
    ZOLUserDriver::Press(button);
    EXPECT_TRUE(inner->heard.empty());
}

TEST_F(DispatchTest, NewsFollowFathersWhileOwnersStayWhatTheyWere) {
    PlainCommand controller(nullptr, "Controller");
    auto* elsewhere = OpenPanel("Elsewhere");
    controller.SetFather(elsewhere);
    inner->SetFather(&controller);
    outer->Listen(button, activate);
    elsewhere->Listen(button, activate);
    ZOLUserDriver::Press(button);
    EXPECT_TRUE(outer->heard.empty());
    EXPECT_EQ(elsewhere->heard.size(), 1u);
    EXPECT_EQ(inner->GetOwner(), outer);
}

TEST_F(DispatchTest, ACommandAtRestLetsNewsPass) {
    inner->Listen(button, activate);
    outer->Listen(button, activate);
    inner->Desactivate();
    ZOLUserDriver::Press(button);
    EXPECT_TRUE(inner->heard.empty());
    inner->Activate();
    ZOLUserDriver::Press(button);
    EXPECT_EQ(inner->heard.size(), 1u);
    EXPECT_EQ(outer->heard.size(), 1u);
}

TEST_F(DispatchTest, AnExceptionOfACallbackIsShownOnceAndTheNextListenerIsStillCalled) {
    inner->Listen(button, activate);
    inner->ListenAlso(button, activate);
    inner->reaction = [](ZOLCommand*, ZOLNotification*, void*) { throw std::runtime_error("store is gone"); };
    ZOLUserDriver::Press(button);
    EXPECT_EQ(inner->heard, (Heard{"Button", "also Button"}));
    const auto messages = ZOLUserDriver::TakeMessages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].code, 60101);
    EXPECT_NE(messages[0].text.Bytes().find("store is gone"), std::string::npos);
}

TEST(ZOLCommandTest, TheStatusLineShowsThePromptOfTheNearestCommandThatRuns) {
    PlainCommand outer(nullptr);
    PlainCommand inner(&outer);
    outer.SetPrompt("Choose a part");
    inner.SetPrompt("Choose a link");
    EXPECT_TRUE(inner.GetStatusPrompt().IsEmpty());
    outer.BeginCommand();
    EXPECT_EQ(inner.GetStatusPrompt(), "Choose a part");
    inner.BeginCommand();
    EXPECT_EQ(inner.GetStatusPrompt(), "Choose a link");
}

TEST(ZOLCommandTest, CancelGoesBackToTheSavedStateAndEndsTheCommand) {
    PlainCommand command(nullptr);
    command.SetPrompt("before");
    command.RestoreState();
    EXPECT_EQ(command.GetPrompt(), "before");
    command.SaveState();
    command.SetPrompt("after");
    command.BeginCommand();
    command.Cancel();
    EXPECT_EQ(command.GetPrompt(), "before");
    EXPECT_FALSE(command.IsRunning());
    command.Reset();
    EXPECT_TRUE(command.GetPrompt().IsEmpty());
}

TEST(ZOLCommandTest, UndoGoesToTheNearestFatherThatKeepsSteps) {
    class Keeper : public PlainCommand {
    public:
        Keeper() : PlainCommand(nullptr) {}
        int UndoCommand() override { return steps > 0 ? steps-- : 0; }
        ZOLCommand* GetGlobalUndo() override { return this; }
        int steps = 1;
    };
    Keeper keeper;
    PlainCommand middle(&keeper);
    PlainCommand inner(&middle);
    EXPECT_EQ(inner.UndoCommand(), 1);
    EXPECT_EQ(inner.UndoCommand(), 0);
    EXPECT_EQ(PlainCommand(nullptr).UndoCommand(), 0);
}

TEST(ZOLCommandDeathTest, ACommandCannotBecomeItsOwnAncestor) {
    PlainCommand outer(nullptr);
    PlainCommand inner(&outer);
    EXPECT_DEATH(outer.SetFather(&inner), "ancestor");
}
