#include "load/LoadRig.h"
#include "qt/Operator.h"
#include "qt/ScreenComparison.h"
#include "qt/ScreenReader.h"
#include "qt/ctrlMaxMWView.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace k7deval::qt::test
{

namespace
{

using k7deval::test::failAt;
using k7deval::test::LoadRig;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// An operator at the load tool on GT1: ten hours of load on the bounds of bins and levels.
struct LoadScreen {
    LoadScreen()
    {
        rig.hours({5, 10, 15, 16, 30, 31, 60, 61, 99, 100, 110});
        rig.addHours(20, 42);
    }

    LoadRig rig;
    ctrlMaxMWView view{rig.tool};
    Operator hands{view};
};

} // namespace

TEST(LoadScreen, ShowsItsToolFromTheStart)
{
    const LoadScreen screen;
    screen.hands.photograph("load-start");
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(LoadScreen, EvaluatesWithMouseAndKeys)
{
    const LoadScreen screen;
    screen.hands.enter("txtMinSafe", "10");
    screen.hands.enter("txtCapacity", "100");
    screen.hands.click("cmdCalculate");
    screen.hands.photograph("load-results");

    EXPECT_EQ(screen.hands.text("lblHeader"), "GT1 GT1 Load");
    EXPECT_EQ(screen.hands.text("lblBelow"), "1 hour(s) under 10");
    EXPECT_EQ(screen.hands.text("lblAbove"), "1 hour(s) over 100 - Maximum 110");
    EXPECT_TRUE(screen.hands.view<QPushButton>("cmdSave").isEnabled());
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(LoadScreen, AMnemonicLeavesTheFieldBeforeItCalculates)
{
    const LoadScreen screen;
    screen.hands.type("txtMinSafe", "10");
    screen.hands.pressMnemonic(Qt::Key_C);
    EXPECT_EQ(screen.hands.text("lblMinSafe"), "10");
}

TEST(LoadScreen, BadInputIsPutBackWhenTheFieldIsLeft)
{
    const LoadScreen screen;
    screen.hands.type("txtCapacity", "abc");
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtCapacity").text(), "abc");
    screen.hands.press(Qt::Key_Tab);
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtCapacity").text(), "100");
}

TEST(LoadScreen, AnotherWindowDoesNotEndTheTyping)
{
    const LoadScreen screen;
    screen.hands.type("txtCapacity", "abc");
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&screen.hands.view<QLineEdit>("txtCapacity"), &away);
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtCapacity").text(), "abc");
}

TEST(LoadScreen, ThePeriodGoesWithItsOption)
{
    const LoadScreen screen;
    screen.hands.click("optTimeSelect");
    screen.hands.enter("txtFrom", "1/1/2024");
    screen.hands.enter("txtTo", "2024-01-02");
    EXPECT_FALSE(screen.hands.view<QWidget>("cmbYear").isEnabled());
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtTo").text(), "1/2/2024");
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(LoadScreen, ATypedYearIsNotTakenForAPick)
{
    const LoadScreen screen;
    screen.hands.enter("cmbYear", "2023");
    EXPECT_EQ(screen.rig.tool.cmbYear.ListIndex(), -1);
    EXPECT_EQ(screen.rig.tool.cmbYear.Text(), "2023");
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(LoadScreen, AnotherUnitBringsItsOwnParameters)
{
    const LoadScreen screen;
    screen.hands.pick("cmbUnit", "GT2");
    screen.hands.click("chkShowPID");
    EXPECT_EQ(screen.rig.tool.cmbParam.Text(), "[2-602-0-75-01] GT2 Load");
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(LoadScreen, AFailureIsToldAndTheHourglassStays)
{
    const LoadScreen screen;
    failAt(*screen.rig.site, "DIServer.Parameters");
    QString told;
    whenDialogComes([&told](QDialog& dialog) {
        told = dynamic_cast<QMessageBox&>(dialog).text();
        dialog.accept();
    });
    screen.hands.click("cmdCalculate");
    EXPECT_EQ(told, "Error 440: the line is down");
    EXPECT_EQ(screen.view.cursor().shape(), Qt::WaitCursor);
}

TEST(LoadScreen, AScreenReaderMakesSenseOfIt)
{
    const LoadScreen screen;
    EXPECT_THAT(faultsForAScreenReader(screen.view), IsEmpty());
    screen.hands.click("cmdCalculate");
    EXPECT_THAT(faultsForAScreenReader(screen.view), IsEmpty());
}

TEST(LoadScreen, AFieldThatGoesWithItsScreenIsNotLeft)
{
    LoadRig rig;
    QWidget window;
    auto* view = new ctrlMaxMWView(rig.tool, &window);
    Operator(window).type("txtCapacity", "abc");
    delete view;
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "abc");
}

TEST(LoadScreen, EvaluatesDates)
{
    LoadScreen screen;
    screen.hands.click("optTimeSelect");
    screen.rig.services.dateAnswer = makeDate(2024, 1, 1);
    screen.hands.click("cmdFrom");
    screen.hands.enter("txtTo", "2024-01-01");
    screen.hands.click("cmdCalculate");
    screen.hands.photograph("load-dates");
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtFrom").text(), "1/1/2024");
    EXPECT_EQ(screen.hands.text("lblHeader"), "GT1 GT1 Load");
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(LoadScreen, AQuarterFromTheListLeavesTheResults)
{
    const LoadScreen screen;
    screen.hands.click("cmdCalculate");
    screen.hands.pick("cmbQTR", "Q3");
    screen.hands.pick("cmbYear", "2022");
    EXPECT_EQ(screen.hands.text("lblHeader"), "GT1 GT1 Load");
    EXPECT_TRUE(screen.hands.view<QPushButton>("cmdSave").isEnabled());
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(LoadScreen, ALeftFieldTakesTheResultsOffTheScreenButNotTheButton)
{
    const LoadScreen screen;
    screen.hands.click("cmdCalculate");
    screen.hands.type("txtMinSafe", "10");
    screen.hands.click("chkPreview");
    EXPECT_EQ(screen.hands.text("lblHeader"), "");
    EXPECT_TRUE(screen.hands.view<QPushButton>("cmdSave").isEnabled());
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(LoadScreen, TheHourglassIsSeenDuringTheWork)
{
    LoadScreen screen;
    std::vector<Qt::CursorShape> seen;
    screen.rig.tool.Changed.Connect([&] { seen.push_back(screen.view.cursor().shape()); });
    screen.hands.click("cmdCalculate");
    EXPECT_THAT(seen, ElementsAre(Qt::WaitCursor, Qt::ArrowCursor));
}

TEST(LoadScreen, TheTabulatorReadsTheScreen)
{
    const LoadScreen screen;
    const QStringList below{"cmdCalculate", "chkPreview", "cmdClose"};
    const QStringList range{"cmbUnit", "cmbParam", "chkShowPID", "txtMinSafe", "txtCapacity"};
    const QStringList way = screen.hands.walk("cmbUnit");
    EXPECT_EQ(way.mid(0, 11), range + QStringList({"optTimeEnd", "cmbYear", "cmbQTR"}) + below);
    screen.hands.click("optTimeSelect");
    EXPECT_EQ(screen.hands.walk("cmbUnit").mid(0, 13),
              range + QStringList({"optTimeSelect", "txtFrom", "cmdFrom", "txtTo", "cmdTo"}) +
                  below);
}

TEST(LoadScreen, CloseIsTheHostsBusiness)
{
    LoadScreen screen;
    int closings = 0;
    screen.rig.tool.CloseClicked.Connect([&closings] { ++closings; });
    screen.hands.click("cmdClose");
    EXPECT_EQ(closings, 1);
    EXPECT_TRUE(screen.view.isVisible());
}

TEST(LoadScreen, GrowsWithLargeLetters)
{
    const LargeLetters letters;
    const LoadScreen screen;
    screen.hands.click("cmdCalculate");
    screen.hands.photograph("load-large");
    EXPECT_THAT(cutOff(screen.view), IsEmpty());
}

TEST(LoadScreen, AToolWithoutASiteIsEmpty)
{
    k7deval::test::LoadTool rig;
    ctrlMaxMWView view(rig.tool);
    const Operator hands(view);
    EXPECT_THAT(differences(rig.tool, view), IsEmpty());
}

TEST(LoadScreen, TheToolGoesOnWithoutItsScreen)
{
    LoadRig rig;
    {
        const ctrlMaxMWView view(rig.tool);
    }
    rig.hours({50}).calculate();
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 GT1 Load");
}

} // namespace k7deval::qt::test
