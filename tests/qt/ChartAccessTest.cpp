#include "load/LoadRig.h"
#include "qt/Operator.h"
#include "qt/ScreenReader.h"
#include "qt/ctrlMaxMWView.h"

#include <gmock/gmock.h>

#include <QAccessible>

/// The chart as somebody gets it who has it read out.
namespace k7deval::qt::test
{

namespace
{

using k7deval::test::LoadRig;
using ::testing::ElementsAre;

/// The screen of the load tool, with 4 hours in the first bin, 8 in the tenth and 1 in the last.
struct ReadChart {
    ReadChart()
    {
        rig.range("0", "100").hours({1, 1, 1, 1, 99});
        rig.addHours(8, 50);
        hands.view<QWidget>("chart").setFocus(Qt::TabFocusReason);
        settle();
    }

    LoadRig rig;
    ctrlMaxMWView view{rig.tool};
    Operator hands{view};

    [[nodiscard]] QAccessibleInterface& face() const
    {
        return *QAccessible::queryAccessibleInterface(&hands.view<QWidget>("chart"));
    }
    [[nodiscard]] QAccessibleTableInterface& table() const { return *face().tableInterface(); }
    [[nodiscard]] std::string cell(int row, int column) const
    {
        return table().cellAt(row, column)->text(QAccessible::Name).toStdString();
    }
    [[nodiscard]] std::vector<std::string> row(int row) const
    {
        return {cell(row, 0), cell(row, 1), cell(row, 2), cell(row, 3)};
    }
};

} // namespace

TEST(ChartAccess, IsATableOfTwentyBars)
{
    const ReadChart chart;
    EXPECT_EQ(chart.face().role(), QAccessible::Table);
    EXPECT_EQ(chart.face().text(QAccessible::Name), "Hours by 5% of the range");
    EXPECT_EQ(chart.table().rowCount(), 20);
    EXPECT_EQ(chart.table().columnCount(), 4);
    QStringList columns;
    for (int column = 0; column < 4; ++column)
        columns << chart.table().columnDescription(column);
    EXPECT_EQ(columns, QStringList({"From", "To", "Hours", "Percent"}));
    EXPECT_EQ(chart.table().rowDescription(19), "95% to 100% of the range");
    EXPECT_EQ(chart.table().cellAt(20, 0), nullptr);
    EXPECT_EQ(chart.table().cellAt(0, 4), nullptr);
}

TEST(ChartAccess, IsEmptyBeforeAnEvaluation)
{
    const ReadChart chart;
    for (int row = 0; row < 20; ++row)
        EXPECT_THAT(chart.row(row), ElementsAre("", "", "", "")) << row;
}

TEST(ChartAccess, SaysWhatTheToolHas)
{
    const ReadChart chart;
    chart.hands.click("cmdCalculate");
    for (int row = 0; row < 20; ++row) {
        EXPECT_EQ(chart.cell(row, 2),
                  std::to_string(chart.rig.results().Bins.at(static_cast<std::size_t>(row) + 1)));
        EXPECT_EQ(chart.cell(row, 0) + " - " + chart.cell(row, 1) +
                      "   Op Hours: " + chart.cell(row, 2),
                  chart.rig.tool.lblBar[row + 1].ToolTipText());
    }
    EXPECT_THAT(chart.row(0), ElementsAre("0", "5", "4", "30.8%"));
    EXPECT_THAT(chart.row(9), ElementsAre("45", "50", "8", "61.5%"));
    EXPECT_THAT(chart.row(10), ElementsAre("50", "55", "0", "0.0%"));
}

TEST(ChartAccess, IsEmptyAgainWhenTheResultsAreStale)
{
    const ReadChart chart;
    chart.hands.click("cmdCalculate");
    chart.hands.enter("txtMinSafe", "10");
    EXPECT_THAT(chart.row(9), ElementsAre("", "", "", ""));
    chart.hands.click("cmdCalculate");
    EXPECT_THAT(chart.row(19), ElementsAre("95.5", "100", "1", "11.1%"));
}

TEST(ChartAccess, ACellHasItsHeadsAndItsPlace)
{
    const ReadChart chart;
    chart.hands.click("cmdCalculate");
    QAccessibleInterface* hours = chart.table().cellAt(9, 2);
    EXPECT_EQ(hours->role(), QAccessible::Cell);
    EXPECT_EQ(hours->text(QAccessible::Description), "45 - 50   Op Hours: 8");
    QAccessibleTableCellInterface& cell = *hours->tableCellInterface();
    EXPECT_EQ(cell.rowIndex(), 9);
    EXPECT_EQ(cell.columnIndex(), 2);
    EXPECT_EQ(cell.rowHeaderCells().front()->text(QAccessible::Name), "45% to 50% of the range");
    EXPECT_EQ(cell.columnHeaderCells().front()->text(QAccessible::Name), "Hours");
    EXPECT_EQ(cell.table(), &chart.face());
    const QPoint middle = hours->rect().center();
    EXPECT_EQ(chart.face().childAt(middle.x(), middle.y()), hours);
}

TEST(ChartAccess, EveryChildKnowsItsPlaceInTheChart)
{
    const ReadChart chart;
    for (int index = 0; index < chart.face().childCount(); ++index) {
        const QAccessibleInterface* child = chart.face().child(index);
        ASSERT_NE(child, nullptr) << index;
        EXPECT_EQ(chart.face().indexOfChild(child), index);
        EXPECT_EQ(child->parent(), &chart.face()) << index;
    }
    EXPECT_EQ(chart.face().child(4)->role(), QAccessible::RowHeader);
    EXPECT_GT(chart.face().childCount(), 104) << "the texts around the chart, too";
}

TEST(ChartAccess, TheArrowKeysTakeTheFocusFromBarToBar)
{
    const ReadChart chart;
    chart.hands.click("cmdCalculate");
    chart.hands.view<QWidget>("chart").setFocus(Qt::TabFocusReason);
    EXPECT_EQ(chart.face().focusChild(), &chart.face()) << "no bar yet";
    chart.hands.press(Qt::Key_Right);
    chart.hands.press(Qt::Key_Right);
    EXPECT_EQ(chart.face().focusChild(), chart.table().cellAt(1, 2));
    EXPECT_TRUE(chart.table().cellAt(1, 2)->state().focused);
    EXPECT_FALSE(chart.table().cellAt(0, 2)->state().focused);
    chart.hands.view<QWidget>("cmdSave").setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(chart.table().cellAt(1, 2)->state().focused);
}

} // namespace k7deval::qt::test
