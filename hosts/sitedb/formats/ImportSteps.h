#pragma once

#include "sitedb/Import.h"
#include "sitedb/read/CsvTable.h"
#include "sitedb/read/SourceFile.h"
#include "sitedb/sql/Connection.h"

#include <cstddef>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>

/// The imports on a file that was read, and what they share.
namespace k7deval::sitedb
{

/// What the formats are called in reports and in the log.
namespace format
{
inline constexpr const char* kEcmpsQa = "ECMPS QA data";
inline constexpr const char* kSpanTable = "span table";
inline constexpr const char* kMonitoringPlan = "monitoring plan";
inline constexpr const char* kLocationSpans = "spans of locations";
inline constexpr const char* kHourlyLoad = "hourly load";
inline constexpr const char* kMonitorHourly = "hours of a monitor";
inline constexpr const char* kEcmpsEmissions = "ECMPS emissions data";
} // namespace format

ImportReport takeEcmpsQa(sql::Connection& connection, const SourceFile& file,
                         const ImportOptions& options);
ImportReport takeSpanTable(sql::Connection& connection, const SourceFile& file,
                           const ImportOptions& options);
ImportReport takeMonitoringPlan(sql::Connection& connection, const SourceFile& file,
                                const ImportOptions& options);
ImportReport takeLocationSpans(sql::Connection& connection, const SourceFile& file,
                               const ImportOptions& options);
ImportReport takeHourlyLoad(sql::Connection& connection, const SourceFile& file,
                            const ImportOptions& options);
ImportReport takeMonitorHourly(sql::Connection& connection, const SourceFile& file,
                               const ImportOptions& options);
/// On a file that was identified; its content is read as a stream.
ImportReport takeEcmpsEmissions(sql::Connection& connection, const std::filesystem::path& path,
                                const SourceFile& file, const ImportOptions& options);
/// Whether a file of any size is an ECMPS emissions file.
bool isEcmpsEmissions(const std::filesystem::path& path, const SourceFile& file);

/// Tells how far the import of a file is. Raises ImportCancelled when it is to end.
void tellProgress(const ImportOptions& options, const SourceFile& file, std::int64_t bytesRead,
                  std::size_t hours);
/// The same ahead of the end of the transaction.
void tellAllIsRead(const ImportOptions& options, const SourceFile& file, std::size_t hours = 0);

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

/// Why one more unit, or component of a unit, can't be had.
std::string noMoreUnits(const std::string& identifier);
std::string noMoreComponents();

} // namespace k7deval::sitedb
