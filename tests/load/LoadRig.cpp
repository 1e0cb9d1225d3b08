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

bool isCleared(const ctrlMaxMW& tool)
{
    for (const auto* label :
         {&tool.lblHeader, &tool.lblLowOpPercent, &tool.lblMidOpPercent, &tool.lblHighOpPercent,
          &tool.lblMinSafe, &tool.lblLow, &tool.lblMid, &tool.lblMax}) {
        if (!label->Caption().empty())
            return false;
    }
    return barsLieFlat(tool.lblBar) && tool.lblBelow.Caption() == "0 hour(s) under minimum" &&
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
