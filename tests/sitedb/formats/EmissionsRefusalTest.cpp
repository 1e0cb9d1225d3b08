#include "sitedb/EmissionsCase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace k7deval::sitedb::test
{

namespace
{

using nlohmann::json;
using testing::EndsWith;
using testing::StartsWith;

struct EmissionsRefusalCase {
    const char* what;
    const char* operation;
    const char* path;
    const char* value;
    const char* sentence; ///< Behind the file's name.
};

constexpr EmissionsRefusalCase kEmissionsRefusals[] = {
    // The file.
    {"no facility", "remove", "/orisCode", "", "orisCode: the field is missing."},
    {"a facility in words", "replace", "/orisCode", R"("54")",
     R"(orisCode: "54" is no ORIS code from 1 to 999999.)"},
    {"hours that are no list", "replace", "/hourlyOperatingData", "{}",
     "hourlyOperatingData: an object is no list."},
    {"daily tests that are no list", "replace", "/dailyTestSummaryData", "7",
     "dailyTestSummaryData: 7 is no list."},
    // An hour.
    {"an hour that is nothing", "replace", "/hourlyOperatingData/0", "null",
     "hourlyOperatingData[0]: null is no object."},
    {"no location", "replace", "/hourlyOperatingData/0/unitId", "null",
     "hourlyOperatingData[0]: neither a unit nor a stack or pipe is named."},
    {"two locations", "replace", "/hourlyOperatingData/0/stackPipeId", R"("CS1")",
     "hourlyOperatingData[0]: both the unit U1 and the stack or pipe CS1 are named."},
    {"a location with too long a name", "replace", "/hourlyOperatingData/3/stackPipeId",
     R"("CS00001")",
     R"(hourlyOperatingData[3].stackPipeId: "CS00001" is no identifier of 1 to 6 characters.)"},
    {"a numbered location", "replace", "/hourlyOperatingData/0/unitId", "1",
     "hourlyOperatingData[0].unitId: 1 is no text."},
    {"no date", "remove", "/hourlyOperatingData/1/date", "",
     "hourlyOperatingData[1].date: the field is missing."},
    {"a day that does not exist", "replace", "/hourlyOperatingData/0/date", R"("2021-02-29")",
     R"(hourlyOperatingData[0].date: "2021-02-29" is no date.)"},
    {"a date that is nothing", "replace", "/hourlyOperatingData/0/date", "null",
     "hourlyOperatingData[0].date: null is no date."},
    {"hour 24", "replace", "/hourlyOperatingData/0/hour", "24",
     "hourlyOperatingData[0].hour: 24 is no hour from 0 to 23."},
    {"an hour that is nothing", "replace", "/hourlyOperatingData/0/hour", "null",
     "hourlyOperatingData[0].hour: null is no hour from 0 to 23."},
    {"too long an operating time", "replace", "/hourlyOperatingData/0/operatingTime", "1.01",
     "hourlyOperatingData[0].operatingTime: 1.01 lies outside 0 to 1."},
    {"a negative operating time", "replace", "/hourlyOperatingData/0/operatingTime", "-0.5",
     "hourlyOperatingData[0].operatingTime: -0.5 lies outside 0 to 1."},
    {"an operating time in words", "replace", "/hourlyOperatingData/0/operatingTime", R"("1")",
     R"(hourlyOperatingData[0].operatingTime: "1" is no number.)"},
    {"a negative load", "replace", "/hourlyOperatingData/0/hourLoad", "-1",
     "hourlyOperatingData[0].hourLoad: -1 lies outside 0 to 999999."},
    {"too high a load", "replace", "/hourlyOperatingData/0/hourLoad", "1000000",
     "hourlyOperatingData[0].hourLoad: 1000000 lies outside 0 to 999999."},
    {"a unit of load that is no text", "replace", "/hourlyOperatingData/0/loadUnitsOfMeasureCode",
     "5", "hourlyOperatingData[0].loadUnitsOfMeasureCode: 5 is no text."},
    {"an hour that stands there twice", "replace", "/hourlyOperatingData/1/hour", "22",
     "hourlyOperatingData[1]: hour 22 of 2020-02-29 stands in the file twice."},
    // A value.
    {"values that are no list", "replace", "/hourlyOperatingData/0/monitorHourlyValueData", "{}",
     "hourlyOperatingData[0].monitorHourlyValueData: an object is no list."},
    {"no parameter", "remove", "/hourlyOperatingData/0/monitorHourlyValueData/0/parameterCode", "",
     "hourlyOperatingData[0].monitorHourlyValueData[0].parameterCode: the field is missing."},
    {"a parameter that is nothing", "replace",
     "/hourlyOperatingData/0/monitorHourlyValueData/1/parameterCode", "null",
     "hourlyOperatingData[0].monitorHourlyValueData[1].parameterCode: null is no text."},
    {"no MODC", "remove", "/hourlyOperatingData/0/monitorHourlyValueData/0/modcCode", "",
     "hourlyOperatingData[0].monitorHourlyValueData[0].modcCode: the field is missing."},
    {"a MODC that is nothing", "replace",
     "/hourlyOperatingData/0/monitorHourlyValueData/0/modcCode", "null",
     "hourlyOperatingData[0].monitorHourlyValueData[0].modcCode: null is no MODC of a monitor's "
     "hour."},
    {"an unknown MODC", "replace", "/hourlyOperatingData/0/monitorHourlyValueData/0/modcCode",
     R"("99")",
     "hourlyOperatingData[0].monitorHourlyValueData[0].modcCode: \"99\" is no MODC of a monitor's "
     "hour."},
    {"an unknown MODC of mercury", "replace",
     "/hourlyOperatingData/1/matsMonitorHourlyValueData/0/modcCode", R"("36")",
     "hourlyOperatingData[1].matsMonitorHourlyValueData[0].modcCode: \"36\" is no MODC of a "
     "monitor's hour."},
    {"a value in words", "replace",
     "/hourlyOperatingData/0/monitorHourlyValueData/0/unadjustedHourlyValue", R"("low")",
     "hourlyOperatingData[0].monitorHourlyValueData[0].unadjustedHourlyValue: \"low\" is no "
     "number."},
    {"a value that is true", "replace",
     "/hourlyOperatingData/0/monitorHourlyValueData/0/unadjustedHourlyValue", "true",
     "hourlyOperatingData[0].monitorHourlyValueData[0].unadjustedHourlyValue: true is no number."},
    {"too high a value", "replace",
     "/hourlyOperatingData/0/monitorHourlyValueData/0/unadjustedHourlyValue", "1e11",
     "hourlyOperatingData[0].monitorHourlyValueData[0].unadjustedHourlyValue: 100000000000.0 lies "
     "outside -10000000000 to 10000000000."},
    {"too high a value of mercury", "replace",
     "/hourlyOperatingData/1/matsMonitorHourlyValueData/0/unadjustedHourlyValue", R"("1.0E11")",
     "hourlyOperatingData[1].matsMonitorHourlyValueData[0].unadjustedHourlyValue: \"1.0E11\" lies "
     "outside -10000000000 to 10000000000."},
    {"a component that is no text", "replace",
     "/hourlyOperatingData/0/monitorHourlyValueData/0/componentId", "10",
     "hourlyOperatingData[0].monitorHourlyValueData[0].componentId: 10 is no text."},
    {"a component with too long a name", "replace",
     "/hourlyOperatingData/0/monitorHourlyValueData/0/componentId", R"("0010")",
     "hourlyOperatingData[0].monitorHourlyValueData[0].componentId: \"0010\" is no identifier of 1 "
     "to 3 characters."},
    {"a component of another gas", "replace",
     "/hourlyOperatingData/0/monitorHourlyValueData/0/componentId", R"("020")",
     "hourlyOperatingData[0].monitorHourlyValueData[0].componentId: component 020 of U1 measures "
     "another gas."},
    {"a value that stands there twice", "add", "/hourlyOperatingData/0/monitorHourlyValueData/-",
     R"({"parameterCode": "NOXC", "modcCode": "01", "componentId": "010"})",
     "hourlyOperatingData[0].monitorHourlyValueData[2]: hour 22 of 2020-02-29 stands in the file "
     "twice."},
    // A daily calibration.
    {"injections that are no list", "replace", "/dailyTestSummaryData/0/dailyCalibrationData",
     R"("none")", R"(dailyTestSummaryData[0].dailyCalibrationData: "none" is no list.)"},
    {"an unknown scale", "replace", "/dailyTestSummaryData/0/spanScaleCode", R"("X")",
     R"(dailyTestSummaryData[0].spanScaleCode: "X" is not H, L or null.)"},
    {"a calibration of nobody", "replace", "/dailyTestSummaryData/0/unitId", "null",
     "dailyTestSummaryData[0]: neither a unit nor a stack or pipe is named."},
    {"half a time", "replace", "/dailyTestSummaryData/0/dailyCalibrationData/0/zeroInjectionHour",
     "null",
     "dailyTestSummaryData[0].dailyCalibrationData[0].zeroInjectionHour: null is no hour from 0 to "
     "23."},
    {"an unknown gas level", "replace",
     "/dailyTestSummaryData/0/dailyCalibrationData/0/upscaleGasCode", R"("TOP")",
     "dailyTestSummaryData[0].dailyCalibrationData[0].upscaleGasCode: \"TOP\" is not LOW, MID or "
     "HIGH."},
};

void PrintTo(const EmissionsRefusalCase& entry, std::ostream* stream)
{
    *stream << entry.what;
}

class EmissionsRefusal : public testing::TestWithParam<EmissionsRefusalCase>
{
};

TEST_P(EmissionsRefusal, NamesFilePathAndFieldAndLeavesTheSiteAsItWas)
{
    const auto& entry = GetParam();
    SmallSite held;
    const auto file = held.directory.write(
        "emissions.json", patchedEmissions(entry.operation, entry.path, entry.value));
    EXPECT_EQ(refusal(held, file, {}), std::string("emissions.json: ") + entry.sentence);
}

INSTANTIATE_TEST_SUITE_P(Emissions, EmissionsRefusal, testing::ValuesIn(kEmissionsRefusals));

/// The sentence with which a text is refused as emissions.json, without the file's name.
std::string refusalOf(EmptySite& held, const std::string& text, const ImportOptions& options = {})
{
    const std::string sentence =
        refusal(held, held.directory.write("emissions.json", text), options);
    EXPECT_THAT(sentence, StartsWith("emissions.json: "));
    return sentence.substr(std::string("emissions.json: ").size());
}

TEST(EmissionsRefusals, AnotherFacility)
{
    SmallSite held;
    importEmissions(held, emissionsOf({emissionsHour("2021-01-01", 0, 1)}));
    EXPECT_EQ(refusalOf(held, patchedEmissions("replace", "/orisCode", "55")),
              "orisCode: 55 is another facility than the site's, which is 54.");
}

TEST(EmissionsRefusals, ATopLevelFieldThatStandsThereTwice)
{
    SmallSite held;
    EXPECT_EQ(refusalOf(held, R"({"quarter": 1, "orisCode": 54, "orisCode": 55})"),
              "orisCode: the field stands there twice.");
}

TEST(EmissionsRefusals, AFileThatIsCutOffAnywhereBehindItsFirstNames)
{
    SmallSite held;
    const std::string text = smallEmissions();
    const std::size_t end = text.rfind('}');
    for (std::size_t length = text.find("\"submissionComment\""); length < end; length += 97) {
        const auto lines =
            1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(length), '\n');
        EXPECT_EQ(refusalOf(held, text.substr(0, length)),
                  "line " + std::to_string(lines) + ": the JSON is cut off.")
            << length << " bytes";
    }
}

TEST(EmissionsRefusals, SomethingElseThanJsonInIt)
{
    SmallSite held;
    std::string text = smallEmissions();
    text[text.find("\"hour\": 23")] = '\'';
    const auto at = text.find('\'');
    const auto line =
        1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
    EXPECT_EQ(refusalOf(held, text), "line " + std::to_string(line) + ": this is no JSON.");
    EXPECT_EQ(refusalOf(held, smallEmissions() + "x"),
              "line " + std::to_string(1 + std::count(text.begin(), text.end(), '\n')) +
                  ": this is no JSON.");
}

TEST(EmissionsRefusals, ANumberThatIsTooLongForJson)
{
    SmallSite held;
    std::string text = smallEmissions();
    text.replace(text.find("12.5"), 4, "1e999");
    EXPECT_THAT(refusalOf(held, text), EndsWith(": a number in the JSON is out of range."));
}

TEST(EmissionsRefusals, AGzipFileThatIsCutOffOrDamaged)
{
    SmallSite held;
    std::vector<json> hours;
    for (int hour = 0; hour < 24; ++hour)
        hours.push_back(emissionsHour("2021-01-01", hour, hour));
    const std::string packed = gzip(emissionsOf(hours));
    for (std::size_t length = packed.size() - 200; length < packed.size(); length += 7)
        EXPECT_EQ(refusal(held, held.directory.write("e.json.gz", packed.substr(0, length)), {}),
                  "e.json.gz: the gzip file is cut off.");
    std::string damaged = packed;
    damaged[damaged.size() - 6] = static_cast<char>(damaged[damaged.size() - 6] ^ 1);
    EXPECT_EQ(refusal(held, held.directory.write("e.json.gz", damaged), {}),
              "e.json.gz: the gzip file is damaged.");
}

TEST(EmissionsRefusals, AnEntryWithoutEnd)
{
    SmallSite held;
    std::string values = "0";
    for (int index = 0; index < 1'000'000; ++index)
        values += ",0";
    EXPECT_EQ(refusalOf(held, "{\"quarter\": 1, \"hourlyOperatingData\": [{}, [" + values + "]]}"),
              "hourlyOperatingData[0]: neither a unit nor a stack or pipe is named.");
    EXPECT_EQ(refusalOf(held, "{\"quarter\": 1, \"hourlyOperatingData\": [[" + values + "]]}"),
              "hourlyOperatingData[0]: the entry is too large.");
}

TEST(EmissionsRefusals, TheSameFileAgainUnderAnyName)
{
    SmallSite held;
    importEmissions(held, smallEmissions());
    EXPECT_EQ(refusal(held, held.directory.write("again.json", smallEmissions()), {}),
              "again.json: the site has imported this file before, as emissions.json.");
}

TEST(EmissionsRefusals, AnHourThatTheSiteHolds)
{
    SmallSite held;
    importEmissions(held, emissionsOf({emissionsHour("2021-01-01", 0, 1)}));
    EXPECT_EQ(refusalOf(held, emissionsOf({emissionsHour("2021-01-01", 1, 1),
                                           emissionsHour("2021-01-01", 0, 1)})),
              "hourlyOperatingData[1]: the site already holds the operating time of U1 for hour 0 "
              "of 2021-01-01.");
}

TEST(EmissionsRefusals, AnHourOfLoadThatTheSiteHolds)
{
    SmallSite held;
    importFile(held.site,
               held.directory.write("load.csv", "date,hour,gross_load_mw\n2020-02-29,23,5\n"),
               forUnit("U1"));
    EXPECT_EQ(refusalOf(held, smallEmissions()),
              "hourlyOperatingData[1]: the site already holds the operating time of U1 for hour 23 "
              "of 2020-02-29.");
}

TEST(EmissionsRefusals, AnHourOfAMonitorThatTheSiteHolds)
{
    SmallSite held;
    const auto table = [&](const char* row) {
        return held.directory.write(
            "hours.csv",
            std::string("date,hour,parameter,modc,unadjusted_hourly_value\n") + row + "\n");
    };
    importFile(held.site, table("2020-02-29,22,CO2C,01,5"), forUnit("U1"));
    EXPECT_EQ(refusalOf(held, smallEmissions()),
              "hourlyOperatingData[0].monitorHourlyValueData[1]: the site already holds the hours "
              "of U1 020 for hour 22 of 2020-02-29.");
    importFile(held.site, table("2020-02-29,23,NOXC,01,5"), forUnit("U1"));
    EXPECT_EQ(refusalOf(held, patchedEmissions("remove", "/hourlyOperatingData/0", "")),
              "hourlyOperatingData: the site already holds the hours of U1 010 for hour 23 of "
              "2020-02-29.");
}

TEST(EmissionsRefusals, ADailyCalibrationThatAQaFileBrought)
{
    SmallSite held;
    importFile(held.site, held.directory.write("qa.json", smallQa()), {});
    std::string text = smallEmissions();
    for (const char* part : {"\"zeroInjection", "\"upscaleInjection"}) {
        const std::string date = std::string(part) + "Date\": \"2020-02-29\"";
        text.replace(text.find(date), date.size(), std::string(part) + "Date\": \"2020-03-01\"");
    }
    text.replace(text.find("\"zeroInjectionHour\": 5, \"zeroInjectionMinute\": 2"), 48,
                 "\"zeroInjectionHour\": 6, \"zeroInjectionMinute\": 10");
    EXPECT_EQ(refusalOf(held, text),
              "dailyTestSummaryData[0].dailyCalibrationData[0], zero injection: the site already "
              "holds a zero injection of U1 010 HIGH at 2020-03-01 06:10.");
    const auto report = importEmissions(held, text, leavingOut());
    EXPECT_THAT(report.counts,
                testing::ElementsAre("4 hours", "6 monitor values", "1 calibration injection",
                                     "2 injections left out"));
    EXPECT_THAT(report.leftOut,
                testing::ElementsAre(
                    "emissions.json: dailyTestSummaryData[0].dailyCalibrationData[0], zero "
                    "injection: the site already holds a zero injection of U1 010 HIGH at "
                    "2020-03-01 06:10.",
                    "emissions.json: dailyTestSummaryData[0].dailyCalibrationData[0], upscale "
                    "injection: the site already holds an upscale injection of U1 010 HIGH at "
                    "2020-03-01 06:10."));
}

TEST(EmissionsRefusals, ADailyCalibrationThatStandsThereTwice)
{
    SmallSite held;
    auto document = json::parse(smallEmissions());
    auto& rows = document["dailyTestSummaryData"][0]["dailyCalibrationData"];
    rows.push_back(rows[0]);
    EXPECT_EQ(refusalOf(held, document.dump()),
              "dailyTestSummaryData[0].dailyCalibrationData[1], zero injection: a zero injection "
              "of U1 010 HIGH at 2020-02-29 05:02 stands in the file twice.");
}

TEST(EmissionsRefusals, AnUnreadableInjectionCanBeLeftOut)
{
    SmallSite held;
    const auto report = importEmissions(
        held,
        patchedEmissions(
            "replace", "/dailyTestSummaryData/0/dailyCalibrationData/0/zeroMeasuredValue", "true"),
        leavingOut());
    EXPECT_THAT(report.leftOut,
                testing::ElementsAre("emissions.json: dailyTestSummaryData[0]."
                                     "dailyCalibrationData[0].zeroMeasuredValue: true is no "
                                     "number."));
    EXPECT_EQ(report.counts.back(), "1 injection left out");
}

TEST(EmissionsRefusals, OneUnitTooMany)
{
    SmallSite held;
    std::vector<json> hours;
    for (int unit = 1; unit <= 20; ++unit) {
        hours.push_back(emissionsHour("2021-01-01", 0, 1));
        hours.back()["unitId"] = std::to_string(unit);
    }
    EXPECT_EQ(refusalOf(held, emissionsOf(hours)),
              "hourlyOperatingData[18].unitId: 19 would be one unit too many, since a site holds "
              "at most 19.");
}

TEST(EmissionsCancel, TakesNothingAndSaysSo)
{
    SmallSite held;
    ImportOptions options;
    options.progress = [](const ImportProgress&) { return false; };
    const auto file = held.directory.write("emissions.json", smallEmissions());
    EXPECT_EQ(refusal(held, file, options), "emissions.json: the import was cancelled.");
    EXPECT_THROW(importFile(held.site, file, options), ImportCancelled);
}

TEST(EmissionsProgress, TellsBytesAndHoursUpToTheEnd)
{
    SmallSite held;
    std::vector<json> hours;
    for (int index = 0; index < 480; ++index) {
        const std::string day = std::to_string(index / 24 + 10);
        hours.push_back(emissionsHour("2021-01-" + day, index % 24, index));
    }
    const std::string text = emissionsOf(hours);
    std::vector<ImportProgress> told;
    ImportOptions options;
    options.progress = [&](const ImportProgress& progress) {
        told.push_back(progress);
        return true;
    };
    importEmissions(held, text, options);
    ASSERT_GE(told.size(), 2U);
    for (std::size_t index = 1; index < told.size(); ++index) {
        EXPECT_GE(told[index].bytesRead, told[index - 1].bytesRead);
        EXPECT_GE(told[index].hours, told[index - 1].hours);
    }
    EXPECT_EQ(told.back().bytesRead, static_cast<std::int64_t>(text.size()));
    EXPECT_EQ(told.back().bytesTotal, static_cast<std::int64_t>(text.size()));
    EXPECT_EQ(told.back().hours, 480U);
}

} // namespace

} // namespace k7deval::sitedb::test
