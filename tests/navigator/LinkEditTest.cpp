#include "navigator/NavigatorFixture.h"

#include "model/ZOLDMClipboard.h"
#include "service/ZOLQRDCfgManager.h"

namespace {

using Driver = ZOLUserDriver;
using Lines = std::vector<std::string>;
using trellis::test::NavigatorFixture;

class LinkEditTest : public NavigatorFixture {
protected:
    LinkEditTest() {
        Click(bike);
        Click(frame);
    }
    void Copy(const Path& path) { Call(path, "CopyItem"); }
    // Gives the name to whoever asks for one.
    void Rename(const Path& path, const char* name) {
        Driver::WhenAsked([name](const Driver::Message&) {
            Driver::Type(Driver::Find(Driver::Top(), "NameEd"), name);
            return 1;
        });
        Call(path, "RenameItem");
        Driver::WhenAsked({});
        TakeCodes();
    }

    const Path bike = {"BIKE Bike"};
    const Path frame = {"BIKE Bike", "FRAME Frame"};
    const Path wheel = {"BIKE Bike", "WHEEL Wheel (front)"};
    const Path tube = {"BIKE Bike", "FRAME Frame", "TUBE Tube"};
};

TEST_F(LinkEditTest, APastedPartIsAPendingLinkThatCanBeTakenBack) {
    Copy(wheel);
    Call(frame, "PasteItem");
    EXPECT_EQ(Below(frame), (Lines{"TUBE Tube", "+ WHEEL Wheel [added]"}));
    EXPECT_TRUE(Sees("link changes to commit: 1"));
    EXPECT_EQ(Stored("link"), 3);
    const Path added = {"BIKE Bike", "FRAME Frame", "+ WHEEL Wheel [added]"};
    Call(added, "TakeBackItem");
    EXPECT_EQ(Below(frame), Lines{"TUBE Tube"});
    EXPECT_TRUE(Sees("link changes to commit: 0"));
}

TEST_F(LinkEditTest, ACutLinkIsMovedByThePasteAndStaysMarkedWhereItWas) {
    Call(tube, "CutItem");
    Call(wheel, "PasteItem");
    EXPECT_EQ(Below(frame), Lines{"− TUBE Tube [moved to WHEEL Wheel]"});
    Click(wheel);
    EXPECT_EQ(Below(wheel), Lines{"→ TUBE Tube [moved from FRAME Frame]"});
    // Once moved, the clipboard adds.
    Call(bike, "PasteItem");
    EXPECT_EQ(Below(bike).back(), "+ TUBE Tube [added]");
}

TEST_F(LinkEditTest, AMovedLinkMovedAgainIsOneEditAndMovedHomeIsNone) {
    Copy(wheel);
    Call(tube, "MoveItem");
    Copy(bike);
    Click(wheel);
    Call({"BIKE Bike", "WHEEL Wheel (front)", "→ TUBE Tube [moved from FRAME Frame]"}, "MoveItem");
    EXPECT_EQ(Below(frame), Lines{"− TUBE Tube [moved to BIKE Bike]"});
    EXPECT_EQ(Below(bike).back(), "→ TUBE Tube [moved from FRAME Frame]");
    EXPECT_EQ(Below(wheel), Lines{});
    EXPECT_TRUE(Sees("link changes to commit: 1"));
    Copy(frame);
    Call({"BIKE Bike", "→ TUBE Tube [moved from FRAME Frame]"}, "MoveItem");
    EXPECT_EQ(Below(frame), Lines{"TUBE Tube"});
    EXPECT_TRUE(Sees("link changes to commit: 0"));
}

TEST_F(LinkEditTest, AReplacedPartStandsBesideItsSuccessor) {
    Copy(tube);
    Call(wheel, "ReplaceItem");
    EXPECT_EQ(Below(bike), (Lines{"FRAME Frame", "− WHEEL Wheel (front) [replaced by TUBE Tube]",
                                  "⇄ TUBE Tube (front) [in place of WHEEL Wheel]"}));
    Call({"BIKE Bike", "− WHEEL Wheel (front) [replaced by TUBE Tube]"}, "TakeBackItem");
    EXPECT_EQ(Below(bike), (Lines{"FRAME Frame", "WHEEL Wheel (front)"}));
}

TEST_F(LinkEditTest, ARenamedLinkThatIsRemovedComesBackWithItsFirstName) {
    Rename(wheel, "left");
    const Path renamed = {"BIKE Bike", "~ WHEEL Wheel (left) [renamed, was \"front\"]"};
    ASSERT_NE(Node(renamed), nullptr) << Driver::Describe(_window);
    Call(renamed, "RemoveItem");
    const Path removed = {"BIKE Bike", "− WHEEL Wheel (front) [removed]"};
    ASSERT_NE(Node(removed), nullptr) << Driver::Describe(_window);
    EXPECT_TRUE(Sees("link changes to commit: 1"));
    Driver::ContextClick(_graph, Node(removed));
    EXPECT_THROW(Driver::Menu(_graph, "RenameItem"), Driver::Refused) << "it is going";
    Call(removed, "TakeBackItem");
    EXPECT_NE(Node(wheel), nullptr);
}

TEST_F(LinkEditTest, ARenameToTheOldNameIsNoEdit) {
    Rename(wheel, "left");
    Rename({"BIKE Bike", "~ WHEEL Wheel (left) [renamed, was \"front\"]"}, "front");
    EXPECT_TRUE(Sees("link changes to commit: 0"));
    EXPECT_NE(Node(wheel), nullptr);
}

TEST_F(LinkEditTest, RemovingAnAddedLinkLeavesNothing) {
    Copy(wheel);
    Call(frame, "PasteItem");
    Call({"BIKE Bike", "FRAME Frame", "+ WHEEL Wheel [added]"}, "RemoveItem");
    EXPECT_EQ(Below(frame), Lines{"TUBE Tube"});
    EXPECT_TRUE(Sees("link changes to commit: 0"));
}

TEST_F(LinkEditTest, ACircleIsRefusedWithItsPartsAndChangesNothing) {
    Copy(frame);
    Call(tube, "PasteItem");
    const auto messages = Driver::TakeMessages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].code, 60240);
    EXPECT_NE(messages[0].text.SearchSubString("FRAME Frame > TUBE Tube > FRAME Frame"), -1);
    EXPECT_TRUE(Sees("link changes to commit: 0"));
}

