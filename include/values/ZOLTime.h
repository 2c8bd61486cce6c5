#pragma once

#include "values/TrellisApi.h"

#include <compare>
#include <cstdint>

// ZOLTime: a second of the calendar, in UTC whatever the place, between the years 1 and 9999. Calendar days
// are those of UTC for all users of a database, so that a day means the same seconds to each of them.
class TRELLIS_API ZOLTime {
public:
    // The present second.
    ZOLTime();
    // Seconds since 1970-01-01 00:00. A second outside the years 1 to 9999 becomes the nearest inside.
    ZOLTime(std::int64_t seconds);

    static ZOLTime GetCurrentTime();

    int GetYear() const;
    int GetMonth() const; // 1..12
    int GetDay() const;   // 1..31

    // Sets the day and clears the time of day. 1, or 0 with nothing changed when the calendar has no such
    // day.
    int SetDate(int year, int month, int day);
    // 1, or 0 with nothing changed when there is no such day or no such time of day.
    int SetDateTime(int year, int month, int day, int hour, int minute, int second);

    // Seconds since 1970-01-01 00:00, 64 bits wide.
    std::int64_t Gettime_t() const { return _seconds; }

    friend auto operator<=>(const ZOLTime&, const ZOLTime&) = default;

private:
    std::int64_t _seconds;
};
