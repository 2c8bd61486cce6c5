#include "toolkit/ZOLGraphViewer.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/GraphDrawing.h"
#include "toolkit/TextMeasure.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgWindow.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLUserDriver.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

using trellis::CallbackScope;
using trellis::GraphStep;
using trellis::LayoutPoint;

namespace {

// A viewer that notes what it is told, as "class node", and does what a test wants meanwhile.
class NotingViewer : public ZOLGraphViewer {
public:
    explicit NotingViewer(ZOLDialog* owner) : ZOLGraphViewer(owner, "Viewer", 0x80000, 200, 100, 0) {
        for (const char* name :
             {"ZOLNodeSelectNotification", "ZOLNodeExtSelectNotification", "ZOLNodeContextNotification",
              "ZOLGraphSelectNotification", "ZOLGraphContextNotification"})
            AddAnalyseNotificationCB(this, name, ZOL_CALLBACK(&NotingViewer::NoteCB));
    }
    std::string Take() { return std::exchange(_noted, {}); }

    std::function<void(ZOLGraphNode*)> _whenTold;

private:
    void NoteCB(ZOLCommand* sender, ZOLNotification* notification, void*) {
        auto* told = dynamic_cast<ZOLGraphNotification*>(notification);
        ASSERT_NE(told, nullptr);
        EXPECT_EQ(sender, this);
        ZOLGraphNode* node = told->GetNode();
        _noted +=
            std::string(told->ClassName()).substr(3) + ' ' + (node ? node->firstLine().Bytes() : "-") + '\n';
        if (_whenTold)
            _whenTold(node);
    }

    std::string _noted;
};

// Root with the branches "Colour" (red, blue) and "Frame" (steel).
class ZOLGraphViewerTest : public testing::Test {
protected:
    ZOLGraphViewerTest() {
        _window->SetVisibility(ZOLShown);
        _root = Node("Bike", nullptr);
        _colour = Node("Colour", _root);
        _red = Node("red", _colour);
        _blue = Node("blue", _colour);
        _frame = Node("Frame", _root);
        _steel = Node("steel", _frame);
        _viewer->GetGraph()->addTree(_root);
    }
    ~ZOLGraphViewerTest() override {
        if (_windowLife.Get())
            _window->RequestDelayedDestruction();
        CallbackScope::FreeGivenUp();
    }

    ZOLGraphNode* Node(const char* text, ZOLGraphNode* parent) {
        _nodes.push_back(std::make_unique<ZOLGraphNode>(text, parent ? " " : "diropen.rgb"));
        if (parent)
            new ZOLGraphArc(parent, _nodes.back().get());
        return _nodes.back().get();
    }
    void GiveUp(ZOLGraphNode* node) {
        for (auto& owned : _nodes)
            if (owned.get() == node)
                owned.release()->RequestDelayedDestruction();
    }
    ZOLDlgContextualMenu* AddMenu() { return new ZOLDlgContextualMenu(_viewer, "Menu"); }
    std::string Focus() { return _viewer->GetFocusNode()->firstLine().Bytes(); }

    std::vector<std::unique_ptr<ZOLGraphNode>> _nodes; // outlive the viewer
    ZOLDlgWindow* _window = new ZOLDlgWindow(nullptr, "Window");
    trellis::WeakCommand _windowLife{_window};
    NotingViewer* _viewer = new NotingViewer(_window);
    ZOLGraphNode* _root;
    ZOLGraphNode* _colour;
    ZOLGraphNode* _red;
    ZOLGraphNode* _blue;
    ZOLGraphNode* _frame;
    ZOLGraphNode* _steel;
};

} // namespace

TEST_F(ZOLGraphViewerTest, EachGestureIsOneNotificationOfItsClassWithItsNode) {
    EXPECT_EQ(_viewer->UserClickNode(_red), ZOLUserResult::Done);
    EXPECT_EQ(_viewer->UserClickNode(_colour, true), ZOLUserResult::Done);
    EXPECT_EQ(_viewer->UserContextNode(_steel), ZOLUserResult::Done);
    EXPECT_EQ(_viewer->UserClickBackground(), ZOLUserResult::Done);
    EXPECT_EQ(_viewer->UserContextBackground(), ZOLUserResult::Done);
    EXPECT_EQ(_viewer->Take(), "NodeSelectNotification red\n"
                               "NodeExtSelectNotification Colour\n"
                               "NodeContextNotification steel\n"
                               "GraphSelectNotification -\n"
                               "GraphContextNotification -\n");
}

