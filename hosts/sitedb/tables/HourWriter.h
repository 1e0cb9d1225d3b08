#pragma once

#include "foundation/PIDFunctions.h"
#include "sitedb/sql/Connection.h"
#include "sitedb/tables/Outcome.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

namespace k7deval::sitedb
{

/// An hour of a parameter. Times are local standard time: every day has its 24 hours.
struct SiteHour {
    std::string day; ///< 'YYYY-MM-DD'.
    int hour = 0;    ///< The hour that begins then, 0 to 23.
    std::optional<double> value;
    std::int32_t word = 0; ///< Its status word.
};

/// Puts the hours of one file into a site and takes none twice. What it remembers is a few bytes
/// for each day of each parameter. The caller holds the transaction.
class HourWriter
{
public:
    explicit HourWriter(sql::Connection& connection);

    Outcome add(PID pid, const SiteHour& hour);

    /// Why an hour was not taken; what is named as "the unit's load".
    static std::string fault(Outcome outcome, const std::string& what, const SiteHour& hour);

private:
    using HoursOfDay = std::uint32_t;
    std::unique_ptr<sql::Statement> insert_;
    std::unordered_map<PID, std::unordered_map<std::string, HoursOfDay>> inFile_;
};

} // namespace k7deval::sitedb
