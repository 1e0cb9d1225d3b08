#pragma once

#include "sitedb/formats/Importer.h"
#include "sitedb/read/CsvTable.h"
#include "sitedb/read/SourceFile.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

/// What importers share.
namespace k7deval::sitedb
{

/// Tells how far the import of a file is. Raises ImportCancelled when it is to end.
void tellProgress(const ImportTask& task, std::int64_t bytesRead, std::size_t hours);

/// "1 unit", "2 units".
std::string counted(std::size_t count, const std::string& what);

/// Names of things, separated by commas.
std::string listed(const std::set<std::string>& names);
/// "1 entry", "2 entries".
std::string entries(std::size_t count);

/// Why a text can't identify a unit or component, or nothing: identifiers are printable ASCII, of a
/// limited length, without blanks at the ends.
std::string identifierFault(std::string_view text, std::size_t longest);
/// The identifier in a field. Raises ImportError for a field that holds none.
const std::string& identifier(const CsvTable& table, const CsvRow& row, std::size_t column,
                              std::size_t longest);

/// Raises ImportError when the site is another facility than the file's.
void checkOrisCode(const SourceFile& file, const std::string& place, std::int32_t code,
                   const std::optional<std::int32_t>& held);

/// Why one more unit, or component of a unit, can't be had.
std::string noMoreUnits(const std::string& identifier);
std::string noMoreComponents();

} // namespace k7deval::sitedb
