#pragma once

#include "support/FakeSite.h"

#include <cstdint>
#include <memory>
#include <string>

/// Sites for the 7-Day tool's screens, made of plain data.
namespace k7deval::test
{

/// Unit 1 "GT3" and unit 2 "GT4"; the first has an operating-time parameter.
inline constexpr PID kGT3 = 100100000;
inline constexpr PID kGT4 = 200100000;
inline constexpr PID kGT3Hours = 115000000;

/// A calibration parameter and the measured parameter behind it. As it stands: a NOx analyzer under
/// 40 CFR 75 on the high scale of unit 1.
struct AnalyzerFacts {
    std::int32_t unit = 1;
    std::int32_t code = 120;
    std::int32_t program = 75;
    std::int32_t suffix = 1;
    std::string name = "NOX";
    std::string unitsText = "ppm";
    Variant scale = std::string("HIGH");
    Variant component = std::string("101");
    Variant testNumberBase = std::string("NOX");
    Variant decimals = std::int32_t{1};
    Variant table = std::string("K7CAL");
    Variant leftOut = false;

    [[nodiscard]] PID calibrationPID() const { return MakePID(unit, code, 0, program, suffix); }
    [[nodiscard]] PID measuredPID() const { return MakePID(unit, code, 1, program, suffix); }
};

void addAnalyzer(SiteData& site, const AnalyzerFacts& facts);

/// The two units without an analyzer. GT3 has ORIS code 50292 and the identifier "GT3   ", GT4 has
/// 50293 and "GT4   "; neither has several stacks.
std::shared_ptr<SiteData> siteOfUnits();

/// A site of the two units with one analyzer.
std::shared_ptr<SiteData> siteOf(const AnalyzerFacts& facts);

} // namespace k7deval::test
