#pragma once

#include "foundation/DataInterface.h"
#include "sitedb/sql/Connection.h"

#include <memory>
#include <string>

namespace k7deval::sitedb
{

/// The data interface on a site's tables. Everything it hands out keeps the database open.
class SiteServer final : public DIServer
{
public:
    explicit SiteServer(std::shared_ptr<sql::Connection> connection);

    [[nodiscard]] std::shared_ptr<DIParameters> Parameters() override;
    [[nodiscard]] DIParameterList Units() override;
    [[nodiscard]] DIParameterList ParametersOfTypes(const ParamTypes& types) override;
    [[nodiscard]] DIParameterList ParametersOfUnit(std::int32_t unit,
                                                   const ParamTypes& types) override;
    [[nodiscard]] DIParameterList ParametersOfInterval(const std::string& interval) override;
    [[nodiscard]] DIParameterList ParametersOfUnitTypes(const ParamTypes& types, std::int32_t unit,
                                                        std::int32_t,
                                                        const std::string& interval) override;
    /// The constants of the unit of one of the types and of one of the subsets.
    [[nodiscard]] DIParameterList ConstantsOfUnitTypes(const ParamTypes& types, std::int32_t unit,
                                                       const ParamTypes& subset) override;
    [[nodiscard]] std::shared_ptr<DIStatusCodes> StatusCodes() override;
    [[nodiscard]] std::shared_ptr<DIRecordStore> RecordStore() override;
    [[nodiscard]] std::shared_ptr<DILookupService> LookupService() override;
    [[nodiscard]] std::shared_ptr<DISiteInfo> SiteInfo() override;
    [[nodiscard]] std::string SiteKey() override { return siteKey_; }

private:
    std::shared_ptr<sql::Connection> connection_;
    std::string siteKey_;
};

} // namespace k7deval::sitedb
