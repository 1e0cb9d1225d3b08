#pragma once

#include "foundation/PIDFunctions.h"
#include "sitedb/sql/Connection.h"

#include <cstdint>
#include <optional>
#include <string>

namespace k7deval::sitedb
{

/// What stands on every list of parameters.
struct ParameterNames {
    std::string name;
    std::int32_t type = 0;
    std::string unitsText;
};

/// Puts parameters and their configuration attributes into the tables. The caller holds the
/// transaction.
class ParameterWriter
{
public:
    explicit ParameterWriter(sql::Connection& connection) : connection_(connection) {}

    [[nodiscard]] bool exists(PID pid);
    void add(PID pid, const ParameterNames& names);
    /// Makes a parameter that has a value for each hour.
    void addHourly(PID pid, const ParameterNames& names);
    /// Puts another beginning in the place of the old one of a parameter's name.
    void renameBeginning(PID pid, const std::string& old, const std::string& beginning);
    void setUnitsText(PID pid, const std::string& unitsText);
    /// Takes a parameter away, with its attributes.
    void remove(PID pid);

    /// A configuration attribute as a text, or nothing.
    [[nodiscard]] std::optional<std::string> attributeText(PID pid, std::int32_t id);
    void setAttribute(PID pid, std::int32_t id, std::int32_t value);
    void setAttribute(PID pid, std::int32_t id, bool value);
    void setAttribute(PID pid, std::int32_t id, const std::string& value);
    void setLink(PID pid, std::int32_t id, PID target);

private:
    void insert(PID pid, const ParameterNames& names, const std::string& intervalLetter,
                std::int64_t interval);
    void putAttribute(PID pid, std::int32_t id, const char* kind, const std::string& value);

    sql::Connection& connection_;
};

} // namespace k7deval::sitedb
