#include "gallery/ChoicesPage.h"

#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgRadioButton.h"
#include "toolkit/ZOLDlgSeparator.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "toolkit/ZOLDlgSubMenu.h"

namespace trellis {

namespace {

ZOLUnicodeString StateOf(const ZOLDlgToggleButton& button) {
    return button.IsOn() ? "on" : "off";
}

} // namespace

void ChoicesPage::Build(ZOLDlgFrame* holder) {
    ZOLDlgFrame* left = AddColumn(holder, "Left");
    BuildPushButtons(AddFrame(left, "PushFrame"));
    BuildMenu(AddFrame(left, "MenuFrame"));
    ZOLDlgFrame* right = AddColumn(holder, "Right");
    BuildCheckButtons(AddFrame(right, "CheckFrame"));
    BuildRadioButtons(AddFrame(right, "RadioFrame"));
}

void ChoicesPage::BuildPushButtons(ZOLDlgFrame* frame) {
    for (const char* name : {"Push", "PushWithoutFocus", "PushLong"}) {
        auto* button = new ZOLDlgPushButton(frame, name);
        AddExample(button, [=] { button->SetTitle(button->GetTitle()); });
        Log(button, button->GetPushBActivateNotification(),
            [=](const ZOLNotification&) { return button->GetTitle(); });
    }
    static_cast<ZOLDlgPushButton*>(frame->GetChildren()[1])->SetTakesFocus(0);
    new ZOLDlgSeparator(frame, "PushSeparator");
    new ZOLDlgLabel(frame, "PushSeparatorLabel");
}

void ChoicesPage::BuildCheckButtons(ZOLDlgFrame* frame) {
    for (const char* name : {"Mandatory", "Exclusive", "Listed"}) {
        auto* check = new ZOLDlgCheckButton(frame, name);
        AddExample(check, [=] { check->SetState(ZOLOn); });
        Log(check, check->GetChkBModifyNotification(),
            [=](const ZOLNotification&) { return StateOf(*check); });
    }
}

void ChoicesPage::BuildRadioButtons(ZOLDlgFrame* frame) {
    for (const char* name : {"ByName", "ByDate", "ByOwner"}) {
        auto* radio = new ZOLDlgRadioButton(frame, name);
        AddExample(radio, [=] { radio->SetState(ZOLOn); });
        Log(radio, radio->GetRadBModifyNotification(),
            [=](const ZOLNotification&) { return StateOf(*radio); });
    }
    static_cast<ZOLDlgRadioButton*>(frame->GetChildren().front())->SetState(ZOLOn);
}

void ChoicesPage::BuildMenu(ZOLDlgFrame* frame) {
    new ZOLDlgLabel(frame, "MenuHint");
    AddExample(frame);
    auto* target = new ZOLDlgPushButton(frame, "MenuTarget");
    Log(target, target->GetPushBActivateNotification(),
        [=](const ZOLNotification&) { return target->GetTitle(); });
    auto* menu = new ZOLDlgContextualMenu(frame, "FrameMenu");
    AddItem(menu, "Open");
    auto* sort = new ZOLDlgSubMenu(menu, "Sort");
    AddItem(sort, "SortByName");
    AddItem(sort, "SortByDate");
    auto* more = new ZOLDlgSubMenu(sort, "SortMore");
    AddItem(more, "SortByOwner");
    new ZOLDlgSeparatorItem(menu, "MenuSeparator");
    AddItem(menu, "Remove")->SetSensitivity(ZOLGreyed);
}

} // namespace trellis
