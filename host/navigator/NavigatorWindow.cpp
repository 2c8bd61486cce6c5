#include "navigator/NavigatorWindow.h"

#include "model/ZOLDMPubSub.h"
#include "navigator/NavigatorMenus.h"
#include "navigator/WindowMemory.h"
#include "panels/ZOLGYRDlgError.h"
#include "site/ZOLIQrdSCManager.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgMenuBar.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "toolkit/ZOLDlgSubMenu.h"

#include <ctime>
#include <filesystem>

namespace trellis {

namespace {

constexpr int NewLine = 64;
constexpr int MessageLines = 4;
constexpr int MostMessages = 500;
constexpr int TimeWidth = 9;
constexpr int MessageWidth = 70; // and all room that is left
constexpr int SearchWidth = 30;
constexpr LayoutSize UsualSize = {1040, 780};

ZOLUnicodeString TimeOfDay() {
    const std::time_t now = std::time(nullptr);
    char text[16] = "";
    if (const std::tm* local = std::localtime(&now))
        std::strftime(text, sizeof text, "%H:%M:%S", local);
    return text;
}

// Person, role and organization, as far as they are known.
ZOLUnicodeString WhoWorks() {
    const auto person = GetSecurityManager()->GetCurrentPerson();
    const auto role = person->GetRole();
    ZOLUnicodeString who = person->GetName();
    for (const ZOLUnicodeString& more : {role->GetName(), role->GetOrganization()->GetName()})
        if (!more.IsEmpty())
            who += ZOLUnicodeString(", ") + more;
    return who;
}

} // namespace

NavigatorWindow::NavigatorWindow(HostSession& session)
    : ZOLDlgWindow(nullptr, "Navigator"),
      _session(session),
      _work(*this, _edit,
            {[this](const ZOLUnicodeString& message) { Note(message); },
             [this](ZOLGYRError& error) { Report(error); }}) {
    const std::string file = std::filesystem::path(session.DatabaseFile()).filename().string();
    SetTitle(Text("Navigator.Title", {file}));
    const LayoutSize size = WindowMemory::Size().value_or(UsualSize);
    SetRectDimensions(size.width, size.height);
    BuildMenuBar();
    BuildToolBar();
    _graph = new StructureGraph(this, "Structure", _edit);
    _gestures.emplace(*_graph, _edit, [this](ZOLUnicodeString& name) { return AskName(name); });
    _menu = new ZOLDlgContextualMenu(_graph, "StructureMenu");
    BuildMessages();
    AddAnalyseNotificationCB(_graph, _graph->GetChoiceNotification(),
                             ZOL_CALLBACK(&NavigatorWindow::ChoiceCB));
    AddAnalyseNotificationCB(_graph, "ZOLNodeContextNotification", ZOL_CALLBACK(&NavigatorWindow::ContextCB));
    AddAnalyseNotificationCB(this, GetWindCloseNotification(), ZOL_CALLBACK(&NavigatorWindow::LeaveCB));
    AddAnalyseNotificationCB(this, "ZOLWindowEnterNotification", ZOL_CALLBACK(&NavigatorWindow::EnterCB));
    _listener = ZOLDMPubSub::AddListener([this](const ZOLDMInstance&, int) { _isStale = true; });
    ReadAgain();
}

NavigatorWindow::~NavigatorWindow() {
    ZOLDMPubSub::RemoveListener(_listener);
}

ZOLString NavigatorWindow::GetResourceFilename(int level) const {
    return level == 0 ? "NavigatorWindow" : ZOLDlgWindow::GetResourceFilename(level - 1);
}

ZOLUnicodeString NavigatorWindow::Text(const std::string& key,
                                       const ZOLListValZOLUnicodeString& parameters) const {
    ZOLUnicodeString text;
    GetResourceValueFromKey(key.c_str(), text, parameters);
    return text;
}

void NavigatorWindow::BuildMenuBar() {
    auto* bar = new ZOLDlgMenuBar(this, "MenuBar");
    for (const NavigatorMenu& group : NavigatorMenu::Bar()) {
        auto* menu = new ZOLDlgSubMenu(bar, group.name);
        AddItems(menu, group.items);
        AddAnalyseNotificationCB(menu, menu->GetVisibilityNotification(),
                                 ZOL_CALLBACK(&NavigatorWindow::MenuOpensCB));
    }
}

void NavigatorWindow::AddItems(ZOLDialog* menu, const std::vector<const char*>& names) {
    for (const char* name : names) {
        if (!*name) {
            new ZOLDlgSeparatorItem(menu, "Separator");
            continue;
        }
        auto* item = new ZOLDlgPushItem(menu, name);
        AddAnalyseNotificationCB(item, item->GetMenuIActivateNotification(),
                                 ZOL_CALLBACK(&NavigatorWindow::ItemCB));
    }
}

bool NavigatorWindow::IsPossible(const std::string& item) const {
    if (const LinkGestures::Gesture* gesture = LinkGestures::Find(item))
        return ((*_gestures).*gesture->isPossible)();
    if (const Action* action = FindAction(item))
        return !action->isPossible || (this->*action->isPossible)();
    const ModuleOperation* operation = ModuleOperation::Find(item);
    return operation && operation->Takes(_graph->Chosen().size());
}

void NavigatorWindow::Grey(ZOLDialog* menu) {
    for (ZOLDialog* item : menu->GetChildren())
        if (dynamic_cast<ZOLDlgPushItem*>(item))
            item->SetSensitivity(IsPossible(std::string(item->GetName().View())) ? ZOLActive : ZOLGreyed);
}

void NavigatorWindow::BuildToolBar() {
    auto* frame = new ZOLDlgFrame(this, "ToolBar", 0x80000);
    frame->SetDefaultOrientation(1);
    new ZOLDlgLabel(frame, "SearchLabel");
    _search = new ZOLDlgEditor(frame, "SearchEd");
    _search->SetVisibleTextWidth(SearchWidth);
    AddAnalyseNotificationCB(_search, _search->GetEditModifyNotification(),
                             ZOL_CALLBACK(&NavigatorWindow::SearchCB));
    const auto add = [&](const char* name, const char* action) {
        auto* button = new ZOLDlgPushButton(frame, name);
        AddAnalyseNotificationCB(button, button->GetPushBActivateNotification(),
                                 ZOL_CALLBACK(&NavigatorWindow::ButtonCB), const_cast<char*>(action));
        return button;
    };
    // Leaving the field for one of these would look twice.
    add("SearchNext", "FindNextItem")->SetTakesFocus(0);
    add("SearchPrevious", "FindPreviousItem")->SetTakesFocus(0);
    (new ZOLDlgFrame(frame, "Gap", 0x80000))->SetHorizontalAttachment(1);
    _save = add("Save", "SaveItem");
    _discard = add("Discard", "DiscardItem");
    _unsaved = add("Unsaved", "UnsavedItem");
}

void NavigatorWindow::BuildMessages() {
    _messages = new ZOLDlgMultiList(this, "Messages");
    const ZOLUnicodeString titles[] = {Text("Messages.Time"), Text("Messages.Column")};
    _messages->SetColumnTitles(static_cast<int>(std::size(titles)), titles);
    _messages->SetColumnTextWidth(0, TimeWidth);
    _messages->SetColumnTextWidth(1, MessageWidth);
    _messages->SetVisibleLineCount(MessageLines);
    _messages->SetVerticalAttachment(0);
    _status = new ZOLDlgLabel(this, "Status");
}

void NavigatorWindow::Refresh() {
    const int unsaved = _unsavedShown = _work.CountUnsaved();
    const int edits = _work.CountEdits();
    const auto activate = [](ZOLDlgPushButton* button, bool on) {
        button->SetSensitivity(on ? ZOLActive : ZOLGreyed);
    };
    activate(_save, unsaved > 0);
    activate(_discard, unsaved > 0 || edits > 0);
    activate(_unsaved, unsaved > 0 || edits > 0);
    _status->SetTitle(Text(
        "Status.Msg", {WhoWorks(), ZOLUnicodeString::FromNumber(static_cast<int>(_graph->Chosen().size())),
                       ZOLUnicodeString::FromNumber(unsaved), ZOLUnicodeString::FromNumber(edits)}));
}

void NavigatorWindow::Note(const ZOLUnicodeString& message) {
    if (_messages->GetLineCount() >= MostMessages)
        _messages->ClearLine(0);
    ZOLUnicodeString line = message;
    line.Replace("\n", " ");
    _messages->SetColumnItem(0, TimeOfDay(), -1, NewLine);
    _messages->SetColumnItem(1, line, _messages->GetLineCount() - 1, NewLine);
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
