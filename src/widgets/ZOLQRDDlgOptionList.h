#pragma once

#include "model/ZOLDMInstance.h"
#include "service/ZOLIQrdConfigItem.h"
#include "toolkit/ZOLDlgFrame.h"
#include "values/ZOLGYRError.h"

#include <unordered_set>

class ZOLDlgCheckButton;
class ZOLDlgCombo;
class ZOLDlgContextualMenu;
class ZOLDlgEditor;
class ZOLDlgLabel;
class ZOLDlgMultiList;
class ZOLDlgProdContextManager;
class ZOLDlgPushItem;
class ZOLDlgSelectorList;

// ZOLQRDDlgOptionList: the frame in which a user picks options of a dictionary. Options are terms with name,
// category, description and used mark; a name has one line, whatever categories it comes from, and what
// happens to a line happens to all terms of its name.
//
// The choice to see used options only, the texts of the filter and the clipboard belong to all panels of the
// process: a new panel begins with those of the last one. The filter begins with "*", which shows everything.
class ZOLQRDDlgOptionList : public ZOLDlgFrame {
    ZOL_META_OBJECT(ZOLQRDDlgOptionList, ZOLDlgFrame)
public:
    // What a panel shows besides its list; added up to its style.
    enum Piece {
        SelectedPiece = 1,     // a second list: what is selected in one list goes to the other
        SortPiece = 2,         // buttons that sort by name and by category
        FilterPiece = 4,       // the filter, and the choice of used options
        AssemblyUsedPiece = 8, // with the filter and an instance: the choice of options used in its assembly
        ProductContextPiece = 16 // the user chooses the product
    };

    // instance: the product whose dictionary and assembly are meant, copied; may be null. Nothing is listed
    // before one of the operations below, but with a context of products that knows one.
    ZOLQRDDlgOptionList(ZOLDialog* parent, const ZOLString& name, const int iStyle, ZOLDMInstance* instance);

    ZOLString GetResourceFilename(int level) const override;

    // The content of the lists, whatever is shown of it: replaces the list given.
    void GetSelected(ZOLListValZOLQRDCfgEffectivity& selected) const { selected = _selected; }
    void GetAvailable(ZOLListValZOLQRDCfgEffectivity& available) const { available = _allAvailable; }
    // The clipboard of all panels.
    void GetOptionsToPaste(ZOLListValZOLQRDCfgEffectivity& options) const { options = _OptToPaste; }
    // The terms of the lines that are selected in the available list, in the order of the lines; the first
    // term of a name that stands for several.
    ZOLListValZOLQRDCfgEffectivity GetAvailableSelect() const;

    // What this panel sends to its father:
    //   select  the user selected lines of the available list; not where there is a second list
    //   paste   the user wants to paste: GetOptionsToPaste tells what; the father does it
    //   menu    the contextual menu is about to open: the father may add to GetContextualMenu()
    ZOLNotification* GetSelectOptionNotification() const;
    ZOLNotification* GetPasteOptionNotification() const { return &_pasteNotification; }
    ZOLNotification* GetMenuDisplayNotification() const { return &_menuDisplayNotification; }

    // Nothing is selected in either list from now on; sends nothing.
    void DeselectAll();

    // Lists the options of a product's dictionary, as the site lets them be seen, and makes it the product of
    // this panel. A failure is shown, and the lists stay. The second form selects options besides (see
    // SetSelected).
    void UpdateDictionary(const ZOLDMInstance& product);
    void UpdateDictionary(const ZOLDMInstance& product, const ZOLListValZOLQRDCfgEffectivity& selected);
    // Lists these options, those that the filter lets pass; an available one whose name is among the selected
    // goes to these. iNotRemovable: non-zero for selected options that the user cannot take out again
    // (40010).
    void SetList(const ZOLListValZOLQRDCfgEffectivity& available,
                 const ZOLListValZOLQRDCfgEffectivity& selected, const int& iNotRemovable);
    // Selects exactly these: those that are available go over with their category and description, the others
    // are added as they are given.
    void SetSelected(const ZOLListValZOLQRDCfgEffectivity& selected, const int& iNotRemovable);
    // The selected list is titled as one whose options count all together.
    void SetANDSelectedTitle();

    // The dictionary of the panel's product; a null handle without one.
    ZOLIQrdConfigItem_var GetCurrentDictionary() const;
    // Where fathers add items of their own.
    ZOLDlgContextualMenu* GetContextualMenu() const { return _menu; }
    // The list of available options, for fathers that give it another size.
    ZOLDlgMultiList* GetAvailableList() const { return _availableList; }

private:
    using Terms = ZOLListValZOLQRDCfgEffectivity;

