#pragma once

#include "sitedb/formats/Importer.h"
#include "sitedb/read/SourceFile.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>

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

/// Raises ImportError when the site is another facility than the file's.
void checkOrisCode(const SourceFile& file, const std::string& place, std::int32_t code,
                   const std::optional<std::int32_t>& held);

/// Why one more unit, or component of a unit, can't be had.
std::string noMoreUnits(const std::string& identifier);
std::string noMoreComponents();
/// Why a component can't be taken for one of a gas.
std::string measuresAnotherGas(const std::string& component, const std::string& unit);

} // namespace k7deval::sitedb
