#include "foundation/ExpectError.h"
#include "sevenday/SetUpRig.h"

#include <gtest/gtest.h>

namespace k7deval::test
{

namespace
{

struct WidgetCase {
    const char* name;
    const char* kind;
    const char* property; ///< The property that holds its caption or start value.
    const char* text;
};

// The page as it is created on 10 March 2024, in the order of its frames.
constexpr WidgetCase kWidgets[] = {
    {"cmbUnit", "ComboBox", "List", "[]"},
    {"cmbAnalyzer", "ComboBox", "List", "[]"},
    {"fraTargetTime", "Frame", "Caption", "\"Interval to Check for 7-Day Drift\""},
    {"lblFromDate", "Label", "Caption", "\"From:\""},
    {"txtFromDate", "TextBox", "Text", "\"2/10/2024\""},
    {"cmdFromDate", "Button", "Caption", "\"...\""},
    {"lblToDate", "Label", "Caption", "\"To:\""},
    {"txtToDate", "TextBox", "Text", "\"3/10/2024\""},
    {"cmdToDate", "Button", "Caption", "\"...\""},
    {"fraCriteria", "Frame", "Caption", "\"7-Day Drift Criteria\""},
    {"chkManualCals", "CheckBox", "Caption", "\"Include Manual Cals\""},
    {"chk6of7", "CheckBox", "Caption", "\"6 of 7 Calibration Days Passed (CO ppm)\""},
    {"fraDisplay", "Frame", "Caption", "\"Display Options\""},
    {"optShowInterval", "OptionButton", "Caption", "\"Show All Cals in Selected Interval\""},
    {"optShowAllCals", "OptionButton", "Caption",
     "\"Show All Cals from Interval Start to Test End\""},
    {"optShowDriftTestCals", "OptionButton", "Caption",
     "\"Show Only Cals Used to Pass Drift Test\""},
    {"chkShowSummary", "CheckBox", "Caption", "\"Show Drift Test Summary\""},
    {"fraPerfSpec", "Frame", "Caption", "\"Performance Specifications\""},
    {"opt025Span", "OptionButton", "Caption", "\"2.5% of Span\""},
    {"lbl025Span", "Label", "Caption", "\"(NOx ppm, SO2 ppm ...)\""},
    {"chkUseAPS", "CheckBox", "Caption", "\"Use APS of 5 if appropriate\""},
    {"opt05Span", "OptionButton", "Caption", "\"5% of Span\""},
    {"lbl05Span", "Label", "Caption", "\"(CO ppm)\""},
    {"opt005Absolute", "OptionButton", "Caption", "\"0.5 Absolute Scale\""},
    {"lbl005Absolute", "Label", "Caption", "\"(O2 %, CO2 %)\""},
    {"optOtherSpan", "OptionButton", "Caption", "\"Other % of Span\""},
    {"lblOtherSpan", "Label", "Caption", "\"(ex. Flow  3 ...)\""},
    {"txtOtherSpanValue", "TextBox", "Text", "\"\""},
    {"lblOtherSpanValue", "Label", "Caption", "\"Limit:\""},
    {"optOtherAbsolute", "OptionButton", "Caption", "\"Other Absolute Scale\""},
    {"lblOtherAbsolute", "Label", "Caption", "\"(ex. APS 5 ...)\""},
    {"txtOtherAbsoluteValue", "TextBox", "Text", "\"\""},
    {"lblOtherAbsoluteValue", "Label", "Caption", "\"Limit:\""},
    {"optPS9GC", "OptionButton", "Caption", "\"PS 9  (Gas chromatograph)\""},
    {"lblPS9GC", "Label", "Caption", "\"10% of ref, mid gas only\""},
    {"fraTestInfo", "Frame", "Caption", "\"40CFR75 Test Information\""},
    {"lblORIS", "Label", "Caption", "\"ORISPL Code:\""},
    {"txtORIS", "TextBox", "Text", "\"\""},
    {"lblStackID", "Label", "Caption", "\"Unit/Stack ID:\""},
    {"txtStackID", "TextBox", "Text", "\"\""},
    {"cmbStackID", "ComboBox", "List", "[]"},
    {"lblComponentID", "Label", "Caption", "\"Component ID:\""},
    {"txtComponentID", "TextBox", "Text", "\"\""},
    {"lblTestReason", "Label", "Caption", "\"Reason For Test:\""},
    {"cmbTestReason", "ComboBox", "List",
     R"(["Initial Certification", "Recertification", "Diagnostic"])"},
    {"lblTestNumber", "Label", "Caption", "\"Test Number:\""},
    {"txtTestNumber", "TextBox", "Text", "\"\""},
};

} // namespace

TEST(SetUpStart, HasEveryWidgetWithItsKindAndText)
{
    const SetUpRig rig;
    const Snapshot all = snapshotOf(rig.page);
    for (const WidgetCase& row : kWidgets) {
        const std::string name = row.name;
        ASSERT_TRUE(all.contains(name + ".Kind")) << name;
        EXPECT_EQ(all.at(name + ".Kind"), '"' + std::string(row.kind) + '"') << name;
        EXPECT_EQ(all.at(name + "." + row.property), row.text) << name;
    }
    EXPECT_EQ(rig.page.widgets().size(), std::size(kWidgets));
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

TEST(SetUpStart, TheIntervalIsTheMonthUpToToday)
{
    const SetUpRig rig;
    EXPECT_EQ(rig.page.StartDate(), makeDate(2024, 2, 10));
    EXPECT_EQ(rig.page.EndDate(), makeDate(2024, 3, 10));
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

TEST(SetUpStart, TheTestInformationIsHiddenAndTheFirstReasonSelected)
{
    const SetUpRig rig;
    const auto& page = rig.page;
    EXPECT_FALSE(page.Is40CFR75());
    EXPECT_FALSE(page.fraTestInfo.Visible());
    EXPECT_FALSE(page.cmbStackID.Visible());
    EXPECT_TRUE(page.txtStackID.Visible());
    EXPECT_EQ(page.cmbTestReason.itemDataList(), (std::vector<std::int32_t>{1, 2, 3}));
    EXPECT_EQ(page.cmbTestReason.ListIndex(), 0);
}

TEST(SetUpStart, TheFieldsOfTheTestInformationLimitWhatIsTyped)
{
    const SetUpRig rig;
    EXPECT_EQ(rig.page.txtORIS.MaxLength(), 6);
    EXPECT_EQ(rig.page.txtStackID.MaxLength(), 6);
    EXPECT_EQ(rig.page.txtComponentID.MaxLength(), 3);
    EXPECT_EQ(rig.page.txtTestNumber.MaxLength(), 0);
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
