#include "navigator/UnsavedDialog.h"

#include "model/DatabaseSession.h"
#include "navigator/StructureEdit.h"
#include "toolkit/ZOLDlgMultiList.h"

namespace trellis {

namespace {

constexpr unsigned long OkCancelAndModal = 0x2000c00;
constexpr int ShownLines = 14;

struct ListColumn {
    const char* title;
    int width;
};
constexpr ListColumn Columns[] = {{"Column.Change", 24}, {"Column.Kind", 24}, {"Column.Object", 60}};

// In the order of UnsavedChange::Kind.
constexpr const char* ChangeKeys[] = {"Change.Added", "Change.Changed", "Change.Removed"};

} // namespace

UnsavedDialog::UnsavedDialog(ZOLDialog* father, const StructureEdit& edit)
    : ZOLDlgDialog(father, "UnsavedChanges", OkCancelAndModal), _list(new ZOLDlgMultiList(this, "Changes")) {
    ZOLUnicodeString titles[std::size(Columns)];
    for (std::size_t i = 0; i < std::size(Columns); ++i)
        titles[i] = Text(Columns[i].title);
    _list->SetColumnTitles(static_cast<int>(std::size(Columns)), titles);
    for (std::size_t i = 0; i < std::size(Columns); ++i)
        _list->SetColumnTextWidth(static_cast<int>(i), Columns[i].width);
    _list->SetVisibleLineCount(ShownLines);

    const std::vector<UnsavedChange> changes = DatabaseSession::UnsavedChanges();
    for (const UnsavedChange& change : changes)
        Append(Text(change.isStale ? "Change.Stale" : ChangeKeys[static_cast<std::size_t>(change.kind)]),
               change.what, change.object);
    const ZOLQRDCfgModification& record = edit.Record();
    for (int position = 1; position <= record.GetNbModifications(); ++position)
        Append(Text("Change.Waits"), Text("Kind.Link"), record.GetText(position));

    SetOKSensitivity(changes.empty() ? ZOLGreyed : ZOLActive);
    SetOKTitle(Text("Save"));
    SetCANCELTitle(Text("Close"));
    SetHELPTitle(Text("Discard"));
    SetDefaultButton(changes.empty() ? ZOLDialogButton::Cancel : ZOLDialogButton::OK);
}

ZOLString UnsavedDialog::GetResourceFilename(int level) const {
    return level == 0 ? "NavigatorUnsaved" : ZOLDlgDialog::GetResourceFilename(level - 1);
}

ZOLUnicodeString UnsavedDialog::Text(const char* key) const {
    ZOLUnicodeString text;
    GetResourceValueFromKey(key, text);
    return text;
}

void UnsavedDialog::Append(const ZOLUnicodeString& change, const ZOLUnicodeString& kind,
                           const ZOLUnicodeString& object) {
    int column = 0;
    for (const ZOLUnicodeString& text : {change, kind, object})
        _list->SetColumnItem(column++, text);
}

UnsavedDialog::Answer UnsavedDialog::Ask() {
    switch (DisplayBlocked()) {
    case 1:
        return Answer::Save;
    case 3:
        return Answer::Discard;
    default:
        return Answer::Close;
    }
}

} // namespace trellis