TEST_F(ZOLGraphViewerTest, TheSelectNotificationOfANodeClimbsWhenTheViewerDoesNotTakeIt) {
    struct Owner : ZOLDlgWindow {
        using ZOLDlgWindow::ZOLDlgWindow;
        void CountCB(ZOLCommand*, ZOLNotification*, void*) { ++count; }
        int count = 0;
    };
    auto* owner = new Owner(nullptr, "Owner");
    owner->SetVisibility(ZOLShown);
    auto* plain = new ZOLGraphViewer(owner, "Plain", 0, 100, 100, 4);
    plain->GetGraph()->addTree(_root);
    owner->AddAnalyseNotificationCB(plain, _root->GetSelectNotification(), ZOL_CALLBACK(&Owner::CountCB));
    plain->UserClickNode(_root);
    plain->UserClickNode(_red);
    EXPECT_EQ(owner->count, 1) << "each node has a notification of its own";
    owner->RequestDelayedDestruction();
}

TEST_F(ZOLGraphViewerTest, NodesThatNobodySeesTakeNoGesture) {
    ZOLGraphNode* stranger = Node("stranger", _root);
    EXPECT_EQ(_viewer->UserClickNode(stranger), ZOLUserResult::NotThere);
    EXPECT_EQ(_viewer->UserClickNode(nullptr), ZOLUserResult::NotThere);
    _colour->hide();
    EXPECT_EQ(_viewer->UserClickNode(_red), ZOLUserResult::Hidden);
    EXPECT_EQ(_viewer->UserContextNode(_colour), ZOLUserResult::Hidden);
    _viewer->SetSensitivity(ZOLGreyed);
    EXPECT_EQ(_viewer->UserClickNode(_frame), ZOLUserResult::Insensitive);
    EXPECT_EQ(_viewer->UserClickBackground(), ZOLUserResult::Insensitive);
    _viewer->SetSensitivity(ZOLActive);
    _viewer->defineEventManagement(0);
    EXPECT_EQ(_viewer->UserContextBackground(), ZOLUserResult::Insensitive);
    EXPECT_EQ(_viewer->UserMoveFocus(GraphStep::Down), ZOLUserResult::Insensitive);
    _window->SetVisibility(ZOLHidden);
    EXPECT_EQ(_viewer->UserClickNode(_frame), ZOLUserResult::Hidden);
    EXPECT_EQ(_viewer->Take(), "");
}

TEST_F(ZOLGraphViewerTest, ANodeAndItsViewerMayEndInTheirOwnNotification) {
    _viewer->_whenTold = [this](ZOLGraphNode* node) { GiveUp(node); };
    EXPECT_EQ(_viewer->UserClickNode(_red), ZOLUserResult::Done);
    EXPECT_EQ(_colour->nChild(), 1);
    EXPECT_EQ(_viewer->UserContextNode(_blue), ZOLUserResult::Done);
    EXPECT_EQ(_colour->nChild(), 0);

    AddMenu();
    _viewer->_whenTold = [this](ZOLGraphNode*) { _window->RequestDelayedDestruction(); };
    EXPECT_EQ(_viewer->UserContextNode(_frame), ZOLUserResult::Done);
    EXPECT_EQ(_windowLife.Get(), nullptr);
    EXPECT_EQ(_root->graph(), nullptr);
}

TEST_F(ZOLGraphViewerTest, TheMenuShowsOnlyWhatTheGestureBuilt) {
    ZOLDlgContextualMenu* menu = AddMenu();
    _viewer->_whenTold = [&](ZOLGraphNode* node) {
        if (node == _colour)
            new ZOLDlgPushItem(menu, "SelectAllItem");
    };
    _viewer->UserContextNode(_colour);
    EXPECT_TRUE(menu->IsOpen());
    EXPECT_EQ(menu->GetChildren().size(), 1u);
    menu->Close();

    _viewer->UserContextNode(_colour);
    EXPECT_EQ(menu->GetChildren().size(), 1u) << "what the gesture before built is gone";
    menu->Close();

    _viewer->UserContextNode(_red);
    EXPECT_FALSE(menu->IsOpen()) << "nothing built, nothing shown";
}

