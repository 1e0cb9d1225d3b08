#include "sitedb/SampleSite.h"

#include "foundation/Error.h"
#include "sitedb/sql/SqliteConnection.h"

#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

struct CountedDatabase {
    TemporaryDirectory directory;
    std::shared_ptr<sql::Connection> connection =
        sql::openSqlite(directory / "test.db", sql::Access::ReadWrite);

    CountedDatabase()
    {
        connection->execute("CREATE TABLE thing (id INTEGER PRIMARY KEY, value REAL, name TEXT)" +
                            connection->dialect().tableOptions());
    }

    [[nodiscard]] std::int64_t count() const
    {
        const auto row = connection->prepare("SELECT COUNT(*) FROM thing");
        row->step();
        return row->integer(0);
    }
};

/// The sentence of the error that a call raises.
template <class Call> std::string errorOf(const Call& call)
{
    try {
        call();
    } catch (const Error& error) {
        return error.description();
    }
    return "no error";
}

TEST(Sql, ValuesComeBackWithTheirTypes)
{
    CountedDatabase held;
    held.connection->execute("INSERT INTO thing VALUES ($1, $2, $3)", std::int64_t{1} << 40U, 0.1,
                             std::string("a\0b", 3));
    held.connection->execute("INSERT INTO thing VALUES ($1, $2, $3)", std::int64_t{1}, sql::Value(),
                             sql::Value());
    const auto rows = held.connection->prepare("SELECT id, value, name FROM thing ORDER BY id");
    ASSERT_TRUE(rows->step());
    EXPECT_EQ(rows->int32(0), 1);
    EXPECT_TRUE(rows->isNull(1));
    EXPECT_TRUE(rows->isNull(2));
    ASSERT_TRUE(rows->step());
    EXPECT_EQ(rows->integer(0), std::int64_t{1} << 40U);
    EXPECT_EQ(rows->real(1), 0.1);
    EXPECT_EQ(rows->text(2), std::string("a\0b", 3));
    EXPECT_FALSE(rows->step());
}

TEST(Sql, AColumnOfAnotherTypeIsAnError)
{
    CountedDatabase held;
    const auto row = held.connection->prepare("SELECT 'text', 5000000000, NULL");
    row->step();
    EXPECT_EQ(errorOf([&] { static_cast<void>(row->integer(0)); }),
              "A column of the site database holds no whole number.");
    EXPECT_EQ(errorOf([&] { static_cast<void>(row->real(0)); }),
              "A column of the site database holds no number.");
    EXPECT_EQ(errorOf([&] { static_cast<void>(row->text(2)); }),
              "A column of the site database holds no text.");
    EXPECT_EQ(errorOf([&] { static_cast<void>(row->int32(1)); }),
              "A whole number in the site database is too large.");
}

TEST(Sql, AStatementRunsAgainWithOtherParameters)
{
    CountedDatabase held;
    const auto insert = held.connection->prepare("INSERT INTO thing (name) VALUES ($1)");
    insert->run(std::string("a"));
    insert->run(std::string("b"));
    const auto find = held.connection->prepare("SELECT id FROM thing WHERE name = $1");
    EXPECT_TRUE(find->with(std::string("b")).step());
    EXPECT_EQ(find->integer(0), 2);
    EXPECT_FALSE(find->with(std::string("c")).step());
}

TEST(Sql, ATransactionThatIsNotCommittedLeavesNothing)
{
    CountedDatabase held;
    {
        const sql::Transaction transaction(*held.connection);
        held.connection->execute("INSERT INTO thing (name) VALUES ('a')");
        EXPECT_EQ(held.count(), 1);
    }
    EXPECT_EQ(held.count(), 0);
    sql::Transaction transaction(*held.connection);
    held.connection->execute("INSERT INTO thing (name) VALUES ('a')");
    transaction.commit();
    EXPECT_EQ(held.count(), 1);
}

TEST(Sql, ATransactionIsTakenBackWhileAStatementIsStillReading)
{
    CountedDatabase held;
    held.connection->execute("INSERT INTO thing (name) VALUES ('a'), ('b')");
    const auto rows = held.connection->prepare("SELECT id FROM thing");
    {
        const sql::Transaction transaction(*held.connection);
        ASSERT_TRUE(rows->step());
        held.connection->execute("DELETE FROM thing");
    }
    EXPECT_EQ(held.count(), 2);
}

TEST(Sql, ATableKeepsItsTypes)
{
    CountedDatabase held;
    EXPECT_EQ(errorOf([&] { held.connection->execute("INSERT INTO thing (value) VALUES ('x')"); }),
              "test.db: the database reports: cannot store TEXT value in REAL column thing.value.");
}

TEST(Sql, AWrongQueryIsAnErrorOfTheDatabase)
{
    CountedDatabase held;
    EXPECT_EQ(errorOf([&] { static_cast<void>(held.connection->prepare("SELECT missing")); }),
              "test.db: the database reports: no such column: missing.");
}

TEST(Sql, ParametersOutOfOrderAreRefused)
{
    CountedDatabase held;
    EXPECT_EQ(errorOf([&] { static_cast<void>(held.connection->prepare("SELECT $2, $1")); }),
              "The parameters of a query are out of order: SELECT $2, $1");
}

TEST(Sql, AReferenceToAnUnknownRowIsRefused)
{
    CountedDatabase held;
    held.connection->execute("CREATE TABLE part (thing INTEGER REFERENCES thing (id))");
    EXPECT_NE(errorOf([&] { held.connection->execute("INSERT INTO part VALUES (7)"); }),
              "no error");
}

TEST(Sql, AStampIsKept)
{
    CountedDatabase held;
    EXPECT_EQ(held.connection->applicationMark(), 0);
    EXPECT_EQ(held.connection->schemaVersion(), 0);
    held.connection->stamp(12, 34);
    EXPECT_EQ(held.connection->applicationMark(), 12);
    EXPECT_EQ(held.connection->schemaVersion(), 34);
    EXPECT_TRUE(held.connection->holdsTables());
}

} // namespace

} // namespace k7deval::sitedb::test
