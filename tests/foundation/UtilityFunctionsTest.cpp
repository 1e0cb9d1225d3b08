#include "foundation/UtilityFunctions.h"

#include "foundation/ExpectError.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

namespace k7deval
{

namespace
{

class FixedClock : public Clock
{
public:
    explicit FixedClock(Date now) : now_(now) {}
    [[nodiscard]] Date now() const override { return now_; }

private:
    Date now_;
};

constexpr double kSecond = 1.0 / 86400;

struct SumCase {
    const char* interval;
    double amount;
    Date date;
    Date sum;
};

const Date kLateInFebruary = makeDate(2024, 2, 28, 23, 59, 58);

const SumCase kSums[] = {
    // A month keeps the day, cut to the last of the month.
    {"m", 1, makeDate(2024, 1, 31), makeDate(2024, 2, 29)},
    {"m", 1, makeDate(2023, 1, 31), makeDate(2023, 2, 28)},
    {"m", -1, makeDate(2024, 3, 31, 7, 8, 9), makeDate(2024, 2, 29, 7, 8, 9)},
    {"m", 1, makeDate(2024, 2, 29), makeDate(2024, 3, 29)},
    {"m", -3, makeDate(2024, 2, 15), makeDate(2023, 11, 15)},
    {"m", 24, makeDate(2024, 12, 1), makeDate(2026, 12, 1)},
    {"d", 1, kLateInFebruary, makeDate(2024, 2, 29, 23, 59, 58)},
    {"d", -28, kLateInFebruary, makeDate(2024, 1, 31, 23, 59, 58)},
    {"h", 24, kLateInFebruary, makeDate(2024, 2, 29, 23, 59, 58)},
    {"h", 1, makeDate(2024, 3, 10, 23), makeDate(2024, 3, 11)},
    {"n", 1439, makeDate(2024, 3, 10), makeDate(2024, 3, 10, 23, 59)},
    {"n", -1439, makeDate(2024, 3, 10, 23, 59), makeDate(2024, 3, 10)},
    {"s", 3, kLateInFebruary, makeDate(2024, 2, 29, 0, 0, 1)},
    {"s", -1, makeDate(2024, 1, 1), makeDate(2023, 12, 31, 23, 59, 59)},
    // The letter may be a capital.
    {"H", 1, makeDate(2024, 3, 10), makeDate(2024, 3, 10, 1)},
    {"M", 1, makeDate(2024, 3, 10), makeDate(2024, 4, 10)},
};

} // namespace

TEST(CurrentDateTime, IsTheClocksReadingToTheSecond)
{
    const Date noon = makeDate(2024, 3, 10, 12);
    EXPECT_EQ(CurrentDateTime(FixedClock(Date{noon.days + 0.3 * kSecond})), noon);
}

TEST(SystemClock, LiesInTheCenturyOfTheProgram)
{
    const Date now = SystemClock().now();
    EXPECT_GT(now, makeDate(2024, 1, 1));
    EXPECT_LT(now, makeDate(2124, 1, 1));
    EXPECT_EQ(CurrentDateTime(FixedClock(now)), now);
}

TEST(DateAddExact, AddsEachIntervalOfTheCalendarAndTheClock)
{
    for (const SumCase& row : kSums)
        EXPECT_EQ(DateAddExact(row.interval, row.amount, row.date), row.sum)
            << row.amount << row.interval << " to " << minuteKey(row.date);
    const double midnight = DateAddExact("h", 1, makeDate(2024, 3, 10, 23)).days;
    EXPECT_EQ(midnight, std::floor(midnight)) << "exactly";
}

TEST(DateAddExact, ADateOffTheSecondComesBackOnIt)
{
    const Date base = makeDate(2024, 3, 10, 11, 59, 59);
    const Date offTheSecond{base.days + 0.3 * kSecond};
    EXPECT_EQ(DateAddExact("n", 1, offTheSecond), makeDate(2024, 3, 10, 12, 0, 59));
}

TEST(DateAddExact, AnotherIntervalIsAnError)
{
    for (const char* interval : {"", "x", "hh", "yyyy"})
        EXPECT_EQ(errorOf([&] { return DateAddExact(interval, 1, makeDate(2024, 3, 10)); }),
                  errors::kInvalidCall)
            << interval;
}

TEST(DateAddExact, ASumOutsideTheCalendarIsAnError)
{
    for (const char* interval : {"m", "d", "h", "n", "s"}) {
        for (const double amount : {1e300, -1e300, 1e13, std::nan("")})
            EXPECT_EQ(
                errorOf([&] { return DateAddExact(interval, amount, makeDate(2024, 3, 10)); }),
                errors::kInvalidCall)
                << amount << interval;
    }
    EXPECT_EQ(errorOf([] { return DateAddExact("s", 1, makeDate(9999, 12, 31, 23, 59, 59)); }),
              errors::kInvalidCall);
    EXPECT_EQ(errorOf([] { return DateAddExact("m", -1, makeDate(100, 1, 31)); }),
              errors::kInvalidCall);
}

TEST(IntervalStart, IsTheBeginningOfTheIntervalOfTheDay)
{
    const Date value = makeDate(2024, 3, 10, 15, 47, 31);
    EXPECT_EQ(IntervalStart(value, 900, false), makeDate(2024, 3, 10, 15, 45));
    EXPECT_EQ(IntervalStart(value, 3600, false), makeDate(2024, 3, 10, 15));
    EXPECT_EQ(IntervalStart(value, 1, false), value);
    EXPECT_EQ(IntervalStart(value, 7000, false), makeDate(2024, 3, 10, 15, 33, 20));
}

TEST(IntervalStart, AWholeDayGivesTheMidnightOfTheValue)
{
    EXPECT_EQ(IntervalStart(makeDate(2024, 3, 10, 23, 59, 59), 86400, false),
              makeDate(2024, 3, 10));
}

TEST(IntervalStart, ThePreviousIntervalMayLieOnTheDayBefore)
{
    EXPECT_EQ(IntervalStart(makeDate(2024, 3, 10, 15, 47), 3600, true), makeDate(2024, 3, 10, 14));
    EXPECT_EQ(IntervalStart(makeDate(2024, 3, 10, 0, 30), 3600, true), makeDate(2024, 3, 9, 23));
    EXPECT_EQ(IntervalStart(makeDate(2024, 3, 10, 15), 86400, true), makeDate(2024, 3, 9));
}

TEST(IntervalStart, SecondsOutsideADayGiveTheZeroDate)
{
    for (const std::int32_t seconds : {0, -1, 86401}) {
        EXPECT_TRUE(IsNoDate(IntervalStart(makeDate(2024, 3, 10, 15), seconds, false)));
        EXPECT_TRUE(IsNoDate(IntervalStart(makeDate(2024, 3, 10, 15), seconds, true)));
    }
}

TEST(IsNoDate, OnlyTheZeroDateIsNotSet)
{
    EXPECT_TRUE(IsNoDate(Date{}));
    EXPECT_FALSE(IsNoDate(makeDate(1899, 12, 30, 0, 0, 1)));
    EXPECT_FALSE(IsNoDate(makeDate(1899, 12, 31)));
    EXPECT_FALSE(IsNoDate(makeDate(2024, 3, 10)));
}

RC_GTEST_PROP(DateAddExactProperties, HoursAddedOneByOneEndWhereTheyEndAtOnce, ())
{
    const int hours = *rc::gen::inRange(1, 2200);
    const Date start = makeDate(*rc::gen::inRange(1990, 2040), *rc::gen::inRange(1, 13), 1);
    Date walked = start;
    for (int i = 0; i < hours; ++i)
        walked = DateAddExact("h", 1, walked);
    RC_ASSERT(walked == DateAddExact("h", hours, start));
    RC_ASSERT(hourBoundariesBetween(start, walked) == hours);
}

RC_GTEST_PROP(IntervalStartProperties, TheValueLiesInTheIntervalThatStartsThere, ())
{
    const std::int32_t seconds = *rc::gen::inRange(1, 86401);
    const Date value = makeDate(2024, 3, 10, 0, 0, *rc::gen::inRange(0, 86400));
    const Date start = IntervalStart(value, seconds, false);
    RC_ASSERT(start <= value);
    RC_ASSERT(wholeSeconds(value) - wholeSeconds(start) < seconds);
    RC_ASSERT(wholeSeconds(start) - wholeSeconds(IntervalStart(value, seconds, true)) == seconds);
}

} // namespace k7deval
