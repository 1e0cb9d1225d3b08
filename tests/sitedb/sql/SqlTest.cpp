#include "sitedb/SampleSite.h"

#include "foundation/Error.h"
#include "sitedb/sql/SqliteConnection.h"

#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

struct Sql : testing::Test {
    TemporaryDirectory directory;
    std::shared_ptr<sql::Connection> connection =
        sql::openSqlite(directory / "test.db", sql::Access::ReadWrite);

    Sql()
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

TEST_F(Sql, ValuesComeBackWithTheirTypes)
{
    connection->execute("INSERT INTO thing VALUES ($1, $2, $3)", std::int64_t{1} << 40U, 0.1,
                        std::string("a\0b", 3));
    connection->execute("INSERT INTO thing VALUES ($1, $2, $3)", std::int64_t{1}, sql::Value(),
                        sql::Value());
    const auto rows = connection->prepare("SELECT id, value, name FROM thing ORDER BY id");
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

TEST_F(Sql, AColumnOfAnotherTypeIsAnError)
{
    const auto row = connection->prepare("SELECT 'text', 5000000000, NULL");
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

TEST_F(Sql, AStatementRunsAgainWithOtherParameters)
{
    const auto insert = connection->prepare("INSERT INTO thing (name) VALUES ($1)");
    insert->run(std::string("a"));
    insert->run(std::string("b"));
    const auto find = connection->prepare("SELECT id FROM thing WHERE name = $1");
    EXPECT_TRUE(find->with(std::string("b")).step());
    EXPECT_EQ(find->integer(0), 2);
    EXPECT_FALSE(find->with(std::string("c")).step());
}

TEST_F(Sql, ATransactionThatIsNotCommittedLeavesNothing)
{
    {
        const sql::Transaction transaction(*connection);
        connection->execute("INSERT INTO thing (name) VALUES ('a')");
        EXPECT_EQ(count(), 1);
    }
    EXPECT_EQ(count(), 0);
    sql::Transaction transaction(*connection);
    connection->execute("INSERT INTO thing (name) VALUES ('a')");
    transaction.commit();
    EXPECT_EQ(count(), 1);
}

TEST_F(Sql, ATransactionIsTakenBackWhileAStatementIsStillReading)
{
    connection->execute("INSERT INTO thing (name) VALUES ('a'), ('b')");
    const auto rows = connection->prepare("SELECT id FROM thing");
    {
        const sql::Transaction transaction(*connection);
        ASSERT_TRUE(rows->step());
        connection->execute("DELETE FROM thing");
    }
    EXPECT_EQ(count(), 2);
}

TEST_F(Sql, ATableKeepsItsTypes)
{
    EXPECT_EQ(errorOf([&] { connection->execute("INSERT INTO thing (value) VALUES ('x')"); }),
              "test.db: the database reports: cannot store TEXT value in REAL column thing.value.");
}

TEST_F(Sql, AWrongQueryIsAnErrorOfTheDatabase)
{
    EXPECT_EQ(errorOf([&] { static_cast<void>(connection->prepare("SELECT missing")); }),
              "test.db: the database reports: no such column: missing.");
}

TEST_F(Sql, ParametersOutOfOrderAreRefused)
{
    EXPECT_EQ(errorOf([&] { static_cast<void>(connection->prepare("SELECT $2, $1")); }),
              "The parameters of a query are out of order: SELECT $2, $1");
}

TEST_F(Sql, AReferenceToAnUnknownRowIsRefused)
{
    connection->execute("CREATE TABLE part (thing INTEGER REFERENCES thing (id))");
    EXPECT_NE(errorOf([&] { connection->execute("INSERT INTO part VALUES (7)"); }), "no error");
}

TEST_F(Sql, AStampIsKept)
{
    EXPECT_EQ(connection->applicationMark(), 0);
    EXPECT_EQ(connection->schemaVersion(), 0);
    connection->stamp(12, 34);
    EXPECT_EQ(connection->applicationMark(), 12);
    EXPECT_EQ(connection->schemaVersion(), 34);
    EXPECT_TRUE(connection->holdsTables());
}

} // namespace

} // namespace k7deval::sitedb::test
