#pragma once

namespace trellis {

// ListScroll: which rows of a list are in sight, by their positions on the screen. The first is always such
// that a page is full if there are enough rows.
class ListScroll {
public:
    // How many rows there are, and how many have room as a whole (at least 1).
    void SetCount(int count);
    void SetPage(int page);
    int Count() const { return _count; }
    int Page() const { return _page; }

    int First() const { return _first; }
    // Brings the position as near to the top as there are rows.
    void SetFirst(int position);
    void ScrollBy(int rows) { SetFirst(_first + rows); }
    // Scrolls no farther than needed for the position to be in sight.
    void Reveal(int position);

private:
    int _count = 0;
    int _page = 1;
    int _first = 0;
};

} // namespace trellis
