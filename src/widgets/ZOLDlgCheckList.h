#pragma once

#include "service/ZOLIQrdCategory.h"
#include "service/ZOLIQrdCompatibilityMatrix.h"
#include "service/ZOLIQrdConfigRule.h"
#include "toolkit/ZOLDlgDialog.h"

class ZOLDlgCheckButton;

// ZOLDlgCheckList: a list of which the user ticks what shall be taken, sorted by name.
//
// OK, Cancel and the close box are sent on to the fathers; when none of them takes the notification, the dialog hides
// and destroys itself. So a father that keeps a pointer takes all three, or keeps a weak one.
//
// A dialog holds one type of element: the operations of the other types answer empty lists, which are emptied first.
class ZOLDlgCheckList : public ZOLDlgDialog {
    ZOL_META_OBJECT(ZOLDlgCheckList, ZOLDlgDialog)
public:
    ZOLDlgCheckList(ZOLDialog* father, const ZOLUnicodeString& title, const ZOLListValZOLUnicodeString& list);
    // Of categories with one name only the first has a line; the others are ticked with it.
    ZOLDlgCheckList(ZOLDialog* father, const ZOLUnicodeString& title,
                    const ZOLListValZOLIQrdCategory_var& list);
    ZOLDlgCheckList(ZOLDialog* father, const ZOLUnicodeString& title,
                    const ZOLListValZOLIQrdConfigRule_var& list);
    ZOLDlgCheckList(ZOLDialog* father, const ZOLUnicodeString& title,
                    const ZOLListValZOLIQrdCompatibilityMatrix_var& list);

    // Ticks exactly the lines at these positions, from 1, in the order of GetList. Positions without a line do not
    // count.
    void SetChecked(const ZOLListVal<int>& positions);

    // What is ticked, line by line; behind a category follow the others of its name.
    void GetChecked(ZOLListValZOLUnicodeString& checked) const;
    void GetChecked(ZOLListValZOLIQrdCategory_var& checked) const;
    void GetChecked(ZOLListValZOLIQrdConfigRule_var& checked) const;
    void GetChecked(ZOLListValZOLIQrdCompatibilityMatrix_var& checked) const;

    // The elements of all lines in their order, then the categories without a line.
    void GetList(ZOLListValZOLUnicodeString& list) const { list = _strings; }
    void GetList(ZOLListValZOLIQrdCategory_var& list) const;
    void GetList(ZOLListValZOLIQrdConfigRule_var& list) const { list = _rules; }
    void GetList(ZOLListValZOLIQrdCompatibilityMatrix_var& list) const { list = _matrices; }

    ZOLString GetResourceFilename(int level) const override;

private:
    ZOLDlgCheckList(ZOLDialog* father, const ZOLUnicodeString& title);

    void HideDuplicates();
    // One button for each element, with the text that the function gives it.
    template <class T>
    void AddLines(const ZOLListVal<T>& elements, ZOLUnicodeString (*textOf)(const T&));
    void AddLine(ZOLUnicodeString text);
    bool IsChecked(int line) const;
    template <class T>
    void Collect(const ZOLListVal<T>& elements, ZOLListVal<T>& checked) const;
    void CheckAll(int state);

    void CheckAllCB(ZOLCommand*, ZOLNotification*, void*);
    void UncheckAllCB(ZOLCommand*, ZOLNotification*, void*);
    void CloseCB(ZOLCommand*, ZOLNotification* notification, void*);

    // All but one of the lists are empty; that one has an element for each button.
    ZOLListValZOLUnicodeString _strings;
    ZOLListValZOLIQrdCategory_var _categories;
    ZOLListValZOLIQrdCategory_var _hiddenCategories;
    ZOLRawCollint _linesOfHidden; // for each of these, the line of its name
    ZOLListValZOLIQrdConfigRule_var _rules;
    ZOLListValZOLIQrdCompatibilityMatrix_var _matrices;
    ZOLDialog* _container;
    ZOLDialog* _column = nullptr; // holds the latest buttons
    ZOLListPtr<ZOLDlgCheckButton> _buttons;
};
