#include "qt/ScreenOperator.h"
#include "qt/ScreenReader.h"
#include "qt/SelectionViews.h"
#include "selection/SelectionRig.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTableView>
#include <QTest>

namespace k7deval::qt::test
{

namespace
{

using k7deval::test::kCo;
using k7deval::test::kFiveParameters;
using k7deval::test::kLoad;
using k7deval::test::kNox;
using k7deval::test::ParamSelectRig;
using k7deval::test::selectionOf;
using k7deval::test::SingleRig;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// An operator at the list of five parameters of two units, under the filter of units.
struct ListOperator : ScreenOperator<ParamSelectRig, ParamSelectView> {
    ListOperator()
    {
        rig.filtered().list(kFiveParameters);
        view.resize(300, 300);
        settle();
    }

    [[nodiscard]] QTableView& table() const { return hands.view<QTableView>("jgexGrid"); }
    [[nodiscard]] QModelIndex cell(int row, int column) const
    {
        return table().model()->index(row, column);
    }
    [[nodiscard]] QString text(int row) const { return cell(row, 1).data().toString(); }
    /// On the mark of a row, from 0.
    void tick(int row) const
    {
        const QRect rect = table().visualRect(cell(row, 0));
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                          {rect.left() + rect.height() / 2, rect.center().y()});
        settle();
    }
    /// All presses and releases of it, through the window.
    void doubleTick(int row) const
    {
        const QRect rect = table().visualRect(cell(row, 0));
        const QPoint mark(rect.left() + rect.height() / 2, rect.center().y());
        QTest::mouseDClick(view.windowHandle(), Qt::LeftButton, {},
                           table().viewport()->mapTo(&view, mark));
        settle();
    }
    [[nodiscard]] QPoint middle(int row, int column) const
    {
        return table().visualRect(cell(row, column)).center();
    }
    void click(int row, int column) const
    {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, middle(row, column));
        settle();
    }
    void doubleClick(int row, int column) const
    {
        click(row, column);
        QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, middle(row, column));
        settle();
    }
};

struct ListScreen : testing::Test, ListOperator {
};

} // namespace

TEST_F(ListScreen, ShowsTheRowsAndTheFilter)
{
    hands.photograph("selection-list");
    EXPECT_EQ(table().model()->rowCount(), 7);
    EXPECT_EQ(text(1), "NOx");
    EXPECT_EQ(table().columnSpan(0, 0), 2);
}

TEST_F(ListScreen, AHeaderFillsTheWidth)
{
    const QString header = text(0);
    EXPECT_TRUE(header.startsWith("-----") && header.contains("- GT1 -")) << header.toStdString();
    const int width = table().fontMetrics().horizontalAdvance(header);
    EXPECT_LE(width, table().viewport()->width());
    EXPECT_GE(width, table().viewport()->width() * 3 / 4);
}

TEST_F(ListScreen, TicksWithMouseAndKeys)
{
    tick(1);
    EXPECT_THAT(selectionOf(rig.tool), ElementsAre(kNox));
    table().setCurrentIndex(cell(2, 0));
    QTest::keyClick(&table(), Qt::Key_Space);
    EXPECT_THAT(selectionOf(rig.tool), ElementsAre(kNox, kCo));
    EXPECT_EQ(cell(1, 0).data(Qt::CheckStateRole), Qt::Checked);
    tick(1);
    EXPECT_THAT(selectionOf(rig.tool), ElementsAre(kCo));
}

TEST_F(ListScreen, TheSpaceBarTicksARowByItsName)
{
    click(1, 1);
    hands.press(Qt::Key_Space);
    EXPECT_THAT(selectionOf(rig.tool), ElementsAre(kNox));
    hands.press(Qt::Key_Down);
    hands.press(Qt::Key_Space);
    EXPECT_THAT(selectionOf(rig.tool), ElementsAre(kNox, kCo));
    hands.press(Qt::Key_Space);
    EXPECT_THAT(selectionOf(rig.tool), ElementsAre(kNox));
}

TEST_F(ListScreen, ADoubleClickOnANameTicksIt)
{
    doubleClick(5, 1);
    EXPECT_THAT(selectionOf(rig.tool), ElementsAre(kLoad));
    doubleClick(0, 1);
    EXPECT_THAT(selectionOf(rig.tool), ElementsAre(kLoad));
}

TEST_F(ListScreen, ADoubleClickOnAMarkIsTheMarksBusiness)
{
    doubleClick(2, 1);
    doubleTick(1);
    EXPECT_THAT(selectionOf(rig.tool), ElementsAre(kNox, kCo));
}

TEST_F(ListScreen, APressBesideTheRowsTicksNothing)
{
    table().setCurrentIndex(cell(1, 1));
    const QPoint below(20, table().viewport()->height() - 5);
    ASSERT_FALSE(table().indexAt(below).isValid());
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, below);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, below);
    EXPECT_THAT(selectionOf(rig.tool), IsEmpty());
}

