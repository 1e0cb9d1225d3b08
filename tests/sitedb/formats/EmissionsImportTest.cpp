#include "sitedb/EmissionsCase.h"
#include "sitedb/SiteQueries.h"
#include "sitedb/tables/SiteIds.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr PID kSecondNox = 111'007'502;
constexpr PID kCo2 = 124'007'501;
constexpr PID kStackOperatingTime = 260'107'501;
constexpr PID kStackLoad = 260'207'501;
constexpr PID kStackFlow = 230'007'501;

Date lateOnLeapDay()
{
    return makeDate(2020, 2, 29, 22);
}

using EmissionsImport = ImportTest<SmallSite>;
using EmissionsImportIntoANewSite = ImportTest<EmptySite>;

TEST_F(EmissionsImport, BringsOperatingTimeLoadAndMonitorsOfEachHour)
{
    take("emissions.json", smallEmissions());
    EXPECT_THAT(hoursFrom(site, kOperatingTime, lateOnLeapDay(), 4),
                ElementsAre("1/1", "0.25/1", "0/2", "-/0"));
    EXPECT_THAT(hoursFrom(site, kLoad, lateOnLeapDay(), 4),
                ElementsAre("50/1", "10/1", "-/2", "-/0"));
    EXPECT_THAT(hoursFrom(site, kNox, lateOnLeapDay(), 4),
                ElementsAre("12.5/101", "-/106", "-/2", "-/0"));
    EXPECT_THAT(hoursFrom(site, kCo2, lateOnLeapDay(), 4),
                ElementsAre("8.1/102", "40/36", "-/2", "-/0"));
    EXPECT_EQ(attributeOf(site, 100'100'000, attribute::kOrisCode), Variant(54));
}

TEST_F(EmissionsImport, AValueInExponentNotationIsANumber)
{
    take("emissions.json", smallEmissions());
    EXPECT_THAT(hoursFrom(site, kMercury, lateOnLeapDay(), 3),
                ElementsAre("-/0", "0.0144/117", "-/2"));
}

TEST_F(EmissionsImport, ALoadThatIsNotInMegawattsMakesNoLoad)
{
    take("emissions.json", smallEmissions());
    EXPECT_THAT(hoursFrom(site, kStackOperatingTime, lateOnLeapDay(), 1), ElementsAre("1/1"));
    EXPECT_THAT(hoursFrom(site, kStackFlow, lateOnLeapDay(), 1), ElementsAre("500000/101"));
    EXPECT_FALSE(site.server()->Parameters()->Exists(kStackLoad));
}

TEST_F(EmissionsImport, ReportsWhatItTookAndWhatItSteppedOver)
{
    const auto report = take("emissions.json", smallEmissions());
    EXPECT_EQ(report.format, "ECMPS emissions data");
    EXPECT_THAT(report.counts,
                ElementsAre("4 hours", "6 monitor values", "3 calibration injections"));
    EXPECT_THAT(report.steppedOver,
                ElementsAre("dailyTestSummaryData: 1 test without injections, of type \"INTCHK\".",
                            "hourlyOperatingData.hourLoad: 1 hour in \"KLBHR\".",
                            "hourlyOperatingData.monitorHourlyValueData: 1 value of \"XYZ\".",
                            "hourlyOperatingData.derivedHourlyValueData: 2 entries.",
                            "summaryValueData: 2 entries."));
    EXPECT_THAT(report.leftOut, IsEmpty());
}

TEST_F(EmissionsImport, ADailyCalibrationIsARunAsThoseOfAQaFile)
{
    take("emissions.json", smallEmissions());
    const auto records = allRecords(site, kNox, "HIGH");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0]->RunTime(), makeDate(2020, 2, 29, 5, 2));
    EXPECT_EQ(records[0]->GasLevelCode(), 0);
    EXPECT_EQ(records[0]->MeasuredValue(), Variant(0.25));
    EXPECT_EQ(records[1]->RunTime(), makeDate(2020, 2, 29, 5, 2));
    EXPECT_EQ(records[1]->InjectionEnd(), makeDate(2020, 2, 29, 5, 10));
    EXPECT_EQ(records[1]->GasLevelCode(), 1);
    EXPECT_EQ(records[1]->GasLevelText(), "MID");
    EXPECT_EQ(records[1]->MeasuredValue(), Variant(50.5));
    EXPECT_EQ(records[1]->CalStatus(), status::kOnlineCalibration);
    EXPECT_EQ(records[1]->Span(), Variant(100.0));
    EXPECT_EQ(attributeOf(site, 111'047'501, attribute::kDecimals), Variant(2));
}

TEST_F(EmissionsImport, AnUpscaleInjectionAloneHasItsOwnTimeAndTheOnlyScaleOfTheAnalyzer)
{
    take("emissions.json", smallEmissions());
    const auto records = allRecords(site, kCo2, "SINGLE");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0]->RunTime(), makeDate(2020, 2, 29, 6, 30));
    EXPECT_EQ(records[0]->GasLevelCode(), 2);
    EXPECT_EQ(records[0]->CalStatus(), status::kOfflineCalibration);
    EXPECT_EQ(records[0]->Span(), Variant(20.0));
}

