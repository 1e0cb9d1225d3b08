#include "load/LoadRig.h"

#include <gtest/gtest.h>

#include <algorithm>

/// Where the walk of a load evaluation ends: behind the fourth quarter with data, the twelfth
/// quarter, or the first of the specified dates.
namespace k7deval::test
{

namespace
{

using Quarters = std::vector<std::pair<int, int>>;

struct WalkCase {
    const char* what;
    Quarters withData; ///< Each has one hour.
    int read;          ///< From the first quarter of 2024 backward.
    std::int32_t hours;
};

// Four quarters of unit operation: 40 CFR 75 App. A 6.5.2.1. The twelfth is the second of 2021.
const WalkCase kWalks[] = {
    {"the fifth with data is not read",
     {{2024, 1}, {2023, 4}, {2023, 3}, {2023, 2}, {2023, 1}},
     4,
     4},
    {"no data", {}, 12, 0},
    {"two with data in reach and one behind it", {{2024, 1}, {2023, 4}, {2021, 1}}, 12, 2},
    {"empty ones between", {{2024, 1}, {2023, 3}, {2022, 4}, {2022, 2}, {2022, 1}}, 8, 4},
    {"the selected one counts when it is empty, too", {{2021, 2}, {2021, 1}}, 12, 1},
    {"the fourth with data is the twelfth",
     {{2023, 2}, {2022, 2}, {2021, 3}, {2021, 2}, {2021, 1}},
     12,
     4},
};

/// A stretch of specified dates, and the reads that it needs.
struct DatesCase {
    const char* from;
    const char* to;
    Reads reads;
};

ReadRequest days(Date first, int count)
{
    return {kGT1Load, first, count * 24};
}

const DatesCase kDates[] = {
    {"1/15/2024", "2/20/2024", {days(makeDate(2024, 1, 15), 37)}},
    {"12/31/2023", "1/1/2024", {days(makeDate(2024, 1, 1), 1), days(makeDate(2023, 12, 31), 1)}},
    {"6/30/2023",
     "4/1/2024",
     {days(makeDate(2024, 4, 1), 1), days(makeDate(2024, 1, 1), 91),
      days(makeDate(2023, 10, 1), 92), days(makeDate(2023, 7, 1), 92),
      days(makeDate(2023, 6, 30), 1)}},
};

} // namespace

TEST(LoadWalk, EndsBehindTheFourthQuarterWithDataOrTheTwelfthOfAll)
{
    for (const WalkCase& row : kWalks) {
        LoadRig rig;
        for (const auto& [year, quarter] : row.withData)
            rig.hourOf(year, quarter);
        rig.calculate();
        EXPECT_EQ(rig.takeReads(), quartersBackFrom(kGT1Load, 2024, 1, row.read)) << row.what;
        EXPECT_EQ(countsOf(rig.results()), HourCounts{.mid = row.hours}) << row.what;
        EXPECT_FALSE(rig.tool.NeedsEvaluation()) << row.what;
    }
}

TEST(LoadWalk, OneValidHourMakesAQuarterOneWithDataWhateverItsValue)
{
    LoadRig rig;
    rig.hourOf(2024, 1, -5).hourOf(2023, 4, 500).hourOf(2023, 3, 0).hourOf(2023, 2, 100);
    rig.hourOf(2023, 1, 50).calculate();
    EXPECT_EQ(rig.takeReads().size(), 4U);
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.low = 1, .high = 1, .over = 1, .under = 1}));
}

TEST(LoadWalk, HoursThatAreNotUsedMakeNoQuarterOneWithData)
{
    LoadRig rig;
    rig.series().set(makeDate(2024, 2, 1), 50, 1);
    rig.series().set(makeDate(2024, 2, 2), 50, 2);
    rig.series().set(makeDate(2024, 2, 3), std::nullopt);
    rig.hourOf(2023, 4).hourOf(2023, 3).hourOf(2023, 2).hourOf(2023, 1).calculate();
    EXPECT_EQ(rig.takeReads().size(), 5U);
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 4}));
}

TEST(LoadWalk, OfSpecifiedDatesTakesEveryHourOfItsDaysAndNoOther)
{
    for (const DatesCase& dates : kDates) {
        LoadRig rig;
        rig.series().fill(makeDate(2023, 1, 1), makeDate(2024, 12, 31, 23), 50);
        rig.specify(dates.from, dates.to).calculate();
        EXPECT_EQ(rig.takeReads(), dates.reads) << dates.from << " to " << dates.to;
        std::int32_t hours = 0;
        for (const ReadRequest& read : dates.reads)
            hours += read.count;
        EXPECT_EQ(countsOf(rig.results()), HourCounts{.mid = hours})
            << dates.from << " to " << dates.to;
    }
}

TEST(LoadWalk, OfSpecifiedDatesIsEndedByNoQuarterWithDataOrWithoutIt)
{
    LoadRig rig;
    rig.hourOf(2024, 1).hourOf(2023, 4).hourOf(2023, 3).hourOf(2023, 2).hourOf(2023, 1);
    rig.specify("1/1/2023", "3/31/2024").calculate();
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 5}));
    rig.takeReads();
    rig.specify("12/31/2023", "1/1/2019").calculate();
    EXPECT_EQ(rig.takeReads(), quartersBackFrom(kGT1Load, 2023, 4, 20)) << "swapped";
}

TEST(LoadWalk, AsksWhetherTheParameterExistsBeforeItIsFetched)
{
    LoadRig rig;
    rig.site->calls.clear();
    rig.calculate();
    const auto& calls = rig.site->calls;
    const auto at = [&](const char* call) {
        return std::find(calls.begin(), calls.end(), call) - calls.begin();
    };
    EXPECT_LT(at("DIParameters.Exists"), at("DIParameters.Item"));
    EXPECT_LT(at("DIParameters.Item"), at("DIParameter.ReadData"));
}

} // namespace k7deval::test
