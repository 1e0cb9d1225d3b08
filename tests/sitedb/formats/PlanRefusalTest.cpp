#include "sitedb/PlanCase.h"
#include "sitedb/formats/PlanContent.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace k7deval::sitedb::test
{

namespace
{

struct PlanFault {
    const char* what;
    const char* operation;
    const char* path; ///< Below the first location, where it doesn't begin with "//".
    const char* value;
    const char*
        sentence; ///< Behind "plan.json: ", below the first location where it begins with ".".
};

void PrintTo(const PlanFault& fault, std::ostream* stream)
{
    *stream << fault.what;
}

constexpr PlanFault kPlanFaults[] = {
    // The file.
    {"no ORIS code", "remove", "//orisCode", "", "orisCode: the field is missing."},
    {"ORIS code null", "replace", "//orisCode", "null",
     "orisCode: null is no ORIS code from 1 to 999999."},
    {"ORIS code too large", "replace", "//orisCode", "1000000",
     "orisCode: 1000000 is no ORIS code from 1 to 999999."},
    {"facility as number", "replace", "//facilityName", "5", "facilityName: 5 is no text."},
    {"locations that are no list", "replace", "//monitoringLocationData", "{}",
     "monitoringLocationData: an object is no list."},
    {"no locations", "replace", "//monitoringLocationData", "[]",
     "monitoringLocationData: the plan has no unit and no stack with analyzers."},
    {"a location that is a number", "replace", "//monitoringLocationData/0", "1",
     "monitoringLocationData[0]: 1 is no object."},
    // A location.
    {"no name", "replace", "/unitId", "null", ".stackPipeId: null is no text."},
    {"neither unit nor stack", "remove", "/unitId", "", ".stackPipeId: null is no text."},
    {"a name of seven letters", "replace", "/unitId", R"("UNIT007")",
     R"(.unitId: "UNIT007" is no identifier of 1 to 6 characters.)"},
    {"a name that is no text", "replace", "/unitId", "1", ".unitId: 1 is no text."},
    {"spans that are no list", "replace", "/monitoringSpanData", "{}",
     ".monitoringSpanData: an object is no list."},
    {"a span that is a text", "replace", "/monitoringSpanData/0", R"("none")",
     R"(.monitoringSpanData[0]: "none" is no object.)"},
    {"components that are no list", "replace", "/componentData", R"("none")",
     R"(.componentData: "none" is no list.)"},
    {"ranges that are no list", "replace", "/componentData/0/analyzerRangeData", "7",
     ".componentData[0].analyzerRangeData: 7 is no list."},
    // A span.
    {"a span without a type", "remove", "/monitoringSpanData/1/componentTypeCode", "",
     ".monitoringSpanData[1].componentTypeCode: the field is missing."},
    {"an unknown scale", "replace", "/monitoringSpanData/1/spanScaleCode", R"("X")",
     R"(.monitoringSpanData[1].spanScaleCode: "X" is not H or L.)"},
    {"a gas without a scale", "replace", "/monitoringSpanData/1/spanScaleCode", "null",
     ".monitoringSpanData[1].spanScaleCode: null is not H or L."},
    {"flow with a scale", "replace", "/monitoringSpanData/4/spanScaleCode", R"("H")",
     R"(.monitoringSpanData[4].spanScaleCode: "H" is a scale, and flow has none.)"},
    {"a span of 0", "replace", "/monitoringSpanData/1/spanValue", "0",
     ".monitoringSpanData[1].spanValue: a span is above 0."},
    {"a negative span", "replace", "/monitoringSpanData/1/spanValue", "-1",
     ".monitoringSpanData[1].spanValue: -1 lies outside 0 to 1000000."},
    {"a span as text", "replace", "/monitoringSpanData/1/spanValue", R"("200")",
     R"(.monitoringSpanData[1].spanValue: "200" is no number.)"},
    {"more percent than all", "replace", "/monitoringSpanData/3/spanValue", "101",
     ".monitoringSpanData[3].spanValue: 101 lies outside 0 to 100."},
    {"units of another gas", "replace", "/monitoringSpanData/1/spanUnitsOfMeasureCode", R"("PCT")",
     R"(.monitoringSpanData[1].spanUnitsOfMeasureCode: "PCT" is not PPM, the unit of NOX.)"},
    {"no units", "replace", "/monitoringSpanData/1/spanUnitsOfMeasureCode", "null",
     ".monitoringSpanData[1].spanUnitsOfMeasureCode: null is not PPM, the unit of NOX."},
    {"units of no flow", "replace", "/monitoringSpanData/4/spanUnitsOfMeasureCode", R"("PPM")",
     R"(.monitoringSpanData[4].spanUnitsOfMeasureCode: "PPM" is not SCFH, KSCFM or another of )"
     "EPA's units of FLOW."},
    {"a full scale as text", "replace", "/monitoringSpanData/1/fullScaleRange", R"("250")",
     R"(.monitoringSpanData[1].fullScaleRange: "250" is no number.)"},
    {"a negative MPC", "replace", "/monitoringSpanData/1/mpcValue", "-5",
     ".monitoringSpanData[1].mpcValue: -5 lies outside 0 to 1000000."},
    {"an MEC beyond pure gas", "replace", "/monitoringSpanData/1/mecValue", "1e7",
     ".monitoringSpanData[1].mecValue: 10000000.0 lies outside 0 to 1000000."},
    {"a span without a begin", "remove", "/monitoringSpanData/0/beginDate", "",
     ".monitoringSpanData[0].beginDate: the field is missing."},
    {"a begin that is no date", "replace", "/monitoringSpanData/0/beginDate", R"("2015-02-29")",
     R"(.monitoringSpanData[0].beginDate: "2015-02-29" is no date.)"},
    {"an hour 24", "replace", "/monitoringSpanData/1/beginHour", "24",
     ".monitoringSpanData[1].beginHour: 24 is no hour from 0 to 23."},
    {"an end that is no date", "replace", "/monitoringSpanData/0/endDate", R"("soon")",
     R"(.monitoringSpanData[0].endDate: "soon" is no date.)"},
    {"an end hour as text", "replace", "/monitoringSpanData/0/endHour", R"("23")",
     R"(.monitoringSpanData[0].endHour: "23" is no hour from 0 to 23.)"},
    // A component.
    {"a component without a type", "remove", "/componentData/0/componentTypeCode", "",
     ".componentData[0].componentTypeCode: the field is missing."},
    {"a component without an identifier", "replace", "/componentData/0/componentId", "null",
     ".componentData[0].componentId: null is no text."},
    {"an identifier of four letters", "replace", "/componentData/0/componentId", R"("0111")",
     R"(.componentData[0].componentId: "0111" is no identifier of 1 to 3 characters.)"},
    {"a component with two gases", "replace", "/componentData/2/componentId", R"("010")",
     ".componentData[2].componentId: component 010 of U1 measures another gas."},
    {"an unknown range", "replace", "/componentData/1/analyzerRangeData/1/analyzerRangeCode",
     R"("D")",
     R"(.componentData[1].analyzerRangeData[1].analyzerRangeCode: "D" is not H, L or A.)"},
    {"a range without a begin", "replace", "/componentData/1/analyzerRangeData/0/beginDate", "null",
     ".componentData[1].analyzerRangeData[0].beginDate: null is no date."},
    // A load.
    {"a load without a unit", "remove", "/monitoringLoadData/1/maximumLoadUnitsOfMeasureCode", "",
     ".monitoringLoadData[1].maximumLoadUnitsOfMeasureCode: the field is missing."},
    {"a negative load", "replace", "/monitoringLoadData/1/maximumLoadValue", "-1",
     ".monitoringLoadData[1].maximumLoadValue: -1 lies outside 0 to 999999."},
    {"a load as text", "replace", "/monitoringLoadData/1/upperOperationBoundary", R"("145")",
     R"(.monitoringLoadData[1].upperOperationBoundary: "145" is no number.)"},
    {"a load without a begin", "replace", "/monitoringLoadData/0/beginDate", "null",
     ".monitoringLoadData[0].beginDate: null is no date."},
};

std::string pathOf(const PlanFault& fault)
{
    const std::string path = fault.path;
    return path.starts_with("//") ? path.substr(1) : "/monitoringLocationData/0" + path;
}

std::string sentenceOf(const PlanFault& fault)
{
    const std::string sentence = fault.sentence;
    return "plan.json: " +
           (sentence.front() == '.' ? "monitoringLocationData[0]" + sentence : sentence);
}

class PlanRefusal : public testing::TestWithParam<PlanFault>
{
};

TEST_P(PlanRefusal, NamesFilePathAndFieldAndLeavesTheSiteAsItWas)
{
    EmptySite held;
    const auto& fault = GetParam();
    const auto file =
        held.directory.write("plan.json", patchedPlan(fault.operation, pathOf(fault), fault.value));
    EXPECT_EQ(refusal(held, file, {}), sentenceOf(fault));
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

class PlanContradiction : public testing::TestWithParam<Contradiction>
{
};

TEST_P(PlanContradiction, IsRefusedSinceNothingInASiteIsReplaced)
{
    EmptySite held;
    importText(held, "first.json", smallPlan());
    const auto& second = GetParam();
    const auto file = held.directory.write(
        "plan.json", patchedPlan("replace", std::string("/monitoringLocationData/0") + second.path,
                                 second.value));
    EXPECT_EQ(refusal(held, file, {}),
              std::string("plan.json: monitoringLocationData[0].") + second.sentence);
}

INSTANTIATE_TEST_SUITE_P(Plan, PlanContradiction, testing::ValuesIn(kContradictions));

TEST(PlanRefusals, TheSameFileIsRefusedUnderAnyName)
{
    EmptySite held;
    importText(held, "plan.json", smallPlan());
    EXPECT_EQ(refusal(held, held.directory.write("again.json", smallPlan()), {}),
              "again.json: the site has imported this file before, as plan.json.");
}

TEST(PlanRefusals, AnotherFacilityIsRefused)
{
    EmptySite held;
    importText(held, "plan.json", smallPlan());
    const auto file = held.directory.write("other.json", patchedPlan("replace", "/orisCode", "55"));
    EXPECT_EQ(refusal(held, file, {}),
              "other.json: orisCode: 55 is another facility than the site's, which is 54.");
}

TEST(PlanRefusals, AnotherSpanThanThatOfASpanTableIsRefused)
{
    SmallSite held;
    EXPECT_EQ(refusal(held, held.directory.write("plan.json", smallPlan()), {}),
              "plan.json: monitoringLocationData[0].monitoringSpanData[1]: the site has a span of "
              "100 for U1 010 HIGH, and the file says 200.");
}

TEST(PlanRefusals, AnIdentifierOfAnotherGasIsNotGivenToTheNamelessAnalyzer)
{
    EmptySite held;
    importText(held, "spans.csv",
               "unit_id,component_id,component_type,span_scale,span_value,units\n"
               "U1,NOX,NOX,H,200,PPM\nU1,010,O2,H,25,PCT\n");
    EXPECT_EQ(refusal(held, held.directory.write("plan.json", smallPlan()), {}),
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

TEST(PlanRefusals, WhateverStandsInAFieldIsReadOrRefusedByASentence)
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

TEST(PlanRefusals, ATwentiethUnitIsRefused)
{
    EmptySite held;
    std::string plan = R"({"orisCode": 54, "locations": [)";
    for (int unit = 1; unit <= 20; ++unit)
        plan +=
            std::string(unit > 1 ? "," : "") + R"({"unitId": "U)" + std::to_string(unit) + "\"}";
    EXPECT_EQ(refusal(held, held.directory.write("plan.json", plan + "]}"), {}),
              "plan.json: locations[19]: U20 would be one unit too many, since a site holds at "
              "most 19.");
}

TEST(PlanRefusals, AHundredthAnalyzerOfAGasIsRefused)
{
    EmptySite held;
    std::string plan = R"({"orisCode": 54, "locations": [{"unitId": "U1", "components": [)";
    for (int id = 100; id < 200; ++id)
        plan += std::string(id > 100 ? "," : "") +
                R"({"componentTypeCode": "NOX", "componentId": ")" + std::to_string(id) + "\"}";
    EXPECT_EQ(refusal(held, held.directory.write("plan.json", plan + "]}]}"), {}),
              "plan.json: locations[0].components[99].componentId: a unit has at most 99 "
              "components for one gas.");
}

} // namespace

} // namespace k7deval::sitedb::test
