#include "sitedb/PlanCase.h"
#include "sitedb/SiteQueries.h"
#include "sitedb/tables/SiteIds.h"
#include "support/Places.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

std::filesystem::path genuineFile(const std::string& name)
{
    return k7deval::test::projectFile("tests/sitedb/data/" + name);
}

constexpr const char* kImportLayout = "ecmps_monitoring_plan_54_SCT1_2023-10_import_layout.json";
constexpr const char* kApiLayout = "ecmps_monitoring_plan_54_SCT5_2023-03_api_layout.json";

Variant text(const char* value)
{
    return std::string(value);
}

using PlanImport = ImportTest<EmptySite>;

TEST_F(PlanImport, TakesAGenuinePlanOfTheImportLayout)
{
    const auto report = importFile(site, genuineFile(kImportLayout), {});
    EXPECT_EQ(report.format, "monitoring plan");
    EXPECT_THAT(report.counts, ElementsAre("1 unit", "2 analyzers", "3 spans", "1 maximum load"));
    EXPECT_THAT(parametersOfType(site, kUnitType), ElementsAre("1-001-0-00-00 SCT1"));
    EXPECT_THAT(parametersOfType(site, kMeasuredType),
                ElementsAre("1-110-0-75-01 NOX 370", "1-220-0-75-01 O2 371"));
    EXPECT_THAT(spansOf(site),
                ElementsAre("NOX 370/L Calibration: 60", "NOX 370/H Calibration: 250",
                            "O2 371/H Calibration: 25"));
    EXPECT_THAT(constantsOf(site, 1),
                ElementsAre("602 75 0: 150", "603 75 0: 10", "604 75 0: 150"));
    EXPECT_EQ(attributeOf(site, UnitPID(1), attribute::kOrisCode), Variant(54));
}

TEST_F(PlanImport, SaysWhatItSteppedOverOfAGenuinePlan)
{
    const auto report = importFile(site, genuineFile(kImportLayout), {});
    EXPECT_THAT(report.steppedOver,
                ElementsAre("reportingFrequencies: 1 entry.",
                            "monitoringLocationData[0]: components of types without hourly values: "
                            "DAHS, GFFM, OFFM, PRB.",
                            "monitoringLocationData[0]: 5 load records of other times.",
                            "monitoringLocationData[0].monitoringDefaultData: 13 entries.",
                            "monitoringLocationData[0].monitoringFormulaData: 16 entries.",
                            "monitoringLocationData[0].monitoringLocationAttribData: 1 entry.",
                            "monitoringLocationData[0].monitoringMethodData: 7 entries.",
                            "monitoringLocationData[0].monitoringQualificationData: 3 entries.",
                            "monitoringLocationData[0].monitoringSystemData: 5 entries.",
                            "monitoringLocationData[0].unitCapacityData: 1 entry.",
                            "monitoringLocationData[0].unitControlData: 1 entry.",
                            "monitoringLocationData[0].unitFuelData: 2 entries."));
}

// Its only spans are of a default high range, for which nothing is calibrated.
TEST_F(PlanImport, TakesAGenuinePlanOfTheApiLayout)
{
    const auto report = importFile(site, genuineFile(kApiLayout), {});
    EXPECT_THAT(report.counts, ElementsAre("1 unit", "3 analyzers", "0 spans", "1 maximum load"));
    EXPECT_THAT(
        parametersOfType(site, kMeasuredType),
        ElementsAre("1-110-0-75-01 NOX 723", "1-110-0-75-02 NOX 720", "1-220-0-75-01 O2 721"));
    EXPECT_THAT(spansOf(site), IsEmpty());
    EXPECT_THAT(constantsOf(site, 1), ElementsAre("602 75 0: 98", "603 75 0: 10", "604 75 0: 98"));
    EXPECT_THAT(report.steppedOver,
                Contains("locations[0].spans[1]: NOX HIGH has no span value, so its scale has no "
                         "calibrations."));
}

