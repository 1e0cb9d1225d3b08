#include "sevenday/ToolBench.h"

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
    ToolBench bench;
    ToolBench::enter(bench.setUp().txtFromDate, "3/1/2024");
    ToolBench::enter(bench.setUp().txtToDate, "3/9/2024");
    bench.next();
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
    ASSERT_EQ(bench.site->rangeQueries.size(), 1U);
    EXPECT_EQ(bench.site->rangeQueries[0], expected);
}

TEST(WizardNext, AgainWithNothingChangedReadsNoCalibrationsAndEvaluatesAnew)
{
    ToolBench bench;
    bench.next().back();
    bench.site->calls.clear();
    const auto runs = bench.test().dictCals;
    const auto days = bench.test().dictDays.Item("2024/03/01");
    bench.next();
    EXPECT_EQ(bench.retrievals(), 1U);
    EXPECT_EQ(bench.test().dictCals, runs);
    EXPECT_EQ(bench.site->countCalls("DIParameter.ReadData"), 1U) << "the operating hours";
    EXPECT_NE(bench.test().dictDays.Item("2024/03/01"), days);
    EXPECT_EQ(bench.summary(), kPassed);
}

TEST(WizardNext, AppliesTheLimitsEachTime)
{
    ToolBench bench;
    bench.next().back();
    const auto run = bench.test().dictCals->Item("2024/03/01 08:15");
    run->SpanCal->DriftLimit = -1;
    bench.next();
    EXPECT_EQ(run->SpanCal->DriftLimit, 5);
}

/// A change on the setup page between two Nexts.
struct Change {
    const char* what;
    std::function<void(ToolBench&)> make;
    bool retrieves;
};

void PrintTo(const Change& change, std::ostream* out)
{
    *out << change.what;
}

const Change kChanges[] = {
    {"Nothing", [](ToolBench&) {}, false},
    {"FromDate", [](ToolBench& b) { ToolBench::enter(b.setUp().txtFromDate, "2/11/2024"); }, true},
    {"ToDate", [](ToolBench& b) { ToolBench::enter(b.setUp().txtToDate, "3/9/2024"); }, true},
    {"ToDateToAnImpossibleOne",
     [](ToolBench& b) { ToolBench::enter(b.setUp().txtToDate, "2/30/2024"); }, false},
    {"ToDateToTheSameWithATime",
     [](ToolBench& b) { ToolBench::enter(b.setUp().txtToDate, "3/10/2024 12:00"); }, false},
    {"BothDatesSwapped",
     [](ToolBench& b) {
         ToolBench::enter(b.setUp().txtFromDate, "3/10/2024");
         ToolBench::enter(b.setUp().txtToDate, "2/10/2024");
     },
     false},
    {"OtherAnalyzer", [](ToolBench& b) { b.setUp().cmbAnalyzer.Pick(1); }, true},
    {"OtherScaleOfTheAnalyzer", [](ToolBench& b) { b.setUp().cmbAnalyzer.Pick(2); }, true},
    {"SameAnalyzerAgain", [](ToolBench& b) { b.setUp().cmbAnalyzer.Pick(0); }, false},
    {"UnitWithoutAnalyzers", [](ToolBench& b) { b.setUp().cmbUnit.Pick(1); }, false},
    {"LimitRule", [](ToolBench& b) { b.setUp().opt05Span.Press(); }, false},
    {"LimitValue",
     [](ToolBench& b) {
         b.setUp().optOtherSpan.Press();
         ToolBench::enter(b.setUp().txtOtherSpanValue, "4");
     },
     false},
    {"APS", [](ToolBench& b) { b.setUp().chkUseAPS.Press(); }, false},
    {"UseZeroCals", [](ToolBench& b) { b.setUp().optPS9GC.Press(); }, false},
    {"SixOfSeven", [](ToolBench& b) { b.setUp().chk6of7.Press(); }, false},
    {"IncludeManualCals", [](ToolBench& b) { b.setUp().chkManualCals.Press(); }, false},
    {"Display", [](ToolBench& b) { b.setUp().optShowInterval.Press(); }, false},
    {"Summary", [](ToolBench& b) { b.setUp().chkShowSummary.Press(); }, false},
    {"TestInformation", [](ToolBench& b) { b.setUp().txtTestNumber.Type("T1"); }, false},
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
    ToolBench bench(siteOfThreeAnalyzers());
    bench.next().back();
    ASSERT_EQ(bench.retrievals(), 1U);
    GetParam().make(bench);
    bench.next();
    EXPECT_EQ(bench.retrievals(), GetParam().retrieves ? 2U : 1U);
    EXPECT_EQ(bench.messages->lines(), Lines());
    bench.back().next();
    EXPECT_EQ(bench.retrievals(), GetParam().retrieves ? 2U : 1U) << "and once is enough";
}

