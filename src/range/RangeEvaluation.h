#pragma once

#include "foundation/DataInterface.h"
#include "foundation/Property.h"
#include "foundation/RegionalSettings.h"
#include "histogram/HourBins.h"

#include <cstdint>
#include <optional>

namespace k7deval
{

/// How an analyzer's range fits what the analyzer measured: most readings should lie between 20 and
/// 80% of it (40 CFR 75 App. A 2.1).
struct RangeEvaluation : histogram::InRangeHours {
    float RangeValue = 0; ///< The instrument range.
    float MECValue = 0;   ///< Maximum expected concentration; kept when it takes no part.
    float MPCValue = 0;   ///< Maximum potential concentration; kept when it takes no part.
    std::int32_t OverRangeHours = 0; ///< In none of the counters below.
    std::int32_t AboveMECHours = 0;  ///< In-range hours.
    std::int32_t AboveMPCHours = 0;  ///< In-range hours.
    std::int32_t ReplacedHours = 0;  ///< In-range hours with 200% replacement, words 35 and 36.
    std::int32_t InvalidHours = 0;   ///< Unusable hours in which the unit was not off line.

    /// The limits that take part in an evaluation.
    struct Limits {
        bool mec = false;
        bool mpc = false;
    };

    /// The results by their names.
    [[nodiscard]] PropertyList Properties() const;
    /// Sets the values at 80% and at 20% of the range, kept to six decimals.
    void setThresholds(const RegionalSettings& regional);
    /// Zeroes all counters.
    void reset();
    /// Sorts the hours up to the last one, read quarter by quarter from the newest backward, until
    /// there are more than 720 valid hours and four quarters with any, or twelve quarters.
    void run(DIParameter& parameter, DIStatusCodes& statusCodes, Date lastHour,
             const Limits& limits);

private:
    [[nodiscard]] std::int32_t takeHours(const DIDataSet& hours, DIStatusCodes& statusCodes,
                                         const histogram::BinScale& scale, const Limits& limits);
    void takeHour(float value, std::int32_t word, const histogram::BinScale& scale,
                  const Limits& limits);
};

} // namespace k7deval
