#include "workbench/SiteReading.h"

#include "foundation/RegionalSettings.h"
#include "foundation/UtilityFunctions.h"
#include "qt/Texts.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace k7deval::workbench
{

namespace
{

constexpr int kFirstYear = 1990;
constexpr int kMonthsPerYear = 12;

using Find = std::function<std::optional<Date>(Date start, Date end)>;

/// Searches the time up to the end of the present year, the newest year first, then stretches that
/// double in length: data that is up to date is found in the first, and a parameter without any
/// costs a few.
std::optional<Date> findBackward(Date now, Date firstDay, const Find& find)
{
    Date end = DateAddExact("h", 1, endOfData(now));
    for (int years = 1; end > firstDay; years *= 2) {
        const Date start = std::max(firstDay, DateAddExact("m", -kMonthsPerYear * years, end));
        if (const auto found = find(start, end))
            return found;
        end = start;
    }
    return std::nullopt;
}

} // namespace

QString nameWithUnit(DIServer& server, DIParameter& parameter)
{
    const auto codes = server.StatusCodes();
    const std::string unit = present(codes).UnitName(parameter.PID());
    return qt::toQString(unit + " " + parameter.Name(0)).trimmed();
}

Date beginningOfData()
{
    return makeDate(kFirstYear, 1, 1);
}

Date endOfData(Date now)
{
    return makeDate(dateParts(now).year, 12, 31, 23);
}

std::optional<Date> newestValue(DIParameter& parameter, Date now, Date firstDay)
{
    return findBackward(now, firstDay, [&](Date start, Date end) {
        DIDataSet hours;
        hours.Init(start, static_cast<std::int32_t>(hourBoundariesBetween(start, end)), "h", 1, 0);
        parameter.ReadData(hours);
        const auto values = hours.values();
        for (std::size_t slot = values.size(); slot > 0; --slot) {
            if (std::isfinite(values[slot - 1]))
                return std::optional(DateAddExact("h", static_cast<double>(slot - 1), start));
        }
        return std::optional<Date>();
    });
}

DIRecordList readInjections(DIServer& server, DIParameter& calibration, Date start, Date end,
                            const RegionalSettings& regional)
{
    const Variant scale = calibration.GetAttribute(attribute::kScale);
    const auto* scaleName = std::get_if<std::string>(&scale);
    RangeRecordQuery query;
    query.siteKey = server.SiteKey();
    query.start = start;
    query.end = end;
    query.pid = integerIn(calibration.GetAttribute(attribute::kMeasuredPID), regional);
    query.scale = scaleName == nullptr ? std::string() : *scaleName;
    query.tables = kCalibrationTables;
    return present(server.RecordStore()).ReadRangeRecords(query);
}

std::optional<Date> newestInjection(DIServer& server, DIParameter& calibration,
                                    const RegionalSettings& regional, Date now, Date firstDay)
{
    return findBackward(now, firstDay, [&](Date start, Date end) {
        std::optional<Date> newest;
        for (const auto& record : readInjections(server, calibration, start, end, regional))
            newest = std::max(newest, std::optional(present(record).RunTime()));
        return newest;
    });
}

} // namespace k7deval::workbench
