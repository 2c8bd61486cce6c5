#pragma once

#include "configure/SelectionReasons.h"
#include "model/ZOLDMInstance.h"
#include "toolkit/ZOLDlgWindow.h"

class ZOLDlgEditor;
class ZOLDlgLabel;

namespace trellis {

struct KeptSelection;

// ConfigureWindow: a window in which a person chooses the options of a product. Around the module's panel it tells why
// the option that one looks at is in its state, what is wrong and what can be done about it, and how much is open; and
// it keeps the selection in files.
class ConfigureWindow : public ZOLDlgWindow {
    ZOL_META_OBJECT(ConfigureWindow, ZOLDlgWindow)
public:
    // Null, with 60600, when the module offers no such panel; else the window, shown. It ends by itself. Without
    // products it begins with the one that was used last within the scope.
    static ConfigureWindow* Open(ZOLDialog* father, const ZOLDMInstance& scope,
                                 const ZOLListValZOLDMInstance& products, ZOLGYRError& error);

    ZOLString GetResourceFilename(int level) const override;

private:
    explicit ConfigureWindow(ZOLDialog* father);

    void Build(const ZOLDMInstance& scope, const ZOLListValZOLDMInstance& products,
               CategoryGraphFactory make);

    void BuildMenus();
    void BuildBars();
    void BuildStatus();
    void AddItem(ZOLDialog* menu, const char* name, ZOLNotificationMethod method);

    void ShownCB(ZOLCommand*, ZOLNotification*, void*);
    void PointCB(ZOLCommand*, ZOLNotification* notification, void*);
    void RepairCB(ZOLCommand*, ZOLNotification*, void*);
    void LeftOutCB(ZOLCommand*, ZOLNotification*, void*);
    void OpenSelectionCB(ZOLCommand*, ZOLNotification*, void*);
    void SaveSelectionCB(ZOLCommand*, ZOLNotification*, void*);
    void SavePictureCB(ZOLCommand*, ZOLNotification*, void*);
    void HelpCB(ZOLCommand*, ZOLNotification*, void*);
    void CloseCB(ZOLCommand*, ZOLNotification*, void*);

    void ShowState();
    void ShowWhy();
    ZOLUnicodeString TextOfLooked() const;
    // What is shown: the name of the first dictionary's part.
    ZOLUnicodeString ProductName() const;
    void Choose(KeptSelection selection);
    void Tell(const char* box, const std::vector<ZOLUnicodeString>& lines);
    // Asks for a file that may be written: a file that is there only after a question.
    bool AskFileToWrite(const char* dialog, const char* resourceFile, const char* proposed,
                        ZOLUnicodeString& path);
    void Report(const ZOLGYRError& error);
    ZOLUnicodeString Text(const char* key, const ZOLListValZOLUnicodeString& parameters = {}) const;

    ZOLIQRDCategoryGraph* _panel = nullptr;
    std::optional<SelectionReasons> _reasons; // of the panel
    std::optional<ZOLParameter> _looked;      // the option that the user looks at
    WeakCommand _lookedNode;                  // its node, until the graph is built anew
    ZOLDialog* _conflictBar = nullptr;
    ZOLDlgLabel* _conflict = nullptr;
    ZOLDialog* _leftOutBar = nullptr;
    ZOLDlgLabel* _leftOut = nullptr;
    ZOLDlgEditor* _why = nullptr;
    ZOLDlgLabel* _summary = nullptr;
};

} // namespace trellis
