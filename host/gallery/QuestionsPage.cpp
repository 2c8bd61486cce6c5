#include "gallery/QuestionsPage.h"

#include "panels/ZOLGYRDlgError.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSubMenu.h"
#include "toolkit/ZOLInteractiveApplication.h"
#include "values/ZOLGYRError.h"

#include <chrono>
#include <thread>

namespace trellis {

namespace {

constexpr unsigned long Question = 0x2000000;
constexpr unsigned long AboveFather = 0x200;
constexpr unsigned long Modal = 0x2000000;
constexpr unsigned long FourButtons = 0x400 | 0x800 | 0x1000 | 0x2000;
constexpr int CannotBeUnderstood = 60621;
constexpr int WorkSteps = 100;
constexpr std::chrono::milliseconds WorkStep{20};

ZOLUnicodeString Empty(const ZOLNotification&) {
    return {};
}

} // namespace

void QuestionsPage::Build(ZOLDlgFrame* holder) {
    ZOLDlgFrame* left = AddColumn(holder, "Left");
    BuildBoxes(AddFrame(left, "NotifyFrame"));
    ZOLDlgFrame* right = AddColumn(holder, "Right");
    BuildWindows(AddFrame(right, "DialogFrame"));
    BuildProgress(AddFrame(right, "ProgressFrame"));
}

void QuestionsPage::AddButton(ZOLDlgFrame* frame, const char* name, ZOLNotificationMethod method) {
    auto* button = new ZOLDlgPushButton(frame, name);
    AddExample(button);
    AddAnalyseNotificationCB(button, button->GetPushBActivateNotification(), method);
}

void QuestionsPage::BuildBoxes(ZOLDlgFrame* frame) {
    AddButton(frame, "Notice", ZOL_CALLBACK(&QuestionsPage::NoticeCB));
    AddButton(frame, "Question", ZOL_CALLBACK(&QuestionsPage::QuestionCB));
    AddButton(frame, "Choice", ZOL_CALLBACK(&QuestionsPage::ChoiceCB));
    AddButton(frame, "Error", ZOL_CALLBACK(&QuestionsPage::ErrorCB));
    AddButton(frame, "ErrorQuestion", ZOL_CALLBACK(&QuestionsPage::ErrorQuestionCB));
}

void QuestionsPage::BuildWindows(ZOLDlgFrame* frame) {
    AddButton(frame, "Dialog", ZOL_CALLBACK(&QuestionsPage::DialogCB));
    AddButton(frame, "WaitingDialog", ZOL_CALLBACK(&QuestionsPage::WaitingDialogCB));
    AddButton(frame, "Window", ZOL_CALLBACK(&QuestionsPage::WindowCB));
}

void QuestionsPage::BuildProgress(ZOLDlgFrame* frame) {
    AddButton(frame, "Work", ZOL_CALLBACK(&QuestionsPage::WorkCB));
    _workState = new ZOLDlgLabel(frame, "WorkState");
}

void QuestionsPage::TellAnswer(const char* box, int answer) {
    Remark(Text("Answer.Msg"), box, ZOLUnicodeString::FromNumber(answer));
}

void QuestionsPage::NoticeCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLDlgNotify box(this, "NoticeBox");
    TellAnswer("NoticeBox", box.DisplayBlocked(Text("NoticeBox.Msg"), Text("NoticeBox.Title")));
}

void QuestionsPage::QuestionCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLDlgNotify box(this, "QuestionBox", Question);
    TellAnswer("QuestionBox", box.DisplayBlocked(Text("QuestionBox.Msg"), Text("QuestionBox.Title")));
}

void QuestionsPage::ChoiceCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLDlgNotify box(this, "ChoiceBox");
    box.SetOKTitle(Text("ChoiceBox.First"));
    box.SetCANCELTitle(Text("ChoiceBox.Second"));
    box.SetHELPTitle(Text("ChoiceBox.Third"));
    TellAnswer("ChoiceBox", box.DisplayBlocked(Text("ChoiceBox.Msg"), Text("ChoiceBox.Title")));
}

