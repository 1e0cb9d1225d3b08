#pragma once

#include "sitedb/formats/Importer.h"

namespace k7deval::sitedb
{

/// Units, analyzers and spans from a CSV table with the columns unit_id, component_id,
/// component_type, span_scale, span_value and units.
Taken takeSpanTable(const ImportTask& task);

} // namespace k7deval::sitedb
