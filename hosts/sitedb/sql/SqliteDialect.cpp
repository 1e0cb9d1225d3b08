#include "sitedb/sql/SqliteDialect.h"

namespace k7deval::sitedb::sql
{

std::string SqliteDialect::insertOrUpdate(const RowColumns& row) const
{
    std::vector<std::string> changes;
    changes.reserve(row.values.size());
    for (const auto& column : row.values)
        changes.push_back(std::string(column).append(" = excluded.").append(column));
    return insertOf(row) + " ON CONFLICT (" + commaList(row.keys) + ") DO UPDATE SET " +
           commaList(changes);
}

std::string SqliteDialect::insertIfNew(const RowColumns& row) const
{
    return insertOf(row) + " ON CONFLICT (" + commaList(row.keys) + ") DO NOTHING RETURNING " +
           row.keys.front();
}

} // namespace k7deval::sitedb::sql
