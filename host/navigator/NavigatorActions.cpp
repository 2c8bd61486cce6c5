#include "configure/ConfigureWindow.h"
#include "model/PartQuery.h"
#include "navigator/NavigatorMenus.h"
#include "navigator/NavigatorWindow.h"
#include "navigator/RenameDialog.h"
#include "navigator/WindowMemory.h"
#include "service/ConfigurablePartQuery.h"
#include "service/ZOLQRDCfgManager.h"
#include "session/FileDialog.h"
#include "session/StructureTree.h"
#include "toolkit/GraphExport.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "toolkit/ZOLDlgSubMenu.h"
#include "toolkit/ZOLUserDriver.h"

#include <filesystem>
#include <limits>

// What the items and buttons of the window do.

namespace trellis {

namespace {

constexpr int NotFound = 60606;
constexpr int NoDictionary = 20297;
constexpr int FirstButton = 1;

// What parts are as configurable ones; empty for plain parts.
std::vector<ZOLUnicodeString> StatesOf(const std::vector<ZOLDMInstance>& parts) {
    ZOLGYRError error; // nothing is told then
    const std::vector<bool> areConfigurable = ConfigurablePartQuery::Among(parts, error);
    std::vector<ZOLUnicodeString> states(parts.size());
    for (std::size_t i = 0; i < parts.size(); ++i)
        if (areConfigurable[i])
            states[i] = StructureTree::State(parts[i]);
    return states;
}

} // namespace

const std::vector<NavigatorWindow::Action>& NavigatorWindow::Actions() {
    using This = NavigatorWindow;
    static const std::vector<Action> actions = {
        {"SaveItem", &This::SaveAll, &This::HasUnsaved},
        {"DiscardItem", &This::DiscardAll, &This::HasChanges},
        {"UnsavedItem", &This::ListUnsaved, &This::HasChanges},
        {"LeaveItem", &This::Leave, nullptr},
        {"FindNextItem", &This::FindNext, &This::HasSearch},
        {"FindPreviousItem", &This::FindPrevious, &This::HasSearch},
        {"OpenBranchItem", &This::OpenBranch, &This::HasChoice},
        {"CloseBranchItem", &This::CloseBranch, &This::HasChoice},
        {"RefreshItem", &This::ReadAgain, nullptr},
        {"SavePictureItem", &This::SavePicture, nullptr},
        {"ConfigureItem", &This::Configure, nullptr},
        {"ContentsItem", &This::ShowHelp, nullptr},
    };
    return actions;
}

const NavigatorWindow::Action* NavigatorWindow::FindAction(const std::string& name) {
    for (const Action& action : Actions())
        if (name == action.name)
            return &action;
    return nullptr;
}

void NavigatorWindow::SearchCB(ZOLCommand*, ZOLNotification*, void*) {
    FindNext();
}

void NavigatorWindow::ChoiceCB(ZOLCommand*, ZOLNotification*, void*) {
    Refresh();
}

void NavigatorWindow::LeaveCB(ZOLCommand*, ZOLNotification*, void*) {
    Leave();
}

void NavigatorWindow::ContextCB(ZOLCommand*, ZOLNotification*, void*) {
    for (const NavigatorMenu& group : NavigatorMenu::Operations()) {
        auto* menu = new ZOLDlgSubMenu(_menu, group.name);
        AddItems(menu, group.items);
        Grey(menu);
    }
    new ZOLDlgSeparatorItem(_menu, "Separator");
    AddItems(_menu, NavigatorMenu::OfNode());
    Grey(_menu);
}

void NavigatorWindow::MenuOpensCB(ZOLCommand* menu, ZOLNotification*, void*) {
    Grey(static_cast<ZOLDialog*>(menu));
}

void NavigatorWindow::ButtonCB(ZOLCommand*, ZOLNotification*, void* action) {
    (this->*FindAction(static_cast<const char*>(action))->run)();
}

void NavigatorWindow::ItemCB(ZOLCommand* item, ZOLNotification*, void*) {
    const std::string name(static_cast<ZOLDialog*>(item)->GetName().View());
    if (const LinkGestures::Gesture* gesture = LinkGestures::Find(name))
        RunGesture(*gesture);
    else if (const Action* action = FindAction(name))
        (this->*action->run)();
    else if (const ModuleOperation* operation = ModuleOperation::Find(name))
        RunOperation(*operation);
}

void NavigatorWindow::RunGesture(const LinkGestures::Gesture& gesture) {
    ZOLGYRError error;
    const int count = ((*_gestures).*gesture.run)(error);
    if (count > 0)
        Note(Text(gesture.message, {ZOLUnicodeString::FromNumber(count)}));
    Report(error);
    Refresh();
}

void NavigatorWindow::RunOperation(const ModuleOperation& operation) {
    ZOLIQRDCfgInterfaces* module = _session.Module();
    if (!module)
        return;
    const std::vector<ZOLDMInstance> parts = _graph->Chosen();
    const std::vector<ZOLUnicodeString> before = StatesOf(parts);
    const ZOLUnicodeString message = operation.Run(*module, this, parts);
    if (!message.IsEmpty())
        Note(message);
    NoteStates(parts, before);
    ShowChanges();
}

// Tells of each part that an operation made something else of it.
void NavigatorWindow::NoteStates(const std::vector<ZOLDMInstance>& parts,
                                 const std::vector<ZOLUnicodeString>& before) {
    const std::vector<ZOLUnicodeString> now = StatesOf(parts);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const ZOLUnicodeString name = parts[i].GetNameInstance(1, 1, " ", "$BOM_NAVIG");
        if (now[i] != before[i])
            Note(now[i].IsEmpty() ? Text("PartIsPlain.Msg", {name}) : Text("PartIs.Msg", {name, now[i]}));
    }
}

