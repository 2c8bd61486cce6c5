#include "toolkit/RowSelection.h"

#include <algorithm>

namespace trellis {

bool RowSelection::Has(int row) const {
    return std::binary_search(_rows.begin(), _rows.end(), row);
}

void RowSelection::Set(const std::vector<int>& rows, int lineCount) {
    std::vector<int> kept;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(kept),
                 [lineCount](int row) { return row >= 0 && row < lineCount; });
    if (_mode == One && kept.size() > 1)
        kept.resize(1);
    std::sort(kept.begin(), kept.end());
    kept.erase(std::unique(kept.begin(), kept.end()), kept.end());
    _rows = std::move(kept);
}

void RowSelection::RowAdded(int row) {
    for (int& selected : _rows)
        if (selected >= row)
            ++selected;
}

void RowSelection::RowRemoved(int row) {
    std::erase(_rows, row);
    for (int& selected : _rows)
        if (selected > row)
            --selected;
}

} // namespace trellis
