#include "foundation/ExpectError.h"
#include "selection/SelectionBench.h"

#include <gtest/gtest.h>

/// Failures where an entry is needed and none is selected, which reach the host as error 381.
namespace k7deval::test
{

TEST(SingleParamSelectNothingPicked, HasNoSelectionRightAfterTheList)
{
    SingleBench bench;
    EXPECT_EQ(errorOf([&] { return bench.tool.GetSelection(); }), 381);
    bench.filtered(false).list(kFiveParameters);
    EXPECT_EQ(errorOf([&] { return bench.tool.GetSelection(); }), 381);
}

TEST(SingleParamSelectNothingPicked, HasNoSelectionOnceTheBoxIsFilledAnew)
{
    SingleBench bench;
    bench.filtered(false).list(kFiveParameters);
    bench.tool.cmbPID.Pick(1);
    bench.tool.SetShowPIDNumber(true);
    EXPECT_EQ(errorOf([&] { return bench.tool.GetSelection(); }), 381);
}

TEST(SingleParamSelectNoUnitPicked, FailsForAHostThatNeverSetTheFilter)
{
    SingleBench bench;
    EXPECT_EQ(errorOf([&] { return bench.list(kFiveParameters), 0; }), 381);
    EXPECT_EQ(bench.tool.Rows().Count(), 7) << "the list itself is loaded";
    EXPECT_EQ(bench.tool.cmbPID.ListCount(), 0);
}

TEST(SingleParamSelectNoUnitPicked, IsMendedByShowingTheFilter)
{
    SingleBench bench;
    EXPECT_EQ(errorOf([&] { return bench.list({kNox, kLoad}), 0; }), 381);
    bench.filtered();
    EXPECT_EQ(bench.tool.cmbPID.List(), (Lines{"GT1 NOx", "GT2 Load"}));
}

TEST(SingleParamSelectNoUnitPicked, StillFailsWhileTheFilterIsTakenOff)
{
    SingleBench bench;
    EXPECT_EQ(errorOf([&] { return bench.list({kNox, kLoad}), 0; }), 381);
    EXPECT_EQ(errorOf([&] { return bench.filtered(false), 0; }), 381);
    EXPECT_FALSE(bench.tool.ShowUnitCombo());
    EXPECT_TRUE(bench.tool.cmbUnit.Visible()) << "the box fails before the filter is hidden";
}

TEST(SingleParamSelectNoUnitPicked, FailsWithoutAllUnits)
{
    for (const PIDs& list : {PIDs{kNox, kLoad}, PIDs{kNox}}) {
        SingleBench bench;
        bench.withoutAllUnits().filtered();
        EXPECT_EQ(errorOf([&] { return bench.list(list), 0; }), 381);
        EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), -1);
        EXPECT_TRUE(bench.tool.cmbUnit.Visible()) << "even if there is just one unit";
    }
}

TEST(SingleParamSelectNoUnitPicked, FailsWhenAllUnitsLeaveTheFilter)
{
    SingleBench bench;
    bench.filtered().list({kNox, kLoad});
    EXPECT_EQ(errorOf([&] { return bench.tool.SetAllUnitsInCombo(false), 0; }), 381);
    EXPECT_EQ(bench.tool.cmbUnit.List(), (Lines{"GT1", "GT2"}));
    EXPECT_EQ(bench.tool.cmbPID.ListCount(), 0) << "it was emptied before";
}

TEST(SingleParamSelectNoUnitPicked, FailsWithATextTypedIntoTheFilter)
{
    SingleBench bench;
    bench.filtered().list({kNox, kLoad});
    bench.tool.cmbUnit.Type("GT1");
    EXPECT_EQ(bench.tool.cmbPID.ListCount(), 2) << "typing fills nothing";
    EXPECT_EQ(errorOf([&] { return bench.tool.SetShowPIDNumber(true), 0; }), 381);
    EXPECT_EQ(bench.tool.cmbPID.ListCount(), 0);
}

TEST(SingleParamSelectWithoutData, CannotNameUnits)
{
    SingleParamSelect tool;
    EXPECT_EQ(errorOf([&] { return tool.SetParamList(PIDs{kNox}), 0; }), 91);
    tool.SetShowUnitCombo(true);
    const auto list = collectionOf(siteOfUnits(), {kGT1, kNox, kGT2, kLoad});
    EXPECT_EQ(errorOf([&] { return tool.SetParamList(list, true), 0; }), 91);
}

TEST(SingleParamSelectWithoutData, ListsPlainNamesOfACollectionWithUnits)
{
    SingleParamSelect tool;
    tool.SetShowUnitCombo(false);
    tool.SetParamList(collectionOf(siteOfUnits(), {kGT1, kNox, kGT2, kLoad}), true);
    EXPECT_EQ(tool.cmbPID.List(), (Lines{"NOx", "Load"}));
}

} // namespace k7deval::test
