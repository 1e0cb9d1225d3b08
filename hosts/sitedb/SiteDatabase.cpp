#include "sitedb/SiteDatabase.h"

#include "sitedb/PlainText.h"
#include "sitedb/Schema.h"
#include "sitedb/SiteIds.h"
#include "sitedb/SiteServer.h"
#include "sitedb/SiteWriter.h"
#include "sitedb/StatusWords.h"
#include "sitedb/sql/SqliteConnection.h"

#include <cmath>
#include <utility>

namespace k7deval::sitedb
{

SiteDatabase::SiteDatabase(std::shared_ptr<sql::Connection> connection)
    : connection_(std::move(connection))
{
}

SiteDatabase SiteDatabase::open(const std::filesystem::path& path, OpenMode mode)
{
    auto connection = sql::openSqlite(
        path, mode == OpenMode::ReadOnly ? sql::SqliteMode::ReadOnly : sql::SqliteMode::ReadWrite);
    if (mode == OpenMode::ReadWrite && !connection->holdsTables())
        createSchema(*connection, utf8Text(path.stem()));
    checkSchema(*connection);
    if (mode == OpenMode::ReadWrite && lacksStatusWords(*connection)) {
        sql::Transaction transaction(*connection);
        addStatusWords(*connection);
        transaction.commit();
    }
    return SiteDatabase(std::move(connection));
}

std::shared_ptr<DIServer> SiteDatabase::server() const
{
    return std::make_shared<SiteServer>(connection_);
}

void SiteDatabase::setFacilityName(const std::string& name)
{
    sql::Transaction transaction(*connection_);
    SiteWriter(*connection_).setLookup(kLookupTable, kFacilityNameEntry, name);
    transaction.commit();
}

void SiteDatabase::setCapacity(const std::string& unitIdentifier, double megawatts)
{
    if (!std::isfinite(megawatts) || megawatts <= 0)
        throw Error(errors::kInvalidCall, "A capacity is a number of MW above 0.");
    sql::Transaction transaction(*connection_);
    SiteWriter writer(*connection_);
    const auto unit = writer.findUnit(unitIdentifier);
    if (!unit)
        throw Error(errors::kInvalidCall, "The site has no unit " + unitIdentifier + ".");
    writer.setCapacity(*unit, megawatts);
    transaction.commit();
}

} // namespace k7deval::sitedb
