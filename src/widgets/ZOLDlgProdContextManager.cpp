#include "widgets/ZOLDlgProdContextManager.h"

#include "model/ZOLDMClipboard.h"
#include "panels/ZOLDMDlgResultPanel.h"
#include "panels/ZOLGYRDlgError.h"
#include "service/ZOLQRDCfgManager.h"
#include "toolkit/ZOLDlgContextualMenu.h"
#include "toolkit/ZOLDlgLabel.h"
#include "toolkit/ZOLDlgPushButton.h"
#include "toolkit/ZOLDlgPushItem.h"
#include "toolkit/ZOLDlgSeparatorItem.h"
#include "values/ZOLGYRError.h"
#include "widgets/KeptFile.h"
#include "widgets/ProductHistoryFile.h"

#include <cstdint>
#include <utility>

using trellis::KeptFile;
using trellis::ProductHistory;
using trellis::ProductHistoryEntry;
using trellis::ProductHistoryFile;

ZOLListValZOLDMInstance ZOLDlgProdContextManager::_UsedProductList;
int ZOLDlgProdContextManager::_LastUsedProductIndex = 0;

namespace {

constexpr unsigned long NoBorder = 0x80000;
constexpr int NameWidth = 240; // pixels at least, however long a name is
constexpr int MostInFile = 10;
constexpr int LongestItem = 80; // characters
constexpr int CutItem = 77;

ZOLUnicodeString NameOf(const ZOLDMInstance& product) {
    return product.GetNameInstance(1, 1, " ", "$BOM_NAVIG");
}

ZOLUnicodeString ItemTitle(const ZOLDMInstance& product) {
    const ZOLUnicodeString name = NameOf(product);
    return name.GetLengthInChar() > LongestItem ? name.SubString(0, CutItem) + "..." : name;
}

std::string HistoryPath(const ZOLDMInstance& scope) {
    return KeptFile::PathOf(scope, ".Products");
}

ProductHistoryEntry EntryOf(const ZOLUnicodeString& key, const ZOLDMInstance& product) {
    return {key, product.GetLeadingString(), product.GetXCoid()};
}

// The parts that can be chosen as product; the code of one that cannot goes into the carrier.
ZOLListValZOLDMInstance ConfigurableParts(const ZOLListValZOLDMInstance& parts, ZOLGYRError& error) {
    ZOLListValZOLDMInstance configurable;
    const ZOLQRDCfgManager* manager = ZOLQRDCfgManager::CurrentCfgManager(error);
    if (!manager)
        return configurable;
    for (const ZOLDMInstance& part : parts) {
        ZOLGYRError refusal;
        ZOLQRDConfigurableObject object;
        manager->GetConfigurableObject(part, object, refusal);
        if (refusal.GetCode() == 0)
            configurable.Append(part);
        else
            error = refusal;
    }
    return configurable;
}

} // namespace

ZOLDlgProdContextManager::ZOLDlgProdContextManager(ZOLDialog* father, const ZOLDMInstance& scope,
                                                   const ZOLListValZOLDMInstance& products,
                                                   const ZOLUnicodeString& context)
    : ZOLDlgFrame(father, "ProdContextManager", NoBorder), _context(context), _scope(scope) {
    Build();
    SetProduct(products, 0);
}

ZOLDlgProdContextManager::ZOLDlgProdContextManager(ZOLDialog* father, const ZOLDMInstance& scope,
                                                   const ZOLUnicodeString& context)
    : ZOLDlgProdContextManager(father, scope, {}, context) {}

ZOLDlgProdContextManager::~ZOLDlgProdContextManager() {
    if (!_isFileRead)
        return;
    ZOLDMInstance current;
    GetCurrentProduct(current);
    WriteProductFile(_scope, _context, current, _products);
}

ZOLString ZOLDlgProdContextManager::GetResourceFilename(int level) const {
    return level == 0 ? "ZOLDlgProdContextManager" : ZOLDlgFrame::GetResourceFilename(level - 1);
}

ZOLUnicodeString ZOLDlgProdContextManager::Text(const char* key) const {
    ZOLUnicodeString text;
    GetResourceValueFromKey(key, text);
    return text;
}

