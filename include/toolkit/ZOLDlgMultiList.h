#pragma once

#include "toolkit/ZOLDlgList.h"

// ZOLDlgMultiList: a list of rows with several columns. Columns count from 0 by position; a column that the
// user drags elsewhere keeps its number.
class TRELLIS_API ZOLDlgMultiList : public ZOLDlgList {
    ZOL_META_OBJECT(ZOLDlgMultiList, ZOLDlgList)
public:
    ZOLDlgMultiList(ZOLDialog* father, const ZOLString& name, unsigned long style = 0);

    // The user chose a row with a double click or Return.
    ZOLNotification* GetListActivateNotification() { return &_activateNotification; }

    // The first `count` columns get these titles; missing columns come into being, with a width of 10
    // characters.
    void SetColumnTitles(int count, const ZOLUnicodeString* titles);
    ZOLUnicodeString GetColumnTitle(int column) const;
    int GetColumnCount() const { return static_cast<int>(_columns.size()); }
    // Sets one cell.
    //   ZOLNewLine     row -1: the last row if this column was never set there, else a new row; an explicit row
    //                  adds empty rows up to it
    //   ZOLChangeLine  a cell of a row that is there; else nothing happens
    void SetColumnItem(int column, const ZOLUnicodeString& text, int row = -1, int mode = ZOLNewLine);
    // 1 and the text (empty for a cell that was never set), or 0 when there is no such row or column.
    int GetColumnItem(int column, ZOLUnicodeString& text, int row) const;
    void SetColumnTextWidth(int column, int characters);
    int GetColumnTextWidth(int column) const;
    // ZOLShown or ZOLHidden.
    void SetColumnVisibility(int column, int visibility);
    int GetColumnVisibility(int column) const;
    // Puts the columns in another order: position i takes the column that was at order[i]. From then on the
    // column numbers of all operations are the new positions. No permutation of 0..count-1 is a breach.
    void ReorderColumns(int count, const int* order);

    // How many columns and lines the list shows without scrolling; 0 columns, as at first: all.
    void SetVisibleColumnCount(int count);
    void SetVisibleLineCount(int count);
    int GetVisibleColumnCount() const { return _visibleColumns; }
    int GetVisibleLineCount() const override { return _visibleLines; }
    int GetLineCount() const override { return static_cast<int>(_rows.size()); }
    // Takes out one row, or all for -1. The rows behind it move up at once; a selected row leaves the
    // selection, and nothing is sent.
    void ClearLine(int row = -1);
    // The row at the top of what is shown, cut to the rows that there are.
    void SetFirstLine(int row);
    int GetFirstLine() const { return _firstLine; }

    ZOLUnicodeString GetRowText(int row) const override;
    // Selects the row, then activates it, unless the list lost it meanwhile.
    ZOLUserResult UserActivate(int row);

    const char* GetKind() const override;
    void DescribeTo(trellis::DialogDescription& description) const override;
    trellis::LayoutSize GetNaturalSize(const trellis::TextMeasure& measure) const override;

private:
    struct Column {
        ZOLUnicodeString title;
        int width = 10;
        bool isVisible = true;
    };
    struct Cell {
        ZOLUnicodeString text;
        bool isSet = false;
    };
    using Row = std::vector<Cell>;

    bool HasColumn(int column) const { return column >= 0 && column < GetColumnCount(); }
    Column& ColumnAt(int column);
    int RowForNewItem(int column) const;

    std::vector<Column> _columns;
    std::vector<Row> _rows;
    int _visibleColumns = 0;
    int _visibleLines = 10;
    int _firstLine = 0;
    ZOLNotification _activateNotification;
};
