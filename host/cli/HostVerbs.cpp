#include "cli/HostVerbs.h"

#include "model/DatabaseSession.h"
#include "model/ZOLDMClipboard.h"
#include "panels/ZOLGYRDlgError.h"
#include "service/ZOLQRDCfgManager.h"
#include "session/ModuleOperation.h"
#include "session/PartWord.h"
#include "session/StructureTree.h"
#include "site/ZOLIQrdSCManager.h"

#include <memory>

namespace trellis {

namespace {

using Selection = std::shared_ptr<ModuleOperation::Parts>;

// What a host shows of an error that no panel showed.
void ShowError(ZOLGYRError& error) {
    if (error.GetCode() != 0)
        ZOLGYRDlgError::Display(nullptr, error, 0);
}

ZOLListValZOLDMInstance AsList(const ModuleOperation::Parts& parts) {
    ZOLListValZOLDMInstance list;
    for (const ZOLDMInstance& part : parts)
        list.Append(part);
    return list;
}

void Select(const Words& words, ModuleOperation::Parts& selection) {
    ModuleOperation::Parts parts;
    for (const std::string& word : words) {
        ZOLGYRError error;
        parts.push_back(PartOfWord(word, error));
        if (error.GetCode() == 0)
            continue;
        ZOLUnicodeString reason;
        error.GetLongMsg(reason);
        throw ScriptRefusal(reason.Bytes());
    }
    selection = std::move(parts);
}

void Call(HostSession& session, const std::string& name, const ModuleOperation::Parts& selection) {
    const ModuleOperation* operation = ModuleOperation::Find(name);
    if (!operation)
        throw ScriptRefusal("the module has no operation " + name);
    if (operation->most == 1 && selection.size() != 1)
        throw ScriptRefusal(name + " works on one selected part");
    ZOLIQRDCfgInterfaces* module = session.Module();
    if (!module)
        throw ScriptRefusal("the module is not loaded");
    operation->Run(*module, nullptr, selection);
}

void Save() {
    ZOLGYRError error;
    ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (error.GetCode() == 0)
        manager->Save(error);
    ShowError(error);
}

const char* WordFor(UnsavedChange::Kind kind) {
    switch (kind) {
    case UnsavedChange::Kind::Added:
        return "new";
    case UnsavedChange::Kind::Removed:
        return "removed";
    case UnsavedChange::Kind::Changed:
        break;
    }
    return "changed";
}

void ShowUnsaved(std::ostream& output) {
    for (const UnsavedChange& change : DatabaseSession::UnsavedChanges())
        output << WordFor(change.kind) << ' ' << change.what.Bytes() << ": " << change.object.Bytes()
               << (change.isStale ? " (changed by another user)" : "") << '\n';
}

void ShowParts(const ZOLListValZOLDMInstance& parts, std::ostream& output) {
    StructureTree(parts, 0).Print(output);
}

} // namespace

std::vector<ScriptVerb> HostVerbs(HostSession& session) {
    const Selection selection = std::make_shared<ModuleOperation::Parts>();
    return {
        {"select", "PART...", 0, ScriptVerb::Many,
         [selection](const Words& w, std::ostream&) { Select(w, *selection); }},
        {"call", "OPERATION", 1, 1,
         [&session, selection](const Words& w, std::ostream&) { Call(session, w[0], *selection); }},
        {"show", "", 0, 0,
         [selection](const Words&, std::ostream& out) { ShowParts(AsList(*selection), out); }},
        {"copy", "", 0, 0,
         [selection](const Words&, std::ostream&) { ZOLDMClipboard::SetObjects(AsList(*selection)); }},
        {"show-clipboard", "", 0, 0,
         [](const Words&, std::ostream& out) { ShowParts(ZOLDMClipboard::GetObjects(), out); }},
        {"save", "", 0, 0, [](const Words&, std::ostream&) { Save(); }},
        {"discard", "", 0, 0,
         [](const Words&, std::ostream&) {
             ZOLGYRError error;
             DatabaseSession::DiscardUnsaved(error);
             ShowError(error);
         }},
        {"unsaved", "", 0, 0, [](const Words&, std::ostream& out) { ShowUnsaved(out); }},
        {"login", "PERSON", 1, 1,
         [](const Words& w, std::ostream&) {
             ZOLGYRError error;
             GetSecurityManager()->SetCurrentPerson(w[0]);
             if (!GetSecurityManager()->CheckLogin(error))
                 ShowError(error);
         }},
        {"reopen", "", 0, 0,
         [&session, selection](const Words&, std::ostream&) {
             selection->clear();
             if (!session.OpenDatabase())
                 throw ScriptRefusal("the database cannot be opened");
         }},
    };
}

} // namespace trellis
