#pragma once

#include <string>
#include <vector>

namespace trellis {

class ListContent;

// ListOrder: in which order the rows of a list stand on the screen. A matter of display alone: a position is
// a place on the screen, a row is the number of the model, and the model never hears of positions.
//
//   as in the model --SortBy(c)--> ascending by c --SortBy(c)--> descending by c --SortBy(c)--> as in the model
//
// Texts compare without regard to case, digits by their number ("R9" before "R10"); equal rows stay as in
// the model.
class ListOrder {
public:
    // A press on the header of a column; another column starts ascending.
    void SortBy(int column);
    // -1: rows stand as in the model.
    int SortColumn() const { return _column; }
    bool IsDescending() const { return _isDescending; }

    // Has to run after every change of the list; costs little when the texts of the column stayed.
    void Update(const ListContent& content);

    int Count() const { return _count; }
    // Both bring -1 for what is not there.
    int RowAt(int position) const;
    int PositionOf(int row) const;

private:
    void Sort();

    int _column = -1;
    bool _isDescending = false;
    bool _isStale = false; // the direction changed since the last sort
    int _count = 0;
    std::vector<std::string> _texts; // of the sort column, by row; empty without one
    std::vector<int> _rows;          // by position; empty without a sort column
    std::vector<int> _positions;     // by row
};

} // namespace trellis
