#include "support/ScreenUser.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"

#include <Xm/Xm.h>

namespace {

constexpr unsigned long modal = 0x2000000;

// Windows on a screen without any window manager.
class MotifWindowTest : public ToolkitTest {
protected:
    static void SetUpTestSuite() { _user = new ScreenUser; }
    static void TearDownTestSuite() { delete _user; }

    ListeningPanel* OpenAt(int x, int y, const char* name, ZOLDialog* father = nullptr,
                           unsigned long style = 0) {
        ListeningPanel* panel = OpenPanel(name, father, style);
        panel->SetRectPosition(x, y);
        _user->Settle();
        return panel;
    }
    static Window WindowOf(ZOLDialog& dialog) { return XtWindow(_user->NativeOf(dialog)); }
    static Display* DisplayOf(ZOLDialog& dialog) { return XtDisplay(_user->NativeOf(dialog)); }

    static inline ScreenUser* _user = nullptr;
};

TEST_F(MotifWindowTest, TheKeyboardGoesToTheWindowThatComesUpAndThenToTheOneThatIsClicked) {
    ListeningPanel* first = OpenPanel("First");
    auto* upper = new ZOLDlgEditor(first, "Upper");
    first->SetRectPosition(20, 20);
    _user->Click(*upper);
    ListeningPanel* second = OpenPanel("Second");
    auto* lower = new ZOLDlgEditor(second, "Lower");
    second->SetRectPosition(700, 500);
    _user->Settle();

    _user->Type("a"); // the pointer is still over the first
    EXPECT_EQ(lower->GetText(), "a");
    _user->Click(*upper);
    _user->MoveTo(*lower);
    _user->Type("b");
    EXPECT_EQ(upper->GetText(), "b");
    second->SetVisibility(ZOLHidden);
    _user->Settle();
    _user->Type("c");
    EXPECT_EQ(upper->GetText(), "bc");
}

TEST_F(MotifWindowTest, AQuestionIsAnsweredByReturnWhereverThePointerIs) {
    ListeningPanel* panel = OpenAt(20, 20, "Panel");
    auto* editor = new ZOLDlgEditor(panel, "Name");
    _user->Click(*editor);
    ZOLDlgNotify box(panel, "Confirm", modal | 0x200);
    _user->WhenItIs([&] { return box.IsOnScreen(); }, [] { _user->Press("Return"); });
    EXPECT_EQ(box.DisplayBlocked("Delete it?", "Delete"), 1);
    _user->Settle();
    _user->Type("a");
    EXPECT_EQ(editor->GetText(), "a") << "the keyboard did not come back";
    ZOLUserDriver::TakeMessages();
}

TEST_F(MotifWindowTest, ADialogThatIsGivenUpDoesNotStandBehindTheNextQuestion) {
    ListeningPanel* panel = OpenAt(20, 20, "Panel");
    auto* ask = new ZOLDlgPushButton(panel, "Ask");
    panel->reaction = [panel](ZOLCommand*, ZOLNotification*, void*) {
        auto* dialog = new ZOLDlgDialog(panel, "File", modal | 0x400);
        dialog->DisplayBlocked();
        dialog->RequestDelayedDestruction();
        ZOLDlgNotify(panel, "Confirm", modal | 0x200).DisplayBlocked("Replace it?", "Replace");
    };
    panel->Listen(ask, ask->GetPushBActivateNotification());
    Window file = 0;
    int map = -1;
    const auto isUp = [](const char* name) {
        const ZOLDialog* top = ZOLUserDriver::Top();
        return top && top->GetName() == name;
    };
    _user->WhenItIs([&] { return isUp("File"); },
                    [&] {
                        file = WindowOf(*ZOLUserDriver::Top());
                        _user->Press("Return");
                    });
    _user->WhenItIs([&] { return isUp("Confirm"); },
                    [&] {
                        XWindowAttributes attributes;
                        if (XGetWindowAttributes(DisplayOf(*panel), file, &attributes))
                            map = attributes.map_state;
                        _user->Press("Return");
                    });
    _user->Click(*ask);
    EXPECT_NE(file, 0U);
    EXPECT_EQ(map, IsUnmapped);
    ZOLUserDriver::TakeMessages();
}

TEST_F(MotifWindowTest, AModalWindowKeepsItsOwnersStillAndNobodyElse) {
    ListeningPanel* owner = OpenAt(20, 20, "Owner");
    auto* kept = new ZOLDlgCheckButton(owner, "Kept");
    ListeningPanel* stranger = OpenAt(20, 500, "Stranger");
    auto* alive = new ZOLDlgCheckButton(stranger, "Alive");
    ListeningPanel* child = OpenPanel("Child", owner, modal);
    auto* editor = new ZOLDlgEditor(child, "Name");
    child->SetRectPosition(700, 300);
    _user->Settle();

    _user->Click(*alive);
    EXPECT_TRUE(alive->IsOn());
    _user->Click(*kept);
    EXPECT_FALSE(kept->IsOn());
    _user->Type("a");
    EXPECT_EQ(editor->GetText(), "a") << "the click brought up what it waits for";
    child->SetVisibility(ZOLHidden);
    _user->Settle();
    _user->Click(*kept);
    EXPECT_TRUE(kept->IsOn());
}

TEST_F(MotifWindowTest, PositionsFollowTheUserAndTheCode) {
    ListeningPanel* panel = OpenAt(40, 50, "Panel");
    XMoveWindow(DisplayOf(*panel), WindowOf(*panel), 300, 200);
    _user->Settle();
    int x = 0;
    int y = 0;
    panel->GetRectPosition(x, y);
    EXPECT_EQ(x, 300);
    EXPECT_EQ(y, 200);

    panel->SetRectPosition(120, 130);
    _user->Settle();
    XWindowAttributes attributes;
    XGetWindowAttributes(DisplayOf(*panel), WindowOf(*panel), &attributes);
    EXPECT_EQ(attributes.x, 120);
    EXPECT_EQ(attributes.y, 130);
}

TEST_F(MotifWindowTest, AWindowMadeSmallStaysSmallAndWorks) {
    ListeningPanel* panel = OpenPanel("Panel");
    auto* editor = new ZOLDlgEditor(panel, "Name");
    for (const char* name : {"One", "Two", "Three"})
        new ZOLDlgMultiList(panel, name);
    auto* last = new ZOLDlgCheckButton(panel, "Last");
    _user->Settle();
    XResizeWindow(DisplayOf(*panel), WindowOf(*panel), 200, 100);
    _user->Settle();
    XWindowAttributes attributes;
    XGetWindowAttributes(DisplayOf(*panel), WindowOf(*panel), &attributes);
    EXPECT_EQ(attributes.width, 200);
    EXPECT_EQ(attributes.height, 100);
    _user->Type("a");
    EXPECT_EQ(editor->GetText(), "a");
    for (int i = 0; i < 4; ++i)
        _user->Press("Tab");
    _user->Press("space");
    EXPECT_TRUE(last->IsOn()) << "what is out of sight is not reached";
}

TEST_F(MotifWindowTest, ATitleMayBeLongAndOfAnyScript) {
    std::string title;
    for (int i = 0; i < 100; ++i)
        title += "Gr\xC3\xBC\xC3\x9F";
    ListeningPanel* panel = OpenPanel("Panel");
    panel->SetTitle(title + "\xD7\xA9\xD7\x9C\xE6\xBC\xA2");
    _user->Settle();
    Display* display = DisplayOf(*panel);
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* value = nullptr;
    ASSERT_EQ(XGetWindowProperty(display, WindowOf(*panel), XInternAtom(display, "_NET_WM_NAME", False), 0,
                                 1000, False, AnyPropertyType, &type, &format, &count, &rest, &value),
              Success);
    ASSERT_TRUE(value);
    EXPECT_EQ(std::string(reinterpret_cast<char*>(value)), panel->GetTitle().Bytes());
    XFree(value);
}

TEST_F(MotifWindowTest, AWindowLargerThanTheScreenFitsOnIt) {
    ListeningPanel* panel = OpenPanel("Panel");
    for (int i = 0; i < 80; ++i)
        new ZOLDlgEditor(panel, "Name");
    _user->Settle();
    XWindowAttributes attributes;
    XGetWindowAttributes(DisplayOf(*panel), WindowOf(*panel), &attributes);
    EXPECT_LE(attributes.y + attributes.height, 900);
    EXPECT_GE(attributes.y, 0);
}

TEST_F(MotifWindowTest, ProgressIsDrawnAndTakesNoInput) {
    ListeningPanel* panel = OpenAt(20, 20, "Panel");
    auto* button = new ZOLDlgPushButton(panel, "Import");
    auto* text = new ZOLDlgEditor(panel, "Text");
    panel->Listen(button, button->GetPushBActivateNotification());
    panel->reaction = [&](ZOLCommand*, ZOLNotification*, void*) {
        auto* application = ZOLInteractiveApplication::GetApplication();
        const ZOLDialog* top = ZOLUserDriver::Top();
        application->SetBusyCursor(1);
        for (long done = 0; done < 20; ++done) {
            text->SetText(ZOLUnicodeString::FromNumber(done));
            application->ReportProgress("parts", done, 20);
        }
        application->SetBusyCursor(0);
        EXPECT_EQ(ZOLUserDriver::Top(), top);
        EXPECT_EQ(panel->heard.size(), 1U) << "input was served inside the job";
    };
    _user->Click(*button);
    EXPECT_EQ(panel->heard.size(), 1U);
}

} // namespace
