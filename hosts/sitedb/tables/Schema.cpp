#include "sitedb/tables/Schema.h"

#include "foundation/Error.h"
#include "foundation/TextFunctions.h"
#include "sitedb/tables/LookupTable.h"
#include "sitedb/tables/SiteIds.h"
#include "sitedb/tables/StatusWords.h"

#include <span>
#include <string_view>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

// {whole}, {real} and {key} stand for column types, {options} and {keyed} for what follows a table,
// as the engine spells them.
constexpr const char* kParameterTables[] = {
    // An interval of nothing ('' with 0 and 0) marks a parameter without a series.
    "CREATE TABLE parameter ("
    " pid {whole} NOT NULL PRIMARY KEY,"
    " name TEXT NOT NULL,"
    " param_type {whole} NOT NULL,"
    " units_text TEXT NOT NULL,"
    " interval_letter TEXT NOT NULL,"
    " interval_multiple {whole} NOT NULL,"
    " interval_unit {whole} NOT NULL){options}",
    "CREATE TABLE attribute ("
    " pid {whole} NOT NULL REFERENCES parameter (pid),"
    " id {whole} NOT NULL,"
    " kind TEXT NOT NULL CHECK (kind IN ('i4', 'Boolean', 'text')),"
    " value TEXT NOT NULL,"
    " PRIMARY KEY (pid, id)){keyed}",
    "CREATE TABLE link ("
    " pid {whole} NOT NULL REFERENCES parameter (pid),"
    " id {whole} NOT NULL,"
    " target_pid {whole} NOT NULL REFERENCES parameter (pid),"
    " PRIMARY KEY (pid, id)){keyed}",
    "CREATE TABLE constant ("
    " pid {whole} NOT NULL PRIMARY KEY REFERENCES parameter (pid),"
    " subset {whole} NOT NULL,"
    " value {real},"
    " status {whole} NOT NULL){options}",
};

constexpr const char* kValueTables[] = {
    "CREATE TABLE hourly_value ("
    " pid {whole} NOT NULL REFERENCES parameter (pid),"
    " day TEXT NOT NULL,"
    " hour {whole} NOT NULL CHECK (hour BETWEEN 0 AND 23),"
    " value {real},"
    " status {whole} NOT NULL REFERENCES status_word (word),"
    " PRIMARY KEY (pid, day, hour)){keyed}",
    // A record without a run time is the definition of a calibration.
    "CREATE TABLE calibration_record ("
    " record_id {key},"
    " record_table TEXT NOT NULL,"
    " pid {whole} NOT NULL REFERENCES parameter (pid),"
    " scale TEXT NOT NULL,"
    " run_time TEXT,"
    " gas_level_code {whole} NOT NULL,"
    " gas_level_text TEXT NOT NULL,"
    " reference_value {real},"
    " measured_value {real},"
    " injection_end TEXT,"
    " manual {whole} CHECK (manual IN (0, 1)),"
    " cal_status {whole} NOT NULL,"
    " span {real},"
    " source_tag_pid {whole}){options}",
    "CREATE INDEX calibration_record_by_time"
    " ON calibration_record (pid, scale, run_time)",
};

constexpr const char* kOtherTables[] = {
    "CREATE TABLE status_word ("
    " word {whole} NOT NULL PRIMARY KEY,"
    " meaning TEXT NOT NULL,"
    " valid {whole} NOT NULL CHECK (valid IN (0, 1)),"
    " excluded {whole} NOT NULL CHECK (excluded IN (0, 1)),"
    " offline {whole} NOT NULL CHECK (offline IN (0, 1))){options}",
    "CREATE TABLE lookup ("
    " lookup_table TEXT NOT NULL,"
    " lookup_key TEXT NOT NULL,"
    " value TEXT NOT NULL,"
    " PRIMARY KEY (lookup_table, lookup_key)){keyed}",
    "CREATE TABLE import_log ("
    " import_id {key},"
    " file_name TEXT NOT NULL,"
    " format TEXT NOT NULL,"
    " file_size {whole} NOT NULL,"
    " file_crc {whole} NOT NULL,"
    " imported_at TEXT,"
    " summary TEXT NOT NULL){options}",
};

std::string spelled(std::string command, const sql::Dialect& dialect)
{
    const std::pair<std::string_view, std::string> spellings[] = {
        {"{whole}", dialect.wholeType()},         {"{real}", dialect.realType()},
        {"{key}", dialect.automaticKey()},        {"{options}", dialect.tableOptions()},
        {"{keyed}", dialect.keyedTableOptions()},
    };
    for (const auto& [mark, spelling] : spellings)
        command = replaceAll(std::move(command), mark, spelling);
    return command;
}

} // namespace

void createSchema(sql::Connection& connection, const std::string& siteKey)
{
    sql::Transaction transaction(connection);
    for (const std::span<const char* const> tables :
         {std::span<const char* const>(kOtherTables),
          std::span<const char* const>(kParameterTables),
          std::span<const char* const>(kValueTables)}) {
        for (const char* command : tables)
            connection.execute(spelled(command, connection.dialect()));
    }
    addStatusWords(connection);
    LookupTable(connection).set(kSiteTable, kSiteKeyEntry, siteKey);
    connection.stamp(kSiteMark, kSchemaVersion);
    transaction.commit();
}

void checkSchema(sql::Connection& connection)
{
    if (connection.applicationMark() != kSiteMark)
        throw Error(errors::kPathAccess, connection.name() + ": the file is no site database.");
    const std::int64_t version = connection.schemaVersion();
    if (version != kSchemaVersion)
        throw Error(errors::kPathAccess, connection.name() + ": the site has version " +
                                             std::to_string(version) +
                                             " of the tables, and this program reads version " +
                                             std::to_string(kSchemaVersion) + ".");
}

} // namespace k7deval::sitedb
