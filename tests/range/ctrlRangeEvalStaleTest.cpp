#include "range/RangeBench.h"

#include <gtest/gtest.h>

#include <functional>

/// Which actions take the results off the screen, and which leave them there.
namespace k7deval::test
{

namespace
{

struct ActionCase {
    const char* what;
    std::function<void(ctrlRangeEval&)> act;
};

const ActionCase kMakingStale[] = {
    {"a unit", [](auto& tool) { tool.cmbUnit.Pick(1); }},
    {"the unit that is picked already", [](auto& tool) { tool.cmbUnit.Pick(0); }},
    {"a parameter", [](auto& tool) { tool.cmbParam.Pick(1); }},
    {"the parameter that is picked already", [](auto& tool) { tool.cmbParam.Pick(0); }},
    {"a scale", [](auto& tool) { tool.cmbScale.Pick(1); }},
    {"the scale that is picked already", [](auto& tool) { tool.cmbScale.Pick(0); }},
    {"another range", [](auto& tool) { enter(tool.txtRange, "60"); }},
    {"the same range left again", [](auto& tool) { tool.txtRange.Leave(); }},
    {"another expected value", [](auto& tool) { tool.txtMEC.Type("11"); }},
    {"no expected value", [](auto& tool) { tool.txtMEC.Type("N/A"); }},
    {"another potential value", [](auto& tool) { tool.txtMPC.Type("51"); }},
    {"no potential value", [](auto& tool) { tool.txtMPC.Type(""); }},
    {"a typed year", [](auto& tool) { tool.cmbYear.Type("2023"); }},
    {"a year that is none", [](auto& tool) { tool.cmbYear.Type("abc"); }},
    {"a year set by code", [](auto& tool) { tool.cmbYear.SetText("2023"); }},
};

// Neither check box has a rule, and the lists of quarter and year tell of typed text alone.
const ActionCase kLeavingFresh[] = {
    {"the expected value off", [](auto& tool) { tool.chkMEC.Press(); }},
    {"the potential value off", [](auto& tool) { tool.chkMPC.Press(); }},
    {"a quarter", [](auto& tool) { tool.cmbQTR.Pick(2); }},
    {"a year from the list", [](auto& tool) { tool.cmbYear.Pick(2); }},
    {"the names of the parameters", [](auto& tool) { tool.chkShowPID.Press(); }},
    {"the preview", [](auto& tool) { tool.chkPreview.Press(); }},
    {"a range that is still being typed", [](auto& tool) { tool.txtRange.Type("60"); }},
    {"a range that is none", [](auto& tool) { enter(tool.txtRange, "abc"); }},
    {"a limit left without a change", [](auto& tool) { tool.txtMEC.Leave(); }},
    {"the same expected value", [](auto& tool) { tool.txtMEC.Type(tool.txtMEC.Text()); }},
    {"the same potential value", [](auto& tool) { tool.txtMPC.Type(tool.txtMPC.Text()); }},
    {"the same year", [](auto& tool) { tool.cmbYear.Type("2024"); }},
    {"calculating again", [](auto& tool) { tool.cmdCalculate.Press(); }},
    {"saving", [](auto& tool) { tool.cmdSave.Press(); }},
    {"closing", [](auto& tool) { tool.cmdClose.Press(); }},
};

/// GT1's NOX on its "LOW" scale of 50, evaluated.
struct EvaluatedBench : RangeBench {
    EvaluatedBench() : RangeBench(siteOfTwoUnits())
    {
        hours({5, 15, 25, 45}).calculate();
        takeReads();
    }
};

bool isFresh(const ctrlRangeEval& tool)
{
    return !tool.NeedsEvaluation() && tool.cmdSave.Enabled() && !isCleared(tool);
}

bool isStale(const ctrlRangeEval& tool)
{
    return tool.NeedsEvaluation() && !tool.cmdSave.Enabled() && isCleared(tool);
}

} // namespace

TEST(RangeStale, AnEvaluationIsFresh)
{
    const EvaluatedBench bench;
    EXPECT_TRUE(isFresh(bench.tool));
}

TEST(RangeStale, AChangeOfTheInputsTakesTheResultsOffTheScreen)
{
    for (const ActionCase& row : kMakingStale) {
        EvaluatedBench bench;
        row.act(bench.tool);
        EXPECT_TRUE(isStale(bench.tool)) << row.what;
        EXPECT_EQ(countersOf(bench.results()), countersOf(EvaluatedBench().results())) << row.what;
        bench.calculate();
        EXPECT_TRUE(isFresh(bench.tool)) << row.what;
        EXPECT_FALSE(bench.site->reads.empty()) << row.what;
    }
}

TEST(RangeStale, OtherActionsLeaveTheResultsAndTheyAreNotEvaluatedAgain)
{
    for (const ActionCase& row : kLeavingFresh) {
        EvaluatedBench bench;
        const std::string header = bench.tool.lblHeader.Caption();
        row.act(bench.tool);
        EXPECT_TRUE(isFresh(bench.tool)) << row.what;
        EXPECT_EQ(bench.tool.lblHeader.Caption(), header) << row.what;
        bench.calculate();
        EXPECT_TRUE(bench.site->reads.empty()) << row.what;
    }
}

TEST(RangeStale, AQuarterPickedAfterwardsIsNotEvaluatedUntilSomethingElseIs)
{
    EvaluatedBench bench;
    bench.tool.cmbQTR.Pick(2);
    bench.tool.cmbYear.Pick(1);
    EXPECT_EQ(bench.changesBy([&] { bench.calculate(); }), Lines());
    EXPECT_EQ(bench.takeReads(), std::vector<ReadRequest>());
    bench.tool.txtRange.Leave();
    bench.calculate();
    EXPECT_EQ(bench.takeReads().front().start, makeDate(2023, 7, 1));
}

TEST(RangeStale, AnExpectedValueTurnedOffAfterwardsIsNotShown)
{
    EvaluatedBench bench;
    ASSERT_EQ(bench.tool.lblAboveMEC.Caption(), "Hours above MEC:  3");
    bench.tool.chkMEC.Press();
    EXPECT_EQ(bench.tool.lblAboveMEC.Caption(), "Hours above MEC:  3");
    bench.calculate();
    EXPECT_EQ(bench.tool.lblAboveMEC.Caption(), "Hours above MEC:  N/A");
    EXPECT_EQ(bench.results().AboveMECHours, 3);
}

TEST(RangeStale, ALimitTurnedOnAfterwardsShowsTheCountOfNone)
{
    RangeBench bench;
    bench.tool.chkMEC.Press();
    bench.tool.chkMPC.Press();
    bench.hours({50, 150}).calculate().takeReads();
    bench.tool.chkMEC.Press();
    bench.tool.chkMPC.Press();
    bench.calculate();
    EXPECT_EQ(bench.takeReads(), std::vector<ReadRequest>());
    EXPECT_EQ(bench.tool.lblAboveMEC.Caption(), "Hours above MEC:  0");
    EXPECT_EQ(bench.tool.lblAboveMPC.Caption(), "Hours above MPC:  0");
}

TEST(RangeStale, ARangeThatIsNoneBringsTheLastOneBackWithTheResultsUntouched)
{
    EvaluatedBench bench;
    EXPECT_EQ(bench.changesBy([&] { bench.range("abc"); }), Lines());
}

TEST(RangeStale, ANewRangeIsTheResultsOwnAtOnce)
{
    EvaluatedBench bench;
    bench.range("60");
    EXPECT_EQ(bench.results().RangeValue, 60);
    EXPECT_EQ(bench.results().LowThreshold, 10) << "the others wait for the evaluation";
}

TEST(RangeStale, LeavingTheRangeDoesNotStopAnything)
{
    EvaluatedBench bench;
    bench.range("abc");
    EXPECT_TRUE(bench.services.boxes.empty());
}

} // namespace k7deval::test
