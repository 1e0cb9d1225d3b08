#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace k7deval::sitedb
{

/// What a site knows of a gas that EPA's component type names.
struct Gas {
    std::string_view componentType; ///< As EPA writes it: "NOX".
    std::int32_t parameterCode;     ///< The code in a PID.
    std::string_view unitsCode;     ///< EPA's code of the measuring unit: "PPM" or "PCT".
    std::string_view unitsText;     ///< The same for people.
    double highestSpan;             ///< In the measuring unit.
};

/// The gas of a component type, or nothing.
const Gas* findGas(std::string_view componentType);
/// "SO2, NOX, CO, O2 or CO2".
std::string gasNames();

} // namespace k7deval::sitedb