// The keyboard comes back from a panel, which may have changed what is shown; reading costs only when it has.
void NavigatorWindow::EnterCB(ZOLCommand*, ZOLNotification*, void*) {
    if (_isStale || _work.CountUnsaved() != _unsavedShown)
        ShowChanges();
}

void NavigatorWindow::ShowChanges() {
    _isStale = false;
    _graph->Synchronise();
}

void NavigatorWindow::Search(StructureGraph::Direction direction) {
    const ZOLUnicodeString text = _search->GetText();
    if (text.IsEmpty() || _graph->ChooseNext(text, direction))
        return;
    ZOLGYRError error;
    error.Set(NotFound, -1, {text});
    ZOLUnicodeString message;
    error.GetLongMsg(message);
    Note(message);
}

void NavigatorWindow::OpenBranch() {
    if (!_graph->OpenChosen(std::numeric_limits<int>::max()))
        Note(Text("OpenedInPart.Msg"));
}

void NavigatorWindow::ReadAgain() {
    ZOLGYRError error;
    ZOLListValZOLDMInstance roots;
    PartQuery::Roots(roots, error);
    if (error.GetCode() == 0)
        _graph->ShowRoots(roots);
    Report(error);
}

void NavigatorWindow::SavePicture() {
    ZOLUnicodeString path;
    auto* dialog = new FileDialog(this, "SavePicture", "NavigatorPicture", "structure.svg");
    const bool isNamed = dialog->Ask(path);
    dialog->RequestDelayedDestruction();
    std::error_code none;
    if (!isNamed || (std::filesystem::exists(path.Bytes(), none) &&
                     _work.Ask("ConfirmOverwrite", Text("ConfirmOverwrite.Msg", {path})) != FirstButton))
        return;
    ZOLGYRError error;
    if (GraphExport::Save(*_graph->GetGraph(), path, GraphExport::FormatOf(path), error))
        Note(Text("PictureSaved.Msg", {path}));
    Report(error);
}

// Opens on what was chosen; every part of it must have a dictionary. Without a choice it opens on the product used last.
void NavigatorWindow::Configure() {
    ZOLGYRError error;
    const ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    ZOLListValZOLDMInstance products;
    for (const ZOLDMInstance& part : _graph->Chosen()) {
        ZOLQRDConfigurableObject object;
        if (error.GetCode() == 0)
            manager->GetConfigurableObject(part, object, error);
        if (error.GetCode() == 0 && object.GetDictionary() == NULL_var)
            error.Set(NoDictionary, 0, {part.GetNameInstance(1, 1, " ", "$BOM_NAVIG")});
        products.Append(part);
    }
    if (error.GetCode() == 0 && _session.Module())
        ConfigureWindow::Open(this, _graph->FirstRoot(), products, error);
    Report(error);
}

void NavigatorWindow::ShowHelp() {
    try {
        ZOLUserDriver::Key(this, ZOLUserKey::F1);
    } catch (const ZOLUserDriver::Refused&) {
        Note(Text("NoHelp.Msg"));
    }
}

bool NavigatorWindow::AskName(ZOLUnicodeString& name) {
    auto* dialog = new RenameDialog(this, name);
    const bool isGiven = dialog->Ask(name);
    dialog->RequestDelayedDestruction();
    return isGiven;
}

void NavigatorWindow::SaveAll() {
    _work.Save();
    Refresh();
}

void NavigatorWindow::DiscardAll() {
    if (_work.Discard())
        _graph->Synchronise();
}

void NavigatorWindow::ListUnsaved() {
    _work.List();
    _graph->Synchronise();
}

void NavigatorWindow::Leave() {
    if (!_work.MayLeave())
        return;
    WindowMemory::Keep(GetShownSize());
    RequestDelayedDestruction();
}

} // namespace trellis
