#pragma once

#include <string>
#include <vector>

namespace k7deval::sitedb::sql
{

/// A table and the columns of a row of it, for a command that puts one in: its parameters are the
/// keys and then the values, from $1 on.
struct RowColumns {
    std::string table;
    std::vector<std::string> keys; ///< By which the table knows a row.
    std::vector<std::string> values;
};

/// What the engines spell each their own way.
class Dialect
{
public:
    Dialect() = default;
    Dialect(const Dialect&) = delete;
    Dialect& operator=(const Dialect&) = delete;
    virtual ~Dialect() = default;

    /// The type of a column of whole numbers of 64 bits.
    [[nodiscard]] virtual std::string wholeType() const = 0;
    /// The type of a column of floating-point numbers of 64 bits.
    [[nodiscard]] virtual std::string realType() const = 0;
    /// Type and constraints of a column that numbers the rows of a table by itself, in the order in
    /// which they are put in.
    [[nodiscard]] virtual std::string automaticKey() const = 0;
    /// What stands behind the closing parenthesis of a table.
    [[nodiscard]] virtual std::string tableOptions() const = 0;
    /// The same of a table that is only reached by its key.
    [[nodiscard]] virtual std::string keyedTableOptions() const = 0;

    /// A command that puts a row in, or gives the one that has its keys the new values.
    [[nodiscard]] virtual std::string insertOrUpdate(const RowColumns& row) const = 0;
    /// A command that puts a row in unless there is one with its keys. It has a row of its own, of
    /// one column, when it did.
    [[nodiscard]] virtual std::string insertIfNew(const RowColumns& row) const = 0;
};

/// "INSERT INTO table (...) VALUES ($1, ...)", which all engines understand.
std::string insertOf(const RowColumns& row);
/// Names, separated by commas.
std::string commaList(const std::vector<std::string>& names);

} // namespace k7deval::sitedb::sql
