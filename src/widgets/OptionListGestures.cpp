// ZOLQRDDlgOptionList: what the user does to it.

#include "service/ZOLQRDCfgBase.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSelectorList.h"
#include "toolkit/ZOLInteractiveApplication.h"
#include "widgets/OptionTerms.h"
#include "widgets/ZOLQRDDlgOptionList.h"

using trellis::OptionTerms;

namespace {

constexpr int NotRemovable = 40010;
constexpr int ReplaceLine = 0;
// Says neither on nor off: the button is put off with it, which calls back here, and whoever asks for the
// state can tell it from a click.
constexpr int PutOffByTheOther = 16;

std::vector<int> SelectedRows(const ZOLDlgList& list) {
    const int* rows = nullptr;
    int count = 0;
    list.GetSelect(rows, count);
    return {rows, rows + count};
}

} // namespace

ZOLListValZOLQRDCfgEffectivity ZOLQRDDlgOptionList::GetAvailableSelect() const {
    Terms terms;
    for (const int row : SelectedRows(*_availableList))
        terms.Append(_displayed[row + 1]);
    return terms;
}

void ZOLQRDDlgOptionList::SortByNameCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLInteractiveApplication::GetApplication()->SetBusyCursor(1);
    BringToFirstColumn(_namePosition, _typePosition);
    _filtered.QuickSort(&ZOLQRDCfgBase::CompareOptionName);
    Display();
}

void ZOLQRDDlgOptionList::SortByTypeCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLInteractiveApplication::GetApplication()->SetBusyCursor(1);
    BringToFirstColumn(_typePosition, _namePosition);
    _filtered.QuickSort(&ZOLQRDCfgBase::CompareOptionType);
    Display();
}

void ZOLQRDDlgOptionList::FilterCB(ZOLCommand*, ZOLNotification*, void*) {
    if (_addReplace->GetSelect() == ReplaceLine)
        _filtered.RemoveAll();
    SyntaxicFilter(_allAvailable, _filtered);
    Display();
}

void ZOLQRDDlgOptionList::CheckUsedOnlyCB(ZOLCommand*, ZOLNotification*, void*) {
    _OnlyUsed = _usedOnly->IsOn();
    if (_OnlyUsed && _assemblyUsedOnly)
        _assemblyUsedOnly->SetState(PutOffByTheOther, 1);
    Display();
}

void ZOLQRDDlgOptionList::CheckAssemblyUsedOnlyCB(ZOLCommand*, ZOLNotification*, void*) {
    _isAssemblyOnly = _assemblyUsedOnly->IsOn();
    if (_isAssemblyOnly)
        _usedOnly->SetState(PutOffByTheOther, 1);
    Display();
}

void ZOLQRDDlgOptionList::SelectOptionCB(ZOLCommand*, ZOLNotification*, void*) {
    if (Has(SelectedPiece))
        Transfer(*_availableList, _filtered, _selected);
    else
        SendNotification(GetFather(), GetSelectOptionNotification());
}

void ZOLQRDDlgOptionList::UnselectOptionCB(ZOLCommand*, ZOLNotification*, void*) {
    Transfer(*_selectedList, _selected, _filtered);
}

void ZOLQRDDlgOptionList::Transfer(const ZOLDlgMultiList& list, Terms& from, Terms& to) {
    OptionTerms::Names names;
    for (const int row : SelectedRows(list))
        names.insert(_displayed[row + 1].GetName());
    TransferNames(names, from, to);
}

void ZOLQRDDlgOptionList::Transfer(const ZOLDlgSelectorList& list, Terms& from, Terms& to) {
    OptionTerms::Names names;
    for (const int row : SelectedRows(list))
        names.insert(list.GetRowText(row));
    TransferNames(names, from, to);
}

void ZOLQRDDlgOptionList::TransferNames(const OptionTerms::Names& names, Terms& from, Terms& to) {
    Terms moved = OptionTerms::OfNames(from, names);
    const int size = moved.Size();
    moved.Remove(_notRemovable);
    from.Remove(moved);
    OptionTerms::AppendMissing(moved, to);
    OptionTerms::AppendMissing(moved, _allAvailable);
    ZOLGYRError error;
    if (moved.Size() != size)
        error.Set(NotRemovable, 0);
    Display(_availableList->GetFirstLine(), error);
}

void ZOLQRDDlgOptionList::MenuDisplayCB(ZOLCommand*, ZOLNotification*, void*) {
    SendNotification(GetFather(), &_menuDisplayNotification);
    _copyItem->SetSensitivity(_availableList->GetSelectCount() > 0 ? ZOLActive : ZOLGreyed);
    _pasteItem->SetSensitivity(_OptToPaste.Size() > 0 ? ZOLActive : ZOLGreyed);
}

void ZOLQRDDlgOptionList::MenuCopyCB(ZOLCommand*, ZOLNotification*, void*) {
    _OptToPaste = GetAvailableSelect();
}

void ZOLQRDDlgOptionList::MenuPasteCB(ZOLCommand*, ZOLNotification*, void*) {
    SendNotification(GetFather(), &_pasteNotification);
}
