#pragma once

#include "model/ZOLDMInstance.h"
#include "toolkit/ZOLDlgFrame.h"

class ZOLDlgContextualMenu;
class ZOLDlgLabel;
class ZOLDlgPushItem;

// ZOLDlgProdContextManager: shows the current product of a panel and lets the user choose another, pasted from the
// clipboard or used before.
//
// The products used before are common to all frames of the process: the one used last comes up first where a frame
// offers it too. A frame that is given no products takes those of a file of its scope, if the host keeps products
// (ZOLDMDlgResultPanel), and writes that file again when it goes.
class ZOLDlgProdContextManager : public ZOLDlgFrame {
    ZOL_META_OBJECT(ZOLDlgProdContextManager, ZOLDlgFrame)
public:
    // The father is told of each change of the product.
    //   scope    the product whose file keeps the history
    //   context  what the frame is used for, such as "OP": each context has a last product of its own in the file
    ZOLDlgProdContextManager(ZOLDialog* father, const ZOLDMInstance& scope,
                             const ZOLListValZOLDMInstance& products, const ZOLUnicodeString& context);
    // Without products of its own.
    ZOLDlgProdContextManager(ZOLDialog* father, const ZOLDMInstance& scope, const ZOLUnicodeString& context);
    ~ZOLDlgProdContextManager() override;

    // Sent to the fathers when the user has chosen, and by SetProduct when it is to notify.
    ZOLNotification* GetChangeProductNotification() { return &_changeNotification; }
    // 1, or 0 and an instance of nothing while there is none.
    int GetCurrentProduct(ZOLDMInstance& product) const;
    // The product that became current last in any frame; 0 and an instance of nothing when a frame began without one
    // since.
    static int GetLastUsedProduct(ZOLDMInstance& product);

    // Gives the frame other products, of which the one used last becomes current, else the first.
    //   notify  non-zero: the father is told, also when there is no product now
    void SetProduct(const ZOLListValZOLDMInstance& products, int notify);

    // What the file of a scope holds: the products of the history are appended, and `index` becomes the position
    // among them, from 1, of the last product of that context, or of any other while this one has none; 0 when there
    // is no such product.
    static void ReadProductFile(const ZOLDMInstance& scope, const ZOLUnicodeString& context,
                                ZOLListValZOLDMInstance& products, int& index);
    // Replaces the history in the file of a scope by at most ten products, the current one first if it is none of
    // them, and notes that as last of the context. What was noted for other contexts stays; for this one too while
    // there is no current product.
    static void WriteProductFile(const ZOLDMInstance& scope, const ZOLUnicodeString& context,
                                 const ZOLDMInstance& current, const ZOLListValZOLDMInstance& products);

    ZOLString GetResourceFilename(int level) const override;

private:
    void Build();
    void TakeProducts(const ZOLListValZOLDMInstance& products);
    int JoinUsedProducts(int index);
    void SelectProduct(const int index);
    ZOLDlgPushItem* AddItem(const char* name, const ZOLUnicodeString& title,
                            ZOLNotificationMethod method = nullptr, void* data = nullptr);
    ZOLUnicodeString Text(const char* key) const;

    void ChangeProductCB(ZOLCommand*, ZOLNotification*, void*);
    void MenuDisplayCB(ZOLCommand*, ZOLNotification*, void*);
    void PasteNewProductCB(ZOLCommand*, ZOLNotification*, void*);
    void ResetProductsCB(ZOLCommand*, ZOLNotification*, void*);
    // The data is the position in the history.
    void SelectProductCB(ZOLCommand*, ZOLNotification*, void* position);

    ZOLUnicodeString _context;
    ZOLDMInstance _scope;
    ZOLListValZOLDMInstance _products;
    ZOLListValZOLDMInstance _history; // what the menu offers; begins with the products
    int _index = 0;                   // of the current product in the history, from 1; 0 for none
    ZOLDlgLabel* _name = nullptr;
    ZOLDlgContextualMenu* _menu = nullptr;
    int _isFileRead = 0; // 1: the file was read, and is written when the frame goes
    ZOLNotification _changeNotification{"ZOLProductChangeNotification"};

    static ZOLListValZOLDMInstance _UsedProductList;
    static int _LastUsedProductIndex; // in that list, from 1; 0 for none
};
