#pragma once

#include "sitedb/SiteLocator.h"
#include "sitedb/sql/Connection.h"

#include <memory>

namespace k7deval::sitedb::sql
{

/// Opens the database that a locator names, with the engine of its scheme. Access::ReadWrite makes
/// one where there is none. Error 53 for a file that is not there, 75 for what can't be opened and
/// for a scheme that no engine has.
std::shared_ptr<Connection> open(const SiteLocator& locator, Access access);

/// The key of a site that is made there: the file's name without its extension.
std::string newSiteKey(const SiteLocator& locator);

} // namespace k7deval::sitedb::sql
