#include "sitedb/sql/Engines.h"

#include "foundation/Error.h"
#include "sitedb/PlainText.h"
#include "sitedb/sql/SqliteConnection.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace k7deval::sitedb::sql
{

namespace
{

struct Engine {
    std::string_view scheme;
    std::shared_ptr<Connection> (*open)(const SiteLocator&, Access);
    std::string (*newSiteKey)(const SiteLocator&);
};

constexpr std::array kEngines{
    Engine{"",
           [](const SiteLocator& locator, Access access) {
               return openSqlite(locator.file(), access);
           },
           [](const SiteLocator& locator) { return utf8Text(locator.file().stem()); }},
};

const Engine& engineOf(const SiteLocator& locator)
{
    const auto* const found = std::ranges::find(kEngines, locator.scheme(), &Engine::scheme);
    if (found == kEngines.end())
        throw Error(errors::kPathAccess, inQuotes(locator.scheme()) +
                                             " is no kind of database that this program can open; "
                                             "a site is the path of a file.");
    return *found;
}

} // namespace

std::shared_ptr<Connection> open(const SiteLocator& locator, Access access)
{
    return engineOf(locator).open(locator, access);
}

std::string newSiteKey(const SiteLocator& locator)
{
    return engineOf(locator).newSiteKey(locator);
}

} // namespace k7deval::sitedb::sql
