#pragma once

#include "foundation/Date.h"
#include "screen/Property.h"
#include "sevenday/DriftTest.h"

#include <nlohmann/json.hpp>

#include <iosfwd>

namespace k7deval::cli
{

/// The double that prints as the single does; null for what JSON has no number for.
nlohmann::ordered_json numberToJson(float value);
/// A date and time, "yyyy-mm-dd HH:MM".
nlohmann::ordered_json timeToJson(Date time);

/// A screen's properties as JSON: names in their order, singles with their seven digits.
nlohmann::ordered_json toJson(const screen::PropertyList& properties);

/// The state of a drift test by its field names; dates as "yyyy-mm-dd HH:MM", null for an absent
/// map, an array never sized, and a number that can't be worked out. For tests never evaluated,
/// too.
nlohmann::ordered_json toJson(const DriftTest& test);

/// Writes a document; bytes that are no UTF-8 become replacement characters.
void printJson(const nlohmann::ordered_json& document, std::ostream& out);

} // namespace k7deval::cli
