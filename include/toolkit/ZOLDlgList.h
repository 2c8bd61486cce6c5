#pragma once

#include "toolkit/RowSelection.h"
#include "toolkit/ZOLDialog.h"
#include "toolkit/ZOLListMode.h"

// ZOLDlgList: what all lists share: their selection. Rows count from 0 and keep their model numbers, however
// the user sorts the display. Style 0x40000: several rows can be selected.
class TRELLIS_API ZOLDlgList : public ZOLDialog {
    ZOL_META_OBJECT(ZOLDlgList, ZOLDialog)
public:
    // The user changed the selection.
    ZOLNotification* GetListSelectNotification() { return &_selectNotification; }

    virtual int GetLineCount() const = 0;
    // How many lines show without scrolling.
    virtual int GetVisibleLineCount() const = 0;
    // The text by which a user tells a row from others.
    virtual ZOLUnicodeString GetRowText(int row) const = 0;

    // The selected rows, ascending; the array is the list's and valid until the list changes.
    void GetSelect(const int*& rows, int& count) const;
    // The first selected row, or -1.
    int GetSelect() const;
    int GetSelectCount() const { return static_cast<int>(_selection.Rows().size()); }
    int IsSelect(int row) const { return _selection.Has(row) ? 1 : 0; }
    // Replaces the selection. Rows that do not exist are left out; a list of one row takes the first of the
    // others.
    //   notify  non-zero sends the user's notification, also when nothing changes; 0 sends nothing
    void SetSelect(const int* rows, int count, int notify = 0);
    // Sends nothing.
    void ClearSelect();

    bool AllowsSeveral() const { return _selection.GetMode() == trellis::RowSelection::Several; }
    // One gesture after which exactly these rows are selected. When they were already, nothing is sent.
    ZOLUserResult UserSelect(const std::vector<int>& rows);

    bool GrowsByClass() const override;

protected:
    ZOLDlgList(ZOLDialog* father, const ZOLString& name, unsigned long style);

    bool HasRow(int row) const { return row >= 0 && row < GetLineCount(); }
    trellis::RowSelection& Selection() { return _selection; }

private:
    trellis::RowSelection _selection;
    ZOLNotification _selectNotification;
};
