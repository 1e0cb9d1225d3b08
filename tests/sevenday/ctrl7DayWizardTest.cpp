#include "sevenday/ResultRig.h"
#include "sevenday/ToolRig.h"

#include <gtest/gtest.h>

#include <algorithm>

/// The two pages of the wizard, and what the results page is given.
namespace k7deval::test
{

namespace
{

const std::string kTestPassed = "The 7-Day Drift Test has been passed.";

/// The changes outside of the results page.
Lines outsideResults(Lines changes)
{
    std::erase_if(changes, [](const std::string& change) {
        return change.starts_with("ctrl7DayResult1.") && !change.starts_with("ctrl7DayResult1.V");
    });
    return changes;
}

Lines treeOfResults(ToolRig& rig)
{
    return linesOf(rig.result().tvwCalTimes);
}

const Lines kSevenPassed = {
    "3/1/2024 08:15 [OnlinePass] white", "3/2/2024 08:15 [OnlinePass] white",
    "3/3/2024 08:15 [OnlinePass] white", "3/4/2024 08:15 [OnlinePass] white",
    "3/5/2024 08:15 [OnlinePass] white", "3/6/2024 08:15 [OnlinePass] white",
    "3/7/2024 08:15 [OnlinePass] white",
};

const Lines kEmptyTree = {"NA [OfflineFail] light"};

} // namespace

TEST(Wizard, HasItsButtonsWithTheirCaptions)
{
    ToolRig rig;
    EXPECT_EQ(rig.tool.cmdBack.Caption(), "<< Back");
    EXPECT_EQ(rig.tool.cmdNext.Caption(), "Next >>");
    EXPECT_EQ(rig.tool.cmdSave.Caption(), "Save");
    EXPECT_EQ(rig.tool.chkPreview.Caption(), "Preview Report After Saving");
    for (const char* name : {"cmdBack", "cmdNext", "cmdSave", "chkPreview", "CommonDialog1",
                             "ctrl7DaySetUp1", "ctrl7DayResult1"})
        EXPECT_NE(rig.tool.Find(name), nullptr) << name;
    EXPECT_EQ(rig.tool.widgets().size(), 7U);
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
    ToolRig rig;
    const Snapshot all = snapshotOf(rig.tool);
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
    EXPECT_EQ(rig.messages->lines(), Lines());
}

TEST(WizardSetup, ListsUnitsAndAnalyzers)
{
    ToolRig rig;
    EXPECT_EQ(rig.setUp().AnalyzerInfoText(), "GT3 NOX/H");
}

TEST(WizardSetup, PutsTheSaveButtonOnTheVerySpotOfNext)
{
    ToolRig rig;
    rig.tool.cmdNext.setPlace({1200, 6000, 1095, 375});
    rig.tool.Setup(rig.messages, rig.server);
    EXPECT_EQ(rig.tool.cmdSave.place(), (screen::Geometry{1200, 6000, 1095, 375}));
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
    ToolRig rig;
    EXPECT_EQ(outsideResults(rig.changesBy([&] { rig.next(); })),
              (Lines{"chkPreview.Visible: False -> True", "cmdBack.Enabled: False -> True",
                     "cmdNext.Visible: True -> False", "cmdSave.Enabled: False -> True",
                     "cmdSave.Visible: False -> True", "ctrl7DayResult1.Visible: False -> True",
                     "ctrl7DaySetUp1.Visible: True -> False"}));
    EXPECT_EQ(rig.messages->lines(), Lines());
}

TEST(WizardNext, FillsTheResultsPage)
{
    ToolRig rig;
    rig.next();
    EXPECT_EQ(rig.summary(), kTestPassed);
    EXPECT_EQ(rig.result().lblAnalyzerLabel.Caption(), "GT3 NOX/H");
    EXPECT_EQ(treeOfResults(rig), kSevenPassed);
    EXPECT_EQ(rig.result().lblCalTimeData.Caption(), "3/1/2024 08:15");
    EXPECT_EQ(rig.result().zero.limitData.Caption(), "5");
}

TEST(WizardNext, TheHourglassStandsAndNoResultIsOnShowWhileItWorks)
{
    ToolRig rig;
    std::size_t calls = 0;
    rig.site->failure = [&](const std::string&, std::size_t) -> std::optional<Error> {
        ++calls;
        EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Hourglass);
        EXPECT_FALSE(rig.setUp().Visible());
        EXPECT_FALSE(rig.result().Visible());
        EXPECT_TRUE(rig.tool.cmdBack.Enabled());
        EXPECT_FALSE(rig.tool.cmdNext.Visible());
        EXPECT_FALSE(rig.tool.cmdSave.Visible());
        EXPECT_FALSE(rig.tool.chkPreview.Visible());
        return std::nullopt;
    };
    rig.next();
    EXPECT_GT(calls, 20U);
    EXPECT_EQ(rig.tool.MousePointer(), screen::MousePointer::Default);
}

