#pragma once

#include "foundation/DataInterface.h"
#include "foundation/Property.h"
#include "foundation/RegionalSettings.h"
#include "histogram/HourBins.h"

#include <cstdint>
#include <optional>

namespace k7deval
{

/// The period of a load evaluation, up to and including its last hour.
struct LoadPeriod {
    Date lastHour;
    /// Where specified dates begin. Without it, four operating quarters are looked for.
    std::optional<Date> firstDay;
};

/// How a unit's hourly load lies in its range of operation, from the minimum safe operating value
/// to the capacity, and over the low, mid and high levels of 0 to 30, 30 to 60 and 60 to 100% of it
/// (40 CFR 75 App. A 6.5.2.1).
struct LoadEvaluation : histogram::InRangeHours {
    float MinSafeValue = 0;     ///< Minimum safe operating value.
    float CapacityValue = 0;    ///< Nameplate or rated capacity.
    std::int32_t OverHours = 0; ///< Hours above the capacity.
    /// The highest value above the capacity of all evaluations so far, also of other units.
    float MaxObserved = 0;
    std::int32_t UnderHours = 0; ///< Hours under the minimum.

    /// The results by their names.
    [[nodiscard]] PropertyList Properties() const;
    /// The capacity above the minimum, as a single. Error 6 when it is too wide for one.
    [[nodiscard]] float Range() const;
    /// Sets the values at 60% and at 30% of the range, kept to six decimals.
    void setThresholds(const RegionalSettings& regional);
    /// Zeroes all but MaxObserved.
    void reset();
    /// Spreads the hours of a period, read quarter by quarter from the newest backward: four
    /// quarters with at least one valid hour, looked for in twelve, or all from a first day on.
    void run(DIParameter& parameter, DIStatusCodes& statusCodes, const LoadPeriod& period);

private:
    [[nodiscard]] std::int32_t takeHours(const DIDataSet& hours, DIStatusCodes& statusCodes,
                                         const histogram::BinScale& scale);
    void takeHour(float value, const histogram::BinScale& scale);
};

} // namespace k7deval
