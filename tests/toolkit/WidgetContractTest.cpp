// What holds for every class of the toolkit that tells something, whatever it is.

#include "toolkit/ToolkitFixture.h"

#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgRadioButton.h"
#include "toolkit/ZOLDlgSelectorList.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgTabPage.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLGraphViewer.h"

namespace {

// Something that tells: who, what, the gesture of a user after which it does, however often, and a state set
// by code without the flag to notify.
struct Teller {
    ZOLDialog* dialog;
    ZOLNotification* news;
    std::function<ZOLUserResult()> gesture;
    std::function<void()> set;
    std::shared_ptr<ZOLGraphNode> node = nullptr; // of graphs
};

struct Kind {
    const char* name;
    Teller (*make)(ZOLDlgFrame* holder);
};

Teller MakePushButton(ZOLDlgFrame* holder) {
    auto* button = new ZOLDlgPushButton(holder, "Teller");
    return {button, button->GetPushBActivateNotification(), [=] { return button->UserActivate(); },
            [=] { button->SetTitle("new"); }};
}

Teller MakeCheckButton(ZOLDlgFrame* holder) {
    auto* check = new ZOLDlgCheckButton(holder, "Teller");
    return {check, check->GetChkBModifyNotification(), [=] { return check->UserToggle(); },
            [=] { check->SetState(ZOLOn); }};
}

Teller MakeRadioButton(ZOLDlgFrame* holder) {
    auto* other = new ZOLDlgRadioButton(holder, "OtherRadio");
    auto* radio = new ZOLDlgRadioButton(holder, "Teller");
    const auto gesture = [=] {
        other->SetState(ZOLOn);
        return radio->UserToggle();
    };
    return {radio, radio->GetRadBModifyNotification(), gesture, [=] { radio->SetState(ZOLOn); }};
}

Teller MakeCombo(ZOLDlgFrame* holder) {
    auto* combo = new ZOLDlgCombo(holder, "Teller");
    combo->SetLine("a");
    combo->SetLine("b");
    return {combo, combo->GetComboSelectNotification(),
            [=] { return combo->UserSelect(combo->GetSelect() == 0 ? 1 : 0); }, [=] { combo->SetSelect(1); }};
}

Teller MakeTypedCombo(ZOLDlgFrame* holder) {
    auto* combo = new ZOLDlgCombo(holder, "Teller", 0x40000);
    return {combo, combo->GetComboModifyNotification(), [=] { return combo->UserEditField("typed"); },
            [=] { combo->SetField("set"); }};
}

Teller MakeEditor(ZOLDlgFrame* holder) {
    auto* editor = new ZOLDlgEditor(holder, "Teller");
    const auto gesture = [=] {
        const ZOLUserResult typed = editor->UserInsert("x");
        return typed == ZOLUserResult::Done ? editor->UserEnter() : typed;
    };
    return {editor, editor->GetEditModifyNotification(), gesture, [=] { editor->SetText("set"); }};
}

Teller MakeSelectedList(ZOLDlgFrame* holder) {
    auto* list = new ZOLDlgMultiList(holder, "Teller");
    list->SetColumnItem(0, "a");
    list->SetColumnItem(0, "b");
    const auto set = [=] {
        const int row = 1;
        list->SetSelect(&row, 1);
    };
    return {list, list->GetListSelectNotification(),
            [=] { return list->UserSelect({list->GetSelect() == 0 ? 1 : 0}); }, set};
}

Teller MakeActivatedList(ZOLDlgFrame* holder) {
    auto* list = new ZOLDlgMultiList(holder, "Teller");
    list->SetColumnItem(0, "a");
    return {list, list->GetListActivateNotification(), [=] { return list->UserActivate(0); },
            [=] { list->SetColumnItem(0, "set", 0); }};
}

Teller MakeSelectorList(ZOLDlgFrame* holder) {
    auto* list = new ZOLDlgSelectorList(holder, "Teller", 0x40000);
    list->SetLine("a");
    return {list, list->GetListSelectNotification(),
            [=] { return list->UserSelect(list->IsSelect(0) ? std::vector<int>() : std::vector{0}); },
            [=] { list->ClearSelect(); }};
}

Teller MakeTabs(ZOLDlgFrame* holder) {
    auto* tabs = new ZOLDlgTabContainer(holder, "Teller");
    auto* first = new ZOLDlgTabPage(tabs, "First");
    auto* second = new ZOLDlgTabPage(tabs, "Second");
    return {tabs, tabs->GetTabSelectNotification(),
            [=] { return tabs->UserSelectPage(tabs->GetSelectedPage() == first ? second : first); },
            [=] { tabs->SetSelectedPage(second); }};
}

Teller MakeItem(ZOLDlgFrame* holder) {
    auto* menu = new ZOLDlgContextualMenu(holder, "Menu");
    auto* item = new ZOLDlgPushItem(menu, "Teller");
    const auto gesture = [=] {
        const ZOLUserResult opened = menu->UserOpen();
        return opened == ZOLUserResult::Done ? item->UserActivate() : opened;
    };
    return {item, item->GetMenuIActivateNotification(), gesture, [=] { item->SetTitle("new"); }};
}

Teller MakeGraph(ZOLDlgFrame* holder) {
    auto* viewer = new ZOLGraphViewer(holder, "Teller", 0, 100, 100, 0);
    const auto node = std::make_shared<ZOLGraphNode>("root", " ");
    viewer->add(node.get());
    return {viewer, node->GetSelectNotification(),
            [viewer, n = node.get()] { return viewer->UserClickNode(n); },
            [viewer, n = node.get()] {
                n->setHighlight(1);
                viewer->centre(n);
            },
            node};
}

Teller MakeDialog(ZOLDlgFrame* holder) {
    auto* dialog = dynamic_cast<ZOLDlgDialog*>(holder->GetFatherWindow());
    return {dialog, dialog->GetDiaOKNotification(), [=] { return dialog->UserPress(ZOLDialogButton::OK); },
            [=] { dialog->SetOKSensitivity(ZOLActive); }};
}

class WidgetContractTest : public ToolkitTest, public testing::WithParamInterface<Kind> {
protected:
    struct Stage {
        ListeningPanel* panel;
        Teller teller;
    };
    Stage Open(const char* name) {
        ListeningPanel* panel = OpenPanel(name);
        Teller teller = GetParam().make(new ZOLDlgFrame(panel, "Frame"));
        panel->Listen(teller.dialog, teller.news);
        return {panel, teller};
    }
};

} // namespace