TEST(WizardBack, ShowsTheFirstPageAndClearsNothing)
{
    ToolRig rig;
    rig.next();
    EXPECT_EQ(
        rig.changesBy([&] { rig.back(); }),
        (Lines{"chkPreview.Visible: True -> False", "cmdBack.Enabled: True -> False",
               "cmdNext.Visible: False -> True", "cmdSave.Visible: True -> False",
               "ctrl7DayResult1.Visible: True -> False", "ctrl7DaySetUp1.Visible: False -> True"}));
    EXPECT_EQ(rig.test().lngGoodCals, 7);
    EXPECT_EQ(rig.test().strSummary, kTestPassed);
}

TEST(WizardBack, ThePreviewKeepsWhatTheUserChose)
{
    ToolRig rig;
    rig.next();
    rig.tool.chkPreview.Press();
    rig.back().next();
    EXPECT_FALSE(rig.tool.chkPreview.isChecked());
    EXPECT_TRUE(rig.tool.cmdSave.Enabled());
}

TEST(WizardDisplay, UpToTheTestEndLeavesOutWhatComesBehindIt)
{
    ToolRig rig(siteWithDailyCals(9));
    rig.next();
    EXPECT_EQ(treeOfResults(rig), kSevenPassed);
}

TEST(WizardDisplay, TheIntervalShowsAll)
{
    ToolRig rig(siteWithDailyCals(9));
    rig.setUp().optShowInterval.Press();
    rig.next();
    Lines expected = kSevenPassed;
    expected.insert(expected.end(),
                    {"3/8/2024 08:15 [OnlinePass] light", "3/9/2024 08:15 [OnlinePass] light"});
    EXPECT_EQ(treeOfResults(rig), expected);
}

TEST(WizardDisplay, OnlyDriftCalsLeavesOutWhatIsNotUsed)
{
    auto site = siteWithDailyCals(9);
    addCal(*site, {.time = march(2, 20, 15), .manual = true});
    ToolRig rig(site);
    rig.setUp().optShowDriftTestCals.Press();
    rig.next();
    EXPECT_EQ(treeOfResults(rig), kSevenPassed);
}

TEST(WizardDisplay, WithoutCalibrationsTheTreeIsClearedAndTheSummarySaysSo)
{
    ToolRig rig(operatedSite());
    rig.next();
    EXPECT_EQ(treeOfResults(rig), kEmptyTree);
    EXPECT_EQ(rig.summary(), "There are no calibrations in selected time range.");
    EXPECT_EQ(rig.messages->lines(), Lines());
}

TEST(WizardDisplay, WithNothingCountedOnlyTheDisplayOfDriftCalsIsCleared)
{
    auto site = operatedSite();
    addCal(*site, {.time = march(9), .spanMeasured = 170});
    ToolRig rig(site);
    rig.next();
    ASSERT_EQ(rig.test().lngGoodCals + rig.test().lngFailedCals, 0);
    EXPECT_EQ(treeOfResults(rig).back(), "3/9/2024 08:15 [OnlineFail] light");
    rig.back().setUp().optShowDriftTestCals.Press();
    rig.next();
    EXPECT_EQ(treeOfResults(rig), kEmptyTree);
}

TEST(WizardDisplay, AClearedTreeComesBackWithTheNextDisplay)
{
    ToolRig rig;
    rig.setUp().optShowDriftTestCals.Press();
    rig.setUp().chkManualCals.Press();
    for (auto& record : rig.site->records)
        record.manual = true;
    rig.next();
    EXPECT_EQ(treeOfResults(rig), kEmptyTree);
    rig.back().setUp().chkManualCals.Press();
    rig.next();
    EXPECT_EQ(treeOfResults(rig), kSevenPassed);
}

TEST(WizardDisplay, TheSummaryIsShownOnlyWhenAskedFor)
{
    ToolRig rig;
    rig.setUp().chkShowSummary.Press();
    rig.next();
    EXPECT_EQ(rig.summary(), "");
    rig.back().setUp().chkShowSummary.Press();
    rig.next();
    EXPECT_EQ(rig.summary(), kTestPassed);
}

TEST(WizardTerminate, DropsTheSinkAndTheData)
{
    ToolRig rig;
    const std::weak_ptr<MessageSink> sink = rig.messages;
    rig.next();
    rig.messages.reset();
    rig.tool.Terminate();
    EXPECT_TRUE(sink.expired());
    EXPECT_EQ(rig.server.use_count(), 1);
}

} // namespace k7deval::test
