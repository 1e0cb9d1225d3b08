#include "histogram/Quarters.h"

#include "foundation/ExpectError.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"

#include <gtest/gtest.h>

/// Calendar quarters by their names and by the dates that lie in them.
namespace k7deval::test
{

namespace
{

using histogram::Quarter;

/// A month, the quarter that holds it, and the newest quarter that is over in it.
struct MonthCase {
    int month;
    int quarter;
    int startMonth;
    int finishedYear; ///< In 2024.
    int finished;
};

constexpr MonthCase kMonths[] = {
    {1, 1, 1, 2023, 4}, {2, 1, 1, 2023, 4},   {3, 1, 1, 2023, 4},   {4, 2, 4, 2024, 1},
    {5, 2, 4, 2024, 1}, {6, 2, 4, 2024, 1},   {7, 3, 7, 2024, 2},   {8, 3, 7, 2024, 2},
    {9, 3, 7, 2024, 2}, {10, 4, 10, 2024, 3}, {11, 4, 10, 2024, 3}, {12, 4, 10, 2024, 3},
};

Date firstMinuteOf(int month)
{
    return makeDate(2024, month, 1);
}

Date lastSecondOf(int month)
{
    return dateFromSeconds(wholeSeconds(makeDate(2024, month + 1, 1)) - 1);
}

/// A screen with the two lists, on 20 November 2026.
struct QuarterScreen : screen::Control {
    QuarterScreen() : Control("screen") { histogram::offerQuarters(cmbQTR, cmbYear, clock.now()); }

    Date selectedEnd()
    {
        return histogram::GetSelectedQuarterEnd(cmbQTR, cmbYear, {services, clock, regional});
    }

