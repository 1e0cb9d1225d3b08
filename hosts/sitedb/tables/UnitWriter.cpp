#include "sitedb/tables/UnitWriter.h"

#include "foundation/DataInterface.h"
#include "sitedb/PlainText.h"
#include "sitedb/tables/SiteIds.h"

namespace k7deval::sitedb
{

namespace
{

std::string padded(std::string identifier)
{
    if (identifier.size() < kUnitIdentifierLength)
        identifier.resize(kUnitIdentifierLength, ' ');
    return identifier;
}

} // namespace

std::optional<std::int32_t> UnitWriter::find(const std::string& identifier)
{
    const auto row =
        connection_.prepare("SELECT pid FROM parameter WHERE param_type = $1 AND name = $2");
    row->with(std::int64_t{kUnitType}, identifier);
    return row->step() ? std::optional(PIDPart(row->int32(0), pidpart::kUnit)) : std::nullopt;
}

std::optional<std::int32_t> UnitWriter::add(const std::string& identifier)
{
    const auto count = connection_.prepare("SELECT COUNT(*) FROM parameter WHERE param_type = $1");
    count->with(std::int64_t{kUnitType}).step();
    const std::int32_t unit = count->int32(0) + 1;
    if (unit > kHighestUnit)
        return std::nullopt;
    const PID pid = UnitPID(unit);
    const auto oris = orisCode();
    parameters_.add(pid, {identifier, kUnitType, ""});
    parameters_.setAttribute(pid, attribute::kSeveralStacks, false);
    parameters_.setAttribute(pid, attribute::kUnitIdentifier, padded(identifier));
    parameters_.setAttribute(pid, attribute::kStackIdentifiers, std::string());
    if (oris)
        parameters_.setAttribute(pid, attribute::kOrisCode, *oris);
    return unit;
}

void UnitWriter::addLoad(std::int32_t unit)
{
    addSeries(loadPID(unit), "Load", "MW");
}

void UnitWriter::addOperatingTime(std::int32_t unit)
{
    const PID pid = operatingTimePID(unit);
    if (addSeries(pid, "Operating Time", "h"))
        parameters_.setLink(UnitPID(unit), attribute::kOperatingTimePID, pid);
}

/// Whether it was missing.
bool UnitWriter::addSeries(PID pid, const char* name, const char* unitsText)
{
    if (parameters_.exists(pid))
        return false;
    parameters_.addHourly(pid, {name, paramtype::kOperationSeries, unitsText});
    parameters_.setAttribute(pid, attribute::kLeftOutOfLists, false);
    return true;
}

std::optional<std::int32_t> UnitWriter::orisCode()
{
    const auto row = connection_.prepare("SELECT MIN(value) FROM attribute WHERE id = $1");
    row->with(std::int64_t{attribute::kOrisCode});
    if (!row->step() || row->isNull(0))
        return std::nullopt;
    return plainWhole(row->text(0));
}

void UnitWriter::setOrisCode(std::int32_t code)
{
    const auto units = connection_.prepare("SELECT pid FROM parameter WHERE param_type = $1");
    units->with(std::int64_t{kUnitType});
    while (units->step())
        parameters_.setAttribute(units->int32(0), attribute::kOrisCode, code);
}

} // namespace k7deval::sitedb
