#pragma once

#include "sitedb/sql/Connection.h"

namespace k7deval::sitedb
{

/// Whether a site lacks words that this program uses; one made by an earlier program may.
bool lacksStatusWords(sql::Connection& connection);
/// Puts the words that a site lacks into it, and leaves those that it has as they are. The caller
/// holds the transaction.
void addStatusWords(sql::Connection& connection);

} // namespace k7deval::sitedb
