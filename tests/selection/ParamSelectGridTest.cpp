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

/// What a user does to a list of five parameters, what is ticked behind it, and whether the grid
/// is told to read.
struct TickCase {
    const char* what;
    void (*act)(ParamSelectRig& rig);
    PIDs ticked;
    bool reads;
};

TEST(ParamSelectTicks, FollowEditsAndDoubleClicks)
{
    const TickCase rows[] = {
        {"an edit", [](auto& rig) { rig.ticks(3); }, {kCo}, true},
        {"an edit to the same value", [](auto& rig) { rig.ticks(3, 3); }, {kCo}, true},
        {"an edit taken back",
         [](auto& rig) { rig.ticks(3).tool.jgexGrid.Edit(3, false); },
         {},
         true},
        {"an edit under a filter", [](auto& rig) { rig.pick(2).ticks(2); }, {kFlow}, true},
        {"an edit of a unit", [](auto& rig) { rig.ticks(5); }, {kHeader2}, true},
        {"an edit of a unit taken back",
         [](auto& rig) { rig.ticks(5).tool.jgexGrid.Edit(5, false); },
         {},
         true},
        {"a double click on a name", [](auto& rig) { doubleClick(rig.tool, 6, 2); }, {kLoad}, true},
        {"a second one",
         [](auto& rig) {
             doubleClick(rig.tool, 6, 2);
             doubleClick(rig.tool, 6, 2);
         },
         {},
         true},
        {"one under a filter",
         [](auto& rig) { doubleClick(rig.pick(2).tool, 1, 2); },
         {kLoad},
         true},
        {"one on the check box, which is left to it",
         [](auto& rig) { doubleClick(rig.tool, 2, 1); },
         {},
         false},
        {"one on a unit", [](auto& rig) { doubleClick(rig.tool, 5, 2); }, {}, true},
        {"one on a ticked unit",
         [](auto& rig) { doubleClick(rig.ticks(1).tool, 1, 2); },
         {kHeader1},
         true},
        {"one beside the columns", [](auto& rig) { doubleClick(rig.tool, 2, 0); }, {kNox}, true},
        {"one behind presses elsewhere, a press alone ticking nothing",
         [](auto& rig) {
             rig.tool.jgexGrid.MouseDown(2, 1);
             doubleClick(rig.tool, 3, 2);
             rig.tool.jgexGrid.MoveTo(6, 2);
         },
         {kCo},
         true},
    };
    for (const TickCase& row : rows) {
        ParamSelectRig rig;
        rig.filtered().list(kFiveParameters);
        const Raised changed(rig.tool.jgexGrid.Changed);
        row.act(rig);
        EXPECT_EQ(selectionOf(rig.tool), row.ticked) << row.what;
        EXPECT_EQ(changed.count > 0, row.reads) << row.what;
    }
}

TEST(ParamSelectDoubleClick, LetsTheGridReadOnceOnAUnit)
{
    ParamSelectRig rig;
    rig.list(kFiveParameters);
    const Raised changed(rig.tool.jgexGrid.Changed);
    doubleClick(rig.tool, 5, 2);
    EXPECT_EQ(changed.count, 1);
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
