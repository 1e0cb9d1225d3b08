#include "load/LoadRig.h"

#include <gtest/gtest.h>

/// The load tool before it has data.
namespace k7deval::test
{

namespace
{

struct QuarterCase {
    int month;
    const char* quarter;
    int quarterRow;
    const char* year;
    int yearRow;
    const char* from;
    const char* to;
};

// In 2024: the newest quarter that is over.
constexpr QuarterCase kQuarters[] = {
    {1, "Q4", 3, "2023", 1, "10/1/2023", "12/31/2023"},
    {2, "Q4", 3, "2023", 1, "10/1/2023", "12/31/2023"},
    {3, "Q4", 3, "2023", 1, "10/1/2023", "12/31/2023"},
    {4, "Q1", 0, "2024", 0, "1/1/2024", "3/31/2024"},
    {5, "Q1", 0, "2024", 0, "1/1/2024", "3/31/2024"},
    {6, "Q1", 0, "2024", 0, "1/1/2024", "3/31/2024"},
    {7, "Q2", 1, "2024", 0, "4/1/2024", "6/30/2024"},
    {8, "Q2", 1, "2024", 0, "4/1/2024", "6/30/2024"},
    {9, "Q2", 1, "2024", 0, "4/1/2024", "6/30/2024"},
    {10, "Q3", 2, "2024", 0, "7/1/2024", "9/30/2024"},
    {11, "Q3", 2, "2024", 0, "7/1/2024", "9/30/2024"},
    {12, "Q3", 2, "2024", 0, "7/1/2024", "9/30/2024"},
};

void expectPreselected(const ctrlMaxMW& tool, const QuarterCase& expected, const std::string& when)
{
    EXPECT_EQ(tool.cmbQTR.Text(), expected.quarter) << when;
    EXPECT_EQ(tool.cmbQTR.ListIndex(), expected.quarterRow) << when;
    EXPECT_EQ(tool.cmbYear.Text(), expected.year) << when;
    EXPECT_EQ(tool.cmbYear.ListIndex(), expected.yearRow) << when;
    EXPECT_EQ(tool.txtFrom.Text(), expected.from) << when;
    EXPECT_EQ(tool.txtTo.Text(), expected.to) << when;
}

/// The last moment of a month of 2024.
Date endOf(int month)
{
    return makeDate(2024, month + 1, 1, 0, 0, -1);
}

} // namespace

TEST(LoadToolStart, PreselectsTheNewestFinishedQuarterOfAnyMonth)
{
    for (const QuarterCase& expected : kQuarters) {
        for (const Date now : {makeDate(2024, expected.month, 1), endOf(expected.month)}) {
            const LoadTool rig(now);
            expectPreselected(rig.tool, expected, "month " + std::to_string(expected.month));
        }
    }
}

TEST(LoadToolStart, WritesTheDatesAsTheRegionDoes)
{
    const LoadTool rig(makeDate(2024, 8, 3), "de-DE");
    EXPECT_EQ(rig.tool.txtFrom.Text(), "01.04.2024");
    EXPECT_EQ(rig.tool.txtTo.Text(), "30.06.2024");
    EXPECT_EQ(rig.tool.cmbYear.Text(), "2024");
}

TEST(LoadToolStart, TakesTheSpecifiedDatesFromTheirBoxes)
{
    for (const char* region : {"en-US", "en-GB", "de-DE", "fr-FR"}) {
        const LoadTool rig(makeDate(2024, 8, 3, 17, 5), region);
        EXPECT_EQ(rig.tool.StartDate(), makeDate(2024, 4, 1)) << region;
        EXPECT_EQ(rig.tool.EndDate(), makeDate(2024, 6, 30)) << region;
    }
}

TEST(LoadToolStart, MinimumAndCapacityAreZero)
{
    const LoadTool rig;
    EXPECT_EQ(rig.tool.txtMinSafe.Text(), "0");
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "0");
    EXPECT_EQ(rig.tool.evaluation().MinSafeValue, 0);
    EXPECT_EQ(rig.tool.evaluation().CapacityValue, 0);
    EXPECT_TRUE(rig.tool.txtMinSafe.Enabled());
    EXPECT_TRUE(rig.tool.txtCapacity.Enabled());
    EXPECT_TRUE(rig.tool.lblCapacity.Enabled());
}

} // namespace k7deval::test
