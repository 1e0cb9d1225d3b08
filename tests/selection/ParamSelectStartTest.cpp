#include "selection/SelectionBench.h"

#include <gtest/gtest.h>

/// The list of parameters before it has any, what it keeps of its host, and its end.
namespace k7deval::test
{

TEST(ParamSelectStart, ShowsUnitsAsHeadersAndOffersAllUnits)
{
    const ParamSelect tool;
    EXPECT_TRUE(tool.OffsetUnits());
    EXPECT_TRUE(tool.AllUnitsInCombo());
}

TEST(ParamSelectStart, ShowsNeitherFilterNorPIDsNorUnpopulatedUnitsAndPicksNoGroups)
{
    const ParamSelect tool;
    EXPECT_FALSE(tool.ShowUnitCombo());
    EXPECT_FALSE(tool.ShowPIDNumber());
    EXPECT_FALSE(tool.ShowUnpopulatedUnits());
    EXPECT_FALSE(tool.MultiSelect());
    EXPECT_FALSE(tool.jgexGrid.MultiSelect());
}

TEST(ParamSelectStart, HasNoRowsNoDataAndNothingSelected)
{
    const ParamSelect tool;
    EXPECT_EQ(tool.Rows().Count(), 0);
    EXPECT_TRUE(tool.VisibleRows().isEmpty());
    EXPECT_EQ(tool.jgexGrid.RowCount(), 0);
    EXPECT_EQ(tool.GetSelection(), std::nullopt);
    EXPECT_EQ(tool.GetUnitName(), "");
    EXPECT_EQ(tool.DIServer(), nullptr);
}

TEST(ParamSelectStart, TheFilterIsHiddenAndEmpty)
{
    const ParamSelect tool;
    EXPECT_FALSE(tool.cmbUnit.Visible());
    EXPECT_EQ(tool.cmbUnit.ListCount(), 0);
    EXPECT_EQ(tool.cmbUnit.ListIndex(), -1);
}

TEST(ParamSelectStart, ItsWidgetsAreFoundByTheirNames)
{
    const ParamSelect tool;
    EXPECT_EQ(tool.Find("cmbUnit"), &tool.cmbUnit);
    EXPECT_EQ(tool.Find("jgexGrid"), &tool.jgexGrid);
    EXPECT_EQ(tool.Widgets().size(), 2U);
}

TEST(ParamSelectStart, ActionsOnAListWithoutRowsLeaveItEmpty)
{
    ParamSelectBench bench;
    bench.tool.SelectAll();
    bench.tool.DeselectAll();
    bench.tool.SetOffsetUnits(false);
    bench.tool.SetOffsetUnits(true);
    bench.tool.SetShowPIDNumber(true);
    bench.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(bench.tool.jgexGrid.RowCount(), 0);
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
    EXPECT_EQ(bench.site->calls, Lines{});
}

TEST(ParamSelectData, IsKept)
{
    ParamSelect tool;
    const auto server = serve(siteOfUnits());
    tool.SetDIServer(server);
    EXPECT_EQ(tool.DIServer(), server);
    const auto other = serve(siteOfUnits());
    tool.SetDIServer(other);
    EXPECT_EQ(tool.DIServer(), other);
}

TEST(ParamSelectData, NothingLeavesTheDataThatIsThere)
{
    ParamSelectBench bench;
    const auto server = bench.tool.DIServer();
    bench.tool.SetDIServer(nullptr);
    EXPECT_EQ(bench.tool.DIServer(), server);
    bench.list({kNox});
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx"}));
}

TEST(ParamSelectData, IsReadWhileTheListIsLoadedAndNotLater)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.site->calls.clear();
    bench.tool.cmbUnit.Pick(1);
    bench.tool.SetShowPIDNumber(true);
    bench.tool.SelectAll();
    EXPECT_EQ(selectionOf(bench.tool), (PIDs{kNox, kCo, kO2}));
    EXPECT_EQ(view(bench.tool).size(), 3U);
    EXPECT_EQ(bench.site->calls, Lines{});
}

TEST(ParamSelectEnd, ReleasesTheRowsOnView)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters).tick({2});
    bench.tool.Terminate();
    EXPECT_TRUE(bench.tool.VisibleRows().isEmpty());
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectEnd, AListWithoutRowsEndsAsWell)
{
    ParamSelect tool;
    tool.Terminate();
    EXPECT_TRUE(tool.VisibleRows().isEmpty());
}

} // namespace k7deval::test
