#include "foundation/DateText.h"

#include "foundation/ExpectError.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <ostream>

namespace k7deval
{

namespace
{

const Date kToday = makeDate(2023, 7, 4, 9, 30);

struct DateCase {
    const char* what;
    const char* region;
    const char* text;
    Date date;
};

void PrintTo(const DateCase& row, std::ostream* out)
{
    *out << row.region << ' ' << row.what;
}

struct NoDateCase {
    const char* what;
    const char* text;
};

void PrintTo(const NoDateCase& row, std::ostream* out)
{
    *out << row.what;
}

class DateTexts : public testing::TestWithParam<DateCase>
{
};

class TextsThatAreNoDate : public testing::TestWithParam<NoDateCase>
{
};

const DateCase kNumericDates[] = {
    // The order of the region.
    {"month first", "en-US", "3/10/2024", makeDate(2024, 3, 10)},
    {"day first", "en-GB", "3/10/2024", makeDate(2024, 10, 3)},
    {"day first with full stops", "de-DE", "03.10.2024", makeDate(2024, 10, 3)},
    {"day first in France", "fr-FR", "3/10/2024", makeDate(2024, 10, 3)},
    {"dashes", "en-US", "3-10-2024", makeDate(2024, 3, 10)},
    {"full stops", "en-US", "3.10.2024", makeDate(2024, 3, 10)},
    // An impossible month swaps day and month.
    {"day for a month", "en-US", "13/3/2024", makeDate(2024, 3, 13)},
    {"month for a day", "en-GB", "3/13/2024", makeDate(2024, 3, 13)},
    // Year first is year, month, day in every region.
    {"year first", "en-US", "2024/3/10", makeDate(2024, 3, 10)},
    {"year first with dashes", "en-GB", "2024-03-10", makeDate(2024, 3, 10)},
    // Two-digit years.
    {"the last two-digit year of this century", "en-US", "3/10/29", makeDate(2029, 3, 10)},
    {"the first two-digit year of the last century", "en-US", "3/10/30", makeDate(1930, 3, 10)},
    {"year 00", "en-US", "3/10/00", makeDate(2000, 3, 10)},
    {"year 99", "en-US", "3/10/99", makeDate(1999, 3, 10)},
    {"the first year", "en-US", "1/1/100", makeDate(100, 1, 1)},
    {"the last year", "en-US", "12/31/9999", makeDate(9999, 12, 31)},
    // A missing year is the present one.
    {"month and day", "en-US", "3/10", makeDate(2023, 3, 10)},
    {"day and month", "de-DE", "3.10", makeDate(2023, 10, 3)},
    {"month and day swapped", "en-US", "13/3", makeDate(2023, 3, 13)},
    // Blanks around, and leap days.
    {"blanks around", "en-US", "  3/10/2024\t", makeDate(2024, 3, 10)},
    {"a leap day", "en-US", "2/29/2024", makeDate(2024, 2, 29)},
};

const DateCase kNamedDates[] = {
    {"month, day, year", "en-US", "March 10, 2024", makeDate(2024, 3, 10)},
    {"day, month, year", "en-US", "10 March 2024", makeDate(2024, 3, 10)},
    {"year, month, day", "en-US", "2024 March 10", makeDate(2024, 3, 10)},
    {"short form", "en-US", "10-Mar-2024", makeDate(2024, 3, 10)},
    {"short form with a full stop", "en-US", "Mar. 10, 2024", makeDate(2024, 3, 10)},
    {"no blanks", "en-US", "10Mar2024", makeDate(2024, 3, 10)},
    {"two-digit year", "en-US", "10 Mar 99", makeDate(1999, 3, 10)},
    {"capitals", "en-US", "MARCH 10 2024", makeDate(2024, 3, 10)},
    {"missing year", "en-US", "10 March", makeDate(2023, 3, 10)},
    {"missing year, month first", "en-US", "Mar 10", makeDate(2023, 3, 10)},
    {"a month whose name is its short form", "en-US", "May 5, 2024", makeDate(2024, 5, 5)},
    {"German", "de-DE", "10. März 2024", makeDate(2024, 3, 10)},
    {"German capitals", "de-DE", "10. MÄRZ 2024", makeDate(2024, 3, 10)},
    {"German short form", "de-DE", "10. Mär. 2024", makeDate(2024, 3, 10)},
    {"German December", "de-DE", "24. Dez 2024", makeDate(2024, 12, 24)},
    {"French", "fr-FR", "10 août 2024", makeDate(2024, 8, 10)},
    {"French capitals", "fr-FR", "10 DÉCEMBRE 2024", makeDate(2024, 12, 10)},
    {"French short form", "fr-FR", "10 fév 2024", makeDate(2024, 2, 10)},
    {"English in Germany", "de-DE", "10 December 2024", makeDate(2024, 12, 10)},
    {"English short form in France", "fr-FR", "10 Jul 2024", makeDate(2024, 7, 10)},
};

const DateCase kTimes[] = {
    {"time behind a date", "en-US", "3/10/2024 15:05", makeDate(2024, 3, 10, 15, 5)},
    {"seconds", "en-US", "3/10/2024 15:05:09", makeDate(2024, 3, 10, 15, 5, 9)},
    {"PM", "en-US", "3/10/2024 3:05:09 PM", makeDate(2024, 3, 10, 15, 5, 9)},
    {"pm without a blank", "en-US", "3/10/2024 3:05pm", makeDate(2024, 3, 10, 15, 5)},
    {"noon", "en-US", "3/10/2024 12:00 PM", makeDate(2024, 3, 10, 12)},
    {"midnight", "en-US", "3/10/2024 12:00 AM", makeDate(2024, 3, 10)},
    {"time behind a date without a year", "en-US", "3/10 15:05", makeDate(2023, 3, 10, 15, 5)},
    {"time behind a name", "en-US", "March 10 15:05", makeDate(2023, 3, 10, 15, 5)},
    {"time behind a year", "en-US", "March 10, 2024 15:05", makeDate(2024, 3, 10, 15, 5)},
    {"time alone", "en-US", "15:05", makeDate(1899, 12, 30, 15, 5)},
    {"time alone with PM", "en-US", " 3:05:09 PM ", makeDate(1899, 12, 30, 15, 5, 9)},
    {"English marks in Germany", "de-DE", "3:05 PM", makeDate(1899, 12, 30, 15, 5)},
    {"the last second of a day", "en-US", "23:59:59", makeDate(1899, 12, 30, 23, 59, 59)},
};

const NoDateCase kNoDates[] = {
    {"empty", ""},
    {"blank", "   "},
    {"a whole number", "45361"},
    {"a word", "today"},
    {"a month alone", "March"},
    {"a month and a year", "March 2024"},
    {"numeric month and year", "3/2024"},
    {"numeric year and month", "2024/3"},
    // Days that the calendar does not have.
    {"31 April", "4/31/2024"},
    {"31 April by name", "31 April 2024"},
    {"29 February of a common year", "2/29/2023"},
    {"29 February of the present year", "2/29"},
    {"29 February 1900", "2/29/1900"},
    {"month 13 and day 13", "13/13/2024"},
    {"month 0", "0/10/2024"},
    {"day 0", "3/0/2024"},
    {"day 32", "3/32/2024"},
    {"year first, month 13", "2024/13/3"},
    // Years outside 100 to 9999.
    {"year 99 in full", "3/10/0099"},
    {"a year of five digits", "3/10/10000"},
    // Forms that are none.
    {"mixed separators", "3/10-2024"},
    {"blanks between the numbers", "3 10 2024"},
    {"four numbers", "3/10/2024/1"},
    {"a separator at the end", "3/10/"},
    {"a comma at the end", "10 March 2024,"},
    {"two months", "March April 2024"},
    {"an unknown month", "10 Foo 2024"},
    {"two letters of a month", "10 Ma 2024"},
    {"four letters of a month", "10 Sept 2024"},
    {"month, year, day", "March 2024 10"},
    {"a date behind a time", "15:05 3/10/2024"},
    {"two times", "3/10/2024 15:05 16:05"},
    {"a word behind a date", "3/10/2024 noon"},
    // Times that a clock does not show.
    {"hour 24", "24:00"},
    {"minute 60", "15:60"},
    {"second 60", "15:05:60"},
    {"hour 13 PM", "13:05 PM"},
    {"hour 0 AM", "0:05 AM"},
    {"one digit of minutes", "15:5"},
    {"no minutes", "15:"},
    {"an hour alone", "3 PM"},
    {"a mark that is none", "3:05 XM"},
    {"a mark and more", "3:05 PMs"},
    {"a time glued to a date", "10 March15:05"},
    {"a time behind a comma", "10 March, 15:05"},
    {"French in the United States", "10 août 2024"},
    {"letters that two months begin with", "10 jui 2024"},
};

} // namespace

TEST_P(DateTexts, AreReadAsTheRegionWritesThem)
{
    const DateCase& row = GetParam();
    const RegionalSettings settings = regionalSettings(row.region);
    ASSERT_TRUE(IsDate(row.text, settings, kToday)) << row.text;
    EXPECT_EQ(dateParts(ToDate(row.text, settings, kToday)), dateParts(row.date)) << row.text;
    EXPECT_EQ(ToDate(row.text, settings, kToday), row.date) << row.text;
}

INSTANTIATE_TEST_SUITE_P(Numeric, DateTexts, testing::ValuesIn(kNumericDates));
INSTANTIATE_TEST_SUITE_P(Named, DateTexts, testing::ValuesIn(kNamedDates));
INSTANTIATE_TEST_SUITE_P(Times, DateTexts, testing::ValuesIn(kTimes));

TEST_P(TextsThatAreNoDate, AreRefused)
{
    const NoDateCase& row = GetParam();
    EXPECT_FALSE(IsDate(row.text, RegionalSettings(), kToday)) << row.text;
    EXPECT_EQ(errorOf([&] { return ToDate(row.text, RegionalSettings(), kToday); }),
              errors::kTypeMismatch)
        << row.text;
}

INSTANTIATE_TEST_SUITE_P(Forms, TextsThatAreNoDate, testing::ValuesIn(kNoDates));

TEST(DateReader, LettersThatTwoMonthsOfTheRegionBeginWithNameNone)
{
    const RegionalSettings french = regionalSettings("fr-FR");
    EXPECT_FALSE(IsDate("10 jui 2024", french, kToday));
    EXPECT_TRUE(IsDate("10 juin 2024", french, kToday));
}

TEST(DateReader, TheMarksOfTheRegionNameTheHalfDay)
{
    RegionalSettings settings;
    settings.amMark = "a. m.";
    settings.pmMark = "p. m.";
    EXPECT_EQ(ToDate("3:05 P. M.", settings, kToday), makeDate(1899, 12, 30, 15, 5));
    EXPECT_EQ(ToDate("3:05 PM", settings, kToday), makeDate(1899, 12, 30, 15, 5));
    EXPECT_FALSE(IsDate("3:05 p.", settings, kToday));
}

TEST(DateReader, AYearFirstRegionReadsTheYearFirst)
{
    RegionalSettings settings;
    settings.dateOrder = DateOrder::YearMonthDay;
    EXPECT_EQ(ToDate("24/3/10", settings, kToday), makeDate(2024, 3, 10));
    EXPECT_EQ(ToDate("24/13/3", settings, kToday), makeDate(2024, 3, 13));
    EXPECT_EQ(ToDate("3/10", settings, kToday), makeDate(2023, 3, 10));
}

RC_GTEST_PROP(DateReaderProperties, EveryDateReadsBackFromItsShortDateAndLongTime, ())
{
    const auto region = *rc::gen::element<std::string>("en-US", "en-GB", "de-DE", "fr-FR");
    const RegionalSettings settings = regionalSettings(region);
    const Date value =
        makeDate(*rc::gen::inRange(100, 10000), *rc::gen::inRange(1, 13), *rc::gen::inRange(1, 29),
                 *rc::gen::inRange(0, 24), *rc::gen::inRange(0, 60), *rc::gen::inRange(0, 60));
    const std::string text = ShortDate(value, settings) + ' ' + longTime(value, settings);
    RC_ASSERT(ToDate(text, settings, kToday) == value);
}

RC_GTEST_PROP(DateReaderProperties, AnyTextIsADateOrRefusedButNeverAnythingElse, ())
{
    const auto text = *rc::gen::container<std::string>(
        rc::gen::elementOf(std::string("0123456789/-.:, \tMarchPäö€M")));
    const int number = errorOf([&] { return ToDate(text, RegionalSettings(), kToday); });
    RC_ASSERT(number == (IsDate(text, RegionalSettings(), kToday) ? 0 : errors::kTypeMismatch));
}

} // namespace k7deval
