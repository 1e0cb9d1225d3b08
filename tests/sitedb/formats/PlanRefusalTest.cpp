#include "sitedb/PlanCase.h"
#include "sitedb/formats/PlanContent.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace k7deval::sitedb::test
{

namespace
{

const JsonParts kPlanParts{
    {"unit", "/monitoringLocationData/0"},
    {"span", "/monitoringLocationData/0/monitoringSpanData"},
    {"component", "/monitoringLocationData/0/componentData"},
    {"load", "/monitoringLocationData/0/monitoringLoadData"},
};

constexpr JsonFault kPlanFaults[] = {
    // The file.
    {"no ORIS code", "/orisCode", "", "the field is missing."},
    {"ORIS code null", "/orisCode", "null", "null is no ORIS code from 1 to 999999."},
    {"ORIS code too large", "/orisCode", "1000000", "1000000 is no ORIS code from 1 to 999999."},
    {"facility as number", "/facilityName", "5", "5 is no text."},
    {"locations that are no list", "/monitoringLocationData", "{}", "an object is no list."},
    {"no locations", "/monitoringLocationData", "[]",
     "the plan has no unit and no stack with analyzers."},
    {"a location that is a number", "unit", "1", "1 is no object."},
    // A location.
    {"no name", "unit/unitId", "null", "null is no text.", "unit/stackPipeId"},
    {"neither unit nor stack", "unit/unitId", "", "null is no text.", "unit/stackPipeId"},
    {"a name of seven letters", "unit/unitId", R"("UNIT007")",
     R"("UNIT007" is no identifier of 1 to 6 characters.)"},
    {"a name that is no text", "unit/unitId", "1", "1 is no text."},
    {"spans that are no list", "span", "{}", "an object is no list."},
    {"a span that is a text", "span/0", R"("none")", R"("none" is no object.)"},
    {"components that are no list", "component", R"("none")", R"("none" is no list.)"},
    {"ranges that are no list", "component/0/analyzerRangeData", "7", "7 is no list."},
    // A span.
    {"a span without a type", "span/1/componentTypeCode", "", "the field is missing."},
    {"an unknown scale", "span/1/spanScaleCode", R"("X")", R"("X" is not H or L.)"},
    {"a gas without a scale", "span/1/spanScaleCode", "null", "null is not H or L."},
    {"flow with a scale", "span/4/spanScaleCode", R"("H")",
     R"("H" is a scale, and flow has none.)"},
    {"a span of 0", "span/1/spanValue", "0", "a span is above 0."},
    {"a negative span", "span/1/spanValue", "-1", "-1 lies outside 0 to 1000000."},
    {"a span as text", "span/1/spanValue", R"("200")", R"("200" is no number.)"},
    {"more percent than all", "span/3/spanValue", "101", "101 lies outside 0 to 100."},
    {"units of another gas", "span/1/spanUnitsOfMeasureCode", R"("PCT")",
     R"("PCT" is not PPM, the unit of NOX.)"},
    {"no units", "span/1/spanUnitsOfMeasureCode", "null", "null is not PPM, the unit of NOX."},
    {"units of no flow", "span/4/spanUnitsOfMeasureCode", R"("PPM")",
     R"("PPM" is not SCFH, KSCFM or another of EPA's units of FLOW.)"},
    {"a full scale as text", "span/1/fullScaleRange", R"("250")", R"("250" is no number.)"},
    {"a negative MPC", "span/1/mpcValue", "-5", "-5 lies outside 0 to 1000000."},
    {"an MEC beyond pure gas", "span/1/mecValue", "1e7", "10000000.0 lies outside 0 to 1000000."},
    {"a span without a begin", "span/0/beginDate", "", "the field is missing."},
    {"a begin that is no date", "span/0/beginDate", R"("2015-02-29")",
     R"("2015-02-29" is no date.)"},
    {"an hour 24", "span/1/beginHour", "24", "24 is no hour from 0 to 23."},
    {"an end that is no date", "span/0/endDate", R"("soon")", R"("soon" is no date.)"},
    {"an end hour as text", "span/0/endHour", R"("23")", R"("23" is no hour from 0 to 23.)"},
    // A component.
    {"a component without a type", "component/0/componentTypeCode", "", "the field is missing."},
    {"a component without an identifier", "component/0/componentId", "null", "null is no text."},
    {"an identifier of four letters", "component/0/componentId", R"("0111")",
     R"("0111" is no identifier of 1 to 3 characters.)"},
    {"a component with two gases", "component/2/componentId", R"("010")",
     "component 010 of U1 measures another gas."},
    {"an unknown range", "component/1/analyzerRangeData/1/analyzerRangeCode", R"("D")",
     R"("D" is not H, L or A.)"},
    {"a range without a begin", "component/1/analyzerRangeData/0/beginDate", "null",
     "null is no date."},
    // A load.
    {"a load without a unit", "load/1/maximumLoadUnitsOfMeasureCode", "", "the field is missing."},
    {"a negative load", "load/1/maximumLoadValue", "-1", "-1 lies outside 0 to 999999."},
    {"a load as text", "load/1/upperOperationBoundary", R"("145")", R"("145" is no number.)"},
    {"a load without a begin", "load/0/beginDate", "null", "null is no date."},
};

using PlanRefusal = ImportCases<EmptySite, JsonFault>;

TEST_P(PlanRefusal, NamesFilePathAndFieldAndLeavesTheSiteAsItWas)
{
    const std::string text = patchedPlan(pathOf(GetParam(), kPlanParts), GetParam().value);
    EXPECT_EQ(refused("plan.json", text), "plan.json: " + sentenceOf(GetParam(), kPlanParts));
}

INSTANTIATE_TEST_SUITE_P(Plan, PlanRefusal, testing::ValuesIn(kPlanFaults));

struct Contradiction {
    const char* what;
    const char* path; ///< Below the first location.
    const char* value;
    const char* sentence; ///< Behind "plan.json: monitoringLocationData[0].".
};

void PrintTo(const Contradiction& contradiction, std::ostream* stream)
{
    *stream << contradiction.what;
}

// The site has the small plan as it is.
constexpr Contradiction kContradictions[] = {
    {"another span", "/monitoringSpanData/1/spanValue", "190",
     "monitoringSpanData[1]: the site has a span of 200 for U1 010 HIGH, and the file says 190."},
    {"another full scale", "/monitoringSpanData/1/fullScaleRange", "200",
     "monitoringSpanData[1]: the site has a full scale range of 250 for U1 010 HIGH, and the file "
     "says 200."},
    {"another MPC", "/monitoringSpanData/1/mpcValue", "180",
     "monitoringSpanData[1]: the site has a maximum potential value of 180.5 for U1 010 HIGH, and "
     "the file says 180."},
    {"another MEC", "/monitoringSpanData/2/mecValue", "17",
     "monitoringSpanData[2]: the site has a maximum expected value of 18 for U1 010 LOW, and the "
     "file says 17."},
    {"another flow span", "/monitoringSpanData/4/flowSpanValue", "1",
     "monitoringSpanData[4]: the site has a flow span of 108000000 for U1 030 SINGLE, and the file "
     "says 1."},
    {"another flow full scale", "/monitoringSpanData/4/flowFullScaleRange", "1",
     "monitoringSpanData[4]: the site has a flow full scale range of 120000000 for U1 030 SINGLE, "
     "and the file says 1."},
    {"another begin", "/monitoringSpanData/1/beginHour", "8",
     "monitoringSpanData[1]: the site has a span in force since 2015-01-01 07:00 for U1 010 HIGH, "
     "and the file says 2015-01-01 08:00."},
    {"another maximum load", "/monitoringLoadData/1/maximumLoadValue", "160",
     "monitoringLoadData[1]: the site has a Maximum Load of 150 MW for U1, and the file says 160."},
    {"another lower boundary", "/monitoringLoadData/1/lowerOperationBoundary", "30",
     "monitoringLoadData[1]: the site has a Lower Operation Boundary of 30.5 MW for U1, and the "
     "file says 30."},
};

using PlanContradiction = ImportCases<EmptySite, Contradiction>;

TEST_P(PlanContradiction, IsRefusedSinceNothingInASiteIsReplaced)
{
    take("first.json", smallPlan());
    const auto& second = GetParam();
    EXPECT_EQ(
        refused("plan.json",
                patchedPlan(std::string("/monitoringLocationData/0") + second.path, second.value)),
        std::string("plan.json: monitoringLocationData[0].") + second.sentence);
}

INSTANTIATE_TEST_SUITE_P(Plan, PlanContradiction, testing::ValuesIn(kContradictions));

using PlanRefusals = ImportTest<EmptySite>;
using PlanOfOtherSpans = ImportTest<SmallSite>;

TEST_F(PlanRefusals, TheSameFileIsRefusedUnderAnyName)
{
    take("plan.json", smallPlan());
    EXPECT_EQ(refused("again.json", smallPlan()),
              "again.json: the site has imported this file before, as plan.json.");
}

TEST_F(PlanRefusals, AnotherFacilityIsRefused)
{
    take("plan.json", smallPlan());
    EXPECT_EQ(refused("other.json", patchedPlan("/orisCode", "55")),
              "other.json: orisCode: 55 is another facility than the site's, which is 54.");
}

TEST_F(PlanOfOtherSpans, AnotherSpanThanThatOfASpanTableIsRefused)
{
    EXPECT_EQ(refused("plan.json", smallPlan()),
              "plan.json: monitoringLocationData[0].monitoringSpanData[1]: the site has a span of "
              "100 for U1 010 HIGH, and the file says 200.");
}

TEST_F(PlanRefusals, AnIdentifierOfAnotherGasIsNotGivenToTheNamelessAnalyzer)
{
    take("spans.csv", kSpanColumns + "U1,NOX,NOX,H,200,PPM\nU1,010,O2,H,25,PCT\n");
    EXPECT_EQ(refused("plan.json", smallPlan()),
              "plan.json: monitoringLocationData[0].componentData[1].componentId: component 010 of "
              "U1 measures another gas.");
}

/// Whether a plan was read or refused by a sentence; anything else fails the test that asks.
bool isReadOrRefused(const nlohmann::json& plan)
{
    SourceFile file;
    file.name = "plan.json";
    file.content = plan.dump();
    try {
        return !readMonitoringPlan(file).locations.empty();
    } catch (const ImportError& error) {
        return error.description().starts_with("plan.json: ");
    }
}

TEST_F(PlanRefusals, WhateverStandsInAFieldIsReadOrRefusedByASentence)
{
    const nlohmann::json values[] = {nullptr, "x", -1, 1e300, nlohmann::json::object()};
    const auto plan = nlohmann::json::parse(smallPlan());
    const auto leaves = plan.flatten();
    for (const auto& leaf : leaves.items()) {
        const nlohmann::json::json_pointer field(leaf.key());
        for (const auto& value : values) {
            auto changed = plan;
            changed[field] = value;
            EXPECT_TRUE(isReadOrRefused(changed)) << leaf.key() << " is " << value.dump();
        }
        if (plan[field.parent_pointer()].is_object()) {
            auto changed = plan;
            changed[field.parent_pointer()].erase(field.back());
            EXPECT_TRUE(isReadOrRefused(changed)) << leaf.key() << " is missing";
        }
    }
}

TEST_F(PlanRefusals, ATwentiethUnitIsRefused)
{
    std::string plan = R"({"orisCode": 54, "locations": [)";
    for (int unit = 1; unit <= 20; ++unit)
        plan +=
            std::string(unit > 1 ? "," : "") + R"({"unitId": "U)" + std::to_string(unit) + "\"}";
    EXPECT_EQ(refused("plan.json", plan + "]}"),
              "plan.json: locations[19]: U20 would be one unit too many, since a site holds at "
              "most 19.");
}

TEST_F(PlanRefusals, AHundredthAnalyzerOfAGasIsRefused)
{
    std::string plan = R"({"orisCode": 54, "locations": [{"unitId": "U1", "components": [)";
    for (int id = 100; id < 200; ++id)
        plan += std::string(id > 100 ? "," : "") +
                R"({"componentTypeCode": "NOX", "componentId": ")" + std::to_string(id) + "\"}";
    EXPECT_EQ(refused("plan.json", plan + "]}]}"),
              "plan.json: locations[0].components[99].componentId: a unit has at most 99 "
              "components for one gas.");
}

} // namespace

} // namespace k7deval::sitedb::test
