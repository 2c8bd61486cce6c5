#include "navigator/RenameDialog.h"

#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgFrame.h"
#include "toolkit/ZOLDlgLabel.h"

namespace trellis {

namespace {

constexpr unsigned long OkCancelAndModal = 0x2000c00;
constexpr int NameWidth = 40;
constexpr int LongestName = 255;

} // namespace

RenameDialog::RenameDialog(ZOLDialog* father, const ZOLUnicodeString& name)
    : ZOLDlgDialog(father, "RenameLink", OkCancelAndModal) {
    auto* frame = new ZOLDlgFrame(this, "NameFrame", 0x80000);
    frame->SetDefaultOrientation(1);
    new ZOLDlgLabel(frame, "NameLabel");
    _name = new ZOLDlgEditor(frame, "NameEd");
    _name->SetVisibleTextWidth(NameWidth);
    _name->SetMaxCharacterWidth(LongestName);
    _name->SetText(name);
    _name->SetSelection(0, name.GetLengthInChar());
}

ZOLString RenameDialog::GetResourceFilename(int level) const {
    return level == 0 ? "NavigatorRename" : ZOLDlgDialog::GetResourceFilename(level - 1);
}

bool RenameDialog::Ask(ZOLUnicodeString& name) {
    const bool isGiven = DisplayBlocked() == 1;
    if (isGiven) {
        name = _name->GetText();
        name.Strip();
    }
    return isGiven;
}

} // namespace trellis