TEST_F(ZOLGraphViewerTest, AMenuThatIsSwitchedOffDoesNotOpenButTheGestureIsSent) {
    ZOLDlgContextualMenu* menu = AddMenu();
    _viewer->_whenTold = [menu](ZOLGraphNode*) { new ZOLDlgPushItem(menu, "Item"); };
    menu->SetVisibility(ZOLHidden);
    EXPECT_EQ(_viewer->UserContextNode(_red), ZOLUserResult::Done);
    EXPECT_FALSE(menu->IsOpen());
    EXPECT_EQ(_viewer->Take(), "NodeContextNotification red\n");
}

TEST_F(ZOLGraphViewerTest, ArrowsWalkTheTreeAsItIsDrawn) {
    struct Case {
        GraphStep step;
        const char* sideways;
        const char* outline;
        const char* downward;
    };
    // All from "Frame"; an empty name means that there is nowhere to go.
    const Case cases[] = {
        {GraphStep::Left, "Bike", "Bike", "Colour"},
        {GraphStep::Right, "steel", "steel", ""},
        {GraphStep::Up, "Colour", "blue", "Bike"},
        {GraphStep::Down, "", "steel", "steel"},
    };
    const auto check = [this](GraphStep step, const std::string& wanted) {
        _viewer->UserClickNode(_frame);
        const ZOLUserResult result = _viewer->UserMoveFocus(step);
        EXPECT_EQ(result, wanted.empty() ? ZOLUserResult::NotThere : ZOLUserResult::Done);
        EXPECT_EQ(Focus(), wanted.empty() ? "Frame" : wanted);
    };
    for (const Case& c : cases)
        check(c.step, c.sideways);
    _viewer->GetGraph()->setHorizontalIndented();
    for (const Case& c : cases)
        check(c.step, c.outline);
    _viewer->GetGraph()->setVerticalCentered();
    for (const Case& c : cases)
        check(c.step, c.downward);
}

TEST_F(ZOLGraphViewerTest, KeysClickAndRejectAndOpenAndCloseTheFocus) {
    EXPECT_EQ(Focus(), "Bike") << "at first the root";
    EXPECT_EQ(_viewer->UserOpenFocus(), ZOLUserResult::NotThere) << "it is open";
    EXPECT_EQ(_viewer->UserCloseFocus(), ZOLUserResult::Done);
    _root->setPixmap("/icons/dirclose.rgb");
    EXPECT_EQ(_viewer->UserCloseFocus(), ZOLUserResult::NotThere);
    EXPECT_EQ(_viewer->UserOpenFocus(), ZOLUserResult::Done);
    _viewer->UserMoveFocus(GraphStep::Right);
    EXPECT_EQ(_viewer->UserOpenFocus(), ZOLUserResult::NotThere) << "a leaf has no branch";
    EXPECT_EQ(_viewer->UserClickFocus(), ZOLUserResult::Done);
    EXPECT_EQ(_viewer->UserContextFocus(), ZOLUserResult::Done);
    EXPECT_EQ(_viewer->Take(), "NodeSelectNotification Bike\nNodeSelectNotification Bike\n"
                               "NodeSelectNotification Colour\nNodeContextNotification Colour\n");
}

TEST_F(ZOLGraphViewerTest, TheFocusFallsBackToWhatIsStillDrawn) {
    _viewer->UserClickNode(_blue);
    _blue->hide();
    EXPECT_EQ(Focus(), "Colour");
    GiveUp(_colour);
    EXPECT_EQ(Focus(), "Bike");
    _red->hide(); // it lost its parent and stands alone
    _root->hide();
    EXPECT_EQ(_viewer->UserMoveFocus(GraphStep::Down), ZOLUserResult::NotThere);
    ZOLGraphNode* loop = Node("loop", nullptr);
    new ZOLGraphArc(loop, loop);
    _viewer->add(loop);
    _viewer->UserClickNode(loop);
    loop->hide();
    EXPECT_EQ(_viewer->GetFocusNode(), nullptr);
}

TEST_F(ZOLGraphViewerTest, NodesAreFoundByTheFirstLinesOnTheWayFromTheRoot) {
    _red->setText("red\nlike a rose");
    ZOLGraphNode* twin = Node("red", _frame);
    _viewer->GetGraph()->addTree(twin);
    EXPECT_EQ(_viewer->FindDrawn({"Bike", "Colour", "red"}), _red);
    EXPECT_EQ(_viewer->FindDrawn({"Bike", "Frame", "red"}), twin);
    EXPECT_EQ(_viewer->FindDrawn({"Bike"}), _root);
    EXPECT_EQ(_viewer->FindDrawn({"Bike", "red"}), nullptr);
    EXPECT_EQ(_viewer->FindDrawn({"Colour"}), nullptr);
    EXPECT_EQ(_viewer->FindDrawn({}), nullptr);
    _red->hide();
    EXPECT_EQ(_viewer->FindDrawn({"Bike", "Colour", "red"}), nullptr);
}

