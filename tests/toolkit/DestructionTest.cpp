#include "toolkit/ToolkitFixture.h"

#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushButton.h"

namespace {

// Tells when it dies.
class MortalFrame : public ZOLDlgFrame {
public:
    MortalFrame(ZOLDialog* father, bool& isDead) : ZOLDlgFrame(father, "Mortal"), _isDead(isDead) {}
    ~MortalFrame() override { _isDead = true; }

private:
    bool& _isDead;
};

class DestructionTest : public ToolkitTest {
protected:
    void SetUp() override {
        panel = OpenPanel();
        mortal = new MortalFrame(panel, isDead);
        button = new ZOLDlgPushButton(mortal, "Button");
        panel->Listen(button, button->GetPushBActivateNotification());
    }
    ListeningPanel* panel = nullptr;
    bool isDead = false;
    MortalFrame* mortal = nullptr;
    ZOLDlgPushButton* button = nullptr;
};

} // namespace

TEST_F(DestructionTest, AWidgetDestroyedInItsOwnNotificationLivesUntilTheVerbEnds) {
    panel->reaction = [&](ZOLCommand* sender, ZOLNotification*, void*) {
        mortal->RequestDelayedDestruction();
        mortal->RequestDelayedDestruction();
        EXPECT_FALSE(isDead);
        EXPECT_EQ(sender->GetName(), "Button");
        EXPECT_EQ(button->UserActivate(), ZOLUserResult::Hidden);
    };
    ZOLUserDriver::Press(button);
    EXPECT_TRUE(isDead);
    EXPECT_EQ(panel->heard.size(), 1u);
}

TEST_F(DestructionTest, WhatIsGivenUpIsHiddenAtOnceAndNeitherFoundNorDescribed) {
    const trellis::CallbackScope scope;
    mortal->RequestDelayedDestruction();
    EXPECT_EQ(mortal->GetVisibility(), ZOLHidden);
    mortal->SetVisibility(ZOLShown);
    EXPECT_EQ(mortal->GetVisibility(), ZOLHidden);
    EXPECT_THROW(ZOLUserDriver::Find(panel, "Button"), ZOLUserDriver::Refused);
    EXPECT_EQ(ZOLUserDriver::Describe(panel).find("Button"), std::string::npos);
    EXPECT_NE(ReasonOf([&] { ZOLUserDriver::Press(button); }), "not refused");
    EXPECT_FALSE(isDead);
}

TEST_F(DestructionTest, AListenerThatIsGivenUpHearsNothingMoreThoughItsFathersDo) {
    auto* inner = new ListeningPanel(panel, "Inner");
    auto* innerButton = new ZOLDlgPushButton(inner, "InnerButton");
    inner->Listen(innerButton, innerButton->GetPushBActivateNotification());
    panel->Listen(innerButton, innerButton->GetPushBActivateNotification());
    const trellis::CallbackScope scope;
    inner->RequestDelayedDestruction();
    innerButton->SendNotification(nullptr, innerButton->GetPushBActivateNotification());
    EXPECT_TRUE(inner->heard.empty());
    EXPECT_EQ(panel->heard, Heard{"InnerButton"});
}

TEST_F(DestructionTest, APanelThatIsHeldIsEndedForTheUserAndFreedWithTheLastHandle) {
    ZOLVar<ZOLDialog> held(mortal);
    mortal->RequestDelayedDestruction();
    trellis::CallbackScope::FreeGivenUp();
    EXPECT_FALSE(isDead);
    EXPECT_EQ(mortal->GetOwner(), nullptr);
    held = nullptr;
    EXPECT_TRUE(isDead);
}

TEST_F(DestructionTest, DeletingADialogOutrightTakesItOutOfItsOwner) {
    delete mortal;
    EXPECT_TRUE(isDead);
    EXPECT_TRUE(panel->GetChildren().empty());
    EXPECT_NE(ReasonOf([&] { ZOLUserDriver::Press(button); }), "not refused");
}

TEST_F(DestructionTest, ADialogMadeForAFatherThatIsGoneStandsAlone) {
    ZOLDialog* const gone = mortal;
    delete mortal;
    ListeningPanel orphan(gone, "Orphan");
    EXPECT_EQ(orphan.GetOwner(), nullptr);
    EXPECT_EQ(orphan.GetFather(), nullptr);
}

TEST_F(DestructionTest, WhatIsBuiltInAPanelThatIsGivenUpEndsWithItAndAWindowStandsAlone) {
    auto* frame = new ZOLDlgFrame(panel, "Frame");
    const trellis::WeakCommand life([&] {
        const trellis::CallbackScope scope;
        frame->RequestDelayedDestruction();
        auto* late = new ZOLDlgPushButton(frame, "Late");
        EXPECT_EQ(late->GetOwner(), frame);
        EXPECT_EQ(late->GetVisibility(), ZOLHidden);
        auto* moved = new ZOLDlgPushButton(panel, "Moved");
        moved->Reparent(frame);
        EXPECT_EQ(moved->GetVisibility(), ZOLHidden);
        ListeningPanel window(frame, "Window");
        window.SetVisibility(ZOLShown);
        EXPECT_EQ(window.GetOwner(), nullptr);
        EXPECT_TRUE(window.IsOnScreen());
        return trellis::WeakCommand(late);
    }());
    EXPECT_EQ(life.Get(), nullptr);
}

TEST_F(DestructionTest, WhatIsGivenUpInsideNestedCallbacksWaitsForTheOutermost) {
    auto* other = new ZOLDlgPushButton(panel, "Other");
    panel->Listen(other, other->GetPushBActivateNotification());
    panel->reaction = [&](ZOLCommand* sender, ZOLNotification*, void*) {
        if (sender == other) {
            mortal->RequestDelayedDestruction();
        } else {
            other->UserActivate();
            EXPECT_FALSE(isDead);
        }
    };
    ZOLUserDriver::Press(button);
    EXPECT_TRUE(isDead);
}

TEST_F(DestructionTest, AListMayBeRefilledOrGivenUpInsideItsOwnNotification) {
    auto* list = new ZOLDlgMultiList(panel, "List");
    for (const char* text : {"a", "b", "c"})
        list->SetColumnItem(0, text);
    panel->Listen(list, list->GetListSelectNotification());
    panel->Listen(list, list->GetListActivateNotification());
    panel->reaction = [&](ZOLCommand*, ZOLNotification*, void*) { list->ClearLine(); };
    ZOLUserDriver::Activate(list, 2);
    EXPECT_EQ(panel->heard.size(), 1u) << "the row to activate was gone when the selection had been told";

    list->SetColumnItem(0, "d");
    panel->reaction = [&](ZOLCommand*, ZOLNotification*, void*) { list->RequestDelayedDestruction(); };
    ZOLUserDriver::Select(list, {0});
    EXPECT_THROW(ZOLUserDriver::Find(panel, "List"), ZOLUserDriver::Refused);
}

TEST_F(DestructionTest, ReparentingMovesWidgetAndNewsUnlessTheFatherWasChosen) {
    auto* other = OpenPanel("Other");
    auto* chosen = OpenPanel("Chosen");
    auto* free = new ZOLDlgPushButton(panel, "Free");
    auto* bound = new ZOLDlgPushButton(panel, "Bound");
    bound->SetFather(chosen);
    free->Reparent(other);
    bound->Reparent(other);
    EXPECT_EQ(free->GetFather(), other);
    EXPECT_EQ(bound->GetFather(), chosen);
    EXPECT_EQ(bound->GetFatherWindow(), other);
}
