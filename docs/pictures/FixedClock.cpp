#include <ctime>

// Stands in for the clock of the program whose pictures are taken: it is always ten o'clock, so that a picture taken
// again is the same. Timers of windows run by another clock and are not touched.
extern "C" __attribute__((visibility("default"))) std::time_t time(std::time_t* result) noexcept {
    constexpr std::time_t tenOClock = 1767952800; // seconds, a Friday in UTC
    if (result)
        *result = tenOClock;
    return tenOClock;
}
