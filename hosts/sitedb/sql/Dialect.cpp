#include "sitedb/sql/Dialect.h"

namespace k7deval::sitedb::sql
{

std::string insertOf(const RowColumns& row)
{
    std::vector<std::string> columns = row.keys;
    columns.insert(columns.end(), row.values.begin(), row.values.end());
    std::vector<std::string> parameters;
    for (std::size_t index = 1; index <= columns.size(); ++index)
        parameters.push_back("$" + std::to_string(index));
    return "INSERT INTO " + row.table + " (" + commaList(columns) + ") VALUES (" +
           commaList(parameters) + ")";
}

std::string commaList(const std::vector<std::string>& names)
{
    std::string list;
    for (const auto& name : names)
        list += (list.empty() ? "" : ", ") + name;
    return list;
}

} // namespace k7deval::sitedb::sql
