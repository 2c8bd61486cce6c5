#include "navigator/PictureDialog.h"

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

PictureDialog::PictureDialog(ZOLDialog* father) : ZOLDlgDialog(father, "SavePicture", OkCancelAndModal) {
    auto* frame = new ZOLDlgFrame(this, "PathFrame", 0x80000);
    frame->SetDefaultOrientation(1);
    new ZOLDlgLabel(frame, "PathLabel");
    _path = new ZOLDlgEditor(frame, "PathEd");
    _path->SetVisibleTextWidth(PathWidth);
    _path->SetHorizontalAttachment(1);
    _path->SetText((Home() / "structure.svg").string());
    new ZOLDlgLabel(this, "FormLabel");
}

ZOLString PictureDialog::GetResourceFilename(int level) const {
    return level == 0 ? "NavigatorPicture" : ZOLDlgDialog::GetResourceFilename(level - 1);
}

bool PictureDialog::Ask(ZOLUnicodeString& path) {
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
