// What single keys do in each kind of widget, and in every window.

#include "toolkit/ToolkitFixture.h"

#include "support/TemporaryFolder.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgTabPage.h"
#include "toolkit/ZOLGraphArc.h"
#include "toolkit/ZOLGraphNode.h"
#include "toolkit/ZOLGraphViewer.h"

#include <cstdlib>

using enum ZOLUserKey;

namespace {

// A panel with texts of a class and its base.
class ClassPanel : public ListeningPanel {
public:
    using ListeningPanel::ListeningPanel;
    ZOLString GetResourceFilename(int level) const override {
        static constexpr const char* classes[] = {"PanelOfTest", "BaseOfTest"};
        return level < 2 ? classes[level] : "";
    }
};

class UserKeysTest : public ToolkitTest {
protected:
    void SetUp() override { panel = OpenPanel(); }

    static std::string Refusal(ZOLDialog* dialog, ZOLUserKey key) {
        return ReasonOf([&] { ZOLUserDriver::Key(dialog, key); });
    }
    static int Caret(const ZOLDlgEditor* editor) {
        int start = 0;
        int end = 0;
        editor->GetSelection(start, end);
        EXPECT_EQ(end, -1);
        return start;
    }
    ListeningPanel* panel = nullptr;
};

} // namespace

TEST_F(UserKeysTest, TheCaretGoesThroughTheLinesOfAnEditorAndStopsAtItsEnds) {
    auto* editor = new ZOLDlgEditor(panel, "Editor", 0x80000);
    editor->SetVisibleTextHeight(2);
    editor->SetText("one\nzwölf words\n\nx");
    struct Case {
        int from;
        ZOLUserKey key;
        int to;
    };
    const Case cases[] = {
        {0, Left, 0},   {3, Left, 2},      {3, Right, 4},      {18, Right, 18}, {6, Home, 4},
        {6, End, 15},   {4, Home, 4},      {15, End, 15},      {2, Up, 2},      {6, Up, 2},
        {14, Up, 3},    {2, Down, 6},      {14, Down, 16},     {18, Down, 18},  {17, PageUp, 4},
        {1, PageUp, 1}, {1, PageDown, 16}, {18, PageDown, 18},
    };
    for (const Case& c : cases) {
        editor->SetSelection(c.from, -1);
        ZOLUserDriver::Key(editor, c.key);
        EXPECT_EQ(Caret(editor), c.to) << "from " << c.from << " to " << c.to;
    }
    editor->SetSelection(4, 9);
    ZOLUserDriver::Key(editor, Left);
    EXPECT_EQ(Caret(editor), 4);
    editor->SetSelection(4, 9);
    ZOLUserDriver::Key(editor, Right);
    EXPECT_EQ(Caret(editor), 9);
}

TEST_F(UserKeysTest, InAnEditorOfOneLineKeysThatWriteWriteAndThoseBetweenLinesMeanNothing) {
    auto* editor = new ZOLDlgEditor(panel, "Editor");
    for (const ZOLUserKey key : {Plus, Space, Minus, ShiftSpace})
        ZOLUserDriver::Key(editor, key);
    EXPECT_EQ(editor->GetText(), "+ - ");
    EXPECT_NE(Refusal(editor, Up), "not refused");
    EXPECT_NE(Refusal(editor, PageDown), "not refused");
    editor->SetSensitivity(ZOLGreyed);
    EXPECT_NE(Refusal(editor, Left), "not refused");
}

TEST_F(UserKeysTest, ACharacterThatMayNotGoStaysUnselectedBesideTheCaret) {
    auto* editor = new ZOLDlgEditor(panel, "Editor");
    editor->SetText("abc");
    editor->SetVerifyCallback([](const ZOLUnicodeString&, void*) { return 0; });
    editor->SetSelection(2, -1);
    ZOLUserDriver::Key(editor, Backspace);
    EXPECT_EQ(editor->GetText(), "abc");
    EXPECT_EQ(Caret(editor), 2);
}

TEST_F(UserKeysTest, TabLeavesAnEditorWhichConfirmsOnce) {
    auto* editor = new ZOLDlgEditor(panel, "Editor");
    auto* button = new ZOLDlgPushButton(panel, "Button");
    panel->Listen(editor, editor->GetEditModifyNotification());
    ZOLUserDriver::Type(editor, "abc");
    ZOLUserDriver::Key(editor, Tab);
    EXPECT_EQ(panel->heard, Heard{"Editor"});
    ZOLUserDriver::Key(button, Tab);
    ZOLUserDriver::Key(editor, Tab);
    EXPECT_EQ(panel->heard.size(), 1u);
}