    bool Has(Piece piece) const { return (_style & piece) != 0; }

    // Building. What the style leaves out is null.
    void Build(const ZOLDMInstance* instance);
    void BuildContext(ZOLDialog* holder);
    void BuildSort(ZOLDialog* holder);
    void BuildFilter(ZOLDialog* holder, bool hasAssembly);
    void BuildAvailable(ZOLDialog* holder);
    void BuildSelected(ZOLDialog* holder);
    ZOLUnicodeString TextOf(const char* key) const;

    // Callbacks.
    void ChangeDictionaryCB(ZOLCommand* sender, ZOLNotification* notification, void* data);
    void SelectOptionCB(ZOLCommand* sender, ZOLNotification* notification, void* data);
    void UnselectOptionCB(ZOLCommand* sender, ZOLNotification* notification, void* data);
    void SortByNameCB(ZOLCommand* sender, ZOLNotification* notification, void* data);
    void SortByTypeCB(ZOLCommand* sender, ZOLNotification* notification, void* data);
    void FilterCB(ZOLCommand* sender, ZOLNotification* notification, void* data);
    void CheckUsedOnlyCB(ZOLCommand* sender, ZOLNotification* notification, void* data);
    void CheckAssemblyUsedOnlyCB(ZOLCommand* sender, ZOLNotification* notification, void* data);
    void MenuDisplayCB(ZOLCommand* sender, ZOLNotification* notification, void* data);
    void MenuCopyCB(ZOLCommand* sender, ZOLNotification* notification, void* data);
    void MenuPasteCB(ZOLCommand* sender, ZOLNotification* notification, void* data);

    // What the operations that fill the panel have in common, without showing it. TakeDictionary answers
    // false, with a code, when the dictionary cannot be read; nothing has changed then.
    bool TakeDictionary(const ZOLDMInstance& product, const Terms& selected, ZOLGYRError& error);
    void Take(const Terms& available, const Terms& selected, int isNotRemovable);
    // Lets the site replace the options; error: what is to be shown of a library that cannot be used.
    void UserExitForOptList(Terms& options, ZOLGYRError& error) const;
    // Appends what passes and is not there yet.
    void SyntaxicFilter(const Terms& from, Terms& to) const;
    // Writes both lists anew, the available one from that line on, then shows the error. Nothing may follow a
    // call: the panel may be gone.
    void Display(int firstLine = 0, ZOLGYRError error = {});
    void ShowSelected();
    void ShowAvailable();
    bool IsLeftOut(const ZOLQRDCfgEffectivity& term) const;
    // The column at `position`, that of names or categories, changes places with the other when it is not the
    // first.
    void BringToFirstColumn(int& position, int& other);
    void Transfer(const ZOLDlgSelectorList& list, Terms& from, Terms& to);
    void Transfer(const ZOLDlgMultiList& list, Terms& from, Terms& to);
    void TransferNames(const std::unordered_set<ZOLUnicodeString>& names, Terms& from, Terms& to);
    // Finds out what the assembly uses, once, when that is chosen. A failure takes the choice back.
    void LoadAssemblyUsed(ZOLGYRError& error);

    static inline int _OnlyUsed = 0;
    static inline ZOLUnicodeString _NameFilter = "*";
    static inline ZOLUnicodeString _TypeFilter = "*";
    static inline Terms _OptToPaste;

    int _style;
    Terms _selected;
    Terms _allAvailable;
    Terms _filtered;
    Terms _displayed; // by line of the available list, from 1
    std::unordered_set<ZOLQRDCfgEffectivity> _assemblyUsed;
    Terms _notRemovable;
    bool _knowsAssemblyUsed = false;
    bool _isAssemblyOnly = false;
    ZOLDMInstance _product;
    int _namePosition = 0; // columns of the available list
    int _typePosition = 1;

    ZOLDlgProdContextManager* _context = nullptr;
    ZOLDlgEditor* _nameFilterEditor = nullptr;
    ZOLDlgEditor* _typeFilterEditor = nullptr;
    ZOLDlgCombo* _addReplace = nullptr;
    ZOLDlgCheckButton* _usedOnly = nullptr;
    ZOLDlgCheckButton* _assemblyUsedOnly = nullptr;
    ZOLDlgMultiList* _availableList = nullptr;
    ZOLDlgContextualMenu* _menu = nullptr;
    ZOLDlgPushItem* _copyItem = nullptr;
    ZOLDlgPushItem* _pasteItem = nullptr;
    ZOLDlgLabel* _selectedLabel = nullptr;
    ZOLDlgSelectorList* _selectedList = nullptr;
    mutable ZOLNotification _pasteNotification;
    mutable ZOLNotification _menuDisplayNotification;
};
