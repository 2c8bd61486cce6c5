#include "toolkit/ToolkitFixture.h"

#include "toolkit/DialogLayout.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "toolkit/ZOLDlgSubMenu.h"

namespace {

class MenuTest : public ToolkitTest {
protected:
    void SetUp() override {
        panel = OpenPanel();
        list = new ZOLDlgMultiList(panel, "List");
        menu = new ZOLDlgContextualMenu(list, "Menu");
        panel->Listen(menu, menu->GetVisibilityNotification());
    }
    ZOLDlgPushItem* Item(const char* name, ZOLDialog* father = nullptr) {
        auto* item = new ZOLDlgPushItem(father ? father : menu, name);
        panel->Listen(item, item->GetMenuIActivateNotification());
        return item;
    }
    ListeningPanel* panel = nullptr;
    ZOLDlgMultiList* list = nullptr;
    ZOLDlgContextualMenu* menu = nullptr;
};

} // namespace

TEST_F(MenuTest, AMenuBuildsItselfWhenItOpensAndShowsWhatWasBuilt) {
    panel->reaction = [&](ZOLCommand* sender, ZOLNotification*, void*) {
        if (sender != menu)
            return;
        for (ZOLDialog* old : menu->GetChildren())
            old->RequestDelayedDestruction();
        Item("Open")->SetSensitivity(ZOLGreyed);
        new ZOLDlgSeparatorItem(menu, "Line");
        Item("Child", new ZOLDlgSubMenu(menu, "Sub"));
    };
    for (int time = 0; time < 2; ++time) {
        const auto lines = ZOLUserDriver::OpenMenu(list);
        ASSERT_EQ(lines.size(), 4u);
        EXPECT_EQ(lines[0].name, "Open");
        EXPECT_FALSE(lines[0].isSensitive);
        EXPECT_EQ(lines[3].text, "Child");
        EXPECT_EQ(lines[3].level, 1);
        menu->Close();
    }
    panel->heard.clear();
    ZOLUserDriver::Menu(list, "Sub/Child");
    EXPECT_EQ(panel->heard, (Heard{"Menu", "Child"}));
    EXPECT_EQ(ReasonOf([&] { ZOLUserDriver::Menu(list, "Open"); }),
              "cannot use the menu of list \"List\": it is greyed");
}

TEST_F(MenuTest, WhereNothingIsBuiltNothingAppears) {
    EXPECT_EQ(menu->UserOpen(), ZOLUserResult::NotThere);
    Item("Open")->SetVisibility(ZOLHidden);
    EXPECT_EQ(menu->UserOpen(), ZOLUserResult::NotThere);
    EXPECT_FALSE(menu->IsOpen());
    EXPECT_THROW(ZOLUserDriver::OpenMenu(panel), ZOLUserDriver::Refused) << "it has no menu at all";
}

TEST_F(MenuTest, VisibilitySwitchesTheMenuOffAndDoesNotTellThatItIsOpen) {
    Item("Open");
    EXPECT_EQ(menu->GetVisibility(), ZOLShown);
    menu->SetVisibility(ZOLHidden);
    EXPECT_EQ(menu->UserOpen(), ZOLUserResult::Hidden);
    EXPECT_THROW(ZOLUserDriver::Menu(list, "Open"), ZOLUserDriver::Refused);
    EXPECT_TRUE(panel->heard.empty());
    menu->SetVisibility(ZOLShown);
    list->SetSensitivity(ZOLGreyed);
    EXPECT_THROW(ZOLUserDriver::OpenMenu(list), ZOLUserDriver::Refused);
}

TEST_F(MenuTest, AnItemIsThereOnlyWhileItsMenuIsOpenAndTheNextVerbClosesIt) {
    ZOLDlgPushItem* item = Item("Open");
    auto* button = new ZOLDlgPushButton(panel, "Button");
    EXPECT_EQ(item->UserActivate(), ZOLUserResult::Hidden);
    ZOLUserDriver::OpenMenu(list);
    EXPECT_EQ(ZOLUserDriver::Describe(panel).find("Open"), std::string::npos);
    ZOLUserDriver::Menu(list, "Open");
    EXPECT_EQ(panel->heard, (Heard{"Menu", "Open"})) << "a menu that is open is not opened again";
    ZOLUserDriver::OpenMenu(list);
    ZOLUserDriver::Press(button);
    EXPECT_EQ(item->UserActivate(), ZOLUserResult::Hidden);
}

TEST_F(MenuTest, AMissingItemIsRefusedAndClosesTheMenu) {
    Item("Open");
    EXPECT_THROW(ZOLUserDriver::Menu(list, "Close"), ZOLUserDriver::Refused);
    EXPECT_EQ(ZOLDlgContextualMenu::GetOpenMenu(), nullptr);
}

TEST_F(MenuTest, AMenuGivenUpByItsOwnNewsDoesNotOpen) {
    Item("Open");
    panel->reaction = [&](ZOLCommand*, ZOLNotification*, void*) { menu->RequestDelayedDestruction(); };
    EXPECT_THROW(ZOLUserDriver::Menu(list, "Open"), ZOLUserDriver::Refused);
}

