#pragma once

#include "sitedb/read/JsonNode.h"
#include "sitedb/tables/SiteWriter.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <vector>

/// What the parts of an emissions import share.
namespace k7deval::sitedb
{

/// The fields of an emissions file that more than one part goes by.
namespace emissions
{
inline constexpr const char* kHours = "hourlyOperatingData";
inline constexpr const char* kDailyTests = "dailyTestSummaryData";
} // namespace emissions

/// Whose record it is. EPA reports by unit, stack or pipe, and a site keeps each as a unit.
struct EmissionsLocation {
    std::string name;
    std::string path; ///< Of the field that names it.
};

/// The location of a record. Raises ImportError when it names none or two, or no identifier.
EmissionsLocation locationOf(const JsonNode& record);

/// The component of a record; its name is empty where the record names none. Raises ImportError
/// for what is no identifier.
EmissionsLocation componentOf(const JsonNode& record);

/// Counts what is stepped over, by kind.
class SteppedOver
{
public:
    /// One more of "list: 12 values of XYZ": where, what one of them is called, and which.
    void add(const std::string& list, const std::string& what, const std::string& which);
    [[nodiscard]] std::vector<std::string> sentences() const;

private:
    std::map<std::tuple<std::string, std::string, std::string>, std::size_t> counts_;
};

} // namespace k7deval::sitedb
