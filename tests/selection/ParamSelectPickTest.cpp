#include "selection/SelectionBench.h"

#include <gtest/gtest.h>

/// What is on view for each entry of the filter, with and without headers.
namespace k7deval::test
{

TEST(ParamSelectPick, OfAUnitShowsItsParametersWithoutHeader)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.Pick(2);
    EXPECT_FALSE(bench.tool.OffsetUnits());
    EXPECT_EQ(bench.tool.jgexGrid.RowCount(), 2);
    EXPECT_EQ(visibleIndexes(bench.tool), (Indexes{5, 6}));
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectPick, OfAnotherUnitShowsThatOne)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.Pick(2);
    bench.tool.cmbUnit.Pick(1);
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] NOx", "[ ] CO", "[ ] O2"}));
}

TEST(ParamSelectPick, OfAllUnitsShowsTheHeadersAgain)
{
    ParamSelectBench bench;
    bench.filtered().list({kNox, kLoad});
    bench.tool.cmbUnit.Pick(2);
    bench.tool.cmbUnit.Pick(0);
    EXPECT_TRUE(bench.tool.OffsetUnits());
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectPick, KeepsTheTicks)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters).tick({3, 7});
    bench.tool.cmbUnit.Pick(2);
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] Load", "[x] Flow"}));
    bench.tick({1});
    bench.tool.cmbUnit.Pick(0);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx", "[x] CO", "[ ] O2", "-- GT2 --",
                                       "[x] Load", "[x] Flow"}));
}

TEST(ParamSelectPick, OfTheUnitOfNumberNoughtShowsItsParameters)
{
    ParamSelectBench bench;
    bench.filtered().list({kOpacity, kNox});
    bench.tool.cmbUnit.Pick(1);
    EXPECT_EQ(bench.tool.cmbUnit.ItemData(), 0);
    EXPECT_EQ(view(bench.tool), Lines{"[ ] Opacity"});
}

TEST(ParamSelectPick, OfAUnitFromTheListFindsItsParametersByTheNumberInThePID)
{
    ParamSelectBench bench;
    bench.filtered().listWithUnits({kGT2, kLoad, kGT1, kNox, kFlow});
    bench.tool.cmbUnit.Pick(1);
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectPick, OfAnUnpopulatedUnitShowsNothing)
{
    ParamSelectBench bench;
    bench.tool.SetShowUnpopulatedUnits(true);
    bench.filtered().listWithUnits({kGT1, kNox, kGT2});
    bench.tool.cmbUnit.Pick(2);
    EXPECT_EQ(bench.tool.jgexGrid.RowCount(), 0);
}

TEST(ParamSelectPick, ByTheHostIsLikeOneByTheUser)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.SetListIndex(2);
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectPick, UndoesTheHeadersOfTheHost)
{
    ParamSelectBench bench;
    bench.filtered().list({kNox, kLoad});
    bench.tool.SetOffsetUnits(false);
    bench.tool.cmbUnit.Pick(0);
    EXPECT_TRUE(bench.tool.OffsetUnits());
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
    bench.tool.cmbUnit.Pick(2);
    bench.tool.SetOffsetUnits(true);
    bench.tool.cmbUnit.Pick(2);
    EXPECT_FALSE(bench.tool.OffsetUnits());
    EXPECT_EQ(view(bench.tool), Lines{"[ ] Load"});
}

TEST(ParamSelectAllUnits, GroupsTheRowsByUnitEvenIfTheListDoesNot)
{
    ParamSelectBench bench;
    bench.filtered().listWithUnits({kGT2, kLoad, kNox, kGT1, kCo, kFlow});
    EXPECT_EQ(view(bench.tool),
              (Lines{"-- GT2 --", "[ ] Load", "[ ] Flow", "[ ] NOx", "-- GT1 --", "[ ] CO"}))
        << "NOx stands ahead of its unit in the list";
}

TEST(ParamSelectAllUnits, ShowsTheRowsOfAUnitOnceForEachOfItsHeaders)
{
    ParamSelectBench bench;
    bench.filtered().list({kNox, kLoad, kCo}).tick({2});
    EXPECT_EQ(visibleIndexes(bench.tool), (Indexes{0, 1, 4, 5, 2, 3, 0, 1, 4, 5}));
    EXPECT_EQ(selectionOf(bench.tool), (PIDs{kNox, kNox}));
}

