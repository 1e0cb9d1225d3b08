#include "sevenday/ToolBench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

/// Failures on the way from Next to the results page: each procedure posts its line, and the rest
/// goes on with what stands.
namespace k7deval::test
{

namespace
{

const std::string kDown = "440, the line is down";
const std::string kNotSet = "91, Object variable or With block variable not set";

/// The procedure that a call to the data is made in.
enum class Step { ReadSetup, RetrieveCals, AnalyzeOperatingDays };

/// The calls of an undisturbed Next, each with its procedure. Reading the setup asks the analyzer,
/// the retrieval begins with the site's key, and the operating days end with the hours.
std::vector<Step> stepsOf(const std::vector<std::string>& calls)
{
    const auto begin = calls.begin();
    const auto retrieval = std::find(begin, calls.end(), "DIServer.SiteInfo") - begin;
    const auto lastExists =
        calls.rend() - std::find(calls.rbegin(), calls.rend(), "DIParameters.Exists") - 1;
    // The parameters are asked for ahead of the question whether there is one.
    const auto analysis = lastExists - 1;
    std::vector<Step> steps(calls.size(), Step::RetrieveCals);
    std::fill(steps.begin(), steps.begin() + retrieval, Step::ReadSetup);
    std::fill(steps.begin() + analysis, steps.end(), Step::AnalyzeOperatingDays);
    return steps;
}

/// A tool whose second Next, after a change of the interval, reads the calibrations again.
struct SecondNext : ToolBench {
    SecondNext()
    {
        next().back();
        enter(setUp().txtToDate, "3/9/2024");
    }
};

template <class Bench> std::vector<std::string> callsOfNext()
{
    Bench bench;
    bench.site->calls.clear();
    bench.next();
    return bench.site->calls;
}

/// Makes the next call of that number, from 0, fail.
void failAt(ToolBench& bench, std::size_t number)
{
    bench.site->calls.clear();
    bench.site->failure = [number](const std::string&, std::size_t at) {
        return at == number ? std::optional(Error(440, "the line is down")) : std::nullopt;
    };
}

/// Page 2 as it is left by a Next that came to its end.
void expectResultsPage(ToolBench& bench, const std::string& where)
{
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default) << where;
    EXPECT_FALSE(bench.setUp().Visible()) << where;
    EXPECT_TRUE(bench.result().Visible()) << where;
    EXPECT_TRUE(bench.tool.cmdSave.Visible()) << where;
    EXPECT_TRUE(bench.tool.cmdSave.Enabled()) << where;
    EXPECT_TRUE(bench.tool.chkPreview.Visible()) << where;
}

/// The screen as it is left by a Next that ended half-way: neither page, and the hourglass.
void expectNoPage(ToolBench& bench, const std::string& where)
{
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass) << where;
    EXPECT_FALSE(bench.setUp().Visible()) << where;
    EXPECT_FALSE(bench.result().Visible()) << where;
    EXPECT_TRUE(bench.tool.cmdBack.Enabled()) << where;
    EXPECT_FALSE(bench.tool.cmdNext.Visible()) << where;
    EXPECT_FALSE(bench.tool.cmdSave.Visible()) << where;
    EXPECT_FALSE(bench.tool.chkPreview.Visible()) << where;
}

Lines linesOfFirstNext(Step step)
{
    switch (step) {
    case Step::ReadSetup:
        return {"DEval-001: " + kDown};
    case Step::RetrieveCals:
        // No calibrations at all: whatever needs them ends with its own line.
        return {"DEval-003: " + kDown, "DEval-004: " + kNotSet, "DEval-006: " + kNotSet,
                "DEval-010: " + kNotSet, "DEval-001: " + kNotSet};
    case Step::AnalyzeOperatingDays:
        break;
    }
    return {"DEval-005: " + kDown};
}

Lines linesOfSecondNext(Step step)
{
    if (step == Step::RetrieveCals)
        return {"DEval-003: " + kDown};
    return linesOfFirstNext(step);
}

} // namespace

TEST(WizardFailure, AtAnyCallOfTheFirstNextPostsTheLinesOfTheStepsThatNeedIt)
{
    const auto calls = callsOfNext<ToolBench>();
    const auto steps = stepsOf(calls);
    ASSERT_GT(calls.size(), 100U) << "14 records";
    for (std::size_t i = 0; i < calls.size(); ++i) {
        ToolBench bench;
        failAt(bench, i);
        ASSERT_NO_THROW(bench.next());
        const std::string where = calls[i] + ", call " + std::to_string(i);
        EXPECT_EQ(bench.messages->lines(), linesOfFirstNext(steps[i])) << where;
        if (steps[i] == Step::AnalyzeOperatingDays)
            expectResultsPage(bench, where);
        else
            expectNoPage(bench, where);
    }
}

