#include "sitedb/SampleSite.h"
#include "sitedb/SiteQueries.h"

#include "foundation/DataInterface.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>

namespace k7deval::sitedb::test
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// What the numbering rule gives for the sample: units in the order of the span table, components of
// a gas in the order in which their unit names them, variant digit 4 for the high scale and 2 for
// the low one.
constexpr PID kGT1 = 100'100'000;
constexpr PID kGT3 = 300'100'000;
constexpr PID kGT4 = 400'100'000;
constexpr PID kGT2Nox213 = 211'007'503;
constexpr PID kGT3Nox310 = 311'007'501;
constexpr PID kGT3Nox310High = 311'047'501;
constexpr PID kGT3Nox310Low = 311'027'501;
constexpr PID kGT3O2320 = 322'007'501;
constexpr PID kGT3O2105 = 322'007'502;
constexpr PID kGT3Load = 360'207'501;
constexpr PID kGT3OperatingTime = 360'107'501;

using Fields = std::vector<std::string>;

std::vector<Fields> csvRows(const std::string& text)
{
    std::vector<Fields> rows;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        std::istringstream fields(line);
        Fields row;
        for (std::string field; std::getline(fields, field, ',');)
            row.push_back(field);
        rows.push_back(row);
    }
    rows.erase(rows.begin());
    return rows;
}

Date dateOf(const std::string& day, int hour, int minute)
{
    return makeDate(std::stoi(day.substr(0, 4)), std::stoi(day.substr(5, 2)),
                    std::stoi(day.substr(8, 2)), hour, minute);
}

nlohmann::json sampleTests()
{
    return nlohmann::json::parse(readFile(sampleFile("ecmps_qa_50292.json"))).at("testSummaryData");
}

std::vector<std::string> namesOf(const DIParameterList& list)
{
    std::vector<std::string> names;
    names.reserve(list.size());
    for (const auto& entry : list)
        names.push_back(entry->Name(0));
    return names;
}

std::shared_ptr<DIServer> server()
{
    return sharedSample().server();
}

TEST(SampleServer, UnitsComeInTheOrderOfTheirFirstAppearance)
{
    const auto units = server()->Units();
    EXPECT_THAT(namesOf(units), ElementsAre("GT1", "GT2", "GT3", "GT4"));
    EXPECT_THAT(pidsOf(units), ElementsAre(kGT1, 200'100'000, kGT3, kGT4));
    for (const auto& unit : units)
        EXPECT_EQ(unit->ParamType(), kUnitType);
}

TEST(SampleServer, AUnitCarriesItsAttributes)
{
    const auto unit = server()->Parameters()->Item(kGT3, -1);
    EXPECT_EQ(unit->GetAttribute(attribute::kOrisCode), Variant(50292));
    EXPECT_EQ(unit->GetAttribute(attribute::kSeveralStacks), Variant(false));
    EXPECT_EQ(unit->GetAttribute(attribute::kUnitIdentifier), Variant(std::string("GT3   ")));
    EXPECT_EQ(unit->GetAttribute(attribute::kStackIdentifiers), Variant(std::string()));
    EXPECT_EQ(unit->GetAttribute(attribute::kRecordTable), Variant(Null{}));
}

TEST(SampleServer, OnlyUnitsWithHourlyLoadLinkToAnOperatingTime)
{
    EXPECT_EQ(parameter(sharedSample(), kGT3)->GetLinkedPID(attribute::kOperatingTimePID),
              Variant(kGT3OperatingTime));
    EXPECT_EQ(parameter(sharedSample(), kGT1)->GetLinkedPID(attribute::kOperatingTimePID),
              Variant(0));
    EXPECT_EQ(parameter(sharedSample(), kGT3Nox310)->GetLinkedPID(attribute::kLinkedObjectPID),
              Variant(0));
}

TEST(SampleServer, ExistsKnowsAllAndOnlyTheParametersOfTheSite)
{
    const auto parameters = server()->Parameters();
    for (const PID pid : {kGT1, kGT3Nox310, kGT3Nox310Low, kGT3Load, kGT3OperatingTime})
        EXPECT_TRUE(parameters->Exists(pid)) << pid;
    for (const PID pid : {0, -1, kGT3Nox310 + 1, 500'100'000, 160'207'501})
        EXPECT_FALSE(parameters->Exists(pid)) << pid;
}

