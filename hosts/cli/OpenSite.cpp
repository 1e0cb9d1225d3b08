#include "cli/OpenSite.h"

#include "cli/UsageError.h"
#include "foundation/FileFunctions.h"

#include <system_error>

namespace k7deval::cli
{

sitedb::SiteDatabase openSite(const std::string& path, sitedb::OpenMode mode)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(filePath(path), ignored))
        throw UsageError(path + " is a folder; a site is one file.");
    return sitedb::SiteDatabase::open(path, mode);
}

std::shared_ptr<DIServer> readSite(const std::string& path)
{
    return openSite(path, sitedb::OpenMode::ReadOnly).server();
}

void requireUnits(DIServer& server)
{
    if (server.Units().empty())
        throw UsageError(
            "The site " + server.SiteKey() +
            " has no unit yet; import a monitoring plan, a span table or hourly data first.");
}

} // namespace k7deval::cli