TEST_F(PlanImport, PlansOfTwoUnitsMakeOneSite)
{
    importFile(site, genuineFile(kApiLayout), {});
    importFile(site, genuineFile(kImportLayout), {});
    EXPECT_THAT(parametersOfType(site, kUnitType),
                ElementsAre("1-001-0-00-00 SCT5", "2-001-0-00-00 SCT1"));
    EXPECT_EQ(attributeOf(site, UnitPID(2), attribute::kOrisCode), Variant(54));
    const auto entry = site.server()->LookupService()->Lookups()->Find(
        site.server()->SiteKey(), 1, "K7LOOKUP", "FacilityName", "");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->Value(), "Smith Generating Facility");
}

TEST_F(PlanImport, AGenuineQaFileFollowsAPlan)
{
    importFile(site, genuineFile(kImportLayout), {});
    const auto report =
        importFile(site, genuineFile("ecmps_qa_54_SCT1_linearity_and_events.json"), {});
    EXPECT_THAT(report.counts, Contains("0 tests"));
}

TEST_F(PlanImport, TestsFindTheAnalyzersOfAPlan)
{
    take("plan.json", smallPlan());
    take("qa.json", smallQa());
    const auto records = allRecords(site, 111'007'501, "HIGH");
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(records[0]->Span(), Variant(200.0));
}

TEST_F(PlanImport, TestsFindTheAnalyzersOfAStack)
{
    take("plan.json", smallPlan());
    auto qa = patchedQa("/testSummaryData/1/unitId", "null");
    qa = patchedJson(qa, "/testSummaryData/1/stackPipeId", R"("CS1")");
    qa = patchedJson(qa, "/testSummaryData/1/componentId", R"("100")");
    take("qa.json", qa);
    EXPECT_EQ(allRecords(site, 210'007'501, "HIGH").size(), 4U);
}

TEST_F(PlanImport, SpansInForceAreJoinedByTypeAndScale)
{
    const auto report = take("plan.json", smallPlan());
    EXPECT_THAT(report.counts, ElementsAre("2 units", "5 analyzers", "6 spans", "1 maximum load"));
    EXPECT_THAT(spansOf(site),
                ElementsAre("NOX 010/L Calibration: 20", "NOX 010/H Calibration: 200",
                            "NOX 011/H Calibration: 100", "CO2 020/H Calibration: 20",
                            "FLOW 030 Calibration: 1800", "SO2 100/H Calibration: 500"));
}

TEST_F(PlanImport, AnalyzersInForceAreNumberedBeforeRetiredOnes)
{
    take("plan.json", smallPlan());
    EXPECT_THAT(parametersOfType(site, kMeasuredType),
                ElementsAre("1-110-0-75-01 NOX 010", "1-110-0-75-02 NOX 011",
                            "1-240-0-75-01 CO2 020", "1-300-0-75-01 FLOW 030",
                            "2-100-0-75-01 SO2 100"));
}

TEST_F(PlanImport, KeepsWhatThePlanSaysOfASpan)
{
    take("plan.json", smallPlan());
    EXPECT_EQ(attributeOf(site, kNoxHigh, planattribute::kFullScaleRange), text("250"));
    EXPECT_EQ(attributeOf(site, kNoxHigh, planattribute::kMaximumPotential), text("180.5"));
    EXPECT_EQ(attributeOf(site, kNoxHigh, planattribute::kMaximumExpected), text("47"));
    EXPECT_EQ(attributeOf(site, kNoxHigh, planattribute::kSpanBegin), text("2015-01-01 07:00"));
    constexpr PID kNoxLow = 111'027'501;
    EXPECT_EQ(attributeOf(site, kNoxLow, planattribute::kMaximumPotential), Variant(Null{}));
    EXPECT_EQ(attributeOf(site, kNoxLow, planattribute::kFlowSpan), Variant(Null{}));
}

