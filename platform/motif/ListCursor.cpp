#include "motif/ListCursor.h"

#include "motif/ListOrder.h"

#include <algorithm>

namespace trellis {

namespace {

std::vector<int> Toggled(std::vector<int> rows, int row) {
    if (std::erase(rows, row) == 0)
        rows.push_back(row);
    return rows;
}

} // namespace

void ListCursor::Follow(const ListOrder& order, const std::vector<int>& selected) {
    if (_row >= order.Count())
        _row = order.Count() - 1;
    if (_anchor >= order.Count())
        _anchor = _row;
    if (selected.size() == 1 && (_row < 0 || !_allowsSeveral))
        _row = _anchor = selected.front();
}

std::vector<int> ListCursor::Range(int position, const ListOrder& order) const {
    const int anchor = std::max(order.PositionOf(_anchor), 0);
    std::vector<int> rows;
    for (int i = std::min(anchor, position); i <= std::max(anchor, position); ++i)
        rows.push_back(order.RowAt(i));
    return rows;
}

ListCursor::Selection ListCursor::Click(int position, ListModifiers modifiers, const ListOrder& order,
                                        const std::vector<int>& selected) {
    const int row = order.RowAt(position);
    if (row < 0)
        return std::nullopt;
    if (!_allowsSeveral || !modifiers.adds || modifiers.extends)
        return MoveTo(position, {modifiers.extends, false}, order);
    _row = _anchor = row;
    return Toggled(selected, row);
}

ListCursor::Selection ListCursor::Move(ListKey key, ListModifiers modifiers, int page,
                                       const ListOrder& order) {
    const int last = order.Count() - 1;
    const int from = order.PositionOf(_row);
    const int leap = std::max(page - 1, 1);
    // The first key in a list without a cursor goes to an end.
    const int start = from < 0 ? (key == ListKey::Up || key == ListKey::PageUp ? last + 1 : -1) : from;
    int to = start;
    switch (key) {
    case ListKey::Up:
        to = start - 1;
        break;
    case ListKey::Down:
        to = start + 1;
        break;
    case ListKey::PageUp:
        to = start - leap;
        break;
    case ListKey::PageDown:
        to = start + leap;
        break;
    case ListKey::Home:
        to = 0;
        break;
    case ListKey::End:
        to = last;
        break;
    }
    return MoveTo(std::clamp(to, 0, std::max(last, 0)), modifiers, order);
}

ListCursor::Selection ListCursor::MoveTo(int position, ListModifiers modifiers, const ListOrder& order) {
    const int row = order.RowAt(position);
    if (row < 0)
        return std::nullopt;
    const bool isRange = _allowsSeveral && modifiers.extends;
    _row = row;
    if (!isRange || _anchor < 0)
        _anchor = row;
    if (isRange)
        return Range(position, order);
    if (_allowsSeveral && modifiers.adds)
        return std::nullopt;
    return std::vector<int>{row};
}

ListCursor::Selection ListCursor::Toggle(const std::vector<int>& selected) const {
    if (_row < 0)
        return std::nullopt;
    return _allowsSeveral ? Toggled(selected, _row) : std::vector<int>{_row};
}

ListCursor::Selection ListCursor::All(const ListOrder& order) const {
    if (!_allowsSeveral || order.Count() == 0)
        return std::nullopt;
    std::vector<int> rows;
    for (int position = 0; position < order.Count(); ++position)
        rows.push_back(order.RowAt(position));
    return rows;
}

} // namespace trellis