TEST_F(ListScreen, ShowsPIDsWhenTheHostWantsThem)
{
    const QString header = text(0);
    rig.tool.SetShowPIDNumber(true);
    EXPECT_EQ(text(1), "[1-100-0-75-00] NOx");
    EXPECT_EQ(text(0), header);
}

TEST_F(ListScreen, SeveralRowsCanBeSelectedWhenTheHostAllowsIt)
{
    const auto selectThree = [this] {
        click(1, 1);
        QTest::keyClick(&table(), Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&table(), Qt::Key_Down, Qt::ShiftModifier);
        return table().selectionModel()->selectedRows().size();
    };
    EXPECT_EQ(selectThree(), 1);
    rig.tool.SetMultiSelect(true);
    EXPECT_EQ(selectThree(), 3);
}

TEST_F(ListScreen, TicksOfTheHostAreSeen)
{
    rig.tool.SelectAll();
    EXPECT_EQ(cell(1, 0).data(Qt::CheckStateRole), Qt::Checked);
    EXPECT_THAT(differences(), IsEmpty());
    rig.tool.SetOffsetUnits(false);
    EXPECT_EQ(table().model()->rowCount(), 5);
    EXPECT_EQ(table().columnSpan(0, 0), 1);
}

TEST_F(ListScreen, AFilterOfOneUnitIsTakenAway)
{
    rig.list({kNox, kCo});
    EXPECT_FALSE(hands.view<QWidget>("cmbUnit").isVisible());
    settle();
    EXPECT_EQ(table().height(), view.height());
}

TEST_F(ListScreen, AHeaderFillsTheWidthInOtherLetters)
{
    const auto before = text(0).size();
    QFont large = view.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    view.setFont(large);
    view.resize(301, 300);
    settle();
    EXPECT_LT(text(0).size(), before * 3 / 4);
}

TEST(ListScreens, GrowsWithLargeLetters)
{
    const LargeLetters letters;
    const ListOperator screen;
    screen.hands.photograph("selection-large");
    EXPECT_GE(screen.table().rowHeight(1), screen.view.fontMetrics().height());
}

TEST_F(ListScreen, TheTabulatorGoesOnFromTheList)
{
    EXPECT_EQ(hands.walk("cmbUnit"), QStringList({"cmbUnit", "jgexGrid"}));
}

TEST_F(ListScreen, TheFilterShowsOneUnit)
{
    hands.pick("cmbUnit", "GT2");
    EXPECT_EQ(table().model()->rowCount(), 2);
    EXPECT_EQ(text(0), "Load");
}

TEST_F(ListScreen, KnowsItsKeysCell)
{
    table().setFocus();
    table().setCurrentIndex(cell(2, 1));
    QTest::keyClick(&table(), Qt::Key_Down);
    EXPECT_EQ(rig.tool.jgexGrid.Row(), 4);
}

TEST_F(ListScreen, AScreenReaderMakesSenseOfIt)
{
    EXPECT_THAT(faultsForAScreenReader(view), IsEmpty());
}

TEST(SingleScreen, PicksOneParameter)
{
    SingleRig rig;
    rig.filtered().list(kFiveParameters);
    SingleParamSelectView view(rig.tool);
    const Operator hands(view);
    hands.pick("cmbPID", "GT1 CO");
    hands.photograph("selection-single");
    EXPECT_EQ(rig.tool.GetSelection(), kCo);
    EXPECT_THAT(differences(rig.tool, view), IsEmpty());
    EXPECT_THAT(faultsForAScreenReader(view), IsEmpty());
    EXPECT_EQ(hands.walk("cmbUnit"), QStringList({"cmbUnit", "cmbPID"}));
}

TEST(SingleScreen, AnotherUnitLeavesNothingToPick)
{
    SingleRig rig;
    rig.filtered().list(kFiveParameters);
    rig.tool.SetShowPIDNumber(true);
    SingleParamSelectView view(rig.tool);
    const Operator hands(view);
    EXPECT_EQ(hands.view<QComboBox>("cmbPID").itemText(0), "GT1 NOx 1-100-0-75-00");
    hands.pick("cmbUnit", "GT2");
    EXPECT_EQ(hands.view<QComboBox>("cmbPID").count(), 0);
    EXPECT_THAT(differences(rig.tool, view), IsEmpty());
}

TEST(SingleScreen, WithoutAFilterItHasOneBox)
{
    SingleRig rig;
    rig.filtered(false).list(kFiveParameters);
    SingleParamSelectView view(rig.tool);
    const Operator hands(view);
    EXPECT_FALSE(hands.view<QWidget>("cmbUnit").isVisible());
    hands.type("cmbPID", "CO");
    EXPECT_EQ(rig.tool.cmbPID.ListIndex(), -1);
    EXPECT_THAT(differences(rig.tool, view), IsEmpty());
}

} // namespace k7deval::qt::test
