#include "support/ScreenUser.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "toolkit/ZOLDlgSubMenu.h"

#include <chrono>

namespace {

// Menus by mouse and keyboard of a real server. The contextual menu of the list holds "Open", "Delete", which is
// greyed, a line, and "More" with "Copy" and "Move"; the bar holds "Part" with "Open", and "Tools" with "Check".
class MotifMenuTest : public ToolkitTest {
protected:
    static void SetUpTestSuite() { _user = new ScreenUser; }
    static void TearDownTestSuite() { delete _user; }

    void SetUp() override {
        panel = OpenPanel();
        panel->SetRectPosition(200, 100);
        list = new ZOLDlgMultiList(panel, "List");
        menu = new ZOLDlgContextualMenu(list, "Menu");
        panel->reaction = [this](ZOLCommand* sender, ZOLNotification*, void*) {
            if (sender == menu && menu->GetChildren().empty())
                BuildMenu();
        };
        panel->Listen(menu, menu->GetVisibilityNotification());
        bar = new ZOLDlgMenuBar(panel, "Bar");
        part = AddMenu(bar, "Part");
        AddItem(part, "Open");
        tools = AddMenu(bar, "Tools");
        AddItem(tools, "Check");
    }
    void TearDown() override {
        ToolkitTest::TearDown();
        _user->Settle();
    }
    void BuildMenu() {
        AddItem(menu, "Open");
        AddItem(menu, "Delete")->SetSensitivity(ZOLGreyed);
        new ZOLDlgSeparatorItem(menu, "Line");
        auto* more = new ZOLDlgSubMenu(menu, "More");
        AddItem(more, "Copy");
        AddItem(more, "Move");
    }
    ZOLDlgSubMenu* AddMenu(ZOLDialog* father, const char* name) {
        auto* added = new ZOLDlgSubMenu(father, name);
        panel->Listen(added, added->GetVisibilityNotification());
        return added;
    }
    ZOLDlgPushItem* AddItem(ZOLDialog* father, const char* name) {
        auto* item = new ZOLDlgPushItem(father, name);
        panel->Listen(item, item->GetMenuIActivateNotification());
        return item;
    }
    // Forgets what was heard until the menu is there.
    void OpenByClick() {
        const ScreenUser::Place place = _user->MiddleOf(*list);
        _user->Click(place, 3);
        corner = place;
        ASSERT_TRUE(menu->IsOpen()) << "a click leaves the menu on the screen";
        panel->heard.clear();
    }
    // What the user does next is no part of the click.
    static void LetClickTimePass() {
        const auto begin = std::chrono::steady_clock::now();
        _user->WaitUntil([&] { return std::chrono::steady_clock::now() - begin > ClickTime; });
    }
    // The middle of the n-th line of a menu that opened at the corner; a line is about 25 pixels high.
    ScreenUser::Place Line(int number) const { return {corner.x + 20, corner.y + 12 + number * 25}; }

    static constexpr std::chrono::milliseconds ClickTime{400}; // a button let go later was held
    static inline ScreenUser* _user = nullptr;
    ListeningPanel* panel = nullptr;
    ZOLDlgMultiList* list = nullptr;
    ZOLDlgContextualMenu* menu = nullptr;
    ZOLDlgMenuBar* bar = nullptr;
    ZOLDlgSubMenu* part = nullptr;
    ZOLDlgSubMenu* tools = nullptr;
    ScreenUser::Place corner = {};
};

} // namespace

TEST_F(MotifMenuTest, AFastClickLeavesTheMenuAndASecondOneChooses) {
    OpenByClick();
    _user->Click(Line(0));
    EXPECT_EQ(panel->heard, Heard{"Open"});
    EXPECT_FALSE(menu->IsOpen());
    OpenByClick();
    _user->Click({corner.x - 30, corner.y - 30});
    EXPECT_EQ(panel->heard, Heard{});
    EXPECT_FALSE(menu->IsOpen()) << "a click outside closes";
}

TEST_F(MotifMenuTest, AHeldButtonChoosesWhereItIsReleased) {
    const ScreenUser::Place place = _user->MiddleOf(*list);
    corner = place;
    _user->MoveTo(place);
    _user->PressButton(3);
    _user->MoveTo({corner.x + 15, corner.y + 8});
    _user->MoveTo(Line(0));
    LetClickTimePass();
    _user->ReleaseButton(3);
    EXPECT_EQ(panel->heard, (Heard{"Menu", "Open"}));
    EXPECT_FALSE(menu->IsOpen());
}