TEST_F(ZOLGraphViewerTest, CentringPutsANodeIntoTheMiddleOnceAndBoundsKeepTheDrawingInSight) {
    const trellis::TextMeasure cells;
    _viewer->ResizeGraph(40, 20);
    _viewer->centre(_steel);
    const auto& drawing = _viewer->GetDrawing(cells);
    const auto place = drawing.Nodes()[static_cast<std::size_t>(drawing.Position(_steel))].place;
    const LayoutPoint middle{place.x + place.width / 2 - 20, place.y + place.height / 2 - 10};
    EXPECT_EQ(_viewer->GetViewPoint(cells), middle);
    _viewer->reframe();
    EXPECT_EQ(_viewer->GetViewPoint(cells), LayoutPoint()) << "centring is done once";

    _viewer->SetViewPoint({-50, 5000});
    EXPECT_EQ(_viewer->GetViewPoint(cells), (LayoutPoint{-50, 5000}));
    _viewer->setBoundedViewpoint();
    EXPECT_EQ(_viewer->GetViewPoint(cells), (LayoutPoint{0, drawing.Size().height - 20}));
    _viewer->ResizeGraph(5000, 5000);
    EXPECT_EQ(_viewer->GetViewPoint(cells), LayoutPoint()) << "a drawing that fits stands at the origin";
}

TEST_F(ZOLGraphViewerTest, AnAnchoredViewpointKeepsTheClickedNodeWhereItIsOnTheScreen) {
    const trellis::TextMeasure cells;
    _viewer->setAnchoredViewpoint();
    _viewer->GetGraph()->setHorizontalIndented();
    _viewer->GetViewPoint(cells);
    const auto onScreen = [&] {
        const auto& drawing = _viewer->GetDrawing(cells);
        const auto place = drawing.Nodes()[static_cast<std::size_t>(drawing.Position(_frame))].place;
        return place.y - _viewer->GetViewPoint(cells).y;
    };
    _viewer->_whenTold = [this](ZOLGraphNode*) {
        _red->hide();
        _blue->hide();
        _viewer->doLayout();
    };
    const int before = onScreen();
    _viewer->UserClickNode(_frame);
    EXPECT_EQ(onScreen(), before);
    EXPECT_LT(_viewer->GetViewPoint(cells).y, 0) << "two rows above are gone";
}

TEST_F(ZOLGraphViewerTest, MovingTheFocusOutOfSightBringsItIntoSight) {
    const trellis::TextMeasure cells;
    _viewer->GetGraph()->setHorizontalIndented();
    _viewer->ResizeGraph(300, 30);
    EXPECT_EQ(_viewer->GetViewPoint(cells), LayoutPoint());
    for (int i = 0; i < 5; ++i)
        _viewer->UserMoveFocus(GraphStep::Down);
    ASSERT_EQ(Focus(), "steel");
    EXPECT_EQ(_viewer->GetViewPoint(cells).y, _viewer->GetDrawing(cells).Size().height - 30);
}

TEST_F(ZOLGraphViewerTest, ADescriptionShowsWhatIsDrawnAndHow) {
    _blue->setText("blue\nmatt");
    _blue->setColor(12);
    _blue->firstArcParent()->setLineType(2);
    _red->setHighlight(1);
    _red->setShadowIn();
    _red->setColor(6);
    _frame->setColor(46);
    _frame->setPixmap("/icons/dirclose.rgb");
    _frame->setCurrent(1);
    _steel->hide();
    AddMenu();
    EXPECT_EQ(ZOLUserDriver::Describe(_viewer), "graph\n"
                                                "  \"Bike\" grey [diropen.rgb]\n"
                                                "    \"Colour\" grey\n"
                                                "      \"red\" white highlighted pressed\n"
                                                "      \"blue\\nmatt\" orange (arc dark grey rejected)\n"
                                                "    \"Frame\" green current [dirclose.rgb]\n");
}
