#pragma once

#include "sitedb/SiteDatabase.h"

#include <memory>
#include <string>

namespace k7deval::cli
{

/// Opens the site at a path. UsageError for a folder, else what SiteDatabase::open raises.
sitedb::SiteDatabase openSite(const std::string& path, sitedb::OpenMode mode);
/// The data of a site, for reading alone.
std::shared_ptr<DIServer> readSite(const std::string& path);
/// UsageError for a site that has no units yet, which the tools have nothing to show of.
void requireUnits(DIServer& server);

} // namespace k7deval::cli
