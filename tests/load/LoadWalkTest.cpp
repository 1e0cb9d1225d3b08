#include "load/LoadRig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

/// Which hours a load evaluation reads: quarter by quarter, from the newest backward.
namespace k7deval::test
{

namespace
{

using Reads = std::vector<ReadRequest>;

constexpr int kHoursADay = 24;

/// A whole quarter of the load.
ReadRequest quarter(int year, int number)
{
    const Date first = makeDate(year, 3 * number - 2, 1);
    const Date next = makeDate(year, 3 * number + 1, 1);
    return {kGT1Load, first, static_cast<std::int32_t>(next.days - first.days) * kHoursADay};
}

/// So many quarters, from one of a year backward.
Reads quartersBackFrom(int year, int number, int count)
{
    Reads reads;
    for (int i = 0; i < count; ++i) {
        reads.push_back(quarter(year, number));
        if (--number == 0) {
            number = 4;
            --year;
        }
    }
    return reads;
}

struct WalkRig : LoadRig {
    explicit WalkRig(Date now = makeDate(2024, 5, 10)) : LoadRig(siteOfLoads(), now) {}
    WalkRig& hour(const Date& time, std::optional<double> value = 50, std::int32_t status = 0)
    {
        load().set(time, value, status);
        return *this;
    }
    /// The middle of a quarter is one hour of load.
    WalkRig& hourOf(int year, int number, double value = 50)
    {
        return hour(makeDate(year, 3 * number - 1, 15, 12), value);
    }
    Reads readsOfCalculation()
    {
        calculate();
        return takeReads();
    }
};

/// A stretch of specified dates, and the reads that it needs.
struct DatesCase {
    const char* from;
    const char* to;
    Reads reads;
};

ReadRequest days(Date first, int count)
{
    return {kGT1Load, first, count * kHoursADay};
}

const DatesCase kDates[] = {
    {"1/15/2024", "2/20/2024", {days(makeDate(2024, 1, 15), 37)}},
    {"11/15/2023", "2/20/2024", {days(makeDate(2024, 1, 1), 51), days(makeDate(2023, 11, 15), 47)}},
    {"1/1/2024", "3/31/2024", {days(makeDate(2024, 1, 1), 91)}},
    {"12/31/2023", "1/1/2024", {days(makeDate(2024, 1, 1), 1), days(makeDate(2023, 12, 31), 1)}},
    {"1/1/2024", "1/1/2024", {days(makeDate(2024, 1, 1), 1)}},
    {"3/31/2024", "3/31/2024", {days(makeDate(2024, 3, 31), 1)}},
    {"2/28/2024", "3/1/2024", {days(makeDate(2024, 2, 28), 3)}},
    {"2/28/2023", "3/1/2023", {days(makeDate(2023, 2, 28), 2)}},
    {"3/9/2024", "3/11/2024", {days(makeDate(2024, 3, 9), 3)}},
    {"11/2/2024", "11/4/2024", {days(makeDate(2024, 11, 2), 3)}},
    {"6/30/2023",
     "4/1/2024",
     {days(makeDate(2024, 4, 1), 1), days(makeDate(2024, 1, 1), 91),
      days(makeDate(2023, 10, 1), 92), days(makeDate(2023, 7, 1), 92),
      days(makeDate(2023, 6, 30), 1)}},
};

} // namespace

TEST(LoadQuarters, FourWithDataAreReadFromTheSelectedOneBackward)
{
    WalkRig rig;
    rig.load().fill(makeDate(2020, 1, 1), makeDate(2024, 12, 31, 23), 50);
    EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(2024, 1, 4));
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = (91 + 92 + 92 + 91) * kHoursADay}));
}

TEST(LoadQuarters, ALeapDayHasItsHours)
{
    EXPECT_EQ(quarter(2024, 1).count, 2184);
    EXPECT_EQ(quarter(2023, 1).count, 2160);
    WalkRig rig(makeDate(2023, 5, 10));
    EXPECT_EQ(rig.readsOfCalculation().front(), quarter(2023, 1));
}