TEST_F(PlanImport, FlowIsCalibratedInItsOwnUnitAndKeptOffRangeEvaluation)
{
    take("plan.json", smallPlan());
    constexpr PID kFlow = 130'017'501;
    EXPECT_EQ(parameter(site, kFlow)->UnitsText(), "KSCFM");
    EXPECT_EQ(parameter(site, 130'007'501)->UnitsText(), "scfh");
    EXPECT_EQ(attributeOf(site, kFlow, attribute::kScale), text("SINGLE"));
    EXPECT_EQ(attributeOf(site, kFlow, attribute::kRangeUse), Variant(1));
    EXPECT_EQ(attributeOf(site, 111'047'501, attribute::kRangeUse), Variant(0));
    EXPECT_EQ(attributeOf(site, kFlow, planattribute::kMaximumPotential), text("57600000"));
    EXPECT_EQ(attributeOf(site, kFlow, planattribute::kFlowSpan), text("108000000"));
    EXPECT_EQ(attributeOf(site, kFlow, planattribute::kFlowFullScale), text("120000000"));
}

TEST_F(PlanImport, TheLoadInForceIsKeptInMegawatts)
{
    const auto report = take("plan.json", smallPlan());
    EXPECT_THAT(constantsOf(site, 1),
                ElementsAre("602 75 0: 150", "603 75 0: 30.5", "604 75 0: 145"));
    EXPECT_THAT(constantsOf(site, 2), IsEmpty());
    EXPECT_THAT(report.steppedOver,
                Contains("monitoringLocationData[1].monitoringLoadData[0]"
                         ".maximumLoadUnitsOfMeasureCode: \"KLBHR\" is not MW, the unit in which a "
                         "site keeps loads."));
}

// The load tool prefers a constant of program 0 to one of program 75.
TEST_F(PlanImport, TheOperatorsCapacityStandsBesideTheMaximumLoadOfThePlan)
{
    take("plan.json", smallPlan());
    site.setCapacity("U1", 155);
    EXPECT_THAT(constantsOf(site, 1),
                ElementsAre("602 0 0: 155", "602 75 0: 150", "603 75 0: 30.5", "604 75 0: 145"));
}

TEST_F(PlanImport, SaysWhatItSteppedOver)
{
    const auto report = take("plan.json", smallPlan());
    EXPECT_THAT(
        report.steppedOver,
        ElementsAre("unitStackConfigurationData: 1 entry.",
                    "monitoringLocationData[0]: components of types without hourly values: DAHS.",
                    "monitoringLocationData[0]: spans of types without hourly values: PM.",
                    "monitoringLocationData[0]: 1 load record of other times.",
                    "monitoringLocationData[0].monitoringFormulaData: 2 entries.",
                    "monitoringLocationData[1].monitoringLoadData[0]"
                    ".maximumLoadUnitsOfMeasureCode: \"KLBHR\" is not MW, the unit in which "
                    "a site keeps loads.",
                    "monitoringLocationData[2]: components of types without hourly values: GFFM.",
                    "monitoringLocationData[2]: CP1 is a stack or pipe without analyzers."));
}

TEST_F(PlanImport, ASpanOfOtherTimesIsCounted)
{
    const auto report =
        take("plan.json", patchedPlan("/monitoringLocationData/0/componentData/0", ""));
    EXPECT_THAT(report.steppedOver,
                Contains("monitoringLocationData[0]: 1 span of other times or without an "
                         "analyzer."));
}

TEST_F(PlanImport, AnAnalyzerWithoutARangeHasNoSpan)
{
    const auto report =
        take("plan.json",
             patchedPlan("/monitoringLocationData/0/componentData/2/analyzerRangeData", ""));
    EXPECT_THAT(report.steppedOver,
                Contains("monitoringLocationData[0].componentData[2]: CO2 020 has no analyzer "
                         "range, so no span is joined to it."));
    EXPECT_THAT(parametersOfType(site, kMeasuredType), Contains("1-240-0-75-01 CO2 020"));
    EXPECT_THAT(spansOf(site), Not(Contains("CO2 020/H Calibration: 20")));
}