TEST_F(EmissionsImport, BothSpellingsOfTheCalibrationFieldsAreRead)
{
    std::string text = smallEmissions();
    for (const auto& [name, other] :
         {std::pair{"\"onlineOfflineIndicator\"", "\"onLineOffLineIndicator\""},
          std::pair{"\"upscaleGasCode\"", "\"upscaleGasLevelCode\""}})
        text.replace(text.find(name), std::string(name).size(), other);
    take("emissions.json", text);
    EXPECT_EQ(allRecords(site, kNox, "HIGH").size(), 2U);
}

TEST_F(EmissionsImportIntoANewSite, AnEmptySiteGetsUnitsAndComponentsWhoseSpansAreNotKnown)
{
    take("emissions.json", smallEmissions());
    EXPECT_THAT(pidsOf(site.server()->Units()), ElementsAre(100'100'000, 200'100'000));
    EXPECT_EQ(parameter(site, 200'100'000)->Name(0), "CS1");
    EXPECT_EQ(parameter(site, kNox)->Name(0), "NOX 010");
    const auto records = allRecords(site, kNox, "HIGH");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0]->Span(), Variant(Null{}));
    const auto definitions = recordsOf(site, 111'047'501, "K7CAL");
    ASSERT_EQ(definitions.size(), 1U);
    EXPECT_EQ(definitions[0]->Span(), Variant(Null{}));
}

TEST_F(EmissionsImportIntoANewSite, ASpanTableAfterwardsGivesTheSpansThatWereNotKnown)
{
    take("emissions.json", smallEmissions());
    take("spans.csv", kSpanColumns + "U1,010,NOX,H,100,PPM\n");
    EXPECT_EQ(recordsOf(site, 111'047'501, "K7CAL").front()->Span(), Variant(100.0));
    for (const auto& record : allRecords(site, kNox, "HIGH"))
        EXPECT_EQ(record->Span(), Variant(100.0));
}

TEST_F(EmissionsImport, TheOrderOfTheFieldsIsNoMatter)
{
    const json document = json::parse(smallEmissions());
    std::string reversed;
    for (auto field = document.begin(); field != document.end(); ++field)
        reversed = "\"" + field.key() + "\": " + field.value().dump() +
                   (reversed.empty() ? "" : ", ") + reversed;
    EmptySite first;
    EmptySite second;
    importText(first, "emissions.json",
               "{\"hourlyOperatingData\": " + document["hourlyOperatingData"].dump() +
                   ", \"dailyTestSummaryData\": " + document["dailyTestSummaryData"].dump() +
                   ", \"orisCode\": 54}");
    importText(second, "emissions.json", "{" + reversed + "}");
    for (const char* table : {"hourly_value", "parameter", "attribute", "calibration_record"})
        EXPECT_EQ(count(first.site, std::string("SELECT COUNT(*) FROM ") + table),
                  count(second.site, std::string("SELECT COUNT(*) FROM ") + table))
            << table;
    for (const PID pid : {kNox, kCo2, kMercury, kOperatingTime, kLoad, kStackFlow})
        EXPECT_EQ(hoursFrom(first.site, pid, lateOnLeapDay(), 3),
                  hoursFrom(second.site, pid, lateOnLeapDay(), 3));
    EXPECT_EQ(allRecords(first.site, kNox, "HIGH").size(), 2U);
    EXPECT_EQ(allRecords(second.site, kNox, "HIGH").size(), 2U);
}

TEST_F(EmissionsImport, AnHourWithoutAComponentIsMissingForEachAnalyzerThatHasNoneOfItsOwn)
{
    take("more.csv", kSpanColumns + "U1,011,NOX,H,100,PPM\n");
    auto second = emissionsHour("2021-01-01", 1, 30);
    auto unnamed = second["monitorHourlyValueData"][0];
    unnamed["componentId"] = nullptr;
    unnamed["unadjustedHourlyValue"] = 40.5;
    unnamed["modcCode"] = "08";
    second["monitorHourlyValueData"].push_back(unnamed);
    take("emissions.json", emissionsOf({emissionsHour("2021-01-01", 0, 20), second}));
    EXPECT_THAT(hoursFrom(site, kNox, makeDate(2021, 1, 1), 2), ElementsAre("20/101", "30/101"));
    EXPECT_THAT(hoursFrom(site, kSecondNox, makeDate(2021, 1, 1), 2),
                ElementsAre("-/0", "40.5/108"));
}

TEST_F(EmissionsImport, AGasWhoseHoursNeverNameAComponentIsKeptUnderItsOwnName)
{
    auto hour = emissionsHour("2021-01-01", 0, 3);
    hour["monitorHourlyValueData"][0]["parameterCode"] = "O2C";
    hour["monitorHourlyValueData"][0].erase("componentId");
    take("emissions.json", emissionsOf({hour}));
    EXPECT_EQ(parameter(site, 122'007'501)->Name(0), "O2");
    EXPECT_THAT(hoursFrom(site, 122'007'501, makeDate(2021, 1, 1), 1), ElementsAre("3/101"));
}

