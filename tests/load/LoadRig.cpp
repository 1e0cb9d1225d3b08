#include "load/LoadRig.h"

#include <ostream>

namespace k7deval::test
{

ParameterData constantOf(PID pid, std::optional<double> value, std::int32_t type,
                         std::int32_t subset)
{
    ParameterData data;
    data.pid = pid;
    data.name = "Capacity";
    data.type = type;
    data.constant = ConstantData{value, subset};
    return data;
}

std::shared_ptr<SiteData> siteOfParameters(const std::vector<ParameterData>& parameters)
{
    auto site = std::make_shared<SiteData>();
    site->parameters = {unitNamed(kGT1, "GT1")};
    site->parameters.insert(site->parameters.end(), parameters.begin(), parameters.end());
    return site;
}

std::shared_ptr<SiteData> siteOfLoads()
{
    return siteOfParameters({hourlyNamed(kGT1Load, "GT1 Load"), constantOf(kGT1Capacity, 100),
                             unitNamed(kGT2, "GT2"), hourlyNamed(kGT2Load, "GT2 Load")});
}

LoadRig& LoadRig::hours(const std::vector<double>& values, std::int32_t status)
{
    load() = {};
    Date hour = makeDate(2024, 1, 1);
    for (const double value : values) {
        load().set(hour, value, status);
        hour = dateFromSeconds(wholeSeconds(hour) + 3600);
    }
    return *this;
}

LoadRig& LoadRig::addHours(std::size_t count, double value)
{
    if (load().values.empty())
        load().start = makeDate(2024, 1, 1);
    load().values.insert(load().values.end(), count, value);
    return *this;
}

std::vector<ReadRequest> LoadRig::takeReads()
{
    std::vector<ReadRequest> reads;
    reads.swap(site->reads);
    return reads;
}

bool isCleared(const ctrlMaxMW& tool)
{
    for (const auto* label :
         {&tool.lblHeader, &tool.lblLowOpPercent, &tool.lblMidOpPercent, &tool.lblHighOpPercent,
          &tool.lblMinSafe, &tool.lblLow, &tool.lblMid, &tool.lblMax}) {
        if (!label->Caption().empty())
            return false;
    }
    for (int bar = 1; bar <= 20; ++bar) {
        const screen::Label& label = tool.lblBar[bar];
        if (label.place().Top != 2700 || label.place().Height != 15 || !label.ToolTipText().empty())
            return false;
    }
    return tool.lblBelow.Caption() == "0 hour(s) under minimum" &&
           tool.lblAbove.Caption() == "0 hour(s) over maximum";
}

HourCounts countsOf(const LoadEvaluation& evaluation)
{
    return {evaluation.LowHours, evaluation.MidHours, evaluation.HighHours, evaluation.OverHours,
            evaluation.UnderHours};
}

std::ostream& operator<<(std::ostream& out, const HourCounts& counts)
{
    return out << "low " << counts.low << ", mid " << counts.mid << ", high " << counts.high
               << ", over " << counts.over << ", under " << counts.under;
}

} // namespace k7deval::test
