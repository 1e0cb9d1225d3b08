#include "load/LoadRig.h"
#include "qt/ScreenOperator.h"
#include "qt/ScreenReader.h"
#include "qt/ctrlMaxMWView.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
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
struct LoadOperator : ScreenOperator<LoadRig, ctrlMaxMWView> {
    LoadOperator()
    {
        rig.hours({5, 10, 15, 16, 30, 31, 60, 61, 99, 100, 110});
        rig.addHours(20, 42);
    }
};

struct LoadScreen : testing::Test, LoadOperator {
};

} // namespace

TEST_F(LoadScreen, ShowsItsToolFromTheStart)
{
    hands.photograph("load-start");
}

TEST_F(LoadScreen, EvaluatesWithMouseAndKeys)
{
    hands.enter("txtMinSafe", "10");
    hands.enter("txtCapacity", "100");
    hands.click("cmdCalculate");
    hands.photograph("load-results");

    EXPECT_EQ(hands.text("lblHeader"), "GT1 GT1 Load");
    EXPECT_EQ(hands.text("lblBelow"), "1 hour(s) under 10");
    EXPECT_EQ(hands.text("lblAbove"), "1 hour(s) over 100 - Maximum 110");
    EXPECT_TRUE(hands.view<QPushButton>("cmdSave").isEnabled());
}

TEST_F(LoadScreen, AMnemonicLeavesTheFieldBeforeItCalculates)
{
    hands.type("txtMinSafe", "10");
    hands.pressMnemonic(Qt::Key_C);
    EXPECT_EQ(hands.text("lblMinSafe"), "10");
}

TEST_F(LoadScreen, BadInputIsPutBackWhenTheFieldIsLeft)
{
    hands.type("txtCapacity", "abc");
    EXPECT_EQ(hands.view<QLineEdit>("txtCapacity").text(), "abc");
    hands.press(Qt::Key_Tab);
    EXPECT_EQ(hands.view<QLineEdit>("txtCapacity").text(), "100");
}

TEST_F(LoadScreen, AnotherWindowDoesNotEndTheTyping)
{
    hands.type("txtCapacity", "abc");
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&hands.view<QLineEdit>("txtCapacity"), &away);
    EXPECT_EQ(hands.view<QLineEdit>("txtCapacity").text(), "abc");
}

TEST_F(LoadScreen, ThePeriodGoesWithItsOption)
{
    hands.click("optTimeSelect");
    hands.enter("txtFrom", "1/1/2024");
    hands.enter("txtTo", "2024-01-02");
    EXPECT_FALSE(hands.view<QWidget>("cmbYear").isEnabled());
    EXPECT_EQ(hands.view<QLineEdit>("txtTo").text(), "1/2/2024");
}

TEST_F(LoadScreen, ATypedYearIsNotTakenForAPick)
{
    hands.enter("cmbYear", "2023");
    EXPECT_EQ(rig.tool.cmbYear.ListIndex(), -1);
    EXPECT_EQ(rig.tool.cmbYear.Text(), "2023");
}

TEST_F(LoadScreen, AnotherUnitBringsItsOwnParameters)
{
    hands.pick("cmbUnit", "GT2");
    hands.click("chkShowPID");
    EXPECT_EQ(rig.tool.cmbParam.Text(), "[2-602-0-75-01] GT2 Load");
}

TEST_F(LoadScreen, AFailureIsToldAndTheHourglassStays)
{
    failAt(*rig.site, "DIServer.Parameters");
    EXPECT_EQ(told([&] { hands.click("cmdCalculate"); }), "Error 440: the line is down");
    EXPECT_EQ(view.cursor().shape(), Qt::WaitCursor);
}

TEST_F(LoadScreen, AScreenReaderMakesSenseOfIt)
{
    EXPECT_THAT(faultsForAScreenReader(view), IsEmpty());
    hands.click("cmdCalculate");
    EXPECT_THAT(faultsForAScreenReader(view), IsEmpty());
}

