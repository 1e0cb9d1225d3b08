#include "sitedb/tables/SiteParameter.h"

#include "sitedb/PlainText.h"
#include "sitedb/tables/SiteIds.h"
#include "sitedb/tables/TimeText.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace k7deval::sitedb
{

namespace
{

constexpr const char* kParameterColumns =
    "SELECT pid, name, param_type, units_text, interval_letter, interval_multiple, interval_unit"
    " FROM parameter";

ParameterRow parameterRow(const sql::Statement& row)
{
    return {row.int32(0), row.text(1), row.int32(2),
            row.text(3),  row.text(4), {row.int32(5), row.int32(6)}};
}

std::int32_t wholeAttribute(const std::string& text)
{
    const auto value = plainWhole(text);
    if (!value)
        throw Error(errors::kTypeMismatch, "The attribute " + inQuotes(text) +
                                               " in the site database is no whole number.");
    return *value;
}

Variant attributeValue(const std::string& kind, const std::string& text)
{
    if (kind == attributekind::kWhole)
        return wholeAttribute(text);
    if (kind == attributekind::kBoolean)
        return text == kTrueText;
    return text;
}

/// Where the hours of a table row go in a set: slots from the hour that the set begins with.
class SlotFinder
{
public:
    explicit SlotFinder(const DIDataSet& set)
        : first_(firstHour(set)), count_(static_cast<std::size_t>(set.Count()))
    {
    }

    /// The slot of an hour, or the count of slots for an hour outside the set.
    [[nodiscard]] std::size_t slot(const std::string& day, std::int64_t hour) const
    {
        const auto number = dayNumber(day);
        if (!number)
            throw Error(errors::kTypeMismatch, inQuotes(day) + " is no date in the site database.");
        const std::int64_t slot = *number * kHoursPerDay + hour - first_;
        return slot < 0 ? count_ : std::min(static_cast<std::size_t>(slot), count_);
    }

private:
    static std::int64_t firstHour(const DIDataSet& set)
    {
        return hourBoundariesBetween(Date{}, set.StartTime());
    }

    std::int64_t first_;
    std::size_t count_;
};

void clearSlots(DIDataSet& set)
{
    std::ranges::fill(set.values(), std::numeric_limits<double>::quiet_NaN());
    std::ranges::fill(set.statuses(), status::kNoData);
}

} // namespace

SiteParameter::SiteParameter(std::shared_ptr<sql::Connection> connection, ParameterRow row)
    : connection_(std::move(connection)), row_(std::move(row))
{
}

std::string SiteParameter::Name(std::int32_t /*form*/)
{
    return row_.name;
}

void SiteParameter::ReadData(DIDataSet& set)
{
    clearSlots(set);
    const SlotFinder finder(set);
    const auto count = static_cast<std::size_t>(set.Count());
    const auto rows = connection_->prepare("SELECT day, hour, value, status FROM hourly_value"
                                           " WHERE pid = $1 AND day BETWEEN $2 AND $3");
    rows->with(std::int64_t{row_.pid}, dayText(set.StartTime()), dayText(set.EndTime()));
    while (rows->step()) {
        const std::size_t slot = finder.slot(rows->text(0), rows->integer(1));
        if (slot == count)
            continue;
        if (!rows->isNull(2))
            set.values()[slot] = rows->real(2);
        set.statuses()[slot] = rows->int32(3);
    }
}

DIDataSet SiteParameter::CurrentPoint(std::int32_t /*unused*/, std::int32_t /*unused*/,
                                      std::int32_t /*unused*/)
{
    DIDataSet point;
    point.Init(Date{}, 1, "h", 1, 0);
    const auto row = connection_->prepare("SELECT value, status FROM constant WHERE pid = $1");
    row->with(std::int64_t{row_.pid});
    if (row->step()) {
        if (!row->isNull(0))
            point.values()[0] = row->real(0);
        point.statuses()[0] = row->int32(1);
    }
    return point;
}

Variant SiteParameter::GetAttribute(std::int32_t id)
{
    const auto row =
        connection_->prepare("SELECT kind, value FROM attribute WHERE pid = $1 AND id = $2");
    row->with(std::int64_t{row_.pid}, std::int64_t{id});
    if (!row->step())
        return Null{};
    return attributeValue(row->text(0), row->text(1));
}

Variant SiteParameter::GetLinkedPID(std::int32_t id)
{
    const auto row = connection_->prepare("SELECT target_pid FROM link WHERE pid = $1 AND id = $2");
    row->with(std::int64_t{row_.pid}, std::int64_t{id});
    return row->step() ? row->int32(0) : 0;
}

DIParameterList readParameters(const std::shared_ptr<sql::Connection>& connection,
                               const std::function<bool(const ParameterRow&)>& isWanted)
{
    DIParameterList list;
    const auto rows = connection->prepare(std::string(kParameterColumns) + " ORDER BY pid");
    while (rows->step()) {
        ParameterRow row = parameterRow(*rows);
        if (isWanted(row))
            list.push_back(std::make_shared<SiteParameter>(connection, std::move(row)));
    }
    return list;
}

std::shared_ptr<DIParameter> readParameter(const std::shared_ptr<sql::Connection>& connection,
                                           PID pid)
{
    const auto row = connection->prepare(std::string(kParameterColumns) + " WHERE pid = $1");
    row->with(std::int64_t{pid});
    if (!row->step())
        return nullptr;
    return std::make_shared<SiteParameter>(connection, parameterRow(*row));
}

} // namespace k7deval::sitedb
