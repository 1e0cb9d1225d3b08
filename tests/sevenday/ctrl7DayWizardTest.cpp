#include "sevenday/ResultBench.h"
#include "sevenday/ToolBench.h"

#include <gtest/gtest.h>

#include <algorithm>

/// The two pages of the wizard, and what the results page is given.
namespace k7deval::test
{

namespace
{

const std::string kPassed = "The 7-Day Drift Test has been passed.";

/// The changes outside of the results page.
Lines outsideResults(Lines changes)
{
    std::erase_if(changes, [](const std::string& change) {
        return change.starts_with("ctrl7DayResult1.") && !change.starts_with("ctrl7DayResult1.V");
    });
    return changes;
}

Lines treeOf(ToolBench& bench)
{
    return linesOf(bench.result().tvwCalTimes);
}

const Lines kSevenPassed = {
    "3/1/2024 08:15 [OnlinePass] white", "3/2/2024 08:15 [OnlinePass] white",
    "3/3/2024 08:15 [OnlinePass] white", "3/4/2024 08:15 [OnlinePass] white",
    "3/5/2024 08:15 [OnlinePass] white", "3/6/2024 08:15 [OnlinePass] white",
    "3/7/2024 08:15 [OnlinePass] white",
};

const Lines kNothingToShow = {"NA [OfflineFail] light"};

} // namespace

TEST(Wizard, HasItsButtonsWithTheirCaptions)
{
    ToolBench bench;
    EXPECT_EQ(bench.tool.cmdBack.Caption(), "<< Back");
    EXPECT_EQ(bench.tool.cmdNext.Caption(), "Next >>");
    EXPECT_EQ(bench.tool.cmdSave.Caption(), "Save");
    EXPECT_EQ(bench.tool.chkPreview.Caption(), "Preview Report After Saving");
    for (const char* name : {"cmdBack", "cmdNext", "cmdSave", "chkPreview", "CommonDialog1",
                             "ctrl7DaySetUp1", "ctrl7DayResult1"})
        EXPECT_NE(bench.tool.Find(name), nullptr) << name;
    EXPECT_EQ(bench.tool.Widgets().size(), 7U);
}

TEST(Wizard, CannotSaveBeforeTheFirstSetup)
{
    FakeServices services;
    const FixedClock clock(makeDate(2024, 3, 10));
    const RegionalSettings regional;
    const ctrl7Day tool({services, clock, regional});
    EXPECT_FALSE(tool.cmdSave.Enabled());
    EXPECT_FALSE(tool.chkPreview.isChecked());
}

TEST(WizardSetup, ShowsTheFirstPage)
{
    ToolBench bench;
    const Snapshot all = snapshotOf(bench.tool);
    const std::pair<const char*, const char*> expected[] = {
        {"MousePointer", "0"},
        {"ctrl7DaySetUp1.Visible", "True"},
        {"ctrl7DaySetUp1.Left", "120"},
        {"ctrl7DaySetUp1.Top", "120"},
        {"ctrl7DayResult1.Left", "120"},
        {"ctrl7DayResult1.Top", "120"},
        {"ctrl7DayResult1.Visible", "False"},
        {"cmdBack.Enabled", "False"},
        {"cmdBack.Visible", "True"},
        {"cmdNext.Visible", "True"},
        {"cmdNext.Enabled", "True"},
        {"cmdSave.Visible", "False"},
        {"cmdSave.Enabled", "False"},
        {"chkPreview.Visible", "False"},
        {"chkPreview.Value", "1"},
    };
    for (const auto& [property, value] : expected)
        EXPECT_EQ(all.at(property), value) << property;
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(WizardSetup, ListsUnitsAndAnalyzers)
{
    ToolBench bench;
    EXPECT_EQ(bench.setUp().AnalyzerInfoText(), "GT3 NOX/H");
}

TEST(WizardSetup, PutsTheSaveButtonOnTheVerySpotOfNext)
{
    ToolBench bench;
    bench.tool.cmdNext.SetPlace({1200, 6000, 1095, 375});
    bench.tool.Setup(bench.messages, bench.server);
    EXPECT_EQ(bench.tool.cmdSave.Place(), (screen::Geometry{1200, 6000, 1095, 375}));
}

TEST(WizardSetup, ASiteWithoutUnitsReachesTheHost)
{
    FakeServices services;
    const FixedClock clock(makeDate(2024, 3, 10));
    const RegionalSettings regional;
    ctrl7Day tool({services, clock, regional});
    EXPECT_THROW(tool.Setup(nullptr, serve(std::make_shared<SiteData>())), Error);
}

TEST(WizardNext, ShowsTheResultsPage)
{
    ToolBench bench;
    EXPECT_EQ(outsideResults(bench.changesBy([&] { bench.next(); })),
              (Lines{"chkPreview.Visible: False -> True", "cmdBack.Enabled: False -> True",
                     "cmdNext.Visible: True -> False", "cmdSave.Enabled: False -> True",
                     "cmdSave.Visible: False -> True", "ctrl7DayResult1.Visible: False -> True",
                     "ctrl7DaySetUp1.Visible: True -> False"}));
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(WizardNext, FillsTheResultsPage)
{
    ToolBench bench;
    bench.next();
    EXPECT_EQ(bench.summary(), kPassed);
    EXPECT_EQ(bench.result().lblAnalyzerLabel.Caption(), "GT3 NOX/H");
    EXPECT_EQ(treeOf(bench), kSevenPassed);
    EXPECT_EQ(bench.result().lblCalTimeData.Caption(), "3/1/2024 08:15");
    EXPECT_EQ(bench.result().zero.limitData.Caption(), "5");
}

TEST(WizardNext, TheHourglassStandsAndNoResultIsOnShowWhileItWorks)
{
    ToolBench bench;
    std::size_t calls = 0;
    bench.site->failure = [&](const std::string&, std::size_t) -> std::optional<Error> {
        ++calls;
        EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Hourglass);
        EXPECT_FALSE(bench.setUp().Visible());
        EXPECT_FALSE(bench.result().Visible());
        EXPECT_TRUE(bench.tool.cmdBack.Enabled());
        EXPECT_FALSE(bench.tool.cmdNext.Visible());
        EXPECT_FALSE(bench.tool.cmdSave.Visible());
        EXPECT_FALSE(bench.tool.chkPreview.Visible());
        return std::nullopt;
    };
    bench.next();
    EXPECT_GT(calls, 20U);
    EXPECT_EQ(bench.tool.MousePointer(), screen::MousePointer::Default);
}

TEST(WizardBack, ShowsTheFirstPageAndClearsNothing)
{
    ToolBench bench;
    bench.next();
    EXPECT_EQ(
        bench.changesBy([&] { bench.back(); }),
        (Lines{"chkPreview.Visible: True -> False", "cmdBack.Enabled: True -> False",
               "cmdNext.Visible: False -> True", "cmdSave.Visible: True -> False",
               "ctrl7DayResult1.Visible: True -> False", "ctrl7DaySetUp1.Visible: False -> True"}));
    EXPECT_EQ(bench.test().lngGoodCals, 7);
    EXPECT_EQ(bench.test().strSummary, kPassed);
}

TEST(WizardBack, ThePreviewKeepsWhatTheUserChose)
{
    ToolBench bench;
    bench.next();
    bench.tool.chkPreview.Press();
    bench.back().next();
    EXPECT_FALSE(bench.tool.chkPreview.isChecked());
    EXPECT_TRUE(bench.tool.cmdSave.Enabled());
}

TEST(WizardDisplay, UpToTheTestEndLeavesOutWhatComesBehindIt)
{
    ToolBench bench(siteWithDailyCals(9));
    bench.next();
    EXPECT_EQ(treeOf(bench), kSevenPassed);
}

TEST(WizardDisplay, TheIntervalShowsAll)
{
    ToolBench bench(siteWithDailyCals(9));
    bench.setUp().optShowInterval.Press();
    bench.next();
    Lines expected = kSevenPassed;
    expected.insert(expected.end(),
                    {"3/8/2024 08:15 [OnlinePass] light", "3/9/2024 08:15 [OnlinePass] light"});
    EXPECT_EQ(treeOf(bench), expected);
}

TEST(WizardDisplay, OnlyDriftCalsLeavesOutWhatIsNotUsed)
{
    auto site = siteWithDailyCals(9);
    addCal(*site, {.time = march(2, 20, 15), .manual = true});
    ToolBench bench(site);
    bench.setUp().optShowDriftTestCals.Press();
    bench.next();
    EXPECT_EQ(treeOf(bench), kSevenPassed);
}

TEST(WizardDisplay, WithoutCalibrationsTheTreeIsClearedAndTheSummarySaysSo)
{
    ToolBench bench(operatedSite());
    bench.next();
    EXPECT_EQ(treeOf(bench), kNothingToShow);
    EXPECT_EQ(bench.summary(), "There are no calibrations in selected time range.");
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(WizardDisplay, WithNothingCountedOnlyTheDisplayOfDriftCalsIsCleared)
{
    auto site = operatedSite();
    addCal(*site, {.time = march(9), .spanMeasured = 170});
    ToolBench bench(site);
    bench.next();
    ASSERT_EQ(bench.test().lngGoodCals + bench.test().lngFailedCals, 0);
    EXPECT_EQ(treeOf(bench).back(), "3/9/2024 08:15 [OnlineFail] light");
    bench.back().setUp().optShowDriftTestCals.Press();
    bench.next();
    EXPECT_EQ(treeOf(bench), kNothingToShow);
}

TEST(WizardDisplay, AClearedTreeComesBackWithTheNextDisplay)
{
    ToolBench bench;
    bench.setUp().optShowDriftTestCals.Press();
    bench.setUp().chkManualCals.Press();
    for (auto& record : bench.site->records)
        record.manual = true;
    bench.next();
    EXPECT_EQ(treeOf(bench), kNothingToShow);
    bench.back().setUp().chkManualCals.Press();
    bench.next();
    EXPECT_EQ(treeOf(bench), kSevenPassed);
}

TEST(WizardDisplay, TheSummaryIsShownOnlyWhenAskedFor)
{
    ToolBench bench;
    bench.setUp().chkShowSummary.Press();
    bench.next();
    EXPECT_EQ(bench.summary(), "");
    bench.back().setUp().chkShowSummary.Press();
    bench.next();
    EXPECT_EQ(bench.summary(), kPassed);
}

TEST(WizardTerminate, DropsTheSinkAndTheData)
{
    ToolBench bench;
    const std::weak_ptr<MessageSink> sink = bench.messages;
    bench.next();
    bench.messages.reset();
    bench.tool.Terminate();
    EXPECT_TRUE(sink.expired());
    EXPECT_EQ(bench.server.use_count(), 1);
}

} // namespace k7deval::test
