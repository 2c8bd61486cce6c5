// Buttons, texts and description of whole dialogs.

#include "toolkit/ToolkitFixture.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgTabPage.h"

namespace {

class DialogPresentationTest : public ToolkitTest {
protected:
    static std::string ButtonLine(const ZOLDialog* dialog) {
        const std::string text = ZOLUserDriver::Describe(dialog);
        const std::size_t begin = text.find("buttons ") + 8;
        return text.substr(begin, text.find('\n', begin) - begin);
    }
};

// A panel whose own file is one that the toolkit ships; its base has another.
class PanelWithTexts : public ListeningPanel {
public:
    PanelWithTexts() : ListeningPanel(nullptr, "Confirm") {}
    ZOLString GetResourceFilename(int level) const override {
        static constexpr const char* files[] = {"ZOLGYRDlgError", "ZOLDlgDialog", ""};
        return level < 2 ? files[level] : "";
    }
};

} // namespace

TEST_F(DialogPresentationTest, TheStyleWordAndTheTitlesSetDecideWhichButtonsThereAre) {
    const std::vector<std::pair<unsigned long, std::string>> cases = {
        {0, R"("OK" default, "Cancel")"},
        {0x200, R"("OK" default, "Cancel")"},
        {0x400, R"("OK" default)"},
        {0xe00, R"("OK" default, "Cancel")"},
        {0x1400, R"("OK" default, "Help")"},
        {0x1c00, R"("OK" default, "Cancel", "Help")"},
        {0x2800, R"("OK" default, "Apply", "Cancel")"},
        {0x3c00, R"("OK" default, "Apply", "Cancel", "Help")"},
        {0x2002e00, R"("OK" default, "Apply", "Cancel")"},
    };
    for (const auto& [style, expected] : cases) {
        ListeningPanel* panel = OpenPanel("Panel", nullptr, style);
        EXPECT_EQ(ButtonLine(panel), expected) << style;
    }
    ListeningPanel* panel = OpenPanel("Panel", nullptr, 0x400);
    panel->SetHELPTitle("Leave");
    panel->SetDefaultButton(ZOLDialogButton::None);
    panel->SetOKSensitivity(ZOLGreyed);
    EXPECT_EQ(ButtonLine(panel), R"("OK" greyed, "Leave")");
    EXPECT_THROW(ZOLUserDriver::Ok(panel), ZOLUserDriver::Refused);
    EXPECT_THROW(ZOLUserDriver::Cancel(panel), ZOLUserDriver::Refused);
    EXPECT_THROW(ZOLUserDriver::Key(panel, ZOLUserKey::Return), ZOLUserDriver::Refused);
}

TEST_F(DialogPresentationTest, ButtonsAndCloseBoxSendToTheDialogAndNeverCloseIt) {
    ListeningPanel* panel = OpenPanel("Panel", nullptr, 0x3c00);
    std::vector<ZOLNotification*> told;
    for (ZOLNotification* notification :
         {panel->GetDiaOKNotification(), panel->GetDiaAPPLYNotification(), panel->GetDiaCANCELNotification(),
          panel->GetDiaHELPNotification(), panel->GetWindCloseNotification()})
        panel->Listen(panel, notification);
    panel->reaction = [&](ZOLCommand*, ZOLNotification* notification, void*) {
        told.push_back(notification);
    };
    ZOLUserDriver::Ok(panel);
    ZOLUserDriver::Apply(panel);
    ZOLUserDriver::Cancel(panel);
    ZOLUserDriver::Help(panel);
    ZOLUserDriver::Key(panel, ZOLUserKey::Escape);
    ZOLUserDriver::Key(panel, ZOLUserKey::Return);
    EXPECT_EQ(told, (std::vector{panel->GetDiaOKNotification(), panel->GetDiaAPPLYNotification(),
                                 panel->GetDiaCANCELNotification(), panel->GetDiaHELPNotification(),
                                 panel->GetWindCloseNotification(), panel->GetDiaOKNotification()}));
    EXPECT_EQ(panel->GetVisibility(), ZOLShown);
}

TEST_F(DialogPresentationTest, TextsAreSoughtFromTheWidgetUpwardsAndFromEachClassToItsBases) {
    PanelWithTexts panel;
    auto* frame = new ZOLDlgFrame(&panel, "Frame");
    auto* own = new ZOLDlgLabel(frame, "Close");
    auto* ofBase = new ZOLDlgLabel(frame, "Apply");
    auto* missing = new ZOLDlgLabel(frame, "Nowhere");
    EXPECT_EQ(own->GetTitle(), "Close");
    EXPECT_EQ(ofBase->GetTitle(), "Apply");
    EXPECT_EQ(missing->GetTitle(), "Nowhere");
    EXPECT_TRUE(frame->GetTitle().IsEmpty());
    own->SetTitle("");
    EXPECT_TRUE(own->GetTitle().IsEmpty());
    ZOLUnicodeString text("kept");
    EXPECT_EQ(frame->GetResourceValueFromKey("Yes", text), 0);
    EXPECT_EQ(text, "kept");
    EXPECT_EQ(frame->GetResourceValueFromKey("Yes.Title", text), 1);
    EXPECT_EQ(text, "Yes");
}

TEST_F(DialogPresentationTest, ADescriptionHoldsWhatAUserSeesAndNothingElse) {
    ListeningPanel* panel = OpenPanel("Panel", nullptr, 0x2800);
    panel->SetTitle("Category");
    auto* frame = new ZOLDlgFrame(panel, "MainFrame");
    frame->SetTitle("Names");
    new ZOLDlgLabel(frame, "Name");
    new ZOLDlgLabel(frame, "Hidden");
    ZOLUserDriver::Find(panel, "Hidden")->SetVisibility(ZOLHidden);
    (new ZOLDlgLabel(frame, "Empty"))->SetTitle("");
    (new ZOLDlgEditor(frame, "Ed"))->SetText("a \"b\"");
    auto* check = new ZOLDlgCheckButton(frame, "Mandatory");
    check->SetState(ZOLOn);
    check->SetSensitivity(ZOLGreyed);
    auto* tabs = new ZOLDlgTabContainer(panel, "Tabs");
    auto* options = new ZOLDlgTabPage(tabs, "Options");
    new ZOLDlgLabel(new ZOLDlgTabPage(tabs, "Rules"), "Behind");
    auto* list = new ZOLDlgMultiList(options, "List");
    const ZOLUnicodeString titles[] = {"Id", "State", "Name"};
    list->SetColumnTitles(3, titles);
    list->SetColumnVisibility(1, ZOLHidden);
    list->SetColumnItem(0, "1");
    list->SetColumnItem(2, "Red");
    list->SetColumnItem(0, "2");
    ZOLUserDriver::Select(list, {1});
    auto* combo = new ZOLDlgCombo(options, "Combo");
    combo->SetLine("all");
    combo->SetSelect(0);
    panel->SetCANCELSensitivity(ZOLGreyed);

    EXPECT_EQ(ZOLUserDriver::Describe(panel), R"(window "Category"
  frame "Names"
    label "Name"
    editor holds "a \"b\""
    check "Mandatory" on greyed
  tabs "Options" selected, "Rules"
    page "Options"
      list
        columns "Id" | "Name"
        row "1" | "Red"
        row selected "2" | ""
      combo shows "all"
  buttons "OK" default, "Apply", "Cancel" greyed
)");
    panel->SetVisibility(ZOLHidden);
    EXPECT_EQ(ZOLUserDriver::Describe(panel), "");
}