namespace {

// A window with the menus "Part" and "Tools", the latter with a submenu.
class MenuBarTest : public ToolkitTest {
protected:
    void SetUp() override {
        panel = OpenPanel();
        list = new ZOLDlgMultiList(panel, "List");
        bar = new ZOLDlgMenuBar(panel, "Bar");
        part = Menu(bar, "Part");
        tools = Menu(bar, "Tools");
        open = Item(part, "Open");
        Item(Menu(tools, "Sub"), "Child");
        panel->heard.clear();
    }
    ZOLDlgSubMenu* Menu(ZOLDialog* father, const char* name) {
        auto* menu = new ZOLDlgSubMenu(father, name);
        panel->Listen(menu, menu->GetVisibilityNotification());
        return menu;
    }
    ZOLDlgPushItem* Item(ZOLDialog* father, const char* name) {
        auto* item = new ZOLDlgPushItem(father, name);
        panel->Listen(item, item->GetMenuIActivateNotification());
        return item;
    }
    ListeningPanel* panel = nullptr;
    ZOLDlgMultiList* list = nullptr;
    ZOLDlgMenuBar* bar = nullptr;
    ZOLDlgSubMenu* part = nullptr;
    ZOLDlgSubMenu* tools = nullptr;
    ZOLDlgPushItem* open = nullptr;
};

} // namespace

TEST_F(MenuBarTest, AMenuOfTheBarIsToldBeforeItOpensAndItsItemsCanBeBuiltThen) {
    panel->reaction = [&](ZOLCommand* sender, ZOLNotification*, void*) {
        if (sender == part && part->GetChildren().size() == 1)
            Item(part, "Late");
    };
    ZOLUserDriver::Menu(bar, "Part/Late");
    EXPECT_EQ(panel->heard, (Heard{"Part", "Late"}));
    EXPECT_EQ(ZOLDlgMenuPane::GetOpenMenu(), nullptr);
    panel->heard.clear();
    ZOLUserDriver::Menu(bar, "Tools/Sub/Child");
    EXPECT_EQ(panel->heard, (Heard{"Tools", "Child"})) << "a submenu is seen with its menu";
}

TEST_F(MenuBarTest, OneMenuIsOpenAtATimeAndItsItemsAreOutOfReachUntilThen) {
    EXPECT_EQ(open->UserActivate(), ZOLUserResult::Hidden);
    ASSERT_EQ(ZOLUserDriver::OpenMenu(part).size(), 1u);
    const auto lines = ZOLUserDriver::OpenMenu(tools);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[1].text, "Child");
    EXPECT_FALSE(part->IsOpen());
    EXPECT_EQ(open->UserActivate(), ZOLUserResult::Hidden);
    EXPECT_EQ(static_cast<ZOLDlgSubMenu*>(ZOLUserDriver::Find(bar, "Sub"))->UserOpen(),
              ZOLUserResult::NotThere);
    EXPECT_THROW(ZOLUserDriver::Menu(bar, "Open"), ZOLUserDriver::Refused) << "the first step names a menu";
    EXPECT_THROW(ZOLUserDriver::Menu(bar, "Part"), ZOLUserDriver::Refused) << "a menu is no item";
    EXPECT_EQ(ZOLDlgMenuPane::GetOpenMenu(), nullptr);
}

TEST_F(MenuBarTest, WhatIsGreyedOrHiddenInTheBarDoesNotOpen) {
    part->SetSensitivity(ZOLGreyed);
    EXPECT_EQ(part->UserOpen(), ZOLUserResult::Insensitive);
    EXPECT_EQ(ZOLUserDriver::Describe(bar), "menu bar \"Part\" greyed \"Tools\"\n");
    tools->SetVisibility(ZOLHidden);
    EXPECT_EQ(tools->UserOpen(), ZOLUserResult::Hidden);
    EXPECT_EQ(ZOLUserDriver::Describe(bar), "menu bar \"Part\" greyed\n");
    part->SetSensitivity(ZOLActive);
    open->SetVisibility(ZOLHidden);
    EXPECT_EQ(part->UserOpen(), ZOLUserResult::NotThere) << "nothing is in it";
    bar->SetVisibility(ZOLHidden);
    EXPECT_EQ(part->UserOpen(), ZOLUserResult::Hidden);
    EXPECT_EQ(panel->heard, Heard{"Part"});
}

TEST_F(MenuBarTest, TheBarTakesTheWholeUpperEdgeAndAllElseStandsBelowIt) {
    const trellis::TextMeasure measure;
    const trellis::DialogLayout with(*panel, measure, {400, 300});
    const auto edge = with.Find(*bar);
    ASSERT_TRUE(edge);
    EXPECT_EQ(edge->x, 0);
    EXPECT_EQ(edge->y, 0);
    EXPECT_EQ(edge->width, 400);
    const int listTop = with.Find(*list)->y;
    EXPECT_GT(listTop, edge->height);
    bar->SetVisibility(ZOLHidden);
    const trellis::DialogLayout without(*panel, measure, {400, 300});
    EXPECT_EQ(without.Find(*list)->y, listTop - edge->height);
    EXPECT_FALSE(without.Find(*bar));
}
