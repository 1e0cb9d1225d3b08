#pragma once

#include "foundation/DataInterface.h"
#include "sitedb/SiteLocator.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace k7deval::sitedb
{

namespace sql
{
class Connection;
}

enum class OpenMode {
    ReadOnly,
    ReadWrite, ///< Makes a new, empty site where there is no file or an empty one.
};

/// What is known of the power of a unit, in MW.
struct UnitPower {
    std::string unit;                  ///< Its identifier.
    std::optional<double> capacity;    ///< As it was set.
    std::optional<double> maximumLoad; ///< By the monitoring plan.

    friend bool operator==(const UnitPower&, const UnitPower&) = default;
};

/// The capacity that load evaluation proposes for a unit, in MW; nothing: none of our own, so that
/// it proposes the maximum load of the monitoring plan.
struct UnitCapacity {
    std::string unit;
    std::optional<double> megawatts;
};

/// Whether a number of MW can be the capacity of a unit: above 0, of at most six digits.
bool isCapacity(double megawatts);

/// What an operator changes of a site.
struct SiteChanges {
    /// The name that stands on reports; empty: none, so that the next monitoring plan brings it.
    std::optional<std::string> facilityName;
    std::vector<UnitCapacity> capacities;
};

/// One site: a database with all data that the tools ask for, behind the data interface.
class SiteDatabase
{
public:
    /// A site that a program was writing to when it ended is first made what it was before. Error
    /// 53 when there is no file to read, 70 or 75 when it can't be used, is no site database, has
    /// tables of another version or is to be reached by an unknown scheme. A new site's key is the
    /// file's name without its extension.
    static SiteDatabase open(const SiteLocator& locator, OpenMode mode);

    /// The data of the site. The server stays usable after this object is gone.
    [[nodiscard]] std::shared_ptr<DIServer> server() const;

    /// The name that stands on reports, or nothing.
    [[nodiscard]] std::optional<std::string> facilityName() const;
    /// The units in the order of their numbers.
    [[nodiscard]] std::vector<UnitPower> unitPowers() const;

    /// Makes all of the changes or, with an error, none. Error 5 for a unit that the site does not
    /// have and for a number that is no capacity.
    void change(const SiteChanges& changes);
    /// The name that stands on reports.
    void setFacilityName(const std::string& name);
    /// The capacity, in MW, that load evaluation proposes for a unit, under the rules of `change`.
    void setCapacity(const std::string& unitIdentifier, double megawatts);

    /// The tables, for the importers.
    [[nodiscard]] sql::Connection& connection() const { return *connection_; }

private:
    explicit SiteDatabase(std::shared_ptr<sql::Connection> connection);

    std::shared_ptr<sql::Connection> connection_;
};

} // namespace k7deval::sitedb
