#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

/// What is on view for each entry of the filter, with and without headers.
namespace k7deval::test
{

TEST(ParamSelectPick, OfAUnitShowsItsParametersWithoutHeader)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.Pick(2);
    EXPECT_FALSE(rig.tool.OffsetUnits());
    EXPECT_EQ(rig.tool.jgexGrid.RowCount(), 2);
    EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{5, 6}));
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectPick, OfAnotherUnitShowsThatOne)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.Pick(2);
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] NOx", "[ ] CO", "[ ] O2"}));
}

TEST(ParamSelectPick, OfAllUnitsShowsTheHeadersAgain)
{
    ParamSelectRig rig;
    rig.filtered().list({kNox, kLoad});
    rig.tool.cmbUnit.Pick(2);
    rig.tool.cmbUnit.Pick(0);
    EXPECT_TRUE(rig.tool.OffsetUnits());
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectPick, KeepsTheTicks)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters).tick({3, 7});
    rig.tool.cmbUnit.Pick(2);
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] Load", "[x] Flow"}));
    rig.tick({1});
    rig.tool.cmbUnit.Pick(0);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "[x] CO", "[ ] O2", "-- GT2 --",
                                     "[x] Load", "[x] Flow"}));
}

TEST(ParamSelectPick, OfTheUnitOfNumberNoughtShowsItsParameters)
{
    ParamSelectRig rig;
    rig.filtered().list({kOpacity, kNox});
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(rig.tool.cmbUnit.ItemData(), 0);
    EXPECT_EQ(view(rig.tool), Lines{"[ ] Opacity"});
}

TEST(ParamSelectPick, OfAUnitFromTheListFindsItsParametersByTheNumberInThePID)
{
    ParamSelectRig rig;
    rig.filtered().listWithUnits({kGT2, kLoad, kGT1, kNox, kFlow});
    rig.tool.cmbUnit.Pick(1);
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectPick, OfAnUnpopulatedUnitShowsNothing)
{
    ParamSelectRig rig;
    rig.tool.SetShowUnpopulatedUnits(true);
    rig.filtered().listWithUnits({kGT1, kNox, kGT2});
    rig.tool.cmbUnit.Pick(2);
    EXPECT_EQ(rig.tool.jgexGrid.RowCount(), 0);
}

TEST(ParamSelectPick, ByTheHostIsLikeOneByTheUser)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.SetListIndex(2);
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] Load", "[ ] Flow"}));
}

TEST(ParamSelectPick, UndoesTheHeadersOfTheHost)
{
    ParamSelectRig rig;
    rig.filtered().list({kNox, kLoad});
    rig.tool.SetOffsetUnits(false);
    rig.tool.cmbUnit.Pick(0);
    EXPECT_TRUE(rig.tool.OffsetUnits());
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
    rig.tool.cmbUnit.Pick(2);
    rig.tool.SetOffsetUnits(true);
    rig.tool.cmbUnit.Pick(2);
    EXPECT_FALSE(rig.tool.OffsetUnits());
    EXPECT_EQ(view(rig.tool), Lines{"[ ] Load"});
}

TEST(ParamSelectAllUnits, GroupsTheRowsByUnitEvenIfTheListDoesNot)
{
    ParamSelectRig rig;
    rig.filtered().listWithUnits({kGT2, kLoad, kNox, kGT1, kCo, kFlow});
    EXPECT_EQ(view(rig.tool),
              (Lines{"-- GT2 --", "[ ] Load", "[ ] Flow", "[ ] NOx", "-- GT1 --", "[ ] CO"}))
        << "NOx stands ahead of its unit in the list";
}

TEST(ParamSelectAllUnits, ShowsTheRowsOfAUnitOnceForEachOfItsHeaders)
{
    ParamSelectRig rig;
    rig.filtered().list({kNox, kLoad, kCo}).tick({2});
    EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{0, 1, 4, 5, 2, 3, 0, 1, 4, 5}));
    EXPECT_EQ(selectionOf(rig.tool), (PIDs{kNox, kNox}));
}