TEST_F(PlanImport, AFlowMonitorNeedsNoRangeToHaveNoSpan)
{
    const auto report =
        take("plan.json",
             patchedPlan("/monitoringLocationData/0/monitoringSpanData/4/spanValue", "null"));
    EXPECT_THAT(report.steppedOver,
                Contains("monitoringLocationData[0].monitoringSpanData[4]: FLOW SINGLE has no span "
                         "value, so its scale has no calibrations."));
    EXPECT_THAT(report.steppedOver, Not(Contains(testing::HasSubstr("no analyzer range"))));
}

TEST_F(PlanImport, ADefaultHighRangeLeavesTheLowScaleAlone)
{
    const auto report =
        take("plan.json",
             patchedPlan("/monitoringLocationData/0/monitoringSpanData/1/spanValue", "null"));
    EXPECT_THAT(report.steppedOver,
                Contains("monitoringLocationData[0].monitoringSpanData[1]: NOX HIGH has no span "
                         "value, so its scale has no calibrations."));
    EXPECT_THAT(spansOf(site), Contains("NOX 010/L Calibration: 20"));
    EXPECT_THAT(spansOf(site), Not(Contains(testing::StartsWith("NOX 010/H"))));
}

struct RangeCase {
    const char* what;
    const char* code;
    std::vector<std::string> spans; ///< Of the component in force.
};

void PrintTo(const RangeCase& range, std::ostream* stream)
{
    *stream << range.what;
}

using PlanRange = ImportCases<EmptySite, RangeCase>;

TEST_P(PlanRange, SaysWhichScalesAnAnalyzerHas)
{
    take("plan.json", patchedPlan("/monitoringLocationData/0/componentData/1/analyzerRangeData/1"
                                  "/analyzerRangeCode",
                                  GetParam().code));
    std::vector<std::string> found;
    for (const auto& span : spansOf(site)) {
        if (span.starts_with("NOX 010"))
            found.push_back(span);
    }
    EXPECT_EQ(found, GetParam().spans);
}

INSTANTIATE_TEST_SUITE_P(
    Plan, PlanRange,
    testing::Values(
        RangeCase{"high", R"("H")", {"NOX 010/H Calibration: 200"}},
        RangeCase{"low", R"("L")", {"NOX 010/L Calibration: 20"}},
        RangeCase{"auto", R"("A")", {"NOX 010/L Calibration: 20", "NOX 010/H Calibration: 200"}}));

TEST_F(PlanImport, OfTwoOpenRecordsTheLaterOneHolds)
{
    take("plan.json",
         patchedPlan("/monitoringLocationData/0/monitoringSpanData/0/endDate", "null"));
    EXPECT_THAT(spansOf(site), Contains("NOX 010/H Calibration: 200"));
}

TEST_F(PlanImport, WithoutARecordInForceTheLatestHolds)
{
    take("plan.json",
         patchedPlan("/monitoringLocationData/0/monitoringLoadData/1/endDate", R"("2020-12-31")"));
    EXPECT_THAT(constantsOf(site, 1), Contains("602 75 0: 150"));
}

TEST_F(PlanImport, AUnitWithoutLoadHasNoCapacity)
{
    for (const char* value : {"null", "0"}) {
        EmptySite fresh;
        importText(
            fresh, "plan.json",
            patchedPlan("/monitoringLocationData/0/monitoringLoadData/1/maximumLoadValue", value));
        EXPECT_THAT(constantsOf(fresh.site, 1), ElementsAre("603 75 0: 30.5", "604 75 0: 145"))
            << value;
    }
}

