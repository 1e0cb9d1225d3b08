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

using testing::ElementsAre;

const std::filesystem::path kCrystalRiver =
    k7deval::test::projectFile("data/crystal-river/spans.csv");

#define HEADER                                                                                     \
    "oris,facility,location,component_type_cd,span_scale_cd,mpc_value,mec_value,mpf_value,"        \
    "span_value,full_scale_range,span_uom_cd,flow_span_value,flow_full_scale_range,begin_date,"    \
    "begin_hour,end_date,end_hour\n"

using LocationSpans = ImportTest<EmptySite>;

TEST_F(LocationSpans, TakesTheSpansInForceOfOneLocation)
{
    const auto report = importFile(site, kCrystalRiver, forUnit("4"));
    EXPECT_EQ(report.format, "spans of locations");
    EXPECT_THAT(report.counts, ElementsAre("1 unit", "5 analyzers", "7 spans"));
    EXPECT_THAT(report.steppedOver, ElementsAre("9 spans of other times."));
    EXPECT_THAT(spansOf(site), ElementsAre("SO2/L Calibration: 100", "SO2/H Calibration: 3000",
                                           "NOX/L Calibration: 50", "NOX/H Calibration: 500",
                                           "HG/H Calibration: 5", "CO2/H Calibration: 20",
                                           "FLOW Calibration: 3300"));
    EXPECT_EQ(attributeOf(site, UnitPID(1), attribute::kOrisCode), Variant(628));
}

TEST_F(LocationSpans, TakesAllNamedLocations)
{
    const auto report = importFile(site, kCrystalRiver, {});
    EXPECT_THAT(report.counts, ElementsAre("6 units", "22 analyzers", "28 spans"));
    EXPECT_THAT(report.steppedOver,
                ElementsAre("29 spans of other times.", "10 rows without a location."));
    EXPECT_THAT(parametersOfType(site, kUnitType),
                ElementsAre("1-001-0-00-00 1", "2-001-0-00-00 1GTA", "3-001-0-00-00 1GTB",
                            "4-001-0-00-00 2", "5-001-0-00-00 4", "6-001-0-00-00 5"));
}

TEST_F(LocationSpans, KeepsWhatTheTableSaysOfMercury)
{
    importFile(site, kCrystalRiver, forUnit("4"));
    constexpr PID kMercuryHigh = 115'047'501;
    EXPECT_EQ(parameter(site, kMercuryHigh)->Name(0), "HG/H Calibration");
    EXPECT_EQ(parameter(site, kMercuryHigh)->UnitsText(), "\xC2\xB5g/scm");
    EXPECT_EQ(attributeOf(site, kMercuryHigh, attribute::kComponentId), Variant(std::string("HG")));
    EXPECT_EQ(attributeOf(site, kMercuryHigh, planattribute::kFullScaleRange),
              Variant(std::string("10")));
    EXPECT_EQ(attributeOf(site, kMercuryHigh, planattribute::kMaximumPotential),
              Variant(std::string("10")));
    EXPECT_EQ(attributeOf(site, kMercuryHigh, planattribute::kMaximumExpected), Variant(Null{}));
    EXPECT_EQ(attributeOf(site, kMercuryHigh, planattribute::kSpanBegin),
              Variant(std::string("2016-04-16 00:00")));
}

TEST_F(LocationSpans, TheTableMayComeAgainForAnotherLocation)
{
    const std::string rows = "1,P,A,NOX,H,,,,100,,PPM,,,2000-01-01,0,,\n"
                             "1,P,B,NOX,H,,,,200,,PPM,,,2000-01-01,0,,\n";
    take("a.csv", HEADER + rows, forUnit("A"));
    EXPECT_THAT(spansOf(site), ElementsAre("NOX/H Calibration: 100"));
    const auto report = take("b.csv", HEADER + rows);
    EXPECT_THAT(report.counts,
                ElementsAre("1 unit", "1 analyzer", "1 span", "1 span that the site had"));
    EXPECT_THAT(spansOf(site), ElementsAre("NOX/H Calibration: 100", "NOX/H Calibration: 200"));
}

TEST_F(LocationSpans, EveryAnalyzerOfTheTypeGetsTheSpansOfItsLocation)
{
    take("plan.json", R"({"orisCode": 1, "locations": [{"unitId": "A", "components": [
                   {"componentId": "001", "componentTypeCode": "NOX"},
                   {"componentId": "002", "componentTypeCode": "NOX"}]}]})");
    const auto report = take("a.csv", HEADER "1,P,A,NOX,H,,,,100,,PPM,,,2000-01-01,0,,\n"
                                             "1,P,A,SO2,H,,,,50,,PPM,,,2000-01-01,0,,\n");
    EXPECT_THAT(report.counts, ElementsAre("0 units", "1 analyzer", "3 spans"));
    EXPECT_THAT(spansOf(site), ElementsAre("SO2/H Calibration: 50", "NOX 001/H Calibration: 100",
                                           "NOX 002/H Calibration: 100"));
}

TEST_F(LocationSpans, OfSpansThatHaveEndedTheLatestHolds)
{
    take("a.csv", HEADER "1,P,A,NOX,H,,,,300,,PPM,,,2010-01-01,0,2012-12-31,23\n"
                         "1,P,A,NOX,H,,,,200,,PPM,,,2013-01-01,0,2014-12-31,23\n"
                         "1,P,A,NOX,H,,,,100,,PPM,,,2000-01-01,0,2009-12-31,23\n");
    EXPECT_THAT(spansOf(site), ElementsAre("NOX/H Calibration: 200"));
}

