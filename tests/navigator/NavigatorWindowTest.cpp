#include "navigator/NavigatorFixture.h"

#include "model/ZOLDMClipboard.h"
#include "service/ZOLQRDCfgManager.h"
#include "site/ZOLIQrdSCManager.h"
#include "toolkit/ZOLWindowEnterNotification.h"

namespace {

using Driver = ZOLUserDriver;
using trellis::test::StoredDatabase;
using NavigatorWindowTest = trellis::test::NavigatorFixture;

TEST_F(NavigatorWindowTest, BranchesOpenAndCloseLevelByLevel) {
    EXPECT_FALSE(Sees("FRAME"));
    Click({"BIKE Bike"});
    EXPECT_TRUE(Sees("FRAME Frame") && Sees("WHEEL Wheel"));
    EXPECT_FALSE(Sees("TUBE"));
    Click({"BIKE Bike", "FRAME Frame"});
    EXPECT_NE(Node({"BIKE Bike", "FRAME Frame", "TUBE Tube"}), nullptr);
    Click({"BIKE Bike"});
    Click({"BIKE Bike"});
    EXPECT_FALSE(Sees("FRAME"));
    Click({"BIKE Bike"});
    EXPECT_TRUE(Sees("TUBE Tube")) << Driver::Describe(_window);
}

TEST_F(NavigatorWindowTest, APartIsMadeConfigurableFromItsMenuAndShowsIt) {
    Call({"BIKE Bike"}, "Part/SetConfigurable");
    EXPECT_TRUE(TakeCodes().empty());
    EXPECT_NE(Node({"BIKE Bike [configurable]"}), nullptr);
    EXPECT_EQ(Stored("configurable_part"), 1);
    EXPECT_TRUE(Sees("BIKE Bike: now configurable")) << Driver::Describe(_window);
    Call({"BIKE Bike [configurable]"}, "Part/SetConfigurable");
    EXPECT_EQ(TakeCodes(), std::vector<int>{20267});
    EXPECT_TRUE(Sees("This object is configurable already")) << Driver::Describe(_window);
}

TEST_F(NavigatorWindowTest, WhatAPanelChangedShowsWhenTheUserComesBack) {
    ZOLGYRError error;
    ZOLQRDCfgManager& manager = *ZOLQRDCfgManager::CurrentCfgManager(error);
    manager.SetConfigurable(Node({"BIKE Bike"})->Part(), error);
    ZOLWindowEnterNotification back;
    _window->SendNotification(_window, &back);
    ASSERT_NE(Node({"BIKE Bike [configurable]"}), nullptr);
    EXPECT_FALSE(Sees("unsaved changes: 0")) << Driver::Describe(_window);
    manager.Save(error);
    _window->SendNotification(_window, &back);
    EXPECT_TRUE(Sees("unsaved changes: 0")) << Driver::Describe(_window);
}

TEST_F(NavigatorWindowTest, WhatNeedsOnePartIsGreyedForSeveral) {
    Click({"BIKE Bike"});
    Click({"BIKE Bike", "WHEEL Wheel (front)"}, true);
    Driver::ContextClick(_graph, Node({"BIKE Bike", "WHEEL Wheel (front)"}));
    EXPECT_THROW(Driver::Menu(_graph, "Part/SetConfigurable"), Driver::Refused);
    Driver::Menu(_bar, "EditMenu/CopyItem");
    EXPECT_EQ(ZOLDMClipboard::GetNbObject(), 2);
    Click({"BIKE Bike"}, true);
    Call({"BIKE Bike", "WHEEL Wheel (front)"}, "Part/SetConfigurable");
    EXPECT_EQ(Stored("configurable_part"), 1);
}

TEST_F(NavigatorWindowTest, SearchGoesFromMatchToMatchAndSaysWhenThereIsNone) {
    Click({"BIKE Bike"});
    Driver::Type(Driver::Find(_window, "SearchEd"), "e");
    Driver::Enter(Driver::Find(_window, "SearchEd"));
    EXPECT_TRUE(Sees("\"FRAME Frame\"")) << Driver::Describe(_window);
    Driver::Menu(_bar, "EditMenu/CopyItem");
    EXPECT_EQ(ZOLDMClipboard::GetObject(1).GetNameInstance(1, 1, " ", ""), "FRAME Frame");
    Driver::Press(Driver::Find(_window, "SearchNext"));
    Driver::Menu(_bar, "EditMenu/CopyItem");
    EXPECT_EQ(ZOLDMClipboard::GetObject(1).GetNameInstance(1, 1, " ", ""), "WHEEL Wheel");
    Driver::Press(Driver::Find(_window, "SearchPrevious"));
    Driver::Menu(_bar, "EditMenu/CopyItem");
    EXPECT_EQ(ZOLDMClipboard::GetObject(1).GetNameInstance(1, 1, " ", ""), "FRAME Frame");
    Driver::Type(Driver::Find(_window, "SearchEd"), "saddle");
    Driver::Enter(Driver::Find(_window, "SearchEd"));
    EXPECT_TRUE(Sees("No part in the open branches"));
}

TEST_F(NavigatorWindowTest, UnsavedChangesAreShownSavedDiscardedAndAskedAboutBeforeLeaving) {
    EXPECT_THROW(Driver::Press(Driver::Find(_window, "Save")), Driver::Refused);
    ZOLGYRError error;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    manager->SetConfigurable(Node({"BIKE Bike"})->Part(), error);
    Click({"BIKE Bike"});
    EXPECT_FALSE(Sees("unsaved changes: 0")) << Driver::Describe(_window);

    Driver::Answer({2});
    Driver::Press(Driver::Find(_window, "Discard"));
    Driver::Answer({3});
    Driver::CloseWindow(_window);
    EXPECT_EQ(Driver::Top(), _window);
    Driver::Answer({1});
    Driver::CloseWindow(_window);
    _hasLeft = true;
    EXPECT_EQ(Driver::Top(), nullptr);
    EXPECT_EQ(TakeCodes(), (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(Stored("configurable_part"), 1);
}

TEST_F(NavigatorWindowTest, EffectivitiesOfALinkStandInItsLineWithTheirLimits) {
    ZOLGYRError error;
    ZOLQRDCfgManager& manager = *ZOLQRDCfgManager::CurrentCfgManager(error);
    manager.SetConfigurable(Node({"BIKE Bike"})->Part(), error);
    ZOLQRDConfigurableObject bike;
    manager.GetConfigurableObject(Node({"BIKE Bike"})->Part(), bike, error);
    const ZOLQRDTime day(ZOLUnicodeString("2026-03-01"), error);
    bike.GetConfigItem()->AddEffectivity({"option_range", "LHD", 5, 0, {}, {}}, error);
    bike.GetConfigItem()->AddEffectivity({"date", "", 0, 0, day, day + 30}, error);
    manager.Save(error);
    ASSERT_EQ(error.GetCode(), 0);
    StoredDatabase(_folder.Path("a.db"))
        .Run(
            "INSERT INTO link_effectivity (id, version, last_modifier, last_update, link_id, effectivity_id) "
            "SELECT 990000 + e.id, 1, '', 0, l.id, e.id FROM link l, effectivity e WHERE l.name = 'front'");
    Driver::Menu(_bar, "ViewMenu/RefreshItem");
    Click({"BIKE Bike [configurable]"});
    EXPECT_EQ(Below({"BIKE Bike [configurable]"}).back(),
              "WHEEL Wheel (front) {LHD, from 5; 2026-03-01 to 2026-03-31}");
}

TEST_F(NavigatorWindowTest, ABranchOpensToItsEndAndLeavesHaveNoFolder) {
    Choose({"BIKE Bike"});
    Driver::Menu(_bar, "ViewMenu/OpenBranchItem");
    ASSERT_NE(Node({"BIKE Bike", "FRAME Frame", "TUBE Tube"}), nullptr);
    EXPECT_FALSE(Node({"BIKE Bike", "FRAME Frame", "TUBE Tube"})->HasPixmap());
    EXPECT_TRUE(Node({"BIKE Bike", "FRAME Frame"})->HasPixmap());
    Driver::Menu(_bar, "ViewMenu/CloseBranchItem");
    EXPECT_EQ(Node({"BIKE Bike", "FRAME Frame"}), nullptr);
}

TEST_F(NavigatorWindowTest, RefreshShowsWhatAnotherUserStored) {
    Click({"BIKE Bike"});
    StoredDatabase(_folder.Path("a.db")).Run("DELETE FROM link WHERE name = 'front'");
    Driver::Menu(_bar, "ViewMenu/RefreshItem");
    EXPECT_EQ(Below({"BIKE Bike"}), std::vector<std::string>{"FRAME Frame"});
    EXPECT_NE(Node({"WHEEL Wheel"}), nullptr) << "nothing holds it now";
}

TEST_F(NavigatorWindowTest, ThePictureIsSavedWhereTheUserSaysAndReplacedOnlyWhenAsked) {
    const std::string path = _folder.Path("picture.svg");
    const auto save = [&](int replace) {
        Driver::WhenAsked([&, replace](const Driver::Message& message) {
            if (message.text.SearchSubString("exists already") >= 0)
                return replace;
            Driver::Type(Driver::Find(Driver::Top(), "PathEd"), path);
            return 1;
        });
        Driver::Menu(_bar, "ViewMenu/SavePictureItem");
        Driver::WhenAsked({});
        TakeCodes();
    };
    save(2);
    EXPECT_NE(trellis::test::TemporaryFolder::Read(path).find("<svg"), std::string::npos);
    _folder.Write("picture.svg", "mine");
    save(2);
    EXPECT_EQ(trellis::test::TemporaryFolder::Read(path), "mine");
    save(1);
    EXPECT_NE(trellis::test::TemporaryFolder::Read(path), "mine");
}

TEST_F(NavigatorWindowTest, TheWindowComesBackInTheSizeItHadAndForgetsNonsense) {
    const auto widthOnOpening = [this] {
        Open();
        return _window->GetLayoutHints().size.width;
    };
    const int usual = _window->GetLayoutHints().size.width;
    _window->SetShownSize({1000, 640});
    Driver::CloseWindow(_window);
    EXPECT_EQ(widthOnOpening(), 1000);
    for (const char* nonsense : {"size -5 99999999999", "\xff\xfe", "", "size 1000", "size 100 3"}) {
        Driver::CloseWindow(_window);
        _folder.Write("state/trellis/navigator", nonsense);
        EXPECT_EQ(widthOnOpening(), usual) << nonsense;
    }
}

TEST_F(NavigatorWindowTest, TheKeyboardChoosesSeveralAndGivesUpOnTheWayBack) {
    using enum ZOLUserKey;
    const auto chosen = [this] {
        Driver::Menu(_bar, "EditMenu/CopyItem");
        return ZOLDMClipboard::GetNbObject();
    };
    Click({"BIKE Bike"});
    Driver::Key(_graph, ShiftDown);
    Driver::Key(_graph, ShiftDown);
    EXPECT_EQ(chosen(), 3);
    Driver::Key(_graph, ShiftUp);
    EXPECT_EQ(chosen(), 2);
    Driver::Key(_graph, CtrlSpace);
    EXPECT_EQ(chosen(), 1) << "the one with the focus left";
    EXPECT_EQ(ZOLDMClipboard::GetObject(1).GetNameInstance(1, 1, " ", ""), "BIKE Bike");
}

TEST_F(NavigatorWindowTest, WhoWorksOnWhichDatabaseCanBeRead) {
    EXPECT_TRUE(Sees("a.db")) << Driver::Describe(_window);
    EXPECT_TRUE(Sees(GetSecurityManager()->GetCurrentPerson()->GetName().Bytes()));
}

} // namespace
