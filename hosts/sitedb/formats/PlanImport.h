#pragma once

#include "sitedb/formats/Importer.h"

namespace k7deval::sitedb
{

/// Units, analyzers, spans and maximum loads from a monitoring plan (JSON), in the layout of the
/// ECMPS import or of EPA's API.
Taken takeMonitoringPlan(const ImportTask& task);

/// Units, analyzers and spans from a CSV table with the columns oris, location, component_type_cd,
/// span_value and the other fields of a plan's span. The table names no components.
Taken takeLocationSpans(const ImportTask& task);

} // namespace k7deval::sitedb