void ZOLDlgProdContextManager::Build() {
    SetDefaultOrientation(1);
    SetHorizontalAttachment(1);
    new ZOLDlgLabel(this, "CurrentProductLabel");
    auto* frame = new ZOLDlgFrame(this, "CurrentProductFrame", NoBorder);
    frame->SetHorizontalAttachment(1);
    frame->SetDefaultOrientation(1);
    _name = new ZOLDlgLabel(frame, "CurrentProductName");
    _name->SetHorizontalAttachment(1);
    _name->SetRectDimensions(NameWidth, 0);
    auto* change = new ZOLDlgPushButton(frame, "ChangeProduct"); // nothing else here takes the keyboard
    AddAnalyseNotificationCB(change, change->GetPushBActivateNotification(),
                             ZOL_CALLBACK(&ZOLDlgProdContextManager::ChangeProductCB));
    _menu = new ZOLDlgContextualMenu(this, "ContextualMenu");
    AddAnalyseNotificationCB(_menu, _menu->GetVisibilityNotification(),
                             ZOL_CALLBACK(&ZOLDlgProdContextManager::MenuDisplayCB));
}

int ZOLDlgProdContextManager::GetCurrentProduct(ZOLDMInstance& product) const {
    product = _index > 0 ? _history[_index] : ZOLDMInstance();
    return _index > 0;
}

int ZOLDlgProdContextManager::GetLastUsedProduct(ZOLDMInstance& product) {
    const bool isKnown = _LastUsedProductIndex > 0 && _LastUsedProductIndex <= _UsedProductList.Size();
    product = isKnown ? _UsedProductList[_LastUsedProductIndex] : ZOLDMInstance();
    return isKnown;
}

void ZOLDlgProdContextManager::SetProduct(const ZOLListValZOLDMInstance& products, int notify) {
    TakeProducts(products);
    if (notify)
        SendNotification(nullptr, &_changeNotification);
}

// Without telling anybody.
void ZOLDlgProdContextManager::TakeProducts(const ZOLListValZOLDMInstance& products) {
    _menu->Empty(); // its items name places in the history
    _products = products;
    _isFileRead = 0;
    int index = 0;
    if (ZOLDMDlgResultPanel::GetListResultPanel()[1]->KeepsProducts() == 1 && _products.Size() == 0 &&
        _scope.GetCoid() > 0 && !_context.IsEmpty()) {
        _isFileRead = 1;
        ReadProductFile(_scope, _context, _products, index);
    }
    index = JoinUsedProducts(index);
    if (index == 0 && _products.Size() > 0)
        index = 1;
    _history = _UsedProductList;
    SelectProduct(index);
}

// The products of this frame move to the front of those used so far. Answers the index given, or, where that is 0, the
// place of the product used last among them, or 0.
int ZOLDlgProdContextManager::JoinUsedProducts(int index) {
    const int lastUsed = std::exchange(_LastUsedProductIndex, 0);
    const ZOLListValZOLDMInstance before = std::exchange(_UsedProductList, _products);
    for (int j = 1; j <= before.Size(); ++j) {
        const int place = _UsedProductList.Locate(before[j]);
        if (place == 0)
            _UsedProductList.Append(before[j]);
        else if (index == 0 && j == lastUsed && place <= _products.Size())
            index = place;
    }
    return index;
}

void ZOLDlgProdContextManager::SelectProduct(const int index) {
    _index = index;
    if (_index > 0)
        _LastUsedProductIndex = _UsedProductList.Locate(_history[_index]);
    _name->SetTitle(_index > 0 ? NameOf(_history[_index]) : Text("NoProduct.Title"));
}

void ZOLDlgProdContextManager::ChangeProductCB(ZOLCommand*, ZOLNotification*, void*) {
    _menu->UserOpen();
}

void ZOLDlgProdContextManager::SelectProductCB(ZOLCommand*, ZOLNotification*, void* position) {
    SelectProduct(static_cast<int>(reinterpret_cast<std::intptr_t>(position)));
    SendNotification(nullptr, &_changeNotification);
}

void ZOLDlgProdContextManager::ResetProductsCB(ZOLCommand*, ZOLNotification*, void*) {
    _products.RemoveAll();
    SelectProduct(0);
}

