#include "range/RangeRig.h"

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
struct EvaluatedRig : RangeRig {
    EvaluatedRig() : RangeRig(siteOfTwoUnits())
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

TEST(RangeStale, AChangeOfTheInputsTakesTheResultsOffTheScreen)
{
    for (const ActionCase& row : kMakingStale) {
        EvaluatedRig rig;
        row.act(rig.tool);
        EXPECT_TRUE(isStale(rig.tool)) << row.what;
        EXPECT_EQ(countersOf(rig.results()), countersOf(EvaluatedRig().results())) << row.what;
        rig.calculate();
        EXPECT_TRUE(isFresh(rig.tool)) << row.what;
        EXPECT_FALSE(rig.site->reads.empty()) << row.what;
    }
}

TEST(RangeStale, OtherActionsLeaveTheResultsAndTheyAreNotEvaluatedAgain)
{
    for (const ActionCase& row : kLeavingFresh) {
        EvaluatedRig rig;
        const std::string header = rig.tool.lblHeader.Caption();
        row.act(rig.tool);
        EXPECT_TRUE(isFresh(rig.tool)) << row.what;
        EXPECT_EQ(rig.tool.lblHeader.Caption(), header) << row.what;
        rig.calculate();
        EXPECT_TRUE(rig.site->reads.empty()) << row.what;
    }
}

TEST(RangeStale, AnExpectedValueTurnedOffAfterwardsIsNotShown)
{
    EvaluatedRig rig;
    ASSERT_EQ(rig.tool.lblAboveMEC.Caption(), "Hours above MEC:  3");
    rig.tool.chkMEC.Press();
    EXPECT_EQ(rig.tool.lblAboveMEC.Caption(), "Hours above MEC:  3");
    rig.calculate();
    EXPECT_EQ(rig.tool.lblAboveMEC.Caption(), "Hours above MEC:  N/A");
    EXPECT_EQ(rig.results().AboveMECHours, 3);
}

TEST(RangeStale, ALimitTurnedOnAfterwardsShowsTheCountOfNone)
{
    RangeRig rig;
    rig.tool.chkMEC.Press();
    rig.tool.chkMPC.Press();
    rig.hours({50, 150}).calculate().takeReads();
    rig.tool.chkMEC.Press();
    rig.tool.chkMPC.Press();
    rig.calculate();
    EXPECT_EQ(rig.takeReads(), std::vector<ReadRequest>());
    EXPECT_EQ(rig.tool.lblAboveMEC.Caption(), "Hours above MEC:  0");
    EXPECT_EQ(rig.tool.lblAboveMPC.Caption(), "Hours above MPC:  0");
}

TEST(RangeStale, ARangeThatIsNoneBringsTheLastOneBackWithTheResultsUntouched)
{
    EvaluatedRig rig;
    EXPECT_EQ(rig.changesBy([&] { rig.range("abc"); }), Lines());
}

TEST(RangeStale, ANewRangeIsTheResultsOwnAtOnce)
{
    EvaluatedRig rig;
    rig.range("60");
    EXPECT_EQ(rig.results().RangeValue, 60);
    EXPECT_EQ(rig.results().LowThreshold, 10) << "the others wait for the evaluation";
}

} // namespace k7deval::test
