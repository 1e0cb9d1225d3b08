#include "screen/TestScreen.h"
#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

/// What is ticked and on view, and the name of the unit that the filter is set to.
namespace k7deval::test
{

TEST(ParamSelectSelectAll, TicksAllRowsOnViewTheUnitsAsWell)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    rig.tool.SelectAll();
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kHeader1, kNox, kCo, kO2, kHeader2, kLoad, kFlow}));
}

TEST(ParamSelectSelectAll, TicksNoUnitThatIsNotOnView)
{
    ParamSelectRig rig;
    rig.list({kNox, kLoad});
    rig.tool.SetOffsetUnits(false);
    rig.tool.SelectAll();
    rig.tool.SetOffsetUnits(true);
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kNox, kLoad}));
}

TEST(ParamSelectSelectAll, UnderAFilterTicksNothingBehindIt)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.Pick(2);
    rig.tool.SelectAll();
    rig.tool.cmbUnit.Pick(0);
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kLoad, kFlow}));
}

TEST(ParamSelectDeselectAll, UnticksAllRowsOnViewTheUnitsAsWell)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    rig.tool.SelectAll();
    rig.tool.DeselectAll();
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectDeselectAll, UnderAFilterUnticksNothingBehindIt)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.SelectAll();
    rig.tool.cmbUnit.Pick(2);
    rig.tool.DeselectAll();
    rig.tool.cmbUnit.Pick(0);
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kHeader1, kNox, kCo, kO2, kHeader2}));
}

TEST(ParamSelectSelection, OfAllOrNothingLetsTheGridReadOnce)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    const Raised changed(rig.tool.jgexGrid.Changed);
    rig.tool.SelectAll();
    EXPECT_EQ(changed.count, 1);
    rig.tool.DeselectAll();
    EXPECT_EQ(changed.count, 2);
}

TEST(ParamSelectSelection, IsEmptyAsLongAsNothingIsTicked)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectSelection, ListsTheTickedRowsFromTopToBottomNotInTheOrderOfTheirTicks)
{
    ParamSelectRig rig;
    rig.list({kO2, kNox, kLoad}).tick({5, 3, 2});
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kO2, kNox, kLoad}));
}

TEST(ParamSelectSelection, ListsTheTickedRowsInTheOrderOnViewNotInThatOfTheList)
{
    ParamSelectRig rig;
    rig.filtered().listWithUnits({kGT2, kGT1, kNox, kLoad, kThirdUnit, kSo2, kCo, kFlow});
    rig.tool.SetShowUnpopulatedUnits(true);
    rig.tick({2, 3, 5, 6, 8});
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kLoad, kFlow, kNox, kCo, kSo2}));
}

TEST(ParamSelectSelection, LeavesOutATickedRowBehindTheFilter)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters).tick({2, 6});
    rig.tool.cmbUnit.Pick(2);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kLoad});
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kNox});
    rig.tool.cmbUnit.Pick(0);
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kNox, kLoad}));
}

TEST(ParamSelectSelection, IsEmptyWhenAllTickedRowsAreBehindTheFilter)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters).tick({2});
    rig.tool.cmbUnit.Pick(2);
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectSelection, LeavesOutATickedUnitWithoutHeaders)
{
    ParamSelectRig rig;
    rig.list({kNox, kLoad}).tick({1, 2});
    rig.tool.SetOffsetUnits(false);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kNox});
    rig.tool.SetOffsetUnits(true);
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kHeader1, kNox}));
}

TEST(ParamSelectSelection, HasTheUnitsOfTheListUnderTheirOwnPIDs)
{
    ParamSelectRig rig;
    rig.listWithUnits({kGT1, kNox}).tick({1, 2});
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kGT1, kNox}));
}

TEST(ParamSelectUnitName, IsThatOfThePickedUnit)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.Pick(2);
    EXPECT_EQ(rig.tool.GetUnitName(), "GT2");
}

TEST(ParamSelectUnitName, IsEmptyForAllUnits)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    EXPECT_EQ(rig.tool.GetUnitName(), "");
}

TEST(ParamSelectUnitName, IsEmptyForTheFirstEntryEvenIfItIsAUnit)
{
    ParamSelectRig rig;
    rig.withoutAllUnits().filtered().list(kFiveParameters);
    EXPECT_EQ(rig.tool.GetUnitName(), "");
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.tool.GetUnitName(), "GT2");
}

TEST(ParamSelectUnitName, IsEmptyWithoutAFilterWhateverIsSelectedInIt)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.Pick(2);
    rig.tool.SetShowUnitCombo(false);
    EXPECT_EQ(rig.tool.GetUnitName(), "");
    rig.tool.SetShowUnitCombo(true);
    EXPECT_EQ(rig.tool.GetUnitName(), "GT2");
}

TEST(ParamSelectUnitName, IsEmptyWithNothingSelected)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters).filtered();
    EXPECT_EQ(rig.tool.GetUnitName(), "");
}

} // namespace k7deval::test
