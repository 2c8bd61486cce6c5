#include "store/RowIdSource.h"

#include <algorithm>
#include <chrono>
#include <random>

namespace trellis {

namespace {

constexpr std::int64_t epoch2020 = 1577836800000; // 2020-01-01 in milliseconds since 1970
constexpr int lowBits = 22;

} // namespace

RowIdSource::RowIdSource() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const std::int64_t time = std::max<std::int64_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now).count() - epoch2020, 1);
    std::random_device random;
    _last = (time << lowBits) | static_cast<std::int64_t>(random() & ((1u << lowBits) - 1));
}

std::int64_t RowIdSource::Next() {
    return ++_last;
}

} // namespace trellis
