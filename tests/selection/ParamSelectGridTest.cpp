#include "foundation/ExpectError.h"
#include "screen/TestScreen.h"
#include "selection/SelectionBench.h"

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
    ParamSelectBench bench;
    bench.list({kNox}).tick({2});
    EXPECT_EQ(bench.tool.jgexGrid.Cells(2), (screen::GridCells{true, std::string("NOx")}));
    bench.tool.DeselectAll();
    EXPECT_EQ(bench.tool.jgexGrid.Cells(2), (screen::GridCells{false, std::string("NOx")}));
}

TEST(ParamSelectCells, OfAUnitHaveNoTickEvenIfTheRowIsTicked)
{
    ParamSelectBench bench;
    bench.list({kNox}).tick({1});
    EXPECT_EQ(bench.tool.jgexGrid.Cells(1), (screen::GridCells{Empty{}, std::string("-- GT1 --")}));
}

TEST(ParamSelectCells, OfARowOutsideTheListAreAnError)
{
    ParamSelectBench bench;
    bench.list({kNox});
    for (const std::int32_t row : {0, 3})
        EXPECT_EQ(errorOf([&] { return bench.tool.jgexGrid.Cells(row).first.index(); }), 381);
}

TEST(ParamSelectPIDNumber, StandsInBracketsBeforeTheName)
{
    ParamSelectBench bench;
    bench.tool.SetShowPIDNumber(true);
    EXPECT_TRUE(bench.tool.ShowPIDNumber());
    bench.list({kOpacity, kNox});
    EXPECT_EQ(view(bench.tool), (Lines{"-- Common --", "[ ] [0-100-0-75-00] Opacity", "-- GT1 --",
                                       "[ ] [1-100-0-75-00] NOx"}));
}

TEST(ParamSelectPIDNumber, ComesAndGoesWithoutChangingRowsOrTicks)
{
    ParamSelectBench bench;
    bench.list({kNox}).tick({2});
    bench.tool.SetShowPIDNumber(true);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[x] [1-100-0-75-00] NOx"}));
    bench.tool.SetShowPIDNumber(false);
    EXPECT_EQ(view(bench.tool), (Lines{"-- GT1 --", "[x] NOx"}));
}

TEST(ParamSelectPIDNumber, IsNothingInBracketsForAPIDThatIsNoValidOne)
{
    ParamSelectBench bench;
    bench.site->parameters.push_back(bench.site->parameter(kNox));
    bench.site->parameters.back().pid = 7;
    bench.tool.SetShowPIDNumber(true);
    bench.listWithUnits({7});
    EXPECT_EQ(view(bench.tool), Lines{"[ ] [] NOx"});
}

TEST(ParamSelectPIDNumber, LetsTheGridReadOnlyIfThereAreRows)
{
    ParamSelectBench bench;
    const Raised changed(bench.tool.jgexGrid.Changed);
    bench.tool.SetShowPIDNumber(true);
    EXPECT_EQ(changed.count, 0);
    bench.list({kNox});
    const Raised changedAgain(bench.tool.jgexGrid.Changed);
    bench.tool.SetShowPIDNumber(true);
    EXPECT_EQ(changedAgain.count, 1);
    bench.list({});
    const Raised changedWithoutRows(bench.tool.jgexGrid.Changed);
    bench.tool.SetShowPIDNumber(false);
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
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    bench.tool.jgexGrid.Edit(3, true);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kCo});
    bench.tool.jgexGrid.Edit(3, true);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kCo});
    bench.tool.jgexGrid.Edit(3, false);
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectEdit, UnderAFilterTicksTheRowOnView)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.Pick(2);
    bench.tool.jgexGrid.Edit(2, true);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kFlow});
}

TEST(ParamSelectEdit, TicksAUnitAsWell)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    bench.tool.jgexGrid.Edit(5, true);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kHeader2});
    bench.tool.jgexGrid.Edit(5, false);
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectEdit, KeepsTheCurrentRowThoughTheGridReadsAgain)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    bench.tool.jgexGrid.MoveTo(4, 1);
    goToTheFirstRowWhenReading(bench.tool.jgexGrid);
    bench.tool.jgexGrid.Edit(4, true);
    EXPECT_EQ(bench.tool.jgexGrid.Row(), 4);
}

