#include "sevenday/ToolRig.h"

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
struct SecondNext : ToolRig {
    SecondNext()
    {
        next().back();
        enter(setUp().txtToDate, "3/9/2024");
    }
};

template <class Rig> std::vector<std::string> callsOfNext()
{
    Rig rig;
    rig.site->calls.clear();
    rig.next();
    return rig.site->calls;
}

/// Makes the next call of that number, from 0, fail.
void failAt(ToolRig& rig, std::size_t number)
{
    rig.site->calls.clear();
    rig.site->failure = [number](const std::string&, std::size_t at) {
        return at == number ? std::optional(Error(440, "the line is down")) : std::nullopt;
    };
}

/// Page 2 as it is left by a Next that came to its end.
void expectResultsPage(ToolRig& rig, const std::string& where)
{
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default) << where;
    EXPECT_FALSE(rig.setUp().Visible()) << where;
    EXPECT_TRUE(rig.result().Visible()) << where;
    EXPECT_TRUE(rig.tool.cmdSave.Visible()) << where;
    EXPECT_TRUE(rig.tool.cmdSave.Enabled()) << where;
    EXPECT_TRUE(rig.tool.chkPreview.Visible()) << where;
}

/// The screen as it is left by a Next that ended half-way: neither page, and the hourglass.
void expectNoPage(ToolRig& rig, const std::string& where)
{
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass) << where;
    EXPECT_FALSE(rig.setUp().Visible()) << where;
    EXPECT_FALSE(rig.result().Visible()) << where;
    EXPECT_TRUE(rig.tool.cmdBack.Enabled()) << where;
    EXPECT_FALSE(rig.tool.cmdNext.Visible()) << where;
    EXPECT_FALSE(rig.tool.cmdSave.Visible()) << where;
    EXPECT_FALSE(rig.tool.chkPreview.Visible()) << where;
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
    const auto calls = callsOfNext<ToolRig>();
    const auto steps = stepsOf(calls);
    ASSERT_GT(calls.size(), 100U) << "14 records";
    for (std::size_t i = 0; i < calls.size(); ++i) {
        ToolRig rig;
        failAt(rig, i);
        ASSERT_NO_THROW(rig.next());
        const std::string where = calls[i] + ", call " + std::to_string(i);
        EXPECT_EQ(rig.messages->lines(), linesOfFirstNext(steps[i])) << where;
        if (steps[i] == Step::AnalyzeOperatingDays)
            expectResultsPage(rig, where);
        else
            expectNoPage(rig, where);
    }
}

TEST(WizardFailure, AtAnyCallOfALaterNextKeepsTheCalibrationsOfTheLast)
{
    const auto calls = callsOfNext<SecondNext>();
    const auto steps = stepsOf(calls);
    for (std::size_t i = 0; i < calls.size(); ++i) {
        SecondNext rig;
        const auto runs = rig.test().dictCals;
        failAt(rig, i);
        ASSERT_NO_THROW(rig.next());
        const std::string where = calls[i] + ", call " + std::to_string(i);
        EXPECT_EQ(rig.messages->lines(), linesOfSecondNext(steps[i])) << where;
        EXPECT_EQ(rig.test().dictCals == runs, steps[i] != Step::AnalyzeOperatingDays) << where;
        if (steps[i] == Step::ReadSetup)
            expectNoPage(rig, where);
        else
            expectResultsPage(rig, where);
    }
}

TEST(WizardFailure, AtAnyCallIsPostedWithSeverityFour)
{
    ToolRig rig;
    failAt(rig, 0);
    rig.next();
    EXPECT_EQ(rig.messages->posted,
              (std::vector<std::pair<std::int32_t, std::string>>{{4, "DEval-001: " + kDown}}));
}

TEST(WizardFailure, AFailedRetrievalIsNotTriedAgainUntilTheSetupChanges)
{
    ToolRig rig;
    rig.site->failure = [](const std::string& call, std::size_t) {
        return call == "DIServer.RecordStore" ? std::optional(Error(440)) : std::nullopt;
    };
    rig.next().back();
    rig.site->failure = nullptr;
    rig.next().back();
    EXPECT_EQ(rig.retrievals(), 0U);
    ToolRig::enter(rig.setUp().txtToDate, "3/9/2024");
    rig.next();
    EXPECT_EQ(rig.retrievals(), 1U);
    EXPECT_EQ(rig.summary(), "The 7-Day Drift Test has been passed.");
}

TEST(WizardFailure, BackTakesTheHourglassAwayAndTheNextNextWorks)
{
    ToolRig rig;
    failAt(rig, 0);
    rig.next();
    expectNoPage(rig, "failed");
    rig.site->failure = nullptr;
    rig.back();
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
    EXPECT_TRUE(rig.setUp().Visible());
    rig.next();
    expectResultsPage(rig, "next");
    EXPECT_EQ(rig.summary(), "The 7-Day Drift Test has been passed.");
}

TEST(WizardFailure, WithoutAMessageSinkNothingIsPostedAndNothingEscapes)
{
    ToolRig rig;
    rig.tool.Setup(nullptr, rig.server);
    failAt(rig, 0);
    EXPECT_NO_THROW(rig.next());
    expectNoPage(rig, "failed");
    EXPECT_EQ(rig.messages->lines(), Lines());
}

TEST(WizardFailure, WithoutAnAnalyzerNextEndsAtTheSetup)
{
    ToolRig rig(siteOfUnits());
    rig.next();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-001: " + kNotSet});
    expectNoPage(rig, "no analyzer");
}

TEST(WizardFailure, WithAnUnknownRecordSourceTheRetrievalEnds)
{
    ToolRig rig;
    for (auto& record : rig.site->records)
        record.sourceTag = std::int32_t{199900000};
    rig.next();
    ASSERT_FALSE(rig.messages->lines().empty());
    EXPECT_EQ(rig.messages->lines().front(), "DEval-003: 5, Invalid procedure call or argument");
}

TEST(WizardFailure, AReadingThatIsNoNumberEndsEachStepThatComparesIt)
{
    ToolRig rig;
    rig.next().back();
    rig.test().dictCals->Item("2024/03/03 08:15")->SpanCal->MeasuredValue =
        std::numeric_limits<float>::infinity();
    rig.next();
    // The limits, the evaluation, and the tree of the results page.
    EXPECT_EQ(rig.messages->lines(), (Lines{"DEval-004: 6, Overflow", "DEval-006: 6, Overflow",
                                            "DEval-001: 6, Overflow"}));
    expectNoPage(rig, "no number");
}

TEST(WizardFailure, AnAllowedFailureWithNothingMarkedHasNoDaysToShow)
{
    // The failed run of 8 March is taken as the allowed one; the missed 9 March starts anew and
    // clears its mark, so that of the display of drift calibrations nothing is ever filled.
    auto site = operatedSite();
    addCal(*site, {.time = march(8), .spanMeasured = 170});
    ToolRig rig(site);
    rig.setUp().chk6of7.Press();
    rig.setUp().optShowDriftTestCals.Press();
    rig.next();
    ASSERT_EQ(rig.test().lngGoodCals, 0);
    ASSERT_EQ(rig.test().lngFailedCals, 1);
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-001: 9, Subscript out of range"});
    expectNoPage(rig, "never sized");
}

} // namespace k7deval::test