TEST(ParamSelectAllUnits, HidesTheRowsOfAUnitThatLeftTheFilter)
{
    ParamSelectBench bench;
    bench.filtered().listWithUnits({kGT1, kGT2, kLoad, kGT3, kSo2, kNox});
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT2 --", "[ ] Load", "-- GT3 --", "[ ] SO2"}));
    bench.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(view(bench.tool),
              (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load", "-- GT3 --", "[ ] SO2"}));
}

TEST(ParamSelectAllUnits, HidesTheRowsOfAUnitThatTheListDoesNotBring)
{
    ParamSelectBench bench;
    bench.filtered().listWithUnits({kGT1, kNox, kSo2, kGT2, kLoad});
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectWithoutFilter, ShowsTheRowsInListOrder)
{
    ParamSelectBench bench;
    bench.listWithUnits({kGT2, kLoad, kNox, kGT1, kCo});
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT2 --", "[ ] Load", "[ ] NOx", "-- GT1 --", "[ ] CO"}));
}

TEST(ParamSelectShownFilter, IsEmptyUntilItIsFilled)
{
    ParamSelectBench bench;
    bench.list({kNox, kLoad}).filtered();
    EXPECT_EQ(bench.tool.cmbUnit.ListCount(), 0);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
    bench.tool.SetShowUnpopulatedUnits(false);
    EXPECT_EQ(bench.tool.cmbUnit.ListCount(), 3);
    EXPECT_EQ(bench.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectShownFilter, WithoutUnitsShowsNoRowsOnceTheyAreSoughtAnew)
{
    ParamSelectBench bench;
    bench.list({kNox, kLoad}).filtered();
    bench.tool.SetOffsetUnits(true);
    EXPECT_EQ(bench.tool.jgexGrid.RowCount(), 0);
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectShownFilter, WithNothingSelectedCountsAsAllUnits)
{
    ParamSelectBench bench;
    bench.filtered().list({kNox, kLoad});
    bench.tool.cmbUnit.Pick(2);
    bench.tool.cmbUnit.SetListIndex(-1);
    bench.tool.SetOffsetUnits(true);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectShownFilter, WithNothingSelectedTakesTheFirstEntryForAllUnitsEvenIfItIsAUnit)
{
    ParamSelectBench bench;
    bench.withoutAllUnits().filtered().list({kNox, kLoad});
    bench.tool.cmbUnit.SetListIndex(-1);
    bench.tool.SetOffsetUnits(true);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectHiddenFilter, LeavesTheRowsOnViewAsTheyWere)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.Pick(2);
    bench.tool.SetShowUnitCombo(false);
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] Load", "[ ] Flow"}));
    EXPECT_FALSE(bench.tool.OffsetUnits());
    bench.tool.SetOffsetUnits(true);
    EXPECT_EQ(bench.tool.jgexGrid.RowCount(), 7);
}

TEST(ParamSelectHeaders, LeaveAndTheRestIsNumberedAnew)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters).tick({6});
    bench.tool.SetOffsetUnits(false);
    EXPECT_FALSE(bench.tool.OffsetUnits());
    EXPECT_EQ(bench.tool.jgexGrid.RowCount(), 5);
    EXPECT_EQ(visibleIndexes(bench.tool), (Indexes{1, 2, 3, 5, 6}));
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] NOx", "[ ] CO", "[ ] O2", "[x] Load", "[ ] Flow"}));
}

TEST(ParamSelectHeaders, ComeBackWithTheirRows)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters).tick({6});
    bench.tool.SetOffsetUnits(false);
    bench.tool.SetOffsetUnits(true);
    EXPECT_TRUE(bench.tool.OffsetUnits());
    EXPECT_EQ(visibleIndexes(bench.tool), (Indexes{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(view(bench.tool)[5], "[x] Load");
}

TEST(ParamSelectHeaders, OfAHostAreSetBeforeTheList)
{
    ParamSelectBench bench;
    bench.tool.SetOffsetUnits(false);
    bench.list({kNox, kLoad});
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] NOx", "[ ] Load"}));
}

TEST(ParamSelectHeaders, OfAHostShowOverAPickedUnit)
{
    ParamSelectBench bench;
    bench.filtered().list({kNox, kLoad});
    bench.tool.cmbUnit.Pick(2);
    bench.tool.SetOffsetUnits(true);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectHeaders, LeaveTheRowsThatAreOnViewNotThoseOfTheFilter)
{
    ParamSelectBench bench;
    bench.list({kNox, kLoad}).filtered();
    bench.tool.SetOffsetUnits(false);
    EXPECT_EQ(view(bench.tool), (Lines{"[ ] NOx", "[ ] Load"}));
}

} // namespace k7deval::test
