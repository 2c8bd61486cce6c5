#include "support/ScreenUser.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSelectorList.h"
#include "toolkit/ZOLDlgSplitter.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLGraphViewer.h"

#include <Xm/Xm.h>

namespace {

// Windows under what people and programs do to them at bad moments.
class MotifRobustnessTest : public ToolkitTest {
protected:
    using Box = std::vector<int>; // left, top, width, height
    static void SetUpTestSuite() { _user = new ScreenUser; }
    static void TearDownTestSuite() { delete _user; }

    static void Resize(ZOLDialog& window, int width, int height) {
        Widget shell = _user->NativeOf(window);
        XResizeWindow(XtDisplay(shell), XtWindow(shell), static_cast<unsigned>(width),
                      static_cast<unsigned>(height));
        _user->Settle();
    }
    static Box BoxOf(ZOLDialog& dialog) {
        Widget widget = _user->NativeOf(dialog);
        Position x = 0;
        Position y = 0;
        Dimension width = 0;
        Dimension height = 0;
        XtTranslateCoords(widget, 0, 0, &x, &y);
        XtVaGetValues(widget, XmNwidth, &width, XmNheight, &height, nullptr);
        return {x, y, width, height};
    }
    static void End(ZOLDialog& window) {
        window.RequestDelayedDestruction();
        trellis::CallbackScope::FreeGivenUp();
        _user->Settle();
    }
    // Whatever was open before, the mouse and the keyboard are free again.
    void ExpectThatOthersWork() {
        ListeningPanel* other = OpenPanel("Other");
        auto* check = new ZOLDlgCheckButton(other, "Check");
        _user->Click(*check);
        EXPECT_TRUE(check->IsOn());
        _user->Press("space");
        EXPECT_FALSE(check->IsOn());
    }