TEST(ParamSelectEdit, LetsTheGridRead)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    bench.tool.jgexGrid.MoveTo(3, 1);
    const Raised changed(bench.tool.jgexGrid.Changed);
    bench.tool.jgexGrid.Edit(3, true);
    EXPECT_GE(changed.count, 1);
    EXPECT_EQ(bench.tool.jgexGrid.Row(), 3);
}

TEST(ParamSelectCurrentCell, IsNeverLeftOfTheFirstColumn)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    for (const std::int32_t column : {0, -1}) {
        bench.tool.jgexGrid.MoveTo(2, 2);
        bench.tool.jgexGrid.MoveTo(3, column);
        EXPECT_EQ(bench.tool.jgexGrid.Col(), 1) << column;
        EXPECT_EQ(bench.tool.jgexGrid.Row(), 3) << column;
    }
}

TEST(ParamSelectCurrentCell, MayBeInEitherColumn)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    for (const std::int32_t column : {1, 2}) {
        bench.tool.jgexGrid.MoveTo(2, column);
        EXPECT_EQ(bench.tool.jgexGrid.Col(), column);
    }
}

TEST(ParamSelectDoubleClick, OnANameTicksAndUnticksIt)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    doubleClick(bench.tool, 6, 2);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kLoad});
    doubleClick(bench.tool, 6, 2);
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
}

TEST(ParamSelectDoubleClick, UnderAFilterTicksTheRowOnView)
{
    ParamSelectBench bench;
    bench.filtered().list(kFiveParameters);
    bench.tool.cmbUnit.Pick(2);
    doubleClick(bench.tool, 1, 2);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kLoad});
}

TEST(ParamSelectDoubleClick, OnTheCheckBoxIsLeftToIt)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    const Raised changed(bench.tool.jgexGrid.Changed);
    doubleClick(bench.tool, 2, 1);
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
    EXPECT_EQ(changed.count, 0);
}

TEST(ParamSelectDoubleClick, OnAUnitTicksNothingButLetsTheGridRead)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    const Raised changed(bench.tool.jgexGrid.Changed);
    doubleClick(bench.tool, 5, 2);
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
    EXPECT_EQ(changed.count, 1);
}

TEST(ParamSelectDoubleClick, LeavesATickedUnitTicked)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters).tick({1});
    doubleClick(bench.tool, 1, 2);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kHeader1});
}

TEST(ParamSelectDoubleClick, IsAboutTheRowUnderTheMouseAndKeepsTheCurrentOne)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    for (const std::int32_t row : {2, 5}) {
        bench.tool.jgexGrid.MoveTo(7, 2);
        doubleClick(bench.tool, row, 2);
        EXPECT_EQ(bench.tool.jgexGrid.Row(), 7) << row;
    }
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kNox});
}

TEST(ParamSelectDoubleClick, SetsTheCurrentRowBackWhereReadingMovesIt)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    bench.tool.jgexGrid.MoveTo(7, 2);
    goToTheFirstRowWhenReading(bench.tool.jgexGrid);
    doubleClick(bench.tool, 2, 2);
    EXPECT_EQ(bench.tool.jgexGrid.Row(), 7);
}

TEST(ParamSelectDoubleClick, IsAboutThePlaceOfTheLastPress)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    bench.tool.jgexGrid.MouseDown(2, 1);
    bench.tool.jgexGrid.MouseDown(3, 2);
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt) << "a press alone ticks nothing";
    bench.tool.jgexGrid.DoubleClick();
    bench.tool.jgexGrid.MoveTo(6, 2);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kCo});
}

TEST(ParamSelectDoubleClick, BesideTheColumnsTicksTheRow)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    doubleClick(bench.tool, 2, 0);
    EXPECT_EQ(selectionOf(bench.tool), PIDs{kNox});
}

TEST(ParamSelectDoubleClick, WithNoRowUnderTheMouseIsAnErrorOfTheMapOfRows)
{
    ParamSelectBench bench;
    bench.list(kFiveParameters);
    EXPECT_EQ(errorOf([&] { return bench.tool.jgexGrid.DoubleClick(), 0; }), 5)
        << "the mouse was never pressed";
    EXPECT_EQ(errorOf([&] { return doubleClick(bench.tool, 0, 2), 0; }), 5);
    EXPECT_EQ(errorOf([&] { return doubleClick(bench.tool, 8, 2), 0; }), 5);
    EXPECT_EQ(bench.tool.GetSelection(), std::nullopt);
}

} // namespace k7deval::test
