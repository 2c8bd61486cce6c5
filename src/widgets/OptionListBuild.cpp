// ZOLQRDDlgOptionList: making its widgets.

#include "toolkit/ZOLDlgCheckButton.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSelectorList.h"
#include "widgets/ZOLDlgProdContextManager.h"
#include "widgets/ZOLQRDDlgOptionList.h"

#include <iterator>

namespace {

constexpr unsigned long NoBorder = 0x80000;
constexpr unsigned long SeveralRows = 0x40000;
constexpr int FilterWidth =
    40; // makes the list a little wider than its columns, for the title of the last one
constexpr int VisibleLines = 7;
constexpr int SelectedWidth = 24;
constexpr const char* ContextOfProducts = "OL";

struct Column {
    const char* title;
    int width; // in characters
};
constexpr Column columns[] = {
    {"ListName.Title", 10}, {"ListType.Title", 10}, {"ListDesc.Title", 18}, {"ListUsed.Title", 3}};

// A frame that only puts its children beside or below each other.
ZOLDlgFrame* Holder(ZOLDialog* owner, const char* name, int orientation) {
    auto* holder = new ZOLDlgFrame(owner, name, NoBorder);
    holder->SetDefaultOrientation(orientation);
    return holder;
}

} // namespace

void ZOLQRDDlgOptionList::Build(const ZOLDMInstance* instance) {
    ZOLDlgFrame* main = Holder(this, "MainFrame", Has(SelectedPiece) ? 1 : 0);
    ZOLDialog* available = Has(SelectedPiece) ? Holder(main, "AvailableFrame", 0) : main;
    if (Has(ProductContextPiece))
        BuildContext(available);
    if (Has(SortPiece))
        BuildSort(available);
    if (Has(FilterPiece))
        BuildFilter(available, Has(AssemblyUsedPiece) && instance);
    BuildAvailable(available);
    if (Has(SelectedPiece))
        BuildSelected(Holder(main, "SelectedFrame", 0));
}

void ZOLQRDDlgOptionList::BuildContext(ZOLDialog* holder) {
    ZOLListValZOLDMInstance products;
    if (_product.GetCoid() > 0)
        products.Append(_product);
    _context = new ZOLDlgProdContextManager(holder, _product, products, ContextOfProducts);
    AddAnalyseNotificationCB(_context, _context->GetChangeProductNotification(),
                             ZOL_CALLBACK(&ZOLQRDDlgOptionList::ChangeDictionaryCB));
}

void ZOLQRDDlgOptionList::BuildSort(ZOLDialog* holder) {
    auto* frame = new ZOLDlgFrame(holder, "SortFrame");
    frame->SetDefaultOrientation(1);
    const auto add = [&](const char* name, ZOLNotificationMethod method) {
        auto* button = new ZOLDlgPushButton(frame, name);
        AddAnalyseNotificationCB(button, button->GetPushBActivateNotification(), method);
    };
    add("SortByNameBut", ZOL_CALLBACK(&ZOLQRDDlgOptionList::SortByNameCB));
    add("SortByTypeBut", ZOL_CALLBACK(&ZOLQRDDlgOptionList::SortByTypeCB));
}

