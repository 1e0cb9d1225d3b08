#pragma once

#include "foundation/Date.h"
#include "foundation/Property.h"

#include <string>
#include <string_view>

namespace k7deval
{

/// One gas injection of a calibration run, reduced to what a drift test needs.
/// All values are in the analyzer's units (ppm, %, ...).
struct clsStrippedCal {
    static constexpr std::string_view kTypeName = "clsStrippedCal";

    float ReferenceValue = 0;
    float MeasuredValue = 0;
    float DriftLimit = 0; ///< The limit this injection is held to; -999 never passes.
    bool UsesAPS = false; ///< The alternative performance specification is in force.
    Date InjectionEndTime;
    std::string GasLevel; ///< As the source record names it, upper case: "ZERO", "HIGH", ...

    /// Measured minus reference, signed, kept to four decimals. Computed anew on every read.
    [[nodiscard]] float Drift() const;
    /// A drift equal to the limit passes (40 CFR 75 App. A 3.1).
    [[nodiscard]] bool isWithinLimit() const;

    [[nodiscard]] PropertyList Properties() const;
};

} // namespace k7deval
