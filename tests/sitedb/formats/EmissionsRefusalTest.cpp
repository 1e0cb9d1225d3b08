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

const JsonParts kEmissionsParts{
    {"hour", "/hourlyOperatingData/0"},
    {"value", "/hourlyOperatingData/0/monitorHourlyValueData/0"},
    {"test", "/dailyTestSummaryData/0"},
    {"row", "/dailyTestSummaryData/0/dailyCalibrationData/0"},
};

constexpr JsonFault kEmissionsRefusals[] = {
    // The file.
    {"no facility", "/orisCode", "", "the field is missing."},
    {"a facility in words", "/orisCode", R"("54")", R"("54" is no ORIS code from 1 to 999999.)"},
    {"hours that are no list", "/hourlyOperatingData", "{}", "an object is no list."},
    {"daily tests that are no list", "/dailyTestSummaryData", "7", "7 is no list."},
    // An hour.
    {"an hour that is nothing", "hour", "null", "null is no object."},
    {"no location", "hour/unitId", "null", "neither a unit nor a stack or pipe is named.", "hour"},
    {"two locations", "hour/stackPipeId", R"("CS1")",
     "both the unit U1 and the stack or pipe CS1 are named.", "hour"},
    {"a location with too long a name", "/hourlyOperatingData/3/stackPipeId", R"("CS00001")",
     R"("CS00001" is no identifier of 1 to 6 characters.)"},
    {"a numbered location", "hour/unitId", "1", "1 is no text."},
    {"no date", "/hourlyOperatingData/1/date", "", "the field is missing."},
    {"a day that does not exist", "hour/date", R"("2021-02-29")", R"("2021-02-29" is no date.)"},
    {"a date that is nothing", "hour/date", "null", "null is no date."},
    {"hour 24", "hour/hour", "24", "24 is no hour from 0 to 23."},
    {"an hour that is nothing", "hour/hour", "null", "null is no hour from 0 to 23."},
    {"too long an operating time", "hour/operatingTime", "1.01", "1.01 lies outside 0 to 1."},
    {"a negative operating time", "hour/operatingTime", "-0.5", "-0.5 lies outside 0 to 1."},
    {"an operating time in words", "hour/operatingTime", R"("1")", R"("1" is no number.)"},
    {"a negative load", "hour/hourLoad", "-1", "-1 lies outside 0 to 999999."},
    {"too high a load", "hour/hourLoad", "1000000", "1000000 lies outside 0 to 999999."},
    {"a unit of load that is no text", "hour/loadUnitsOfMeasureCode", "5", "5 is no text."},
    {"an hour that stands there twice", "/hourlyOperatingData/1/hour", "22",
     "hour 22 of 2020-02-29 stands in the file twice.", "/hourlyOperatingData/1"},
    // A value.
    {"values that are no list", "hour/monitorHourlyValueData", "{}", "an object is no list."},
    {"no parameter", "value/parameterCode", "", "the field is missing."},
    {"a parameter that is nothing", "hour/monitorHourlyValueData/1/parameterCode", "null",
     "null is no text."},
    {"no MODC", "value/modcCode", "", "the field is missing."},
    {"a MODC that is nothing", "value/modcCode", "null", "null is no MODC of a monitor's hour."},
    {"an unknown MODC", "value/modcCode", R"("99")", R"("99" is no MODC of a monitor's hour.)"},
    {"an unknown MODC of mercury", "/hourlyOperatingData/1/matsMonitorHourlyValueData/0/modcCode",
     R"("36")", R"("36" is no MODC of a monitor's hour.)"},
    {"a value in words", "value/unadjustedHourlyValue", R"("low")", R"("low" is no number.)"},
    {"a value that is true", "value/unadjustedHourlyValue", "true", "true is no number."},
    {"too high a value", "value/unadjustedHourlyValue", "1e11",
     "100000000000.0 lies outside -10000000000 to 10000000000."},
    {"too high a value of mercury",
     "/hourlyOperatingData/1/matsMonitorHourlyValueData/0/unadjustedHourlyValue", R"("1.0E11")",
     R"("1.0E11" lies outside -10000000000 to 10000000000.)"},
    {"a component that is no text", "value/componentId", "10", "10 is no text."},
    {"a component with too long a name", "value/componentId", R"("0010")",
     R"("0010" is no identifier of 1 to 3 characters.)"},
    {"a component of another gas", "value/componentId", R"("020")",
     "component 020 of U1 measures another gas."},
    {"a value that stands there twice", "hour/monitorHourlyValueData/-",
     R"({"parameterCode": "NOXC", "modcCode": "01", "componentId": "010"})",
     "hour 22 of 2020-02-29 stands in the file twice.", "hour/monitorHourlyValueData/2"},
    // A daily calibration.
    {"injections that are no list", "test/dailyCalibrationData", R"("none")",
     R"("none" is no list.)"},
    {"an unknown scale", "test/spanScaleCode", R"("X")", R"("X" is not H, L or null.)"},
    {"a calibration of nobody", "test/unitId", "null",
     "neither a unit nor a stack or pipe is named.", "test"},
    {"half a time", "row/zeroInjectionHour", "null", "null is no hour from 0 to 23."},
    {"an unknown gas level", "row/upscaleGasCode", R"("TOP")", R"("TOP" is not LOW, MID or HIGH.)"},
};