TEST_F(LocationSpans, StepsOverTypesWithoutHoursAndScalesWithoutASpan)
{
    const auto report = take("a.csv", HEADER "1,P,A,PM,H,,,,10,,MGSCM,,,2000-01-01,0,,\n"
                                             "1,P,A,NOX,H,200,,,,,,,,2000-01-01,0,,\n"
                                             "1,P,A,NOX,L,,,,20,,PPM,,,2000-01-01,0,,\n");
    EXPECT_THAT(report.steppedOver, ElementsAre("line 3: A NOX HIGH has no span value.",
                                                "Spans of types without hourly values: PM."));
    EXPECT_THAT(spansOf(site), ElementsAre("NOX/L Calibration: 20"));
}

#define GOOD "1,P,A,NOX,H,,,,100,,PPM,,,2000-01-01,0,,\n"

constexpr TableFault kFaults[] = {
    {"no rows", "", "the table has no rows."},
    {"two facilities", GOOD "2,P,A,SO2,H,,,,100,,PPM,,,2000-01-01,0,,\n",
     "line 3: oris: the table holds more than one facility."},
    {"ORIS code 0", "0,P,A,NOX,H,,,,100,,PPM,,,2000-01-01,0,,\n",
     "line 2: oris: 0 is no ORIS code from 1 to 999999."},
    {"no ORIS code", ",P,A,NOX,H,,,,100,,PPM,,,2000-01-01,0,,\n",
     "line 2: oris: the field is empty."},
    {"no location", "1,P,,NOX,H,,,,100,,PPM,,,2000-01-01,0,,\n",
     "location: no row of the table names its location."},
    {"a location of seven letters", "1,P,UNIT007,NOX,H,,,,100,,PPM,,,2000-01-01,0,,\n",
     R"(line 2: location: "UNIT007" is no identifier of 1 to 6 characters.)"},
    {"no type", "1,P,A,,H,,,,100,,PPM,,,2000-01-01,0,,\n",
     "line 2: component_type_cd: the field is empty."},
    {"an unknown scale", "1,P,A,NOX,M,,,,100,,PPM,,,2000-01-01,0,,\n",
     R"(line 2: span_scale_cd: "M" is not H, L or empty.)"},
    {"a span of 0", "1,P,A,NOX,H,,,,0,,PPM,,,2000-01-01,0,,\n",
     "line 2: span_value: a span is above 0."},
    {"a span that is no number", "1,P,A,NOX,H,,,,x,,PPM,,,2000-01-01,0,,\n",
     R"(line 2: span_value: "x" is no number.)"},
    {"an MPC that is no number", "1,P,A,NOX,H,x,,,100,,PPM,,,2000-01-01,0,,\n",
     R"(line 2: mpc_value: "x" is no number.)"},
    {"no units", "1,P,A,NOX,H,,,,100,,,,,2000-01-01,0,,\n",
     "line 2: span_uom_cd: the field is empty."},
    {"units of another gas", "1,P,A,HG,H,,,,5,,PPM,,,2000-01-01,0,,\n",
     R"(line 2: span_uom_cd: "PPM" is not UGSCM, the unit of HG.)"},
    {"no begin", "1,P,A,NOX,H,,,,100,,PPM,,,,0,,\n", "line 2: begin_date: the field is empty."},
    {"a begin that is no date", "1,P,A,NOX,H,,,,100,,PPM,,,2000-13-01,0,,\n",
     R"(line 2: begin_date: "2000-13-01" is no date.)"},
    {"hour 24", "1,P,A,NOX,H,,,,100,,PPM,,,2000-01-01,24,,\n",
     "line 2: begin_hour: 24 is no hour from 0 to 23."},
    {"an end without its hour", "1,P,A,NOX,H,,,,100,,PPM,,,2000-01-01,0,2001-01-01,\n",
     "line 2: end_hour: the field is empty."},
};

using LocationSpansRefusal = ImportCases<EmptySite, TableFault>;
using LocationSpansRefusals = ImportTest<EmptySite>;

TEST_P(LocationSpansRefusal, NamesFileLineAndFieldAndLeavesTheSiteAsItWas)
{
    EXPECT_EQ(refused("a.csv", std::string(HEADER) + GetParam().content),
              std::string("a.csv: ") + GetParam().sentence);
}

INSTANTIATE_TEST_SUITE_P(LocationSpans, LocationSpansRefusal, testing::ValuesIn(kFaults));

TEST_F(LocationSpansRefusals, ALocationThatTheTableLacks)
{
    EXPECT_EQ(refusal(held, kCrystalRiver, forUnit("9")),
              "spans.csv: location: the table has no location 9.");
}

TEST_F(LocationSpansRefusals, AMissingColumn)
{
    EXPECT_EQ(refused("a.csv", "oris,location,component_type_cd,span_value\n1,A,NOX,100\n"),
              "a.csv: line 1: the column facility is missing.");
}

TEST_F(LocationSpansRefusals, AnotherSpanThanTheSiteHas)
{
    take("a.csv", HEADER GOOD);
    const auto file =
        held.directory.write("b.csv", HEADER "1,P,A,NOX,H,,,,90,,PPM,,,2000-01-01,0,,\n");
    EXPECT_EQ(refusal(held, file, {}),
              "b.csv: line 2: the site has a span of 100 for A NOX HIGH, and the file says 90.");
}

} // namespace

} // namespace k7deval::sitedb::test