TEST(LoadScreens, AFieldThatGoesWithItsScreenIsNotLeft)
{
    LoadRig rig;
    QWidget window;
    auto* view = new ctrlMaxMWView(rig.tool, &window);
    Operator(window).type("txtCapacity", "abc");
    delete view;
    EXPECT_EQ(rig.tool.txtCapacity.Text(), "abc");
}

TEST_F(LoadScreen, EvaluatesDates)
{
    hands.click("optTimeSelect");
    rig.services.dateAnswer = makeDate(2024, 1, 1);
    hands.click("cmdFrom");
    hands.enter("txtTo", "2024-01-01");
    hands.click("cmdCalculate");
    hands.photograph("load-dates");
    EXPECT_EQ(hands.view<QLineEdit>("txtFrom").text(), "1/1/2024");
    EXPECT_EQ(hands.text("lblHeader"), "GT1 GT1 Load");
}

TEST_F(LoadScreen, AQuarterFromTheListLeavesTheResults)
{
    hands.click("cmdCalculate");
    hands.pick("cmbQTR", "Q3");
    hands.pick("cmbYear", "2022");
    EXPECT_EQ(hands.text("lblHeader"), "GT1 GT1 Load");
    EXPECT_TRUE(hands.view<QPushButton>("cmdSave").isEnabled());
}

TEST_F(LoadScreen, ALeftFieldTakesTheResultsOffTheScreenButNotTheButton)
{
    hands.click("cmdCalculate");
    hands.type("txtMinSafe", "10");
    hands.click("chkPreview");
    EXPECT_EQ(hands.text("lblHeader"), "");
    EXPECT_TRUE(hands.view<QPushButton>("cmdSave").isEnabled());
}

TEST_F(LoadScreen, TheHourglassIsSeenDuringTheWork)
{
    std::vector<Qt::CursorShape> seen;
    rig.tool.Changed.Connect([&] { seen.push_back(view.cursor().shape()); });
    hands.click("cmdCalculate");
    EXPECT_THAT(seen, ElementsAre(Qt::WaitCursor, Qt::ArrowCursor));
}

TEST_F(LoadScreen, TheTabulatorReadsTheScreen)
{
    const QStringList below{"cmdCalculate", "chkPreview", "cmdClose"};
    const QStringList range{"cmbUnit", "cmbParam", "chkShowPID", "txtMinSafe", "txtCapacity"};
    const QStringList way = hands.walk("cmbUnit");
    EXPECT_EQ(way.mid(0, 11), range + QStringList({"optTimeEnd", "cmbYear", "cmbQTR"}) + below);
    hands.click("optTimeSelect");
    EXPECT_EQ(hands.walk("cmbUnit").mid(0, 13),
              range + QStringList({"optTimeSelect", "txtFrom", "cmdFrom", "txtTo", "cmdTo"}) +
                  below);
}

TEST_F(LoadScreen, CloseIsTheHostsBusiness)
{
    int closings = 0;
    rig.tool.CloseClicked.Connect([&closings] { ++closings; });
    hands.click("cmdClose");
    EXPECT_EQ(closings, 1);
    EXPECT_TRUE(view.isVisible());
}

TEST(LoadScreens, GrowsWithLargeLetters)
{
    const LargeLetters letters;
    const LoadOperator screen;
    screen.hands.click("cmdCalculate");
    screen.hands.photograph("load-large");
    EXPECT_THAT(cutOff(screen.view), IsEmpty());
}

TEST(LoadScreens, AToolWithoutASiteIsEmpty)
{
    k7deval::test::LoadTool rig;
    ctrlMaxMWView view(rig.tool);
    const Operator hands(view);
    EXPECT_THAT(differences(rig.tool, view), IsEmpty());
}

TEST(LoadScreens, TheToolGoesOnWithoutItsScreen)
{
    LoadRig rig;
    {
        const ctrlMaxMWView view(rig.tool);
    }
    rig.hours({50}).calculate();
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 GT1 Load");
}

} // namespace k7deval::qt::test
