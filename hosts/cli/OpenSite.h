#pragma once

#include "sitedb/SiteDatabase.h"

#include <memory>
#include <string>

namespace k7deval::cli
{

/// Opens the site at a path. UsageError for a folder, else what SiteDatabase::open raises.
sitedb::SiteDatabase openSite(const std::string& path, sitedb::OpenMode mode);
/// The data of a site, to be read only.
std::shared_ptr<DIServer> readSite(const std::string& path);
/// UsageError for a site without units, of which the tools have nothing to show.
void requireUnits(DIServer& server);

} // namespace k7deval::cli
