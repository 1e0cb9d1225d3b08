#include "sitedb/tables/TimeText.h"

#include "foundation/Error.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace k7deval::sitedb::test
{

namespace
{

struct DayCase {
    const char* text = "";
    std::optional<std::int64_t> number;
};

const DayCase kDays[] = {
    {"1900-01-01", 2},
    {"2020-02-29", 43'890},
    {"2199-12-31", 109'574},
    {"1899-12-31", std::nullopt},
    {"2200-01-01", std::nullopt},
    {"2021-02-29", std::nullopt},
    {"2020-00-10", std::nullopt},
    {"2020-13-10", std::nullopt},
    {"2020-10-00", std::nullopt},
    {"2020-10-32", std::nullopt},
    {"2020-1-01", std::nullopt},
    {"2020/01/01", std::nullopt},
    {" 2020-01-01", std::nullopt},
    {"2020-01-01 ", std::nullopt},
    {"+020-01-01", std::nullopt},
    {"", std::nullopt},
};

TEST(TimeText, ADayIsACalendarDayInItsOneSpelling)
{
    for (const auto& entry : kDays)
        EXPECT_EQ(dayNumber(entry.text), entry.number) << entry.text;
}

TEST(TimeText, SecondsAreCutOffOrRoundedUpToTheMinute)
{
    const Date time = makeDate(2020, 2, 28, 23, 59, 30);
    EXPECT_EQ(minuteText(time), "2020-02-28 23:59");
    EXPECT_EQ(minuteTextFrom(time), "2020-02-29 00:00");
    EXPECT_EQ(minuteTextFrom(makeDate(2020, 2, 28, 23, 59)), "2020-02-28 23:59");
    EXPECT_EQ(minuteText("2020-02-28", 3, 4), "2020-02-28 03:04");
}

TEST(TimeText, ATextThatIsNoTimeIsAnError)
{
    for (const char* text :
         {"", "2020-01-01", "2020-01-01 24:00", "2020-01-01 10:60", "2020-01-01T10:00",
          "2020-02-30 10:00", "2020-01-01 1:000", "2020-01-01 10:00x"}) {
        try {
            static_cast<void>(dateOfMinute(text));
            ADD_FAILURE() << text;
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), errors::kTypeMismatch);
            EXPECT_EQ(error.description(),
                      "\"" + std::string(text) + R"(" is no time in the site database.)");
        }
    }
}

TEST(TimeText, EveryMinuteComesBack)
{
    EXPECT_TRUE(rc::check("text and back", [] {
        const Date time = dateFromSeconds(*rc::gen::inRange<std::int64_t>(2880, 150'000'000) * 60);
        RC_ASSERT(dateOfMinute(minuteText(time)) == time);
        RC_ASSERT(minuteTextFrom(time) == minuteText(time));
        RC_ASSERT(dayNumber(dayText(time)) == dayBoundariesBetween(Date{}, time));
    }));
}

} // namespace

} // namespace k7deval::sitedb::test