TEST_F(UserKeysTest, ReturnInAFieldPressesTheDefaultButtonUnlessSomebodyTakesTheField) {
    panel->Listen(panel, panel->GetDiaOKNotification());
    auto* name = new ZOLDlgEditor(panel, "Name");
    auto* filter = new ZOLDlgEditor(panel, "Filter");
    panel->Listen(filter, filter->GetEditModifyNotification());
    ZOLUserDriver::Type(filter, "b*");
    ZOLUserDriver::Key(filter, Return);
    EXPECT_EQ(panel->heard, Heard{"Filter"}) << "a list shows what passes; the dialog stays";
    ZOLUserDriver::Type(name, "bo");
    ZOLUserDriver::Enter(name);
    ZOLUserDriver::Key(new ZOLDlgEditor(panel, "Fixed", 0x4000000), Return);
    EXPECT_EQ(panel->heard, (Heard{"Filter", "Panel", "Panel"}));

    ZOLUserDriver::Key(new ZOLDlgEditor(panel, "Notes", 0x80000), Return);
    panel->SetOKSensitivity(ZOLGreyed);
    ZOLUserDriver::Key(name, Return);
    panel->SetDefaultButton(ZOLDialogButton::None);
    ZOLUserDriver::Key(name, Return);
    EXPECT_EQ(panel->heard.size(), 3U);
}

TEST_F(UserKeysTest, KeysMoveTheSelectionOfListsAndCombosAmongTheirLines) {
    auto* list = new ZOLDlgMultiList(panel, "List");
    auto* combo = new ZOLDlgCombo(panel, "Combo");
    EXPECT_NE(Refusal(list, End), "not refused") << "it is empty";
    for (const char* text : {"a", "b", "c", "d", "e"}) {
        list->SetColumnItem(0, text);
        combo->SetLine(text);
    }
    list->SetVisibleLineCount(3);
    combo->SetVisibleTextHeight(3);
    panel->Listen(list, list->GetListSelectNotification());
    panel->Listen(combo, combo->GetComboSelectNotification());
    const std::pair<ZOLUserKey, int> steps[] = {{Down, 0}, {Down, 1},   {PageDown, 4}, {PageDown, 4},
                                                {Up, 3},   {PageUp, 0}, {End, 4},      {Home, 0}};
    for (const auto& [key, row] : steps) {
        ZOLUserDriver::Key(list, key);
        ZOLUserDriver::Key(combo, key);
        EXPECT_EQ(list->GetSelect(), row);
        EXPECT_EQ(combo->GetSelect(), row);
    }
    EXPECT_EQ(panel->heard.size(), 14u) << "the row that is selected already tells nothing";
    EXPECT_NE(Refusal(list, Up), "not refused");
    EXPECT_NE(Refusal(combo, Left), "not refused");
}

TEST_F(UserKeysTest, TheFieldOfAnEditableComboTakesKeysAtItsEnd) {
    auto* combo = new ZOLDlgCombo(panel, "Combo", 0x40000);
    combo->SetLine("ä");
    panel->Listen(combo, combo->GetComboModifyNotification());
    combo->SetField("äb");
    ZOLUserDriver::Key(combo, Backspace);
    EXPECT_EQ(combo->GetSelect(), 0);
    ZOLUserDriver::Key(combo, Minus);
    EXPECT_EQ(combo->GetField(), "ä-");
    EXPECT_EQ(panel->heard.size(), 2u);
    combo->ClearField();
    ZOLUserDriver::Key(combo, Backspace);
    EXPECT_EQ(panel->heard.size(), 2u);
}

TEST_F(UserKeysTest, ArrowsTurnPagesPastThoseThatAreGreyed) {
    auto* tabs = new ZOLDlgTabContainer(panel, "Tabs");
    auto* first = new ZOLDlgTabPage(tabs, "First");
    (new ZOLDlgTabPage(tabs, "Greyed"))->SetSensitivity(ZOLGreyed);
    auto* last = new ZOLDlgTabPage(tabs, "Last");
    ZOLUserDriver::Key(tabs, Right);
    EXPECT_EQ(tabs->GetSelectedPage(), last);
    EXPECT_NE(Refusal(tabs, Right), "not refused");
    ZOLUserDriver::Key(tabs, Left);
    EXPECT_EQ(tabs->GetSelectedPage(), first);
}

