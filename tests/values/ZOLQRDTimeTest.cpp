#include "values/ZOLQRDTime.h"
#include "values/ZOLGYRError.h"
#include "values/ZOLUnicodeString.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <climits>

namespace {

ZOLQRDTime Day(const char* text) {
    ZOLGYRError error;
    const ZOLQRDTime day(text, error);
    EXPECT_EQ(error.GetCode(), 0) << text;
    return day;
}

TEST(ZOLTime, RefusesDaysAndTimesThatTheCalendarHasNotAndKeepsWhatItHeld) {
    ZOLTime time(1);
    ASSERT_EQ(time.SetDateTime(2024, 2, 29, 23, 59, 59), 1);
    const ZOLTime before = time;
    const struct {
        const char* name;
        int year, month, day, hour, minute, second;
    } cases[] = {
        {"thirtieth of February", 2024, 2, 30, 0, 0, 0},
        {"no leap year", 2100, 2, 29, 0, 0, 0},
        {"month 13", 2024, 13, 1, 0, 0, 0},
        {"day 0", 2024, 1, 0, 0, 0, 0},
        {"negative month", 2024, -1, 1, 0, 0, 0},
        {"year 0", 0, 1, 1, 0, 0, 0},
        {"year 10000", 10000, 1, 1, 0, 0, 0},
        {"hour 24", 2024, 1, 1, 24, 0, 0},
        {"minute 60", 2024, 1, 1, 0, 60, 0},
        {"second -1", 2024, 1, 1, 0, 0, -1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(time.SetDateTime(c.year, c.month, c.day, c.hour, c.minute, c.second), 0) << c.name;
        EXPECT_EQ(time, before) << c.name;
    }
}

TEST(ZOLTime, ReachesBeyondTheSecondsOf32Bits) {
    ZOLTime time(1);
    ASSERT_EQ(time.SetDate(2038, 1, 20), 1);
    EXPECT_EQ(time.Gettime_t(), 2147558400);
    ASSERT_EQ(time.SetDate(1, 1, 1), 1);
    EXPECT_EQ(time.GetYear(), 1);
    EXPECT_LT(time, ZOLTime(0));
}

TEST(ZOLTime, TodayIsMadeByDroppingTheTimeOfDay) {
    const ZOLTime now = ZOLTime::GetCurrentTime();
    ZOLTime today(1);
    ASSERT_EQ(today.SetDate(now.GetYear(), now.GetMonth(), now.GetDay()), 1);
    EXPECT_EQ(today.Gettime_t() % 86400, 0);
    EXPECT_LE(today, now);
    EXPECT_EQ(ZOLQRDTime(now), ZOLQRDTime(today));
}

TEST(ZOLQRDTime, EveryDayIsWrittenAsItIsRead) {
    EXPECT_TRUE(rc::check([] {
        const auto days = *rc::gen::inRange<std::int64_t>(-719162, 2932897); // 0001-01-01 to 9999-12-31
        const ZOLQRDTime day{ZOLTime(days * 86400 + *rc::gen::inRange(0, 86400))};
        ZOLGYRError error;
        const ZOLQRDTime read(day.GetFormattedDate(), error);
        RC_ASSERT(error.GetCode() == 0);
        RC_ASSERT(read == day);
        RC_ASSERT(read.GetZOLTime().Gettime_t() == days * 86400);
    }));
}

TEST(ZOLQRDTime, ATextThatIsNoDaySets20911WithTheTextAndGivesNoValue) {
    for (const char* text : {"", "2024-2-3", "2024-02-30", "24-02-03", "2024/02/03", "2024-02-03x", "GATE 3",
                             "-024-02-03", "2024-02-\xff\xff", "+024-02-03"}) {
        ZOLGYRError error;
        const ZOLQRDTime day(text, error);
        EXPECT_EQ(error.GetCode(), 20911) << text;
        ASSERT_EQ(error.GetParameters().size(), 1u) << text;
        EXPECT_EQ(error.GetParameters()[0], text);
        EXPECT_FALSE(day.IsValuated()) << text;
        EXPECT_TRUE(day.GetFormattedDate().IsEmpty()) << text;
    }
}

TEST(ZOLQRDTime, MovesByDaysAndStepsBack) {
    EXPECT_EQ(Day(" 2024-02-28 ") + 2, Day("2024-03-01"));
    EXPECT_EQ(Day("2024-03-01") - 2, Day("2024-02-28"));
    ZOLQRDTime day = Day("2023-12-31");
    EXPECT_EQ(day++, Day("2023-12-31"));
    EXPECT_EQ(day--, Day("2024-01-01"));
    EXPECT_EQ(day, Day("2023-12-31"));
    EXPECT_EQ(day + INT_MAX, Day("9999-12-31"));
    EXPECT_EQ(day - INT_MIN, Day("9999-12-31"));
    EXPECT_EQ(day - INT_MAX, Day("0001-01-01"));
}

TEST(ZOLQRDTime, AnOpenBoundIsNeitherBeforeNorAfterAnyDayAndMovesNowhere) {
    const ZOLQRDTime open;
    const ZOLQRDTime epoch{ZOLTime(0)};
    EXPECT_FALSE(open < epoch || open > epoch || epoch < open || epoch > open);
    EXPECT_NE(open, epoch);
    EXPECT_EQ(open + 5, open);
    EXPECT_FALSE((open + 5).IsValuated());
}

} // namespace
