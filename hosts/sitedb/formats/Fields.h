#pragma once

#include "sitedb/read/CsvTable.h"
#include "sitedb/read/JsonNode.h"

#include <cstddef>
#include <string>
#include <string_view>

/// What fields of all formats hold: dates, hours and identifiers. Each of the functions raises
/// ImportError for a field that holds something else.
namespace k7deval::sitedb
{

/// A date 'YYYY-MM-DD'.
std::string dateIn(const JsonNode& node);
const std::string& dateIn(const CsvTable& table, const CsvRow& row, std::size_t column);

/// An hour, 0 to 23.
int hourIn(const JsonNode& node);
int hourIn(const CsvTable& table, const CsvRow& row, std::size_t column);

/// A facility's code.
int orisCodeIn(const JsonNode& node);
int orisCodeIn(const CsvTable& table, const CsvRow& row, std::size_t column);

/// The identifier of a unit or component: printable ASCII, of a limited length, without blanks at
/// the ends.
std::string identifierIn(const JsonNode& node, std::size_t longest);
const std::string& identifierIn(const CsvTable& table, const CsvRow& row, std::size_t column,
                                std::size_t longest);
/// Why a text that the operator gave is no such identifier, or nothing.
std::string identifierFault(std::string_view text, std::size_t longest);

} // namespace k7deval::sitedb
