#pragma once

#include "values/ZOLUnicodeString.h"

class ZOLDlgList;
class ZOLDlgMultiList;

namespace trellis {

// ListContent: what a list shows, read from its model when it is asked: the same for lists with columns and
// for plain ones, which have one column without a title. Rows and columns are those of the model.
class ListContent {
public:
    // The list must live as long as this.
    explicit ListContent(const ZOLDlgList& list);

    int RowCount() const;
    int ColumnCount() const;
    ZOLUnicodeString Title(int column) const;
    // Whether any column that is shown has a title.
    bool HasTitles() const;
    // Width in characters; 0 for the column of a plain list, which takes all room.
    int Characters(int column) const;
    bool IsShown(int column) const;
    ZOLUnicodeString Text(int row, int column) const;
    bool IsSelected(int row) const;
    bool IsSensitive() const;
    bool AllowsSeveral() const;

private:
    const ZOLDlgList& _list;
    const ZOLDlgMultiList* _columns; // null for a plain list
};

} // namespace trellis
