#include "screen/TestScreen.h"
#include "selection/SelectionBench.h"

#include <gtest/gtest.h>

/// What is ticked and on view, and the name of the unit that the filter is set to.
namespace k7deval::test
{

TEST(ParamSelectSelectAll, TicksAllRowsOnViewTheUnitsAsWell)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    bench.tool.SelectAll();
    EXPECT_EQ(selectionOf(bench.tool), (PIDs{kHeader1, kNox, kCo, kO2, kHeader2, kLoad, kFlow}));
}

TEST(ParamSelectSelectAll, TicksNoUnitThatIsNotOnView)
{
    ParamSelectBench bench;
    bench.list({kNox, kLoad});
    bench.tool.SetOffsetUnits(false);
    bench.tool.SelectAll();
    bench.tool.SetOffsetUnits(true);
    EXPECT_EQ(selectionOf(bench.tool), (PIDs{kNox, kLoad}));
}

TEST(ParamSelectSelectAll, UnderAFilterTicksNothingBehindIt)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.Pick(2);
    bench.tool.SelectAll();
    bench.tool.cmbUnit.Pick(0);
    EXPECT_EQ(selectionOf(bench.tool), (PIDs{kLoad, kFlow}));
}

TEST(ParamSelectDeselectAll, UnticksAllRowsOnViewTheUnitsAsWell)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    bench.tool.SelectAll();
    bench.tool.DeselectAll();
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectDeselectAll, UnderAFilterUnticksNothingBehindIt)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.SelectAll();
    bench.tool.cmbUnit.Pick(2);
    bench.tool.DeselectAll();
    bench.tool.cmbUnit.Pick(0);
    EXPECT_EQ(selectionOf(bench.tool), (PIDs{kHeader1, kNox, kCo, kO2, kHeader2}));
}

TEST(ParamSelectSelection, OfAllOrNothingLetsTheGridReadOnce)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    const Raised changed(bench.tool.jgexGrid.Changed);
    bench.tool.SelectAll();
    EXPECT_EQ(changed.count, 1);
    bench.tool.DeselectAll();
    EXPECT_EQ(changed.count, 2);
}

TEST(ParamSelectSelection, IsEmptyAsLongAsNothingIsTicked)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectSelection, ListsTheTickedRowsFromTopToBottomNotInTheOrderOfTheirTicks)
{
    ParamSelectBench bench;
    bench.list({kO2, kNox, kLoad}).tick({5, 3, 2});
    EXPECT_EQ(selectionOf(bench.tool), (PIDs{kO2, kNox, kLoad}));
}

TEST(ParamSelectSelection, ListsTheTickedRowsInTheOrderOnViewNotInThatOfTheList)
{
    ParamSelectBench bench;
    bench.filtered().listWithUnits({kGT2, kGT1, kNox, kLoad, kGT3, kSo2, kCo, kFlow});
    bench.tool.SetShowUnpopulatedUnits(true);
    bench.tick({2, 3, 5, 6, 8});
    EXPECT_EQ(selectionOf(bench.tool), (PIDs{kLoad, kFlow, kNox, kCo, kSo2}));
}

TEST(ParamSelectSelection, LeavesOutATickedRowBehindTheFilter)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters).tick({2, 6});
    bench.tool.cmbUnit.Pick(2);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kLoad});
    bench.tool.cmbUnit.Pick(1);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kNox});
    bench.tool.cmbUnit.Pick(0);
    EXPECT_EQ(selectionOf(bench.tool), (PIDs{kNox, kLoad}));
}

TEST(ParamSelectSelection, IsEmptyWhenAllTickedRowsAreBehindTheFilter)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters).tick({2});
    bench.tool.cmbUnit.Pick(2);
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectSelection, LeavesOutATickedUnitWithoutHeaders)
{
    ParamSelectBench bench;
    bench.list({kNox, kLoad}).tick({1, 2});
    bench.tool.SetOffsetUnits(false);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kNox});
    bench.tool.SetOffsetUnits(true);
    EXPECT_EQ(selectionOf(bench.tool), (PIDs{kHeader1, kNox}));
}

TEST(ParamSelectSelection, HasTheUnitsOfTheListUnderTheirOwnPIDs)
{
    ParamSelectBench bench;
    bench.listWithUnits({kGT1, kNox}).tick({1, 2});
    EXPECT_EQ(selectionOf(bench.tool), (PIDs{kGT1, kNox}));
}

TEST(ParamSelectUnitName, IsThatOfThePickedUnit)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.Pick(2);
    EXPECT_EQ(bench.tool.GetUnitName(), "GT2");
}

TEST(ParamSelectUnitName, IsEmptyForAllUnits)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    EXPECT_EQ(bench.tool.GetUnitName(), "");
}

TEST(ParamSelectUnitName, IsEmptyForTheFirstEntryEvenIfItIsAUnit)
{
    ParamSelectBench bench;
    bench.withoutAllUnits().filtered().list(kFiveParameters);
    EXPECT_EQ(bench.tool.GetUnitName(), "");
    bench.tool.cmbUnit.Pick(1);
    EXPECT_EQ(bench.tool.GetUnitName(), "GT2");
}

TEST(ParamSelectUnitName, IsEmptyWithoutAFilterWhateverIsSelectedInIt)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.Pick(2);
    bench.tool.SetShowUnitCombo(false);
    EXPECT_EQ(bench.tool.GetUnitName(), "");
    bench.tool.SetShowUnitCombo(true);
    EXPECT_EQ(bench.tool.GetUnitName(), "GT2");
}

TEST(ParamSelectUnitName, IsEmptyWithNothingSelected)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters).filtered();
    EXPECT_EQ(bench.tool.GetUnitName(), "");
}

} // namespace k7deval::test
