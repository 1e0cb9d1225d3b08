#include "qt/Operator.h"
#include "qt/ScreenComparison.h"
#include "qt/ScreenReader.h"
#include "qt/ctrlRangeEvalView.h"
#include "range/RangeRig.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

namespace k7deval::qt::test
{

namespace
{

using k7deval::test::RangeRig;
using k7deval::test::siteOfTwoUnits;
using ::testing::IsEmpty;

/// An operator at the range tool, on GT1 with its scales and GT2.
struct RangeScreen {
    RangeScreen() { rig.hours({5, 10, 10.5, 20, 30, 39.5, 40, 45, 50, 60, 12, 12, 12}); }

    RangeRig rig{siteOfTwoUnits()};
    ctrlRangeEvalView view{rig.tool};
    Operator hands{view};
};

} // namespace

TEST(RangeScreen, ShowsItsToolFromTheStart)
{
    const RangeScreen screen;
    screen.hands.photograph("range-start");
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(RangeScreen, EvaluatesWithMouseAndKeys)
{
    const RangeScreen screen;
    screen.hands.enter("txtMEC", "11");
    screen.hands.click("cmdCalculate");
    screen.hands.photograph("range-results");

    EXPECT_EQ(screen.hands.text("lblAboveMEC"), "Hours above MEC:  9");
    EXPECT_EQ(screen.hands.text("lblOverRange"), "Hours over Range:  1");
    EXPECT_EQ(screen.hands.text("lblLowOpPercent"), "16.7%");
    EXPECT_TRUE(screen.hands.view<QPushButton>("cmdSave").isEnabled());
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(RangeScreen, APickGoesDownToTheRange)
{
    const RangeScreen screen;
    screen.hands.pick("cmbScale", "HIGH");
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtRange").text(), "500");
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
    screen.hands.pick("cmbUnit", "GT2");
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtRange").text(), "250");
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(RangeScreen, TypingALimitTakesTheResultsOffTheScreen)
{
    const RangeScreen screen;
    screen.hands.click("cmdCalculate");
    screen.hands.type("txtMPC", "48");
    EXPECT_EQ(screen.hands.text("lblHeader"), "");
    EXPECT_FALSE(screen.hands.view<QPushButton>("cmdSave").isEnabled());
}

TEST(RangeScreen, ALimitThatIsOffIsNotCounted)
{
    const RangeScreen screen;
    screen.hands.click("chkMEC");
    screen.hands.click("chkMPC");
    screen.hands.click("cmdCalculate");
    EXPECT_EQ(screen.hands.text("lblAboveMEC"), "Hours above MEC:  N/A");
    EXPECT_EQ(screen.hands.text("lblAboveMPC"), "Hours above MPC:  N/A");
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());

    screen.hands.click("chkMEC");
    screen.hands.click("cmdCalculate");
    EXPECT_EQ(screen.hands.text("lblAboveMEC"), "Hours above MEC:  0") << "it was not counted";
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(RangeScreen, AGasInPercentHasNoLimits)
{
    const RangeScreen screen;
    screen.hands.pick("cmbParam", "CO2");
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtMEC").text(), "N/A");
    EXPECT_FALSE(screen.hands.view<QCheckBox>("chkMPC").isChecked());
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(RangeScreen, BadInputIsPutBackWhenTheFieldIsLeft)
{
    const RangeScreen screen;
    screen.hands.click("cmdCalculate");
    screen.hands.type("txtRange", "abc");
    screen.hands.click("chkShowPID");
    EXPECT_EQ(screen.hands.view<QLineEdit>("txtRange").text(), "50");
    EXPECT_EQ(screen.hands.text("lblHeader"), "GT1 NOX") << "the results stay";
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(RangeScreen, AFieldThatIsLeftForTheButtonThatSavesTakesItAway)
{
    RangeScreen screen;
    screen.hands.click("cmdCalculate");
    screen.hands.type("txtRange", "60");
    screen.hands.click("cmdSave");
    EXPECT_FALSE(screen.hands.view<QPushButton>("cmdSave").isEnabled());
    EXPECT_THAT(screen.rig.services.filters, IsEmpty()) << "nobody asked for a file";
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(RangeScreen, AYearIsTypedOrPicked)
{
    const RangeScreen screen;
    screen.hands.click("cmdCalculate");
    screen.hands.pick("cmbYear", "2023");
    EXPECT_EQ(screen.hands.text("lblHeader"), "GT1 NOX") << "a pick leaves the results";
    screen.hands.type("cmbYear", "2022");
    EXPECT_EQ(screen.hands.text("lblHeader"), "");
    EXPECT_EQ(screen.rig.tool.cmbYear.ListIndex(), -1);
    EXPECT_THAT(differences(screen.rig.tool, screen.view), IsEmpty());
}

TEST(RangeScreen, TheTabulatorReadsTheScreen)
{
    const RangeScreen screen;
    EXPECT_EQ(screen.hands.walk("cmbUnit").mid(0, 13),
              QStringList({"cmbUnit", "cmbParam", "chkShowPID", "cmbScale", "txtRange", "chkMEC",
                           "txtMEC", "chkMPC", "txtMPC", "cmbYear", "cmbQTR", "cmdCalculate",
                           "chkPreview"}));
}

TEST(RangeScreen, GrowsWithLargeLetters)
{
    const LargeLetters letters;
    const RangeScreen screen;
    screen.hands.click("cmdCalculate");
    screen.hands.photograph("range-large");
    EXPECT_THAT(cutOff(screen.view), IsEmpty());
}

TEST(RangeScreen, AToolWithoutASiteIsEmpty)
{
    k7deval::test::RangeTool rig;
    ctrlRangeEvalView view(rig.tool);
    const Operator hands(view);
    EXPECT_EQ(hands.view<QLineEdit>("txtRange").text(), "Text1");
    EXPECT_THAT(differences(rig.tool, view), IsEmpty());
}

TEST(RangeScreen, AScreenReaderMakesSenseOfIt)
{
    const RangeScreen screen;
    EXPECT_THAT(faultsForAScreenReader(screen.view), IsEmpty());
}

} // namespace k7deval::qt::test
