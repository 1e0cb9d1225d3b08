#include "foundation/ExpectError.h"
#include "screen/TestScreen.h"
#include "selection/SelectionRig.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

/// Cells of the list, and what a user does to them.
namespace k7deval::test
{

namespace
{

void doubleClick(ParamSelect& tool, std::int32_t row, std::int32_t column)
{
    tool.jgexGrid.MouseDown(row, column);
    tool.jgexGrid.DoubleClick();
}

/// A view that goes to the first row when it reads for the first time.
void goToTheFirstRowWhenReading(screen::Grid& grid)
{
    grid.Changed.Connect([&grid, isDone = std::make_shared<bool>(false)] {
        if (!std::exchange(*isDone, true))
            grid.SetRow(1);
    });
}

} // namespace

TEST(ParamSelectCells, OfAParameterAreItsTickAndItsName)
{
    ParamSelectRig rig;
    rig.list({kNox}).tick({2});
    EXPECT_EQ(rig.tool.jgexGrid.Cells(2), (screen::GridCells{true, std::string("NOx")}));
    rig.tool.DeselectAll();
    EXPECT_EQ(rig.tool.jgexGrid.Cells(2), (screen::GridCells{false, std::string("NOx")}));
}

TEST(ParamSelectCells, OfAUnitHaveNoTickEvenIfTheRowIsTicked)
{
    ParamSelectRig rig;
    rig.list({kNox}).tick({1});
    EXPECT_EQ(rig.tool.jgexGrid.Cells(1), (screen::GridCells{Empty{}, std::string("-- GT1 --")}));
}

TEST(ParamSelectCells, OfARowOutsideTheListAreAnError)
{
    ParamSelectRig rig;
    rig.list({kNox});
    for (const std::int32_t row : {0, 3})
        EXPECT_EQ(errorOf([&] { return rig.tool.jgexGrid.Cells(row).first.index(); }), 381);
}

TEST(ParamSelectPIDNumber, StandsInBracketsBeforeTheName)
{
    ParamSelectRig rig;
    rig.tool.SetShowPIDNumber(true);
    EXPECT_TRUE(rig.tool.ShowPIDNumber());
    rig.list({kOpacity, kNox});
    EXPECT_EQ(view(rig.tool), (Lines{"-- Common --", "[ ] [0-100-0-75-00] Opacity", "-- GT1 --",
                                     "[ ] [1-100-0-75-00] NOx"}));
}

TEST(ParamSelectPIDNumber, ComesAndGoesWithoutChangingRowsOrTicks)
{
    ParamSelectRig rig;
    rig.list({kNox}).tick({2});
    rig.tool.SetShowPIDNumber(true);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[x] [1-100-0-75-00] NOx"}));
    rig.tool.SetShowPIDNumber(false);
    EXPECT_EQ(view(rig.tool), (Lines{"-- GT1 --", "[x] NOx"}));
}

TEST(ParamSelectPIDNumber, IsNothingInBracketsForAPIDThatIsNoValidOne)
{
    ParamSelectRig rig;
    rig.site->parameters.push_back(rig.site->parameter(kNox));
    rig.site->parameters.back().pid = 7;
    rig.tool.SetShowPIDNumber(true);
    rig.listWithUnits({7});
    EXPECT_EQ(view(rig.tool), Lines{"[ ] [] NOx"});
}

TEST(ParamSelectPIDNumber, LetsTheGridReadOnlyIfThereAreRows)
{
    ParamSelectRig rig;
    const Raised changed(rig.tool.jgexGrid.Changed);
    rig.tool.SetShowPIDNumber(true);
    EXPECT_EQ(changed.count, 0);
    rig.list({kNox});
    const Raised changedAgain(rig.tool.jgexGrid.Changed);
    rig.tool.SetShowPIDNumber(true);
    EXPECT_EQ(changedAgain.count, 1);
    rig.list({});
    const Raised changedWithoutRows(rig.tool.jgexGrid.Changed);
    rig.tool.SetShowPIDNumber(false);
    EXPECT_EQ(changedWithoutRows.count, 0);
}

TEST(ParamSelectMultiSelect, IsHandedToTheGrid)
{
    ParamSelect tool;
    tool.SetMultiSelect(true);
    EXPECT_TRUE(tool.MultiSelect());
    EXPECT_TRUE(tool.jgexGrid.MultiSelect());
    tool.SetMultiSelect(false);
    EXPECT_FALSE(tool.MultiSelect());
    EXPECT_FALSE(tool.jgexGrid.MultiSelect());
}

TEST(ParamSelectEdit, TicksAndUnticksTheRow)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    rig.tool.jgexGrid.Edit(3, true);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kCo});
    rig.tool.jgexGrid.Edit(3, true);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kCo});
    rig.tool.jgexGrid.Edit(3, false);
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectEdit, UnderAFilterTicksTheRowOnView)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.Pick(2);
    rig.tool.jgexGrid.Edit(2, true);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kFlow});
}

