#include "sitedb/tables/LookupTable.h"

#include "sitedb/tables/SiteIds.h"

namespace k7deval::sitedb
{

std::optional<std::string> LookupTable::find(const std::string& table, const std::string& key)
{
    const auto row =
        connection_.prepare("SELECT value FROM lookup WHERE lookup_table = $1 AND lookup_key = $2");
    return row->with(table, key).step() ? std::optional(row->text(0)) : std::nullopt;
}

void LookupTable::set(const std::string& table, const std::string& key, const std::string& value)
{
    connection_.execute(
        connection_.dialect().insertOrUpdate({"lookup", {"lookup_table", "lookup_key"}, {"value"}}),
        table, key, value);
}

void LookupTable::remove(const std::string& table, const std::string& key)
{
    connection_.execute("DELETE FROM lookup WHERE lookup_table = $1 AND lookup_key = $2", table,
                        key);
}

std::optional<std::string> LookupTable::facilityName()
{
    return find(kLookupTable, kFacilityNameEntry);
}

void LookupTable::setFacilityName(const std::string& name)
{
    if (name.empty())
        remove(kLookupTable, kFacilityNameEntry);
    else
        set(kLookupTable, kFacilityNameEntry, name);
}

} // namespace k7deval::sitedb
