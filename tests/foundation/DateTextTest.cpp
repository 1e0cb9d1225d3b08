#include "foundation/DateText.h"

#include <gtest/gtest.h>

#include <ostream>

namespace k7deval
{

namespace
{

struct NamedFormats {
    const char* region;
    const char* shortDate;
    const char* longTime;
    const char* mediumTime;
    const char* shortTime;
};

void PrintTo(const NamedFormats& row, std::ostream* out)
{
    *out << row.region;
}

class NamedFormatsOfARegion : public testing::TestWithParam<NamedFormats>
{
};

} // namespace

TEST_P(NamedFormatsOfARegion, AreWrittenAsTheRegionDoes)
{
    const NamedFormats& row = GetParam();
    const RegionalSettings settings = regionalSettings(row.region);
    const Date value = makeDate(2024, 3, 10, 15, 5, 9);
    EXPECT_EQ(ShortDate(value, settings), row.shortDate);
    EXPECT_EQ(longTime(value, settings), row.longTime);
    EXPECT_EQ(mediumTime(value, settings), row.mediumTime);
    EXPECT_EQ(ShortTime(value, settings), row.shortTime);
}

INSTANTIATE_TEST_SUITE_P(
    Regions, NamedFormatsOfARegion,
    testing::Values(NamedFormats{"en-US", "3/10/2024", "3:05:09 PM", "03:05 PM", "15:05"},
                    NamedFormats{"en-GB", "10/03/2024", "15:05:09", "03:05 PM", "15:05"},
                    NamedFormats{"de-DE", "10.03.2024", "15:05:09", "03:05", "15:05"},
                    NamedFormats{"fr-FR", "10/03/2024", "15:05:09", "03:05", "15:05"}));

TEST(DateText, MidnightAndNoonAreTwelveOnATwelveHourClock)
{
    const RegionalSettings us;
    EXPECT_EQ(longTime(makeDate(2024, 3, 10), us), "12:00:00 AM");
    EXPECT_EQ(longTime(makeDate(2024, 3, 10, 12), us), "12:00:00 PM");
    EXPECT_EQ(longTime(makeDate(2024, 3, 10, 11, 59, 59), us), "11:59:59 AM");
    EXPECT_EQ(longTime(makeDate(2024, 3, 10, 13), us), "1:00:00 PM");
    EXPECT_EQ(mediumTime(makeDate(2024, 3, 10), us), "12:00 AM");
}

TEST(DateText, AYearFirstRegionWritesTheYearFirst)
{
    RegionalSettings settings;
    settings.dateOrder = DateOrder::YearMonthDay;
    settings.dateSeparator = "-";
    settings.twoDigitDayAndMonth = true;
    EXPECT_EQ(ShortDate(makeDate(2024, 3, 5), settings), "2024-03-05");
}

TEST(DateText, TheHourOfTheLongTimeMayHaveTwoDigits)
{
    RegionalSettings settings = regionalSettings("en-GB");
    EXPECT_EQ(longTime(makeDate(2024, 3, 10, 7, 5, 9), settings), "07:05:09");
    settings.twoDigitHour = false;
    EXPECT_EQ(longTime(makeDate(2024, 3, 10, 7, 5, 9), settings), "7:05:09");
}

TEST(DateText, TheClockReadingIsTheNearestSecond)
{
    constexpr double kSecond = 1.0 / 86400;
    const Date value{makeDate(2024, 3, 10, 23, 59, 59).days + 0.6 * kSecond};
    EXPECT_EQ(ShortDate(value, RegionalSettings()), "3/11/2024");
    EXPECT_EQ(longTime(value, RegionalSettings()), "12:00:00 AM");
}

} // namespace k7deval