TEST_P(WidgetContractTest, WhatCodeSetsTwiceTellsNobodyAndEachGestureTellsOnce) {
    const auto [panel, teller] = Open("Panel");
    for (int time = 0; time < 2; ++time) {
        teller.set();
        teller.dialog->SetTitle("title");
        teller.dialog->SetSensitivity(ZOLActive);
        teller.dialog->SetVisibility(ZOLShown);
    }
    EXPECT_TRUE(panel->heard.empty());
    EXPECT_EQ(teller.gesture(), ZOLUserResult::Done);
    EXPECT_EQ(teller.gesture(), ZOLUserResult::Done);
    EXPECT_EQ(panel->heard.size(), 2u);
}

TEST_P(WidgetContractTest, GreyedOrHiddenByItselfOrByItsHolderItTellsNothing) {
    const auto [panel, teller] = Open("Panel");
    for (ZOLDialog* dialog : {teller.dialog, static_cast<ZOLDialog*>(panel)}) {
        dialog->SetSensitivity(ZOLGreyed);
        EXPECT_EQ(teller.gesture(), ZOLUserResult::Insensitive) << dialog->GetKind();
        dialog->SetSensitivity(ZOLActive);
        dialog->SetVisibility(ZOLHidden);
        EXPECT_NE(teller.gesture(), ZOLUserResult::Done) << dialog->GetKind();
        dialog->SetVisibility(ZOLShown);
    }
    EXPECT_TRUE(panel->heard.empty());
    EXPECT_EQ(teller.gesture(), ZOLUserResult::Done);
}

