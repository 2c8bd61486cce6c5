#include "toolkit/ToolkitFixture.h"

#include "toolkit/ZOLDlgContextualMenu.h"
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
