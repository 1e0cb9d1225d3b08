#include "sevenday/ToolRig.h"

namespace k7deval::test
{

namespace
{

constexpr int kHoursADay = 24;

RecordData record(const CalFacts& facts, std::int32_t gasLevelCode, float reference, float measured)
{
    RecordData data;
    data.pid = facts.pid;
    data.runTime = facts.time;
    data.scale = facts.scale;
    data.gasLevelCode = gasLevelCode;
    data.gasLevelText = gasLevelCode == 0 ? "zero" : "high";
    data.reference = reference;
    data.measured = measured;
    data.manual = facts.manual;
    data.calStatus = facts.online ? 0 : status::kOfflineCalibration;
    data.span = 200.0F;
    data.sourceTag = facts.pid;
    return data;
}

} // namespace

void addCal(SiteData& site, const CalFacts& facts)
{
    if (facts.hasZero)
        site.records.push_back(record(facts, 0, 0, facts.zeroMeasured));
    site.records.push_back(record(facts, 2, 160, facts.spanMeasured));
}

std::shared_ptr<SiteData> operatedSite()
{
    auto site = siteOf({});
    ParameterData hours;
    hours.pid = kGT3Hours;
    hours.name = "Operating time";
    hours.hours.start = makeDate(2024, 2, 10);
    for (Date day = hours.hours.start; day <= makeDate(2024, 3, 10); day.days += 1) {
        const bool operated = day >= makeDate(2024, 3, 1) && day <= makeDate(2024, 3, 9);
        hours.hours.values.insert(hours.hours.values.end(), kHoursADay, operated ? 1.0 : 0.0);
    }
    site->parameters.push_back(hours);
    site->parameter(kGT3).links[attribute::kOperatingTimePID] = kGT3Hours;
    return site;
}

std::shared_ptr<SiteData> siteWithDailyCals(int days)
{
    auto site = operatedSite();
    for (int day = 1; day <= days; ++day)
        addCal(*site, {.time = march(day)});
    return site;
}

} // namespace k7deval::test
