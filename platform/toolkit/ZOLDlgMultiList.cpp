#include "toolkit/ZOLDlgMultiList.h"

#include "toolkit/CallbackScope.h"
#include "values/ContractBreach.h"

#include <algorithm>

ZOLDlgMultiList::ZOLDlgMultiList(ZOLDialog* father, const ZOLString& name, unsigned long style)
    : ZOLDlgList(father, name, style), _activateNotification("ZOLDlgListActivateNotification") {}

ZOLDlgMultiList::Column& ZOLDlgMultiList::ColumnAt(int column) {
    const auto position = static_cast<std::size_t>(column);
    if (position >= _columns.size())
        _columns.resize(position + 1);
    return _columns[position];
}

void ZOLDlgMultiList::SetColumnTitles(int count, const ZOLUnicodeString* titles) {
    for (int column = 0; column < count; ++column)
        ColumnAt(column).title = titles[column];
    MarkChanged();
}

ZOLUnicodeString ZOLDlgMultiList::GetColumnTitle(int column) const {
    return HasColumn(column) ? _columns[static_cast<std::size_t>(column)].title : ZOLUnicodeString();
}

// The row that a text without a row number goes to: cells of one new row are set column after column.
int ZOLDlgMultiList::RowForNewItem(int column) const {
    if (_rows.empty())
        return 0;
    const Row& last = _rows.back();
    const auto position = static_cast<std::size_t>(column);
    const bool isTaken = position < last.size() && last[position].isSet;
    return isTaken ? GetLineCount() : GetLineCount() - 1;
}

void ZOLDlgMultiList::SetColumnItem(int column, const ZOLUnicodeString& text, int row, int mode) {
    if (column < 0 || row < -1 || (mode == ZOLChangeLine && !HasRow(row)))
        return;
    const int target = row == -1 ? RowForNewItem(column) : row;
    ColumnAt(column);
    if (!HasRow(target))
        _rows.resize(static_cast<std::size_t>(target) + 1);
    Row& cells = _rows[static_cast<std::size_t>(target)];
    const auto position = static_cast<std::size_t>(column);
    if (position >= cells.size())
        cells.resize(position + 1);
    cells[position] = {text, true};
    MarkChanged();
}

int ZOLDlgMultiList::GetColumnItem(int column, ZOLUnicodeString& text, int row) const {
    if (!HasColumn(column) || !HasRow(row))
        return 0;
    const Row& cells = _rows[static_cast<std::size_t>(row)];
    const auto position = static_cast<std::size_t>(column);
    text = position < cells.size() ? cells[position].text : ZOLUnicodeString();
    return 1;
}

void ZOLDlgMultiList::SetColumnTextWidth(int column, int characters) {
    if (column < 0)
        return;
    ColumnAt(column).width = characters;
    MarkChanged();
}

int ZOLDlgMultiList::GetColumnTextWidth(int column) const {
    return HasColumn(column) ? _columns[static_cast<std::size_t>(column)].width : 0;
}

void ZOLDlgMultiList::SetColumnVisibility(int column, int visibility) {
    if (column < 0)
        return;
    ColumnAt(column).isVisible = visibility == ZOLShown;
    MarkChanged();
}

int ZOLDlgMultiList::GetColumnVisibility(int column) const {
    return HasColumn(column) && _columns[static_cast<std::size_t>(column)].isVisible ? ZOLShown : ZOLHidden;
}

void ZOLDlgMultiList::ReorderColumns(int count, const int* order) {
    std::vector<int> sorted(order, order + std::max(count, 0));
    std::sort(sorted.begin(), sorted.end());
    for (int i = 0; i < count; ++i)
        if (sorted[static_cast<std::size_t>(i)] != i)
            ContractBreach("ZOLDlgMultiList::ReorderColumns", "no permutation of the columns");

    const auto size = static_cast<std::size_t>(std::max(count, GetColumnCount()));
    _columns.resize(size);
    const std::vector<Column> columns = _columns;
    for (int i = 0; i < count; ++i)
        _columns[static_cast<std::size_t>(i)] = columns[static_cast<std::size_t>(order[i])];
    for (Row& row : _rows) {
        row.resize(size);
        const Row cells = row;
        for (int i = 0; i < count; ++i)
            row[static_cast<std::size_t>(i)] = cells[static_cast<std::size_t>(order[i])];
    }
    MarkChanged();
}

void ZOLDlgMultiList::SetVisibleColumnCount(int count) {
    _visibleColumns = count;
    MarkChanged();
}

void ZOLDlgMultiList::SetVisibleLineCount(int count) {
    _visibleLines = count;
    MarkChanged();
}

void ZOLDlgMultiList::ClearLine(int row) {
    if (row == -1) {
        _rows.clear();
        Selection().Clear();
    } else if (HasRow(row)) {
        _rows.erase(_rows.begin() + row);
        Selection().RowRemoved(row);
    }
    SetFirstLine(_firstLine);
}

void ZOLDlgMultiList::SetFirstLine(int row) {
    _firstLine = std::clamp(row, 0, std::max(GetLineCount() - 1, 0));
    MarkChanged();
}

ZOLUnicodeString ZOLDlgMultiList::GetRowText(int row) const {
    ZOLUnicodeString text;
    GetColumnItem(0, text, row);
    return text;
}

ZOLUserResult ZOLDlgMultiList::UserActivate(int row) {
    const trellis::CallbackScope scope;
    const trellis::WeakCommand self(this);
    if (const ZOLUserResult selected = UserSelect({row}); selected != ZOLUserResult::Done)
        return selected;
    if (self.Get() && IsOnScreen() && HasRow(row))
        SendUserNotification(_activateNotification);
    return ZOLUserResult::Done;
}

const char* ZOLDlgMultiList::GetKind() const {
    return "list";
}
