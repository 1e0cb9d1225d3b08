#pragma once

#include "sitedb/tables/Gases.h"
#include "sitedb/tables/SiteWriter.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the imports of hours that monitors measured share.
namespace k7deval::sitedb
{

/// More digits than EPA's layouts have room for.
inline constexpr double kHighestHourlyValue = 1e10;

/// What a parameter code of EPA's hourly data is of, "SO2C" of SO2, or nothing.
const Gas* findHourlyGas(std::string_view parameterCode);

/// The measured parameter of a component of a unit, made when the site does not have it. Without
/// a calibration it gets one on the scale HIGH, of flow SINGLE, whose span is not known, so that
/// range evaluation offers it. Nothing when the unit has all the components that PIDs allow for the
/// gas; a parameter of another gas when the component measures that one.
std::optional<PID> findOrAddMeasured(SiteWriter& writer, std::int32_t unit, const Gas& gas,
                                     const std::string& component);

/// The identifiers of the components that hours without one may be of: those of the unit that
/// measure the gas, or the gas's own name where there is none.
std::vector<std::string> possibleComponents(SiteWriter& writer, std::int32_t unit, const Gas& gas);

} // namespace k7deval::sitedb
