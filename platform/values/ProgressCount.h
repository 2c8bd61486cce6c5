#pragma once

#include "values/ProgressCB.h"

#include <algorithm>
#include <utility>

namespace trellis {

// ProgressCount: counts one piece of work, and tells about a hundred times how far it is, so that telling
// costs nothing beside the work.
class ProgressCount {
public:
    // The callback must outlive it.
    ProgressCount(const ProgressCB& progress, ZOLUnicodeString text, std::size_t of)
        : _progress(progress),
          _text(std::move(text)),
          _of(static_cast<std::int64_t>(of)),
          _stride(std::max<std::int64_t>(1, _of / 100)) {}

    // One more is done.
    void Step() {
        ++_done;
        if (_progress && (_done % _stride == 0 || _done == _of))
            _progress(_text, _done, _of);
    }

private:
    const ProgressCB& _progress;
    ZOLUnicodeString _text;
    std::int64_t _of;
    std::int64_t _stride;
    std::int64_t _done = 0;
};

} // namespace trellis