ZOLDlgPushItem* ZOLDlgProdContextManager::AddItem(const char* name, const ZOLUnicodeString& title,
                                                  ZOLNotificationMethod method, void* data) {
    auto* item = new ZOLDlgPushItem(_menu, name);
    item->SetTitle(title);
    AddAnalyseNotificationCB(item, item->GetMenuIActivateNotification(), method, data);
    return item;
}

void ZOLDlgProdContextManager::MenuDisplayCB(ZOLCommand*, ZOLNotification*, void*) {
    _menu->Empty();
    ZOLDlgPushItem* paste = AddItem("PasteNewItem", Text("PasteNewProduct.Title"),
                                    ZOL_CALLBACK(&ZOLDlgProdContextManager::PasteNewProductCB));
    paste->SetSensitivity(ZOLDMClipboard::GetNbObject() > 0 ? ZOLActive : ZOLGreyed);
    if (_products.Size() > 0)
        AddItem("ResetItem", Text("ResetProducts.Title"),
                ZOL_CALLBACK(&ZOLDlgProdContextManager::ResetProductsCB));
    new ZOLDlgSeparatorItem(_menu, "Separ");
    AddItem("HistoryTitleItem", Text("ProductsHistory.Title"))->SetSensitivity(ZOLGreyed);
    for (std::intptr_t i = 1; i <= _history.Size(); ++i)
        AddItem("ProductItem", ItemTitle(_history[static_cast<int>(i)]),
                ZOL_CALLBACK(&ZOLDlgProdContextManager::SelectProductCB), reinterpret_cast<void*>(i));
}

// A pasted product is remembered with those that came from the file: else the file would forget one or the other.
void ZOLDlgProdContextManager::PasteNewProductCB(ZOLCommand*, ZOLNotification*, void*) {
    ZOLGYRError error;
    const ZOLListValZOLDMInstance pasted = ConfigurableParts(ZOLDMClipboard::GetObjects(), error);
    if (pasted.Size() > 0) {
        const ZOLListValZOLDMInstance kept = _isFileRead ? _products : ZOLListValZOLDMInstance();
        const int isFileRead = _isFileRead;
        TakeProducts(pasted);
        _isFileRead = isFileRead;
        for (const ZOLDMInstance& product : kept)
            if (_products.Locate(product) == 0)
                _products.Append(product);
        SendNotification(nullptr, &_changeNotification);
    }
    ZOLGYRDlgError::Display(this, error, 0);
}

void ZOLDlgProdContextManager::ReadProductFile(const ZOLDMInstance& scope, const ZOLUnicodeString& context,
                                               ZOLListValZOLDMInstance& products, int& index) {
    index = 0;
    ZOLDMInstance last;
    for (const ProductHistoryEntry& entry : ProductHistoryFile::GetFileInfo(HistoryPath(scope))) {
        const ZOLDMInstance product("", entry.leadingString, "PART_LIST", entry.xcoid);
        if (entry.IsNumbered())
            products.Append(product);
        else if (entry.key == context || last.GetCoid() == 0)
            last = product;
    }
    if (last.GetCoid() > 0)
        index = products.Locate(last);
}

void ZOLDlgProdContextManager::WriteProductFile(const ZOLDMInstance& scope, const ZOLUnicodeString& context,
                                                const ZOLDMInstance& current,
                                                const ZOLListValZOLDMInstance& products) {
    const std::string path = HistoryPath(scope);
    const ProductHistory before = ProductHistoryFile::GetFileInfo(path);
    const bool hasCurrent = current.GetCoid() > 0;
    ProductHistory entries = before;
    std::erase_if(entries, [&](const ProductHistoryEntry& entry) {
        return entry.IsNumbered() || (hasCurrent && entry.key == context);
    });
    int place = 1;
    if (hasCurrent) {
        entries.push_back(EntryOf(context, current));
        if (products.Locate(current) == 0)
            entries.push_back(EntryOf(ProductHistoryEntry::KeyOf(place++), current));
    }
    for (const ZOLDMInstance& product : products)
        if (place <= MostInFile)
            entries.push_back(EntryOf(ProductHistoryEntry::KeyOf(place++), product));
    if (entries != before)
        ProductHistoryFile::PutFileInfo(path, entries);
}
