#include "navigator/NavigatorWindow.h"

#include "model/DatabaseSession.h"
#include "model/PartQuery.h"
#include "model/ZOLDMClipboard.h"
#include "panels/ZOLGYRDlgError.h"
#include "service/ZOLQRDCfgManager.h"
#include "site/ZOLIQrdSCManager.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgNotify.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "toolkit/ZOLDlgSubMenu.h"

namespace trellis {

namespace {

constexpr int NewLine = 64;
constexpr int MessageLines = 4;
constexpr int MessageWidth = 100;
constexpr int SearchWidth = 30;
constexpr int NotFound = 60606;
constexpr unsigned long QuestionStyle = 0x2000000;
constexpr int AnswerSave = 1;
constexpr int AnswerDiscard = 2;

ZOLUnicodeString Text(const ZOLDialog& dialog, const char* key,
                      const ZOLListVal<ZOLUnicodeString>& parameters = {}) {
    ZOLUnicodeString text;
    dialog.GetResourceValueFromKey(key, text, parameters);
    return text;
}

// The submenus of the structure's menu, with the operations in each.
struct MenuGroup {
    const char* name;
    std::vector<const char*> operations;
};

const std::vector<MenuGroup>& MenuGroups() {
    static const std::vector<MenuGroup> groups = {
        {"Part", {"SetConfigurable", "UnSetConfigurable", "AvailableTypes", "PartCfgAnalysis", "Usage"}},
        {"Dictionary", {"OpenCategoryManager", "OpenRuleManager", "ImportDictionary", "DeleteDictionary"}},
        {"Milestones",
         {"OpenMilestoneManagerDate", "OpenMilestoneManagerRange", "DeleteMilestonesDate",
          "DeleteMilestonesRange"}},
        {"Handlers", {"SetConfigHandler", "SetDefaultCH"}},
        {"Modifications", {"PlannedEffectivity", "Validate", "ModifyStatus", "CleanDatabase"}},
    };
    return groups;
}

} // namespace

NavigatorWindow::NavigatorWindow(HostSession& session)
    : ZOLDlgWindow(nullptr, "Navigator"), _session(session) {
    BuildSearch();
    _graph = new StructureGraph(this, "Structure");
    _menu = new ZOLDlgContextualMenu(_graph, "StructureMenu");
    BuildMessages();
    BuildButtons();

    AddAnalyseNotificationCB(_graph, _graph->GetChoiceNotification(),
                             ZOL_CALLBACK(&NavigatorWindow::ChoiceCB));
    AddAnalyseNotificationCB(_graph, "ZOLNodeContextNotification", ZOL_CALLBACK(&NavigatorWindow::MenuCB));
    AddAnalyseNotificationCB(this, GetWindCloseNotification(), ZOL_CALLBACK(&NavigatorWindow::LeaveCB));

    ZOLGYRError error;
    ZOLListValZOLDMInstance roots;
    PartQuery::Roots(roots, error);
    _graph->ShowRoots(roots);
    Refresh();
    Report(error);
}

ZOLString NavigatorWindow::GetResourceFilename(int level) const {
    return level == 0 ? "NavigatorWindow" : ZOLDlgWindow::GetResourceFilename(level - 1);
}

void NavigatorWindow::BuildSearch() {
    auto* frame = new ZOLDlgFrame(this, "SearchFrame", 0x80000);
    frame->SetDefaultOrientation(1);
    new ZOLDlgLabel(frame, "SearchLabel");
    _search = new ZOLDlgEditor(frame, "SearchEd");
    _search->SetVisibleTextWidth(SearchWidth);
    AddAnalyseNotificationCB(_search, _search->GetEditModifyNotification(),
                             ZOL_CALLBACK(&NavigatorWindow::SearchCB));
    auto* next = new ZOLDlgPushButton(frame, "SearchNext");
    AddAnalyseNotificationCB(next, next->GetPushBActivateNotification(),
                             ZOL_CALLBACK(&NavigatorWindow::SearchCB));
    // Leaving the field for this button would look twice.
    next->SetTakesFocus(0);
}

void NavigatorWindow::BuildMessages() {
    _messages = new ZOLDlgMultiList(this, "Messages");
    const ZOLUnicodeString title = Text(*this, "Messages.Column");
    _messages->SetColumnTitles(1, &title);
    _messages->SetColumnTextWidth(0, MessageWidth);
    _messages->SetVisibleLineCount(MessageLines);
    _messages->SetVerticalAttachment(0);
}

void NavigatorWindow::BuildButtons() {
    auto* frame = new ZOLDlgFrame(this, "ButtonFrame", 0x80000);
    frame->SetDefaultOrientation(1);
    const auto add = [&](const char* name, ZOLNotificationMethod method) {
        auto* button = new ZOLDlgPushButton(frame, name);
        AddAnalyseNotificationCB(button, button->GetPushBActivateNotification(), method);
        return button;
    };
    _save = add("Save", ZOL_CALLBACK(&NavigatorWindow::SaveCB));
    _discard = add("Discard", ZOL_CALLBACK(&NavigatorWindow::DiscardCB));
    _copy = add("Copy", ZOL_CALLBACK(&NavigatorWindow::CopyCB));
    add("Leave", ZOL_CALLBACK(&NavigatorWindow::LeaveCB));
    _status = new ZOLDlgLabel(this, "Status");
}

void NavigatorWindow::SearchCB(ZOLCommand*, ZOLNotification*, void*) {
    const ZOLUnicodeString text = _search->GetText();
    if (text.IsEmpty() || _graph->ChooseNext(text))
        return;
    ZOLGYRError error;
    error.Set(NotFound, -1, {text});
    ZOLUnicodeString message;
    error.GetLongMsg(message);
    Note(message);
}

void NavigatorWindow::ChoiceCB(ZOLCommand*, ZOLNotification*, void*) {
    Refresh();
}

void NavigatorWindow::MenuCB(ZOLCommand*, ZOLNotification*, void*) {
    FillMenu();
}

void NavigatorWindow::FillMenu() {
    for (const MenuGroup& group : MenuGroups()) {
        auto* menu = new ZOLDlgSubMenu(_menu, group.name);
        for (const char* name : group.operations)
            AddOperation(menu, *ModuleOperation::Find(name));
    }
    new ZOLDlgSeparatorItem(_menu, "EditSeparator");
    auto* copy = new ZOLDlgPushItem(_menu, "CopyItem");
    AddAnalyseNotificationCB(copy, copy->GetMenuIActivateNotification(),
                             ZOL_CALLBACK(&NavigatorWindow::CopyCB));
}

void NavigatorWindow::AddOperation(ZOLDialog* menu, const ModuleOperation& operation) {
    auto* item = new ZOLDlgPushItem(menu, operation.name);
    const bool fits = !operation.takesOnePart || _graph->Chosen().size() == 1;
    item->SetSensitivity(fits ? ZOLActive : ZOLGreyed);
    AddAnalyseNotificationCB(item, item->GetMenuIActivateNotification(),
                             ZOL_CALLBACK(&NavigatorWindow::OperationCB),
                             const_cast<ModuleOperation*>(&operation));
}

void NavigatorWindow::OperationCB(ZOLCommand*, ZOLNotification*, void* operation) {
    ZOLIQRDCfgInterfaces* module = _session.Module();
    if (!module)
        return;
    const ZOLUnicodeString message =
        static_cast<const ModuleOperation*>(operation)->Run(*module, this, _graph->Chosen());
    if (!message.IsEmpty())
        Note(message);
    _graph->RefreshNodes();
    Refresh();
}

void NavigatorWindow::CopyCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLListValZOLDMInstance parts;
    for (const ZOLDMInstance& part : _graph->Chosen())
        parts.Append(part);
    ZOLDMClipboard::SetObjects(parts);
    Note(Text(*this, "Copied.Msg", {ZOLUnicodeString::FromNumber(parts.Size())}));
}

