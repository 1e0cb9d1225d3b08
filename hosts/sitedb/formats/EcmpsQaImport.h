#pragma once

#include "sitedb/formats/Importer.h"

namespace k7deval::sitedb
{

/// Calibration injections of an ECMPS 2.0 QA file (JSON). The analyzers have to be in the site,
/// from a monitoring plan or span table.
Taken takeEcmpsQa(const ImportTask& task);

} // namespace k7deval::sitedb
