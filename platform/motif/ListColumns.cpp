#include "motif/ListColumns.h"

#include "motif/ListContent.h"

#include <algorithm>
#include <cstdlib>

namespace trellis {

namespace {

constexpr int BorderReach = 4; // pixels on each side of a border

} // namespace

void ListColumns::Update(const ListContent& content, int characterWidth, int padding, int room) {
    const int count = content.ColumnCount();
    std::erase_if(_order, [count](int column) { return column >= count; });
    std::erase_if(_draggedWidths, [count](const auto& width) { return width.first >= count; });
    for (int column = static_cast<int>(_order.size()); column < count; ++column)
        _order.push_back(column);

    _narrowest = characterWidth + 2 * padding;
    _placed.clear();
    int x = 0;
    for (const int column : _order) {
        if (!content.IsShown(column))
            continue;
        const auto dragged = _draggedWidths.find(column);
        const int width = dragged != _draggedWidths.end()
                              ? dragged->second
                              : content.Characters(column) * characterWidth + 2 * padding;
        _placed.push_back({column, x, width});
        x += width;
    }
    if (!_placed.empty() && x < room)
        _placed.back().width += room - x;
}

int ListColumns::TotalWidth() const {
    return _placed.empty() ? 0 : _placed.back().x + _placed.back().width;
}

int ListColumns::PositionAt(int x) const {
    for (std::size_t i = 0; i < _placed.size(); ++i)
        if (x >= _placed[i].x && x < _placed[i].x + _placed[i].width)
            return static_cast<int>(i);
    return -1;
}

int ListColumns::BorderAt(int x) const {
    for (std::size_t i = 0; i < _placed.size(); ++i)
        if (std::abs(x - _placed[i].x - _placed[i].width) <= BorderReach)
            return static_cast<int>(i);
    return -1;
}

int ListColumns::DropPositionAt(int x) const {
    const auto behind = std::find_if(_placed.begin(), _placed.end(), [x](const PlacedColumn& column) {
        return x < column.x + column.width / 2;
    });
    return static_cast<int>(behind - _placed.begin());
}

void ListColumns::Move(int position, int before) {
    const int count = static_cast<int>(_placed.size());
    if (position < 0 || position >= count || before < 0 || before > count || before == position)
        return;
    const int column = _placed[static_cast<std::size_t>(position)].column;
    const int next = before == count ? -1 : _placed[static_cast<std::size_t>(before)].column;
    std::erase(_order, column);
    _order.insert(std::find(_order.begin(), _order.end(), next), column);
}

void ListColumns::Resize(int position, int width) {
    if (position < 0 || position >= static_cast<int>(_placed.size()))
        return;
    _draggedWidths[_placed[static_cast<std::size_t>(position)].column] = std::max(width, _narrowest);
}

} // namespace trellis
