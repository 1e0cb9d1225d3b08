#include "sitedb/tables/Schema.h"

#include "foundation/Error.h"
#include "sitedb/tables/SiteIds.h"
#include "sitedb/tables/StatusWords.h"

#include <vector>

namespace k7deval::sitedb
{

namespace
{

std::vector<std::string> parameterTables(const sql::Dialect& dialect)
{
    return {
        // An interval of nothing ('' with 0 and 0) marks a parameter without a series.
        "CREATE TABLE parameter ("
        " pid INTEGER NOT NULL PRIMARY KEY,"
        " name TEXT NOT NULL,"
        " param_type INTEGER NOT NULL,"
        " units_text TEXT NOT NULL,"
        " interval_letter TEXT NOT NULL,"
        " interval_multiple INTEGER NOT NULL,"
        " interval_unit INTEGER NOT NULL)" +
            dialect.tableOptions,
        "CREATE TABLE attribute ("
        " pid INTEGER NOT NULL REFERENCES parameter (pid),"
        " id INTEGER NOT NULL,"
        " kind TEXT NOT NULL CHECK (kind IN ('i4', 'Boolean', 'text')),"
        " value TEXT NOT NULL,"
        " PRIMARY KEY (pid, id))" +
            dialect.keyedTableOptions,
        "CREATE TABLE link ("
        " pid INTEGER NOT NULL REFERENCES parameter (pid),"
        " id INTEGER NOT NULL,"
        " target_pid INTEGER NOT NULL REFERENCES parameter (pid),"
        " PRIMARY KEY (pid, id))" +
            dialect.keyedTableOptions,
        "CREATE TABLE constant ("
        " pid INTEGER NOT NULL PRIMARY KEY REFERENCES parameter (pid),"
        " subset INTEGER NOT NULL,"
        " value " +
            dialect.realType +
            ","
            " status INTEGER NOT NULL)" +
            dialect.tableOptions,
    };
}

std::vector<std::string> valueTables(const sql::Dialect& dialect)
{
    return {
        "CREATE TABLE hourly_value ("
        " pid INTEGER NOT NULL REFERENCES parameter (pid),"
        " day TEXT NOT NULL,"
        " hour INTEGER NOT NULL CHECK (hour BETWEEN 0 AND 23),"
        " value " +
            dialect.realType +
            ","
            " status INTEGER NOT NULL REFERENCES status_word (word),"
            " PRIMARY KEY (pid, day, hour))" +
            dialect.keyedTableOptions,
        // A record without a run time is the definition of a calibration.
        "CREATE TABLE calibration_record ("
        " record_id INTEGER NOT NULL PRIMARY KEY,"
        " record_table TEXT NOT NULL,"
        " pid INTEGER NOT NULL REFERENCES parameter (pid),"
        " scale TEXT NOT NULL,"
        " run_time TEXT,"
        " gas_level_code INTEGER NOT NULL,"
        " gas_level_text TEXT NOT NULL,"
        " reference_value " +
            dialect.realType +
            ","
            " measured_value " +
            dialect.realType +
            ","
            " injection_end TEXT,"
            " manual INTEGER CHECK (manual IN (0, 1)),"
            " cal_status INTEGER NOT NULL,"
            " span " +
            dialect.realType +
            ","
            " source_tag_pid INTEGER)" +
            dialect.tableOptions,
        "CREATE INDEX calibration_record_by_time"
        " ON calibration_record (pid, scale, run_time)",
    };
}

std::vector<std::string> otherTables(const sql::Dialect& dialect)
{
    return {
        "CREATE TABLE status_word ("
        " word INTEGER NOT NULL PRIMARY KEY,"
        " meaning TEXT NOT NULL,"
        " valid INTEGER NOT NULL CHECK (valid IN (0, 1)),"
        " excluded INTEGER NOT NULL CHECK (excluded IN (0, 1)),"
        " offline INTEGER NOT NULL CHECK (offline IN (0, 1)))" +
            dialect.tableOptions,
        "CREATE TABLE lookup ("
        " lookup_table TEXT NOT NULL,"
        " lookup_key TEXT NOT NULL,"
        " value TEXT NOT NULL,"
        " PRIMARY KEY (lookup_table, lookup_key))" +
            dialect.keyedTableOptions,
        "CREATE TABLE import_log ("
        " import_id INTEGER NOT NULL PRIMARY KEY,"
        " file_name TEXT NOT NULL,"
        " format TEXT NOT NULL,"
        " file_size INTEGER NOT NULL,"
        " file_crc INTEGER NOT NULL,"
        " imported_at TEXT,"
        " summary TEXT NOT NULL)" +
            dialect.tableOptions,
    };
}

} // namespace

void createSchema(sql::Connection& connection, const std::string& siteKey)
{
    sql::Transaction transaction(connection);
    for (const auto& tables :
         {otherTables(connection.dialect()), parameterTables(connection.dialect()),
          valueTables(connection.dialect())}) {
        for (const auto& command : tables)
            connection.execute(command);
    }
    addStatusWords(connection);
    connection.execute("INSERT INTO lookup (lookup_table, lookup_key, value) VALUES ($1, $2, $3)",
                       std::string(kSiteTable), std::string(kSiteKeyEntry), siteKey);
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