TEST(SampleServer, ItemOfAnUnknownPIDIsAnErrorThatNamesIt)
{
    const auto parameters = server()->Parameters();
    for (const auto& [pid, name] : std::map<PID, std::string>{
             {0, "0"}, {311'007'502, "311007502 (3-110-0-75-02)"}, {-7, "-7"}}) {
        try {
            static_cast<void>(parameters->Item(pid, -1));
            ADD_FAILURE() << pid;
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), errors::kInvalidCall);
            EXPECT_EQ(error.description(), "The site has no parameter " + name + ".");
        }
    }
}

TEST(SampleServer, ACalibrationParameterCarriesTheConfigurationOfItsAnalyzerAndScale)
{
    const auto high = server()->Parameters()->Item(kGT3Nox310High, -1);
    EXPECT_EQ(high->ParamType(), kCalibrationType);
    EXPECT_EQ(high->Name(0), "NOX 310/H Calibration");
    EXPECT_EQ(high->UnitsText(), "ppm");
    EXPECT_EQ(high->Interval(), (DIInterval{0, 0}));
    EXPECT_EQ(high->GetAttribute(attribute::kDecimals), Variant(1));
    EXPECT_EQ(high->GetAttribute(attribute::kMeasuredPID), Variant(kGT3Nox310));
    EXPECT_EQ(high->GetAttribute(attribute::kLeftOutOfLists), Variant(false));
    EXPECT_EQ(high->GetAttribute(attribute::kScale), Variant(std::string("HIGH")));
    EXPECT_EQ(high->GetAttribute(attribute::kRangeUse), Variant(0));
    EXPECT_EQ(high->GetAttribute(attribute::kComponentId), Variant(std::string("310")));
    EXPECT_EQ(high->GetAttribute(attribute::kRecordTable), Variant(std::string("K7CAL")));
    EXPECT_EQ(high->GetAttribute(attribute::kTestNumberBase), Variant(std::string("NOX")));
    const auto low = server()->Parameters()->Item(kGT3Nox310Low, -1);
    EXPECT_EQ(low->GetAttribute(attribute::kScale), Variant(std::string("LOW")));
    EXPECT_EQ(low->GetAttribute(attribute::kMeasuredPID), Variant(kGT3Nox310));
    EXPECT_EQ(low->GetAttribute(attribute::kDecimals), Variant(2));
}

TEST(SampleServer, AMeasuredParameterIsHourlyAndBearsGasAndComponent)
{
    const auto measured = server()->Parameters()->Item(kGT3Nox310, -1);
    EXPECT_EQ(measured->PID(), kGT3Nox310);
    EXPECT_EQ(measured->Name(0), "NOX 310");
    EXPECT_EQ(measured->UnitsText(), "ppm");
    EXPECT_EQ(measured->Interval(), DIInterval{});
    EXPECT_EQ(parameter(sharedSample(), kGT3O2320)->UnitsText(), "%");
    EXPECT_EQ(parameter(sharedSample(), kGT3O2105)->Name(0), "O2 105");
    EXPECT_EQ(parameter(sharedSample(), kGT2Nox213)->Name(0), "NOX 213");
}

// Every row of the span table has a calibration parameter, found by unit, component and scale.
TEST(SampleServer, EveryRowOfTheSpanTableIsACalibrationWithOneDefinition)
{
    const auto rows = csvRows(readFile(sampleFile("spans.csv")));
    const auto calibrations = server()->ParametersOfTypes({kCalibrationType});
    ASSERT_EQ(calibrations.size(), rows.size());
    for (const auto& row : rows) {
        const auto found = std::ranges::find_if(calibrations, [&](const auto& calibration) {
            return server()->StatusCodes()->UnitName(calibration->PID()) == row[0] &&
                   calibration->GetAttribute(attribute::kComponentId) == Variant(row[1]) &&
                   calibration->GetAttribute(attribute::kScale) ==
                       Variant(std::string(row[3] == "H" ? "HIGH" : "LOW"));
        });
        ASSERT_NE(found, calibrations.end()) << row[0] << row[1];
        EXPECT_EQ((*found)->GetAttribute(attribute::kTestNumberBase), Variant(row[2]));
        const auto definition = recordsOf(sharedSample(), (*found)->PID(), "K7CAL");
        ASSERT_EQ(definition.size(), 1U);
        EXPECT_EQ(definition[0]->Span(), Variant(std::stod(row[4])));
        EXPECT_EQ(definition[0]->RunTime(), Date{});
        EXPECT_EQ(definition[0]->SourceTagID(), (*found)->GetAttribute(attribute::kMeasuredPID));
    }
}

