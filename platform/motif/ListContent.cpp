#include "motif/ListContent.h"

#include "toolkit/ZOLDlgMultiList.h"

namespace trellis {

ListContent::ListContent(const ZOLDlgList& list)
    : _list(list), _columns(dynamic_cast<const ZOLDlgMultiList*>(&list)) {}

int ListContent::RowCount() const {
    return _list.GetLineCount();
}

int ListContent::ColumnCount() const {
    return _columns ? _columns->GetColumnCount() : 1;
}

ZOLUnicodeString ListContent::Title(int column) const {
    return _columns ? _columns->GetColumnTitle(column) : ZOLUnicodeString();
}

bool ListContent::HasTitles() const {
    for (int column = 0; column < ColumnCount(); ++column)
        if (IsShown(column) && !Title(column).IsEmpty())
            return true;
    return false;
}

int ListContent::Characters(int column) const {
    return _columns ? _columns->GetColumnTextWidth(column) : 0;
}

bool ListContent::IsShown(int column) const {
    return !_columns || _columns->GetColumnVisibility(column) == ZOLShown;
}

ZOLUnicodeString ListContent::Text(int row, int column) const {
    if (!_columns)
        return _list.GetRowText(row);
    ZOLUnicodeString text;
    _columns->GetColumnItem(column, text, row);
    return text;
}

bool ListContent::IsSelected(int row) const {
    return _list.IsSelect(row) != 0;
}

bool ListContent::IsSensitive() const {
    return _list.IsSensitive();
}

bool ListContent::AllowsSeveral() const {
    return _list.AllowsSeveral();
}

} // namespace trellis
