#pragma once

#include "foundation/DataInterface.h"

#include <QString>

#include <optional>

/// What the screens of a site's data ask of it: names, injections, and where the data ends, so that
/// days that have some can be proposed.
namespace k7deval::workbench
{

/// "GT3 Load": the parameter's name behind that of its unit.
QString nameWithUnit(DIServer& server, DIParameter& parameter);

/// Data is looked for from here on: sources had no continuous monitors under 40 CFR 75 before.
Date beginningOfData();
/// The last hour of the present year.
Date endOfData(Date now);

/// The newest hour with a value from a day on, if there is one.
std::optional<Date> newestValue(DIParameter& parameter, Date now,
                                Date firstDay = beginningOfData());

/// The injections of a calibration in a range of time, both ends included.
DIRecordList readInjections(DIServer& server, DIParameter& calibration, Date start, Date end,
                            const RegionalSettings& regional);
/// The run time of the newest injection of a calibration from a day on, if there is one.
std::optional<Date> newestInjection(DIServer& server, DIParameter& calibration,
                                    const RegionalSettings& regional, Date now,
                                    Date firstDay = beginningOfData());

} // namespace k7deval::workbench
