#include "values/ZOLTime.h"

#include <algorithm>
#include <chrono>

namespace {

using Days = std::chrono::sys_days;

constexpr std::int64_t SecondsPerDay = 86400;

constexpr std::int64_t SecondsOf(std::chrono::year_month_day day) {
    return std::int64_t{Days{day}.time_since_epoch().count()} * SecondsPerDay;
}

constexpr int FirstYear = 1;
constexpr int LastYear = 9999;
constexpr std::int64_t Earliest = SecondsOf(std::chrono::year{FirstYear} / 1 / 1);
constexpr std::int64_t Latest = SecondsOf(std::chrono::year{LastYear} / 12 / 31) + SecondsPerDay - 1;

std::chrono::year_month_day DayOf(std::int64_t seconds) {
    return Days{
        std::chrono::floor<std::chrono::days>(std::chrono::sys_seconds{std::chrono::seconds{seconds}})};
}

bool IsIn(int value, int lowest, int highest) {
    return value >= lowest && value <= highest;
}

} // namespace

ZOLTime::ZOLTime()
    : ZOLTime(std::int64_t{std::chrono::system_clock::to_time_t(std::chrono::system_clock::now())}) {}

ZOLTime::ZOLTime(std::int64_t seconds) : _seconds(std::clamp(seconds, Earliest, Latest)) {}

ZOLTime ZOLTime::GetCurrentTime() {
    return {};
}

int ZOLTime::GetYear() const {
    return static_cast<int>(DayOf(_seconds).year());
}

int ZOLTime::GetMonth() const {
    return static_cast<int>(static_cast<unsigned>(DayOf(_seconds).month()));
}

int ZOLTime::GetDay() const {
    return static_cast<int>(static_cast<unsigned>(DayOf(_seconds).day()));
}

int ZOLTime::SetDate(int year, int month, int day) {
    return SetDateTime(year, month, day, 0, 0, 0);
}

int ZOLTime::SetDateTime(int year, int month, int day, int hour, int minute, int second) {
    if (!IsIn(year, FirstYear, LastYear) || !IsIn(month, 1, 12) || !IsIn(day, 1, 31))
        return 0;
    const std::chrono::year_month_day date{std::chrono::year{year},
                                           std::chrono::month{static_cast<unsigned>(month)},
                                           std::chrono::day{static_cast<unsigned>(day)}};
    if (!date.ok() || !IsIn(hour, 0, 23) || !IsIn(minute, 0, 59) || !IsIn(second, 0, 59))
        return 0;
    _seconds = SecondsOf(date) + (hour * 60 + minute) * 60 + second;
    return 1;
}
