#include "foundation/ExpectError.h"
#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

/// Failures where an entry is needed and none is selected, which reach the host as error 381.
namespace k7deval::test
{

TEST(SingleParamSelectNothingPicked, HasNoSelectionRightAfterTheList)
{
    SingleRig rig;
    EXPECT_EQ(errorOf([&] { return rig.tool.GetSelection(); }), 381);
    rig.filtered(false).list(kFiveParameters);
    EXPECT_EQ(errorOf([&] { return rig.tool.GetSelection(); }), 381);
}

TEST(SingleParamSelectNothingPicked, HasNoSelectionOnceTheBoxIsFilledAnew)
{
    SingleRig rig;
    rig.filtered(false).list(kFiveParameters);
    rig.tool.cmbPID.Pick(1);
    rig.tool.SetShowPIDNumber(true);
    EXPECT_EQ(errorOf([&] { return rig.tool.GetSelection(); }), 381);
}

TEST(SingleParamSelectNoUnitPicked, FailsForAHostThatNeverSetTheFilter)
{
    SingleRig rig;
    EXPECT_EQ(errorOf([&] { return rig.list(kFiveParameters), 0; }), 381);
    EXPECT_EQ(rig.tool.rows().Count(), 7) << "the list itself is loaded";
    EXPECT_EQ(rig.tool.cmbPID.listCount(), 0);
}

TEST(SingleParamSelectNoUnitPicked, IsMendedByShowingTheFilter)
{
    SingleRig rig;
    EXPECT_EQ(errorOf([&] { return rig.list({kNox, kLoad}), 0; }), 381);
    rig.filtered();
    EXPECT_EQ(rig.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load"}));
}

TEST(SingleParamSelectNoUnitPicked, StillFailsWhileTheFilterIsTakenOff)
{
    SingleRig rig;
    EXPECT_EQ(errorOf([&] { return rig.list({kNox, kLoad}), 0; }), 381);
    EXPECT_EQ(errorOf([&] { return rig.filtered(false), 0; }), 381);
    EXPECT_FALSE(rig.tool.ShowUnitCombo());
    EXPECT_TRUE(rig.tool.cmbUnit.Visible()) << "the box fails before the filter is hidden";
}

TEST(SingleParamSelectNoUnitPicked, FailsWithoutAllUnits)
{
    for (const PIDs& list : {PIDs{kNox, kLoad}, PIDs{kNox}}) {
        SingleRig rig;
        rig.withoutAllUnits().filtered();
        EXPECT_EQ(errorOf([&] { return rig.list(list), 0; }), 381);
        EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), -1);
        EXPECT_TRUE(rig.tool.cmbUnit.Visible()) << "even if there is just one unit";
    }
}

TEST(SingleParamSelectNoUnitPicked, FailsWhenAllUnitsLeaveTheFilter)
{
    SingleRig rig;
    rig.filtered().list({kNox, kLoad});
    EXPECT_EQ(errorOf([&] { return rig.tool.SetAllUnitsInCombo(false), 0; }), 381);
    EXPECT_EQ(rig.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(rig.tool.cmbPID.listCount(), 0) << "it was emptied before";
}

TEST(SingleParamSelectNoUnitPicked, FailsWithATextTypedIntoTheFilter)
{
    SingleRig rig;
    rig.filtered().list({kNox, kLoad});
    rig.tool.cmbUnit.Type("GT1");
    EXPECT_EQ(rig.tool.cmbPID.listCount(), 2) << "typing fills nothing";
    EXPECT_EQ(errorOf([&] { return rig.tool.SetShowPIDNumber(true), 0; }), 381);
    EXPECT_EQ(rig.tool.cmbPID.listCount(), 0);
}

TEST(SingleParamSelectWithoutData, CannotNameUnits)
{
    SingleParamSelect tool;
    EXPECT_EQ(errorOf([&] { return tool.SetParamList(PIDs{kNox}), 0; }), 91);
    tool.SetShowUnitCombo(true);
    const auto list = collectionOf(siteOfThreeUnits(), {kGT1, kNox, kGT2, kLoad});
    EXPECT_EQ(errorOf([&] { return tool.SetParamList(list, true), 0; }), 91);
}

TEST(SingleParamSelectWithoutData, ListsPlainNamesOfACollectionWithUnits)
{
    SingleParamSelect tool;
    tool.SetShowUnitCombo(false);
    tool.SetParamList(collectionOf(siteOfThreeUnits(), {kGT1, kNox, kGT2, kLoad}), true);
    EXPECT_EQ(tool.cmbPID.List(), (Lines{"NOx", "Load"}));
}

} // namespace k7deval::test
