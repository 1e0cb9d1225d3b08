#pragma once

#include "foundation/DataInterface.h"

#include <memory>
#include <utility>

namespace k7deval::test
{

/// A site's data with a record store that always gives the same records.
class ServerOfRecords final : public DIServer, public DIRecordStore
{
public:
    ServerOfRecords(std::shared_ptr<DIServer> server, DIRecordList records)
        : server_(std::move(server)), records_(std::move(records))
    {
    }

    std::shared_ptr<DIParameters> Parameters() override { return server_->Parameters(); }
    DIParameterList Units() override { return server_->Units(); }
    DIParameterList ParametersOfTypes(const ParamTypes& types) override
    {
        return server_->ParametersOfTypes(types);
    }
    DIParameterList ParametersOfUnit(std::int32_t unit, const ParamTypes& types) override
    {
        return server_->ParametersOfUnit(unit, types);
    }
    DIParameterList ParametersOfInterval(const std::string& interval) override
    {
        return server_->ParametersOfInterval(interval);
    }
    DIParameterList ParametersOfUnitTypes(const ParamTypes& types, std::int32_t unit,
                                          std::int32_t form, const std::string& interval) override
    {
        return server_->ParametersOfUnitTypes(types, unit, form, interval);
    }
    DIParameterList ConstantsOfUnitTypes(const ParamTypes& types, std::int32_t unit,
                                         const ParamTypes& subset) override
    {
        return server_->ConstantsOfUnitTypes(types, unit, subset);
    }
    std::shared_ptr<DIStatusCodes> StatusCodes() override { return server_->StatusCodes(); }
    std::shared_ptr<DIRecordStore> RecordStore() override
    {
        return std::make_shared<ServerOfRecords>(*this);
    }
    std::shared_ptr<DILookupService> LookupService() override { return server_->LookupService(); }
    std::shared_ptr<DISiteInfo> SiteInfo() override { return server_->SiteInfo(); }
    std::string SiteKey() override { return server_->SiteKey(); }

    DIRecordList ReadRangeRecords(const RangeRecordQuery& /*query*/) override { return records_; }
    DIRecordList ReadRecords(const RecordQuery& /*query*/) override { return records_; }

private:
    std::shared_ptr<DIServer> server_;
    DIRecordList records_;
};

} // namespace k7deval::test