TEST(LoadQuarters, AnyQuarterAndYearCanBeTheNewest)
{
    for (int number = 1; number <= 4; ++number) {
        WalkRig rig;
        rig.tool.cmbQTR.Pick(number - 1);
        rig.tool.cmbYear.Pick(2);
        EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(2022, number, 12)) << number;
    }
}

TEST(LoadQuarters, TwelveAreReadAtMost)
{
    WalkRig rig;
    EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(2024, 1, 12));
    EXPECT_EQ(countsOf(rig.results()), HourCounts());
    EXPECT_FALSE(rig.tool.NeedsEvaluation());
}

TEST(LoadQuarters, DataInTheTwoNewestAloneIsSoughtForInTwelve)
{
    WalkRig rig;
    rig.hourOf(2024, 1).hourOf(2023, 4).hourOf(2021, 1);
    EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(2024, 1, 12));
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 2}));
}

TEST(LoadQuarters, EmptyOnesBetweenAreSkippedAndTheFourthWithDataIsTheLast)
{
    WalkRig rig;
    rig.hourOf(2024, 1).hourOf(2023, 3).hourOf(2022, 4).hourOf(2022, 2).hourOf(2022, 1);
    EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(2024, 1, 8));
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 4}));
}

TEST(LoadQuarters, TheSelectedOneCountsAmongTheTwelveAlsoWhenItIsEmpty)
{
    WalkRig rig;
    rig.hourOf(2021, 2).hourOf(2021, 1);
    EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(2024, 1, 12));
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 1})) << "2021 Q2 is the twelfth";
}

TEST(LoadQuarters, TheFourthWithDataMayBeTheTwelfth)
{
    WalkRig rig;
    rig.hourOf(2023, 2).hourOf(2022, 2).hourOf(2021, 3).hourOf(2021, 2).hourOf(2021, 1);
    EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(2024, 1, 12));
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 4}));
}

TEST(LoadQuarters, OneValidHourMakesAQuarterOneWithDataWhateverItsValue)
{
    WalkRig rig;
    rig.hourOf(2024, 1, -5).hourOf(2023, 4, 500).hourOf(2023, 3, 0).hourOf(2023, 2, 100);
    rig.hourOf(2023, 1, 50);
    EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(2024, 1, 4));
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.low = 1, .high = 1, .over = 1, .under = 1}));
}

TEST(LoadQuarters, HoursThatAreNotUsedMakeNone)
{
    WalkRig rig;
    rig.hour(makeDate(2024, 2, 1), 50, 1).hour(makeDate(2024, 2, 2), 50, 2);
    rig.hour(makeDate(2024, 2, 3), std::nullopt, 0);
    rig.hourOf(2023, 4).hourOf(2023, 3).hourOf(2023, 2).hourOf(2023, 1);
    EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(2024, 1, 5));
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 4}));
}

TEST(LoadQuarters, ReachFromTheFirstHourToTheLast)
{
    WalkRig rig;
    rig.hour(makeDate(2024, 4, 1, 0)).hour(makeDate(2024, 3, 31, 23), 10);
    rig.hour(makeDate(2024, 1, 1, 0), 70).hour(makeDate(2023, 12, 31, 23), -1);
    rig.calculate();
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.low = 1, .high = 1, .under = 1}));
}

TEST(LoadQuarters, OfYearsLongAgoAreReadAlike)
{
    for (const auto& [year, first] : {std::pair("1900", 1900), {"1850", 1850}, {"150", 150}}) {
        WalkRig rig;
        rig.tool.cmbYear.Type(year);
        EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(first, 1, 12)) << year;
    }
}

TEST(LoadQuarters, BeforeTheFirstYearThereAreNone)
{
    WalkRig rig;
    rig.tool.cmbYear.Type("100");
    EXPECT_EQ(errorOf([&] { rig.calculate(); }), 5);
    EXPECT_EQ(rig.takeReads(), quartersBackFrom(100, 1, 1));
    EXPECT_TRUE(rig.tool.NeedsEvaluation());
}

