#include "qt/ScreenOperator.h"
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
struct RangeOperator : ScreenOperator<RangeRig, ctrlRangeEvalView> {
    RangeOperator() : ScreenOperator(siteOfTwoUnits())
    {
        rig.hours({5, 10, 10.5, 20, 30, 39.5, 40, 45, 50, 60, 12, 12, 12});
    }
};

struct RangeScreen : testing::Test, RangeOperator {
};

} // namespace

TEST_F(RangeScreen, ShowsItsToolFromTheStart)
{
    hands.photograph("range-start");
}

TEST_F(RangeScreen, EvaluatesWithMouseAndKeys)
{
    hands.enter("txtMEC", "11");
    hands.click("cmdCalculate");
    hands.photograph("range-results");

    EXPECT_EQ(hands.text("lblAboveMEC"), "Hours above MEC:  9");
    EXPECT_EQ(hands.text("lblOverRange"), "Hours over Range:  1");
    EXPECT_EQ(hands.text("lblLowOpPercent"), "16.7%");
    EXPECT_TRUE(hands.view<QPushButton>("cmdSave").isEnabled());
}

TEST_F(RangeScreen, APickGoesDownToTheRange)
{
    hands.pick("cmbScale", "HIGH");
    EXPECT_EQ(hands.view<QLineEdit>("txtRange").text(), "500");
    EXPECT_THAT(differences(), IsEmpty());
    hands.pick("cmbUnit", "GT2");
    EXPECT_EQ(hands.view<QLineEdit>("txtRange").text(), "250");
}

TEST_F(RangeScreen, TypingALimitTakesTheResultsOffTheScreen)
{
    hands.click("cmdCalculate");
    hands.type("txtMPC", "48");
    EXPECT_EQ(hands.text("lblHeader"), "");
    EXPECT_FALSE(hands.view<QPushButton>("cmdSave").isEnabled());
}

TEST_F(RangeScreen, ALimitThatIsOffIsNotCounted)
{
    hands.click("chkMEC");
    hands.click("chkMPC");
    hands.click("cmdCalculate");
    EXPECT_EQ(hands.text("lblAboveMEC"), "Hours above MEC:  N/A");
    EXPECT_EQ(hands.text("lblAboveMPC"), "Hours above MPC:  N/A");
    EXPECT_THAT(differences(), IsEmpty());

    hands.click("chkMEC");
    hands.click("cmdCalculate");
    EXPECT_EQ(hands.text("lblAboveMEC"), "Hours above MEC:  0") << "it was not counted";
}

TEST_F(RangeScreen, AGasInPercentHasNoLimits)
{
    hands.pick("cmbParam", "CO2");
    EXPECT_EQ(hands.view<QLineEdit>("txtMEC").text(), "N/A");
    EXPECT_FALSE(hands.view<QCheckBox>("chkMPC").isChecked());
}

TEST_F(RangeScreen, BadInputIsPutBackWhenTheFieldIsLeft)
{
    hands.click("cmdCalculate");
    hands.type("txtRange", "abc");
    hands.click("chkShowPID");
    EXPECT_EQ(hands.view<QLineEdit>("txtRange").text(), "50");
    EXPECT_EQ(hands.text("lblHeader"), "GT1 NOX") << "the results stay";
}

TEST_F(RangeScreen, AFieldThatIsLeftForTheButtonThatSavesTakesItAway)
{
    hands.click("cmdCalculate");
    hands.type("txtRange", "60");
    hands.click("cmdSave");
    EXPECT_FALSE(hands.view<QPushButton>("cmdSave").isEnabled());
    EXPECT_THAT(rig.services.filters, IsEmpty()) << "nobody asked for a file";
}

TEST_F(RangeScreen, AYearIsTypedOrPicked)
{
    hands.click("cmdCalculate");
    hands.pick("cmbYear", "2023");
    EXPECT_EQ(hands.text("lblHeader"), "GT1 NOX") << "a pick leaves the results";
    hands.type("cmbYear", "2022");
    EXPECT_EQ(hands.text("lblHeader"), "");
    EXPECT_EQ(rig.tool.cmbYear.ListIndex(), -1);
}

TEST_F(RangeScreen, TheTabulatorReadsTheScreen)
{
    EXPECT_EQ(hands.walk("cmbUnit").mid(0, 13),
              QStringList({"cmbUnit", "cmbParam", "chkShowPID", "cmbScale", "txtRange", "chkMEC",
                           "txtMEC", "chkMPC", "txtMPC", "cmbYear", "cmbQTR", "cmdCalculate",
                           "chkPreview"}));
}

TEST(RangeScreens, GrowsWithLargeLetters)
{
    const LargeLetters letters;
    const RangeOperator screen;
    screen.hands.click("cmdCalculate");
    screen.hands.photograph("range-large");
    EXPECT_THAT(cutOff(screen.view), IsEmpty());
}

TEST(RangeScreens, AToolWithoutASiteIsEmpty)
{
    k7deval::test::RangeTool rig;
    ctrlRangeEvalView view(rig.tool);
    const Operator hands(view);
    EXPECT_EQ(hands.view<QLineEdit>("txtRange").text(), "Text1");
    EXPECT_THAT(differences(rig.tool, view), IsEmpty());
}

TEST_F(RangeScreen, AScreenReaderMakesSenseOfIt)
{
    EXPECT_THAT(faultsForAScreenReader(view), IsEmpty());
}

} // namespace k7deval::qt::test
