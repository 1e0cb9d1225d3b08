#pragma once

#include "sitedb/formats/Importer.h"

namespace k7deval::sitedb
{

/// Operating time, load, hours of monitors and daily calibrations of an ECMPS 2.0 emissions file
/// (JSON) of any size, which is read as a stream.
Taken takeEcmpsEmissions(const ImportTask& task);

} // namespace k7deval::sitedb
