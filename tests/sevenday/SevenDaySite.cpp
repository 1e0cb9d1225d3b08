#include "sevenday/SevenDaySite.h"

namespace k7deval::test
{

namespace
{

constexpr std::int32_t kMeasuredType = 8;

ParameterData unit(PID pid, const std::string& name, std::int32_t oris)
{
    ParameterData data;
    data.pid = pid;
    data.name = name;
    data.type = kUnitType;
    data.attributes = {{attribute::kOrisCode, oris},
                       {attribute::kSeveralStacks, false},
                       {attribute::kUnitIdentifier, name + "   "},
                       {attribute::kStackIdentifiers, std::string()}};
    return data;
}

} // namespace

void addAnalyzer(SiteData& site, const AnalyzerFacts& facts)
{
    ParameterData measured;
    measured.pid = facts.measuredPID();
    measured.name = facts.name;
    measured.type = kMeasuredType;
    measured.unitsText = facts.unitsText;
    site.parameters.push_back(measured);

    ParameterData calibration;
    calibration.pid = facts.calibrationPID();
    calibration.name = facts.name + " calibration";
    calibration.type = kCalibrationType;
    calibration.attributes = {{attribute::kDecimals, facts.decimals},
                              {attribute::kMeasuredPID, facts.measuredPID()},
                              {attribute::kLeftOutOfLists, facts.leftOut},
                              {attribute::kScale, facts.scale},
                              {attribute::kComponentId, facts.component},
                              {attribute::kRecordTable, facts.table},
                              {attribute::kTestNumberBase, facts.testNumberBase}};
    site.parameters.push_back(calibration);
}

std::shared_ptr<SiteData> siteOfUnits()
{
    auto site = std::make_shared<SiteData>();
    site->parameters = {unit(kGT3, "GT3", 50292), unit(kGT4, "GT4", 50293)};
    return site;
}

std::shared_ptr<SiteData> siteOf(const AnalyzerFacts& facts)
{
    auto site = siteOfUnits();
    addAnalyzer(*site, facts);
    return site;
}

} // namespace k7deval::test
