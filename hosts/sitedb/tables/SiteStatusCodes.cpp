#include "sitedb/tables/SiteStatusCodes.h"

#include <utility>

namespace k7deval::sitedb
{

SiteStatusCodes::SiteStatusCodes(std::shared_ptr<sql::Connection> connection)
    : connection_(std::move(connection))
{
    const auto rows =
        connection_->prepare("SELECT word, valid, excluded, offline, meaning FROM status_word");
    while (rows->step())
        words_[rows->int32(0)] = {rows->integer(1) != 0, rows->integer(2) != 0,
                                  rows->integer(3) != 0, rows->text(4)};
}

const SiteStatusCodes::Meaning& SiteStatusCodes::meaning(std::int32_t status) const
{
    static const Meaning unknown;
    const auto found = words_.find(status);
    return found == words_.end() ? unknown : found->second;
}

bool SiteStatusCodes::IsValid(std::int32_t status)
{
    return meaning(status).valid;
}

bool SiteStatusCodes::IsExcluded(std::int32_t status)
{
    return meaning(status).excluded;
}

bool SiteStatusCodes::IsUnitOffline(std::int32_t status)
{
    return meaning(status).offline;
}

std::string SiteStatusCodes::UnitName(PID pid)
{
    const auto row = connection_->prepare("SELECT name FROM parameter WHERE pid = $1");
    row->with(std::int64_t{UnitPID(pid)});
    return row->step() ? row->text(0) : std::string();
}

} // namespace k7deval::sitedb
