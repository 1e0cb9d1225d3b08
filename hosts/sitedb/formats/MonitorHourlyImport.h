#pragma once

#include "sitedb/formats/Importer.h"

namespace k7deval::sitedb
{

/// Hours of a unit's monitors from a CSV table with the columns date, hour, parameter, modc and
/// unadjusted_hourly_value, or unadjusted_hourly_value_ugscm for mercury.
Taken takeMonitorHourly(const ImportTask& task);

} // namespace k7deval::sitedb
