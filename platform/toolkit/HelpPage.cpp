#include "toolkit/HelpPage.h"

#include "toolkit/CallbackScope.h"
#include "toolkit/ZOLDlgDialog.h"
#include "toolkit/ZOLDlgEditor.h"
#include "values/ResourceFolders.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace trellis {

namespace {

constexpr unsigned long okOnly = 0x400;
constexpr unsigned long readOnlyLines = 0x4080000;

class HelpWindow : public ZOLDlgDialog {
public:
    explicit HelpWindow(ZOLDialog* owner)
        : ZOLDlgDialog(owner, "HelpPage", okOnly), _page(new ZOLDlgEditor(this, "Page", readOnlyLines)) {
        _page->SetVisibleTextWidth(70);
        _page->SetVisibleTextHeight(25);
        _page->Attach4Sides();
        for (ZOLNotification* end : {GetDiaOKNotification(), GetWindCloseNotification()})
            AddAnalyseNotificationCB(this, end, ZOL_CALLBACK(&HelpWindow::EndCB));
    }
    ZOLString GetResourceFilename(int level) const override { return level == 0 ? "ZOLDlgDialog" : ""; }
    void Show(const std::string& page) {
        _page->SetText(page);
        _page->SetSelection(0, -1);
        SetVisibility(ZOLShown);
    }

private:
    void EndCB(ZOLCommand*, ZOLNotification*, void*) { RequestDelayedDestruction(); }

    ZOLDlgEditor* _page;
};

std::optional<std::string> ReadPage(const std::string& className) {
    for (const std::string& folder : ResourceFolders::Search()) {
        std::ifstream in(std::filesystem::path(folder) / "help" / className, std::ios::binary);
        std::ostringstream content;
        if (in && content << in.rdbuf())
            return content.str();
    }
    return std::nullopt;
}

std::optional<std::string> FindPage(const ZOLDialog& about) {
    for (const ZOLDialog* dialog = &about; dialog; dialog = dialog->GetOwner())
        for (int level = 0;; ++level) {
            const ZOLString className = dialog->GetResourceFilename(level);
            if (className.IsEmpty())
                break;
            if (std::optional<std::string> page = ReadPage(className.ConvertToChar()))
                return page;
        }
    return std::nullopt;
}

HelpWindow* WindowOf(ZOLDialog* owner) {
    for (ZOLDialog* child : owner ? owner->GetChildren() : std::vector<ZOLDialog*>())
        if (auto* window = dynamic_cast<HelpWindow*>(child); window && !window->IsBeingDestroyed())
            return window;
    return new HelpWindow(owner);
}

} // namespace

ZOLUserResult OpenHelpPage(ZOLDialog& about) {
    const CallbackScope scope;
    // What is greyed may be asked about, too.
    const ZOLUserResult gate = about.UserGate();
    if (gate != ZOLUserResult::Done && gate != ZOLUserResult::Insensitive)
        return gate;
    const std::optional<std::string> page = FindPage(about);
    if (!page)
        return ZOLUserResult::NotThere;
    WindowOf(about.GetFatherWindow())->Show(*page);
    return ZOLUserResult::Done;
}

} // namespace trellis
