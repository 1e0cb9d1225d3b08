#pragma once

#include <cstdint>

namespace k7deval
{

/// How the limit of a drift is set.
enum CalLimitRulesEnum : std::int32_t {
    CalLimitRules_AbsoluteValue =
        0, ///< In the analyzer's units (40 CFR 75 App. A 3.1, O2 and CO2).
    CalLimitRules_PercentOfSpan = 1, ///< A percentage of the instrument span.
    /// A percentage of span, or an absolute alternative performance specification (APS) for an
    /// injection that misses it (40 CFR 75 App. A 3.1(b)).
    CalLimitRules_PercentOfSpanAndAbsoluteAPS = 2,
    CalLimitRules_PercentOfRef =
        3, ///< A percentage of the upscale reference (40 CFR 60 App. B PS 9).
};

} // namespace k7deval