TEST(SampleServer, ParametersOfUnitAreThoseOfOneUnitAndOfTheTypes)
{
    EXPECT_THAT(namesOf(server()->ParametersOfUnit(3, {kCalibrationType})),
                ElementsAre("NOX 310/L Calibration", "NOX 310/H Calibration",
                            "O2 320/H Calibration", "O2 105/H Calibration"));
    EXPECT_THAT(namesOf(server()->ParametersOfUnit(3, {kUnitType})), ElementsAre("GT3"));
    EXPECT_THAT(server()->ParametersOfUnit(5, {kCalibrationType}), IsEmpty());
    EXPECT_THAT(server()->ParametersOfUnit(3, {}), IsEmpty());
}

const ParamTypes kLoadToolTypes{8, 11, 28, 35, 38, 39, 40, 41, 49, 52};

TEST(SampleServer, TheLoadToolFindsTheHourlyParametersOfAUnit)
{
    EXPECT_THAT(namesOf(server()->ParametersOfUnitTypes(kLoadToolTypes, 3, 3, "h")),
                ElementsAre("NOX 310", "O2 320", "O2 105", "Operating Time", "Load"));
    EXPECT_THAT(namesOf(server()->ParametersOfUnitTypes(kLoadToolTypes, 1, 3, "h")),
                ElementsAre("NOX 012", "NOX 013", "CO2 031", "CO2 032"));
    EXPECT_THAT(server()->ParametersOfUnitTypes(kLoadToolTypes, 3, 3, "d"), IsEmpty());
    EXPECT_EQ(PIDPart(kGT3Load, pidpart::kParameterCode), 602);
    EXPECT_EQ(PIDPart(kGT3Load, pidpart::kProgramCode), kProgram40CFR75);
}

TEST(SampleServer, TheRangeToolFindsAnHourlyParameterForEveryCalibration)
{
    const auto hourly = server()->ParametersOfInterval("h");
    EXPECT_EQ(hourly.size(), 16U + 4U);
    for (const auto& calibration : server()->ParametersOfTypes({kCalibrationType})) {
        const PID pid = calibration->PID();
        EXPECT_TRUE(std::ranges::any_of(hourly, [&](const auto& candidate) {
            return PIDPart(candidate->PID(), 1) == PIDPart(pid, 1) &&
                   PIDPart(candidate->PID(), 2) == PIDPart(pid, 2) &&
                   PIDPart(candidate->PID(), 4) == PIDPart(pid, 4) &&
                   candidate->Interval() == DIInterval{1, 1};
        })) << pid;
    }
    EXPECT_THAT(server()->ParametersOfInterval(""), IsEmpty());
}

TEST(SampleServer, UnitsStandTogetherInListsOfAllUnits)
{
    const auto pids = pidsOf(server()->ParametersOfTypes({kCalibrationType}));
    EXPECT_TRUE(std::ranges::is_sorted(pids));
}

TEST(SampleServer, AUnitWithoutACapacityHasNoConstants)
{
    EXPECT_THAT(server()->ConstantsOfUnitTypes({4, 34}, 3, {0, 3}), IsEmpty());
}

