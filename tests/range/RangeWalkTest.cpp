#include "range/RangeRig.h"

#include <gtest/gtest.h>

/// How far back the hours are read: to four quarters with any hour and more than 720 hours, or to
/// twelve quarters.
namespace k7deval::test
{

namespace
{

struct QuarterHours {
    int quartersBack; ///< From the first quarter of 2024.
    int hours;
    double value = 50;
    std::int32_t status = 34;
};

Date quarterStart(int quartersBack)
{
    return makeDate(2024, 1 - 3 * quartersBack, 1);
}

/// The tool with so many hours at the beginning of quarters.
struct WalkRig : RangeRig {
    explicit WalkRig(const std::vector<QuarterHours>& quarters)
    {
        for (const QuarterHours& quarter : quarters) {
            const Date start = quarterStart(quarter.quartersBack);
            const Date last = dateFromSeconds(wholeSeconds(start) + (quarter.hours - 1) * 3600);
            series().fill(start, last, quarter.value, quarter.status);
        }
        calculate();
    }
    [[nodiscard]] std::size_t quartersRead() const { return site->reads.size(); }
};

std::vector<QuarterHours> evenly(int quarters, int hours)
{
    std::vector<QuarterHours> all;
    for (int quarter = 0; quarter < quarters; ++quarter)
        all.push_back({quarter, hours});
    return all;
}

struct WalkCase {
    const char* what;
    std::vector<QuarterHours> quarters;
    std::size_t read;
    std::int32_t midHours;
};

std::vector<WalkCase> walkCases()
{
    return {
        {"four quarters with 720 hours are too few, five are read", evenly(12, 180), 5, 900},
        {"four quarters with 721 hours are enough",
         {{0, 181}, {1, 180}, {2, 180}, {3, 180}, {4, 180}},
         4,
         721},
        {"the hour that is missing may be the oldest",
         {{0, 180}, {1, 180}, {2, 180}, {3, 181}},
         4,
         721},
        {"many hours in three quarters are not enough",
         {{0, 2000}, {1, 2000}, {2, 2000}},
         12,
         6000},
        {"the fourth quarter may be later", {{0, 2000}, {1, 2000}, {2, 2000}, {6, 1}}, 7, 6001},
        {"an hour a quarter goes to the limit", evenly(20, 1), 12, 12},
        {"the last quarter is counted whole", evenly(12, 2000), 4, 8000},
        {"data in the chosen quarter alone", {{0, 2000}}, 12, 2000},
        {"data in the twelfth quarter alone", {{11, 5}}, 12, 5},
        {"data behind the limit", {{12, 2000}, {13, 2000}}, 12, 0},
        {"no data", {}, 12, 0},
        {"an empty quarter in between", {{0, 500}, {2, 500}, {4, 500}, {5, 500}}, 6, 2000},
        {"eight quarters of ninety hours", evenly(12, 90), 9, 810},
    };
}

} // namespace

TEST(RangeWalk, GoesBackUntilBothMinimaAreMetOrTwelveQuartersAreRead)
{
    for (const WalkCase& row : walkCases()) {
        const WalkRig rig(row.quarters);
        EXPECT_EQ(rig.quartersRead(), row.read) << row.what;
        EXPECT_EQ(rig.results().MidHours, row.midHours) << row.what;
        EXPECT_FALSE(rig.tool.NeedsEvaluation()) << row.what;
    }
}

TEST(RangeWalk, HoursOverTheRangeCountForBothMinima)
{
    const WalkRig rig({{0, 400, 150}, {1, 300, 150}, {2, 20, 150}, {3, 1, 150}, {4, 9, 150}});
    EXPECT_EQ(rig.quartersRead(), 4U);
    EXPECT_EQ(rig.results().OverRangeHours, 721);
}

TEST(RangeWalk, HoursThatCannotBeUsedMakeNoQuarterAnOperatingOne)
{
    // Word 1 excludes an hour, word 2 marks it off-line.
    const WalkRig rig(
        {{0, 2000}, {1, 2000, 50, 1}, {2, 2000, 50, 2}, {3, 2000}, {4, 2000}, {5, 2000}});
    EXPECT_EQ(rig.quartersRead(), 6U);
    EXPECT_EQ(rig.results().InvalidHours, 2000);
    EXPECT_EQ(rig.results().MidHours, 8000);
}

TEST(RangeWalk, InvalidHoursOfEmptyQuartersAreCountedToo)
{
    const WalkRig rig({{5, 10, 50, 1}});
    EXPECT_EQ(rig.quartersRead(), 12U);
    EXPECT_EQ(rig.results().InvalidHours, 10);
}

TEST(RangeWalk, ReadsTheParameterThatIsPicked)
{
    RangeRig rig(siteOfTwoUnits());
    rig.tool.cmbParam.Pick(1);
    rig.calculate();
    EXPECT_EQ(rig.takeReads().front().pid, 123017500);
    rig.tool.cmbUnit.Pick(1);
    rig.calculate();
    EXPECT_EQ(rig.takeReads().front().pid, 212017500);
}

} // namespace k7deval::test