TEST(LoadQuarters, TheLastDayOfTheLastYearHasNoNextOne)
{
    WalkRig rig;
    rig.tool.cmbYear.Type("9999");
    rig.tool.cmbQTR.Pick(3);
    EXPECT_EQ(errorOf([&] { rig.calculate(); }), 5);
    rig.tool.cmbQTR.Pick(2);
    EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(9999, 3, 12));
}

TEST(LoadDateWalk, ReadsTheQuartersThatTheDatesTouch)
{
    for (const DatesCase& dates : kDates) {
        WalkRig rig;
        rig.specify(dates.from, dates.to);
        EXPECT_EQ(rig.readsOfCalculation(), dates.reads) << dates.from << " to " << dates.to;
        EXPECT_FALSE(rig.tool.NeedsEvaluation());
    }
}

TEST(LoadDateWalk, TakesEveryHourOfItsDaysAndNoOther)
{
    for (const DatesCase& dates : kDates) {
        WalkRig rig;
        rig.load().fill(makeDate(2023, 1, 1), makeDate(2024, 12, 31, 23), 50);
        rig.specify(dates.from, dates.to).calculate();
        std::int32_t hours = 0;
        for (const ReadRequest& read : dates.reads)
            hours += read.count;
        EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = hours}))
            << dates.from << " to " << dates.to;
    }
}

TEST(LoadDateWalk, EmptyQuartersDoNotEndIt)
{
    WalkRig rig;
    rig.hourOf(2023, 1, 10).hourOf(2024, 1, 70);
    rig.specify("2/1/2023", "3/31/2024").calculate();
    EXPECT_EQ(rig.takeReads().size(), 5U);
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.low = 1, .high = 1}));
}

TEST(LoadDateWalk, FiveQuartersWithDataAreAllTaken)
{
    WalkRig rig;
    for (const auto& [year, number] :
         {std::pair(2024, 1), {2023, 4}, {2023, 3}, {2023, 2}, {2023, 1}})
        rig.hourOf(year, number);
    rig.specify("1/1/2023", "3/31/2024").calculate();
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 5}));
}

TEST(LoadDateWalk, ReversedDatesOfYearsAreReadByQuarters)
{
    WalkRig rig;
    rig.specify("12/31/2023", "1/1/2019");
    EXPECT_EQ(rig.readsOfCalculation(), quartersBackFrom(2023, 4, 20));
}

TEST(LoadWalk, ReadsTheParameterThatIsPicked)
{
    auto site =
        siteOfParameters({hourlyNamed(kGT1Load, "GT1 Load"), hourlyNamed(131'017'512, "Steam")});
    LoadRig rig(site);
    enter(rig.tool.txtCapacity, "100");
    rig.tool.cmbParam.Pick(1);
    rig.specify("1/1/2024", "1/2/2024").calculate();
    EXPECT_EQ(rig.takeReads(), (Reads{{131'017'512, makeDate(2024, 1, 1), 48}}));
}

TEST(LoadWalk, ReadsIntoOneSet)
{
    WalkRig rig;
    rig.calculate();
    const std::set<const DIDataSet*> sets(rig.site->readSets.begin(), rig.site->readSets.end());
    EXPECT_EQ(rig.site->readSets.size(), 12U);
    EXPECT_EQ(sets.size(), 1U);
}

TEST(LoadWalk, AsksWhetherTheParameterExistsBeforeItIsFetched)
{
    WalkRig rig;
    rig.site->calls.clear();
    rig.calculate();
    const auto& calls = rig.site->calls;
    const auto at = [&](const char* call) {
        return std::find(calls.begin(), calls.end(), call) - calls.begin();
    };
    EXPECT_LT(at("DIParameters.Exists"), at("DIParameters.Item"));
    EXPECT_LT(at("DIParameters.Item"), at("DIParameter.ReadData"));
    EXPECT_EQ(rig.site->countCalls("DIParameter.ReadData"), 12U);
}

} // namespace k7deval::test
