#pragma once

#include "sitedb/tables/ParameterWriter.h"

#include <cstdint>
#include <optional>
#include <string>

namespace k7deval::sitedb
{

/// Puts units and the series of their operation into the tables. The caller holds the transaction.
class UnitWriter
{
public:
    explicit UnitWriter(sql::Connection& connection)
        : connection_(connection), parameters_(connection)
    {
    }

    /// The number of the unit with this identifier, or nothing.
    [[nodiscard]] std::optional<std::int32_t> find(const std::string& identifier);
    /// Makes a unit under the next number; nothing when the site has all the units that PIDs allow.
    std::optional<std::int32_t> add(const std::string& identifier);

    /// Makes the load or operating-time parameter of a unit where it is missing.
    void addLoad(std::int32_t unit);
    void addOperatingTime(std::int32_t unit);

    /// The ORIS code that the site's units carry, or nothing.
    [[nodiscard]] std::optional<std::int32_t> orisCode();
    /// Gives all units of the site their ORIS code.
    void setOrisCode(std::int32_t code);

private:
    bool addSeries(PID pid, const char* name, const char* unitsText);

    sql::Connection& connection_;
    ParameterWriter parameters_;
};

} // namespace k7deval::sitedb
