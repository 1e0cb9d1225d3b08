#include "load/LoadRig.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

/// The load tool when its data fails, at any call of an action.
namespace k7deval::test
{

namespace
{

using Action = std::function<void(LoadRig&)>;

std::shared_ptr<SiteData> siteWithHours()
{
    auto site = siteOfLoads();
    for (const PID pid : {kGT1Load, kGT2Load})
        site->parameter(pid).hours.fill(makeDate(2024, 1, 1), makeDate(2024, 1, 3), 50);
    return site;
}

/// How many calls an action makes.
std::size_t callsOf(const Action& prepare, const Action& action)
{
    LoadRig rig(siteWithHours());
    prepare(rig);
    rig.site->calls.clear();
    action(rig);
    return rig.site->calls.size();
}

/// Call number `at`, from 0, of those to come fails.
void failCall(LoadRig& rig, std::size_t at)
{
    rig.site->calls.clear();
    rig.site->failure = [at](const std::string&, std::size_t index) {
        return index == at ? std::optional(Error(440, "the line is down")) : std::nullopt;
    };
}

/// Runs an action with a failure at each of its calls, each time on a new tool.
void atEveryCall(const Action& prepare, const Action& action, const Action& expectation)
{
    const std::size_t calls = callsOf(prepare, action);
    EXPECT_GT(calls, 0U);
    for (std::size_t at = 0; at < calls; ++at) {
        SCOPED_TRACE("failure at call " + std::to_string(at));
        LoadRig rig(siteWithHours());
        prepare(rig);
        failCall(rig, at);
        expectation(rig);
    }
}

const Action kNothing = [](LoadRig&) {};
const Action kCalculate = [](LoadRig& rig) { rig.calculate(); };
const Action kPickTheOtherUnit = [](LoadRig& rig) { rig.tool.cmbUnit.Pick(1); };
const Action kShowPID = [](LoadRig& rig) { rig.tool.chkShowPID.Press(); };

/// The action fails for the host to see, under the hourglass.
void expectFailure(LoadRig& rig, const Action& action)
{
    EXPECT_EQ(errorOf([&] { action(rig); }), 440);
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
}

/// The same action without a failure gives what it gives on a new tool.
void expectRecovery(LoadRig& rig, const Action& action)
{
    rig.site->failure = nullptr;
    action(rig);
    LoadRig fresh(siteWithHours());
    action(fresh);
    EXPECT_EQ(changesBetween(snapshotOf(fresh.tool), snapshotOf(rig.tool)), Lines());
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
    EXPECT_EQ(rig.tool.NeedsEvaluation(), fresh.tool.NeedsEvaluation());
    EXPECT_EQ(rig.results().Bins, fresh.results().Bins);
}

} // namespace

TEST(LoadFailure, OfTheHeaderComesAfterTheEvaluation)
{
    LoadRig rig(siteWithHours());
    failAt(*rig.site, "DIParameter.Name");
    expectFailure(rig, kCalculate);
    EXPECT_FALSE(rig.tool.NeedsEvaluation());
    EXPECT_EQ(countsOf(rig.results()), (HourCounts{.mid = 49}));
    EXPECT_NE(rig.tool.lblBar[10].ToolTipText(), "") << "the bars stand by then";
    EXPECT_EQ(rig.tool.lblMax.Caption(), "") << "the texts do not";
}

TEST(LoadFailure, OfAUnitsPickIsTheHostsAndTheNextOneIsWhole)
{
    atEveryCall(kNothing, kPickTheOtherUnit, [](LoadRig& rig) {
        expectFailure(rig, kPickTheOtherUnit);
        expectRecovery(rig, kPickTheOtherUnit);
    });
}

TEST(LoadFailure, OfShowingPIDsIsTheHostsAndLeavesTheResults)
{
    atEveryCall(kCalculate, kShowPID, [](LoadRig& rig) {
        EXPECT_EQ(errorOf([&] { kShowPID(rig); }), 440);
        EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
        EXPECT_EQ(rig.tool.lblHeader.Caption(), "GT1 GT1 Load");
        EXPECT_TRUE(rig.tool.cmdSave.Enabled());
    });
}

} // namespace k7deval::test