TEST_F(PlanImport, AUnitWithNothingButItsNameIsAUnit)
{
    const auto report =
        take("plan.json", R"({"orisCode": 7, "locations": [{"unitId": "1", "spans": null}]})");
    EXPECT_THAT(report.counts, ElementsAre("1 unit", "0 analyzers", "0 spans"));
    EXPECT_THAT(parametersOfType(site, kUnitType), ElementsAre("1-001-0-00-00 1"));
}

TEST_F(PlanImport, TheNameThatTheOperatorGaveStays)
{
    site.setFacilityName("My Plant");
    take("plan.json", smallPlan());
    const auto entry = site.server()->LookupService()->Lookups()->Find(
        site.server()->SiteKey(), 1, "K7LOOKUP", "FacilityName", "");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->Value(), "My Plant");
}

TEST_F(PlanImport, ALaterPlanMayRepeatWhatTheSiteHolds)
{
    take("plan.json", smallPlan());
    const auto report = take(
        "later.json",
        patchedPlan("/monitoringLocationData/1/componentData/-",
                    R"({"componentId": "101", "componentTypeCode": "SO2", "analyzerRangeData": [
                        {"analyzerRangeCode": "H", "beginDate": "2022-01-01", "beginHour": 0,
                         "endDate": null, "endHour": null}]})"));
    EXPECT_THAT(report.counts,
                ElementsAre("0 units", "1 analyzer", "1 span", "6 spans that the site had"));
}

TEST_F(PlanImport, ASpanTableWithTheSameSpansGetsTheFactsOfThePlan)
{
    take("spans.csv", kSpanColumns + "U1,010,NOX,H,200,PPM\n");
    take("plan.json", smallPlan());
    EXPECT_EQ(attributeOf(site, 111'047'501, planattribute::kFullScaleRange), text("250"));
}

TEST_F(PlanImport, LoadThatWasThereBeforeStaysWithItsUnit)
{
    take("load.csv", "date,hour,gross_load_mw\n2020-01-01,0,10\n", forUnit("CS1"));
    take("plan.json", smallPlan());
    EXPECT_THAT(parametersOfType(site, kUnitType),
                ElementsAre("1-001-0-00-00 CS1", "2-001-0-00-00 U1"));
    EXPECT_THAT(parametersOfType(site, kMeasuredType), Contains("1-100-0-75-01 SO2 100"));
}

// A table of spans of locations, like a file of hours, may name no component.
TEST_F(PlanImport, ThePlanGivesTheOnlyAnalyzerOfAGasItsIdentifier)
{
    take("spans.csv", kSpanColumns + "U1,NOX,NOX,H,200,PPM\n");
    EXPECT_THAT(parametersOfType(site, kMeasuredType), ElementsAre("1-110-0-75-01 NOX"));
    take("plan.json", smallPlan());
    EXPECT_THAT(parametersOfType(site, kMeasuredType),
                testing::IsSupersetOf({"1-110-0-75-01 NOX 010", "1-110-0-75-02 NOX 011"}));
    EXPECT_EQ(attributeOf(site, 111'047'501, attribute::kComponentId), text("010"));
    EXPECT_EQ(attributeOf(site, 111'007'501, attribute::kComponentId), text("010"));
    EXPECT_THAT(spansOf(site), Contains("NOX 010/H Calibration: 200"));
}

TEST_F(PlanImport, OfTwoAnalyzersNoneIsTakenForTheNamelessOne)
{
    take("spans.csv", kSpanColumns + "U1,NOX,NOX,H,50,PPM\n");
    take("plan.json",
         patchedPlan("/monitoringLocationData/0/componentData/0/analyzerRangeData/0/endDate",
                     "null"));
    EXPECT_THAT(parametersOfType(site, kMeasuredType),
                testing::IsSupersetOf(
                    {"1-110-0-75-01 NOX", "1-110-0-75-02 NOX 011", "1-110-0-75-03 NOX 010"}));
}

} // namespace

} // namespace k7deval::sitedb::test
