#include "qt/Operator.h"
#include "qt/ScreenComparison.h"
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
struct ListScreen {
    ListScreen()
    {
        rig.filtered().list(kFiveParameters);
        view.resize(300, 300);
        settle();
    }

    ParamSelectRig rig;
    ParamSelectView view{rig.tool};
    Operator hands{view};

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

} // namespace

TEST(ListScreen, ShowsTheRowsAndTheFilter)
{
    const ListScreen screen;
    screen.hands.photograph("selection-list");
    EXPECT_EQ(screen.table().model()->rowCount(), 7);
    EXPECT_EQ(screen.text(1), "NOx");
    EXPECT_EQ(screen.table().columnSpan(0, 0), 2);
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(ListScreen, AHeaderFillsTheWidth)
{
    const ListScreen screen;
    const QString header = screen.text(0);
    EXPECT_TRUE(header.startsWith("-----") && header.contains("- GT1 -")) << header.toStdString();
    const int width = screen.table().fontMetrics().horizontalAdvance(header);
    EXPECT_LE(width, screen.table().viewport()->width());
    EXPECT_GE(width, screen.table().viewport()->width() * 3 / 4);
}

TEST(ListScreen, TicksWithMouseAndKeys)
{
    const ListScreen screen;
    screen.tick(1);
    EXPECT_THAT(selectionOf(screen.rig.tool), ElementsAre(kNox));
    screen.table().setCurrentIndex(screen.cell(2, 0));
    QTest::keyClick(&screen.table(), Qt::Key_Space);
    EXPECT_THAT(selectionOf(screen.rig.tool), ElementsAre(kNox, kCo));
    EXPECT_EQ(screen.cell(1, 0).data(Qt::CheckStateRole), Qt::Checked);
    screen.tick(1);
    EXPECT_THAT(selectionOf(screen.rig.tool), ElementsAre(kCo));
}

TEST(ListScreen, TheSpaceBarTicksARowByItsName)
{
    const ListScreen screen;
    screen.click(1, 1);
    screen.hands.press(Qt::Key_Space);
    EXPECT_THAT(selectionOf(screen.rig.tool), ElementsAre(kNox));
    screen.hands.press(Qt::Key_Down);
    screen.hands.press(Qt::Key_Space);
    EXPECT_THAT(selectionOf(screen.rig.tool), ElementsAre(kNox, kCo));
    screen.hands.press(Qt::Key_Space);
    EXPECT_THAT(selectionOf(screen.rig.tool), ElementsAre(kNox));
}

TEST(ListScreen, ADoubleClickOnANameTicksIt)
{
    const ListScreen screen;
    screen.doubleClick(5, 1);
    EXPECT_THAT(selectionOf(screen.rig.tool), ElementsAre(kLoad));
    screen.doubleClick(0, 1);
    EXPECT_THAT(selectionOf(screen.rig.tool), ElementsAre(kLoad));
}

TEST(ListScreen, ADoubleClickOnAMarkIsTheMarksBusiness)
{
    const ListScreen screen;
    screen.doubleClick(2, 1);
    screen.doubleTick(1);
    EXPECT_THAT(selectionOf(screen.rig.tool), ElementsAre(kNox, kCo));
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(ListScreen, APressBesideTheRowsTicksNothing)
{
    const ListScreen screen;
    screen.table().setCurrentIndex(screen.cell(1, 1));
    const QPoint below(20, screen.table().viewport()->height() - 5);
    ASSERT_FALSE(screen.table().indexAt(below).isValid());
    QTest::mouseClick(screen.table().viewport(), Qt::LeftButton, {}, below);
    QTest::mouseDClick(screen.table().viewport(), Qt::LeftButton, {}, below);
    EXPECT_THAT(selectionOf(screen.rig.tool), IsEmpty());
}

TEST(ListScreen, ShowsPIDsWhenTheHostWantsThem)
{
    ListScreen screen;
    const QString header = screen.text(0);
    screen.rig.tool.SetShowPIDNumber(true);
    EXPECT_EQ(screen.text(1), "[1-100-0-75-00] NOx");
    EXPECT_EQ(screen.text(0), header);
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(ListScreen, SeveralRowsCanBeSelectedWhenTheHostAllowsIt)
{
    ListScreen screen;
    const auto selectThree = [&screen] {
        screen.click(1, 1);
        QTest::keyClick(&screen.table(), Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&screen.table(), Qt::Key_Down, Qt::ShiftModifier);
        return screen.table().selectionModel()->selectedRows().size();
    };
    EXPECT_EQ(selectThree(), 1);
    screen.rig.tool.SetMultiSelect(true);
    EXPECT_EQ(selectThree(), 3);
}

TEST(ListScreen, TicksOfTheHostAreSeen)
{
    ListScreen screen;
    screen.rig.tool.SelectAll();
    EXPECT_EQ(screen.cell(1, 0).data(Qt::CheckStateRole), Qt::Checked);
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
    screen.rig.tool.SetOffsetUnits(false);
    EXPECT_EQ(screen.table().model()->rowCount(), 5);
    EXPECT_EQ(screen.table().columnSpan(0, 0), 1);
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(ListScreen, AFilterOfOneUnitIsTakenAway)
{
    ListScreen screen;
    screen.rig.list({kNox, kCo});
    EXPECT_FALSE(screen.hands.view<QWidget>("cmbUnit").isVisible());
    settle();
    EXPECT_EQ(screen.table().height(), screen.view.height());
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(ListScreen, AHeaderFillsTheWidthInOtherLetters)
{
    ListScreen screen;
    const auto before = screen.text(0).size();
    QFont large = screen.view.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    screen.view.setFont(large);
    screen.view.resize(301, 300);
    settle();
    EXPECT_LT(screen.text(0).size(), before * 3 / 4);
}

TEST(ListScreen, GrowsWithLargeLetters)
{
    const LargeLetters letters;
    const ListScreen screen;
    screen.hands.photograph("selection-large");
    EXPECT_GE(screen.table().rowHeight(1), screen.view.fontMetrics().height());
}

TEST(ListScreen, TheTabulatorGoesOnFromTheList)
{
    const ListScreen screen;
    EXPECT_EQ(screen.hands.walk("cmbUnit"), QStringList({"cmbUnit", "jgexGrid"}));
}

TEST(ListScreen, TheFilterShowsOneUnit)
{
    const ListScreen screen;
    screen.hands.pick("cmbUnit", "GT2");
    EXPECT_EQ(screen.table().model()->rowCount(), 2);
    EXPECT_EQ(screen.text(0), "Load");
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(ListScreen, KnowsItsKeysCell)
{
    const ListScreen screen;
    screen.table().setFocus();
    screen.table().setCurrentIndex(screen.cell(2, 1));
    QTest::keyClick(&screen.table(), Qt::Key_Down);
    EXPECT_EQ(screen.rig.tool.jgexGrid.Row(), 4);
}

TEST(ListScreen, AScreenReaderMakesSenseOfIt)
{
    const ListScreen screen;
    EXPECT_THAT(faultsForAScreenReader(screen.view), IsEmpty());
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
