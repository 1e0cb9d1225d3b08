#include "sitedb/Gases.h"

#include <array>

namespace k7deval::sitedb
{

namespace
{

constexpr double kHighestPpm = 1'000'000;
constexpr double kHighestPercent = 100;

constexpr std::array kGases{
    Gas{"SO2", 100, "PPM", "ppm", kHighestPpm},   Gas{"NOX", 110, "PPM", "ppm", kHighestPpm},
    Gas{"CO", 140, "PPM", "ppm", kHighestPpm},    Gas{"O2", 220, "PCT", "%", kHighestPercent},
    Gas{"CO2", 240, "PCT", "%", kHighestPercent},
};

} // namespace

const Gas* findGas(std::string_view componentType)
{
    for (const auto& gas : kGases) {
        if (gas.componentType == componentType)
            return &gas;
    }
    return nullptr;
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
