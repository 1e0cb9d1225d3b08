#pragma once

#include "screen/Property.h"
#include "sevenday/DriftTest.h"

#include <nlohmann/json.hpp>

namespace k7deval::cli
{

/// A screen's properties as JSON: names in their order, singles as the shortest number that reads
/// back as the same single.
nlohmann::ordered_json toJson(const screen::PropertyList& properties);

/// The state of a drift test by its field names; dates as "yyyy-mm-dd HH:MM", an absent map as
/// null.
nlohmann::ordered_json toJson(const DriftTest& test);

} // namespace k7deval::cli
