#include "values/ZOLQRDTime.h"

#include "values/ZOLGYRError.h"
#include "values/ZOLUnicodeString.h"

#include <cstdio>
#include <string>

namespace {

constexpr int NotADate = 20911;
constexpr std::int64_t SecondsPerDay = 86400;
// More days than the calendar has, yet few enough to multiply.
constexpr std::int64_t MostDays = 4'000'000;

// The number that `count` decimal digits at a position spell; -1 when one of them is none.
int DigitsAt(const std::string& text, std::size_t position, std::size_t count) {
    int number = 0;
    for (std::size_t i = position; i < position + count; ++i) {
        if (text[i] < '0' || text[i] > '9')
            return -1;
        number = number * 10 + (text[i] - '0');
    }
    return number;
}

bool ReadDay(ZOLUnicodeString text, ZOLTime& day) {
    text.Strip();
    const std::string& bytes = text.Bytes();
    if (bytes.size() != 10 || bytes[4] != '-' || bytes[7] != '-')
        return false;
    return day.SetDate(DigitsAt(bytes, 0, 4), DigitsAt(bytes, 5, 2), DigitsAt(bytes, 8, 2)) == 1;
}

} // namespace

ZOLQRDTime::ZOLQRDTime(const ZOLTime& time) : _valuated(true), _day(time) {
    _day.SetDate(time.GetYear(), time.GetMonth(), time.GetDay());
}

ZOLQRDTime::ZOLQRDTime(const ZOLUnicodeString& text, ZOLGYRError& error) {
    _valuated = ReadDay(text, _day);
    if (_valuated)
        return;
    error.Set(NotADate, {text});
}

ZOLUnicodeString ZOLQRDTime::GetFormattedDate() const {
    if (!_valuated)
        return {};
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", _day.GetYear(), _day.GetMonth(), _day.GetDay());
    return text;
}

ZOLQRDTime ZOLQRDTime::Moved(std::int64_t days) const {
    if (!_valuated)
        return *this;
    const std::int64_t bounded = std::min(std::max(days, -MostDays), MostDays);
    return ZOLQRDTime(ZOLTime(_day.Gettime_t() + bounded * SecondsPerDay));
}

ZOLQRDTime ZOLQRDTime::operator+(const int& days) const {
    return Moved(days);
}

ZOLQRDTime ZOLQRDTime::operator-(const int& days) const {
    return Moved(-std::int64_t{days});
}

ZOLQRDTime ZOLQRDTime::operator++(int) {
    const ZOLQRDTime before = *this;
    *this = Moved(1);
    return before;
}

ZOLQRDTime ZOLQRDTime::operator--(int) {
    const ZOLQRDTime before = *this;
    *this = Moved(-1);
    return before;
}