TEST(WizardFailure, AtAnyCallOfALaterNextKeepsTheCalibrationsOfTheLast)
{
    const auto calls = callsOfNext<SecondNext>();
    const auto steps = stepsOf(calls);
    for (std::size_t i = 0; i < calls.size(); ++i) {
        SecondNext bench;
        const auto runs = bench.test().dictCals;
        failAt(bench, i);
        ASSERT_NO_THROW(bench.next());
        const std::string where = calls[i] + ", call " + std::to_string(i);
        EXPECT_EQ(bench.messages->lines(), linesOfSecondNext(steps[i])) << where;
        EXPECT_EQ(bench.test().dictCals == runs, steps[i] != Step::AnalyzeOperatingDays) << where;
        if (steps[i] == Step::ReadSetup)
            expectNoPage(bench, where);
        else
            expectResultsPage(bench, where);
    }
}

TEST(WizardFailure, AtAnyCallIsPostedWithSeverityFour)
{
    ToolBench bench;
    failAt(bench, 0);
    bench.next();
    EXPECT_EQ(bench.messages->posted,
              (std::vector<std::pair<std::int32_t, std::string>>{{4, "DEval-001: " + kDown}}));
}

TEST(WizardFailure, AFailedRetrievalIsNotTriedAgainUntilTheSetupChanges)
{
    ToolBench bench;
    bench.site->failure = [](const std::string& call, std::size_t) {
        return call == "DIServer.RecordStore" ? std::optional(Error(440)) : std::nullopt;
    };
    bench.next().back();
    bench.site->failure = nullptr;
    bench.next().back();
    EXPECT_EQ(bench.retrievals(), 0U);
    ToolBench::enter(bench.setUp().txtToDate, "3/9/2024");
    bench.next();
    EXPECT_EQ(bench.retrievals(), 1U);
    EXPECT_EQ(bench.summary(), "The 7-Day Drift Test has been passed.");
}

TEST(WizardFailure, BackTakesTheHourglassAwayAndTheNextNextWorks)
{
    ToolBench bench;
    failAt(bench, 0);
    bench.next();
    expectNoPage(bench, "failed");
    bench.site->failure = nullptr;
    bench.back();
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default);
    EXPECT_TRUE(bench.setUp().Visible());
    bench.next();
    expectResultsPage(bench, "next");
    EXPECT_EQ(bench.summary(), "The 7-Day Drift Test has been passed.");
}

TEST(WizardFailure, WithoutAMessageSinkNothingIsPostedAndNothingEscapes)
{
    ToolBench bench;
    bench.tool.Setup(nullptr, bench.server);
    failAt(bench, 0);
    EXPECT_NO_THROW(bench.next());
    expectNoPage(bench, "failed");
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(WizardFailure, WithoutAnAnalyzerNextEndsAtTheSetup)
{
    ToolBench bench(siteOfUnits());
    bench.next();
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-001: " + kNotSet});
    expectNoPage(bench, "no analyzer");
}

TEST(WizardFailure, WithAnUnknownRecordSourceTheRetrievalEnds)
{
    ToolBench bench;
    for (auto& record : bench.site->records)
        record.sourceTag = std::int32_t{199900000};
    bench.next();
    ASSERT_FALSE(bench.messages->lines().empty());
    EXPECT_EQ(bench.messages->lines().front(), "DEval-003: 5, Invalid procedure call or argument");
}

TEST(WizardFailure, AReadingThatIsNoNumberEndsEachStepThatComparesIt)
{
    ToolBench bench;
    bench.next().back();
    bench.test().dictCals->Item("2024/03/03 08:15")->SpanCal->MeasuredValue =
        std::numeric_limits<float>::infinity();
    bench.next();
    // The limits, the evaluation, and the tree of the results page.
    EXPECT_EQ(bench.messages->lines(), (Lines{"DEval-004: 6, Overflow", "DEval-006: 6, Overflow",
                                              "DEval-001: 6, Overflow"}));
    expectNoPage(bench, "no number");
}

TEST(WizardFailure, AnAllowedFailureWithNothingMarkedHasNoDaysToShow)
{
    // The failed run of 8 March is taken as the allowed one; the missed 9 March starts anew and
    // clears its mark, so that of the display of drift calibrations nothing is ever filled.
    auto site = operatedSite();
    addCal(*site, {.time = march(8), .spanMeasured = 170});
    ToolBench bench(site);
    bench.setUp().chk6of7.Press();
    bench.setUp().optShowDriftTestCals.Press();
    bench.next();
    ASSERT_EQ(bench.test().lngGoodCals, 0);
    ASSERT_EQ(bench.test().lngFailedCals, 1);
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-001: 9, Subscript out of range"});
    expectNoPage(bench, "never sized");
}

} // namespace k7deval::test