// Every injection of the QA file, taken from the file itself, is a record with the same content.
TEST(SampleServer, EveryInjectionOfTheQaFileIsARecord)
{
    std::map<std::pair<PID, std::string>, std::size_t> expected;
    for (const auto& test : sampleTests()) {
        const std::string unit = test["unitId"];
        const std::string component = test["componentId"];
        const std::string scale = test["spanScaleCode"] == "H" ? "HIGH" : "LOW";
        PID measured = 0;
        for (const auto& candidate : server()->ParametersOfInterval("h")) {
            if (server()->StatusCodes()->UnitName(candidate->PID()) == unit &&
                candidate->Name(0).ends_with(" " + component))
                measured = candidate->PID();
        }
        ASSERT_NE(measured, 0);
        for (const auto& row : test["calibrationInjectionData"]) {
            const bool readable = row["zeroInjectionHour"] != 24;
            const std::string upscaleDay = row["upscaleInjectionDate"];
            const Date upscale =
                dateOf(upscaleDay, row["upscaleInjectionHour"], row["upscaleInjectionMinute"]);
            const Date run = readable ? dateOf(row["zeroInjectionDate"], row["zeroInjectionHour"],
                                               row["zeroInjectionMinute"])
                                      : upscale;
            const auto records = recordsBetween(sharedSample(), measured, scale, run, run);
            ASSERT_EQ(records.size(), readable ? 2U : 1U) << unit << component << minuteKey(run);
            expected[{measured, scale}] += records.size();
            const auto asVariant = [](const nlohmann::json& value) {
                return value.is_null() ? Variant(Null{}) : Variant(value.get<double>());
            };
            auto& upscaleRecord = *records.back();
            EXPECT_EQ(upscaleRecord.MeasuredValue(), asVariant(row["upscaleMeasuredValue"]));
            EXPECT_EQ(upscaleRecord.ReferenceValue(), asVariant(row["upscaleReferenceValue"]));
            EXPECT_EQ(upscaleRecord.InjectionEnd(), upscale);
            EXPECT_EQ(upscaleRecord.GasLevelCode(), row["upscaleGasLevelCode"] == "MID" ? 1 : 2);
            EXPECT_EQ(upscaleRecord.GasLevelText(),
                      row["upscaleGasLevelCode"].is_null()
                          ? std::string()
                          : row["upscaleGasLevelCode"].get<std::string>());
            EXPECT_EQ(upscaleRecord.RunTime(), run);
            EXPECT_NE(upscaleRecord.CalStatus(), status::kOfflineCalibration);
            if (!readable)
                continue;
            auto& zeroRecord = *records.front();
            EXPECT_EQ(zeroRecord.GasLevelCode(), 0);
            EXPECT_EQ(zeroRecord.MeasuredValue(), asVariant(row["zeroMeasuredValue"]));
            EXPECT_EQ(zeroRecord.ReferenceValue(), asVariant(row["zeroReferenceValue"]));
            EXPECT_EQ(zeroRecord.InjectionEnd(), run);
            EXPECT_EQ(zeroRecord.RunTime(), run);
        }
    }
    for (const auto& [analyzer, count] : expected)
        EXPECT_EQ(allRecords(sharedSample(), analyzer.first, analyzer.second).size(), count)
            << analyzer.first << analyzer.second;
}

