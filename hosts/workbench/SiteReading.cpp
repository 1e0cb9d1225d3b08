#include "workbench/SiteReading.h"

#include "foundation/RegionalSettings.h"
#include "foundation/UtilityFunctions.h"
#include "histogram/Quarters.h"
#include "qt/Texts.h"
#include "sevenday/CalibrationTables.h"

#include <QDate>

#include <algorithm>
#include <cmath>

namespace k7deval::workbench
{

namespace
{

constexpr int kFirstYear = 1990;

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

Date endOfData()
{
    return makeDate(QDate::currentDate().year(), 12, 31, 23);
}

std::optional<Date> newestValue(DIParameter& parameter, Date firstDay)
{
    std::optional<Date> newest;
    histogram::walkQuarters(parameter, endOfData(), firstDay, [&](const DIDataSet& hours) {
        const auto values = hours.Values();
        for (std::size_t slot = values.size(); slot > 0 && !newest; --slot) {
            if (std::isfinite(values[slot - 1]))
                newest = DateAddExact("h", static_cast<double>(slot - 1), hours.StartTime());
        }
        return !newest;
    });
    return newest;
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
    query.pid = toInt32(calibration.GetAttribute(attribute::kMeasuredPID), regional);
    query.scale = scaleName == nullptr ? std::string() : *scaleName;
    query.tables = kCalibrationTables;
    return present(server.RecordStore()).ReadRangeRecords(query);
}

std::optional<Date> newestInjection(DIServer& server, DIParameter& calibration,
                                    const RegionalSettings& regional, Date firstDay)
{
    std::optional<Date> newest;
    for (const auto& record : readInjections(server, calibration, firstDay, endOfData(), regional))
        newest = std::max(newest.value_or(firstDay), present(record).RunTime());
    return newest;
}

} // namespace k7deval::workbench