TEST_F(EmissionsImport, OfWetAndDryOxygenOfOneAnalyzerTheFirstIsKept)
{
    auto hour = emissionsHour("2021-01-01", 0, 3);
    auto& values = hour["monitorHourlyValueData"];
    values[0]["moistureBasis"] = "D";
    values.push_back(values[0]);
    values[1]["moistureBasis"] = "W";
    values[1]["unadjustedHourlyValue"] = 2;
    const auto report = take("emissions.json", emissionsOf({hour}));
    EXPECT_THAT(hoursFrom(site, kNox, makeDate(2021, 1, 1), 1), ElementsAre("3/101"));
    EXPECT_THAT(report.steppedOver,
                ElementsAre("hourlyOperatingData.monitorHourlyValueData: 1 value of a component "
                            "that has one on another moisture basis."));
}

TEST_F(EmissionsImport, AnHourWithoutOperatingTimeHasNone)
{
    auto hour = emissionsHour("2021-01-01", 0, 3);
    hour["operatingTime"] = nullptr;
    take("emissions.json", emissionsOf({hour}));
    EXPECT_THAT(hoursFrom(site, kOperatingTime, makeDate(2021, 1, 1), 1), ElementsAre("-/0"));
    EXPECT_THAT(hoursFrom(site, kNox, makeDate(2021, 1, 1), 1), ElementsAre("3/101"));
}

TEST_F(EmissionsImport, AValueOfAnHourOffLineIsNotMeasuredByARunningUnit)
{
    auto hour = emissionsHour("2021-01-01", 0, 3);
    hour["operatingTime"] = 0.0;
    hour["hourLoad"] = 7;
    take("emissions.json", emissionsOf({hour}));
    EXPECT_THAT(hoursFrom(site, kNox, makeDate(2021, 1, 1), 1), ElementsAre("3/2"));
    EXPECT_FALSE(site.server()->Parameters()->Exists(kLoad));
}

// The clocks are not changed: the days on which daylight saving time begins and ends have 24 hours.
TEST_F(EmissionsImport, EveryDayHas24Hours)
{
    for (const Date start : {makeDate(2021, 3, 11), makeDate(2021, 11, 4), makeDate(2020, 2, 26)}) {
        SmallSite fresh;
        std::vector<json> hours;
        std::vector<std::string> expected;
        for (int index = 0; index < 7 * 24; ++index) {
            const Date day = dateFromSeconds(wholeSeconds(start) + index / 24 * 86'400);
            hours.push_back(emissionsHour(isoDate(day), index % 24, index));
            expected.push_back(std::to_string(index) + "/101");
        }
        importText(fresh, "emissions.json", emissionsOf(hours));
        EXPECT_EQ(hoursFrom(fresh.site, kNox, start, 7 * 24), expected);
    }
}

TEST_F(EmissionsImport, TheNextQuarterGoesOnWhereTheFirstEnded)
{
    take("emissions.json", emissionsOf({emissionsHour("2021-03-31", 23, 1)}));
    take("emissions.json", emissionsOf({emissionsHour("2021-04-01", 0, 2)}));
    EXPECT_THAT(hoursFrom(site, kNox, makeDate(2021, 3, 31, 23), 2), ElementsAre("1/101", "2/101"));
}

TEST_F(EmissionsImport, AFileWithNothingForASiteLeavesNoTrace)
{
    const std::string before = dump(site);
    const auto report =
        take("emissions.json", R"({"orisCode": 99, "quarter": 1, "summaryValueData": [{}]})");
    EXPECT_THAT(report.steppedOver, ElementsAre("summaryValueData: 1 entry."));
    EXPECT_EQ(dump(site), before);
}

TEST_F(EmissionsImport, AGzipFileAndAByteOrderMarkAreNoMatter)
{
    const auto file =
        held.directory.write("emissions.json.gz", gzip("\xEF\xBB\xBF" + smallEmissions()));
    importFile(site, file, {});
    EXPECT_THAT(hoursFrom(site, kNox, lateOnLeapDay(), 1), ElementsAre("12.5/101"));
}

TEST_F(EmissionsImport, ADailyCalibrationOfAComponentThatTheSiteDoesNotHaveIsSteppedOver)
{
    const auto report =
        take("emissions.json", patchedEmissions("/dailyTestSummaryData/0/componentId", R"("077")"));
    EXPECT_EQ(report.steppedOver.front(),
              "dailyTestSummaryData: 1 test of component 077 of U1, which the site does not have.");
    EXPECT_THAT(allRecords(site, kNox, "HIGH"), IsEmpty());
}

TEST_F(EmissionsImport, ADailyCalibrationOnANewScaleMakesTheScale)
{
    take("emissions.json", patchedEmissions("/dailyTestSummaryData/1/spanScaleCode", R"("L")"));
    const auto records = allRecords(site, kCo2, "LOW");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0]->Span(), Variant(Null{}));
}

} // namespace

} // namespace k7deval::sitedb::test
