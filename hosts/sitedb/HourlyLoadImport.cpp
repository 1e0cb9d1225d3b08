#include "sitedb/CsvTable.h"
#include "sitedb/ImportSteps.h"
#include "sitedb/SiteWriter.h"
#include "sitedb/TimeText.h"

#include <algorithm>
#include <set>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

constexpr int kLastHour = 23;

using HourKey = std::pair<std::string, int>;

struct LoadHour {
    std::string day;
    int hour = 0;
    double load = 0; ///< MW
    int line = 0;

    [[nodiscard]] HourKey key() const { return {day, hour}; }
    /// The source keeps no operating time: an hour with load counts as one in which the unit ran.
    [[nodiscard]] bool isOperating() const { return load > 0; }
};

struct LoadColumns {
    std::size_t day;
    std::size_t hour;
    std::size_t load;
};

LoadHour loadHour(const CsvTable& table, const CsvRow& row, const LoadColumns& columns)
{
    LoadHour hour;
    hour.line = row.line;
    hour.day = table.field(row, columns.day);
    if (!dayNumber(hour.day))
        throw table.error(row, columns.day, inQuotes(hour.day) + " is no date");
    hour.hour = table.wholeNumber(row, columns.hour);
    if (hour.hour < 0 || hour.hour > kLastHour)
        throw table.error(row, columns.hour,
                          std::to_string(hour.hour) + " is no hour from 0 to 23");
    hour.load = table.number(row, columns.load, 0, kHighestLoad);
    return hour;
}

std::vector<LoadHour> readHours(const SourceFile& file, const CsvTable& table)
{
    const LoadColumns columns{table.column("date"), table.column("hour"),
                              table.column("gross_load_mw")};
    std::set<HourKey> seen;
    std::vector<LoadHour> hours;
    hours.reserve(table.rows().size());
    for (const auto& row : table.rows()) {
        hours.push_back(loadHour(table, row, columns));
        const LoadHour& hour = hours.back();
        if (!seen.insert(hour.key()).second)
            throw file.error("line " + std::to_string(hour.line) + ": date and hour",
                             "hour " + std::to_string(hour.hour) + " of " + hour.day +
                                 " stands in the file twice");
    }
    return hours;
}

void checkOverlap(sql::Connection& connection, const SourceFile& file, PID load,
                  const std::vector<LoadHour>& hours)
{
    std::set<HourKey> held;
    const auto rows = connection.prepare("SELECT day, hour FROM hourly_value WHERE pid = $1");
    rows->with(std::int64_t{load});
    while (rows->step())
        held.emplace(rows->text(0), rows->int32(1));
    const auto overlap = std::ranges::find_if(
        hours, [&](const LoadHour& hour) { return held.contains(hour.key()); });
    if (overlap != hours.end())
        throw file.error("line " + std::to_string(overlap->line) + ": date and hour",
                         "the site already holds the unit's load for hour " +
                             std::to_string(overlap->hour) + " of " + overlap->day);
}

void writeHours(sql::Connection& connection, std::int32_t unit, const std::vector<LoadHour>& hours)
{
    const auto insert =
        connection.prepare("INSERT INTO hourly_value (pid, day, hour, value, status)"
                           " VALUES ($1, $2, $3, $4, $5)");
    for (const auto& hour : hours) {
        const std::int64_t word = hour.isOperating() ? status::kMeasured : status::kUnitOffline;
        insert->run(std::int64_t{loadPID(unit)}, hour.day, std::int64_t{hour.hour}, hour.load,
                    word);
        insert->run(std::int64_t{operatingTimePID(unit)}, hour.day, std::int64_t{hour.hour},
                    hour.isOperating() ? 1.0 : 0.0, word);
    }
}

std::int32_t findOrAddUnit(SiteWriter& writer, const SourceFile& file, const std::string& name)
{
    if (name.empty())
        throw file.error("unit", "the unit that the load belongs to has to be named");
    const std::string fault = identifierFault(name, kUnitIdentifierLength);
    if (!fault.empty())
        throw file.error("unit", fault);
    if (const auto known = writer.findUnit(name))
        return *known;
    const auto added = writer.addUnit(name);
    if (!added)
        throw file.error("unit", noMoreUnits(name));
    return *added;
}

ImportReport loadReport(const CsvTable& table, const std::vector<LoadHour>& hours)
{
    const auto operating = std::ranges::count_if(hours, &LoadHour::isOperating);
    ImportReport report{"hourly load",
                        {counted(hours.size(), "hour"),
                         counted(static_cast<std::size_t>(operating), "hour") + " with load"},
                        {},
                        {}};
    for (const auto& column : table.header()) {
        if (column != "date" && column != "hour" && column != "gross_load_mw")
            report.steppedOver.push_back("The column " + inQuotes(column) + ".");
    }
    return report;
}

} // namespace

ImportReport takeHourlyLoad(sql::Connection& connection, const SourceFile& file,
                            const ImportOptions& options)
{
    const CsvTable table = CsvTable::parse(file);
    const std::vector<LoadHour> hours = readHours(file, table);
    sql::Transaction transaction(connection);
    SiteWriter writer(connection);
    writer.checkIsNew(file);
    const std::int32_t unit = findOrAddUnit(writer, file, options.unit);
    writer.addLoadParameters(unit);
    checkOverlap(connection, file, loadPID(unit), hours);
    writeHours(connection, unit, hours);
    ImportReport report = loadReport(table, hours);
    writer.log(file, report, options.time);
    transaction.commit();
    return report;
}

} // namespace k7deval::sitedb
