#pragma once

#include "values/TrellisApi.h"

#include <vector>

namespace trellis {

// RowSelection: which rows of a list are selected, ascending, each once; at most one where the list allows
// one.
class TRELLIS_API RowSelection {
public:
    enum Mode { One, Several };

    explicit RowSelection(Mode mode) : _mode(mode) {}

    Mode GetMode() const { return _mode; }
    const std::vector<int>& Rows() const { return _rows; }
    bool Has(int row) const;
    // Rows outside 0..lineCount-1 are left out; where one is allowed the first of the others counts.
    void Set(const std::vector<int>& rows, int lineCount);
    void Clear() { _rows.clear(); }
    // What happens to the numbers when a row comes in before `row`, or goes.
    void RowAdded(int row);
    void RowRemoved(int row);

private:
    Mode _mode;
    std::vector<int> _rows;
};

} // namespace trellis
