#pragma once

#include "foundation/DataInterface.h"
#include "sitedb/sql/Connection.h"

#include <memory>
#include <string>
#include <unordered_map>

namespace k7deval::sitedb
{

/// The site's status words, read once when the object is made: a tool asks for every hour.
/// A word that the site does not know is not valid, not excluded and not off line.
class SiteStatusCodes final : public DIStatusCodes
{
public:
    explicit SiteStatusCodes(std::shared_ptr<sql::Connection> connection);

    [[nodiscard]] bool IsValid(std::int32_t status) override;
    [[nodiscard]] bool IsExcluded(std::int32_t status) override;
    [[nodiscard]] bool IsUnitOffline(std::int32_t status) override;
    /// Empty for a PID of a unit that the site does not have.
    [[nodiscard]] std::string UnitName(PID pid) override;
    /// What the site says of a word, "MODC 06: average of the hours before and after"; empty for a
    /// word that it does not know.
    [[nodiscard]] const std::string& textOf(std::int32_t status) const
    {
        return meaning(status).text;
    }

private:
    struct Meaning {
        bool valid = false;
        bool excluded = false;
        bool offline = false;
        std::string text = {};
    };
    [[nodiscard]] const Meaning& meaning(std::int32_t status) const;

    std::shared_ptr<sql::Connection> connection_;
    std::unordered_map<std::int32_t, Meaning> words_;
};

} // namespace k7deval::sitedb