// The load file, read here on its own, against what the tools get a quarter at a time.
TEST(SampleServer, HourlyLoadAndOperatingTimeAreThoseOfTheFile)
{
    std::map<std::string, double> loads;
    for (const auto& row : csvRows(gunzip(sampleFile("hourly_load_GT3.csv.gz"))))
        loads[row[0] + "/" + row[1]] = std::stod(row[2]);
    ASSERT_EQ(loads.size(), 52'608U);
    const auto codes = server()->StatusCodes();
    std::size_t hours = 0;
    for (int quarter = 0; quarter < 24; ++quarter) {
        const Date start = makeDate(2016, 1 + 3 * quarter, 1);
        const auto count = static_cast<std::int32_t>(
            hourBoundariesBetween(start, makeDate(2016, 4 + 3 * quarter, 1)));
        DIDataSet load;
        load.Init(start, count, "h", 1, 0);
        DIDataSet operating = load;
        parameter(sharedSample(), kGT3Load)->ReadData(load);
        parameter(sharedSample(), kGT3OperatingTime)->ReadData(operating);
        for (std::int32_t index = 1; index <= count; ++index, ++hours) {
            const Date hour =
                dateFromSeconds(wholeSeconds(start) + std::int64_t{3600} * (index - 1));
            const double expected =
                loads.at(isoDate(hour) + "/" + std::to_string(dateParts(hour).hour));
            ASSERT_EQ(load.ItemByIndex(index).Value(), Variant(expected)) << minuteKey(hour);
            ASSERT_EQ(operating.ItemByTime(hour).Value(), Variant(expected > 0 ? 1.0 : 0.0));
            ASSERT_EQ(codes->IsUnitOffline(load.ItemByIndex(index).Status()), expected == 0);
            ASSERT_EQ(codes->IsValid(load.ItemByIndex(index).Status()), expected > 0);
        }
    }
    EXPECT_EQ(hours, loads.size());
}

TEST(SampleServer, TheTestDaysOfGT4AreItsOnlyOperatingDaysOfThoseWeeks)
{
    DIDataSet operating;
    operating.Init(makeDate(2018, 5, 4), 46 * 24, "h", 1, 0);
    parameter(sharedSample(), 460'107'501)->ReadData(operating);
    std::vector<std::string> days;
    for (std::int32_t day = 0; day < 46; ++day) {
        const auto values = operating.values().subspan(static_cast<std::size_t>(day) * 24, 24);
        if (std::ranges::any_of(values, [](double value) { return value > 0; }))
            days.push_back(isoDate(makeDate(2018, 5, 4 + day)));
    }
    EXPECT_THAT(days, ElementsAre("2018-05-04", "2018-05-16", "2018-05-25", "2018-05-30",
                                  "2018-06-01", "2018-06-17", "2018-06-18"));
}

// GT4 from 2019 to 2021, of the range from 30 to 84 MW, an hour under 30 MW taken as low: about 18
// % low, 23 % mid, 59 % high.
TEST(SampleServer, GT4RanAsItsLoadFileIsKnownToTell)
{
    DIDataSet load;
    load.Init(makeDate(2019, 1, 1), (365 + 366 + 365) * 24, "h", 1, 0);
    parameter(sharedSample(), 460'207'501)->ReadData(load);
    const auto hoursIn = [&](double above, double upTo) {
        return static_cast<double>(std::ranges::count_if(
            load.values(), [&](double value) { return value > above && value <= upTo; }));
    };
    const double all = hoursIn(0, 84);
    EXPECT_NEAR(100 * hoursIn(0, 30 + 0.3 * 54) / all, 18, 0.5);
    EXPECT_NEAR(100 * hoursIn(30 + 0.3 * 54, 30 + 0.6 * 54) / all, 23, 0.5);
    EXPECT_NEAR(100 * hoursIn(30 + 0.6 * 54, 84) / all, 59, 0.5);
}

TEST(SampleServer, HoursBeyondTheDataHaveNoValueAndNoStatus)
{
    DIDataSet load;
    load.Init(makeDate(2021, 12, 31, 22), 4, "h", 1, 0);
    parameter(sharedSample(), kGT3Load)->ReadData(load);
    EXPECT_FALSE(isNull(load.ItemByIndex(1).Value()));
    EXPECT_FALSE(isNull(load.ItemByIndex(2).Value()));
    for (const std::int32_t index : {3, 4}) {
        EXPECT_TRUE(isNull(load.ItemByIndex(index).Value()));
        EXPECT_EQ(load.ItemByIndex(index).Status(), 0);
    }
    const auto codes = server()->StatusCodes();
    EXPECT_FALSE(codes->IsValid(0));
    EXPECT_FALSE(codes->IsUnitOffline(0));
}

TEST(SampleServer, ReadDataClearsWhatAnotherParameterLeftInTheSet)
{
    DIDataSet set;
    set.Init(makeDate(2018, 5, 4), 24, "h", 1, 0);
    parameter(sharedSample(), kGT3Load)->ReadData(set);
    parameter(sharedSample(), kGT3Nox310)->ReadData(set);
    for (std::int32_t index = 1; index <= 24; ++index) {
        EXPECT_TRUE(isNull(set.ItemByIndex(index).Value()));
        EXPECT_EQ(set.ItemByIndex(index).Status(), 0);
    }
}

TEST(SampleServer, UnitNameIsThatOfTheUnitBehindAPID)
{
    const auto codes = server()->StatusCodes();
    EXPECT_EQ(codes->UnitName(kGT3Nox310Low), "GT3");
    EXPECT_EQ(codes->UnitName(kGT4), "GT4");
    EXPECT_EQ(codes->UnitName(711'007'501), "");
}

TEST(SampleServer, TheSiteKeyIsTheNameOfTheFileItWasMadeUnder)
{
    EXPECT_EQ(server()->SiteKey(), "bethpage");
    EXPECT_EQ(server()->SiteInfo()->SiteKey(), "bethpage");
}

TEST(SampleServer, ALookupThatTheSiteLacksGivesNothing)
{
    EXPECT_EQ(
        server()->LookupService()->Lookups()->Find("bethpage", 1, "K7LOOKUP", "FacilityName", ""),
        nullptr);
}

} // namespace

} // namespace k7deval::sitedb::test
