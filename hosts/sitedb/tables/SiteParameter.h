#pragma once

#include "foundation/DataInterface.h"
#include "sitedb/sql/Connection.h"

#include <functional>
#include <memory>
#include <string>

namespace k7deval::sitedb
{

/// What a site's table keeps of a parameter itself.
struct ParameterRow {
    k7deval::PID pid = 0;
    std::string name;
    std::int32_t type = 0;
    std::string unitsText;
    std::string intervalLetter; ///< "h", or empty for a parameter without a series.
    DIInterval interval;
};

/// A parameter of a site. Its attributes, links and values are read when asked for.
class SiteParameter final : public DIParameter
{
public:
    SiteParameter(std::shared_ptr<sql::Connection> connection, ParameterRow row);

    [[nodiscard]] k7deval::PID PID() override { return row_.pid; }
    [[nodiscard]] std::string Name(std::int32_t form) override;
    [[nodiscard]] std::int32_t ParamType() override { return row_.type; }
    [[nodiscard]] std::string UnitsText() override { return row_.unitsText; }
    [[nodiscard]] DIInterval Interval() override { return row_.interval; }
    /// Hours that the site does not hold are left without a value, with the status word of no data.
    void ReadData(DIDataSet& set) override;
    /// Null for a parameter that is no constant.
    [[nodiscard]] DIDataSet CurrentPoint(std::int32_t, std::int32_t, std::int32_t) override;
    [[nodiscard]] Variant GetAttribute(std::int32_t id) override;
    [[nodiscard]] Variant GetLinkedPID(std::int32_t id) override;

private:
    std::shared_ptr<sql::Connection> connection_;
    ParameterRow row_;
};

/// The parameters of a site that pass a test, in the order of their PIDs, so that all of a unit
/// stand together behind it.
DIParameterList readParameters(const std::shared_ptr<sql::Connection>& connection,
                               const std::function<bool(const ParameterRow&)>& isWanted);

/// The parameter of a PID, or nothing.
std::shared_ptr<DIParameter> readParameter(const std::shared_ptr<sql::Connection>& connection,
                                           PID pid);

} // namespace k7deval::sitedb