void ZOLQRDDlgOptionList::BuildFilter(ZOLDialog* holder, bool hasAssembly) {
    auto* frame = new ZOLDlgFrame(holder, "FilterFrame");
    const auto addEditor = [&](const char* label, const char* name, const ZOLUnicodeString& text) {
        new ZOLDlgLabel(frame, label);
        auto* editor = new ZOLDlgEditor(frame, name);
        editor->SetVisibleTextWidth(FilterWidth);
        editor->SetHorizontalAttachment(1);
        editor->SetText(text);
        AddAnalyseNotificationCB(editor, editor->GetEditReturnNotification(),
                                 ZOL_CALLBACK(&ZOLQRDDlgOptionList::FilterCB));
        return editor;
    };
    _nameFilterEditor = addEditor("Name", "NameFilterEd", _NameFilter);
    _typeFilterEditor = addEditor("Type", "TypeFilterEd", _TypeFilter);

    ZOLDlgFrame* action = Holder(frame, "FilterActions", 1);
    auto* apply = new ZOLDlgPushButton(action, "FilterBut");
    AddAnalyseNotificationCB(apply, apply->GetPushBActivateNotification(),
                             ZOL_CALLBACK(&ZOLQRDDlgOptionList::FilterCB));
    _addReplace = new ZOLDlgCombo(action, "AddRepalceComb");
    _addReplace->SetLine(TextOf("Replace.Title"));
    _addReplace->SetLine(TextOf("Add.Title"));
    _addReplace->SetSelect(0);

    const auto addCheck = [&](const char* name, ZOLNotificationMethod method) {
        auto* check = new ZOLDlgCheckButton(frame, name);
        AddAnalyseNotificationCB(check, check->GetChkBModifyNotification(), method);
        return check;
    };
    _usedOnly = addCheck("UsedOnlyBut", ZOL_CALLBACK(&ZOLQRDDlgOptionList::CheckUsedOnlyCB));
    _usedOnly->SetState(_OnlyUsed ? ZOLOn : ZOLOff);
    if (hasAssembly)
        _assemblyUsedOnly =
            addCheck("AssUsedOnlyBut", ZOL_CALLBACK(&ZOLQRDDlgOptionList::CheckAssemblyUsedOnlyCB));
}

void ZOLQRDDlgOptionList::BuildAvailable(ZOLDialog* holder) {
    new ZOLDlgLabel(holder, "QRDAvailable");
    _availableList = new ZOLDlgMultiList(holder, "QRDOptionList", SeveralRows);
    std::vector<ZOLUnicodeString> titles;
    for (const Column& column : columns) {
        _availableList->SetColumnTextWidth(static_cast<int>(titles.size()), column.width);
        titles.push_back(TextOf(column.title));
    }
    _availableList->SetColumnTitles(static_cast<int>(titles.size()), titles.data());
    _availableList->SetVisibleLineCount(VisibleLines);
    AddAnalyseNotificationCB(_availableList, _availableList->GetListSelectNotification(),
                             ZOL_CALLBACK(&ZOLQRDDlgOptionList::SelectOptionCB));

    _menu = new ZOLDlgContextualMenu(_availableList, "ContextualMenu");
    AddAnalyseNotificationCB(_menu, _menu->GetVisibilityNotification(),
                             ZOL_CALLBACK(&ZOLQRDDlgOptionList::MenuDisplayCB));
    const auto addItem = [this](const char* name, ZOLNotificationMethod method) {
        auto* item = new ZOLDlgPushItem(_menu, name);
        AddAnalyseNotificationCB(item, item->GetMenuIActivateNotification(), method);
        return item;
    };
    _copyItem = addItem("CopyItem", ZOL_CALLBACK(&ZOLQRDDlgOptionList::MenuCopyCB));
    _pasteItem = addItem("PasteItem", ZOL_CALLBACK(&ZOLQRDDlgOptionList::MenuPasteCB));
}

void ZOLQRDDlgOptionList::BuildSelected(ZOLDialog* holder) {
    _selectedLabel = new ZOLDlgLabel(holder, "QRDSelected");
    _selectedList = new ZOLDlgSelectorList(holder, "QRDOptionLIst", SeveralRows);
    _selectedList->SetTitle(TextOf("Selected.Title"));
    _selectedList->SetVisibleTextWidth(SelectedWidth);
    _selectedList->SetVisibleTextHeight(VisibleLines);
    AddAnalyseNotificationCB(_selectedList, _selectedList->GetListSelectNotification(),
                             ZOL_CALLBACK(&ZOLQRDDlgOptionList::UnselectOptionCB));
}
