#include "sitedb/SiteDatabase.h"

#include "sitedb/PlainText.h"
#include "sitedb/sql/Engines.h"
#include "sitedb/tables/Schema.h"
#include "sitedb/tables/SiteIds.h"
#include "sitedb/tables/SiteServer.h"
#include "sitedb/tables/SiteWriter.h"
#include "sitedb/tables/StatusWords.h"

#include <utility>

namespace k7deval::sitedb
{

namespace
{

void changeCapacity(SiteWriter& writer, const UnitCapacity& capacity)
{
    if (capacity.megawatts && !isCapacity(*capacity.megawatts))
        throw Error(errors::kInvalidCall, "A capacity is a number of MW above 0, at most " +
                                              numberText(kHighestLoad) + ".");
    const auto unit = writer.units.find(capacity.unit);
    if (!unit)
        throw Error(errors::kInvalidCall, "The site has no unit " + capacity.unit + ".");
    if (capacity.megawatts)
        writer.constants.setCapacity(*unit, *capacity.megawatts);
    else
        writer.constants.remove(capacityPID(*unit));
}

} // namespace

bool isCapacity(double megawatts)
{
    return megawatts > 0 && megawatts <= kHighestLoad;
}

SiteDatabase::SiteDatabase(std::shared_ptr<sql::Connection> connection)
    : connection_(std::move(connection))
{
}

SiteDatabase SiteDatabase::open(const SiteLocator& locator, OpenMode mode)
{
    auto connection = sql::open(locator, mode == OpenMode::ReadOnly ? sql::Access::ReadOnly
                                                                    : sql::Access::ReadWrite);
    if (mode == OpenMode::ReadWrite && !connection->holdsTables())
        createSchema(*connection, sql::newSiteKey(locator));
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

std::optional<std::string> SiteDatabase::facilityName() const
{
    return LookupTable(*connection_).facilityName();
}

std::vector<UnitPower> SiteDatabase::unitPowers() const
{
    SiteWriter tables(*connection_);
    std::vector<UnitPower> powers;
    for (const auto& unit : server()->Units()) {
        const std::int32_t number = PIDPart(unit->PID(), pidpart::kUnit);
        powers.push_back({unit->Name(0), tables.constants.value(capacityPID(number)),
                          tables.constants.value(maximumLoadPID(number))});
    }
    return powers;
}

void SiteDatabase::change(const SiteChanges& changes)
{
    sql::Transaction transaction(*connection_);
    SiteWriter writer(*connection_);
    if (changes.facilityName)
        writer.lookups.setFacilityName(*changes.facilityName);
    for (const auto& capacity : changes.capacities)
        changeCapacity(writer, capacity);
    transaction.commit();
}

void SiteDatabase::setFacilityName(const std::string& name)
{
    change({name, {}});
}

void SiteDatabase::setCapacity(const std::string& unitIdentifier, double megawatts)
{
    change({std::nullopt, {{unitIdentifier, megawatts}}});
}

} // namespace k7deval::sitedb
