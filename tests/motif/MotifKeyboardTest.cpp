#include "support/ScreenUser.h"
#include "support/TemporaryFolder.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgRadioButton.h"
#include "toolkit/ZOLDlgSplitter.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgTabPage.h"

#include <Xm/Xm.h>

namespace {

// What the keyboard does in a real window.
class MotifKeyboardTest : public ToolkitTest {
protected:
    static void SetUpTestSuite() { _user = new ScreenUser; }
    static void TearDownTestSuite() { delete _user; }

    // The name of the innermost of these dialogs that has the keyboard.
    static std::string FocusAmong(const std::vector<ZOLDialog*>& dialogs) {
        for (Widget widget = XmGetFocusWidget(_user->NativeOf(*dialogs.front())); widget;
             widget = XtParent(widget))
            for (ZOLDialog* dialog : dialogs)
                if (_user->NativeOf(*dialog) == widget)
                    return dialog->GetName().ConvertToChar();
        return "nothing";
    }
    static Heard Walk(const std::vector<ZOLDialog*>& dialogs, std::size_t steps,
                      const ScreenUser::Modifiers& modifiers = {}) {
        Heard stops;
        while (stops.size() < steps) {
            _user->Press("Tab", modifiers);
            stops.push_back(FocusAmong(dialogs));
        }
        return stops;
    }
    static int WidthOf(ZOLDialog& dialog) {
        Dimension width = 0;
        XtVaGetValues(_user->NativeOf(dialog), XmNwidth, &width, nullptr);
        return width;
    }

