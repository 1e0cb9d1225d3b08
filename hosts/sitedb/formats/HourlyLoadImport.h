#pragma once

#include "sitedb/formats/Importer.h"

namespace k7deval::sitedb
{

/// Hourly load of a unit from a CSV table with the columns date, hour and gross_load_mw.
Taken takeHourlyLoad(const ImportTask& task);

} // namespace k7deval::sitedb
