#pragma once

#include "sitedb/sql/Connection.h"

#include <filesystem>
#include <memory>

namespace k7deval::sitedb::sql
{

/// Opens a SQLite file; ReadWrite makes one where there is none. Error 53 for a file that is not
/// there, 75 for one that can't be opened.
std::shared_ptr<Connection> openSqlite(const std::filesystem::path& path, Access access);

} // namespace k7deval::sitedb::sql
