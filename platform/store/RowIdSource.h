#pragma once

#include <cstdint>

namespace trellis {

// RowIdSource: keys for new rows, made in memory so that objects can refer to each other before they are stored.
// A key is 41 bits of milliseconds since 2020 and 22 bits that begin at random and count up; keys of one process
// grow in order of creation. Two processes meet on one key only when both make thousands of objects in the same
// millisecond; the primary key then refuses the later save.
class RowIdSource {
public:
    RowIdSource();
    std::int64_t Next();

private:
    std::int64_t _last = 0;
};

} // namespace trellis