    static inline ScreenUser* _user = nullptr;
    std::vector<std::unique_ptr<ZOLGraphNode>> _nodes; // of graphs, which go before
};

TEST_F(MotifRobustnessTest, MadeTinyAndLargeAgainEverythingStandsWhereItStood) {
    ListeningPanel* panel = OpenPanel();
    auto* editor = new ZOLDlgEditor(panel, "Editor", 0x80000);
    auto* splitter = new ZOLDlgSplitter(panel, "Splitter");
    splitter->SetDefaultOrientation(1);
    auto* left = new ZOLDlgMultiList(splitter, "Left");
    auto* right = new ZOLGraphViewer(splitter, "Right", 0, 300, 200, 0);
    const auto boxes = [&] {
        return std::vector<Box>{BoxOf(*panel), BoxOf(*editor), BoxOf(*left), BoxOf(*right)};
    };
    const std::vector<Box> before = boxes();
    Resize(*panel, 200, 100);
    EXPECT_EQ(BoxOf(*panel)[2], 200);
    Resize(*panel, before[0][2], before[0][3]);
    EXPECT_EQ(boxes(), before);
}

TEST_F(MotifRobustnessTest, TheBarOfASplitterFollowsTheMouseAndLeavesRoomForBoth) {
    ListeningPanel* panel = OpenPanel();
    auto* splitter = new ZOLDlgSplitter(panel, "Splitter");
    splitter->SetDefaultOrientation(1);
    auto* left = new ZOLDlgMultiList(splitter, "Left");
    auto* right = new ZOLDlgMultiList(splitter, "Right");
    for (ZOLDlgMultiList* list : {left, right})
        list->SetColumnTextWidth(0, 40);
    _user->Settle();
    const Box before = BoxOf(*left);
    const ScreenUser::Place bar = {before[0] + before[2] + 3, before[1] + before[3] / 2};
    const int both = before[2] + BoxOf(*right)[2];
    _user->Drag(bar, {bar.x - 60, bar.y});
    EXPECT_EQ(BoxOf(*left)[2], before[2] - 60);
    EXPECT_EQ(BoxOf(*left)[2] + BoxOf(*right)[2], both);
    _user->Drag({bar.x - 60, bar.y}, {1, bar.y});
    EXPECT_GT(BoxOf(*left)[2], 0);
}

TEST_F(MotifRobustnessTest, WordsOfAllScriptsAreDrawnAndKeptInLabelsListsAndNodes) {
    const std::vector<ZOLUnicodeString> texts = {"\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d abc",
                                                 "\xd9\x85\xd8\xb1\xd8\xad\xd8\xa8\xd8\xa7",
                                                 "\xe8\x87\xaa\xe8\xa1\x8c\xe8\xbb\x8a",
                                                 "\xf0\x9f\x9a\xb2",
                                                 "\xe2\x80\xae"
                                                 "abc",
                                                 "e\xcc\x81\xcc\x81"};
    ListeningPanel* panel = OpenPanel();
    auto* list = new ZOLDlgMultiList(panel, "Rows");
    auto* lines = new ZOLDlgSelectorList(panel, "Lines");
    auto* viewer = new ZOLGraphViewer(panel, "Graph", 0, 400, 300, 0);
    for (const ZOLUnicodeString& text : texts) {
        (new ZOLDlgLabel(panel, "Label"))->SetTitle(text);
        list->SetColumnItem(0, text, list->GetLineCount());
        lines->SetLine(text);
        _nodes.push_back(std::make_unique<ZOLGraphNode>(text, " "));
        if (_nodes.size() > 1)
            new ZOLGraphArc(_nodes.front().get(), _nodes.back().get());
    }
    viewer->GetGraph()->addTree(_nodes.front().get());
    _user->Settle();
    for (std::size_t i = 0; i < texts.size(); ++i) {
        ZOLUnicodeString cell;
        list->GetColumnItem(0, cell, static_cast<int>(i));
        EXPECT_EQ(cell, texts[i]);
        EXPECT_EQ(_nodes[i]->firstLine(), texts[i]);
        EXPECT_NE(ZOLUserDriver::Describe(panel).find(texts[i].Bytes()), std::string::npos);
    }
    _user->Click(*list);
    _user->Press("Home");
    EXPECT_EQ(list->GetSelect(), 0);
}

TEST_F(MotifRobustnessTest, AWindowMayGoWhileItsMenuIsOpen) {
    auto* panel = new ListeningPanel;
    auto* list = new ZOLDlgMultiList(panel, "List");
    auto* menu = new ZOLDlgContextualMenu(list, "Menu");
    new ZOLDlgPushItem(menu, "Open");
    panel->SetVisibility(ZOLShown);
    _user->Click(*list, 3);
    ASSERT_TRUE(menu->IsOpen());
    End(*panel);
    EXPECT_EQ(ZOLDlgMenuPane::GetOpenMenu(), nullptr);
    ExpectThatOthersWork();
}

TEST_F(MotifRobustnessTest, AWindowMayGoWhileItsListOfLinesIsOpen) {
    auto* panel = new ListeningPanel;
    auto* combo = new ZOLDlgCombo(panel, "Combo");
    for (const char* line : {"one", "two", "three"})
        combo->SetLine(line);
    panel->SetVisibility(ZOLShown);
    _user->Click(_user->PlaceIn(*combo, -10, 10));
    ASSERT_TRUE(_user->PartOf(*combo, "*List"));
    End(*panel);
    ExpectThatOthersWork();
}

TEST_F(MotifRobustnessTest, TwentyThousandRowsAreWalkedByKeyboard) {
    constexpr int Rows = 20000;
    ListeningPanel* panel = OpenPanel();
    auto* list = new ZOLDlgMultiList(panel, "List");
    for (int row = 0; row < Rows; ++row)
        list->SetColumnItem(0, ZOLUnicodeString::FromNumber(row), row);
    const ScreenUser::Place place = _user->MiddleOf(*list);
    _user->Click(place);
    const int clicked = list->GetSelect();
    EXPECT_LT(clicked, 100);
    _user->Press("End");
    EXPECT_EQ(list->GetSelect(), Rows - 1);
    _user->Press("Prior");
    EXPECT_LT(list->GetSelect(), Rows - 1);
    _user->Press("End");
    _user->Click(place);
    EXPECT_GT(list->GetSelect(), Rows - 100) << "the last rows did not come into sight";
    _user->Press("Home");
    _user->Click(place);
    EXPECT_EQ(list->GetSelect(), clicked);
}

TEST(MotifFontTest, AFontThatDoesNotExistIsReplacedByOneThatCanBeRead) {
    ScreenUser user({"-fontFamily", "No Such Letters"});
    auto* panel = new ListeningPanel;
    auto* label = new ZOLDlgLabel(panel, "Label");
    label->SetTitle("Identifier of the part");
    auto* editor = new ZOLDlgEditor(panel, "Editor");
    panel->SetVisibility(ZOLShown);
    user.Click(*editor);
    user.Type("abc");
    EXPECT_EQ(editor->GetText(), "abc");
    Dimension width = 0;
    XtVaGetValues(user.NativeOf(*label), XmNwidth, &width, nullptr);
    EXPECT_GT(width, 80);
    panel->RequestDelayedDestruction();
    trellis::CallbackScope::FreeGivenUp();
}

} // namespace
