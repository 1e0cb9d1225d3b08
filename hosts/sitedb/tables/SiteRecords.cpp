#include "sitedb/tables/SiteRecords.h"

#include "foundation/TextFunctions.h"
#include "sitedb/PlainText.h"
#include "sitedb/tables/TimeText.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace k7deval::sitedb
{

namespace
{

struct RecordRow {
    Date runTime;
    std::string scale;
    std::int32_t gasLevelCode = 0;
    std::string gasLevelText;
    Variant referenceValue;
    Variant measuredValue;
    Date injectionEnd;
    Variant manual;
    std::int32_t calStatus = 0;
    Variant span;
    Variant sourceTagID;
};

class SiteRecord final : public DIRecord
{
public:
    explicit SiteRecord(RecordRow row) : row_(std::move(row)) {}

    [[nodiscard]] Date RunTime() override { return row_.runTime; }
    [[nodiscard]] std::string Scale() override { return row_.scale; }
    [[nodiscard]] std::int32_t GasLevelCode() override { return row_.gasLevelCode; }
    [[nodiscard]] std::string GasLevelText() override { return row_.gasLevelText; }
    [[nodiscard]] Variant ReferenceValue() override { return row_.referenceValue; }
    [[nodiscard]] Variant MeasuredValue() override { return row_.measuredValue; }
    [[nodiscard]] Date InjectionEnd() override { return row_.injectionEnd; }
    [[nodiscard]] Variant Manual() override { return row_.manual; }
    [[nodiscard]] std::int32_t CalStatus() override { return row_.calStatus; }
    [[nodiscard]] Variant Span() override { return row_.span; }
    [[nodiscard]] Variant SourceTagID() override { return row_.sourceTagID; }

private:
    RecordRow row_;
};

constexpr const char* kRecordColumns =
    "SELECT record_table, run_time, scale, gas_level_code, gas_level_text, reference_value,"
    " measured_value, injection_end, manual, cal_status, span, source_tag_pid"
    " FROM calibration_record";
// A definition has no run time; its place is ahead of all runs.
constexpr const char* kRecordOrder =
    " ORDER BY COALESCE(run_time, ''), CASE gas_level_code WHEN 0 THEN 0 ELSE 1 END, record_id";

Date dateColumn(const sql::Statement& row, int index)
{
    return row.isNull(index) ? Date{} : dateOfMinute(row.text(index));
}

Variant numberColumn(const sql::Statement& row, int index)
{
    return row.isNull(index) ? Variant(Null{}) : Variant(row.real(index));
}

RecordRow recordRow(const sql::Statement& row)
{
    RecordRow record;
    record.runTime = dateColumn(row, 1);
    record.scale = row.text(2);
    record.gasLevelCode = row.int32(3);
    record.gasLevelText = row.text(4);
    record.referenceValue = numberColumn(row, 5);
    record.measuredValue = numberColumn(row, 6);
    record.injectionEnd = dateColumn(row, 7);
    record.manual = row.isNull(8) ? Variant(Null{}) : Variant(row.integer(8) != 0);
    record.calStatus = row.int32(9);
    record.span = numberColumn(row, 10);
    record.sourceTagID = row.isNull(11) ? Variant(Null{}) : Variant(row.int32(11));
    return record;
}

std::vector<std::string> tableNames(const std::string& tables)
{
    std::vector<std::string> names;
    for (const std::string_view name : splitAt(',', tables))
        names.emplace_back(trimmed(name));
    return names;
}

DIRecordList recordsOfTables(sql::Statement& rows, const std::vector<std::string>& tables)
{
    DIRecordList records;
    while (rows.step()) {
        if (std::ranges::find(tables, rows.text(0)) != tables.end())
            records.push_back(std::make_shared<SiteRecord>(recordRow(rows)));
    }
    return records;
}

} // namespace

SiteRecords::SiteRecords(std::shared_ptr<sql::Connection> connection, std::string siteKey)
    : connection_(std::move(connection)), siteKey_(std::move(siteKey))
{
}

DIRecordList SiteRecords::ReadRangeRecords(const RangeRecordQuery& query)
{
    checkSiteKey(siteKey_, query.siteKey);
    const auto rows = connection_->prepare(
        std::string(kRecordColumns) +
        " WHERE pid = $1 AND scale = $2 AND run_time BETWEEN $3 AND $4" + kRecordOrder);
    rows->with(std::int64_t{query.pid}, query.scale, minuteTextFrom(query.start),
               minuteText(query.end));
    return recordsOfTables(*rows, tableNames(query.tables));
}

DIRecordList SiteRecords::ReadRecords(const RecordQuery& query)
{
    checkSiteKey(siteKey_, query.siteKey);
    const auto rows =
        connection_->prepare(std::string(kRecordColumns) + " WHERE pid = $1" + kRecordOrder);
    rows->with(std::int64_t{query.pid});
    return recordsOfTables(*rows, {query.table});
}

void checkSiteKey(const std::string& siteKey, const std::string& asked)
{
    if (asked != siteKey)
        throw Error(errors::kInvalidCall,
                    "The site's key is " + inQuotes(siteKey) + ", not " + inQuotes(asked) + ".");
}

} // namespace k7deval::sitedb
