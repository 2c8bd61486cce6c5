#include "session/FileDialog.h"

#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgLabel.h"

#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace trellis {

namespace {

constexpr unsigned long OkCancelAndModal = 0x2000c00;
constexpr int PathWidth = 50;

fs::path Home() {
    const char* home = std::getenv("HOME");
    return home && *home ? fs::path(home) : fs::path(".");
}

} // namespace

FileDialog::FileDialog(ZOLDialog* father, const char* name, const char* resourceFile,
                       const std::string& proposed)
    : ZOLDlgDialog(father, name, OkCancelAndModal), _resourceFile(resourceFile) {
    auto* frame = new ZOLDlgFrame(this, "PathFrame", 0x80000);
    frame->SetDefaultOrientation(1);
    new ZOLDlgLabel(frame, "PathLabel");
    _path = new ZOLDlgEditor(frame, "PathEd");
    _path->SetVisibleTextWidth(PathWidth);
    _path->SetHorizontalAttachment(1);
    _path->SetText((Home() / proposed).string());
    new ZOLDlgLabel(this, "FormLabel");
}

ZOLString FileDialog::GetResourceFilename(int level) const {
    return level == 0 ? _resourceFile : ZOLDlgDialog::GetResourceFilename(level - 1);
}

bool FileDialog::Ask(ZOLUnicodeString& path) {
    if (DisplayBlocked() != 1)
        return false;
    ZOLUnicodeString typed = _path->GetText();
    typed.Strip();
    if (typed.IsEmpty())
        return false;
    path = (Home() / typed.Bytes()).string(); // an absolute path stays
    return true;
}

} // namespace trellis
