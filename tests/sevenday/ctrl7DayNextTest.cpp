#include "sevenday/ToolRig.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

/// Which steps a Next runs again.
namespace k7deval::test
{

namespace
{

const std::string kPassed = "The 7-Day Drift Test has been passed.";

} // namespace

TEST(WizardNext, AsksForTheRecordsOfTheAnalyzerTheScaleAndTheInterval)
{
    ToolRig rig;
    ToolRig::enter(rig.setUp().txtFromDate, "3/1/2024");
    ToolRig::enter(rig.setUp().txtToDate, "3/9/2024");
    rig.next();
    RangeRecordQuery expected;
    expected.siteKey = "SITE";
    expected.argument2 = 0;
    expected.start = makeDate(2024, 3, 1);
    expected.end = makeDate(2024, 3, 9, 23, 59);
    expected.argument5 = "";
    expected.pid = AnalyzerFacts().measuredPID();
    expected.argument7 = 0;
    expected.argument8 = "";
    expected.scale = "HIGH";
    expected.argument10 = "";
    expected.tables = "K7CAL,K7PMCAL,K7PS9SINGLEINJCALCHK,K7PS9TRIPLEINJCALCHK";
    expected.argument12 = 0;
    expected.argument13 = 0;
    expected.argument14 = 1;
    ASSERT_EQ(rig.site->rangeQueries.size(), 1U);
    EXPECT_EQ(rig.site->rangeQueries[0], expected);
}

TEST(WizardNext, AgainWithNothingChangedReadsNoCalibrationsAndEvaluatesAnew)
{
    ToolRig rig;
    rig.next().back();
    rig.site->calls.clear();
    const auto runs = rig.test().dictCals;
    const auto days = rig.test().dictDays.Item("2024/03/01");
    rig.next();
    EXPECT_EQ(rig.retrievals(), 1U);
    EXPECT_EQ(rig.test().dictCals, runs);
    EXPECT_EQ(rig.site->countCalls("DIParameter.ReadData"), 1U) << "the operating hours";
    EXPECT_NE(rig.test().dictDays.Item("2024/03/01"), days);
    EXPECT_EQ(rig.summary(), kPassed);
}

TEST(WizardNext, AppliesTheLimitsEachTime)
{
    ToolRig rig;
    rig.next().back();
    const auto run = rig.test().dictCals->Item("2024/03/01 08:15");
    run->SpanCal->DriftLimit = -1;
    rig.next();
    EXPECT_EQ(run->SpanCal->DriftLimit, 5);
}

/// A change on the setup page between two Nexts.
struct Change {
    const char* what;
    std::function<void(ToolRig&)> make;
    bool retrieves;
};

void PrintTo(const Change& change, std::ostream* out)
{
    *out << change.what;
}

const Change kChanges[] = {
    {"Nothing", [](ToolRig&) {}, false},
    {"FromDate", [](ToolRig& b) { ToolRig::enter(b.setUp().txtFromDate, "2/11/2024"); }, true},
    {"ToDate", [](ToolRig& b) { ToolRig::enter(b.setUp().txtToDate, "3/9/2024"); }, true},
    {"ToDateToAnImpossibleOne",
     [](ToolRig& b) { ToolRig::enter(b.setUp().txtToDate, "2/30/2024"); }, false},
    {"ToDateToTheSameWithATime",
     [](ToolRig& b) { ToolRig::enter(b.setUp().txtToDate, "3/10/2024 12:00"); }, false},
    {"BothDatesSwapped",
     [](ToolRig& b) {
         ToolRig::enter(b.setUp().txtFromDate, "3/10/2024");
         ToolRig::enter(b.setUp().txtToDate, "2/10/2024");
     },
     false},
    {"OtherAnalyzer", [](ToolRig& b) { b.setUp().cmbAnalyzer.Pick(1); }, true},
    {"OtherScaleOfTheAnalyzer", [](ToolRig& b) { b.setUp().cmbAnalyzer.Pick(2); }, true},
    {"SameAnalyzerAgain", [](ToolRig& b) { b.setUp().cmbAnalyzer.Pick(0); }, false},
    {"UnitWithoutAnalyzers", [](ToolRig& b) { b.setUp().cmbUnit.Pick(1); }, false},
    {"LimitRule", [](ToolRig& b) { b.setUp().opt05Span.Press(); }, false},
    {"LimitValue",
     [](ToolRig& b) {
         b.setUp().optOtherSpan.Press();
         ToolRig::enter(b.setUp().txtOtherSpanValue, "4");
     },
     false},
    {"APS", [](ToolRig& b) { b.setUp().chkUseAPS.Press(); }, false},
    {"UseZeroCals", [](ToolRig& b) { b.setUp().optPS9GC.Press(); }, false},
    {"SixOfSeven", [](ToolRig& b) { b.setUp().chk6of7.Press(); }, false},
    {"IncludeManualCals", [](ToolRig& b) { b.setUp().chkManualCals.Press(); }, false},
    {"Display", [](ToolRig& b) { b.setUp().optShowInterval.Press(); }, false},
    {"Summary", [](ToolRig& b) { b.setUp().chkShowSummary.Press(); }, false},
    {"TestInformation", [](ToolRig& b) { b.setUp().txtTestNumber.Type("T1"); }, false},
};

/// A site with a second analyzer, and the first on a second scale under the same measured PID.
std::shared_ptr<SiteData> siteOfThreeAnalyzers()
{
    auto site = siteWithDailyCals(7);
    AnalyzerFacts co;
    co.code = 140;
    co.name = "CO";
    addAnalyzer(*site, co);
    ParameterData low = site->parameter(AnalyzerFacts().calibrationPID());
    low.pid = MakePID(1, 120, 0, 75, 2);
    low.attributes[attribute::kScale] = std::string("LOW");
    site->parameters.push_back(low);
    return site;
}

class WizardChange : public ::testing::TestWithParam<Change>
{
};

TEST_P(WizardChange, ReadsTheCalibrationsAgainOnlyForAnotherIntervalOrAnalyzer)
{
    ToolRig rig(siteOfThreeAnalyzers());
    rig.next().back();
    ASSERT_EQ(rig.retrievals(), 1U);
    GetParam().make(rig);
    rig.next();
    EXPECT_EQ(rig.retrievals(), GetParam().retrieves ? 2U : 1U);
    EXPECT_EQ(rig.messages->lines(), Lines());
    rig.back().next();
    EXPECT_EQ(rig.retrievals(), GetParam().retrieves ? 2U : 1U) << "and once is enough";
}

INSTANTIATE_TEST_SUITE_P(Changes, WizardChange, ::testing::ValuesIn(kChanges),
                         [](const auto& tested) { return tested.param.what; });

TEST(WizardNext, AChangeOfALimitReachesTheRunsInMemory)
{
    ToolRig rig;
    rig.next().back();
    rig.setUp().optOtherSpan.Press();
    ToolRig::enter(rig.setUp().txtOtherSpanValue, "0.4");
    rig.next();
    EXPECT_EQ(rig.test().dictCals->Item("2024/03/01 08:15")->SpanCal->DriftLimit, 0.8F);
    EXPECT_EQ(rig.test().lngGoodCals, 0);
}

TEST(WizardNext, SixOfSevenChangesTheOutcomeOfTheRunsInMemory)
{
    auto site = siteWithDailyCals(2);
    addCal(*site, {.time = march(3), .spanMeasured = 170});
    for (int day = 4; day <= 7; ++day)
        addCal(*site, {.time = march(day)});
    ToolRig rig(site);
    rig.next();
    EXPECT_NE(rig.summary(), kPassed);
    rig.back().setUp().chk6of7.Press();
    rig.next();
    EXPECT_EQ(rig.summary(), kPassed);
    EXPECT_EQ(rig.retrievals(), 1U);
}

TEST(WizardNext, ManualCalsChangeTheOutcomeOfTheRunsInMemory)
{
    auto site = siteWithDailyCals(7);
    for (auto& record : site->records)
        record.manual = true;
    ToolRig rig(site);
    rig.next();
    EXPECT_EQ(rig.test().lngGoodCals, 7);
    rig.back().setUp().chkManualCals.Press();
    rig.next();
    EXPECT_EQ(rig.test().lngGoodCals, 0);
    EXPECT_EQ(rig.retrievals(), 1U);
}

TEST(WizardNext, UseZeroCalsReachesOnlyRunsThatAreReadAgain)
{
    auto site = operatedSite();
    for (int day = 1; day <= 7; ++day)
        addCal(*site, {.time = march(day), .hasZero = false});
    ToolRig rig(site);
    const auto firstRun = [&] { return rig.test().dictCals->Item("2024/03/01 08:15"); };
    rig.next().back();
    EXPECT_TRUE(firstRun()->UseZeroCal);
    rig.setUp().optPS9GC.Press();
    rig.next().back();
    EXPECT_FALSE(rig.test().blnUseZeroCals);
    EXPECT_TRUE(firstRun()->UseZeroCal) << "the runs in memory";
    EXPECT_EQ(rig.test().lngGoodCals, 0);
    ToolRig::enter(rig.setUp().txtToDate, "3/9/2024");
    rig.next();
    EXPECT_FALSE(firstRun()->UseZeroCal);
    EXPECT_EQ(rig.test().lngGoodCals, 7);
}

TEST(WizardNext, TakesTheWholeSetupIntoTheTest)
{
    ToolRig rig;
    auto& page = rig.setUp();
    ToolRig::enter(page.txtFromDate, "3/9/2024");
    ToolRig::enter(page.txtToDate, "3/1/2024");
    page.chk6of7.Press();
    page.chkManualCals.Press();
    page.optPS9GC.Press();
    rig.next();
    const DriftTest& test = rig.test();
    EXPECT_EQ(test.lngAnalyzedPID, AnalyzerFacts().measuredPID());
    EXPECT_EQ(test.strAnalyzedScale, "HIGH");
    EXPECT_EQ(test.dtStart, makeDate(2024, 3, 1));
    EXPECT_EQ(test.dtEnd, makeDate(2024, 3, 9, 23, 59));
    EXPECT_EQ(test.lngLimitRule, CalLimitRules_PercentOfRef);
    EXPECT_EQ(test.sngPercentOfRefLimit, 10);
    EXPECT_EQ(test.sngPercentOfSpanLimit, -999);
    EXPECT_EQ(test.sngAbsoluteLimit, 5);
    EXPECT_TRUE(test.blnSixOfSeven);
    EXPECT_FALSE(test.blnIncludeManualCals);
    EXPECT_FALSE(test.blnUseZeroCals);
    EXPECT_FALSE(test.blnRetrieveCals);
    EXPECT_TRUE(test.blnApplyLimits);
}

} // namespace k7deval::test
