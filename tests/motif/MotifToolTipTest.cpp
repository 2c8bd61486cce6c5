#include "support/ScreenUser.h"
#include "support/TemporaryFolder.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgPushButton.h"

#include <Xm/Xm.h>

namespace {

class MotifToolTipTest : public ToolkitTest {
protected:
    static void SetUpTestSuite() { _user = new ScreenUser; }
    static void TearDownTestSuite() { delete _user; }
    void TearDown() override {
        _user->MoveTo({1200, 850});
        ToolkitTest::TearDown();
    }

    // Its shell, once there was one.
    static Widget ToolTip(ZOLDialog& window) {
        return XtNameToWidget(XtParent(_user->NativeOf(window)), "toolTip");
    }
    static bool IsUp(ZOLDialog& window) {
        Widget shell = ToolTip(window);
        XWindowAttributes attributes;
        return shell && XtIsRealized(shell) &&
               XGetWindowAttributes(XtDisplay(shell), XtWindow(shell), &attributes) &&
               attributes.map_state == IsViewable;
    }

    static inline ScreenUser* _user = nullptr;
};

TEST_F(MotifToolTipTest, ComesUpWhereThePointerRestsAndGoesWithTheNextKeyWithoutTakingIt) {
    ListeningPanel* panel = OpenPanel();
    auto* editor = new ZOLDlgEditor(panel, "Name");
    auto* button = new ZOLDlgPushButton(panel, "Rename");
    button->SetToolTip("Gives the part another name");
    button->SetSensitivity(ZOLGreyed); // then it is asked for most
    _user->Click(*editor);
    _user->MoveTo(*button);
    EXPECT_FALSE(IsUp(*panel)) << "at once";
    _user->WaitUntil([&] { return IsUp(*panel); });
    _user->Type("b");
    EXPECT_FALSE(IsUp(*panel));
    EXPECT_EQ(editor->GetText(), "b");
}

TEST_F(MotifToolTipTest, StaysInsideTheScreen) {
    ListeningPanel* panel = OpenPanel();
    auto* button = new ZOLDlgPushButton(panel, "Rename");
    button->SetToolTip("A long text about what happens when somebody presses this button in a corner");
    panel->SetRectPosition(1270, 890);
    _user->Settle();
    _user->MoveTo(*button);
    _user->WaitUntil([&] { return IsUp(*panel); });
    Position x = 0;
    Position y = 0;
    Dimension width = 0;
    Dimension height = 0;
    XtVaGetValues(ToolTip(*panel), XmNx, &x, XmNy, &y, XmNwidth, &width, XmNheight, &height, nullptr);
    EXPECT_GE(x, 0);
    EXPECT_LE(x + width, 1280);
    EXPECT_GE(y, 0);
    EXPECT_LE(y + height, 900);
}

TEST_F(MotifToolTipTest, TextsComeFromTheResourcesUnlessCodeSaysElse) {
    class PanelWithTexts : public ListeningPanel {
    public:
        using ListeningPanel::ListeningPanel;
        ZOLString GetResourceFilename(int level) const override { return level == 0 ? "PanelOfTest" : ""; }
    };
    const trellis::test::TemporaryFolder site;
    site.Write("resources/PanelOfTest", "Rename.ToolTip: Gives it another name\n");
    setenv("TRELLIS_SITE_FOLDER", site.Path().c_str(), 1);
    PanelWithTexts panel;
    auto* button = new ZOLDlgPushButton(&panel, "Rename");
    EXPECT_EQ(button->GetToolTip(), "Gives it another name");
    EXPECT_EQ((new ZOLDlgPushButton(&panel, "Other"))->GetToolTip(), "");
    button->SetToolTip("");
    EXPECT_EQ(button->GetToolTip(), "");
    unsetenv("TRELLIS_SITE_FOLDER");
}

TEST_F(MotifToolTipTest, ATextThatIsCutOffIsToldWhole) {
    ListeningPanel* panel = OpenPanel();
    auto* whole = new ZOLDlgLabel(panel, "Whole");
    auto* cut = new ZOLDlgLabel(panel, "Cut");
    cut->SetTitle("A name of a part that goes on and on and on, and then some more");
    cut->SetRectDimensions(80, 20);
    _user->MoveTo(*whole);
    _user->MoveTo(*cut);
    _user->WaitUntil([&] { return IsUp(*panel); });
}

} // namespace