TEST(ParamSelectEdit, TicksAUnitAsWell)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    rig.tool.jgexGrid.Edit(5, true);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kHeader2});
    rig.tool.jgexGrid.Edit(5, false);
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectEdit, KeepsTheCurrentRowThoughTheGridReadsAgain)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    rig.tool.jgexGrid.MoveTo(4, 1);
    goToTheFirstRowWhenReading(rig.tool.jgexGrid);
    rig.tool.jgexGrid.Edit(4, true);
    EXPECT_EQ(rig.tool.jgexGrid.Row(), 4);
}

TEST(ParamSelectEdit, LetsTheGridRead)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    rig.tool.jgexGrid.MoveTo(3, 1);
    const Raised changed(rig.tool.jgexGrid.Changed);
    rig.tool.jgexGrid.Edit(3, true);
    EXPECT_GE(changed.count, 1);
    EXPECT_EQ(rig.tool.jgexGrid.Row(), 3);
}

TEST(ParamSelectCurrentCell, IsNeverLeftOfTheFirstColumn)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    for (const std::int32_t column : {0, -1}) {
        rig.tool.jgexGrid.MoveTo(2, 2);
        rig.tool.jgexGrid.MoveTo(3, column);
        EXPECT_EQ(rig.tool.jgexGrid.Col(), 1) << column;
        EXPECT_EQ(rig.tool.jgexGrid.Row(), 3) << column;
    }
}

TEST(ParamSelectCurrentCell, MayBeInEitherColumn)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    for (const std::int32_t column : {1, 2}) {
        rig.tool.jgexGrid.MoveTo(2, column);
        EXPECT_EQ(rig.tool.jgexGrid.Col(), column);
    }
}

TEST(ParamSelectDoubleClick, OnANameTicksAndUnticksIt)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    doubleClick(rig.tool, 6, 2);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kLoad});
    doubleClick(rig.tool, 6, 2);
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectDoubleClick, UnderAFilterTicksTheRowOnView)
{
    ParamSelectRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.cmbUnit.Pick(2);
    doubleClick(rig.tool, 1, 2);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kLoad});
}

TEST(ParamSelectDoubleClick, OnTheCheckBoxIsLeftToIt)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    const Raised changed(rig.tool.jgexGrid.Changed);
    doubleClick(rig.tool, 2, 1);
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
    EXPECT_EQ(changed.count, 0);
}

TEST(ParamSelectDoubleClick, OnAUnitTicksNothingButLetsTheGridRead)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    const Raised changed(rig.tool.jgexGrid.Changed);
    doubleClick(rig.tool, 5, 2);
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
    EXPECT_EQ(changed.count, 1);
}

TEST(ParamSelectDoubleClick, LeavesATickedUnitTicked)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters).tick({1});
    doubleClick(rig.tool, 1, 2);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kHeader1});
}

TEST(ParamSelectDoubleClick, IsAboutTheRowUnderTheMouseAndKeepsTheCurrentOne)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    for (const std::int32_t row : {2, 5}) {
        rig.tool.jgexGrid.MoveTo(7, 2);
        doubleClick(rig.tool, row, 2);
        EXPECT_EQ(rig.tool.jgexGrid.Row(), 7) << row;
    }
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kNox});
}

TEST(ParamSelectDoubleClick, SetsTheCurrentRowBackWhereReadingMovesIt)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    rig.tool.jgexGrid.MoveTo(7, 2);
    goToTheFirstRowWhenReading(rig.tool.jgexGrid);
    doubleClick(rig.tool, 2, 2);
    EXPECT_EQ(rig.tool.jgexGrid.Row(), 7);
}

TEST(ParamSelectDoubleClick, IsAboutThePlaceOfTheLastPress)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    rig.tool.jgexGrid.MouseDown(2, 1);
    rig.tool.jgexGrid.MouseDown(3, 2);
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt) << "a press alone ticks nothing";
    rig.tool.jgexGrid.DoubleClick();
    rig.tool.jgexGrid.MoveTo(6, 2);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kCo});
}

TEST(ParamSelectDoubleClick, BesideTheColumnsTicksTheRow)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    doubleClick(rig.tool, 2, 0);
    EXPECT_EQ(selectionOf(rig.tool), PIDs{kNox});
}

TEST(ParamSelectDoubleClick, WithNoRowUnderTheMouseIsAnErrorOfTheMapOfRows)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    EXPECT_EQ(errorOf([&] { return rig.tool.jgexGrid.DoubleClick(), 0; }), 5)
        << "the mouse was never pressed";
    EXPECT_EQ(errorOf([&] { return doubleClick(rig.tool, 0, 2), 0; }), 5);
    EXPECT_EQ(errorOf([&] { return doubleClick(rig.tool, 8, 2), 0; }), 5);
    EXPECT_EQ(rig.tool.GetSelection(), std::nullopt);
}

} // namespace k7deval::test
