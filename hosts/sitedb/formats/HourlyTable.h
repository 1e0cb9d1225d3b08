#pragma once

#include "sitedb/formats/Importer.h"
#include "sitedb/read/CsvTable.h"
#include "sitedb/tables/HourWriter.h"
#include "sitedb/tables/SiteWriter.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

/// What the imports of hourly tables share: a row is an hour of the unit that the operator named.
namespace k7deval::sitedb
{

/// Takes the hours of a table with the columns date and hour into a site.
class HourlyTable
{
public:
    /// Raises ImportError when the table has no such columns.
    HourlyTable(const CsvTable& table, const SourceFile& file, sql::Connection& connection);

    /// The day and hour of a row. Raises ImportError when they are none.
    [[nodiscard]] SiteHour hourOf(const CsvRow& row) const;
    /// Puts an hour in; what it is of is named as "the unit's load". Raises ImportError when the
    /// file or the site has it already.
    void add(const CsvRow& row, PID pid, const std::string& what, const SiteHour& hour);

private:
    const CsvTable& table_;
    const SourceFile& file_;
    HourWriter hours_;
    std::size_t day_;
    std::size_t hour_;
};

/// Takes the rows one after the other and tells now and then how far that is. Raises
/// ImportCancelled when it is to end.
void takeRows(const CsvTable& table, const ImportTask& task,
              const std::function<void(const CsvRow&)>& take);

/// What an import says of the columns of a table that it does not use.
std::vector<std::string> otherColumns(const CsvTable& table, const std::set<std::string>& used);

/// The number of the unit that the options name, made when the site does not have it; what belongs
/// to it is told as "load belongs". Raises ImportError when none is named or none can be made.
std::int32_t namedUnit(SiteWriter& writer, const SourceFile& file, const std::string& name,
                       const std::string& what);

} // namespace k7deval::sitedb