bool NavigatorWindow::Save() {
    ZOLGYRError error;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() == 0)
        manager->Save(error);
    const bool saved = error.GetCode() == 0;
    Report(error);
    Refresh();
    return saved;
}

void NavigatorWindow::SaveCB(ZOLCommand*, ZOLNotification*, void*) {
    if (Save())
        Note(Text(*this, "Saved.Msg"));
}

void NavigatorWindow::DiscardCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLDlgNotify question(this, "ConfirmDiscard", QuestionStyle);
    ZOLUnicodeString text = Text(*this, "ConfirmDiscard.Msg");
    for (const UnsavedChange& change : DatabaseSession::UnsavedChanges())
        text += ZOLUnicodeString("\n") + change.what + " " + change.object;
    question.SetOKTitle(Text(*this, "ConfirmDiscard.Yes"));
    question.SetCANCELTitle(Text(*this, "ConfirmDiscard.No"));
    if (question.DisplayBlocked(text, Text(*this, "ConfirmDiscard.Title")) != 1)
        return;
    ZOLGYRError error;
    DatabaseSession::DiscardUnsaved(error);
    Report(error);
    _graph->RefreshNodes();
    Refresh();
}

void NavigatorWindow::LeaveCB(ZOLCommand*, ZOLNotification*, void*) {
    Leave();
}

void NavigatorWindow::Leave() {
    if (!DatabaseSession::UnsavedChanges().empty()) {
        ZOLDlgNotify question(this, "ConfirmLeave", QuestionStyle);
        question.SetOKTitle(Text(*this, "ConfirmLeave.Save"));
        question.SetCANCELTitle(Text(*this, "ConfirmLeave.Discard"));
        question.SetHELPTitle(Text(*this, "ConfirmLeave.Stay"));
        const int answer =
            question.DisplayBlocked(Text(*this, "ConfirmLeave.Msg"), Text(*this, "ConfirmLeave.Title"));
        if (answer != AnswerSave && answer != AnswerDiscard)
            return;
        if (answer == AnswerSave && !Save())
            return;
    }
    RequestDelayedDestruction();
}

void NavigatorWindow::Refresh() {
    const std::size_t chosen = _graph->Chosen().size();
    const std::size_t unsaved = DatabaseSession::UnsavedChanges().size();
    const int hasUnsaved = unsaved == 0 ? ZOLGreyed : ZOLActive;
    _save->SetSensitivity(hasUnsaved);
    _discard->SetSensitivity(hasUnsaved);
    _copy->SetSensitivity(chosen == 0 ? ZOLGreyed : ZOLActive);
    _status->SetTitle(Text(*this, "Status.Msg",
                           {GetSecurityManager()->GetCurrentPerson()->GetName(),
                            ZOLUnicodeString::FromNumber(static_cast<int>(chosen)),
                            ZOLUnicodeString::FromNumber(static_cast<int>(unsaved))}));
}

void NavigatorWindow::Note(const ZOLUnicodeString& message) {
    _messages->SetColumnItem(0, message, -1, NewLine);
    _messages->SetFirstLine(_messages->GetLineCount() - 1);
}

void NavigatorWindow::Report(ZOLGYRError& error) {
    if (error.GetCode() == 0)
        return;
    ZOLUnicodeString message;
    error.GetLongMsg(message);
    Note(message);
    ZOLGYRDlgError::Display(this, error, 0);
}

} // namespace trellis
