#include "foundation/Date.h"

#include "foundation/ExpectError.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace k7deval
{

namespace
{

// The calendar from the first moment of the year 100 to the end of the year 9999.
constexpr std::int64_t kFirstSecond = -56'802'297'600;
constexpr std::int64_t kEndSecond = 255'611'462'400;

} // namespace

TEST(Date, TheZeroDateIsTheEndOf1899)
{
    EXPECT_EQ(dateParts(Date{}), DateParts());
    EXPECT_EQ(makeDate(1899, 12, 30).days, 0);
    EXPECT_EQ(makeDate(1900, 1, 1).days, 2);
    EXPECT_EQ(makeDate(2024, 3, 10).days, 45361);
    EXPECT_EQ(makeDate(2024, 3, 10, 12).days, 45361.5);
}

TEST(Date, LeapDaysFollowTheGregorianCalendar)
{
    EXPECT_EQ(makeDate(2024, 2, 29).days + 1, makeDate(2024, 3, 1).days);
    EXPECT_EQ(makeDate(2000, 2, 29).days + 1, makeDate(2000, 3, 1).days);
    EXPECT_EQ(makeDate(1900, 2, 28).days + 1, makeDate(1900, 3, 1).days);
    EXPECT_EQ(makeDate(2100, 2, 28).days + 1, makeDate(2100, 3, 1).days);
}

TEST(Date, ReadsTheNearestWholeSecond)
{
    const double noon = makeDate(2024, 3, 10, 12).days;
    constexpr double kSecond = 1.0 / 86400;
    EXPECT_EQ(dateParts(Date{noon - 0.4 * kSecond}), (DateParts{2024, 3, 10, 12, 0, 0}));
    EXPECT_EQ(dateParts(Date{noon - 0.6 * kSecond}), (DateParts{2024, 3, 10, 11, 59, 59}));
    EXPECT_EQ(dateParts(Date{noon + 0.6 * kSecond}), (DateParts{2024, 3, 10, 12, 0, 1}));
}

TEST(Date, AHairBelowMidnightIsTheNextDay)
{
    const double midnight = makeDate(2025, 1, 1).days;
    EXPECT_EQ(dateParts(Date{std::nextafter(midnight, 0.0)}), (DateParts{2025, 1, 1, 0, 0, 0}));
    EXPECT_EQ(dateOnly(Date{std::nextafter(midnight, 0.0)}), makeDate(2025, 1, 1));
}

TEST(Date, ATimeBeforeTheZeroDateCountsForwardFromItsMidnight)
{
    EXPECT_EQ(dateParts(Date{-0.25}), (DateParts{1899, 12, 29, 18, 0, 0}));
    EXPECT_EQ(dateOnly(Date{-0.25}), Date{-1});
    EXPECT_EQ(makeDate(1899, 12, 29, 18), Date{-0.25});
}

TEST(Date, PartsOutOfTheirRangesAreCarriedOver)
{
    EXPECT_EQ(makeDate(2024, 13, 1), makeDate(2025, 1, 1));
    EXPECT_EQ(makeDate(2024, 0, 1), makeDate(2023, 12, 1));
    EXPECT_EQ(makeDate(2024, -11, 1), makeDate(2023, 1, 1));
    EXPECT_EQ(makeDate(2024, 3, 0), makeDate(2024, 2, 29));
    EXPECT_EQ(makeDate(2024, 1, 367), makeDate(2025, 1, 1));
    EXPECT_EQ(makeDate(2024, 3, 10, 24), makeDate(2024, 3, 11));
    EXPECT_EQ(makeDate(2024, 3, 10, 0, 1440), makeDate(2024, 3, 11));
    EXPECT_EQ(makeDate(2024, 3, 10, 0, 0, -1), makeDate(2024, 3, 9, 23, 59, 59));
}

TEST(Date, TheCalendarReachesFromTheYear100To9999)
{
    EXPECT_EQ(dateParts(makeDate(100, 1, 1)), (DateParts{100, 1, 1, 0, 0, 0}));
    EXPECT_EQ(dateParts(makeDate(9999, 12, 31, 23, 59, 59)), (DateParts{9999, 12, 31, 23, 59, 59}));
    EXPECT_EQ(makeDate(10000, 1, 0), makeDate(9999, 12, 31));
    EXPECT_EQ(makeDate(99, 12, 32), makeDate(100, 1, 1));
}

TEST(Date, ADateOutsideTheCalendarIsAnError)
{
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr int kMost = std::numeric_limits<int>::max();
    EXPECT_EQ(errorOf([] { return makeDate(99, 12, 31); }), errors::kInvalidCall);
    EXPECT_EQ(errorOf([] { return makeDate(10000, 1, 1); }), errors::kInvalidCall);
    EXPECT_EQ(errorOf([] { return makeDate(kMost, kMost, kMost, kMost, kMost, kMost); }),
              errors::kInvalidCall);
    EXPECT_EQ(errorOf([] { return makeDate(kLeast, kLeast, kLeast, kLeast, kLeast, kLeast); }),
              errors::kInvalidCall);
    EXPECT_EQ(errorOf([] { return makeDate(2024, 1, kMost); }), errors::kInvalidCall);
    for (const double days : {-657435.0, 2958466.0, 1e300, -1e300, std::nan("")})
        EXPECT_EQ(errorOf([days] { return dateParts(Date{days}); }), errors::kInvalidCall) << days;
}

TEST(Date, HoursBetweenCountsTheBoundariesCrossed)
{
    const Date before = makeDate(2024, 3, 10, 9, 59, 59);
    const Date after = makeDate(2024, 3, 10, 10, 0, 1);
    EXPECT_EQ(hourBoundariesBetween(before, after), 1);
    EXPECT_EQ(hourBoundariesBetween(after, before), -1);
    EXPECT_EQ(hourBoundariesBetween(after, makeDate(2024, 3, 10, 10, 59, 59)), 0);
    EXPECT_EQ(hourBoundariesBetween(makeDate(2024, 3, 10), makeDate(2024, 3, 11)), 24);
}

TEST(Date, DaysBetweenCountsTheMidnightsCrossed)
{
    const Date evening = makeDate(2024, 2, 28, 23, 59, 59);
    const Date night = makeDate(2024, 2, 29);
    EXPECT_EQ(dayBoundariesBetween(evening, night), 1);
    EXPECT_EQ(dayBoundariesBetween(night, evening), -1);
    EXPECT_EQ(dayBoundariesBetween(night, makeDate(2024, 2, 29, 23, 59, 59)), 0);
    EXPECT_EQ(dayBoundariesBetween(makeDate(1899, 12, 29, 12), makeDate(1899, 12, 30, 12)), 1);
}

TEST(Date, KeysHaveAllTheirZeros)
{
    const Date value = makeDate(2024, 3, 5, 7, 8, 9);
    EXPECT_EQ(minuteKey(value), "2024/03/05 07:08");
    EXPECT_EQ(dayKey(value), "2024/03/05");
    EXPECT_EQ(isoDate(value), "2024-03-05");
    EXPECT_EQ(dayKey(makeDate(100, 1, 1)), "0100/01/01");
    EXPECT_EQ(minuteKey(Date{}), "1899/12/30 00:00");
}

RC_GTEST_PROP(DateProperties, EverySecondOfTheCalendarReadsBackFromItsParts, ())
{
    const auto seconds = *rc::gen::inRange<std::int64_t>(kFirstSecond, kEndSecond);
    const Date value = dateFromSeconds(seconds);
    const DateParts parts = dateParts(value);
    RC_ASSERT(makeDate(parts.year, parts.month, parts.day, parts.hour, parts.minute,
                       parts.second) == value);
    RC_ASSERT(wholeSeconds(value) == seconds);
}

RC_GTEST_PROP(DateProperties, TextOrderOfTheKeysIsTimeOrder, ())
{
    const auto inYears = rc::gen::inRange<std::int64_t>(kFirstSecond, kEndSecond);
    const Date one = dateFromSeconds(*inYears);
    const Date other = dateFromSeconds(*inYears);
    RC_ASSERT(minuteKey(std::min(one, other)) <= minuteKey(std::max(one, other)));
    RC_ASSERT(dayKey(std::min(one, other)) <= dayKey(std::max(one, other)));
}

} // namespace k7deval
