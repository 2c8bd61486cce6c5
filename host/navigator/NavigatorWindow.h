#pragma once

#include "navigator/StructureGraph.h"
#include "session/HostSession.h"
#include "session/ModuleOperation.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgWindow.h"

namespace trellis {

// NavigatorWindow: the window in which a user works: the structure, what may be done with the chosen parts, what is
// unsaved, and what was said. Works on the open database and on the module of the session, which must outlive it.
class NavigatorWindow : public ZOLDlgWindow {
    ZOL_META_OBJECT(NavigatorWindow, ZOLDlgWindow)
public:
    explicit NavigatorWindow(HostSession& session);

    ZOLString GetResourceFilename(int level) const override;
    // Closes the window; with unsaved changes it asks first.
    void Leave();

private:
    void BuildSearch();
    void BuildMessages();
    void BuildButtons();

    void SearchCB(ZOLCommand*, ZOLNotification*, void*);
    void ChoiceCB(ZOLCommand*, ZOLNotification*, void*);
    void MenuCB(ZOLCommand*, ZOLNotification*, void*);
    void OperationCB(ZOLCommand*, ZOLNotification*, void* operation);
    void CopyCB(ZOLCommand*, ZOLNotification*, void*);
    void SaveCB(ZOLCommand*, ZOLNotification*, void*);
    void DiscardCB(ZOLCommand*, ZOLNotification*, void*);
    void LeaveCB(ZOLCommand*, ZOLNotification*, void*);

    void FillMenu();
    void AddOperation(ZOLDialog* menu, const ModuleOperation& operation);
    // Everything that may have changed by what somebody did: texts of the tree, buttons, status line.
    void Refresh();
    void Note(const ZOLUnicodeString& message);
    // Shows the error, if any, and keeps it in the list of messages.
    void Report(ZOLGYRError& error);
    bool Save();

    HostSession& _session;
    StructureGraph* _graph;
    ZOLDlgContextualMenu* _menu;
    ZOLDlgEditor* _search;
    ZOLDlgMultiList* _messages;
    ZOLDlgLabel* _status;
    ZOLDlgPushButton* _save;
    ZOLDlgPushButton* _discard;
    ZOLDlgPushButton* _copy;
};

} // namespace trellis
