#pragma once

#include "sitedb/tables/ParameterWriter.h"

#include <cstdint>
#include <optional>
#include <string>

namespace k7deval::sitedb
{

/// Puts constants of units into the tables, in MW. The caller holds the transaction.
class ConstantWriter
{
public:
    explicit ConstantWriter(sql::Connection& connection)
        : connection_(connection), parameters_(connection)
    {
    }

    /// The value of a constant, or nothing.
    [[nodiscard]] std::optional<double> value(PID pid);
    /// Makes or changes a constant.
    void set(PID pid, const std::string& name, double megawatts);
    void setCapacity(std::int32_t unit, double megawatts);
    /// Takes a constant away, where there is one.
    void remove(PID pid);

private:
    sql::Connection& connection_;
    ParameterWriter parameters_;
};

} // namespace k7deval::sitedb
