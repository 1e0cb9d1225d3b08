#include "histogram/Quarters.h"

#include "foundation/ExpectError.h"
#include "support/FakeSite.h"

#include <gtest/gtest.h>

#include <set>

/// Hours read a calendar quarter at a time, from the newest backward.
namespace k7deval::test
{

namespace
{

constexpr PID kSeries = 112017500;

/// A site of one hourly series without any hours yet.
std::shared_ptr<SiteData> siteOfOneSeries()
{
    auto site = std::make_shared<SiteData>();
    site->parameters.emplace_back();
    site->parameters.back().pid = kSeries;
    return site;
}

/// The stretches that a walk reads, until it has taken so many.
struct Walk {
    Walk(Date lastHour, std::optional<Date> firstDay, int most)
    {
        const auto parameter = serve(site)->Parameters()->Item(kSeries, -1);
        histogram::walkQuarters(*parameter, lastHour, firstDay, [&](const DIDataSet& hours) {
            taken.push_back({kSeries, hours.StartTime(), hours.Count()});
            return static_cast<int>(taken.size()) < most;
        });
    }

    std::shared_ptr<SiteData> site = siteOfOneSeries();
    std::vector<ReadRequest> taken;
};

ReadRequest stretch(Date start, int days)
{
    return {kSeries, start, days * 24};
}

using Stretches = std::vector<ReadRequest>;

} // namespace

TEST(QuarterWalk, ReadsWholeQuartersBackwardUntilItIsTold)
{
    const Walk walk(makeDate(2025, 3, 31, 23), {}, 6);
    const Stretches expected{
        stretch(makeDate(2025, 1, 1), 90), stretch(makeDate(2024, 10, 1), 92),
        stretch(makeDate(2024, 7, 1), 92), stretch(makeDate(2024, 4, 1), 91),
        stretch(makeDate(2024, 1, 1), 91), stretch(makeDate(2023, 10, 1), 92),
    };
    EXPECT_EQ(walk.site->reads, expected);
    EXPECT_EQ(walk.taken, expected) << "each is taken as it was read";
}

TEST(QuarterWalk, AFirstQuarterHasADayMoreInALeapYear)
{
    for (const auto& [year, days] :
         {std::pair(2023, 90), {2024, 91}, {2100, 90}, {2000, 91}, {1900, 90}}) {
        const Walk walk(makeDate(year, 3, 31, 23), {}, 1);
        EXPECT_EQ(walk.site->reads, Stretches{stretch(makeDate(year, 1, 1), days)}) << year;
    }
}

TEST(QuarterWalk, ADayOfTheClockChangeHasTwentyFourHoursToo)
{
    // Hours are local standard time all year: 31 March and 27 October 2024 are days as any other.
    const Walk walk(makeDate(2024, 12, 31, 23), {}, 4);
    int hours = 0;
    for (const ReadRequest& read : walk.site->reads)
        hours += read.count;
    EXPECT_EQ(hours, 366 * 24);
}

TEST(QuarterWalk, ReadsIntoOneDataSet)
{
    const Walk walk(makeDate(2024, 12, 31, 23), {}, 12);
    const std::set<const DIDataSet*> sets(walk.site->readSets.begin(), walk.site->readSets.end());
    EXPECT_EQ(walk.site->readSets.size(), 12U);
    EXPECT_EQ(sets.size(), 1U);
}

TEST(QuarterWalk, AnHourOfOneQuarterIsNotLeftInTheNext)
{
    const auto site = siteOfOneSeries();
    site->parameter(kSeries).hours.fill(makeDate(2024, 7, 1), makeDate(2024, 9, 30, 23), 12.5, 35);
    int quarters = 0;
    const auto parameter = serve(site)->Parameters()->Item(kSeries, -1);
    histogram::walkQuarters(*parameter, makeDate(2024, 9, 30, 23), {}, [&](const auto& hours) {
        DIDataSet set = hours;
        EXPECT_EQ(isNull(set.ItemByIndex(1).Value()), quarters == 1);
        EXPECT_EQ(set.ItemByIndex(1).Status(), quarters == 0 ? 35 : 0);
        return ++quarters < 2;
    });
    EXPECT_EQ(quarters, 2);
}

TEST(QuarterWalk, WithAFirstDayInsideTheQuarterBeginsThere)
{
    const Walk walk(makeDate(2024, 2, 20, 23), makeDate(2024, 1, 15), 99);
    EXPECT_EQ(walk.site->reads, Stretches{stretch(makeDate(2024, 1, 15), 37)});
}

TEST(QuarterWalk, WithAFirstDayInAnEarlierQuarterEndsThere)
{
    const Walk walk(makeDate(2024, 2, 20, 23), makeDate(2023, 11, 15), 99);
    EXPECT_EQ(walk.site->reads,
              (Stretches{stretch(makeDate(2024, 1, 1), 51), stretch(makeDate(2023, 11, 15), 47)}));
}

TEST(QuarterWalk, WithAFirstDayThatBeginsAQuarterReadsNothingBeforeIt)
{
    const Walk walk(makeDate(2024, 6, 30, 23), makeDate(2024, 1, 1), 99);
    EXPECT_EQ(walk.site->reads,
              (Stretches{stretch(makeDate(2024, 4, 1), 91), stretch(makeDate(2024, 1, 1), 91)}));
}

TEST(QuarterWalk, OfOneDayReadsThatDay)
{
    const Walk walk(makeDate(2024, 5, 5, 23), makeDate(2024, 5, 5), 99);
    EXPECT_EQ(walk.site->reads, Stretches{stretch(makeDate(2024, 5, 5), 1)});
}

TEST(QuarterWalk, WithAFirstDayWalksMoreThanTwelveQuarters)
{
    const Walk walk(makeDate(2024, 12, 31, 23), makeDate(2020, 1, 1), 99);
    EXPECT_EQ(walk.site->reads.size(), 20U);
}

TEST(QuarterWalk, StopsWhereItIsToldAlsoWithAFirstDay)
{
    const Walk walk(makeDate(2024, 12, 31, 23), makeDate(2020, 1, 1), 2);
    EXPECT_EQ(walk.site->reads.size(), 2U);
}

TEST(QuarterWalk, CannotLeaveTheYearsThatADateCanHave)
{
    EXPECT_EQ(errorOf([] { return Walk(makeDate(100, 3, 31, 23), {}, 2).taken.size(); }), 5);
    EXPECT_EQ(Walk(makeDate(100, 3, 31, 23), {}, 1).taken.size(), 1U);
}

TEST(QuarterWalk, AFailureOfTheDataEndsIt)
{
    const auto site = siteOfOneSeries();
    const auto parameter = serve(site)->Parameters()->Item(kSeries, -1);
    site->failure = [&](const std::string& call, std::size_t) {
        return call == "DIParameter.ReadData" && site->countCalls(call) == 2
                   ? std::optional(Error(440))
                   : std::nullopt;
    };
    int taken = 0;
    EXPECT_EQ(errorOf([&] {
                  histogram::walkQuarters(*parameter, makeDate(2024, 12, 31, 23), {},
                                          [&](const auto&) { return ++taken < 9; });
                  return 0;
              }),
              440);
    EXPECT_EQ(taken, 1);
}

} // namespace k7deval::test
