#include "sitedb/tables/ImportLog.h"

#include "foundation/UtilityFunctions.h"
#include "sitedb/tables/TimeText.h"

namespace k7deval::sitedb
{

namespace
{

std::string joined(const std::vector<std::string>& texts)
{
    std::string all;
    for (const auto& text : texts)
        all += (all.empty() ? "" : ", ") + text;
    return all;
}

} // namespace

bool ImportLog::holdsSize(std::int64_t size)
{
    const auto row = connection_.prepare("SELECT 1 FROM import_log WHERE file_size = $1");
    return row->with(size).step();
}

std::optional<std::string> ImportLog::nameOf(std::int64_t size, std::int64_t crc)
{
    const auto row = connection_.prepare("SELECT file_name FROM import_log"
                                         " WHERE file_size = $1 AND file_crc = $2");
    return row->with(size, crc).step() ? std::optional(row->text(0)) : std::nullopt;
}

void ImportLog::add(const ImportLogEntry& entry)
{
    const sql::Value at = IsNoDate(entry.time) ? sql::Value() : sql::Value(minuteText(entry.time));
    connection_.execute("INSERT INTO import_log (file_name, format, file_size, file_crc,"
                        " imported_at, summary) VALUES ($1, $2, $3, $4, $5, $6)",
                        entry.fileName, entry.format, entry.size, entry.crc, at,
                        joined(entry.counts));
}

} // namespace k7deval::sitedb
