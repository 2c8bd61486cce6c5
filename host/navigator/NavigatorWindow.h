#pragma once

#include "navigator/LinkGestures.h"
#include "navigator/NavigatorResultPanel.h"
#include "navigator/UnsavedWork.h"
#include "session/HostSession.h"
#include "session/ModuleOperation.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgWindow.h"

#include <optional>

namespace trellis {

// NavigatorWindow: the window in which a user works: the structure, what may be done with the chosen parts, what is
// unsaved, and what was said. Works on the open database and on the module of the session, which must outlive it.
class NavigatorWindow : public ZOLDlgWindow {
    ZOL_META_OBJECT(NavigatorWindow, ZOLDlgWindow)
public:
    explicit NavigatorWindow(HostSession& session);
    ~NavigatorWindow() override;

    ZOLString GetResourceFilename(int level) const override;
    // Closes the window; with unsaved changes or edits of links it asks first.
    void Leave();

private:
    // What a menu offers beside the gestures on links and the module's operations.
    struct Action {
        const char* name;
        void (NavigatorWindow::*run)();
        bool (NavigatorWindow::*isPossible)() const;
    };
    static const std::vector<Action>& Actions();
    static const Action* FindAction(const std::string& name);

    void BuildMenuBar();
    void BuildToolBar();
    void BuildMessages();
    void AddItems(ZOLDialog* menu, const std::vector<const char*>& names);
    // Whether what stands behind an item can be done now.
    bool IsPossible(const std::string& item) const;
    void Grey(ZOLDialog* menu);

    void SearchCB(ZOLCommand*, ZOLNotification*, void*);
    void ChoiceCB(ZOLCommand*, ZOLNotification*, void*);
    void ContextCB(ZOLCommand*, ZOLNotification*, void*);
    void MenuOpensCB(ZOLCommand* menu, ZOLNotification*, void*);
    void ItemCB(ZOLCommand* item, ZOLNotification*, void*);
    void ButtonCB(ZOLCommand*, ZOLNotification*, void* action);
    void EnterCB(ZOLCommand*, ZOLNotification*, void*);
    void LeaveCB(ZOLCommand*, ZOLNotification*, void*);

    void RunGesture(const LinkGestures::Gesture& gesture);
    void RunOperation(const ModuleOperation& operation);
    void NoteStates(const std::vector<ZOLDMInstance>& parts, const std::vector<ZOLUnicodeString>& before);
    void ShowChanges();
    void SaveAll();
    void DiscardAll();
    void ListUnsaved();
    void FindNext() { Search(StructureGraph::Direction::Forth); }
    void FindPrevious() { Search(StructureGraph::Direction::Back); }
    void OpenBranch();
    void CloseBranch() { _graph->CloseChosen(); }
    void ReadAgain();
    void SavePicture();
    void Configure();
    void ShowHelp();
    bool HasUnsaved() const { return _work.CountUnsaved() > 0; }
    bool HasChanges() const { return !_work.IsEmpty(); }
    bool HasChoice() const { return _gestures->HasChoice(); }
    bool HasSearch() const { return !_search->GetText().IsEmpty(); }

    void Search(StructureGraph::Direction direction);
    bool AskName(ZOLUnicodeString& name);
    // Everything that may have changed by what somebody did: buttons, status line.
    void Refresh();
    void Note(const ZOLUnicodeString& message);
    // Shows the error, if any, and keeps it in the list of messages.
    void Report(ZOLGYRError& error);
    ZOLUnicodeString Text(const std::string& key, const ZOLListValZOLUnicodeString& parameters = {}) const;

    HostSession& _session;
    NavigatorResultPanel _resultPanel;
    StructureEdit _edit;
    UnsavedWork _work;
    StructureGraph* _graph;
    std::optional<LinkGestures> _gestures; // on the graph
    ZOLDlgContextualMenu* _menu;
    ZOLDlgEditor* _search;
    ZOLDlgMultiList* _messages;
    ZOLDlgLabel* _status;
    ZOLDlgPushButton* _save;
    ZOLDlgPushButton* _discard;
    ZOLDlgPushButton* _unsaved;
    int _unsavedShown = 0;
    bool _isStale = false; // something was stored since it was read
    int _listener = 0;     // of what is stored
};

} // namespace trellis
