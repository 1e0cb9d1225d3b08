#include "screen/Grid.h"

#include "foundation/ExpectError.h"
#include "screen/TestScreen.h"
#include "support/ScreenSnapshot.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace k7deval::test
{

namespace
{

/// A list of three rows, of which the control keeps a mark each: "Row 1", "Row 2", "Row 3".
class Grid : public ::testing::Test
{
protected:
    Grid()
    {
        grid.SetRowCount(3);
        grid.ReadRow = [this](std::int32_t row) {
            return screen::GridCells{marks.at(static_cast<std::size_t>(row) - 1),
                                     "Row " + std::to_string(row)};
        };
        grid.WriteRow = [this](std::int32_t row, bool value) {
            marks.at(static_cast<std::size_t>(row) - 1) = value;
        };
    }

    screen::Control control{"control"};
    screen::Grid grid{control, "grid"};
    std::vector<bool> marks = {false, false, false};
};

} // namespace

TEST(GridAtStart, HasNoRowsAndNoCurrentCell)
{
    screen::Control control("control");
    const screen::Grid grid(control, "grid");
    EXPECT_EQ(grid.RowCount(), 0);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.Col(), 0);
    EXPECT_FALSE(grid.MultiSelect());
    EXPECT_EQ(grid.kind(), "Grid");
}

TEST(GridAtStart, HasTheColumnsOfTheDesign)
{
    screen::Control control("control");
    const screen::Grid grid(control, "grid");
    EXPECT_EQ(grid.ColumnWidth(1), 20.0F);
    EXPECT_EQ(grid.ColumnWidth(2), 100.0F);
}

TEST(GridAtStart, MeasuresLongerTextsAsWider)
{
    screen::Control control("control");
    const screen::Grid grid(control, "grid");
    EXPECT_EQ(grid.TextWidth(""), 0.0F);
    EXPECT_GT(grid.TextWidth("ab"), grid.TextWidth("a"));
    EXPECT_GT(grid.ScrollBarWidth, 0.0F);
}

TEST_F(Grid, AsksForItsRowsByNumber)
{
    marks[1] = true;
    EXPECT_EQ(grid.Cells(1), (screen::GridCells{false, std::string("Row 1")}));
    EXPECT_EQ(grid.Cells(2), (screen::GridCells{true, std::string("Row 2")}));
}

TEST_F(Grid, HoldsNoneOfThem)
{
    EXPECT_EQ(grid.Cells(3).first, k7deval::Variant(false));
    marks[2] = true;
    EXPECT_EQ(grid.Cells(3).first, k7deval::Variant(true));
}

TEST_F(Grid, LeavesCellsUnsetThatNobodyAnswersFor)
{
    grid.ReadRow = [](std::int32_t) { return screen::GridCells{Empty{}, std::string("Unit")}; };
    EXPECT_EQ(grid.Cells(1).first, k7deval::Variant(Empty{}));
    grid.ReadRow = nullptr;
    EXPECT_EQ(grid.Cells(1), screen::GridCells{});
}

TEST_F(Grid, HasNoCellsOutsideItsRows)
{
    for (const std::int32_t row : {-1, 0, 4})
        EXPECT_EQ(errorOf([&] { return grid.Cells(row).first.index(); }), 381) << row;
    grid.SetRowCount(4);
    grid.ReadRow = [](std::int32_t) { return screen::GridCells{true, std::string("Any")}; };
    EXPECT_EQ(errorOf([&] { return grid.Cells(4).first.index(); }), 0);
}

TEST_F(Grid, PassesOnTheErrorOfTheAnswer)
{
    grid.ReadRow = [](std::int32_t) -> screen::GridCells { throw Error(errors::kSubscript); };
    EXPECT_EQ(errorOf([&] { return grid.Cells(1).first.index(); }), 9);
}

TEST_F(Grid, HasNoThirdColumn)
{
    for (const std::int32_t column : {0, 3})
        EXPECT_EQ(errorOf([&] { return grid.ColumnWidth(column); }), 381) << column;
}

TEST_F(Grid, GivesItsSecondColumnAnotherWidth)
{
    const Raised changed(grid.Changed);
    grid.setSecondColumnWidth(3520);
    EXPECT_EQ(grid.ColumnWidth(1), 20.0F);
    EXPECT_EQ(grid.ColumnWidth(2), 3520.0F);
    EXPECT_EQ(changed.count, 1);
}

TEST_F(Grid, TellsItsViewOfEachReadingAndOfWhatDiffers)
{
    const Raised changed(grid.Changed);
    grid.readAgain();
    grid.readAgain();
    EXPECT_EQ(changed.count, 2);
    grid.SetRowCount(3);
    grid.SetMultiSelect(false);
    EXPECT_EQ(changed.count, 2);
    grid.SetRowCount(2);
    grid.SetMultiSelect(true);
    EXPECT_EQ(changed.count, 4);
    EXPECT_TRUE(grid.MultiSelect());
}

