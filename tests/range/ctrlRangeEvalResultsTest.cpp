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

std::string percentsOf(const std::vector<std::optional<double>>& values)
{
    RangeRig rig;
    return shownBy(rig.hours(values).calculate().tool).percents;
}

void expectFlat(const ctrlRangeEval& tool)
{
    for (int bar = 1; bar <= 20; ++bar) {
        EXPECT_EQ(tool.lblBar[bar].place().Top, 2700) << bar;
        EXPECT_EQ(tool.lblBar[bar].place().Height, 15) << bar;
        EXPECT_EQ(tool.lblBar[bar].ToolTipText(), "") << bar;
    }
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
    expectFlat(rig.tool);
}

TEST(RangeResults, HoursOverTheRangeAreInNoPercentAndNoBar)
{
    RangeRig rig;
    rig.hours({150, 160}).calculate();
    EXPECT_EQ(shownBy(rig.tool).percents, "----- ----- -----");
    EXPECT_EQ(rig.tool.lblOverRange.Caption(), "Hours over Range:  2");
    expectFlat(rig.tool);
    EXPECT_EQ(percentsOf({10, 150, 160, 170}), "100.0% 0.0% 0.0%");
}

TEST(RangeResults, PercentsAreOfTheHoursInTheRange)
{
    EXPECT_EQ(percentsOf({10, 90, 90}), "33.3% 0.0% 66.7%");
    EXPECT_EQ(percentsOf({10, 10, 10, 30, 30, 90, 90, 90}), "37.5% 25.0% 37.5%");
    EXPECT_EQ(percentsOf({30}), "0.0% 100.0% 0.0%");
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

TEST(RangeResults, TheHeaderHasTheBareNameOfTheParameter)
{
    RangeRig rig;
    rig.tool.chkShowPID.Press();
    rig.calculate();
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 NOX");
}

TEST(RangeResults, TheBarsTellValuesAndHours)
{
    RangeRig rig;
    rig.hours(std::vector<std::optional<double>>(12, 12.0)).calculate();
    EXPECT_EQ(rig.tool.lblBar[3].ToolTipText(), "10 - 15   Op Hours: 12");
    EXPECT_EQ(rig.tool.lblBar[1].ToolTipText(), "0 - 5   Op Hours: 0");
    EXPECT_EQ(rig.tool.lblBar[20].ToolTipText(), "95 - 100   Op Hours: 0");
}

TEST(RangeResults, TheBarsStandInTheScaleOfTheFullest)
{
    RangeRig rig;
    rig.series().fill(makeDate(2024, 1, 1), makeDate(2024, 3, 20), 12);
    rig.series().set(makeDate(2024, 3, 31), 99);
    rig.calculate();
    EXPECT_EQ(rig.tool.lblBar[3].place().Top, 645);
    EXPECT_EQ(rig.tool.lblBar[3].place().Height, 2055);
    EXPECT_EQ(rig.tool.lblBar[20].place().Top, 2685) << "one hour is a pixel high";
    EXPECT_EQ(rig.tool.lblBar[20].place().Height, 15);
    EXPECT_EQ(rig.tool.lblBar[1].place().Top, 2700);
    EXPECT_EQ(rig.tool.lblBar[1].place().Height, 0);
}

TEST(RangeResults, OfAParameterThatIsGoneKeepTheHeader)
{
    RangeRig rig;
    rig.hours({50}).calculate();
    std::erase_if(rig.site->parameters, [](const auto& p) { return p.pid == kNOx; });
    EXPECT_EQ(rig.changesBy([&] { rig.calculate(); }), Lines());
    EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 NOX");
}

TEST(RangeResults, TakenOffTheScreenLeaveTheFixedTexts)
{
    RangeRig rig;
    rig.hours({50}).calculate().range("60");
    EXPECT_TRUE(isCleared(rig.tool));
    EXPECT_EQ(rig.tool.lbl000.Caption(), "Minimum");
    EXPECT_EQ(rig.tool.lbl020.Caption(), "20%");
    EXPECT_EQ(rig.tool.lbl080.Caption(), "80%");
    EXPECT_EQ(rig.tool.lbl100.Caption(), "Maximum");
    EXPECT_EQ(rig.results().MidHours, 1);
}

} // namespace k7deval::test