void QuestionsPage::ErrorCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLGYRError error;
    error.Set(CannotBeUnderstood, 0, {"12", Text("Error.LongText")});
    TellAnswer("ZOLGYRDlgError", ZOLGYRDlgError::Display(this, error));
}

void QuestionsPage::ErrorQuestionCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLGYRError error;
    error.Set(CannotBeUnderstood, 0, {"12", Text("Error.ShortText")});
    TellAnswer("ZOLGYRDlgError", ZOLGYRDlgError::Display(this, error, 1));
}

void QuestionsPage::DialogCB(ZOLCommand*, ZOLNotification*, void*) {
    auto* dialog = new ZOLDlgDialog(this, "ExampleDialog", FourButtons | AboveFather);
    for (const char* name : {"DialogName", "DialogText"})
        new ZOLDlgEditor(dialog, name);
    for (ZOLNotification* news : {dialog->GetDiaOKNotification(), dialog->GetDiaAPPLYNotification(),
                                  dialog->GetDiaCANCELNotification(), dialog->GetDiaHELPNotification(),
                                  dialog->GetWindCloseNotification()})
        Log(dialog, news, &Empty);
    for (ZOLNotification* news : {dialog->GetDiaOKNotification(), dialog->GetDiaCANCELNotification(),
                                  dialog->GetWindCloseNotification()})
        AddAnalyseNotificationCB(dialog, news, ZOL_CALLBACK(&QuestionsPage::CloseCB));
    dialog->SetVisibility(ZOLShown);
}

void QuestionsPage::WaitingDialogCB(ZOLCommand*, ZOLNotification*, void*) {
    auto* dialog = new ZOLDlgDialog(this, "WaitingExample", Modal);
    new ZOLDlgLabel(dialog, "WaitingLabel");
    new ZOLDlgEditor(dialog, "DialogName");
    TellAnswer("WaitingExample", dialog->DisplayBlocked());
    dialog->RequestDelayedDestruction();
}

void QuestionsPage::WindowCB(ZOLCommand*, ZOLNotification*, void*) {
    auto* window = new ZOLDlgWindow(this, "ExampleWindow");
    AddMenuBar(window);
    new ZOLDlgLabel(window, "WindowLabel");
    Log(window, window->GetWindCloseNotification(), &Empty);
    AddAnalyseNotificationCB(window, window->GetWindCloseNotification(),
                             ZOL_CALLBACK(&QuestionsPage::CloseCB));
    window->SetVisibility(ZOLShown);
}

void QuestionsPage::AddMenuBar(ZOLDlgWindow* window) {
    auto* bar = new ZOLDlgMenuBar(window, "WindowBar");
    auto* file = new ZOLDlgSubMenu(bar, "File");
    AddItem(file, "Open");
    AddItem(file, "Remove")->SetSensitivity(ZOLGreyed);
    auto* sort = new ZOLDlgSubMenu(bar, "Sort");
    for (const char* name : {"SortByName", "SortByDate", "SortByOwner"})
        AddItem(sort, name);
}

void QuestionsPage::CloseCB(ZOLCommand* sender, ZOLNotification*, void*) {
    sender->RequestDelayedDestruction();
}

void QuestionsPage::WorkCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLInteractiveApplication& application = *ZOLInteractiveApplication::GetApplication();
    application.SetBusyCursor();
    for (int step = 1; step <= WorkSteps; ++step) {
        std::this_thread::sleep_for(WorkStep);
        ZOLUnicodeString state;
        GetResourceValueFromKey(
            "Work.Msg", state, {ZOLUnicodeString::FromNumber(step), ZOLUnicodeString::FromNumber(WorkSteps)});
        _workState->SetTitle(state);
        application.ReportProgress(state, step, WorkSteps);
    }
    _workState->SetTitle(Text("WorkState.Title"));
    Remark(Text("Work.Done"));
}

} // namespace trellis