    FakeServices services;
    FixedClock clock{makeDate(2026, 11, 20, 9, 30)};
    RegionalSettings regional;
    screen::ComboBox cmbYear{*this, "cmbYear", screen::EditField::Yes};
    screen::ComboBox cmbQTR{*this, "cmbQTR"};
};

/// A screen whose lists name a quarter.
struct NamedQuarter : QuarterScreen {
    NamedQuarter(const std::string& year, int quarter)
    {
        cmbYear.Type(year);
        cmbQTR.Pick(quarter - 1);
    }
};

} // namespace

TEST(Quarters, EachMonthLiesInItsQuarter)
{
    for (const MonthCase& row : kMonths) {
        for (const Date time : {firstMinuteOf(row.month), lastSecondOf(row.month)})
            EXPECT_EQ(histogram::quarterOf(time), (Quarter{2024, row.quarter})) << row.month;
    }
}

TEST(Quarters, StartAtMidnightOfTheirFirstDay)
{
    for (const MonthCase& row : kMonths) {
        for (const Date time : {firstMinuteOf(row.month), lastSecondOf(row.month)})
            EXPECT_EQ(histogram::GetQuarterStart(time), makeDate(2024, row.startMonth, 1))
                << row.month;
    }
}

TEST(Quarters, TheNewestFinishedOneGoesByTheMonthAlone)
{
    for (const MonthCase& row : kMonths) {
        for (const Date today : {firstMinuteOf(row.month), lastSecondOf(row.month)})
            EXPECT_EQ(histogram::lastFinishedQuarter(today),
                      (Quarter{row.finishedYear, row.finished}))
                << row.month;
    }
}

TEST(Quarters, HaveAFirstAndALastDay)
{
    EXPECT_EQ(histogram::firstDayOf({2024, 1}), makeDate(2024, 1, 1));
    EXPECT_EQ(histogram::lastDayOf({2024, 1}), makeDate(2024, 3, 31));
    EXPECT_EQ(histogram::firstDayOf({2024, 2}), makeDate(2024, 4, 1));
    EXPECT_EQ(histogram::lastDayOf({2024, 2}), makeDate(2024, 6, 30));
    EXPECT_EQ(histogram::firstDayOf({2024, 3}), makeDate(2024, 7, 1));
    EXPECT_EQ(histogram::lastDayOf({2024, 3}), makeDate(2024, 9, 30));
    EXPECT_EQ(histogram::firstDayOf({2024, 4}), makeDate(2024, 10, 1));
    EXPECT_EQ(histogram::lastDayOf({2024, 4}), makeDate(2024, 12, 31));
}

TEST(Quarters, LieInTheYearsThatADateCanHave)
{
    EXPECT_EQ(histogram::firstDayOf({100, 1}), makeDate(100, 1, 1));
    EXPECT_EQ(histogram::firstDayOf({9999, 4}), makeDate(9999, 10, 1));
    EXPECT_EQ(errorOf([] { return histogram::firstDayOf({99, 4}); }), 5);
    EXPECT_EQ(errorOf([] { return histogram::firstDayOf({10000, 1}); }), 5);
}

TEST(OfferedQuarters, AreFourAndThreeYearsFromThePresentOneBack)
{
    QuarterScreen screen;
    EXPECT_EQ(screen.cmbQTR.List(), (std::vector<std::string>{"Q1", "Q2", "Q3", "Q4"}));
    EXPECT_EQ(screen.cmbYear.List(), (std::vector<std::string>{"2026", "2025", "2024"}));
}

TEST(OfferedQuarters, TheNewestFinishedOneIsSelected)
{
    for (const MonthCase& row : kMonths) {
        QuarterScreen screen;
        screen.cmbQTR.clear();
        screen.cmbYear.clear();
        histogram::offerQuarters(screen.cmbQTR, screen.cmbYear, makeDate(2024, row.month, 15));
        EXPECT_EQ(screen.cmbQTR.Text(), "Q" + std::to_string(row.finished)) << row.month;
        EXPECT_EQ(screen.cmbQTR.ListIndex(), row.finished - 1) << row.month;
        EXPECT_EQ(screen.cmbYear.Text(), std::to_string(row.finishedYear)) << row.month;
        EXPECT_EQ(screen.cmbYear.ListIndex(), 2024 - row.finishedYear) << row.month;
        EXPECT_EQ(screen.cmbYear.List().front(), "2024") << row.month;
    }
}

TEST(SelectedQuarter, EndsWithTheLastHourOfItsLastDay)
{
    EXPECT_EQ(NamedQuarter("2024", 1).selectedEnd(), makeDate(2024, 3, 31, 23));
    EXPECT_EQ(NamedQuarter("2024", 2).selectedEnd(), makeDate(2024, 6, 30, 23));
    EXPECT_EQ(NamedQuarter("2024", 3).selectedEnd(), makeDate(2024, 9, 30, 23));
    EXPECT_EQ(NamedQuarter("2024", 4).selectedEnd(), makeDate(2024, 12, 31, 23));
}

TEST(SelectedQuarter, MayBePickedFromBothLists)
{
    QuarterScreen screen;
    screen.cmbYear.Pick(2);
    screen.cmbQTR.Pick(1);
    EXPECT_EQ(screen.selectedEnd(), makeDate(2024, 6, 30, 23));
    EXPECT_EQ(screen.cmbYear.ListIndex(), 2) << "a good year is left alone";
    EXPECT_EQ(screen.cmbQTR.ListIndex(), 1);
}

struct YearCase {
    const char* text;
    int year;
    const char* shown;
};

// Today is in 2026. What is no whole number from 100 to 9999 is replaced on the screen.
constexpr YearCase kYears[] = {
    {"2020", 2020, "2020"},  {" 2020 ", 2020, " 2020 "},
    {"100", 100, "100"},     {"9999", 9999, "9999"},
    {"abc", 2026, "2026"},   {"", 2026, "2026"},
    {"   ", 2026, "2026"},   {"99", 2026, "2026"},
    {"10000", 2026, "2026"}, {"0", 2026, "2026"},
    {"-2020", 2026, "2026"}, {"2020.5", 2026, "2026"},
    {"2020a", 2026, "2026"}, {"20 20", 2026, "2026"},
    {"99.9", 2026, "2026"},  {"99999999999999999999", 2026, "2026"},
    {"1E400", 2026, "2026"},
};

TEST(SelectedQuarter, AYearThatIsNoneIsReplacedByThePresentOne)
{
    for (const YearCase& row : kYears) {
        NamedQuarter screen(row.text, 2);
        EXPECT_EQ(screen.selectedEnd(), makeDate(row.year, 6, 30, 23)) << row.text;
        EXPECT_EQ(screen.cmbYear.Text(), row.shown) << row.text;
    }
}

TEST(SelectedQuarter, AReplacedYearIsAChangeOfTheText)
{
    NamedQuarter screen("abc", 2);
    int changes = 0;
    screen.cmbYear.TextChanged.Connect([&] { ++changes; });
    screen.selectedEnd();
    EXPECT_EQ(changes, 1);
    screen.selectedEnd();
    EXPECT_EQ(changes, 1);
}

TEST(SelectedQuarter, WithNoneSelectedTheFirstIsSelected)
{
    QuarterScreen screen;
    screen.cmbYear.Type("2024");
    screen.cmbQTR.SetListIndex(-1);
    EXPECT_EQ(screen.selectedEnd(), makeDate(2024, 3, 31, 23));
    EXPECT_EQ(screen.cmbQTR.Text(), "Q1");
    EXPECT_EQ(screen.cmbQTR.ListIndex(), 0);
}

TEST(SelectedQuarter, TheLastOfAllIsBeyondADate)
{
    NamedQuarter screen("9999", 4);
    EXPECT_EQ(errorOf([&] { return screen.selectedEnd(); }), 5)
        << "its end is an hour before the first day of the year 10000";
    EXPECT_EQ(NamedQuarter("9999", 3).selectedEnd(), makeDate(9999, 9, 30, 23));
}

TEST(QuarterCount, TellsQuartersWithDataFromEmptyOnesUpToTwelve)
{
    histogram::QuarterCount count;
    for (int i = 0; i < 5; ++i)
        count.count(0);
    count.count(1);
    for (int i = 0; i < 5; ++i)
        count.count(2160);
    EXPECT_EQ(count.empty, 5);
    EXPECT_EQ(count.withData, 6);
    EXPECT_FALSE(count.isAtLimit());
    count.count(0);
    EXPECT_TRUE(count.isAtLimit());
}

} // namespace k7deval::test
