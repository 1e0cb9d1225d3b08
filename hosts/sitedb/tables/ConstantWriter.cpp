#include "sitedb/tables/ConstantWriter.h"

#include "foundation/DataInterface.h"
#include "sitedb/tables/SiteIds.h"

namespace k7deval::sitedb
{

std::optional<double> ConstantWriter::value(PID pid)
{
    const auto row = connection_.prepare("SELECT value FROM constant WHERE pid = $1");
    row->with(std::int64_t{pid});
    return row->step() && !row->isNull(0) ? std::optional(row->real(0)) : std::nullopt;
}

void ConstantWriter::set(PID pid, const std::string& name, double megawatts)
{
    if (!parameters_.exists(pid)) {
        parameters_.add(pid, {name, paramtype::kConstant, "MW"});
        parameters_.setAttribute(pid, attribute::kLeftOutOfLists, false);
    }
    connection_.execute(
        connection_.dialect().insertOrUpdate({"constant", {"pid"}, {"subset", "value", "status"}}),
        std::int64_t{pid}, std::int64_t{kUnitConstants}, megawatts,
        std::int64_t{status::kMeasured});
}

void ConstantWriter::setCapacity(std::int32_t unit, double megawatts)
{
    set(capacityPID(unit), "Capacity", megawatts);
}

void ConstantWriter::remove(PID pid)
{
    connection_.execute("DELETE FROM constant WHERE pid = $1", std::int64_t{pid});
    parameters_.remove(pid);
}

} // namespace k7deval::sitedb
