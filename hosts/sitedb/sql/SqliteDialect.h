#pragma once

#include "sitedb/sql/Dialect.h"

namespace k7deval::sitedb::sql
{

/// Tables are STRICT: a column holds its type or NULL, nothing else.
class SqliteDialect final : public Dialect
{
public:
    [[nodiscard]] std::string wholeType() const override { return "INTEGER"; }
    [[nodiscard]] std::string realType() const override { return "REAL"; }
    [[nodiscard]] std::string automaticKey() const override
    {
        return "INTEGER NOT NULL PRIMARY KEY";
    }
    [[nodiscard]] std::string tableOptions() const override { return " STRICT"; }
    [[nodiscard]] std::string keyedTableOptions() const override
    {
        return " STRICT, WITHOUT ROWID";
    }
    [[nodiscard]] std::string insertOrUpdate(const RowColumns& row) const override;
    [[nodiscard]] std::string insertIfNew(const RowColumns& row) const override;
};

} // namespace k7deval::sitedb::sql
