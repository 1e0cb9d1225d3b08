#pragma once

#include "sitedb/sql/Dialect.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// The layer between the site's queries and a database engine. A query is written once, with its
/// parameters as $1, $2, ... in rising order; what engines differ in stands in Dialect and in the
/// virtual members.
namespace k7deval::sitedb::sql
{

/// A parameter or a column: NULL, a whole number, a number, or UTF-8 text.
using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

/// A number, or NULL for nothing.
Value orNull(const std::optional<double>& number);

/// One prepared query or command. Its columns are valid until the next step or reset.
class Statement
{
public:
    Statement() = default;
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    virtual ~Statement() = default;

    /// Gives parameter $index (from 1) a value.
    virtual void bind(int index, const Value& value) = 0;
    /// Goes to the next row; false when there is none.
    virtual bool step() = 0;
    /// Makes the statement ready to run again; its parameters keep their values.
    virtual void reset() = 0;
    /// A column (from 0) of the present row.
    [[nodiscard]] virtual Value column(int index) const = 0;

    /// Starts anew with these parameters.
    template <class... Values> Statement& with(const Values&... values)
    {
        reset();
        int index = 0;
        (bind(++index, Value(values)), ...);
        return *this;
    }
    /// Starts anew with these parameters and runs to the end.
    template <class... Values> void run(const Values&... values)
    {
        with(values...);
        while (step()) {
        }
        reset();
    }

    [[nodiscard]] bool isNull(int index) const;
    /// A column of that type. Error 13 when the row holds another one.
    [[nodiscard]] std::int64_t integer(int index) const;
    [[nodiscard]] std::int32_t int32(int index) const;
    [[nodiscard]] double real(int index) const;
    [[nodiscard]] std::string text(int index) const;
};

enum class Access { ReadOnly, ReadWrite };

/// An open database. A failure of the engine is raised as k7deval::Error with a plain sentence.
class Connection
{
public:
    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    virtual ~Connection() = default;

    [[nodiscard]] virtual std::unique_ptr<Statement> prepare(std::string_view query) = 0;
    [[nodiscard]] virtual const Dialect& dialect() const = 0;
    /// What the database is called in a sentence: its file name.
    [[nodiscard]] virtual std::string name() const = 0;

    virtual void begin() = 0;
    virtual void commit() = 0;
    /// Never fails: what was not committed is gone.
    virtual void rollback() noexcept = 0;

    /// Whether anything was ever put into the database.
    [[nodiscard]] virtual bool holdsTables() = 0;
    /// The mark of the program whose data it is, and the version of its tables; both 0 at first.
    [[nodiscard]] virtual std::int64_t applicationMark() = 0;
    [[nodiscard]] virtual std::int64_t schemaVersion() = 0;
    virtual void stamp(std::int64_t applicationMark, std::int64_t schemaVersion) = 0;

    /// Prepares a command and runs it once.
    template <class... Values> void execute(std::string_view command, const Values&... values)
    {
        prepare(command)->run(values...);
    }
};

/// A transaction that is taken back unless it was committed.
class Transaction
{
public:
    explicit Transaction(Connection& connection);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    void commit();

private:
    Connection& connection_;
    bool open_ = true;
};

} // namespace k7deval::sitedb::sql
