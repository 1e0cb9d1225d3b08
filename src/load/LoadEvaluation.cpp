#include "load/LoadEvaluation.h"

#include "foundation/NumberText.h"
#include "foundation/PropertyOf.h"
#include "histogram/Quarters.h"

#include <cmath>

namespace k7deval
{

namespace
{

constexpr double kHighShare = 0.6;
constexpr double kLowShare = 0.3;
constexpr int kWantedQuarters = 4;

} // namespace

PropertyList LoadEvaluation::Properties() const
{
    return {
        property("HighThreshold", HighThreshold, "Value at 60% of the range."),
        property("LowThreshold", LowThreshold, "Value at 30% of the range."),
        property("MinSafeValue", MinSafeValue, "Minimum safe operating value."),
        property("CapacityValue", CapacityValue, "Nameplate or rated capacity."),
        property("HighHours", HighHours, "Hours at the high level."),
        property("MidHours", MidHours, "Hours at the mid level."),
        property("LowHours", LowHours, "Hours at the low level."),
        property("OverHours", OverHours, "Hours above the capacity."),
        property("MaxObserved", MaxObserved,
                 "Highest value above the capacity of all evaluations so far."),
        property("UnderHours", UnderHours, "Hours under the minimum."),
        property("Bins", Bins, histogram::kMeaningOfBins),
    };
}

float LoadEvaluation::Range() const
{
    return ToSingle(static_cast<double>(CapacityValue) - MinSafeValue);
}

void LoadEvaluation::setThresholds(const RegionalSettings& regional)
{
    const double range = Range();
    HighThreshold = histogram::sixDecimals(range * kHighShare + MinSafeValue, regional);
    LowThreshold = histogram::sixDecimals(range * kLowShare + MinSafeValue, regional);
}

void LoadEvaluation::reset()
{
    resetInRange();
    OverHours = 0;
    UnderHours = 0;
}

void LoadEvaluation::run(DIParameter& parameter, DIStatusCodes& statusCodes,
                         const LoadPeriod& period)
{
    const histogram::BinScale scale(MinSafeValue, CapacityValue);
    histogram::QuarterCount quarters;
    histogram::walkQuarters(
        parameter, period.lastHour, period.firstDay, [&](const DIDataSet& hours) {
            quarters.count(takeHours(hours, statusCodes, scale));
            // Specified dates are walked to their end, with data or without.
            return period.firstDay.has_value() ||
                   (quarters.withData < kWantedQuarters && !quarters.isAtLimit());
        });
}

std::int32_t LoadEvaluation::takeHours(const DIDataSet& hours, DIStatusCodes& statusCodes,
                                       const histogram::BinScale& scale)
{
    const auto values = hours.values();
    const auto statuses = hours.statuses();
    std::int32_t validHours = 0;
    for (std::size_t hour = 0; hour < values.size(); ++hour) {
        const bool isNumeric = !std::isnan(values[hour]);
        const bool isValid = statusCodes.IsValid(statuses[hour]);
        const bool isExcluded = statusCodes.IsExcluded(statuses[hour]);
        if (!isNumeric || !isValid || isExcluded)
            continue;
        const float value = ToSingle(values[hour]);
        ++validHours;
        takeHour(value, scale);
    }
    return validHours;
}

void LoadEvaluation::takeHour(float value, const histogram::BinScale& scale)
{
    if (value < MinSafeValue) {
        ++UnderHours;
        return;
    }
    if (value > CapacityValue) {
        ++OverHours;
        if (value > MaxObserved)
            MaxObserved = value;
        return;
    }
    countInRange(value, scale);
}

} // namespace k7deval
