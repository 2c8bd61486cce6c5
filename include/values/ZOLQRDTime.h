#pragma once

#include "values/TrellisApi.h"
#include "values/ZOLListVal.h"
#include "values/ZOLTime.h"

class ZOLGYRError;
class ZOLUnicodeString;

// ZOLQRDTime: a calendar day, or no value, which stands for an open bound. A day is its midnight in UTC; the
// time of day of what it is made from is dropped.
// Without a value it equals only another one without; it is neither before nor after anything, moves nowhere
// and has an empty text. Callers ask IsValuated first.
class TRELLIS_API ZOLQRDTime {
public:
    ZOLQRDTime() = default;
    ZOLQRDTime(const ZOLTime& time);
    // Reads YYYY-MM-DD, with blanks at both ends allowed. 20911 with the text when it is no such day; the
    // value is then absent. A code that stands in the carrier is not cleared.
    ZOLQRDTime(const ZOLUnicodeString& text, ZOLGYRError& error);

    int IsValuated() const { return _valuated ? 1 : 0; }
    // YYYY-MM-DD, the form that the constructor reads.
    ZOLUnicodeString GetFormattedDate() const;
    // Midnight of the day; 1970-01-01 without a value.
    ZOLTime GetZOLTime() const { return _day; }

    // Whole days; they stop at 0001-01-01 and at 9999-12-31.
    ZOLQRDTime operator+(const int& days) const;
    ZOLQRDTime operator-(const int& days) const;
    // Steps to the next or previous day and gives the day before the step.
    ZOLQRDTime operator++(int);
    ZOLQRDTime operator--(int);

    friend bool operator==(const ZOLQRDTime&, const ZOLQRDTime&) = default;
    friend bool operator<(const ZOLQRDTime& a, const ZOLQRDTime& b) {
        return a._valuated && b._valuated && a._day < b._day;
    }
    friend bool operator>(const ZOLQRDTime& a, const ZOLQRDTime& b) { return b < a; }

private:
    ZOLQRDTime Moved(std::int64_t days) const;

    bool _valuated = false;
    ZOLTime _day{0};
};

using ZOLListValZOLQRDTime = ZOLListVal<ZOLQRDTime>;
