#include "foundation/ExpectError.h"
#include "sevenday/SetUpRig.h"
#include "support/Approval.h"

#include <gtest/gtest.h>

namespace k7deval::test
{

TEST(SetUpPageApproved, AtTheStart)
{
    test::expectApproved("drift-setup/start/widgets.txt", layoutOf(SetUpRig().page));
}

TEST(SetUpStart, ChecksManualCalsAndTheSummaryAndShowsAllCalsToTheTestEnd)
{
    const SetUpRig rig;
    const auto& page = rig.page;
    EXPECT_TRUE(page.IncludeManualCals());
    EXPECT_TRUE(page.ShowSummary());
    EXPECT_FALSE(page.SixOfSevenCals());
    EXPECT_FALSE(page.ShowInterval());
    EXPECT_TRUE(page.ShowAllCalsWithinDrift());
    EXPECT_FALSE(page.ShowOnlyDriftCals());
    EXPECT_TRUE(page.UseZeroCals());
}

TEST(SetUpStart, TheDatesAreWrittenInTheRegionsShortForm)
{
    EXPECT_EQ(SetUpRig(siteOf({}), "de-DE").page.txtFromDate.Text(), "10.02.2024");
    EXPECT_EQ(SetUpRig(siteOf({}), "en-GB").page.txtToDate.Text(), "10/03/2024");
}

TEST(SetUpStart, BeforeAnyAnalyzerNoSpecificationIsChosen)
{
    const SetUpRig rig;
    const auto& page = rig.page;
    for (const screen::OptionButton* option :
         {&page.opt025Span, &page.opt05Span, &page.opt005Absolute, &page.optOtherSpan,
          &page.optOtherAbsolute, &page.optPS9GC})
        EXPECT_FALSE(option->isSelected()) << option->Name();
    EXPECT_TRUE(page.chkUseAPS.Enabled());
    EXPECT_FALSE(page.chkUseAPS.isChecked());
    EXPECT_TRUE(page.txtOtherSpanValue.Enabled());
    EXPECT_TRUE(page.txtOtherAbsoluteValue.Enabled());
    EXPECT_EQ(page.LimitRules(), 0);
}

TEST(SetUpStart, WhatAsksForAnAnalyzerFailsBeforeThereIsOne)
{
    const SetUpRig rig;
    EXPECT_EQ(errorOf([&] { return rig.page.AnalyzedPID(); }), 91);
    EXPECT_EQ(errorOf([&] { return rig.page.AnalyzedScale(); }), 91);
    EXPECT_EQ(errorOf([&] { return rig.page.AnalyzedPrecision(); }), 91);
}

TEST(SetUpStart, TheUnitPIDFailsBeforeThereIsAUnit)
{
    const SetUpRig rig;
    EXPECT_EQ(errorOf([&] { return rig.page.AnalyzedUnitPID(); }), 381);
}

TEST(SetUpSetup, ListsTheUnitsInTheirOrderAndPicksTheFirst)
{
    SetUpRig rig;
    rig.setup();
    EXPECT_EQ(rig.page.cmbUnit.List(), (Lines{"GT3", "GT4"}));
    EXPECT_EQ(rig.page.cmbUnit.itemDataList(), (std::vector<std::int32_t>{kGT3, kGT4}));
    EXPECT_EQ(rig.page.AnalyzedUnitPID(), kGT3);
}

TEST(SetUpSetup, RunsTheRulesOfTheFirstUnitAndOfItsFirstAnalyzer)
{
    SetUpRig rig;
    EXPECT_EQ(
        rig.changesBy([&] { rig.setup(); }),
        (Lines{"chkUseAPS.Value: 0 -> 1", "cmbAnalyzer.ItemData: [] -> [1]",
               "cmbAnalyzer.List: [] -> [\"NOX/H\"]", "cmbAnalyzer.ListIndex: -1 -> 0",
               "cmbAnalyzer.Text: \"\" -> \"NOX/H\"",
               "cmbUnit.ItemData: [] -> [100100000, 200100000]",
               "cmbUnit.List: [] -> [\"GT3\", \"GT4\"]", "cmbUnit.ListIndex: -1 -> 0",
               "cmbUnit.Text: \"\" -> \"GT3\"", "fraTestInfo.Visible: False -> True",
               "opt025Span.Value: False -> True", "txtComponentID.Text: \"\" -> \"101\"",
               "txtORIS.Text: \"\" -> \"50292\"", "txtOtherAbsoluteValue.Enabled: True -> False",
               "txtOtherSpanValue.Enabled: True -> False", "txtStackID.Text: \"\" -> \"GT3\"",
               "txtTestNumber.Text: \"\" -> \"NOXH_101_7DAY\""}));
    EXPECT_TRUE(rig.messages->posted.empty());
}

TEST(SetUpSetup, ASecondSetupStartsTheListOfUnitsAnew)
{
    SetUpRig rig;
    rig.setup().setup();
    EXPECT_EQ(rig.page.cmbUnit.listCount(), 2);
}

TEST(SetUpSetup, ASiteWithoutUnitsFailsAtTheFirstPick)
{
    SetUpRig rig(std::make_shared<SiteData>());
    EXPECT_EQ(errorOf([&] { return rig.setup(), 0; }), 381);
    EXPECT_TRUE(rig.messages->posted.empty());
}

TEST(SetUpSetup, WorksWithoutAMessageSink)
{
    SetUpRig rig;
    rig.site->failure = [](const std::string& call, std::size_t) {
        return call == "DIServer.ParametersOfUnit" ? std::optional(Error(440)) : std::nullopt;
    };
    EXPECT_NO_THROW(rig.page.Setup(nullptr, serve(rig.site)));
    EXPECT_EQ(rig.page.cmbUnit.Text(), "GT3");
}

TEST(SetUpTerminate, DropsTheSinkAndTheData)
{
    SetUpRig rig;
    std::weak_ptr<MessageSink> sink = rig.messages;
    const auto server = serve(rig.site);
    rig.page.Setup(std::exchange(rig.messages, nullptr), server);
    rig.page.Terminate();
    EXPECT_TRUE(sink.expired());
    EXPECT_EQ(server.use_count(), 1);
}

} // namespace k7deval::test
