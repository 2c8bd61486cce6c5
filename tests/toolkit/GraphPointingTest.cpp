#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLGraphViewer.h"

using trellis::CallbackScope;
using trellis::GraphStep;

namespace {

// A panel that notes what the graph in it tells of pointing.
class GraphPointingTest : public ToolkitTest {
protected:
    void SetUp() override {
        new ZOLGraphArc(&_root, &_red);
        new ZOLGraphArc(&_root, &_blue);
        _panel = OpenPanel();
        _viewer = new ZOLGraphViewer(_panel, "Viewer", 0, 200, 100, 0);
        _viewer->GetGraph()->addTree(&_root);
        _panel->AddAnalyseNotificationCB(_viewer, "ZOLNodePointNotification",
                                         ZOL_CALLBACK(&ListeningPanel::HeardCB));
        _panel->reaction = [this](ZOLCommand*, ZOLNotification* notification, void*) {
            const ZOLGraphNode* node = static_cast<ZOLGraphNotification*>(notification)->GetNode();
            _told.push_back(node ? node->firstLine().Bytes() : "-");
        };
    }

    ZOLGraphNode _root{"Bike", " "};
    ZOLGraphNode _red{"red", " "};
    ZOLGraphNode _blue{"blue", " "};
    ListeningPanel* _panel = nullptr;
    ZOLGraphViewer* _viewer = nullptr;
    Heard _told;
};

TEST_F(GraphPointingTest, OnlyAnotherNodeThanBeforeIsToldAndLeavingThemOnce) {
    ZOLUserDriver::PointAt(_viewer, nullptr);
    for (ZOLGraphNode* node : {&_red, &_red, &_blue})
        ZOLUserDriver::PointAt(_viewer, node);
    EXPECT_EQ(_viewer->GetPointedNode(), &_blue);
    ZOLUserDriver::PointAt(_viewer, nullptr);
    ZOLUserDriver::PointAt(_viewer, nullptr);
    EXPECT_EQ(_told, (Heard{"red", "blue", "-"}));
    EXPECT_EQ(_viewer->GetPointedNode(), nullptr);
}

TEST_F(GraphPointingTest, KeysPointAtWhatTheyComeToAndThePointerComesBackToItsNode) {
    ZOLUserDriver::PointAt(_viewer, &_blue);
    _viewer->UserMoveFocus(GraphStep::Right);
    ZOLUserDriver::PointAt(_viewer, &_blue);
    _viewer->UserExtendTo(GraphStep::Down);
    EXPECT_EQ(_told, (Heard{"blue", "red", "blue"})) << "at last the focus comes to where the pointer is";
    EXPECT_EQ(_viewer->GetFocusNode(), &_blue);
}

TEST_F(GraphPointingTest, WhatIsGreyedOrAMereDisplayCanBeLookedAtButNotWhatNobodySees) {
    _viewer->defineEventManagement(0);
    ZOLUserDriver::PointAt(_viewer, &_red);
    _viewer->SetSensitivity(ZOLGreyed);
    ZOLUserDriver::PointAt(_viewer, &_blue);
    EXPECT_EQ(_told, (Heard{"red", "blue"}));

    _red.hide();
    EXPECT_EQ(_viewer->UserPointAt(&_red), ZOLUserResult::Hidden);
    ZOLGraphNode stranger("stranger", " ");
    EXPECT_EQ(_viewer->UserPointAt(&stranger), ZOLUserResult::NotThere);
    _panel->SetVisibility(ZOLHidden);
    EXPECT_EQ(_viewer->UserPointAt(&_root), ZOLUserResult::Hidden);
    EXPECT_EQ(_told.size(), 2U);
}

TEST_F(GraphPointingTest, LeavingANodeThatIsGoneIsTold) {
    auto* gone = new ZOLGraphNode("gone", " ");
    _viewer->add(gone);
    ZOLUserDriver::PointAt(_viewer, gone);
    gone->RequestDelayedDestruction();
    EXPECT_EQ(_viewer->GetPointedNode(), nullptr) << "out of the graph, not freed yet";
    CallbackScope::FreeGivenUp();
    ZOLUserDriver::PointAt(_viewer, nullptr);
    EXPECT_EQ(_told, (Heard{"gone", "-"}));
}

TEST_F(GraphPointingTest, ThePanelMayEndWhenItIsTold) {
    _panel->reaction = [this](ZOLCommand*, ZOLNotification*, void*) { _panel->RequestDelayedDestruction(); };
    ZOLUserDriver::Key(_viewer, ZOLUserKey::Right);
    EXPECT_TRUE(_panel->IsBeingDestroyed());
}

TEST_F(GraphPointingTest, LookingAtANodeLeavesNoEditor) {
    auto* editor = new ZOLDlgEditor(_panel, "Name");
    _panel->Listen(editor, editor->GetEditModifyNotification());
    _panel->reaction = {};
    ZOLUserDriver::Type(editor, "bo");
    ZOLUserDriver::PointAt(_viewer, &_red);
    EXPECT_EQ(_panel->heard, Heard{"Viewer"});
}

} // namespace
