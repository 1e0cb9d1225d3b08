#include "sitedb/SampleSite.h"

#include "sitedb/sql/SqliteConnection.h"
#include "sitedb/tables/Schema.h"
#include "sitedb/tables/SiteWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// An engine that spells everything in a way of its own.
class OtherDialect final : public sql::Dialect
{
public:
    [[nodiscard]] std::string wholeType() const override { return "WHOLE64"; }
    [[nodiscard]] std::string realType() const override { return "FLOAT64"; }
    [[nodiscard]] std::string automaticKey() const override { return "COUNTED"; }
    [[nodiscard]] std::string tableOptions() const override { return " AS A TABLE"; }
    [[nodiscard]] std::string keyedTableOptions() const override { return " BY KEY"; }
    [[nodiscard]] std::string insertOrUpdate(const sql::RowColumns& row) const override
    {
        return "MERGE " + row.table;
    }
    [[nodiscard]] std::string insertIfNew(const sql::RowColumns& row) const override
    {
        return "TRY " + row.table;
    }
};

class EmptyStatement final : public sql::Statement
{
public:
    void bind(int /*index*/, const sql::Value& /*value*/) override {}
    bool step() override { return false; }
    void reset() override {}
    [[nodiscard]] sql::Value column(int /*index*/) const override { return {}; }
};

/// Keeps the commands that it is given, and finds nothing.
class OtherConnection final : public sql::Connection
{
public:
    std::vector<std::string> commands;

    std::unique_ptr<sql::Statement> prepare(std::string_view query) override
    {
        commands.emplace_back(query);
        return std::make_unique<EmptyStatement>();
    }
    [[nodiscard]] const sql::Dialect& dialect() const override { return dialect_; }
    [[nodiscard]] std::string name() const override { return "other"; }
    void begin() override {}
    void commit() override {}
    void rollback() noexcept override {}
    [[nodiscard]] bool holdsTables() override { return false; }
    [[nodiscard]] std::int64_t applicationMark() override { return 0; }
    [[nodiscard]] std::int64_t schemaVersion() override { return 0; }
    void stamp(std::int64_t /*mark*/, std::int64_t /*version*/) override {}

private:
    OtherDialect dialect_;
};

TEST(Dialect, TablesAreMadeInTheEnginesOwnWords)
{
    OtherConnection other;
    createSchema(other, "plant");
    for (const auto& command : other.commands)
        EXPECT_THAT(command, AllOf(Not(HasSubstr("INTEGER")), Not(HasSubstr("REAL")),
                                   Not(HasSubstr("STRICT")), Not(HasSubstr("{")),
                                   Not(HasSubstr("CONFLICT"))));
    EXPECT_THAT(other.commands,
                Contains(AllOf(StartsWith("CREATE TABLE import_log ( import_id COUNTED,"),
                               HasSubstr("file_crc WHOLE64 NOT NULL"), HasSubstr(") AS A TABLE"))));
    EXPECT_THAT(other.commands,
                Contains(AllOf(StartsWith("CREATE TABLE hourly_value"), HasSubstr("value FLOAT64,"),
                               HasSubstr(") BY KEY"))));
    EXPECT_THAT(other.commands, Contains("TRY status_word"));
    EXPECT_THAT(other.commands, Contains("MERGE lookup"));
}

TEST(Dialect, WhatASiteTakesIsPutInInTheEnginesOwnWords)
{
    OtherConnection other;
    SiteWriter writer(other);
    writer.lookups.setFacilityName("Plant");
    writer.parameters.setAttribute(100'000'000, -96, false);
    writer.constants.setCapacity(1, 84);
    for (const char* command : {"MERGE lookup", "MERGE attribute", "MERGE constant"})
        EXPECT_THAT(other.commands, Contains(command));
    EXPECT_THAT(other.commands, Not(Contains(HasSubstr("CONFLICT"))));
}

struct Database {
    TemporaryDirectory directory;
    std::shared_ptr<sql::Connection> connection =
        sql::openSqlite(directory / "test.db", sql::Access::ReadWrite);
    const sql::Dialect& dialect = connection->dialect();

    Database()
    {
        connection->execute("CREATE TABLE thing (id " + dialect.automaticKey() + ", size " +
                            dialect.wholeType() + ", weight " + dialect.realType() + ")" +
                            dialect.tableOptions());
        connection->execute("CREATE TABLE word (a TEXT, b TEXT, c TEXT, PRIMARY KEY (a, b))" +
                            dialect.keyedTableOptions());
    }
};

TEST(SqliteDialect, AnAutomaticKeyCountsAndAWholeNumberHas64Bits)
{
    Database held;
    for (const double weight : {0.1, 0.2})
        held.connection->execute("INSERT INTO thing (size, weight) VALUES ($1, $2)",
                                 std::int64_t{1} << 62U, weight);
    const auto rows = held.connection->prepare("SELECT id, size, weight FROM thing ORDER BY id");
    for (const double weight : {0.1, 0.2}) {
        ASSERT_TRUE(rows->step());
        EXPECT_EQ(rows->integer(0), weight == 0.1 ? 1 : 2);
        EXPECT_EQ(rows->integer(1), std::int64_t{1} << 62U);
        EXPECT_EQ(rows->real(2), weight);
    }
}

/// The texts of the column c.
std::vector<std::string> words(sql::Connection& connection)
{
    std::vector<std::string> texts;
    const auto rows = connection.prepare("SELECT c FROM word ORDER BY a, b");
    while (rows->step())
        texts.push_back(rows->text(0));
    return texts;
}

TEST(SqliteDialect, ARowIsUpdatedOrLeftByItsKeys)
{
    Database held;
    const sql::RowColumns row{"word", {"a", "b"}, {"c"}};
    const auto put = held.connection->prepare(held.dialect.insertOrUpdate(row));
    const auto attempt = held.connection->prepare(held.dialect.insertIfNew(row));
    const auto text = [](const char* value) { return std::string(value); };
    put->run(text("x"), text("y"), text("first"));
    put->run(text("x"), text("z"), text("other"));
    put->run(text("x"), text("y"), text("second"));
    EXPECT_THAT(words(*held.connection), testing::ElementsAre("second", "other"));
    EXPECT_FALSE(attempt->with(text("x"), text("y"), text("third")).step());
    EXPECT_TRUE(attempt->with(text("y"), text("y"), text("new")).step());
    attempt->reset();
    EXPECT_THAT(words(*held.connection), testing::ElementsAre("second", "other", "new"));
}

} // namespace

} // namespace k7deval::sitedb::test
