#include "range/RangeRig.h"

#include <gtest/gtest.h>

/// What the screen shows of an evaluation.
namespace k7deval::test
{

namespace
{

/// The texts over the chart, under it, and the lines of counts.
struct Shown {
    std::string header;
    std::string percents;
    std::string scale;
    Lines counts;
    friend bool operator==(const Shown&, const Shown&) = default;
};

std::ostream& operator<<(std::ostream& out, const Shown& shown)
{
    out << shown.header << " | " << shown.percents << " | " << shown.scale;
    for (const std::string& line : shown.counts)
        out << " | " << line;
    return out;
}

Shown shownBy(const ctrlRangeEval& tool)
{
    return {tool.lblHeader.Caption(),
            tool.lblLowOpPercent.Caption() + " " + tool.lblMidOpPercent.Caption() + " " +
                tool.lblHighOpPercent.Caption(),
            tool.lblMinSafe.Caption() + " " + tool.lblLow.Caption() + " " + tool.lblMid.Caption() +
                " " + tool.lblMax.Caption(),
            {tool.lblAboveMEC.Caption(), tool.lblAboveMPC.Caption(), tool.lblOverRange.Caption(),
             tool.lblReplaced.Caption(), tool.lblInvalid.Caption()}};
}

} // namespace

TEST(RangeResults, AreWrittenOutWithTwoBlanksBehindTheColons)
{
    RangeRig rig;
    rig.series().set(makeDate(2024, 1, 1, 0), 10, 36);
    rig.series().set(makeDate(2024, 1, 1, 1), 30);
    rig.series().set(makeDate(2024, 1, 1, 2), 90);
    rig.series().set(makeDate(2024, 1, 1, 3), 120);
    rig.series().set(makeDate(2024, 1, 1, 4), std::nullopt, 1);
    rig.limits("20", "80").calculate();
    EXPECT_EQ(shownBy(rig.tool),
              (Shown{"GT1 NOX",
                     "33.3% 33.3% 33.3%",
                     "0 20 80 100",
                     {"Hours above MEC:  2", "Hours above MPC:  1", "Hours over Range:  1",
                      "Hours with 200% replacement:  1", "Invalid Hours:  1"}}));
}

TEST(RangeResults, WithoutAnyHourAreZerosAndStrokes)
{
    RangeRig rig;
    rig.calculate();
    EXPECT_EQ(shownBy(rig.tool),
              (Shown{"GT1 NOX",
                     "----- ----- -----",
                     "0 20 80 100",
                     {"Hours above MEC:  0", "Hours above MPC:  0", "Hours over Range:  0",
                      "Hours with 200% replacement:  0", "Invalid Hours:  0"}}));
    EXPECT_TRUE(barsLieFlat(rig.tool.lblBar));
}

TEST(RangeResults, ALimitThatTakesNoPartIsNotApplicable)
{
    RangeRig rig;
    rig.limits("N/A", "none").hours({50}).calculate();
    EXPECT_EQ(rig.tool.lblAboveMEC.Caption(), "Hours above MEC:  N/A");
    EXPECT_EQ(rig.tool.lblAboveMPC.Caption(), "Hours above MPC:  N/A");
    rig.limits("1", "2");
    rig.tool.chkMEC.Press();
    rig.calculate();
    EXPECT_EQ(rig.tool.lblAboveMEC.Caption(), "Hours above MEC:  N/A");
    EXPECT_EQ(rig.tool.lblAboveMPC.Caption(), "Hours above MPC:  1");
}

TEST(RangeResults, TheScaleIsWrittenInTheShortestForm)
{
    RangeRig rig;
    rig.range("0.25").calculate();
    EXPECT_EQ(shownBy(rig.tool).scale, "0 0.05 0.2 0.25");
    rig.range("33.3").calculate();
    EXPECT_EQ(shownBy(rig.tool).scale, "0 6.66 26.64 33.3");
    rig.range("1234567").calculate();
    EXPECT_EQ(shownBy(rig.tool).scale, "0 246913.4 987653.6 1234567");
}

TEST(RangeResults, AreWrittenAsTheRegionDoes)
{
    RangeRig rig(siteOfNOx(), makeDate(2024, 5, 15), "de-DE");
    rig.range("12,5").hours({1, 5, 12}).calculate();
    EXPECT_EQ(shownBy(rig.tool).scale, "0 2,5 10 12,5");
    EXPECT_EQ(shownBy(rig.tool).percents, "33,3% 33,3% 33,3%");
    EXPECT_EQ(rig.tool.lblBar[1].ToolTipText(), "0 - 0,625   Op Hours: 0");
}

} // namespace k7deval::test
