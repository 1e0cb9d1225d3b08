#include "foundation/UtilityFunctions.h"

#include <gtest/gtest.h>

#include <ostream>

namespace k7deval
{

namespace
{

struct StampCase {
    const char* region;
    int hour;
    std::int32_t style;
    const char* text;
};

void PrintTo(const StampCase& row, std::ostream* out)
{
    *out << row.region << " hour " << row.hour << " style " << row.style;
}

class TimeStamps : public testing::TestWithParam<StampCase>
{
};

const StampCase kNamedStyles[] = {
    {"en-US", 15, -3, "3:05:09 PM"},
    {"en-US", 15, 1, "3:05:09 PM"},
    {"en-US", 15, -2, "03:05 PM"},
    {"en-US", 15, -1, "15:05"},
    {"en-US", 15, 13, "3/10/2024"},
    {"en-US", 15, 11, "3/10/2024 3:05:09 PM"},
    {"en-GB", 15, -3, "15:05:09"},
    {"en-GB", 15, -2, "03:05 PM"},
    {"en-GB", 15, -1, "15:05"},
    {"en-GB", 15, 13, "10/03/2024"},
    {"en-GB", 15, 11, "10/03/2024 15:05:09"},
    {"de-DE", 15, -2, "03:05"},
    {"de-DE", 15, 13, "10.03.2024"},
    {"fr-FR", 15, 11, "10/03/2024 15:05:09"},
};

// A 12-hour clock with a one-digit hour, and a 24-hour clock with two digits.
const StampCase kHourAlone[] = {
    {"en-US", 15, 2, "3 PM"},
    {"en-US", 3, 2, "3 AM"},
    {"en-US", 12, 2, "12 PM"},
    {"en-US", 0, 2, "12 AM"},
    {"en-US", 22, 12, "3/10/2024 10 PM"},
    {"en-US", 15, 12, "3/10/2024 3 PM"},
    {"en-GB", 15, 2, "15"},
    {"en-GB", 3, 2, "03"},
    {"en-GB", 3, 12, "10/03/2024 03"},
    {"de-DE", 0, 2, "00"},
};

const StampCase kHourAndMinute[] = {
    {"en-US", 15, 10, "3/10/2024 3:05 PM"},
    {"en-US", 12, 10, "3/10/2024 12:05 PM"},
    {"en-US", 3, 0, "3:05 AM"},
    {"en-US", 10, 0, "10:05 AM"},
    {"en-US", 15, 3, "3:05 PM"},
    {"en-US", 15, -4, "3:05 PM"},
    {"en-US", 15, 14, "3:05 PM"},
    {"en-GB", 15, 10, "10/03/2024 15:05"},
    {"en-GB", 3, 0, "03:05"},
    {"de-DE", 3, 10, "10.03.2024 03:05"},
    {"fr-FR", 15, 0, "15:05"},
};

} // namespace

TEST_P(TimeStamps, AreWrittenInTheirStyle)
{
    const StampCase& row = GetParam();
    const Date value = makeDate(2024, 3, 10, row.hour, 5, 9);
    EXPECT_EQ(FormatTimeStamp(value, row.style, regionalSettings(row.region)), row.text);
}

INSTANTIATE_TEST_SUITE_P(NamedStyles, TimeStamps, testing::ValuesIn(kNamedStyles));
INSTANTIATE_TEST_SUITE_P(HourAlone, TimeStamps, testing::ValuesIn(kHourAlone));
INSTANTIATE_TEST_SUITE_P(HourAndMinute, TimeStamps, testing::ValuesIn(kHourAndMinute));

TEST(FormatTimeStamp, A24HourClockWithAOneDigitHourLosesItsLeadingZero)
{
    RegionalSettings settings = regionalSettings("en-GB");
    settings.twoDigitHour = false;
    EXPECT_EQ(FormatTimeStamp(makeDate(2024, 3, 10, 7, 5), 0, settings), "7:05");
    EXPECT_EQ(FormatTimeStamp(makeDate(2024, 3, 10, 7, 5), 2, settings), "7");
    EXPECT_EQ(FormatTimeStamp(makeDate(2024, 3, 10, 0, 5), 0, settings), "0:05");
    EXPECT_EQ(FormatTimeStamp(makeDate(2024, 3, 10, 17, 5), 2, settings), "17");
}

TEST(FormatTimeStamp, A12HourClockWithATwoDigitHourKeepsItsLeadingZero)
{
    RegionalSettings settings;
    settings.twoDigitHour = true;
    EXPECT_EQ(FormatTimeStamp(makeDate(2024, 3, 10, 15, 5), 0, settings), "03:05 PM");
    EXPECT_EQ(FormatTimeStamp(makeDate(2024, 3, 10, 15, 5), 2, settings), "03 PM");
}

TEST(FormatTimeStamp, TheMarksOfTheHalfDayAreTheRegions)
{
    RegionalSettings settings;
    settings.amMark = "am";
    settings.pmMark = "pm";
    EXPECT_EQ(FormatTimeStamp(makeDate(2024, 3, 10, 15, 5), 2, settings), "3 pm");
    EXPECT_EQ(FormatTimeStamp(makeDate(2024, 3, 10, 9, 5), 10, settings), "3/10/2024 9:05 am");
}

} // namespace k7deval
