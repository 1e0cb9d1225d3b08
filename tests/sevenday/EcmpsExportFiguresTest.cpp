#include "sevenday/ExportRig.h"

#include <gtest/gtest.h>

#include <ostream>

/// The figures of the export: calibration errors and gas values.
namespace k7deval::test
{

namespace
{

AnalyzerFacts withCode(std::int32_t code, const std::string& unitsText)
{
    AnalyzerFacts facts;
    facts.code = code;
    facts.unitsText = unitsText;
    return facts;
}

/// An export of one run whose zero and span gas both have that drift, on a span of 200.
struct DriftRig : ExportRig {
    DriftRig(const AnalyzerFacts& facts, float drift, bool usesAPS) : ExportRig(facts)
    {
        run->ZeroCal = injection(0, drift, 5, usesAPS);
        run->SpanCal = injection(0, drift, 5, usesAPS);
        show({dayOf(run)});
    }
    const CalRun run = runAt(kMorning);
};

} // namespace

struct ErrorCase {
    const char* what;
    std::int32_t code;
    const char* unitsText;
    bool usesAPS;
    float drift;
    const char* error; ///< A percent of the span of 200, or the drift itself.
};

constexpr ErrorCase kErrors[] = {
    // A ppm analyzer: percent of span, or the drift under the alternative.
    {"Ppm", 120, "ppm", false, 3, "1.5"},
    {"PpmBelowTheReference", 120, "ppm", false, -3, "1.5"},
    {"PpmWithAPS", 120, "ppm", true, 3, "3.0"},
    {"PpmWithAPSBelowTheReference", 120, "ppm", true, -3, "3.0"},
    {"PpmNoDrift", 120, "ppm", false, 0, "0.0"},
    {"PpmHalfOfAPlace", 120, "ppm", false, 0.5F, "0.3"}, // 0.25 %
    {"PpmSingleHalf", 120, "ppm", false, 0.7F, "0.4"},   // the single 0.35 %
    {"PpmBelowAHalf", 120, "ppm", false, 0.48F, "0.2"},  // 0.24 %
    {"PpmWithAPSHalf", 120, "ppm", true, 0.25F, "0.3"},
    {"PpmWithAPSBelowAHalf", 120, "ppm", true, 0.24F, "0.2"},
    {"PpmMeasuredInWater", 120, "%H2O", true, 0.126F, "0.1"},
    // A percent gas: the drift, also without the alternative.
    {"Oxygen", 220, "%", false, 0.26F, "0.3"},
    {"CarbonDioxide", 240, "%", false, 0.26F, "0.3"},
    {"PercentGas230", 230, "%", false, 0.26F, "0.3"},
    {"PercentGas233", 233, "%", false, 0.26F, "0.3"},
    {"PercentGas241", 241, "%", false, 0.26F, "0.3"},
    {"PercentGas243", 243, "%", false, 0.26F, "0.3"},
    {"PercentGas245", 245, "%", false, 0.26F, "0.3"},
    {"NoPercentGas242", 242, "%", false, 3, "1.5"},
    // Measured in water: two decimals under the alternative, the percent of span without.
    {"Code262InWaterWithAPS", 262, "%H2O", true, 0.126F, "0.13"},
    {"Code262InWater", 262, "%H2O", false, 3, "1.5"},
    {"Code262InWaterHalf", 262, "in H2O", true, 0.125F, "0.13"},
    {"Code262InWaterNoDrift", 262, "in H2O", true, 0, "0.00"},
    {"Code262InLowerCaseWater", 262, "in h2o", true, 0.126F, "0.13"},
    {"Code262InScfhWithAPS", 262, "scfh", true, 0.126F, "0.1"},
    {"Code262InScfh", 262, "scfh", false, 3, "1.5"},
    {"Code260", 260, "%H2O", true, 0.126F, "0.13"},
    {"Code269", 269, "%H2O", true, 0.126F, "0.13"},
    {"Code680", 680, "%H2O", true, 0.126F, "0.13"},
    {"Code699", 699, "%H2O", true, 0.126F, "0.13"},
    {"Code259", 259, "%H2O", true, 0.126F, "0.1"},
    {"Code270", 270, "%H2O", true, 0.126F, "0.1"},
    {"Code679", 679, "%H2O", true, 0.126F, "0.1"},
    {"Code700", 700, "%H2O", true, 0.126F, "0.1"},
};

void PrintTo(const ErrorCase& tested, std::ostream* out)
{
    *out << tested.what;
}

class ExportError : public ::testing::TestWithParam<ErrorCase>
{
};

TEST_P(ExportError, IsTheDriftOrAPercentOfSpan)
{
    const ErrorCase& row = GetParam();
    DriftRig rig(withCode(row.code, row.unitsText), row.drift, row.usesAPS);
    EXPECT_EQ(rig.valueOf("ZeroCalibrationError"), row.error);
    EXPECT_EQ(rig.valueOf("UpscaleCalibrationError"), row.error);
    EXPECT_EQ(rig.valueOf("ZeroAPSIndicator"), row.usesAPS ? "1" : "0");
    EXPECT_EQ(rig.messages->lines(), Lines());
}

INSTANTIATE_TEST_SUITE_P(Errors, ExportError, ::testing::ValuesIn(kErrors),
                         [](const auto& tested) { return tested.param.what; });

TEST(ExportError, OfEachInjectionGoesByItsOwnAlternative)
{
    DriftRig rig({}, 3, false);
    rig.run->SpanCal->UsesAPS = true;
    EXPECT_EQ(rig.valueOf("ZeroCalibrationError"), "1.5");
    EXPECT_EQ(rig.valueOf("UpscaleCalibrationError"), "3.0");
    EXPECT_EQ(rig.valueOf("ZeroAPSIndicator"), "0");
    EXPECT_EQ(rig.valueOf("UpscaleAPSIndicator"), "1");
}

struct SpanZeroCase {
    const char* what;
    std::int32_t code;
    bool usesAPS;
    float drift;
    const char* line;
};

TEST(ExportError, OnASpanOfZeroIsEmptyWhateverIsAsked)
{
    // The percent is computed even where the drift itself is asked for.
    constexpr SpanZeroCase kRows[] = {
        {"percent", 120, false, 3, "DEval-016: 11, Division by zero"},
        {"alternative", 120, true, 3, "DEval-016: 11, Division by zero"},
        {"percent gas", 220, false, 3, "DEval-016: 11, Division by zero"},
        {"no drift", 120, false, 0, "DEval-016: 6, Overflow"},
    };
    for (const SpanZeroCase& row : kRows) {
        DriftRig rig(withCode(row.code, "ppm"), row.drift, row.usesAPS);
        rig.run->InstrumentSpan = 0;
        const std::string text = rig.text();
        EXPECT_NE(text.find("<ZeroCalibrationError/><UpscaleCalibrationError/>"), std::string::npos)
            << row.what << text;
        EXPECT_EQ(rig.messages->lines(), Lines(2, row.line)) << row.what;
    }
}

TEST(ExportError, OnASpanTooSmallForAPercentIsEmpty)
{
    DriftRig rig({}, 1000, false);
    rig.run->InstrumentSpan = 1e-36F;
    EXPECT_EQ(rig.valueOf("ZeroCalibrationError"), "");
    EXPECT_EQ(rig.messages->lines(), Lines(2, "DEval-016: 6, Overflow"));
}

TEST(ExportError, WithoutTheParameterIsEmpty)
{
    const AnalyzerFacts facts = withCode(262, "%H2O");
    DriftRig rig(facts, 3, true);
    std::erase_if(rig.site->parameters,
                  [&](const auto& p) { return p.pid == facts.measuredPID(); });
    EXPECT_EQ(rig.valueOf("ZeroCalibrationError"), "");
    EXPECT_EQ(rig.messages->lines(), Lines(2, "DEval-016: 5, Invalid procedure call or argument"));
}

struct GasValueCase {
    std::int32_t code;
    std::int32_t decimals;
    float value;
    const char* text;
};

TEST(ExportGasValue, HasOneDecimalOrThoseOfAnAnalyzerOfFlowOrMoisture)
{
    constexpr GasValueCase kRows[] = {
        {120, 3, 12.25F, "12.3"},   {120, 3, 12.24F, "12.2"},  {220, 0, 12.25F, "12.3"},
        {262, 3, 12.25F, "12.250"}, {262, 0, 12.25F, "12."},   {260, 2, 12.25F, "12.25"},
        {269, 2, 12.25F, "12.25"},  {680, 2, 12.25F, "12.25"}, {699, 2, 12.25F, "12.25"},
        {259, 2, 12.25F, "12.3"},   {270, 2, 12.25F, "12.3"},  {679, 2, 12.25F, "12.3"},
        {700, 2, 12.25F, "12.3"},   {120, 1, -0.04F, "0.0"},   {120, 1, -12.25F, "-12.3"},
    };
    for (const GasValueCase& row : kRows) {
        AnalyzerFacts facts = withCode(row.code, "scfh");
        facts.decimals = row.decimals;
        DriftRig rig(facts, 0, false);
        rig.run->ZeroCal = injection(row.value, 1, 5);
        rig.run->SpanCal = injection(1, row.value, 5);
        EXPECT_EQ(rig.valueOf("ZeroReferenceValue"), row.text) << row.code;
        EXPECT_EQ(rig.valueOf("UpscaleMeasuredValue"), row.text) << row.code;
        EXPECT_EQ(rig.valueOf("ZeroMeasuredValue").substr(0, 1), "1") << row.code;
        EXPECT_EQ(rig.valueOf("UpscaleReferenceValue").substr(0, 1), "1") << row.code;
    }
}

TEST(ExportGasValue, WithoutThePrecisionIsEmpty)
{
    DriftRig rig(withCode(262, "scfh"), 3, false);
    rig.site->failure = [](const std::string& call, std::size_t) {
        return call == "DIParameter.GetAttribute(-16)"
                   ? std::optional(Error(440, "the line is down"))
                   : std::nullopt;
    };
    const std::string text = rig.text();
    for (const char* name : {"ZeroMeasuredValue", "UpscaleMeasuredValue", "ZeroReferenceValue",
                             "UpscaleReferenceValue"})
        EXPECT_NE(text.find("<" + std::string(name) + "/>"), std::string::npos) << text;
    EXPECT_EQ(rig.messages->lines(), Lines(4, "DEval-017: 440, the line is down"));
}

TEST(ExportFigures, HaveADecimalPointInEveryRegion)
{
    ExportRig rig({}, "de-DE");
    CalRun run = runAt(kMorning);
    run->SpanCal->MeasuredValue = 163;
    rig.show({dayOf(run)});
    EXPECT_EQ(rig.valueOf("UpscaleCalibrationError"), "1.5");
    EXPECT_EQ(rig.valueOf("UpscaleMeasuredValue"), "163.0");
}

} // namespace k7deval::test
