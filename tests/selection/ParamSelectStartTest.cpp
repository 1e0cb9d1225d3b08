#include "selection/SelectionRig.h"

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
    EXPECT_EQ(tool.rows().Count(), 0);
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
    EXPECT_EQ(tool.cmbUnit.listCount(), 0);
    EXPECT_EQ(tool.cmbUnit.ListIndex(), -1);
}

TEST(ParamSelectStart, ItsWidgetsAreFoundByTheirNames)
{
    const ParamSelect tool;
    EXPECT_EQ(tool.Find("cmbUnit"), &tool.cmbUnit);
    EXPECT_EQ(tool.Find("jgexGrid"), &tool.jgexGrid);
    EXPECT_EQ(tool.widgets().size(), 2U);
}

TEST(ParamSelectStart, ActionsOnAListWithoutRowsLeaveItEmpty)
{
    ParamSelectRig rig;
    rig.tool.SelectAll();
    rig.tool.DeselectAll();
    rig.tool.SetOffsetUnits(false);
    rig.tool.SetOffsetUnits(true);
    rig.tool.SetShowPIDNumber(true);
    rig.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(rig.tool.jgexGrid.RowCount(), 0);
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
    EXPECT_EQ(rig.site->calls, Lines{});
}

TEST(ParamSelectData, IsKept)
{
    ParamSelect tool;
    const auto server = serve(siteOfThreeUnits());
    tool.SetDIServer(server);
    EXPECT_EQ(tool.DIServer(), server);
    const auto other = serve(siteOfThreeUnits());
    tool.SetDIServer(other);
    EXPECT_EQ(tool.DIServer(), other);
}

TEST(ParamSelectData, NothingLeavesTheDataThatIsThere)
{
    ParamSelectRig rig;
    const auto server = rig.tool.DIServer();
    rig.tool.SetDIServer(nullptr);
    EXPECT_EQ(rig.tool.DIServer(), server);
    rig.list({kNox});
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx"}));
}

TEST(ParamSelectData, IsReadWhileTheListIsLoadedAndNotLater)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.site->calls.clear();
    rig.tool.cmbUnit.Pick(1);
    rig.tool.SetShowPIDNumber(true);
    rig.tool.SelectAll();
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kNox, kCo, kO2}));
    EXPECT_EQ(view(rig.tool).size(), 3U);
    EXPECT_EQ(rig.site->calls, Lines{});
}

TEST(ParamSelectEnd, ReleasesTheRowsOnView)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters).tick({2});
    rig.tool.Terminate();
    EXPECT_TRUE(rig.tool.VisibleRows().isEmpty());
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectEnd, AListWithoutRowsEndsAsWell)
{
    ParamSelect tool;
    tool.Terminate();
    EXPECT_TRUE(tool.VisibleRows().isEmpty());
}

} // namespace k7deval::test