TEST(ParamSelectAllUnits, HidesTheRowsOfAUnitThatLeftTheFilter)
{
    ParamSelectRig rig;
    rig.filtered().listWithUnits({kGT1, kGT2, kLoad, kThirdUnit, kSo2, kNox});
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT2 --", "[ ] Load", "-- GT3 --", "[ ] SO2"}));
    rig.tool.SetShowUnpopulatedUnits(true);
    EXPECT_EQ(view(rig.tool),
              (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load", "-- GT3 --", "[ ] SO2"}));
}

TEST(ParamSelectAllUnits, HidesTheRowsOfAUnitThatTheListDoesNotBring)
{
    ParamSelectRig rig;
    rig.filtered().listWithUnits({kGT1, kNox, kSo2, kGT2, kLoad});
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectWithoutFilter, ShowsTheRowsInListOrder)
{
    ParamSelectRig rig;
    rig.listWithUnits({kGT2, kLoad, kNox, kGT1, kCo});
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT2 --", "[ ] Load", "[ ] NOx", "-- GT1 --", "[ ] CO"}));
}

TEST(ParamSelectShownFilter, IsEmptyUntilItIsFilled)
{
    ParamSelectRig rig;
    rig.list({kNox, kLoad}).filtered();
    EXPECT_EQ(rig.tool.cmbUnit.listCount(), 0);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
    rig.tool.SetShowUnpopulatedUnits(false);
    EXPECT_EQ(rig.tool.cmbUnit.listCount(), 3);
    EXPECT_EQ(rig.tool.cmbUnit.ListIndex(), 0);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectShownFilter, WithoutUnitsShowsNoRowsOnceTheyAreSoughtAnew)
{
    ParamSelectRig rig;
    rig.list({kNox, kLoad}).filtered();
    rig.tool.SetOffsetUnits(true);
    EXPECT_EQ(rig.tool.jgexGrid.RowCount(), 0);
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectShownFilter, WithNothingSelectedCountsAsAllUnits)
{
    ParamSelectRig rig;
    rig.filtered().list({kNox, kLoad});
    rig.tool.cmbUnit.Pick(2);
    rig.tool.cmbUnit.SetListIndex(-1);
    rig.tool.SetOffsetUnits(true);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[ ] NOx", "-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectShownFilter, WithNothingSelectedTakesTheFirstEntryForAllUnitsEvenIfItIsAUnit)
{
    ParamSelectRig rig;
    rig.withoutAllUnits().filtered().list({kNox, kLoad});
    rig.tool.cmbUnit.SetListIndex(-1);
    rig.tool.SetOffsetUnits(true);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectHiddenFilter, LeavesTheRowsOnViewAsTheyWere)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.Pick(2);
    rig.tool.SetShowUnitCombo(false);
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] Load", "[ ] Flow"}));
    EXPECT_FALSE(rig.tool.OffsetUnits());
    rig.tool.SetOffsetUnits(true);
    EXPECT_EQ(rig.tool.jgexGrid.RowCount(), 7);
}

TEST(ParamSelectHeaders, LeaveAndTheRestIsNumberedAnew)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters).tick({6});
    rig.tool.SetOffsetUnits(false);
    EXPECT_FALSE(rig.tool.OffsetUnits());
    EXPECT_EQ(rig.tool.jgexGrid.RowCount(), 5);
    EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{1, 2, 3, 5, 6}));
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] NOx", "[ ] CO", "[ ] O2", "[x] Load", "[ ] Flow"}));
}

TEST(ParamSelectHeaders, ComeBackWithTheirRows)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters).tick({6});
    rig.tool.SetOffsetUnits(false);
    rig.tool.SetOffsetUnits(true);
    EXPECT_TRUE(rig.tool.OffsetUnits());
    EXPECT_EQ(visibleIndexes(rig.tool), (Indexes{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(view(rig.tool)[5], "[x] Load");
}

TEST(ParamSelectHeaders, OfAHostAreSetBeforeTheList)
{
    ParamSelectRig rig;
    rig.tool.SetOffsetUnits(false);
    rig.list({kNox, kLoad});
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] NOx", "[ ] Load"}));
}

TEST(ParamSelectHeaders, OfAHostShowOverAPickedUnit)
{
    ParamSelectRig rig;
    rig.filtered().list({kNox, kLoad});
    rig.tool.cmbUnit.Pick(2);
    rig.tool.SetOffsetUnits(true);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT2 --", "[ ] Load"}));
}

TEST(ParamSelectHeaders, LeaveTheRowsThatAreOnViewNotThoseOfTheFilter)
{
    ParamSelectRig rig;
    rig.list({kNox, kLoad}).filtered();
    rig.tool.SetOffsetUnits(false);
    EXPECT_EQ(view(rig.tool), (Lines{"[ ] NOx", "[ ] Load"}));
}

} // namespace k7deval::test
