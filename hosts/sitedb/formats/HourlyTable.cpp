#include "sitedb/formats/HourlyTable.h"

#include "sitedb/formats/Fields.h"
#include "sitedb/formats/ImportSteps.h"

namespace k7deval::sitedb
{

namespace
{

constexpr std::size_t kRowsBetweenProgress = 1000;

} // namespace

HourlyTable::HourlyTable(const CsvTable& table, const SourceFile& file, sql::Connection& connection)
    : table_(table), file_(file), hours_(connection), day_(table.column("date")),
      hour_(table.column("hour"))
{
}

SiteHour HourlyTable::hourOf(const CsvRow& row) const
{
    SiteHour hour;
    hour.day = dateIn(table_, row, day_);
    hour.hour = hourIn(table_, row, hour_);
    return hour;
}

void HourlyTable::add(const CsvRow& row, PID pid, const std::string& what, const SiteHour& hour)
{
    const auto outcome = hours_.add(pid, hour);
    if (outcome != Outcome::Taken)
        throw file_.error("line " + std::to_string(row.line) + ": date and hour",
                          HourWriter::fault(outcome, what, hour));
}

// A table is held in memory: what tells how far its import is are the rows.
void takeRows(const CsvTable& table, const ImportTask& task,
              const std::function<void(const CsvRow&)>& take)
{
    const std::size_t count = table.rows().size();
    for (std::size_t index = 0; index < count; ++index) {
        if (index % kRowsBetweenProgress == 0)
            tellProgress(task,
                         task.file.size * static_cast<std::int64_t>(index) /
                             static_cast<std::int64_t>(count),
                         index);
        take(table.rows()[index]);
    }
}

std::vector<std::string> otherColumns(const CsvTable& table, const std::set<std::string>& used)
{
    std::vector<std::string> sentences;
    for (const auto& column : table.header()) {
        if (!used.contains(column))
            sentences.push_back("The column " + inQuotes(column) + ".");
    }
    return sentences;
}

std::int32_t namedUnit(SiteWriter& writer, const SourceFile& file, const std::string& name,
                       const std::string& what)
{
    if (name.empty())
        throw file.error("unit", "the unit that the " + what + " to has to be named");
    const std::string fault = identifierFault(name, kUnitIdentifierLength);
    if (!fault.empty())
        throw file.error("unit", fault);
    if (const auto known = writer.units.find(name))
        return *known;
    const auto added = writer.units.add(name);
    if (!added)
        throw file.error("unit", noMoreUnits(name));
    return *added;
}

} // namespace k7deval::sitedb
