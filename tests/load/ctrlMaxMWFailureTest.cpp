#include "load/LoadBench.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

/// The load tool when its data fails, at any call of an action.
namespace k7deval::test
{

namespace
{

using Action = std::function<void(LoadBench&)>;

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
    LoadBench bench(siteWithHours());
    prepare(bench);
    bench.site->calls.clear();
    action(bench);
    return bench.site->calls.size();
}

/// Call number `at`, from 0, of those to come fails.
void failCall(LoadBench& bench, std::size_t at)
{
    bench.site->calls.clear();
    bench.site->failure = [at](const std::string&, std::size_t index) {
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
        LoadBench bench(siteWithHours());
        prepare(bench);
        failCall(bench, at);
        expectation(bench);
    }
}

const Action kNothing = [](LoadBench&) {};
const Action kCalculate = [](LoadBench& bench) { bench.calculate(); };
const Action kPickTheOtherUnit = [](LoadBench& bench) { bench.tool.cmbUnit.Pick(1); };
const Action kShowPID = [](LoadBench& bench) { bench.tool.chkShowPID.Press(); };

/// The action fails for the host to see, under the hourglass.
void expectFailure(LoadBench& bench, const Action& action)
{
    EXPECT_EQ(errorOf([&] { action(bench); }), 440);
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass);
}

/// The same action without a failure gives what it gives on a new tool.
void expectRecovery(LoadBench& bench, const Action& action)
{
    bench.site->failure = nullptr;
    action(bench);
    LoadBench fresh(siteWithHours());
    action(fresh);
    EXPECT_EQ(changesBetween(snapshotOf(fresh.tool), snapshotOf(bench.tool)), Lines());
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default);
    EXPECT_EQ(bench.tool.NeedsEvaluation(), fresh.tool.NeedsEvaluation());
    EXPECT_EQ(bench.results().Bins, fresh.results().Bins);
}

} // namespace

TEST(LoadFailure, OfACalculationIsTheHostsAndTheNextOneIsWhole)
{
    atEveryCall(kNothing, kCalculate, [](LoadBench& bench) {
        expectFailure(bench, kCalculate);
        EXPECT_FALSE(bench.tool.cmdSave.Enabled());
        expectRecovery(bench, kCalculate);
    });
}

TEST(LoadFailure, OfTheEvaluationLeavesItToBeDone)
{
    LoadBench bench(siteWithHours());
    failAt(*bench.site, "DIParameter.ReadData");
    expectFailure(bench, kCalculate);
    EXPECT_TRUE(bench.tool.NeedsEvaluation());
}

TEST(LoadFailure, OfTheHeaderComesAfterTheEvaluation)
{
    LoadBench bench(siteWithHours());
    failAt(*bench.site, "DIParameter.Name");
    expectFailure(bench, kCalculate);
    EXPECT_FALSE(bench.tool.NeedsEvaluation());
    EXPECT_EQ(countsOf(bench.results()), (HourCounts{.mid = 49}));
    EXPECT_NE(bench.tool.lblBar[10].ToolTipText(), "") << "the bars stand by then";
    EXPECT_EQ(bench.tool.lblMax.Caption(), "") << "the texts do not";
}

TEST(LoadFailure, OfAUnitsPickIsTheHostsAndTheNextOneIsWhole)
{
    atEveryCall(kNothing, kPickTheOtherUnit, [](LoadBench& bench) {
        expectFailure(bench, kPickTheOtherUnit);
        expectRecovery(bench, kPickTheOtherUnit);
    });
}

TEST(LoadFailure, OfShowingPIDsIsTheHostsAndLeavesTheResults)
{
    atEveryCall(kCalculate, kShowPID, [](LoadBench& bench) {
        EXPECT_EQ(errorOf([&] { kShowPID(bench); }), 440);
        EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default);
        EXPECT_EQ(bench.tool.lblHeader.Caption(), "GT1 GT1 Load");
        EXPECT_TRUE(bench.tool.cmdSave.Enabled());
    });
}

TEST(LoadFailure, OfAReportNeverReachesTheHost)
{
    const testing::TemporaryFolder folder;
    const std::string path = folder.file("Load.pdf");
    const Action save = [&](LoadBench& bench) {
        bench.services.saveAnswer = screen::SaveAnswer{path, 1};
        bench.services.answers = {screen::MsgBoxAnswer::Yes};
        bench.tool.cmdSave.Press();
    };
    const Action calculated = [](LoadBench& bench) {
        bench.calculate();
        bench.services.boxes.clear();
    };
    atEveryCall(calculated, save, [&](LoadBench& bench) {
        std::filesystem::remove(path);
        EXPECT_EQ(errorOf([&] { save(bench); }), 0);
        EXPECT_TRUE(bench.services.boxes.empty());
        EXPECT_EQ(folder.names(), Lines());
        EXPECT_TRUE(bench.tool.cmdSave.Enabled());
    });
}

TEST(LoadFailure, OfAnotherKindKeepsItsText)
{
    LoadBench bench(siteWithHours());
    bench.site->failure = [](const std::string& call, std::size_t) -> std::optional<Error> {
        if (call == "DIParameter.ReadData")
            throw Error(1234, "no such archive");
        return std::nullopt;
    };
    try {
        bench.calculate();
        ADD_FAILURE() << "the failure did not reach the host";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), 1234);
        EXPECT_EQ(error.description(), "no such archive");
    }
}

} // namespace k7deval::test
