#pragma once

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <numeric>
#include <vector>

// What the programs that print tables of their own measure with. Times are those of the processor, in milliseconds.
namespace trellis::bench {

using Times = std::vector<double>;

inline double Now() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

template <typename Work>
double TimeOf(Work work) {
    const double start = Now();
    work();
    return Now() - start;
}

// 0 of none, as the next.
inline double Mean(const Times& times) {
    return std::accumulate(times.begin(), times.end(), 0.0) /
           static_cast<double>(std::max<std::size_t>(times.size(), 1));
}

// The time that so many of a hundred do not exceed.
inline double Percentile(Times times, std::size_t percent) {
    std::sort(times.begin(), times.end());
    return times.empty() ? 0 : times[(times.size() - 1) * percent / 100];
}

} // namespace trellis::bench
