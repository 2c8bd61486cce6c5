#pragma once

#include <optional>
#include <vector>

namespace trellis {

class ListOrder;

enum class ListKey { Up, Down, PageUp, PageDown, Home, End };

// What is held during a gesture.
struct ListModifiers {
    bool extends = false; // Shift: from the anchor to here
    bool adds = false;    // Ctrl: the others stay as they are
};

// ListCursor: where the keyboard stands in a list, and which rows a gesture selects. Rows are those of the
// model, so that sorting takes the cursor along; ranges are those that the user sees.
//
// Each gesture moves the cursor and answers the rows that are to be selected; nothing when the selection stays.
// In a list of one row every move selects, and no gesture takes the selection away.
class ListCursor {
public:
    using Selection = std::optional<std::vector<int>>;

    explicit ListCursor(bool allowsSeveral) : _allowsSeveral(allowsSeveral) {}

    // -1 before the first gesture, and in an empty list.
    int Row() const { return _row; }
    // After a change of the rows; what was selected by code takes the cursor.
    void Follow(const ListOrder& order, const std::vector<int>& selected);

    Selection Click(int position, ListModifiers modifiers, const ListOrder& order,
                    const std::vector<int>& selected);
    Selection Move(ListKey key, ListModifiers modifiers, int page, const ListOrder& order);
    Selection MoveTo(int position, ListModifiers modifiers, const ListOrder& order);
    // Space: in a list of several takes the row at the cursor in or out, else selects it.
    Selection Toggle(const std::vector<int>& selected) const;
    // Ctrl with A; nothing in a list of one row.
    Selection All(const ListOrder& order) const;

private:
    std::vector<int> Range(int position, const ListOrder& order) const;

    bool _allowsSeveral;
    int _row = -1;
    int _anchor = -1; // row at which a range begins
};

} // namespace trellis
