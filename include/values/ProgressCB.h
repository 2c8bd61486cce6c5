#pragma once

#include "values/ZOLUnicodeString.h"

#include <cstdint>
#include <functional>

namespace trellis {

// ProgressCB: how long work tells how far it is: what it is doing, how many things of that are done, and of
// how many. Each piece of work ends with a call in which both numbers are the same. The callee only shows: it
// starts nothing, and the work goes on when it returns. An empty one is not called.
using ProgressCB = std::function<void(const ZOLUnicodeString& text, std::int64_t done, std::int64_t of)>;

} // namespace trellis
