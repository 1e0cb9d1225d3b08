#pragma once

#include "sitedb/sql/Connection.h"

#include <optional>
#include <string>

namespace k7deval::sitedb
{

/// The texts that a site keeps under a table and a key. Who changes them holds the transaction.
class LookupTable
{
public:
    explicit LookupTable(sql::Connection& connection) : connection_(connection) {}

    [[nodiscard]] std::optional<std::string> find(const std::string& table, const std::string& key);
    void set(const std::string& table, const std::string& key, const std::string& value);
    void remove(const std::string& table, const std::string& key);

    /// The name that stands on reports, or nothing.
    [[nodiscard]] std::optional<std::string> facilityName();
    /// An empty name is none.
    void setFacilityName(const std::string& name);

private:
    sql::Connection& connection_;
};

} // namespace k7deval::sitedb
