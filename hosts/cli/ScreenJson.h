#pragma once

#include "screen/Property.h"
#include "sevenday/DriftTest.h"

#include <nlohmann/json.hpp>

namespace k7deval::cli
{

/// A screen's properties as JSON: names in their order, singles with their seven digits.
nlohmann::ordered_json toJson(const screen::PropertyList& properties);

/// The state of a drift test by its field names; dates as "yyyy-mm-dd HH:MM", null for an absent
/// map, an array never sized, and a number that can't be worked out. For tests never evaluated,
/// too.
nlohmann::ordered_json toJson(const DriftTest& test);

} // namespace k7deval::cli
