#pragma once

#include "sitedb/sql/Connection.h"

namespace k7deval::sitedb
{

/// Marks a file as a site ("K7ST"), and the version of the tables that this program knows.
inline constexpr std::int64_t kSiteMark = 0x4B375354;
inline constexpr std::int64_t kSchemaVersion = 1;

/// Makes the tables of a new site in one transaction. siteKey is the site's key for good.
void createSchema(sql::Connection& connection, const std::string& siteKey);

/// Raises error 75 with a plain sentence unless the database is a site of this version.
void checkSchema(sql::Connection& connection);

} // namespace k7deval::sitedb