TEST_F(MotifMenuTest, KeysWalkAMenuThatAClickHasOpened) {
    OpenByClick();
    _user->Press("Down");
    _user->Press("Right");
    _user->Press("Down");
    _user->Press("Return");
    EXPECT_EQ(panel->heard, Heard{"Move"}) << "greyed items and lines are passed over";
    OpenByClick();
    _user->Press("o");
    EXPECT_EQ(panel->heard, Heard{"Open"}) << "by its letter";
    OpenByClick();
    _user->Press("Escape");
    EXPECT_FALSE(menu->IsOpen());
    EXPECT_EQ(panel->heard, Heard{}) << "Escape closes the menu, not the window";
}

TEST_F(MotifMenuTest, TheMenuKeysOpenItWithTheFirstItemReady) {
    _user->Click(*list);
    for (const ScreenUser::Modifiers& modifiers :
         {ScreenUser::Modifiers{}, ScreenUser::Modifiers{"Shift_L"}}) {
        panel->heard.clear();
        _user->Press(modifiers.empty() ? "Menu" : "F10", modifiers);
        ASSERT_TRUE(menu->IsOpen());
        _user->Press("Return");
        EXPECT_EQ(panel->heard, (Heard{"Menu", "Open"}));
        EXPECT_FALSE(menu->IsOpen());
    }
}

TEST_F(MotifMenuTest, KeysWalkAMenuThatAKeyHasOpened) {
    _user->Click(*list);
    _user->Press("Menu");
    ASSERT_TRUE(menu->IsOpen());
    panel->heard.clear();
    for (const char* key : {"Down", "Right", "Down", "Return"})
        _user->Press(key);
    EXPECT_EQ(panel->heard, Heard{"Move"});
}

TEST_F(MotifMenuTest, AGreyedItemTakesNoClickAndASubMenuOpensByMouse) {
    OpenByClick();
    _user->Click(Line(1));
    EXPECT_EQ(panel->heard, Heard{});
    menu->Close();
    _user->Settle();
    OpenByClick();
    _user->Click({corner.x + 20, corner.y + 70});
    LetClickTimePass();
    _user->Press("Return");
    EXPECT_EQ(panel->heard, Heard{"Copy"});
}

TEST_F(MotifMenuTest, AMenuEmptiedOrDestroyedByItsOwnNewsDoesNotAppear) {
    panel->reaction = [this](ZOLCommand*, ZOLNotification*, void*) {};
    _user->Click(*list, 3);
    EXPECT_FALSE(menu->IsOpen()) << "nothing was built";
    panel->reaction = [this](ZOLCommand*, ZOLNotification*, void*) { menu->RequestDelayedDestruction(); };
    _user->Click(*list, 3);
    EXPECT_EQ(ZOLDlgMenuPane::GetOpenMenu(), nullptr);
    panel->reaction = [this](ZOLCommand*, ZOLNotification*, void*) {
        part->GetChildren()[0]->RequestDelayedDestruction();
    };
    _user->Click(_user->PlaceIn(*bar, 25, 12));
    EXPECT_FALSE(part->IsOpen());
}

TEST_F(MotifMenuTest, TheBarOpensAndChoosesByMouse) {
    _user->NativeOf(*bar);
    _user->Click(_user->PlaceIn(*bar, 25, 12));
    EXPECT_TRUE(part->IsOpen());
    _user->Click(_user->PlaceIn(*bar, 25, 40));
    EXPECT_EQ(panel->heard, (Heard{"Part", "Open"}));
    EXPECT_FALSE(part->IsOpen());
}

TEST_F(MotifMenuTest, TheBarIsWalkedByKeyboard) {
    _user->Click(*list);
    panel->heard.clear();
    _user->Press("F10");
    _user->Press("Right");
    _user->Press("Down");
    EXPECT_TRUE(tools->IsOpen());
    _user->Press("Return");
    EXPECT_EQ(panel->heard, (Heard{"Tools", "Check"}));
    for (const auto release : {ScreenUser::Release::KeyFirst, ScreenUser::Release::KeyLast}) {
        _user->Press("p", {"Alt_L"}, release);
        EXPECT_TRUE(part->IsOpen());
        _user->Press("Escape");
        EXPECT_FALSE(part->IsOpen());
    }
}
