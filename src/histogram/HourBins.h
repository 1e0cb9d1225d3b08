#pragma once

#include "foundation/RegionalSettings.h"

#include <array>
#include <cstdint>
#include <string>

/// The twenty bins of 5% of a range, over which load and range evaluation spread hours.
namespace k7deval::histogram
{

inline constexpr int kBinCount = 20;

/// Hours per bin; index k holds the bin that ends at k times 5% of the range. Index 0 is never
/// counted.
using HourBins = std::array<std::int32_t, kBinCount + 1>;
inline constexpr const char* kMeaningOfBins =
    "Hours by 5% of the range, 21 numbers; index 0 is never counted.";

/// The hours of the fullest bin.
std::int32_t peakOf(const HourBins& bins);

/// The hours of a bin as a share of those of the fullest one; both are taken as singles.
double shareOfPeak(std::int32_t hours, std::int32_t peak);

/// The value at which a bin ends, from 0 for the beginning of the first to 20.
float binEdge(int bin, float low, float range);

/// The bin of a value, by definition: the share of the range and twenty times the share are both
/// rounded to six decimals by way of their text, and the result is rounded up. So a value on the
/// upper edge of a bin, give or take the noise of 32-bit arithmetic, stays in it. 0 belongs to
/// bin 1. Values above the range or too far below it give numbers outside 1 to 20. Error 11 or 6
/// for a range of 0.
std::int32_t binByDefinition(float value, float low, float range);

/// The bins of one range. Gives the same bins as the definition for every value, by comparing it
/// with the smallest values of each bin.
class BinScale
{
public:
    /// The range from low to top. Error 6 when it is too wide for a single.
    BinScale(float low, float top);

    /// The bin of a value up to the top, 1 to 20. Error 9 for a value that falls into none, 11 or 6
    /// for a range of 0.
    [[nodiscard]] int binOf(float value) const;
    [[nodiscard]] float range() const { return range_; }

private:
    [[nodiscard]] int binOfOther(float value) const;

    float low_;
    float top_;
    float range_;
    bool isOrdered_;
    /// The smallest value of bin k + 2 at index k.
    std::array<float, kBinCount - 1> begins_{};
};

/// The hours of a range by its bins and by three levels, as the tools count them.
struct InRangeHours {
    float HighThreshold = 0; ///< Hours above it are of the high level.
    float LowThreshold = 0;  ///< Hours above it and up to the other are of the mid level.
    std::int32_t HighHours = 0;
    std::int32_t MidHours = 0;
    std::int32_t LowHours = 0;
    HourBins Bins{};

    void resetInRange();
    /// Counts an hour in its bin and in its level. An hour on a threshold belongs below it.
    void countInRange(float value, const BinScale& scale);
    /// The hours of all levels.
    [[nodiscard]] std::int32_t totalInRange() const { return LowHours + MidHours + HighHours; }
};

/// A threshold as it is kept: rounded to six decimals by way of its text.
float sixDecimals(double value, const RegionalSettings& regional);

/// The percent of hours in a level with its tail, such as "33.3%"; "-----" when there are no hours.
std::string percentText(std::int32_t hours, std::int32_t total, const std::string& tail,
                        const RegionalSettings& regional);

} // namespace k7deval::histogram
