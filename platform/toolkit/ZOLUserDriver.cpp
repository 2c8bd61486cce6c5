#include "toolkit/ZOLUserDriver.h"

#include "toolkit/DialogDescription.h"
#include "toolkit/DialogPath.h"
#include "toolkit/DialogRegistry.h"
#include "toolkit/DriverVerb.h"
#include "toolkit/QuestionDesk.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgRadioButton.h"
#include "toolkit/ZOLDlgTabContainer.h"
#include "toolkit/ZOLDlgTabPage.h"
#include "toolkit/ZOLGraphViewer.h"

#include <algorithm>

using trellis::DialogPath;
using trellis::DialogRegistry;
using trellis::DriverVerb;
using trellis::QuestionDesk;

ZOLDialog* ZOLUserDriver::Find(ZOLDialog* root, const std::string& path) {
    ZOLDialog* found = nullptr;
    if (root) {
        const DriverVerb verb("search in", root);
        found = DialogPath(path).FindBelow(*root);
    } else {
        std::vector<ZOLDialog*> windows = DialogRegistry::Instance().Windows();
        std::reverse(windows.begin(), windows.end());
        found = DialogPath(path).FindAmong(windows);
    }
    if (!found)
        throw Refused("there is no \"" + path + '"');
    return found;
}

ZOLDialog* ZOLUserDriver::Top() {
    return DialogRegistry::Instance().Top();
}

void ZOLUserDriver::Press(ZOLDialog* button) {
    DriverVerb verb("press", button);
    const auto* pushButton = dynamic_cast<ZOLDlgPushButton*>(button);
    if (pushButton && !pushButton->TakesFocus())
        verb.KeepEditor();
    verb.On<ZOLDlgPushButton>([](ZOLDlgPushButton& target) { return target.UserActivate(); });
}

void ZOLUserDriver::Toggle(ZOLDialog* button, bool on) {
    DriverVerb("toggle", button).On<ZOLDlgToggleButton>([on](ZOLDlgToggleButton& target) {
        if (target.IsOn() == on)
            return target.UserGate();
        const bool isRadioOff = !on && dynamic_cast<ZOLDlgRadioButton*>(&target);
        return isRadioOff ? ZOLUserResult::NotThere : target.UserToggle();
    });
}

void ZOLUserDriver::ShowPage(ZOLDialog* tabs, const std::string& name) {
    DriverVerb("turn the pages of", tabs).On<ZOLDlgTabContainer>([&name](ZOLDlgTabContainer& target) {
        const std::vector<ZOLDlgTabPage*> pages = target.GetPages();
        const auto found = std::find_if(pages.begin(), pages.end(), [&name](const ZOLDlgTabPage* page) {
            return page->GetName().View() == name;
        });
        return found == pages.end() ? ZOLUserResult::NotThere : target.UserSelectPage(*found);
    });
}

ZOLGraphNode* ZOLUserDriver::Node(ZOLGraphViewer* viewer, const std::vector<ZOLUnicodeString>& firstLines) {
    const DriverVerb verb("search in", viewer);
    return viewer->IsOnScreen() ? viewer->FindDrawn(firstLines) : nullptr;
}

void ZOLUserDriver::Click(ZOLGraphViewer* viewer, ZOLGraphNode* node, bool extend) {
    DriverVerb("click in", viewer).On<ZOLGraphViewer>([node, extend](ZOLGraphViewer& target) {
        return node ? target.UserClickNode(node, extend) : target.UserClickBackground();
    });
}

void ZOLUserDriver::ContextClick(ZOLGraphViewer* viewer, ZOLGraphNode* node) {
    DriverVerb("click in", viewer).On<ZOLGraphViewer>([node](ZOLGraphViewer& target) {
        return node ? target.UserContextNode(node) : target.UserContextBackground();
    });
}

void ZOLUserDriver::PointAt(ZOLGraphViewer* viewer, ZOLGraphNode* node) {
    DriverVerb("point into", viewer).KeepEditor().On<ZOLGraphViewer>([node](ZOLGraphViewer& target) {
        return target.UserPointAt(node);
    });
}

namespace {

// Presses a button of the dialog or message box that holds `inside`.
void PressDialogButton(const char* verb, ZOLDialog* inside, ZOLDialogButton button) {
    const DriverVerb check(verb, inside);
    auto* window = const_cast<ZOLDialog*>(inside->GetHoldingWindow());
    if (dynamic_cast<ZOLDlgNotify*>(window))
        DriverVerb(verb, window).On<ZOLDlgNotify>([button](ZOLDlgNotify& box) {
            return box.UserPress(button);
        });
    else
        DriverVerb(verb, window).On<ZOLDlgDialog>([button](ZOLDlgDialog& box) {
            return box.UserPress(button);
        });
}

} // namespace

void ZOLUserDriver::Ok(ZOLDialog* dialog) {
    PressDialogButton("press OK of", dialog, ZOLDialogButton::OK);
}

void ZOLUserDriver::Apply(ZOLDialog* dialog) {
    PressDialogButton("press Apply of", dialog, ZOLDialogButton::Apply);
}

void ZOLUserDriver::Cancel(ZOLDialog* dialog) {
    PressDialogButton("press Cancel of", dialog, ZOLDialogButton::Cancel);
}

void ZOLUserDriver::Help(ZOLDialog* dialog) {
    PressDialogButton("press Help of", dialog, ZOLDialogButton::Help);
}

void ZOLUserDriver::CloseWindow(ZOLDialog* dialog) {
    const DriverVerb check("close", dialog);
    auto* window = const_cast<ZOLDialog*>(dialog->GetHoldingWindow());
    if (dynamic_cast<ZOLDlgNotify*>(window))
        DriverVerb("close", window).On<ZOLDlgNotify>([](ZOLDlgNotify& box) { return box.UserClose(); });
    else
        DriverVerb("close", window).On<ZOLDlgWindow>([](ZOLDlgWindow& box) { return box.UserClose(); });
}

void ZOLUserDriver::Answer(const std::vector<int>& buttons) {
    QuestionDesk::Instance().LayReady(buttons);
}

void ZOLUserDriver::WhenAsked(std::function<int(const Message&)> asker) {
    QuestionDesk::Instance().SetAsker(std::move(asker));
}

std::vector<ZOLUserDriver::Message> ZOLUserDriver::TakeMessages() {
    return QuestionDesk::Instance().TakeMessages();
}

int ZOLUserDriver::PendingAnswers() {
    return QuestionDesk::Instance().CountReady();
}

std::string ZOLUserDriver::Describe(const ZOLDialog* dialog) {
    const DriverVerb verb("describe", dialog);
    trellis::DialogDescription description;
    if (dialog->IsOnScreen())
        dialog->DescribeTo(description);
    return description.Text();
}
