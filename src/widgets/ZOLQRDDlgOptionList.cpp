#include "widgets/ZOLQRDDlgOptionList.h"

#include "panels/ZOLGYRDlgError.h"
#include "service/ZOLQRDCfgBase.h"
#include "service/ZOLQRDCfgManager.h"
#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgSelectorList.h"
#include "toolkit/ZOLInteractiveApplication.h"
#include "values/Settings.h"
#include "values/ZOLGYRError.h"
#include "widgets/AssemblyOptions.h"
#include "widgets/OptionFilterPattern.h"
#include "widgets/OptionTerms.h"
#include "widgets/SiteOptionList.h"
#include "widgets/ZOLDlgProdContextManager.h"

using trellis::OptionTerms;

namespace {

constexpr unsigned long NoBorder = 0x80000;
constexpr int DescriptionColumn = 2;
constexpr int UsedColumn = 3;
constexpr int ColumnCount = 4;
constexpr const char* UsedMark = "XXX";
constexpr const char* NoMark = " ";

} // namespace

ZOLQRDDlgOptionList::ZOLQRDDlgOptionList(ZOLDialog* parent, const ZOLString& name, const int iStyle,
                                         ZOLDMInstance* instance)
    : ZOLDlgFrame(parent, name, NoBorder),
      _style(iStyle),
      _product(instance ? *instance : ZOLDMInstance()),
      _pasteNotification("ZOLQRDDlgPasteOption"),
      _menuDisplayNotification("ZOLQRDDlgContextualMenuDisplay") {
    Build(instance);
    if (ZOLDMInstance product; _context && _context->GetCurrentProduct(product))
        ChangeDictionaryCB(_context, _context->GetChangeProductNotification(), nullptr);
}

ZOLString ZOLQRDDlgOptionList::GetResourceFilename(int level) const {
    return level == 0 ? "ZOLQRDDlgOptionList" : ZOLDlgFrame::GetResourceFilename(level - 1);
}

ZOLUnicodeString ZOLQRDDlgOptionList::TextOf(const char* key) const {
    ZOLUnicodeString text;
    GetResourceValueFromKey(key, text);
    return text;
}

ZOLNotification* ZOLQRDDlgOptionList::GetSelectOptionNotification() const {
    return _availableList->GetListSelectNotification();
}

void ZOLQRDDlgOptionList::DeselectAll() {
    _availableList->ClearSelect();
    if (_selectedList)
        _selectedList->ClearSelect();
}

void ZOLQRDDlgOptionList::SetANDSelectedTitle() {
    if (!_selectedList)
        return;
    _selectedList->SetTitle(TextOf("ANDSelected.Title"));
    _selectedLabel->SetTitle(_selectedList->GetTitle()); // a list has no title of its own on the screen
}

void ZOLQRDDlgOptionList::UpdateDictionary(const ZOLDMInstance& product) {
    UpdateDictionary(product, {});
}

void ZOLQRDDlgOptionList::UpdateDictionary(const ZOLDMInstance& product, const Terms& selected) {
    ZOLGYRError error;
    if (TakeDictionary(product, selected, error) && _context)
        _context->SetProduct({product}, 0);
    Display(0, error);
}

bool ZOLQRDDlgOptionList::TakeDictionary(const ZOLDMInstance& product, const Terms& selected,
                                         ZOLGYRError& error) {
    Terms options;
    if (const int code = ZOLQRDCfgBase::GetOptionsFromProductDictionary(product, options)) {
        error.Set(code, 0);
        return false;
    }
    _product = product;
    UserExitForOptList(options, error);
    const Terms taken = OptionTerms::TakeEqual(selected, options);
    Take(options, taken, 0);
    return true;
}

void ZOLQRDDlgOptionList::UserExitForOptList(Terms& options, ZOLGYRError& error) const {
    trellis::SiteOptionList::Replace(_product, options, error);
}

void ZOLQRDDlgOptionList::ChangeDictionaryCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLDMInstance product;
    ZOLGYRError error;
    if (_context->GetCurrentProduct(product)) {
        TakeDictionary(product, {}, error);
    } else {
        _product = product;
        Take({}, {}, 0);
    }
    Display(0, error);
}

void ZOLQRDDlgOptionList::SetList(const Terms& available, const Terms& selected, const int& iNotRemovable) {
    Take(available, selected, iNotRemovable);
    Display();
}

void ZOLQRDDlgOptionList::Take(const Terms& available, const Terms& selected, int isNotRemovable) {
    _allAvailable = available;
    _selected = selected;
    _notRemovable = isNotRemovable ? selected : Terms();
    _assemblyUsed.clear();
    _knowsAssemblyUsed = false;
    _filtered.RemoveAll();
    if (Has(FilterPiece))
        SyntaxicFilter(_allAvailable, _filtered);
    else
        _filtered = _allAvailable;
}