INSTANTIATE_TEST_SUITE_P(Changes, WizardChange, ::testing::ValuesIn(kChanges),
                         [](const auto& tested) { return tested.param.what; });

TEST(WizardNext, AChangeOfALimitReachesTheRunsInMemory)
{
    ToolBench bench;
    bench.next().back();
    bench.setUp().optOtherSpan.Press();
    ToolBench::enter(bench.setUp().txtOtherSpanValue, "0.4");
    bench.next();
    EXPECT_EQ(bench.test().dictCals->Item("2024/03/01 08:15")->SpanCal->DriftLimit, 0.8F);
    EXPECT_EQ(bench.test().lngGoodCals, 0);
}

TEST(WizardNext, SixOfSevenChangesTheOutcomeOfTheRunsInMemory)
{
    auto site = siteWithDailyCals(2);
    addCal(*site, {.time = march(3), .spanMeasured = 170});
    for (int day = 4; day <= 7; ++day)
        addCal(*site, {.time = march(day)});
    ToolBench bench(site);
    bench.next();
    EXPECT_NE(bench.summary(), kPassed);
    bench.back().setUp().chk6of7.Press();
    bench.next();
    EXPECT_EQ(bench.summary(), kPassed);
    EXPECT_EQ(bench.retrievals(), 1U);
}

TEST(WizardNext, ManualCalsChangeTheOutcomeOfTheRunsInMemory)
{
    auto site = siteWithDailyCals(7);
    for (auto& record : site->records)
        record.manual = true;
    ToolBench bench(site);
    bench.next();
    EXPECT_EQ(bench.test().lngGoodCals, 7);
    bench.back().setUp().chkManualCals.Press();
    bench.next();
    EXPECT_EQ(bench.test().lngGoodCals, 0);
    EXPECT_EQ(bench.retrievals(), 1U);
}

TEST(WizardNext, UseZeroCalsReachesOnlyRunsThatAreReadAgain)
{
    auto site = operatedSite();
    for (int day = 1; day <= 7; ++day)
        addCal(*site, {.time = march(day), .hasZero = false});
    ToolBench bench(site);
    const auto firstRun = [&] { return bench.test().dictCals->Item("2024/03/01 08:15"); };
    bench.next().back();
    EXPECT_TRUE(firstRun()->UseZeroCal);
    bench.setUp().optPS9GC.Press();
    bench.next().back();
    EXPECT_FALSE(bench.test().blnUseZeroCals);
    EXPECT_TRUE(firstRun()->UseZeroCal) << "the runs in memory";
    EXPECT_EQ(bench.test().lngGoodCals, 0);
    ToolBench::enter(bench.setUp().txtToDate, "3/9/2024");
    bench.next();
    EXPECT_FALSE(firstRun()->UseZeroCal);
    EXPECT_EQ(bench.test().lngGoodCals, 7);
}

TEST(WizardNext, TakesTheWholeSetupIntoTheTest)
{
    ToolBench bench;
    auto& page = bench.setUp();
    ToolBench::enter(page.txtFromDate, "3/9/2024");
    ToolBench::enter(page.txtToDate, "3/1/2024");
    page.chk6of7.Press();
    page.chkManualCals.Press();
    page.optPS9GC.Press();
    bench.next();
    const DriftTest& test = bench.test();
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
