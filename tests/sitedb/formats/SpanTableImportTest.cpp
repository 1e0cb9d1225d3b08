#include "sitedb/ImportCase.h"
#include "sitedb/SiteQueries.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

using testing::ElementsAre;

#define SPANS "unit_id,component_id,component_type,span_scale,span_value,units\n"

std::vector<std::string> parameterTexts(const SiteDatabase& site, const ParamTypes& types)
{
    std::vector<std::string> texts;
    for (const auto& entry : site.server()->ParametersOfTypes(types))
        texts.push_back(PIDToText(entry->PID()) + " " + entry->Name(0));
    return texts;
}

constexpr std::int32_t kMeasuredType = 8;

using SpanTableImport = ImportTest<EmptySite>;
using LaterSpanTable = ImportTest<SmallSite>;

TEST_F(SpanTableImport, EveryGasHasItsParameterCodeAndUnits)
{
    take("spans.csv", SPANS "U1,001,SO2,H,200,PPM\nU1,002,NOX,H,200,PPM\nU1,003,CO,H,200,PPM\n"
                            "U1,004,O2,H,25,PCT\nU1,005,CO2,H,20,PCT\n"
                            "U1,006,HG,H,5,UGSCM\nU1,007,HCL,H,10,PPM\nU1,008,HF,H,10,PPM\n"
                            "U1,009,H2O,,40,PCT\nU1,010,FLOW,,198000000,SCFH\n");
    EXPECT_THAT(parameterTexts(site, {kMeasuredType}),
                ElementsAre("1-100-0-75-01 SO2 001", "1-110-0-75-01 NOX 002",
                            "1-140-0-75-01 CO 003", "1-150-0-75-01 HG 006", "1-160-0-75-01 HCL 007",
                            "1-170-0-75-01 HF 008", "1-220-0-75-01 O2 004", "1-240-0-75-01 CO2 005",
                            "1-250-0-75-01 H2O 009", "1-300-0-75-01 FLOW 010"));
    std::vector<std::string> units;
    for (const auto& entry : site.server()->ParametersOfTypes({kMeasuredType}))
        units.push_back(entry->UnitsText());
    EXPECT_THAT(units, ElementsAre("ppm", "ppm", "ppm", "\xC2\xB5g/scm", "ppm", "ppm", "%", "%",
                                   "%", "scfh"));
}

TEST_F(SpanTableImport, ComponentsOfAGasAreNumberedInTheirUnitAndScalesHaveTheirVariantDigit)
{
    take("spans.csv", SPANS "U1,310,NOX,H,100,PPM\nU1,311,NOX,,50,PPM\nU2,310,NOX,L,10,PPM\n"
                            "U1,310,NOX,L,10,PPM\n");
    EXPECT_THAT(
        parameterTexts(site, {kMeasuredType}),
        ElementsAre("1-110-0-75-01 NOX 310", "1-110-0-75-02 NOX 311", "2-110-0-75-01 NOX 310"));
    EXPECT_THAT(
        parameterTexts(site, {kCalibrationType}),
        ElementsAre("1-110-1-75-02 NOX 311 Calibration", "1-110-2-75-01 NOX 310/L Calibration",
                    "1-110-4-75-01 NOX 310/H Calibration", "2-110-2-75-01 NOX 310/L Calibration"));
}

TEST_F(SpanTableImport, AnEmptyScaleIsTheSingleScale)
{
    take("spans.csv", SPANS "U1,311,NOX,,50,PPM\n");
    EXPECT_EQ(attributeOf(site, 111'017'501, attribute::kScale), Variant(std::string("SINGLE")));
}

TEST_F(LaterSpanTable, ALaterTableAddsToTheSite)
{
    const auto report = take("more.csv", SPANS "U2,1,O2,,25,PCT\nU1,011,NOX,H,50,PPM\n"
                                               "U1,020,CO2,H,15,PCT\n");
    EXPECT_THAT(report.counts, ElementsAre("1 unit", "2 analyzers", "3 spans"));
    EXPECT_THAT(parameterTexts(site, {kMeasuredType}),
                ElementsAre("1-110-0-75-01 NOX 010", "1-110-0-75-02 NOX 011",
                            "1-240-0-75-01 CO2 020", "2-220-0-75-01 O2 1"));
    EXPECT_EQ(recordsOf(site, 124'047'501, "K7CAL").front()->Span(), Variant(15.0));
    EXPECT_EQ(recordsOf(site, 124'017'501, "K7CAL").front()->Span(), Variant(20.0));
}

struct SpellingCase {
    const char* what;
    const char* table;
};

// The same row, as different programs write it.
constexpr SpellingCase kSpellings[] = {
    {"line feeds", SPANS "U1,010,NOX,H,100.5,PPM\n"},
    {"carriage returns and line feeds",
     "unit_id,component_id,component_type,span_scale,span_value,units\r\n"
     "U1,010,NOX,H,100.5,PPM\r\n"},
    {"quotes", "\"unit_id\",\"component_id\",component_type,span_scale,span_value,units\n"
               "\"U1\",\"010\",\"NOX\",\"H\",\"100.5\",\"PPM\"\n"},
    {"a byte order mark",
     "\xEF\xBB\xBFunit_id,component_id,component_type,span_scale,span_value,units\n"
     "U1,010,NOX,H,100.5,PPM\n"},
    {"columns in another order, and one more",
     "units,note,span_value,span_scale,component_type,component_id,unit_id\n"
     "PPM,\"a \"\"note\"\", with\nall\",100.5,H,NOX,010,U1\n"},
    {"empty lines", SPANS "\n\r\nU1,010,NOX,H,100.5,PPM\n\n"},
    {"an exponent", SPANS "U1,010,NOX,H,1.005e2,PPM\n"},
};

void PrintTo(const SpellingCase& spelling, std::ostream* stream)
{
    *stream << spelling.what;
}

using SpanTableSpelling = ImportCases<EmptySite, SpellingCase>;

TEST_P(SpanTableSpelling, MakesNoDifference)
{
    take("spans.csv", GetParam().table);
    const auto definition = recordsOf(site, 111'047'501, "K7CAL");
    ASSERT_EQ(definition.size(), 1U);
    EXPECT_EQ(definition[0]->Span(), Variant(100.5));
    EXPECT_EQ(attributeOf(site, 111'047'501, attribute::kComponentId), Variant(std::string("010")));
}

INSTANTIATE_TEST_SUITE_P(Spans, SpanTableSpelling, testing::ValuesIn(kSpellings));

} // namespace

} // namespace k7deval::sitedb::test
