#include "sitedb/tables/SiteServer.h"

#include "sitedb/tables/LookupTable.h"
#include "sitedb/tables/SiteIds.h"
#include "sitedb/tables/SiteParameter.h"
#include "sitedb/tables/SiteRecords.h"
#include "sitedb/tables/SiteStatusCodes.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

/// "310007501 (3-100-0-75-01)"; a number that is no valid PID has no second form.
std::string pidName(PID pid)
{
    const std::string text = PIDToText(pid);
    return std::to_string(pid) + (text.empty() ? "" : " (" + text + ")");
}

class SiteParameters final : public DIParameters
{
public:
    explicit SiteParameters(std::shared_ptr<sql::Connection> connection)
        : connection_(std::move(connection))
    {
    }

    [[nodiscard]] bool Exists(PID pid) override
    {
        return readParameter(connection_, pid) != nullptr;
    }

    [[nodiscard]] std::shared_ptr<DIParameter> Item(PID pid, std::int32_t /*unused*/) override
    {
        auto parameter = readParameter(connection_, pid);
        if (!parameter)
            throw Error(errors::kInvalidCall, "The site has no parameter " + pidName(pid) + ".");
        return parameter;
    }

private:
    std::shared_ptr<sql::Connection> connection_;
};

class SiteLookupEntry final : public DILookupEntry
{
public:
    explicit SiteLookupEntry(std::string value) : value_(std::move(value)) {}
    [[nodiscard]] std::string Value() override { return value_; }

private:
    std::string value_;
};

class SiteLookups final : public DILookups
{
public:
    SiteLookups(std::shared_ptr<sql::Connection> connection, std::string siteKey)
        : connection_(std::move(connection)), siteKey_(std::move(siteKey))
    {
    }

    [[nodiscard]] std::shared_ptr<DILookupEntry>
    Find(const std::string& siteKey, std::int32_t /*unused*/, const std::string& table,
         const std::string& key, const std::string& /*unused*/) override
    {
        checkSiteKey(siteKey_, siteKey);
        const auto value = LookupTable(*connection_).find(table, key);
        return value ? std::make_shared<SiteLookupEntry>(*value) : nullptr;
    }

private:
    std::shared_ptr<sql::Connection> connection_;
    std::string siteKey_;
};

class SiteLookupService final : public DILookupService
{
public:
    explicit SiteLookupService(std::shared_ptr<DILookups> lookups) : lookups_(std::move(lookups)) {}
    [[nodiscard]] std::shared_ptr<DILookups> Lookups() override { return lookups_; }

private:
    std::shared_ptr<DILookups> lookups_;
};

class SiteFacts final : public DISiteInfo
{
public:
    explicit SiteFacts(std::string siteKey) : siteKey_(std::move(siteKey)) {}
    [[nodiscard]] std::string SiteKey() override { return siteKey_; }

private:
    std::string siteKey_;
};

bool isOneOf(std::int32_t value, const ParamTypes& list)
{
    return std::ranges::find(list, value) != list.end();
}

bool isOfUnit(const ParameterRow& row, std::int32_t unit)
{
    return PIDPart(row.pid, pidpart::kUnit) == unit;
}

std::unordered_map<PID, std::int32_t> constantSubsets(sql::Connection& connection)
{
    std::unordered_map<PID, std::int32_t> subsets;
    const auto rows = connection.prepare("SELECT pid, subset FROM constant");
    while (rows->step())
        subsets[rows->int32(0)] = rows->int32(1);
    return subsets;
}

} // namespace

SiteServer::SiteServer(std::shared_ptr<sql::Connection> connection)
    : connection_(std::move(connection)),
      siteKey_(LookupTable(*connection_).find(kSiteTable, kSiteKeyEntry).value_or(""))
{
}

std::shared_ptr<DIParameters> SiteServer::Parameters()
{
    return std::make_shared<SiteParameters>(connection_);
}

DIParameterList SiteServer::Units()
{
    return ParametersOfTypes({kUnitType});
}

DIParameterList SiteServer::ParametersOfTypes(const ParamTypes& types)
{
    return readParameters(connection_,
                          [&](const ParameterRow& row) { return isOneOf(row.type, types); });
}

DIParameterList SiteServer::ParametersOfUnit(std::int32_t unit, const ParamTypes& types)
{
    return readParameters(connection_, [&](const ParameterRow& row) {
        return isOfUnit(row, unit) && isOneOf(row.type, types);
    });
}

DIParameterList SiteServer::ParametersOfInterval(const std::string& interval)
{
    return readParameters(connection_, [&](const ParameterRow& row) {
        return !row.intervalLetter.empty() && row.intervalLetter == interval;
    });
}

DIParameterList SiteServer::ParametersOfUnitTypes(const ParamTypes& types, std::int32_t unit,
                                                  std::int32_t /*unused*/,
                                                  const std::string& interval)
{
    return readParameters(connection_, [&](const ParameterRow& row) {
        return isOfUnit(row, unit) && isOneOf(row.type, types) && !row.intervalLetter.empty() &&
               row.intervalLetter == interval;
    });
}

DIParameterList SiteServer::ConstantsOfUnitTypes(const ParamTypes& types, std::int32_t unit,
                                                 const ParamTypes& subset)
{
    const auto subsets = constantSubsets(*connection_);
    return readParameters(connection_, [&](const ParameterRow& row) {
        const auto found = subsets.find(row.pid);
        return found != subsets.end() && isOfUnit(row, unit) && isOneOf(row.type, types) &&
               isOneOf(found->second, subset);
    });
}

std::shared_ptr<DIStatusCodes> SiteServer::StatusCodes()
{
    return std::make_shared<SiteStatusCodes>(connection_);
}

std::shared_ptr<DIRecordStore> SiteServer::RecordStore()
{
    return std::make_shared<SiteRecords>(connection_, siteKey_);
}

std::shared_ptr<DILookupService> SiteServer::LookupService()
{
    return std::make_shared<SiteLookupService>(
        std::make_shared<SiteLookups>(connection_, siteKey_));
}

std::shared_ptr<DISiteInfo> SiteServer::SiteInfo()
{
    return std::make_shared<SiteFacts>(siteKey_);
}

} // namespace k7deval::sitedb
