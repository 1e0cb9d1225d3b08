#include "range/RangeEvaluation.h"

#include "foundation/NumberText.h"
#include "foundation/PropertyOf.h"
#include "histogram/Quarters.h"

#include <cmath>

namespace k7deval
{

namespace
{

constexpr double kHighShare = 0.8;
constexpr double kLowShare = 0.2;
constexpr std::int32_t kWantedHours = 720;
constexpr int kWantedQuarters = 4;

} // namespace

PropertyList RangeEvaluation::Properties() const
{
    return {
        property("RangeValue", RangeValue, "The instrument range."),
        property("LowThreshold", LowThreshold, "20% of the range."),
        property("HighThreshold", HighThreshold, "80% of the range."),
        property("MECValue", MECValue, "Maximum expected concentration."),
        property("MPCValue", MPCValue, "Maximum potential concentration."),
        property("LowHours", LowHours, "Hours up to 20%."),
        property("MidHours", MidHours, "Hours between 20% and 80%."),
        property("HighHours", HighHours, "Hours from 80% up to the range."),
        property("OverRangeHours", OverRangeHours, "Hours above the range."),
        property("AboveMECHours", AboveMECHours, "In-range hours above the MEC."),
        property("AboveMPCHours", AboveMPCHours, "In-range hours above the MPC."),
        property("ReplacedHours", ReplacedHours, "In-range hours with 200% replacement."),
        property("InvalidHours", InvalidHours,
                 "Unusable hours in which the unit was not off line."),
        property("Bins", Bins, histogram::kMeaningOfBins),
    };
}

void RangeEvaluation::setThresholds(const RegionalSettings& regional)
{
    HighThreshold = histogram::sixDecimals(RangeValue * kHighShare, regional);
    LowThreshold = histogram::sixDecimals(RangeValue * kLowShare, regional);
}

void RangeEvaluation::reset()
{
    resetInRange();
    InvalidHours = 0;
    OverRangeHours = 0;
    AboveMECHours = 0;
    AboveMPCHours = 0;
    ReplacedHours = 0;
}

void RangeEvaluation::run(DIParameter& parameter, DIStatusCodes& statusCodes, Date lastHour,
                          const Limits& limits)
{
    const histogram::BinScale scale(0, RangeValue);
    histogram::QuarterCount quarters;
    histogram::walkQuarters(parameter, lastHour, std::nullopt, [&](const DIDataSet& hours) {
        quarters.count(takeHours(hours, statusCodes, scale, limits));
        const std::int32_t total = totalInRange() + OverRangeHours;
        const bool isEnough = total > kWantedHours && quarters.withData >= kWantedQuarters;
        return !isEnough && !quarters.isAtLimit();
    });
}

std::int32_t RangeEvaluation::takeHours(const DIDataSet& hours, DIStatusCodes& statusCodes,
                                        const histogram::BinScale& scale, const Limits& limits)
{
    const auto values = hours.values();
    const auto statuses = hours.statuses();
    std::int32_t validHours = 0;
    for (std::size_t hour = 0; hour < values.size(); ++hour) {
        const bool isNumeric = !std::isnan(values[hour]);
        const bool isExcluded = statusCodes.IsExcluded(statuses[hour]);
        const bool isValid = statusCodes.IsValid(statuses[hour]);
        if (isNumeric && !isExcluded && isValid) {
            const float value = ToSingle(values[hour]);
            ++validHours;
            takeHour(value, statuses[hour], scale, limits);
        } else if (!statusCodes.IsUnitOffline(statuses[hour])) {
            ++InvalidHours;
        }
    }
    return validHours;
}

/// An hour over the range counts as nothing else, though it is above the limits as well.
void RangeEvaluation::takeHour(float value, std::int32_t word, const histogram::BinScale& scale,
                               const Limits& limits)
{
    if (value > RangeValue) {
        ++OverRangeHours;
        return;
    }
    countInRange(value, scale);
    if (limits.mec && value > MECValue)
        ++AboveMECHours;
    if (limits.mpc && value > MPCValue)
        ++AboveMPCHours;
    if (word == status::kReplacedByTwiceMpc || word == status::kReplacedByTwiceRange)
        ++ReplacedHours;
}

} // namespace k7deval
