#include "load/LoadRig.h"
#include "support/Approval.h"

#include <gtest/gtest.h>

/// The load tool before it has data.
namespace k7deval::test
{

namespace
{

struct QuarterCase {
    int month;
    const char* quarter;
    const char* from;
    const char* to;
};

// In 2024: the newest quarter that is over.
constexpr QuarterCase kQuarters[] = {
    {3, "2023 Q4", "10/1/2023", "12/31/2023"},
    {4, "2024 Q1", "1/1/2024", "3/31/2024"},
    {9, "2024 Q2", "4/1/2024", "6/30/2024"},
    {12, "2024 Q3", "7/1/2024", "9/30/2024"},
};

} // namespace

TEST(LoadScreenApproved, AtTheStart)
{
    test::expectApproved("load-screen/start/widgets.txt", layoutOf(LoadTool().tool));
}

TEST(LoadToolStart, PreselectsTheNewestFinishedQuarterAndItsDates)
{
    for (const QuarterCase& row : kQuarters) {
        const LoadTool rig(makeDate(2024, row.month, 30, 23, 59));
        EXPECT_EQ(rig.tool.cmbYear.Text() + " " + rig.tool.cmbQTR.Text(), row.quarter);
        EXPECT_EQ(rig.tool.txtFrom.Text(), row.from) << row.month;
        EXPECT_EQ(rig.tool.txtTo.Text(), row.to) << row.month;
    }
}

TEST(LoadToolStart, WritesTheDatesAsTheRegionDoesAndTakesThemFromTheirBoxes)
{
    EXPECT_EQ(LoadTool(makeDate(2024, 8, 3), "de-DE").tool.txtFrom.Text(), "01.04.2024");
    for (const char* region : {"en-US", "en-GB", "de-DE", "fr-FR"}) {
        const LoadTool rig(makeDate(2024, 8, 3, 17, 5), region);
        EXPECT_EQ(rig.tool.StartDate(), makeDate(2024, 4, 1)) << region;
        EXPECT_EQ(rig.tool.EndDate(), makeDate(2024, 6, 30)) << region;
    }
}

TEST(LoadToolStart, MinimumAndCapacityAreZero)
{
    const LoadTool rig;
    EXPECT_EQ(rig.tool.evaluation().MinSafeValue, 0);
    EXPECT_EQ(rig.tool.evaluation().CapacityValue, 0);
    EXPECT_EQ(countsOf(rig.tool.evaluation()), HourCounts());
    EXPECT_EQ(rig.tool.evaluation().MaxObserved, 0);
}

} // namespace k7deval::test
