#include "sitedb/tables/Gases.h"

#include <algorithm>
#include <array>

namespace k7deval::sitedb
{

namespace
{

constexpr double kHighestPpm = 1'000'000;
constexpr double kHighestPercent = 100;
// More than saturated mercury vapour holds, in micrograms per standard cubic metre.
constexpr double kHighestMercury = 100'000'000;
// Several times what the largest stacks move.
constexpr double kHighestFlow = 1'000'000'000;

// The codes of HG, HCL, HF, H2O and FLOW are our own. They keep clear of the codes to which the
// tools have rules of their own, such as those that go by an analyzer's unit text.
constexpr std::array kGases{
    Gas{"SO2", 100, "PPM", "ppm", kHighestPpm},
    Gas{"NOX", 110, "PPM", "ppm", kHighestPpm},
    Gas{"CO", 140, "PPM", "ppm", kHighestPpm},
    Gas{"O2", 220, "PCT", "%", kHighestPercent},
    Gas{"CO2", 240, "PCT", "%", kHighestPercent},
    Gas{"HG", 150, "UGSCM", "\xC2\xB5g/scm", kHighestMercury},
    Gas{"HCL", 160, "PPM", "ppm", kHighestPpm},
    Gas{"HF", 170, "PPM", "ppm", kHighestPpm},
    Gas{"H2O", 250, "PCT", "%", kHighestPercent},
    Gas{"FLOW", 300, "SCFH", "scfh", kHighestFlow},
};

// What flow monitors are calibrated in, by 40 CFR 75 a unit of the plant's choice.
constexpr std::array<std::string_view, 18> kFlowUnits{
    "ACFH",  "ACFM",  "AFPM",  "AFSEC", "AMSEC", "INH2O", "KACFH", "KACFM", "KAFPM",
    "KSCFH", "KSCFM", "KSFPM", "MACFH", "MSCFH", "SCFH",  "SCFM",  "SFPM",  "SMSEC",
};

} // namespace

const Gas* findGas(std::string_view componentType)
{
    const auto* const found = std::ranges::find(kGases, componentType, &Gas::componentType);
    return found == kGases.end() ? nullptr : &*found;
}

const Gas* findGas(std::int32_t parameterCode)
{
    const auto* const found = std::ranges::find(kGases, parameterCode, &Gas::parameterCode);
    return found == kGases.end() ? nullptr : &*found;
}

bool hasScales(const Gas& gas)
{
    return gas.componentType != "FLOW";
}

bool isSpanUnit(const Gas& gas, std::string_view unitsCode)
{
    if (hasScales(gas))
        return unitsCode == gas.unitsCode;
    return std::ranges::find(kFlowUnits, unitsCode) != kFlowUnits.end();
}

std::string spanUnitsText(const Gas& gas, std::string_view unitsCode)
{
    return std::string(unitsCode == gas.unitsCode ? gas.unitsText : unitsCode);
}

std::string spanUnitNames(const Gas& gas)
{
    return std::string(gas.unitsCode) +
           (hasScales(gas) ? ", the unit of " : ", KSCFM or another of EPA's units of ") +
           std::string(gas.componentType);
}

std::string gasNames()
{
    std::string names;
    for (std::size_t index = 0; index < kGases.size(); ++index) {
        if (index > 0)
            names += index + 1 == kGases.size() ? " or " : ", ";
        names += kGases[index].componentType;
    }
    return names;
}

} // namespace k7deval::sitedb
