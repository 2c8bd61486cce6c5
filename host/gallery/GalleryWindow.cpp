#include "gallery/GalleryWindow.h"

#include "gallery/ChoicesPage.h"
#include "gallery/FieldsPage.h"
#include "gallery/GraphsPage.h"
#include "gallery/LayoutPage.h"
#include "gallery/ListsPage.h"
#include "gallery/QuestionsPage.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "toolkit/ZOLDlgSubMenu.h"
#include "toolkit/ZOLUserDriver.h"

namespace trellis {

GalleryWindow::GalleryWindow() : ZOLDlgWindow(nullptr, "Gallery") {
    BuildMenuBar();
    _tabs = new ZOLDlgTabContainer(this, "Subjects");
    BuildTools();
    _log = new GalleryLog(this, "Log");
    BuildPages();
    AddAnalyseNotificationCB(this, GetWindCloseNotification(), ZOL_CALLBACK(&GalleryWindow::CloseCB));
}

ZOLString GalleryWindow::GetResourceFilename(int level) const {
    return level == 0 ? "GalleryWindow" : ZOLDlgWindow::GetResourceFilename(level - 1);
}

void GalleryWindow::BuildPages() {
    _pages = {new FieldsPage(_tabs, "Fields", *_log),     new ChoicesPage(_tabs, "Choices", *_log),
              new ListsPage(_tabs, "Lists", *_log),       new GraphsPage(_tabs, "Graphs", *_log),
              new QuestionsPage(_tabs, "Windows", *_log), new LayoutPage(_tabs, "Layout", *_log)};
    for (GalleryPage* page : _pages)
        page->BuildExamples();
}

void GalleryWindow::BuildMenuBar() {
    auto* bar = new ZOLDlgMenuBar(this, "MenuBar");
    const auto add = [this](ZOLDialog* menu, const char* name, ZOLNotificationMethod method) {
        auto* item = new ZOLDlgPushItem(menu, name);
        AddAnalyseNotificationCB(item, item->GetMenuIActivateNotification(), method);
    };
    auto* gallery = new ZOLDlgSubMenu(bar, "GalleryMenu");
    add(gallery, "ClearItem", ZOL_CALLBACK(&GalleryWindow::ClearCB));
    new ZOLDlgSeparatorItem(gallery, "CloseSeparator");
    add(gallery, "CloseItem", ZOL_CALLBACK(&GalleryWindow::CloseCB));
    auto* examples = new ZOLDlgSubMenu(bar, "ExamplesMenu");
    add(examples, "SetByCodeItem", ZOL_CALLBACK(&GalleryWindow::SetByCodeCB));
    add(examples, "DestroyItem", ZOL_CALLBACK(&GalleryWindow::DestroyCB));
    add(examples, "BuildItem", ZOL_CALLBACK(&GalleryWindow::BuildCB));
}

void GalleryWindow::BuildTools() {
    auto* frame = new ZOLDlgFrame(this, "Tools");
    frame->SetDefaultOrientation(1);
    frame->SetHorizontalAttachment(1);
    const auto add = [&](const char* name, ZOLNotificationMethod method) {
        auto* button = new ZOLDlgPushButton(frame, name);
        AddAnalyseNotificationCB(button, button->GetPushBActivateNotification(), method);
    };
    add("SetByCode", ZOL_CALLBACK(&GalleryWindow::SetByCodeCB));
    add("Destroy", ZOL_CALLBACK(&GalleryWindow::DestroyCB));
    add("Build", ZOL_CALLBACK(&GalleryWindow::BuildCB));
    _greyed = AddSwitch(frame, "Greyed");
    _hidden = AddSwitch(frame, "Hidden");
    _endsSender = AddSwitch(frame, "EndsSender");
}

ZOLDlgCheckButton* GalleryWindow::AddSwitch(ZOLDialog* frame, const char* name) {
    auto* check = new ZOLDlgCheckButton(frame, name);
    AddAnalyseNotificationCB(check, check->GetChkBModifyNotification(),
                             ZOL_CALLBACK(&GalleryWindow::SwitchCB));
    return check;
}

std::string GalleryWindow::DescribeAll() {
    std::string text;
    for (GalleryPage* page : _pages) {
        _tabs->SetSelectedPage(page);
        text += ZOLUserDriver::Describe(text.empty() ? static_cast<ZOLDialog*>(this) : page);
    }
    _tabs->SetSelectedPage(_pages.front());
    return text;
}

GalleryPage& GalleryWindow::Page() const {
    return *static_cast<GalleryPage*>(_tabs->GetSelectedPage());
}

void GalleryWindow::ApplySwitches() {
    for (GalleryPage* page : _pages) {
        page->SetExamplesSensitivity(_greyed->IsOn() ? ZOLGreyed : ZOLActive);
        page->SetExamplesVisibility(_hidden->IsOn() ? ZOLHidden : ZOLShown);
        page->SetEndsSender(_endsSender->IsOn());
    }
}

void GalleryWindow::SwitchCB(ZOLCommand*, ZOLNotification*, void*) {
    ApplySwitches();
}

void GalleryWindow::SetByCodeCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLUnicodeString remark;
    GetResourceValueFromKey("SetByCode.Msg", remark);
    _log->AddRemark(remark);
    Page().SetByCode();
}

void GalleryWindow::DestroyCB(ZOLCommand*, ZOLNotification*, void*) {
    Page().DestroyExamples();
}

void GalleryWindow::BuildCB(ZOLCommand*, ZOLNotification*, void*) {
    Page().BuildExamples();
    ApplySwitches();
}

void GalleryWindow::ClearCB(ZOLCommand*, ZOLNotification*, void*) {
    _log->ClearLine();
}

void GalleryWindow::CloseCB(ZOLCommand*, ZOLNotification*, void*) {
    RequestDelayedDestruction();
}

} // namespace trellis
