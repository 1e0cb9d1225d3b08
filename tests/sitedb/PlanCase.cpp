#include "sitedb/PlanCase.h"

#include "sitedb/PlainText.h"
#include "sitedb/SiteQueries.h"

#include <nlohmann/json.hpp>

namespace k7deval::sitedb::test
{

namespace
{

constexpr const char* kSmallPlan = R"({
 "orisCode": 54, "facilityName": "Small Plant", "version": "1",
 "unitStackConfigurationData": [
  {"unitId": "U1", "stackPipeId": "CS1", "beginDate": "2000-01-01", "endDate": null}],
 "monitoringLocationData": [
  {"unitId": "U1", "stackPipeId": null,
   "monitoringFormulaData": [{"formulaId": "F1"}, {"formulaId": "F2"}],
   "monitoringSpanData": [
    {"componentTypeCode": "NOX", "spanScaleCode": "H", "mecValue": 40, "mpcValue": 90,
     "spanValue": 100, "fullScaleRange": 100, "spanUnitsOfMeasureCode": "PPM",
     "beginDate": "2000-01-01", "beginHour": 0, "endDate": "2014-12-31", "endHour": 23},
    {"componentTypeCode": "NOX", "spanScaleCode": "H", "mecValue": 47, "mpcValue": 180.5,
     "spanValue": 200, "fullScaleRange": 250, "spanUnitsOfMeasureCode": "PPM",
     "beginDate": "2015-01-01", "beginHour": 7, "endDate": null, "endHour": null},
    {"componentTypeCode": "NOX", "spanScaleCode": "L", "mecValue": 18, "mpcValue": null,
     "spanValue": 20, "fullScaleRange": 20, "spanUnitsOfMeasureCode": "PPM",
     "beginDate": "2015-01-01", "beginHour": 7, "endDate": null, "endHour": null},
    {"componentTypeCode": "CO2", "spanScaleCode": "H", "mecValue": null, "mpcValue": 14,
     "spanValue": 20, "fullScaleRange": 20, "spanUnitsOfMeasureCode": "PCT",
     "beginDate": "2000-01-01", "beginHour": 0, "endDate": "2020-06-30", "endHour": 12},
    {"componentTypeCode": "FLOW", "spanScaleCode": null, "mpcValue": null, "mpfValue": 57600000,
     "spanValue": 1800, "fullScaleRange": 2000, "spanUnitsOfMeasureCode": "KSCFM",
     "flowSpanValue": 108000000, "flowFullScaleRange": 120000000,
     "beginDate": "2013-11-08", "beginHour": 13, "endDate": null, "endHour": null},
    {"componentTypeCode": "PM", "spanScaleCode": "H", "spanValue": 10,
     "beginDate": "2013-11-08", "beginHour": 13, "endDate": null, "endHour": null}],
   "monitoringLoadData": [
    {"maximumLoadValue": 140, "lowerOperationBoundary": 40, "upperOperationBoundary": 140,
     "maximumLoadUnitsOfMeasureCode": "MW",
     "beginDate": "2000-01-01", "beginHour": 0, "endDate": "2014-12-31", "endHour": 23},
    {"maximumLoadValue": 150, "lowerOperationBoundary": 30.5, "upperOperationBoundary": 145,
     "maximumLoadUnitsOfMeasureCode": "MW",
     "beginDate": "2015-01-01", "beginHour": 0, "endDate": null, "endHour": null}],
   "componentData": [
    {"componentId": "011", "componentTypeCode": "NOX", "analyzerRangeData": [
     {"analyzerRangeCode": "H", "dualRangeIndicator": 0,
      "beginDate": "2000-01-01", "beginHour": 0, "endDate": "2010-12-31", "endHour": 23}]},
    {"componentId": "010", "componentTypeCode": "NOX", "analyzerRangeData": [
     {"analyzerRangeCode": "H", "dualRangeIndicator": 0,
      "beginDate": "2011-01-01", "beginHour": 0, "endDate": "2014-12-31", "endHour": 23},
     {"analyzerRangeCode": "A", "dualRangeIndicator": 1,
      "beginDate": "2015-01-01", "beginHour": 7, "endDate": null, "endHour": null}]},
    {"componentId": "020", "componentTypeCode": "CO2", "analyzerRangeData": [
     {"analyzerRangeCode": "H", "dualRangeIndicator": 0,
      "beginDate": "2000-01-01", "beginHour": 0, "endDate": null, "endHour": null}]},
    {"componentId": "030", "componentTypeCode": "FLOW", "analyzerRangeData": []},
    {"componentId": "999", "componentTypeCode": "DAHS", "analyzerRangeData": []}]},
  {"unitId": null, "stackPipeId": "CS1",
   "monitoringSpanData": [
    {"componentTypeCode": "SO2", "spanScaleCode": "H", "mecValue": null, "mpcValue": 450,
     "spanValue": 500, "fullScaleRange": 500, "spanUnitsOfMeasureCode": "PPM",
     "beginDate": "2000-01-01", "beginHour": 0, "endDate": null, "endHour": null}],
   "monitoringLoadData": [
    {"maximumLoadValue": 600, "lowerOperationBoundary": null, "upperOperationBoundary": null,
     "maximumLoadUnitsOfMeasureCode": "KLBHR",
     "beginDate": "2000-01-01", "beginHour": 0, "endDate": null, "endHour": null}],
   "componentData": [
    {"componentId": "100", "componentTypeCode": "SO2", "analyzerRangeData": [
     {"analyzerRangeCode": "H", "dualRangeIndicator": 0,
      "beginDate": "2000-01-01", "beginHour": 0, "endDate": null, "endHour": null}]}]},
  {"unitId": null, "stackPipeId": "CP1", "componentData": [
    {"componentId": "500", "componentTypeCode": "GFFM", "analyzerRangeData": []}]}
 ]
})";

} // namespace

std::string smallPlan()
{
    return kSmallPlan;
}

std::string patchedPlan(const std::string& path, const std::string& value)
{
    return patchedJson(kSmallPlan, path, value);
}

std::vector<std::string> parametersOfType(const SiteDatabase& site, std::int32_t type)
{
    std::vector<std::string> texts;
    for (const auto& entry : site.server()->ParametersOfTypes({type}))
        texts.push_back(PIDToText(entry->PID()) + " " + entry->Name(0));
    return texts;
}

std::vector<std::string> spansOf(const SiteDatabase& site)
{
    std::vector<std::string> texts;
    for (const auto& entry : site.server()->ParametersOfTypes({kCalibrationType})) {
        const auto definition = recordsOf(site, entry->PID(), kCalibrationTable);
        texts.push_back(entry->Name(0) + ": " +
                        numberText(std::get<double>(definition.at(0)->Span())));
    }
    return texts;
}

std::vector<std::string> constantsOf(const SiteDatabase& site, std::int32_t unit)
{
    std::vector<std::string> texts;
    for (const auto& entry : site.server()->ConstantsOfUnitTypes({4, 34}, unit, {0, 3})) {
        auto point = entry->CurrentPoint(0, 0, 0);
        texts.push_back(std::to_string(PIDPart(entry->PID(), pidpart::kParameterCode)) + " " +
                        std::to_string(PIDPart(entry->PID(), pidpart::kProgramCode)) + " " +
                        std::to_string(PIDPart(entry->PID(), pidpart::kSuffix)) + ": " +
                        numberText(std::get<double>(point.ItemByIndex(1).Value())));
    }
    return texts;
}

} // namespace k7deval::sitedb::test