TEST_F(UserKeysTest, InAGraphKeysActOnTheNodeThatHasTheFocus) {
    ZOLGraphNode root("root", "dirclose.rgb");
    ZOLGraphNode leaf("leaf", " ");
    new ZOLGraphArc(&root, &leaf);
    auto* graph = new ZOLGraphViewer(panel, "Graph", 0, 100, 100, 0);
    graph->GetGraph()->addTree(&root);
    for (const char* news : {"ZOLNodeSelectNotification", "ZOLNodeContextNotification"})
        panel->AddAnalyseNotificationCB(graph, news, ZOL_CALLBACK(&ListeningPanel::HeardCB));
    std::string told;
    panel->reaction = [&told](ZOLCommand*, ZOLNotification* news, void*) {
        told += news->ClassName() + 7;
        told += ' ' + dynamic_cast<ZOLGraphNotification*>(news)->GetNode()->firstLine().Bytes() + '\n';
    };
    ZOLUserDriver::Key(graph, Plus);
    EXPECT_NE(Refusal(graph, Minus), "not refused") << "the branch is closed";
    ZOLUserDriver::Key(graph, Right);
    ZOLUserDriver::Key(graph, Space);
    ZOLUserDriver::Key(graph, ShiftSpace);
    ZOLUserDriver::Key(graph, Left);
    ZOLUserDriver::Key(graph, Menu);
    EXPECT_NE(Refusal(graph, Up), "not refused");
    EXPECT_NE(Refusal(graph, Home), "not refused");
    EXPECT_EQ(told, "SelectNotification root\nSelectNotification leaf\n"
                    "ContextNotification leaf\nContextNotification root\n");
    graph->RequestDelayedDestruction();
}

TEST_F(UserKeysTest, TheMenuKeyOpensTheNearestMenuAndEscapeClosesItBeforeTheWindow) {
    auto* frame = new ZOLDlgFrame(panel, "Frame");
    auto* menu = new ZOLDlgContextualMenu(frame, "Menu");
    auto* item = new ZOLDlgPushItem(menu, "Item");
    auto* button = new ZOLDlgPushButton(frame, "Button");
    panel->Listen(item, item->GetMenuIActivateNotification());
    panel->Listen(panel, panel->GetWindCloseNotification());
    ZOLUserDriver::Key(button, Menu);
    EXPECT_TRUE(menu->IsOpen());
    ZOLUserDriver::Key(button, Escape);
    EXPECT_FALSE(menu->IsOpen());
    EXPECT_TRUE(panel->heard.empty());
    ZOLUserDriver::Key(button, Escape);
    EXPECT_EQ(panel->heard, Heard{"Panel"});

    ZOLUserDriver::Key(button, Menu);
    ZOLUserDriver::Menu(frame, "Item");
    EXPECT_EQ(panel->heard, (Heard{"Panel", "Item"}));
    EXPECT_NE(Refusal(new ZOLDlgPushButton(panel, "Elsewhere"), Menu), "not refused");
}

TEST_F(UserKeysTest, F1ShowsThePageOfTheClassOrItsBaseAndPressesNothing) {
    const trellis::test::TemporaryFolder site;
    site.Write("resources/help/BaseOfTest", "How to use a base.\nSecond line.\n");
    setenv("TRELLIS_SITE_FOLDER", site.Path().c_str(), 1);
    auto* withPage = new ClassPanel(panel, "ClassPanel", 0x1c00);
    withPage->SetVisibility(ZOLShown);
    withPage->Listen(withPage, withPage->GetDiaHELPNotification());
    auto* editor = new ZOLDlgEditor(withPage, "Editor");
    withPage->Listen(editor, editor->GetEditModifyNotification());

    EXPECT_NE(Refusal(panel, F1), "not refused") << "nobody wrote a page for it";
    ZOLUserDriver::Type(editor, "abc");
    ZOLUserDriver::Key(editor, F1);
    EXPECT_EQ(ZOLUserDriver::Describe(ZOLUserDriver::Top()),
              "window \"Help\"\n"
              "  editor holds \"How to use a base.\\nSecond line.\\n\" read-only\n"
              "  buttons \"Close\" default\n");
    EXPECT_TRUE(withPage->heard.empty()) << "neither Help nor the typed text";
    ZOLDialog* page = ZOLUserDriver::Top();
    site.Write("resources/help/PanelOfTest", "How to use the panel.\n");
    ZOLUserDriver::Key(editor, F1);
    EXPECT_EQ(ZOLUserDriver::Top(), page) << "one window per panel";
    EXPECT_NE(ZOLUserDriver::Describe(page).find("use the panel"), std::string::npos);
    ZOLUserDriver::Ok(page);
    EXPECT_EQ(ZOLUserDriver::Top(), withPage);
    ZOLUserDriver::Key(editor, F1);
    withPage->RequestDelayedDestruction();
    trellis::CallbackScope::FreeGivenUp();
    EXPECT_EQ(ZOLUserDriver::Top(), panel) << "the page goes with its panel";
    unsetenv("TRELLIS_SITE_FOLDER");
}
