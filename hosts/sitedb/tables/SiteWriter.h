#pragma once

#include "sitedb/tables/AnalyzerWriter.h"
#include "sitedb/tables/ConstantWriter.h"
#include "sitedb/tables/LookupTable.h"
#include "sitedb/tables/ParameterWriter.h"
#include "sitedb/tables/UnitWriter.h"

namespace k7deval::sitedb
{

/// What the importers and the site itself put into the tables, by what it is. The caller holds the
/// transaction.
struct SiteWriter {
    explicit SiteWriter(sql::Connection& connection)
        : parameters(connection), units(connection), analyzers(connection), constants(connection),
          lookups(connection)
    {
    }

    ParameterWriter parameters;
    UnitWriter units;
    AnalyzerWriter analyzers;
    ConstantWriter constants;
    LookupTable lookups;
};

} // namespace k7deval::sitedb
