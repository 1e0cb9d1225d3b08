#include "sitedb/tables/SiteIds.h"

namespace k7deval::sitedb
{

namespace
{

constexpr std::int32_t kOperatingTimeCode = 601;
constexpr std::int32_t kLowerBoundaryCode = 603;
constexpr std::int32_t kUpperBoundaryCode = 604;

std::int32_t variantDigit(Scale scale)
{
    switch (scale) {
    case Scale::Single:
        return 1;
    case Scale::Low:
        return 2;
    case Scale::Mid:
        return 3;
    default:
        return 4;
    }
}

} // namespace

std::string scaleText(Scale scale)
{
    switch (scale) {
    case Scale::Single:
        return "SINGLE";
    case Scale::Low:
        return "LOW";
    case Scale::Mid:
        return "MID";
    default:
        return "HIGH";
    }
}

std::optional<Scale> scaleOfCode(std::string_view code)
{
    if (code.empty())
        return Scale::Single;
    if (code == "L")
        return Scale::Low;
    if (code == "H")
        return Scale::High;
    return std::nullopt;
}

PID loadPID(std::int32_t unit)
{
    return MakePID(unit, kLoadCode, 0, kProgram40CFR75, 1);
}

PID operatingTimePID(std::int32_t unit)
{
    return MakePID(unit, kOperatingTimeCode, 0, kProgram40CFR75, 1);
}

PID capacityPID(std::int32_t unit)
{
    return MakePID(unit, kLoadCode, 0, 0, 0);
}

PID maximumLoadPID(std::int32_t unit)
{
    return MakePID(unit, kLoadCode, 0, kProgram40CFR75, 0);
}

PID lowerBoundaryPID(std::int32_t unit)
{
    return MakePID(unit, kLowerBoundaryCode, 0, kProgram40CFR75, 0);
}

PID upperBoundaryPID(std::int32_t unit)
{
    return MakePID(unit, kUpperBoundaryCode, 0, kProgram40CFR75, 0);
}

PID measuredPID(std::int32_t unit, std::int32_t parameterCode, std::int32_t component)
{
    return MakePID(unit, parameterCode, 0, kProgram40CFR75, component);
}

PID calibrationPID(PID measured, Scale scale)
{
    return MakePID(PIDPart(measured, pidpart::kUnit), PIDPart(measured, pidpart::kParameterCode),
                   variantDigit(scale), PIDPart(measured, pidpart::kProgramCode),
                   PIDPart(measured, pidpart::kSuffix));
}

} // namespace k7deval::sitedb