TEST_P(WidgetContractTest, ItMayBeDestroyedInItsOwnNotification) {
    const auto [panel, teller] = Open("Panel");
    const trellis::WeakCommand life(teller.dialog);
    panel->reaction = [&, dialog = teller.dialog](ZOLCommand*, ZOLNotification*, void*) {
        dialog->RequestDelayedDestruction();
        EXPECT_NE(teller.gesture(), ZOLUserResult::Done) << "it is given up already";
    };
    {
        const trellis::CallbackScope scope;
        EXPECT_EQ(teller.gesture(), ZOLUserResult::Done);
        EXPECT_EQ(panel->heard.size(), 1u);
        EXPECT_NE(life.Get(), nullptr);
    }
    EXPECT_TRUE(!life.Get() || life.Get() == panel); // the fixture holds its panels
}

TEST_P(WidgetContractTest, ThePanelMayBeDestroyedInANotificationOfWhatItHolds) {
    const auto [panel, teller] = Open("Panel");
    panel->reaction = [panel = panel](ZOLCommand*, ZOLNotification*, void*) {
        panel->RequestDelayedDestruction();
    };
    EXPECT_EQ(teller.gesture(), ZOLUserResult::Done);
    EXPECT_EQ(panel->heard.size(), 1u);
    EXPECT_FALSE(panel->IsOnScreen());
}

TEST_P(WidgetContractTest, AListenerThatRemovesTheListenersIsTheLastToHear) {
    const auto [panel, teller] = Open("Panel");
    panel->ListenAlso(teller.dialog, teller.news);
    panel->reaction = [&, panel = panel](ZOLCommand*, ZOLNotification*, void*) {
        panel->RemoveAnalyseNotificationCB(teller.dialog, teller.news);
    };
    EXPECT_EQ(teller.gesture(), ZOLUserResult::Done);
    EXPECT_EQ(teller.gesture(), ZOLUserResult::Done);
    EXPECT_EQ(panel->heard.size(), 1u);
}

TEST_P(WidgetContractTest, WhileItsListenerAsksOtherPanelsActAndItsOwnMayDieUnderTheQuestion) {
    const auto [other, otherTeller] = Open("Other");
    const auto [panel, teller] = Open("Panel");
    int answer = -1;
    panel->reaction = [&, panel = panel](ZOLCommand*, ZOLNotification*, void*) {
        ZOLDlgNotify box(panel, "Box", 0x2000000);
        answer = box.DisplayBlocked("Go on?", "Title");
    };
    ZOLUserDriver::WhenAsked([&, panel = panel](const ZOLUserDriver::Message&) {
        EXPECT_EQ(teller.gesture(), ZOLUserResult::BehindQuestion);
        EXPECT_EQ(otherTeller.gesture(), ZOLUserResult::Done);
        panel->RequestDelayedDestruction();
        return 1;
    });
    EXPECT_EQ(teller.gesture(), ZOLUserResult::Done);
    EXPECT_EQ(answer, 0) << "the box went with its panel";
    EXPECT_EQ(panel->heard.size(), 1u);
    EXPECT_EQ(other->heard.size(), 1u);
    EXPECT_EQ(ZOLUserDriver::TakeMessages().size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(
    EveryKind, WidgetContractTest,
    testing::Values(Kind{"PushButton", MakePushButton}, Kind{"CheckButton", MakeCheckButton},
                    Kind{"RadioButton", MakeRadioButton}, Kind{"Combo", MakeCombo},
                    Kind{"TypedCombo", MakeTypedCombo}, Kind{"Editor", MakeEditor},
                    Kind{"SelectedList", MakeSelectedList}, Kind{"ActivatedList", MakeActivatedList},
                    Kind{"SelectorList", MakeSelectorList}, Kind{"Tabs", MakeTabs}, Kind{"Item", MakeItem},
                    Kind{"Graph", MakeGraph}, Kind{"Dialog", MakeDialog}),
    [](const testing::TestParamInfo<Kind>& info) { return info.param.name; });
