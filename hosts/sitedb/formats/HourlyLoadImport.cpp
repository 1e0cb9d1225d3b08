#include "sitedb/formats/HourlyLoadImport.h"

#include "sitedb/formats/HourlyTable.h"
#include "sitedb/formats/ImportSteps.h"

namespace k7deval::sitedb
{

namespace
{

/// Takes the rows of a table of load into a site, one after the other.
class LoadImporter
{
public:
    LoadImporter(const CsvTable& table, const SourceFile& file, sql::Connection& connection,
                 std::int32_t unit)
        : table_(table), hours_(table, file, connection), unit_(unit),
          load_(table.column("gross_load_mw"))
    {
    }

    // The source keeps no operating time: an hour with load counts as one in which the unit ran.
    void take(const CsvRow& row)
    {
        SiteHour hour = hours_.hourOf(row);
        const double load = table_.number(row, load_, 0, kHighestLoad);
        const bool isOperating = load > 0;
        hour.word = isOperating ? status::kMeasured : status::kUnitOffline;
        hour.value = load;
        hours_.add(row, loadPID(unit_), "the unit's load", hour);
        hour.value = isOperating ? 1 : 0;
        hours_.add(row, operatingTimePID(unit_), "the unit's operating time", hour);
        operating_ += isOperating ? 1 : 0;
    }

    [[nodiscard]] std::vector<std::string> counts() const
    {
        return {counted(table_.rows().size(), "hour"), counted(operating_, "hour") + " with load"};
    }

private:
    const CsvTable& table_;
    HourlyTable hours_;
    std::int32_t unit_;
    std::size_t load_;
    std::size_t operating_ = 0;
};

} // namespace

Taken takeHourlyLoad(const ImportTask& task)
{
    const CsvTable table = CsvTable::parse(task.file);
    SiteWriter writer(task.connection);
    const std::int32_t unit = namedUnit(writer, task.file, task.options.unit, "load belongs");
    writer.units.addLoad(unit);
    writer.units.addOperatingTime(unit);
    LoadImporter importer(table, task.file, task.connection, unit);
    takeRows(table, task, [&](const CsvRow& row) { importer.take(row); });
    return {{{}, importer.counts(), otherColumns(table, {"date", "hour", "gross_load_mw"}), {}},
            table.rows().size()};
}

} // namespace k7deval::sitedb
