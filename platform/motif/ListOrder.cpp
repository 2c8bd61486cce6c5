#include "motif/ListOrder.h"

#include "motif/ListContent.h"

#include <glib.h>

#include <algorithm>
#include <numeric>

namespace trellis {

namespace {

// A text that compares by its bytes as the texts shall compare.
std::string SortKey(const std::string& text) {
    gchar* valid = g_utf8_make_valid(text.data(), static_cast<gssize>(text.size()));
    gchar* folded = g_utf8_casefold(valid, -1);
    gchar* key = g_utf8_collate_key_for_filename(folded, -1);
    std::string result = key;
    g_free(key);
    g_free(folded);
    g_free(valid);
    return result;
}

} // namespace

void ListOrder::SortBy(int column) {
    const bool isAgain = column == _column;
    _column = isAgain && _isDescending ? -1 : column;
    _isDescending = isAgain && !_isDescending;
    _isStale = true;
}

void ListOrder::Update(const ListContent& content) {
    _count = content.RowCount();
    if (_column >= content.ColumnCount())
        _column = -1;
    std::vector<std::string> texts;
    if (_column >= 0) {
        texts.reserve(static_cast<std::size_t>(_count));
        for (int row = 0; row < _count; ++row)
            texts.push_back(content.Text(row, _column).Bytes());
    }
    if (!_isStale && texts == _texts)
        return;
    _texts = std::move(texts);
    _isStale = false;
    Sort();
}

void ListOrder::Sort() {
    _rows.resize(_texts.size());
    std::iota(_rows.begin(), _rows.end(), 0);
    std::vector<std::string> keys;
    keys.reserve(_texts.size());
    for (const std::string& text : _texts)
        keys.push_back(SortKey(text));
    std::stable_sort(_rows.begin(), _rows.end(), [&](int a, int b) {
        const std::string& keyA = keys[static_cast<std::size_t>(a)];
        const std::string& keyB = keys[static_cast<std::size_t>(b)];
        return _isDescending ? keyB < keyA : keyA < keyB;
    });
    _positions.resize(_rows.size());
    for (std::size_t position = 0; position < _rows.size(); ++position)
        _positions[static_cast<std::size_t>(_rows[position])] = static_cast<int>(position);
}

int ListOrder::RowAt(int position) const {
    if (position < 0 || position >= _count)
        return -1;
    return _rows.empty() ? position : _rows[static_cast<std::size_t>(position)];
}

int ListOrder::PositionOf(int row) const {
    if (row < 0 || row >= _count)
        return -1;
    return _positions.empty() ? row : _positions[static_cast<std::size_t>(row)];
}

} // namespace trellis
