#include "support/ScreenUser.h"
#include "toolkit/GraphDrawing.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ToolkitView.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLGraphViewer.h"

namespace {

// Where the pointer is in a graph, as the panel around it is told.
class MotifPointingTest : public ToolkitTest {
protected:
    static void SetUpTestSuite() { _user = new ScreenUser; }
    static void TearDownTestSuite() { delete _user; }
    void SetUp() override {
        new ZOLGraphArc(&_root, &_red);
        _panel = OpenPanel();
        _viewer = new ZOLGraphViewer(_panel, "Viewer", 0, 200, 100, 0);
        _button = new ZOLDlgPushButton(_panel, "Button");
        _viewer->GetGraph()->setHorizontalIndented();
        _viewer->GetGraph()->addTree(&_root);
        _panel->AddAnalyseNotificationCB(_viewer, "ZOLNodePointNotification",
                                         ZOL_CALLBACK(&ListeningPanel::HeardCB));
        _panel->reaction = [this](ZOLCommand*, ZOLNotification* notification, void*) {
            const ZOLGraphNode* node = static_cast<ZOLGraphNotification*>(notification)->GetNode();
            _told.push_back(node ? node->firstLine().Bytes() : "-");
        };
        _user->Click(*_button);
        _told.clear();
    }
    ScreenUser::Place At(const ZOLGraphNode& node) {
        const trellis::GraphDrawing& drawing =
            _viewer->GetDrawing(trellis::ToolkitView::Current()->GetTextMeasure());
        const trellis::LayoutRectangle place =
            drawing.Nodes()[static_cast<std::size_t>(drawing.Position(&node))].place;
        return _user->PlaceIn(*_viewer, place.x + place.width, place.y + place.height);
    }

    ZOLGraphNode _root{"Bike", " "};
    ZOLGraphNode _red{"red", " "};
    ListeningPanel* _panel = nullptr;
    ZOLGraphViewer* _viewer = nullptr;
    ZOLDlgPushButton* _button = nullptr;
    Heard _told;
    static inline ScreenUser* _user = nullptr;
};

TEST_F(MotifPointingTest, WhatThePointerComesToIsToldGreyedOrNotUntilItLeaves) {
    for (const int sensitivity : {ZOLActive, ZOLGreyed}) {
        _viewer->SetSensitivity(sensitivity);
        _user->Settle();
        _user->MoveTo(At(_root));
        _user->MoveTo({At(_root).x - 3, At(_root).y});
        _user->MoveTo(At(_red));
        _user->MoveTo(_user->PlaceIn(*_viewer, -30, 20));
        _user->MoveTo(At(_root));
        _user->MoveTo(*_button);
        EXPECT_EQ(_told, (Heard{"Bike", "red", "-", "Bike", "-"}));
        _told.clear();
    }
}

TEST_F(MotifPointingTest, TheKeyboardTellsWhatItComesToAndADragTellsNothing) {
    _user->Press("Tab", {"Shift_L"});
    _user->Press("Down");
    _user->Press("Tab");
    _user->Press("Tab", {"Shift_L"});
    EXPECT_EQ(_told, (Heard{"Bike", "red", "-", "red"}));
    _told.clear();

    _user->MoveTo(_user->PlaceIn(*_viewer, -30, 50));
    _user->PressButton(2);
    _user->MoveTo(At(_red));
    _user->ReleaseButton(2);
    EXPECT_EQ(_told, (Heard{"-"}));
}

} // namespace