TEST_F(Grid, AnEditHandsTheNewValueOverBeforeItIsNotified)
{
    std::vector<bool> seen;
    grid.Edited.Connect([&] { seen = marks; });
    grid.Edit(2, true);
    EXPECT_EQ(seen, (std::vector<bool>{false, true, false}));
    grid.Edit(2, false);
    EXPECT_EQ(seen, (std::vector<bool>{false, false, false}));
}

TEST_F(Grid, AnEditMovesToTheCellFirst)
{
    std::pair<int, int> cell;
    grid.Edited.Connect([&] { cell = {grid.Row(), grid.Col()}; });
    grid.MoveTo(1, 2);
    grid.Edit(3, true);
    EXPECT_EQ(cell, (std::pair<int, int>{3, 1}));
}

TEST_F(Grid, AnEditOutsideTheRowsDoesNothing)
{
    const Raised edited(grid.Edited);
    for (const std::int32_t row : {-1, 0, 4})
        grid.Edit(row, true);
    EXPECT_EQ(edited.count, 0);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(marks, (std::vector<bool>{false, false, false}));
}

TEST_F(Grid, AnEditNeedsNobodyWhoTakesTheValue)
{
    grid.WriteRow = nullptr;
    const Raised edited(grid.Edited);
    grid.Edit(1, true);
    EXPECT_EQ(edited.count, 1);
}

TEST_F(Grid, AnEditThatIsRefusedIsNotNotified)
{
    grid.WriteRow = [](std::int32_t, bool) { throw Error(errors::kInvalidCall); };
    const Raised edited(grid.Edited);
    EXPECT_EQ(errorOf([&] { return grid.Edit(1, true), 0; }), 5);
    EXPECT_EQ(edited.count, 0);
}

TEST_F(Grid, AMoveIsNotifiedOnceWhenRowOrColumnBecomesAnother)
{
    const Raised moved(grid.CurrentCellChanged);
    grid.MoveTo(2, 1);
    EXPECT_EQ(moved.count, 1);
    grid.MoveTo(2, 1);
    EXPECT_EQ(moved.count, 1);
    grid.MoveTo(2, 2);
    grid.MoveTo(3, 2);
    EXPECT_EQ(moved.count, 3);
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.Col(), 2);
}

TEST_F(Grid, TheCurrentCellSetByCodeIsNotNotified)
{
    const Raised moved(grid.CurrentCellChanged);
    grid.SetRow(2);
    grid.SetCol(2);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_EQ(moved.count, 0);
}

TEST_F(Grid, APressTellsTheCellUnderThePointerAndMovesNowhere)
{
    std::vector<std::pair<int, int>> pressed;
    grid.MousePressed.Connect([&](int row, int column) { pressed.emplace_back(row, column); });
    grid.MouseDown(2, 1);
    grid.MouseDown(0, 0);
    EXPECT_EQ(pressed, (std::vector<std::pair<int, int>>{{2, 1}, {0, 0}}));
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.Col(), 0);
}

TEST_F(Grid, ADoubleClickIsNotified)
{
    const Raised clicked(grid.DoubleClicked);
    grid.DoubleClick();
    EXPECT_EQ(clicked.count, 1);
}

TEST_F(Grid, TheUserCannotReachAHiddenOrDisabledOne)
{
    const Raised edited(grid.Edited);
    const Raised moved(grid.CurrentCellChanged);
    const Raised pressed(grid.MousePressed);
    const Raised clicked(grid.DoubleClicked);
    for (const auto& [visible, enabled] : {std::pair(false, true), std::pair(true, false)}) {
        grid.SetVisible(visible);
        grid.SetEnabled(enabled);
        grid.Edit(1, true);
        grid.MoveTo(2, 2);
        grid.MouseDown(2, 2);
        grid.DoubleClick();
    }
    EXPECT_EQ(edited.count + moved.count + pressed.count + clicked.count, 0);
    EXPECT_EQ(marks, (std::vector<bool>{false, false, false}));
    EXPECT_EQ(grid.Row(), 0);
}

TEST_F(Grid, DescribesItselfWithItsRows)
{
    marks[1] = true;
    grid.SetRowCount(2);
    grid.SetMultiSelect(true);
    grid.MoveTo(2, 1);
    const Snapshot shown = snapshotOf(control);
    EXPECT_EQ(shown.at("grid.RowCount"), "2");
    EXPECT_EQ(shown.at("grid.Row"), "2");
    EXPECT_EQ(shown.at("grid.Col"), "1");
    EXPECT_EQ(shown.at("grid.MultiSelect"), "True");
    EXPECT_EQ(shown.at("grid.Cells"), R"([[False, "Row 1"], [True, "Row 2"]])");
}

TEST_F(Grid, DescribesUnsetCellsAsEmptyTexts)
{
    grid.SetRowCount(1);
    grid.ReadRow = nullptr;
    EXPECT_EQ(snapshotOf(control).at("grid.Cells"), R"([["", ""]])");
}

} // namespace k7deval::test