TEST_F(LinkEditTest, EditsSurviveASaveAndAreLostOnlyWhenTheUserSaysSo) {
    Copy(wheel);
    Call(frame, "PasteItem");
    ZOLGYRError error;
    ZOLQRDCfgManager::CurrentCfgManager(error)->SetConfigurable(Node(bike)->Part(), error);
    Choose(wheel);
    Driver::Press(Driver::Find(_window, "Save"));
    EXPECT_TRUE(Sees("which wait for the commit")) << Driver::Describe(_window);
    EXPECT_EQ(Stored("configurable_part"), 1);
    EXPECT_EQ(Stored("link"), 3);
    EXPECT_TRUE(Sees("link changes to commit: 1"));

    Driver::Answer({2});
    Driver::CloseWindow(_window);
    EXPECT_EQ(Driver::Top(), _window);
    Driver::Answer({1});
    Driver::CloseWindow(_window);
    _hasLeft = true;
    EXPECT_EQ(Driver::Top(), nullptr);
    EXPECT_EQ(TakeCodes(), (std::vector<int>{0, 0}));
    EXPECT_EQ(Stored("link"), 3);
}

TEST_F(LinkEditTest, UnsavedWorkIsListedWithTheEditsAndDiscardedTogether) {
    Copy(wheel);
    Call(frame, "PasteItem");
    ZOLGYRError error;
    ZOLQRDCfgManager::CurrentCfgManager(error)->SetConfigurable(Node(bike)->Part(), error);
    Choose(wheel);
    std::string list;
    Driver::WhenAsked([&list](const Driver::Message& message) {
        if (list.empty()) {
            list = Driver::Describe(Driver::Top());
            return 3;
        }
        EXPECT_NE(message.text.SearchSubString("WHEEL Wheel added to FRAME Frame"), -1)
            << message.text.Bytes();
        return 1;
    });
    Driver::Press(Driver::Find(_window, "Unsaved"));
    Driver::WhenAsked({});
    EXPECT_NE(list.find("WHEEL Wheel added to FRAME Frame"), std::string::npos) << list;
    EXPECT_NE(list.find("configurable part"), std::string::npos) << list;
    EXPECT_EQ(Below(frame), Lines{"TUBE Tube"});
    EXPECT_TRUE(Sees("unsaved changes: 0"));
    EXPECT_FALSE(TakeCodes().empty());
}

TEST_F(LinkEditTest, SomebodyUnknownToTheDatabaseMayLookButNotEdit) {
    trellis::test::StoredDatabase(_folder.Path("a.db"))
        .Run("INSERT INTO person (id, version, last_modifier, last_update, name, first_name, last_name, "
             "privilege) "
             "VALUES (999001, 1, '', 0, 'somebody-else', '', '', 10)");
    _window->RequestDelayedDestruction();
    trellis::CallbackScope::FreeGivenUp();
    Open();
    Click(bike);
    Copy(wheel);
    Call(frame, "PasteItem");
    EXPECT_EQ(TakeCodes(), std::vector<int>{60501});
    EXPECT_TRUE(Sees("link changes to commit: 0"));
}

TEST_F(LinkEditTest, TheBarGreysWhatCannotBeDoneNow) {
    Choose(bike);
    for (const char* item :
         {"EditMenu/PasteItem", "EditMenu/CutItem", "EditMenu/TakeBackItem", "FileMenu/SaveItem"})
        EXPECT_THROW(Driver::Menu(_bar, item), Driver::Refused) << item;
    Driver::Menu(_bar, "EditMenu/CopyItem");
    EXPECT_EQ(ZOLDMClipboard::GetNbObject(), 1);
    Choose(wheel);
    Driver::Menu(_bar, "EditMenu/CutItem");
    Choose(frame);
    Driver::Menu(_bar, "EditMenu/PasteItem");
    EXPECT_EQ(Below(frame).back(), "→ WHEEL Wheel (front) [moved from BIKE Bike]");
}

} // namespace
