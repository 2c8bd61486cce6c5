#pragma once

#include <map>
#include <vector>

namespace trellis {

class ListContent;

// A column on the screen.
struct PlacedColumn {
    int column; // of the model
    int x;      // from the left end of the list, in pixels
    int width;
};

// ListColumns: where the columns of a list stand and how wide they are. What the user drags is a matter of
// display alone: columns keep their numbers in the model.
class ListColumns {
public:
    // Has to run after every change of the list or of its room. The last column takes the room that is left.
    //   characterWidth, padding  pixels of a character, and left and right of each text
    void Update(const ListContent& content, int characterWidth, int padding, int room);

    // From left to right, hidden columns left out.
    const std::vector<PlacedColumn>& Placed() const { return _placed; }
    int TotalWidth() const;
    // Positions in Placed(); -1 for none. A border is met within a few pixels on both sides of the right end
    // of a column.
    int PositionAt(int x) const;
    int BorderAt(int x) const;
    // Before which position a column that is dropped at x comes to stand: 0 to the number of columns.
    int DropPositionAt(int x) const;

    // The user drags the column at `position` before the one that stands at `before` now; positions that are
    // not there change nothing. Update shows the result, and that of Resize.
    void Move(int position, int before);
    // The user drags a border; never narrower than a text's padding and one character.
    void Resize(int position, int width);

private:
    std::vector<int> _order;           // columns of the model, hidden ones too
    std::map<int, int> _draggedWidths; // by column of the model
    std::vector<PlacedColumn> _placed;
    int _narrowest = 1;
};

} // namespace trellis