using EmissionsRefusal = ImportCases<SmallSite, JsonFault>;

TEST_P(EmissionsRefusal, NamesFilePathAndFieldAndLeavesTheSiteAsItWas)
{
    const std::string text =
        patchedEmissions(pathOf(GetParam(), kEmissionsParts), GetParam().value);
    EXPECT_EQ(refused("emissions.json", text),
              "emissions.json: " + sentenceOf(GetParam(), kEmissionsParts));
}

INSTANTIATE_TEST_SUITE_P(Emissions, EmissionsRefusal, testing::ValuesIn(kEmissionsRefusals));

struct EmissionsRefusals : ImportTest<SmallSite> {
    /// The sentence with which a text is refused as emissions.json, without the file's name.
    std::string refusalOf(const std::string& text)
    {
        const std::string sentence = refused("emissions.json", text);
        EXPECT_THAT(sentence, StartsWith("emissions.json: "));
        return sentence.substr(std::string("emissions.json: ").size());
    }
};
using EmissionsCancel = ImportTest<SmallSite>;
using EmissionsProgress = ImportTest<SmallSite>;

TEST_F(EmissionsRefusals, AnotherFacility)
{
    take("emissions.json", emissionsOf({emissionsHour("2021-01-01", 0, 1)}));
    EXPECT_EQ(refusalOf(patchedEmissions("/orisCode", "55")),
              "orisCode: 55 is another facility than the site's, which is 54.");
}

TEST_F(EmissionsRefusals, ATopLevelFieldThatStandsThereTwice)
{
    EXPECT_EQ(refusalOf(R"({"quarter": 1, "orisCode": 54, "orisCode": 55})"),
              "orisCode: the field stands there twice.");
}

TEST_F(EmissionsRefusals, AFileThatIsCutOffAnywhereBehindItsFirstNames)
{
    const std::string text = smallEmissions();
    const std::size_t end = text.rfind('}');
    for (std::size_t length = text.find("\"submissionComment\""); length < end; length += 97) {
        const auto lines =
            1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(length), '\n');
        EXPECT_EQ(refusalOf(text.substr(0, length)),
                  "line " + std::to_string(lines) + ": the JSON is cut off.")
            << length << " bytes";
    }
}

TEST_F(EmissionsRefusals, SomethingElseThanJsonInIt)
{
    std::string text = smallEmissions();
    text[text.find("\"hour\": 23")] = '\'';
    const auto at = text.find('\'');
    const auto line =
        1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
    EXPECT_EQ(refusalOf(text), "line " + std::to_string(line) + ": this is no JSON.");
    EXPECT_EQ(refusalOf(smallEmissions() + "x"),
              "line " + std::to_string(1 + std::count(text.begin(), text.end(), '\n')) +
                  ": this is no JSON.");
}

TEST_F(EmissionsRefusals, ANumberThatIsTooLongForJson)
{
    std::string text = smallEmissions();
    text.replace(text.find("12.5"), 4, "1e999");
    EXPECT_THAT(refusalOf(text), EndsWith(": a number in the JSON is out of range."));
}

TEST_F(EmissionsRefusals, AGzipFileThatIsCutOffOrDamaged)
{
    std::vector<json> hours;
    for (int hour = 0; hour < 24; ++hour)
        hours.push_back(emissionsHour("2021-01-01", hour, hour));
    const std::string packed = gzip(emissionsOf(hours));
    for (std::size_t length = packed.size() - 200; length < packed.size(); length += 7)
        EXPECT_EQ(refused("e.json.gz", packed.substr(0, length)),
                  "e.json.gz: the gzip file is cut off.");
    std::string damaged = packed;
    damaged[damaged.size() - 6] = static_cast<char>(damaged[damaged.size() - 6] ^ 1);
    EXPECT_EQ(refused("e.json.gz", damaged), "e.json.gz: the gzip file is damaged.");
}

TEST_F(EmissionsRefusals, AnEntryWithoutEnd)
{
    std::string values = "0";
    for (int index = 0; index < 1'000'000; ++index)
        values += ",0";
    EXPECT_EQ(refusalOf("{\"quarter\": 1, \"hourlyOperatingData\": [{}, [" + values + "]]}"),
              "hourlyOperatingData[0]: neither a unit nor a stack or pipe is named.");
    EXPECT_EQ(refusalOf("{\"quarter\": 1, \"hourlyOperatingData\": [[" + values + "]]}"),
              "hourlyOperatingData[0]: the entry is too large.");
}

TEST_F(EmissionsRefusals, TheSameFileAgainUnderAnyName)
{
    take("emissions.json", smallEmissions());
    EXPECT_EQ(refused("again.json", smallEmissions()),
              "again.json: the site has imported this file before, as emissions.json.");
}