    static inline ScreenUser* _user = nullptr;
};

TEST_F(MotifKeyboardTest, ReturnInAFieldThatNobodyTakesPressesTheDefaultButton) {
    ListeningPanel* panel = OpenPanel();
    panel->Listen(panel, panel->GetDiaOKNotification());
    auto* name = new ZOLDlgEditor(panel, "Name");
    auto* filter = new ZOLDlgEditor(panel, "Filter");
    panel->Listen(filter, filter->GetEditModifyNotification());
    _user->Click(*filter);
    _user->Type("b\n");
    EXPECT_EQ(panel->heard, Heard{"Filter"});
    _user->Click(*name);
    _user->Type("bo\n");
    EXPECT_EQ(panel->heard, (Heard{"Filter", "Panel"}));
    EXPECT_EQ(name->GetText(), "bo");
}

TEST_F(MotifKeyboardTest, TabWalksThroughEverythingInTheOrderOfTheLayoutAndBack) {
    ListeningPanel* panel = OpenPanel();
    auto* name = new ZOLDlgEditor(panel, "Name");
    auto* text = new ZOLDlgEditor(panel, "Text", 0x80000);
    auto* type = new ZOLDlgCombo(panel, "Type");
    type->SetLine("first");
    auto* greyed = new ZOLDlgPushButton(panel, "Greyed");
    greyed->SetSensitivity(ZOLGreyed);
    auto* choice = new ZOLDlgFrame(panel, "Choice");
    auto* one = new ZOLDlgRadioButton(choice, "One");
    auto* two = new ZOLDlgRadioButton(choice, "Two");
    two->SetState(ZOLOn);
    auto* list = new ZOLDlgMultiList(panel, "List");
    auto* check = new ZOLDlgCheckButton(panel, "Check");
    const std::vector<ZOLDialog*> all = {panel, name, text, type, greyed, one, two, list, check};

    _user->Click(*name);
    EXPECT_EQ(Walk(all, 8), (Heard{"Text", "Type", "Two", "List", "Check", "Panel", "Panel", "Name"}))
        << "the two buttons of the row belong to the panel itself";
    EXPECT_EQ(Walk(all, 4, {"Shift_L"}), (Heard{"Panel", "Panel", "Check", "List"}));
}

TEST_F(MotifKeyboardTest, ArrowsChooseAmongTheRadioButtonsOfOneOwner) {
    ListeningPanel* panel = OpenPanel();
    auto* frame = new ZOLDlgFrame(panel, "Choice");
    auto* one = new ZOLDlgRadioButton(frame, "One");
    auto* greyed = new ZOLDlgRadioButton(frame, "Greyed");
    auto* three = new ZOLDlgRadioButton(frame, "Three");
    greyed->SetSensitivity(ZOLGreyed);
    auto* other = new ZOLDlgRadioButton(new ZOLDlgFrame(panel, "Others"), "Other");
    for (ZOLDlgRadioButton* radio : {one, three, other})
        panel->Listen(radio, radio->GetRadBModifyNotification());
    _user->Click(*one);
    panel->heard.clear();

    _user->Press("Down");
    EXPECT_TRUE(three->IsOn());
    EXPECT_EQ(panel->heard, (Heard{"One", "Three"}));
    EXPECT_EQ(FocusAmong({panel, one, three, other}), "Three");
    _user->Press("Right");
    EXPECT_TRUE(one->IsOn()) << "round and round";
    _user->Press("Up");
    EXPECT_TRUE(three->IsOn());
    EXPECT_FALSE(other->IsOn());
}

TEST_F(MotifKeyboardTest, AltAndALetterChooseWhatTheirTitlesShow) {
    ListeningPanel* panel = OpenPanel();
    auto* label = new ZOLDlgLabel(panel, "Label");
    label->SetTitle("Identifier");
    auto* identifier = new ZOLDlgEditor(panel, "Ident");
    auto* text = new ZOLDlgEditor(panel, "Text");
    text->SetTitle("Description");
    auto* check = new ZOLDlgCheckButton(panel, "Check");
    check->SetTitle("Mandatory");
    auto* button = new ZOLDlgPushButton(panel, "Button");
    button->SetTitle("Rename");
    auto* tabs = new ZOLDlgTabContainer(panel, "Tabs");
    new ZOLDlgTabPage(tabs, "First");
    auto* second = new ZOLDlgTabPage(tabs, "Second");
    panel->Listen(button, button->GetPushBActivateNotification());
    panel->Listen(panel, panel->GetDiaOKNotification());
    _user->Settle();
    const auto press = [](const char* letter) { _user->Press(letter, {"Alt_L"}); };

    press("d");
    EXPECT_EQ(FocusAmong({panel, identifier, text}), "Text");
    press("i");
    EXPECT_EQ(FocusAmong({panel, identifier, text}), "Ident");
    EXPECT_EQ(identifier->GetText(), "") << "the letter was written";
    press("m");
    EXPECT_TRUE(check->IsOn());
    press("s");
    EXPECT_EQ(tabs->GetSelectedPage(), second);
    press("r");
    press("o");
    press("z");
    EXPECT_EQ(panel->heard, (Heard{"Button", "Panel"}));

    button->SetSensitivity(ZOLGreyed);
    press("r");
    EXPECT_EQ(panel->heard.size(), 2U) << "it is greyed";
    check->SetVisibility(ZOLHidden);
    button->SetTitle("Merge");
    button->SetSensitivity(ZOLActive);
    press("m");
    EXPECT_TRUE(check->IsOn());
    EXPECT_EQ(panel->heard.size(), 3U) << "the letter went to the button";
}

TEST_F(MotifKeyboardTest, F1OpensThePageOfTheClassThatHasTheKeyboard) {
    class PanelWithPage : public ListeningPanel {
    public:
        using ListeningPanel::ListeningPanel;
        ZOLString GetResourceFilename(int level) const override { return level == 0 ? "PanelOfTest" : ""; }
    };
    const trellis::test::TemporaryFolder site;
    site.Write("resources/help/PanelOfTest", "How to use the panel.\n");
    setenv("TRELLIS_SITE_FOLDER", site.Path().c_str(), 1);
    auto* panel = new PanelWithPage;
    auto* editor = new ZOLDlgEditor(panel, "Name");
    panel->SetVisibility(ZOLShown);
    _user->Click(*editor);
    _user->Press("F1");
    ASSERT_NE(ZOLUserDriver::Top(), panel);
    EXPECT_NE(ZOLUserDriver::Describe(ZOLUserDriver::Top()).find("How to use"), std::string::npos);
    _user->Press("Escape");
    EXPECT_EQ(ZOLUserDriver::Top(), panel);
    panel->RequestDelayedDestruction();
    trellis::CallbackScope::FreeGivenUp();
    unsetenv("TRELLIS_SITE_FOLDER");
}

TEST_F(MotifKeyboardTest, TheBarOfASplitterIsMovedByArrowsAsFarAsThereIsRoom) {
    ListeningPanel* panel = OpenPanel();
    auto* splitter = new ZOLDlgSplitter(panel, "Splitter");
    splitter->SetDefaultOrientation(1);
    auto* left = new ZOLDlgMultiList(splitter, "Left");
    auto* right = new ZOLDlgMultiList(splitter, "Right");
    _user->Click(*left);
    EXPECT_EQ(Walk({panel, splitter, left, right}, 2), (Heard{"Splitter", "Right"}));
    _user->Press("Tab", {"Shift_L"});

    const int before = WidthOf(*left);
    const int both = before + WidthOf(*right);
    _user->Press("Right");
    const int after = WidthOf(*left);
    EXPECT_GT(after, before);
    EXPECT_EQ(after + WidthOf(*right), both);
    for (int i = 0; i < 60; ++i)
        _user->Press("Left");
    const int least = WidthOf(*left);
    EXPECT_GT(least, 0);
    _user->Press("Right");
    EXPECT_GT(WidthOf(*left), least) << "steps beyond the end were counted";
}

} // namespace
