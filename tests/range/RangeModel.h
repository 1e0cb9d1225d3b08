#pragma once

#include "range/RangeRig.h"

#include <optional>
#include <vector>

/// The counting of hours over again, as plainly as it can be written.
namespace k7deval::test
{

/// What an evaluation is asked for.
struct RangeQuestion {
    int year = 2024;
    int quarter = 1;
    float range = 100;
    std::optional<float> mec; ///< Where it takes part.
    std::optional<float> mpc;
};

struct RangeAnswer {
    Counters counters;
    histogram::HourBins bins{};
    int quartersRead = 0;
};

/// The answer from a site's hourly series. The values are not below zero and the range is above it.
RangeAnswer answerFrom(const SiteData& site, const HourlyValues& series,
                       const RangeQuestion& question);

} // namespace k7deval::test
