#pragma once

#include <cstdint>
#include <string_view>

namespace k7deval
{

/// A limit that does not apply; no injection passes it.
inline constexpr float kNoLimit = -999;

/// How the limit of a drift is set.
enum CalLimitRulesEnum : std::int32_t {
    /// In the analyzer's units (40 CFR 75 App. A 3.1, O2 and CO2).
    CalLimitRules_AbsoluteValue = 0,
    /// A percentage of the instrument span.
    CalLimitRules_PercentOfSpan = 1,
    /// A percentage of span, or an absolute alternative performance specification (APS) for an
    /// injection that misses it (40 CFR 75 App. A 3.1(b)).
    CalLimitRules_PercentOfSpanAndAbsoluteAPS = 2,
    /// A percentage of the upscale reference (40 CFR 60 App. B PS 9).
    CalLimitRules_PercentOfRef = 3,
};

/// How the enumeration is called.
constexpr std::string_view typeName(CalLimitRulesEnum /*rule*/)
{
    return "CalLimitRulesEnum";
}

} // namespace k7deval
