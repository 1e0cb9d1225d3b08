#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace k7deval::sitedb
{

/// What a site knows of a gas, or of the flow or moisture of stack gas, that EPA's component type
/// names. These are the types for which hourly values are reported.
struct Gas {
    std::string_view componentType; ///< As EPA writes it: "NOX".
    std::int32_t parameterCode;     ///< The code in a PID.
    std::string_view unitsCode;     ///< EPA's code of the hourly values' unit: "PPM", "PCT", ...
    std::string_view unitsText;     ///< The same for people, in UTF-8.
    double highestSpan;             ///< In the measuring unit.
};

/// The gas of a component type, or nothing.
const Gas* findGas(std::string_view componentType);
/// The gas of a code in a PID, or nothing.
const Gas* findGas(std::int32_t parameterCode);
/// Whether its analyzers have scales, high or low; a flow monitor has one.
bool hasScales(const Gas& gas);
/// Whether a span of the gas may be in a unit, by EPA's code. Flow monitors are calibrated in one
/// of many units, all others in the unit of their hourly values.
bool isSpanUnit(const Gas& gas, std::string_view unitsCode);
/// The unit of a span for people.
std::string spanUnitsText(const Gas& gas, std::string_view unitsCode);
/// What the unit of a span should have been, for a sentence: "PPM, the unit of NOX".
std::string spanUnitNames(const Gas& gas);

/// The component types for a sentence: "SO2, NOX, ... or FLOW".
std::string gasNames();

} // namespace k7deval::sitedb
