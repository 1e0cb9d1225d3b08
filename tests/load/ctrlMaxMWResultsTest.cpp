#include "load/LoadRig.h"

#include <gtest/gtest.h>

/// What the load tool shows of its results.
namespace k7deval::test
{

namespace
{

const Lines kDashes{"-----", "-----", "-----"};

/// Hours in each of the levels of 0 to 100.
struct LevelsRig : LoadRig {
    LevelsRig(std::size_t low, std::size_t mid, std::size_t high,
              const std::string& region = "en-US")
        : LoadRig(siteOfLoads(), makeDate(2024, 5, 10), region)
    {
        addHours(low, 10).addHours(mid, 50).addHours(high, 90).calculate();
    }
};

struct PercentCase {
    std::size_t low;
    std::size_t mid;
    std::size_t high;
    const char* percents[3];
};

constexpr PercentCase kPercents[] = {
    {1, 0, 2, {"33.3", "0.0", "66.7"}},    {1, 1, 1, {"33.3", "33.3", "33.3"}},
    {1, 0, 0, {"100.0", "0.0", "0.0"}},    {1, 3, 12, {"6.3", "18.8", "75.0"}},
    {1, 1, 6, {"12.5", "12.5", "75.0"}},   {1, 1998, 1, {"0.1", "99.9", "0.1"}},
    {1, 2000, 0, {"0.0", "100.0", "0.0"}}, {7, 200, 1, {"3.4", "96.2", "0.5"}},
};

} // namespace

TEST(LoadResults, ShowTheValuesAtTheFourMarks)
{
    LoadRig rig;
    rig.calculate();
    EXPECT_EQ(scaleOf(rig.tool), (Lines{"0", "30", "60", "100"}));
    rig.range("12.5", "187.3").calculate();
    EXPECT_EQ(scaleOf(rig.tool), (Lines{"12.5", "64.94", "117.38", "187.3"}));
    rig.range("-10", "12345678").calculate();
    EXPECT_EQ(scaleOf(rig.tool), (Lines{"-10", "3703696", "7407403", "1.234568E+07"}));
}

TEST(LoadResults, AreWrittenAsTheRegionDoes)
{
    LevelsRig rig(1, 0, 2, "de-DE");
    EXPECT_EQ(percentsOf(rig.tool),
              (Lines{"33,3% Low Op Load", "0,0% Mid Op Load", "66,7% High Op Load"}));
    rig.range("12,5", "20,1").hours({13, 30.25}).calculate();
    EXPECT_EQ(scaleOf(rig.tool), (Lines{"12,5", "14,78", "17,06", "20,1"}));
    EXPECT_EQ(rig.tool.lblBelow.Caption(), "0 hour(s) under 12,5");
    EXPECT_EQ(rig.tool.lblAbove.Caption(), "1 hour(s) over 20,1 - Maximum 30,25");
    EXPECT_EQ(rig.tool.lblBar[2].ToolTipText(), "12,88 - 13,26   Op Hours: 1");
}

TEST(LoadResults, ShowTheShareOfEveryLevel)
{
    for (const PercentCase& expected : kPercents) {
        const LevelsRig rig(expected.low, expected.mid, expected.high);
        EXPECT_EQ(percentsOf(rig.tool),
                  (Lines{std::string(expected.percents[0]) + "% Low Op Load",
                         std::string(expected.percents[1]) + "% Mid Op Load",
                         std::string(expected.percents[2]) + "% High Op Load"}));
    }
}

TEST(LoadResults, CountTheHoursUnderTheMinimum)
{
    LoadRig rig;
    rig.range("12.5", "100").hours({1, 12.4, 12.5}).calculate();
    EXPECT_EQ(rig.tool.lblBelow.Caption(), "2 hour(s) under 12.5");
}

TEST(LoadResults, CountTheHoursOverTheCapacityWithTheirMaximum)
{
    LoadRig rig;
    rig.hours({100.1, 250.25, 101}).calculate();
    EXPECT_EQ(rig.tool.lblAbove.Caption(), "3 hour(s) over 100 - Maximum 250.25");
}

TEST(LoadResults, WithoutHoursOverTheCapacityNoMaximumIsShown)
{
    LoadRig rig;
    rig.hours({250}).calculate();
    rig.hours({50}).range("1", "100").calculate();
    EXPECT_EQ(rig.results().MaxObserved, 250);
    EXPECT_EQ(rig.tool.lblAbove.Caption(), "0 hours(s) over 100");
}

TEST(LoadResults, ShowTheMaximumOfAnEarlierEvaluation)
{
    LoadRig rig;
    rig.hours({250}).calculate();
    rig.hours({120, 110}).range("1", "100").calculate();
    EXPECT_EQ(rig.tool.lblAbove.Caption(), "2 hour(s) over 100 - Maximum 250");
}

TEST(LoadResults, OfHoursUnderTheMinimumAloneAreDashesAndFlatBars)
{
    LoadRig rig;
    rig.hours({-1, -2, -3}).calculate();
    EXPECT_EQ(percentsOf(rig.tool), kDashes);
    EXPECT_EQ(rig.tool.lblBelow.Caption(), "3 hour(s) under 0");
    EXPECT_TRUE(barsLieFlat(rig.tool.lblBar));
}

TEST(LoadResults, OfNoRangeAreDashesAndFlatBars)
{
    LoadRig rig;
    rig.range("100", "100").hours({100}).calculate();
    EXPECT_EQ(percentsOf(rig.tool), kDashes);
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 GT1 Load");
    EXPECT_EQ(scaleOf(rig.tool), (Lines{"100", "100", "100", "100"}));
    EXPECT_TRUE(barsLieFlat(rig.tool.lblBar));
}

TEST(LoadBars, TellTheirRangeAboveTheMinimum)
{
    LoadRig rig;
    rig.range("12.5", "187.3").hours({12.5}).calculate();
    EXPECT_EQ(rig.tool.lblBar[1].ToolTipText(), "12.5 - 21.24   Op Hours: 1");
    EXPECT_EQ(rig.tool.lblBar[2].ToolTipText(), "21.24 - 29.98   Op Hours: 0");
    EXPECT_EQ(rig.tool.lblBar[20].ToolTipText(), "178.56 - 187.3   Op Hours: 0");
}

} // namespace k7deval::test
