#pragma once

#include "foundation/DataInterface.h"

#include <filesystem>
#include <memory>
#include <string>

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

/// One site: a file with all data that the tools ask for, behind the data interface.
class SiteDatabase
{
public:
    /// Error 53 when there is no file to read, 70 or 75 when it can't be used, is no site database
    /// or has tables of another version. A new site's key is the file's name without its extension.
    static SiteDatabase open(const std::filesystem::path& path, OpenMode mode);

    /// The data of the site. The server stays usable after this object is gone.
    [[nodiscard]] std::shared_ptr<DIServer> server() const;

    /// The name that stands on reports.
    void setFacilityName(const std::string& name);
    /// The capacity, in MW, that load evaluation proposes for a unit. Error 5 for a unit that the
    /// site does not have and for a capacity that is not a positive number.
    void setCapacity(const std::string& unitIdentifier, double megawatts);

    /// The tables, for the importers.
    [[nodiscard]] sql::Connection& connection() const { return *connection_; }

private:
    explicit SiteDatabase(std::shared_ptr<sql::Connection> connection);

    std::shared_ptr<sql::Connection> connection_;
};

} // namespace k7deval::sitedb
