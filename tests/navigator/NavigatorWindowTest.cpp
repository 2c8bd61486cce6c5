#include "navigator/NavigatorWindow.h"

#include "model/DatabaseSession.h"
#include "model/StructureImport.h"
#include "model/ZOLDMClipboard.h"
#include "service/ZOLQRDCfgManager.h"
#include "support/StoredDatabase.h"
#include "support/TemporaryFolder.h"
#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLUserDriver.h"

#include <gtest/gtest.h>

namespace {

using Driver = ZOLUserDriver;
using trellis::NavigatorWindow;
using trellis::test::StoredDatabase;
using trellis::test::TemporaryFolder;

class NavigatorWindowTest : public testing::Test {
protected:
    NavigatorWindowTest() : _session(trellis::HostOptions{_folder.Path("a.db"), {}, false}) {
        ZOLGYRError error;
        trellis::DatabaseSession::Create(_folder.Path("a.db"), error);
        trellis::ImportReport report;
        trellis::StructureImport::ReadText("record,id,number,name,parent,child,position\n"
                                           "part,b,BIKE,Bike,,,\npart,f,FRAME,Frame,,,\npart,t,TUBE,Tube,,,\n"
                                           "part,w,WHEEL,Wheel,,,\n"
                                           "link,,,,b,f,10\nlink,,,,b,w,20\nlink,,,,f,t,10\n",
                                           trellis::StructureImport::Form::Csv, "test", report, error);
        EXPECT_EQ(error.GetCode(), 0);
        _session.OpenDatabase();
        _window = new NavigatorWindow(_session);
        _window->SetVisibility(ZOLShown);
        _graph = static_cast<ZOLGraphViewer*>(Driver::Find(_window, "Structure"));
    }
    ~NavigatorWindowTest() override {
        EXPECT_EQ(Driver::PendingAnswers(), 0);
        for (const Driver::Message& message : Driver::TakeMessages())
            ADD_FAILURE() << "nobody read: " << message.text.Bytes();
        if (!_hasLeft)
            _window->RequestDelayedDestruction();
        trellis::CallbackScope::FreeGivenUp();
        EXPECT_EQ(Driver::Top(), nullptr);
    }

    ZOLGraphNode* Node(std::vector<ZOLUnicodeString> path) const { return Driver::Node(_graph, path); }
    void Click(std::vector<ZOLUnicodeString> path, bool extend = false) {
        Driver::Click(_graph, Node(path), extend);
    }
    void Call(std::vector<ZOLUnicodeString> path, const std::string& item) {
        Driver::ContextClick(_graph, Node(path));
        Driver::Menu(_graph, item);
    }
    bool Sees(const std::string& text) const {
        return Driver::Describe(_window).find(text) != std::string::npos;
    }
    std::vector<int> TakeCodes() {
        std::vector<int> codes;
        for (const Driver::Message& message : Driver::TakeMessages())
            codes.push_back(message.code);
        return codes;
    }

    TemporaryFolder _folder;
    trellis::HostSession _session;
    NavigatorWindow* _window;
    ZOLGraphViewer* _graph;
    bool _hasLeft = false;
};

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
    EXPECT_EQ(StoredDatabase(_folder.Path("a.db")).Count("configurable_part"), 1);
    Call({"BIKE Bike [configurable]"}, "Part/SetConfigurable");
    EXPECT_EQ(TakeCodes(), std::vector<int>{20267});
    EXPECT_TRUE(Sees("This object is configurable already")) << Driver::Describe(_window);
}

TEST_F(NavigatorWindowTest, WhatNeedsOnePartIsGreyedForSeveral) {
    Click({"BIKE Bike"});
    Click({"BIKE Bike", "WHEEL Wheel"}, true);
    Driver::ContextClick(_graph, Node({"BIKE Bike", "WHEEL Wheel"}));
    EXPECT_THROW(Driver::Menu(_graph, "Part/SetConfigurable"), Driver::Refused);
    Driver::Press(Driver::Find(_window, "Copy"));
    EXPECT_EQ(ZOLDMClipboard::GetNbObject(), 2);
    Click({"BIKE Bike"}, true);
    Call({"BIKE Bike", "WHEEL Wheel"}, "Part/SetConfigurable");
    EXPECT_EQ(StoredDatabase(_folder.Path("a.db")).Count("configurable_part"), 1);
}

TEST_F(NavigatorWindowTest, SearchGoesFromMatchToMatchAndSaysWhenThereIsNone) {
    Click({"BIKE Bike"});
    Driver::Type(Driver::Find(_window, "SearchEd"), "e");
    Driver::Enter(Driver::Find(_window, "SearchEd"));
    EXPECT_TRUE(Sees("\"FRAME Frame\"")) << Driver::Describe(_window);
    Driver::Press(Driver::Find(_window, "Copy"));
    EXPECT_EQ(ZOLDMClipboard::GetObject(1).GetNameInstance(1, 1, " ", ""), "FRAME Frame");
    Driver::Press(Driver::Find(_window, "SearchNext"));
    Driver::Press(Driver::Find(_window, "Copy"));
    EXPECT_EQ(ZOLDMClipboard::GetObject(1).GetNameInstance(1, 1, " ", ""), "WHEEL Wheel");
    Driver::Type(Driver::Find(_window, "SearchEd"), "saddle");
    Driver::Enter(Driver::Find(_window, "SearchEd"));
    EXPECT_TRUE(Sees("No part in the open branches"));
}

TEST_F(NavigatorWindowTest, UnsavedChangesAreShownSavedDiscardedAndAskedAboutBeforeLeaving) {
    EXPECT_THROW(Driver::Press(Driver::Find(_window, "Save")), Driver::Refused);
    ZOLGYRError error;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    manager->SetConfigurable(static_cast<trellis::NavigatorNode*>(Node({"BIKE Bike"}))->Part(), error);
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
    EXPECT_EQ(StoredDatabase(_folder.Path("a.db")).Count("configurable_part"), 1);
}

} // namespace