TEST_F(EmissionsRefusals, AnHourThatTheSiteHolds)
{
    take("emissions.json", emissionsOf({emissionsHour("2021-01-01", 0, 1)}));
    EXPECT_EQ(refusalOf(emissionsOf(
                  {emissionsHour("2021-01-01", 1, 1), emissionsHour("2021-01-01", 0, 1)})),
              "hourlyOperatingData[1]: the site already holds the operating time of U1 for hour 0 "
              "of 2021-01-01.");
}

TEST_F(EmissionsRefusals, AnHourOfLoadThatTheSiteHolds)
{
    take("load.csv", "date,hour,gross_load_mw\n2020-02-29,23,5\n", forUnit("U1"));
    EXPECT_EQ(refusalOf(smallEmissions()),
              "hourlyOperatingData[1]: the site already holds the operating time of U1 for hour 23 "
              "of 2020-02-29.");
}

TEST_F(EmissionsRefusals, AnHourOfAMonitorThatTheSiteHolds)
{
    const auto table = [&](const char* row) {
        return held.directory.write(
            "hours.csv",
            std::string("date,hour,parameter,modc,unadjusted_hourly_value\n") + row + "\n");
    };
    importFile(site, table("2020-02-29,22,CO2C,01,5"), forUnit("U1"));
    EXPECT_EQ(refusalOf(smallEmissions()),
              "hourlyOperatingData[0].monitorHourlyValueData[1]: the site already holds the hours "
              "of U1 020 for hour 22 of 2020-02-29.");
    importFile(site, table("2020-02-29,23,NOXC,01,5"), forUnit("U1"));
    EXPECT_EQ(refusalOf(patchedEmissions("/hourlyOperatingData/0", "")),
              "hourlyOperatingData: the site already holds the hours of U1 010 for hour 23 of "
              "2020-02-29.");
}

TEST_F(EmissionsRefusals, ADailyCalibrationThatAQaFileBrought)
{
    take("qa.json", smallQa());
    std::string text = smallEmissions();
    for (const char* part : {"\"zeroInjection", "\"upscaleInjection"}) {
        const std::string date = std::string(part) + "Date\": \"2020-02-29\"";
        text.replace(text.find(date), date.size(), std::string(part) + "Date\": \"2020-03-01\"");
    }
    text.replace(text.find("\"zeroInjectionHour\": 5, \"zeroInjectionMinute\": 2"), 48,
                 "\"zeroInjectionHour\": 6, \"zeroInjectionMinute\": 10");
    EXPECT_EQ(refusalOf(text),
              "dailyTestSummaryData[0].dailyCalibrationData[0], zero injection: the site already "
              "holds a zero injection of U1 010 HIGH at 2020-03-01 06:10.");
    const auto report = take("emissions.json", text, leavingOut());
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

TEST_F(EmissionsRefusals, ADailyCalibrationThatStandsThereTwice)
{
    auto document = json::parse(smallEmissions());
    auto& rows = document["dailyTestSummaryData"][0]["dailyCalibrationData"];
    rows.push_back(rows[0]);
    EXPECT_EQ(refusalOf(document.dump()),
              "dailyTestSummaryData[0].dailyCalibrationData[1], zero injection: a zero injection "
              "of U1 010 HIGH at 2020-02-29 05:02 stands in the file twice.");
}

TEST_F(EmissionsRefusals, AnUnreadableInjectionCanBeLeftOut)
{
    const auto report =
        take("emissions.json",
             patchedEmissions("/dailyTestSummaryData/0/dailyCalibrationData/0/zeroMeasuredValue",
                              "true"),
             leavingOut());
    EXPECT_THAT(report.leftOut,
                testing::ElementsAre("emissions.json: dailyTestSummaryData[0]."
                                     "dailyCalibrationData[0].zeroMeasuredValue: true is no "
                                     "number."));
    EXPECT_EQ(report.counts.back(), "1 injection left out");
}

TEST_F(EmissionsRefusals, OneUnitTooMany)
{
    std::vector<json> hours;
    for (int unit = 1; unit <= 20; ++unit) {
        hours.push_back(emissionsHour("2021-01-01", 0, 1));
        hours.back()["unitId"] = std::to_string(unit);
    }
    EXPECT_EQ(refusalOf(emissionsOf(hours)),
              "hourlyOperatingData[18].unitId: 19 would be one unit too many, since a site holds "
              "at most 19.");
}

TEST_F(EmissionsCancel, TakesNothingAndSaysSo)
{
    ImportOptions options;
    options.progress = [](const ImportProgress&) { return false; };
    const auto file = held.directory.write("emissions.json", smallEmissions());
    EXPECT_EQ(refusal(held, file, options), "emissions.json: the import was cancelled.");
    EXPECT_THROW(importFile(site, file, options), ImportCancelled);
}

TEST_F(EmissionsProgress, TellsBytesAndHoursUpToTheEnd)
{
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
    take("emissions.json", text, options);
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
