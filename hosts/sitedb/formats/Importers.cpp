#include "sitedb/formats/Importer.h"

#include "sitedb/formats/EcmpsEmissionsImport.h"
#include "sitedb/formats/EcmpsQaImport.h"
#include "sitedb/formats/HourlyLoadImport.h"
#include "sitedb/formats/MonitorHourlyImport.h"
#include "sitedb/formats/PlanImport.h"
#include "sitedb/formats/SpanTableImport.h"

#include <utility>
#include <vector>

namespace k7deval::sitedb
{

namespace
{

Recognition tableWith(std::set<std::string> columns)
{
    return {Recognition::Form::Table, std::move(columns)};
}

Recognition jsonWith(std::set<std::string> names)
{
    return {Recognition::Form::Json, std::move(names)};
}

} // namespace

std::span<const Importer> importers()
{
    static const std::vector<Importer> all{
        {.kind = {.format = "ECMPS QA data"},
         .recognition =
             jsonWith({"testSummaryData", "certificationEventData", "testExtensionExemptionData"}),
         .take = takeEcmpsQa},
        {.kind = {.format = "ECMPS emissions data"},
         .recognition = jsonWith({"quarter", "hourlyOperatingData", "dailyTestSummaryData",
                                  "dailyEmissionData", "weeklyTestSummaryData", "summaryValueData",
                                  "longTermFuelFlowData", "sorbentTrapData", "nsps4tSummaryData",
                                  "dailyBackstopData"}),
         .take = takeEcmpsEmissions,
         .readsAsStream = true},
        {.kind = {.format = "monitoring plan", .bringsUnits = true},
         .recognition = jsonWith({"monitoringLocationData", "locations"}),
         .take = takeMonitoringPlan},
        {.kind = {.format = "span table", .bringsUnits = true},
         .recognition = tableWith({"unit_id", "component_id", "span_value"}),
         .take = takeSpanTable},
        {.kind = {.format = "spans of locations", .bringsUnits = true, .takesUnit = true},
         .recognition = tableWith({"oris", "location", "component_type_cd", "span_value"}),
         .take = takeLocationSpans,
         .mayComeAgain = true},
        {.kind = {.format = "hourly load", .takesUnit = true, .needsUnit = true},
         .recognition = tableWith({"date", "hour", "gross_load_mw"}),
         .take = takeHourlyLoad},
        {.kind = {.format = "hours of a monitor",
                  .takesUnit = true,
                  .needsUnit = true,
                  .takesComponent = true},
         .recognition = tableWith({"date", "hour", "parameter", "modc"}),
         .take = takeMonitorHourly},
    };
    return all;
}

} // namespace k7deval::sitedb