void ZOLQRDDlgOptionList::SetSelected(const Terms& selected, const int& iNotRemovable) {
    Terms available = _allAvailable;
    const Terms taken = OptionTerms::TakeEqual(selected, available);
    SetList(available, taken, iNotRemovable);
}

ZOLIQrdConfigItem_var ZOLQRDDlgOptionList::GetCurrentDictionary() const {
    ZOLGYRError unused; // a product that is not configurable has no dictionary
    const ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(unused);
    ZOLQRDConfigurableObject object;
    if (manager)
        manager->GetConfigurableObject(_product, object, unused);
    return object.GetDictionary();
}

void ZOLQRDDlgOptionList::Display(int firstLine, ZOLGYRError error) {
    LoadAssemblyUsed(error);
    const OptionTerms::Names selected = OptionTerms::NamesOf(_selected);
    OptionTerms::AppendMissing(OptionTerms::TakeNamed(selected, _filtered), _selected);
    // Another panel may have changed what all of them share.
    if (_usedOnly && _usedOnly->IsOn() != (_OnlyUsed != 0))
        _usedOnly->SetState(_OnlyUsed ? ZOLOn : ZOLOff);
    if (_selectedList)
        ShowSelected();
    ShowAvailable();
    _availableList->SetFirstLine(firstLine);
    ZOLGYRDlgError::Display(this, error); // last: the panel may be gone when it is answered
}

void ZOLQRDDlgOptionList::ShowSelected() {
    _selectedList->ClearLine();
    OptionTerms::Names seen;
    for (const ZOLQRDCfgEffectivity& term : _selected)
        if (seen.insert(term.GetName()).second)
            _selectedList->SetLine(term.GetName());
}

bool ZOLQRDDlgOptionList::IsLeftOut(const ZOLQRDCfgEffectivity& term) const {
    return (_OnlyUsed && !term.IsUsed()) || (_isAssemblyOnly && !_assemblyUsed.contains(term));
}

void ZOLQRDDlgOptionList::ShowAvailable() {
    _availableList->ClearLine();
    _displayed.RemoveAll();
    OptionTerms::Names seen;
    for (const ZOLQRDCfgEffectivity& term : _filtered) {
        if (seen.contains(term.GetName()) || IsLeftOut(term))
            continue;
        seen.insert(term.GetName());
        _displayed.Append(term);
    }
    for (int row = 0; row < _displayed.Size(); ++row) {
        const ZOLQRDCfgEffectivity& term = _displayed[row + 1];
        ZOLUnicodeString description = term.GetDescription();
        description.Replace("\n", " ");
        _availableList->SetColumnItem(_namePosition, term.GetName(), row);
        _availableList->SetColumnItem(_typePosition, term.GetCategory(), row);
        _availableList->SetColumnItem(DescriptionColumn, description, row);
        _availableList->SetColumnItem(UsedColumn, term.IsUsed() ? UsedMark : NoMark, row);
    }
}

void ZOLQRDDlgOptionList::BringToFirstColumn(int& position, int& other) {
    if (position == 0)
        return;
    int order[ColumnCount] = {0, 1, DescriptionColumn, UsedColumn};
    std::swap(order[position], order[other]);
    _availableList->ReorderColumns(ColumnCount, order);
    std::swap(position, other);
}

void ZOLQRDDlgOptionList::SyntaxicFilter(const Terms& from, Terms& to) const {
    _NameFilter = _nameFilterEditor->GetText();
    _TypeFilter = _typeFilterEditor->GetText();
    const trellis::OptionFilterPattern name(_NameFilter);
    const trellis::OptionFilterPattern type(_TypeFilter);
    Terms passed;
    for (const ZOLQRDCfgEffectivity& term : from)
        if (name.Fits(term.GetName()) && type.Fits(term.GetCategory()))
            passed.Append(term);
    OptionTerms::AppendMissing(passed, to);
}

void ZOLQRDDlgOptionList::LoadAssemblyUsed(ZOLGYRError& error) {
    if (!_isAssemblyOnly || _knowsAssemblyUsed)
        return;
    ZOLInteractiveApplication::GetApplication()->SetBusyCursor(1);
    Terms used;
    ZOLGYRError reading;
    trellis::AssemblyOptions::GetOneLevelUsedOption(
        {_product}, used, trellis::Settings::Current().IsOn("ZOLWVT.RAW_COID"), reading);
    if (reading.GetCode() == 0) {
        _assemblyUsed.insert(used.begin(), used.end());
        _knowsAssemblyUsed = true;
        return;
    }
    error = reading;
    _isAssemblyOnly = false;
    _assemblyUsedOnly->SetState(ZOLOff);
}
