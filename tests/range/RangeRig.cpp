#include "range/RangeRig.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <sstream>

namespace k7deval::test
{

void addScale(SiteData& site, const ScaleFacts& facts)
{
    ParameterData calibration;
    calibration.pid = facts.pid();
    calibration.name = "calibration";
    calibration.type = facts.type;
    calibration.attributes[attribute::kLeftOutOfLists] = facts.leftOut;
    calibration.attributes[attribute::kRangeUse] = facts.rangeUse;
    calibration.attributes[attribute::kRecordTable] = facts.table;
    calibration.attributes[attribute::kScale] = facts.scale;
    site.parameters.push_back(calibration);
    if (!facts.span)
        return;
    RecordData definition;
    definition.pid = facts.pid();
    definition.span = *facts.span;
    site.records.push_back(definition);
}

std::shared_ptr<SiteData> siteOfNOx(const std::vector<ScaleFacts>& scales)
{
    auto site = std::make_shared<SiteData>();
    site->facilityName = "Bethpage";
    // An hour that a test says nothing of is no hour of operation.
    site->statusMeanings[0] = {.offline = true};
    site->parameters = {unitNamed(kGT1, "GT1"), hourlyNamed(kNOx, "NOX")};
    for (const ScaleFacts& scale : scales)
        addScale(*site, scale);
    return site;
}

std::shared_ptr<SiteData> siteOfTwoUnits()
{
    auto site = siteOfNOx({{.scale = std::string("LOW"), .span = 50.0F},
                           {.suffix = 2, .scale = std::string("HIGH"), .span = 500.0F},
                           {.code = 230, .span = 20.0F},
                           {.unit = 2, .scale = std::string("MID"), .span = 250.0F}});
    site->parameters.push_back(hourlyNamed(MakePID(1, 230, 1, 75, 0), "CO2"));
    site->parameters.push_back(unitNamed(kGT2, "GT2"));
    site->parameters.push_back(hourlyNamed(kGT2NOx, "NOX"));
    return site;
}

RangeRig& RangeRig::limits(const std::string& mec, const std::string& mpc)
{
    enter(tool.txtMEC, mec);
    enter(tool.txtMPC, mpc);
    return *this;
}

Counters countersOf(const RangeEvaluation& evaluation)
{
    return {evaluation.LowHours,       evaluation.MidHours,      evaluation.HighHours,
            evaluation.OverRangeHours, evaluation.AboveMECHours, evaluation.AboveMPCHours,
            evaluation.ReplacedHours,  evaluation.InvalidHours};
}

std::ostream& operator<<(std::ostream& out, const Counters& counters)
{
    return out << "low " << counters.low << ", mid " << counters.mid << ", high " << counters.high
               << ", over " << counters.overRange << ", MEC " << counters.aboveMEC << ", MPC "
               << counters.aboveMPC << ", replaced " << counters.replaced << ", invalid "
               << counters.invalid;
}

std::string filledBins(const RangeEvaluation& evaluation)
{
    std::ostringstream text;
    for (std::size_t bin = 0; bin < evaluation.Bins.size(); ++bin) {
        if (evaluation.Bins[bin] != 0)
            text << (text.tellp() > 0 ? ", " : "") << bin << ": " << evaluation.Bins[bin];
    }
    return text.str();
}

bool isCleared(const ctrlRangeEval& tool)
{
    const std::array texts = {&tool.lblHeader,       &tool.lblMinSafe,      &tool.lblLow,
                              &tool.lblMid,          &tool.lblMax,          &tool.lblLowOpPercent,
                              &tool.lblMidOpPercent, &tool.lblHighOpPercent};
    const bool hasNoTexts = std::all_of(texts.begin(), texts.end(),
                                        [](const auto* label) { return label->Caption().empty(); });
    return hasNoTexts && barsLieFlat(tool.lblBar) &&
           tool.lblAboveMEC.Caption() == "Hours above MEC:  N/A" &&
           tool.lblAboveMPC.Caption() == "Hours above MPC:  N/A" &&
           tool.lblOverRange.Caption() == "Hours over Range:  N/A" &&
           tool.lblReplaced.Caption() == "Hours with 200% replacement:  N/A" &&
           tool.lblInvalid.Caption() == "Invalid Hours:  N/A";
}

} // namespace k7deval::test
