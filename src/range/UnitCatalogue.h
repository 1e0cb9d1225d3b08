#pragma once

#include "foundation/DataInterface.h"
#include "foundation/OrderedMap.h"
#include "foundation/RegionalSettings.h"

#include <cstdint>
#include <string>

namespace k7deval
{

/// Measuring scales as the catalogue numbers them: 0 "SINGLE", 1 "LOW", 2 "MID", 3 "HIGH". Empty
/// for any other number.
std::string scaleName(std::int32_t scale);

/// Spans by scale, in the order of the definitions.
using ScaleSpans = OrderedMap<std::int32_t, float>;
/// Scales by hourly parameter.
using ParameterScales = OrderedMap<PID, ScaleSpans>;
/// Hourly parameters by unit.
using Catalogue = OrderedMap<PID, ParameterScales>;

/// Adds to a catalogue the analyzers that a site's calibration definitions name. Of two definitions
/// of one scale the first wins; a span that is missing or not a number counts as 100.
void addToCatalogue(Catalogue& catalogue, DIServer& server, const RegionalSettings& regional);

} // namespace k7deval
