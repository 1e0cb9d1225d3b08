#include "sitedb/sql/SqliteConnection.h"

#include "foundation/Error.h"
#include "sitedb/PlainText.h"
#include "sitedb/sql/SqliteDialect.h"

#include <sqlite3.h>

#include <utility>

namespace k7deval::sitedb::sql
{

namespace
{

constexpr int kBusyMilliseconds = 1000;

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;
using PreparedStatement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

struct Cause {
    int number;
    std::string text;
};

Cause causeOf(int code, const char* engineText)
{
    switch (code & 0xff) {
    case SQLITE_FULL:
        return {errors::kDiskFull, "the disk is full"};
    case SQLITE_READONLY:
        return {errors::kPermissionDenied, "the site is open for reading only or write-protected"};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {errors::kPermissionDenied, "another program is writing to the site"};
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return {errors::kPermissionDenied, "access to the file is denied"};
    case SQLITE_CANTOPEN:
        return {errors::kPathAccess, "the file can't be opened"};
    case SQLITE_NOTADB:
        return {errors::kPathAccess, "the file is no site database"};
    case SQLITE_CORRUPT:
        return {errors::kPathAccess, "the file is damaged"};
    case SQLITE_IOERR:
        return {errors::kPathAccess, "the file can't be read or written"};
    default:
        return {errors::kAutomation, std::string("the database reports: ") + engineText};
    }
}

[[noreturn]] void fail(const std::string& name, sqlite3* database, int code)
{
    const Cause cause = causeOf(code, sqlite3_errmsg(database));
    throw Error(cause.number, name + ": " + cause.text + ".");
}

class SqliteStatement final : public Statement
{
public:
    SqliteStatement(std::shared_ptr<sqlite3> database, std::string name, std::string_view query);

    void bind(int index, const Value& value) override;
    bool step() override;
    void reset() override { sqlite3_reset(statement_.get()); }
    [[nodiscard]] Value column(int index) const override;

private:
    void check(int code) const;

    std::shared_ptr<sqlite3> database_;
    std::string name_;
    PreparedStatement statement_;
};

SqliteStatement::SqliteStatement(std::shared_ptr<sqlite3> database, std::string name,
                                 std::string_view query)
    : database_(std::move(database)), name_(std::move(name))
{
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(database_.get(), query.data(),
                                        static_cast<int>(query.size()), &statement, nullptr);
    statement_.reset(statement);
    check(code);
    // Parameters are bound by position, so a query whose $n are out of order would mix them up.
    for (int index = 1; index <= sqlite3_bind_parameter_count(statement); ++index) {
        if (sqlite3_bind_parameter_name(statement, index) != "$" + std::to_string(index))
            throw Error(errors::kInvalidCall,
                        "The parameters of a query are out of order: " + std::string(query));
    }
}

void SqliteStatement::check(int code) const
{
    if (code != SQLITE_OK)
        fail(name_, database_.get(), code);
}

void SqliteStatement::bind(int index, const Value& value)
{
    sqlite3_stmt* statement = statement_.get();
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        check(sqlite3_bind_int64(statement, index, *whole));
    else if (const auto* number = std::get_if<double>(&value))
        check(sqlite3_bind_double(statement, index, *number));
    else if (const auto* text = std::get_if<std::string>(&value))
        check(sqlite3_bind_text(statement, index, text->data(), static_cast<int>(text->size()),
                                SQLITE_TRANSIENT));
    else
        check(sqlite3_bind_null(statement, index));
}

bool SqliteStatement::step()
{
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW)
        return true;
    if (code != SQLITE_DONE)
        fail(name_, database_.get(), code);
    return false;
}

Value SqliteStatement::column(int index) const
{
    sqlite3_stmt* statement = statement_.get();
    switch (sqlite3_column_type(statement, index)) {
    case SQLITE_INTEGER:
        return std::int64_t{sqlite3_column_int64(statement, index)};
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, index);
    case SQLITE_TEXT: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, index));
        return std::string(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, index)));
    }
    default:
        return std::monostate{};
    }
}

class SqliteConnection final : public Connection
{
public:
    SqliteConnection(Database database, std::string name)
        : database_(std::move(database)), name_(std::move(name))
    {
    }

    std::unique_ptr<Statement> prepare(std::string_view query) override
    {
        return std::make_unique<SqliteStatement>(database_, name_, query);
    }
    [[nodiscard]] const Dialect& dialect() const override { return dialect_; }
    [[nodiscard]] std::string name() const override { return name_; }

    // The write lock is taken at once, so that a busy site is told before any work is done.
    void begin() override { execute("BEGIN IMMEDIATE"); }
    void commit() override { execute("COMMIT"); }
    void rollback() noexcept override
    {
        sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    }

    bool holdsTables() override { return number("SELECT COUNT(*) FROM sqlite_master") > 0; }
    std::int64_t applicationMark() override { return number("PRAGMA application_id"); }
    std::int64_t schemaVersion() override { return number("PRAGMA user_version"); }
    void stamp(std::int64_t applicationMark, std::int64_t schemaVersion) override
    {
        execute("PRAGMA application_id = " + std::to_string(applicationMark));
        execute("PRAGMA user_version = " + std::to_string(schemaVersion));
    }

private:
    std::int64_t number(std::string_view query)
    {
        const auto statement = prepare(query);
        return statement->step() ? statement->integer(0) : 0;
    }

    std::shared_ptr<sqlite3> database_;
    std::string name_;
    SqliteDialect dialect_;
};

Database openFile(const std::filesystem::path& path, const std::string& name, int flags)
{
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(utf8Text(path).c_str(), &opened, flags, nullptr);
    Database database(opened);
    if (code != SQLITE_OK)
        fail(name, opened, code);
    sqlite3_busy_timeout(opened, kBusyMilliseconds);
    return database;
}

/// The extended code of a first look at the tables.
int lookAtTables(sqlite3* database)
{
    sqlite3_exec(database, "SELECT 1 FROM sqlite_master", nullptr, nullptr, nullptr);
    return sqlite3_extended_errcode(database);
}

// A program that ended while it wrote has left its journal, which only those who may write can roll
// back.
Database openReadable(const std::filesystem::path& path, const std::string& name)
{
    Database database = openFile(path, name, SQLITE_OPEN_READONLY);
    if (lookAtTables(database.get()) == SQLITE_READONLY_ROLLBACK)
        lookAtTables(openFile(path, name, SQLITE_OPEN_READWRITE).get());
    return database;
}

} // namespace

std::shared_ptr<Connection> openSqlite(const std::filesystem::path& path, Access access)
{
    const std::string name = utf8Text(path.filename());
    if (access == Access::ReadOnly && !std::filesystem::exists(path))
        throw Error(errors::kFileNotFound, name + ": there is no such file.");
    Database database = access == Access::ReadOnly
                            ? openReadable(path, name)
                            : openFile(path, name, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    auto connection = std::make_shared<SqliteConnection>(std::move(database), name);
    connection->execute("PRAGMA foreign_keys = ON");
    return connection;
}

} // namespace k7deval::sitedb::sql
