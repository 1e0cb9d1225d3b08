#include "histogram/HourBins.h"

#include "foundation/Error.h"
#include "foundation/NumberText.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace k7deval::histogram
{

namespace
{

constexpr int kPlaces = 6;

/// Singles in their order as whole numbers, so that they can be halved like these.
std::int32_t rankOf(float value)
{
    const auto bits = std::bit_cast<std::int32_t>(value);
    return bits < 0 ? std::numeric_limits<std::int32_t>::min() - bits : bits;
}

float ofRank(std::int32_t rank)
{
    return std::bit_cast<float>(rank < 0 ? std::numeric_limits<std::int32_t>::min() - rank : rank);
}

/// The smallest single above low and up to top that lies in a bin or above it. The bins rise with
/// the values, and the top lies in the last.
float beginOf(int bin, float low, float top, float range)
{
    std::int64_t below = rankOf(low);
    std::int64_t inside = rankOf(top);
    while (inside - below > 1) {
        const std::int64_t middle = below + (inside - below) / 2;
        const float value = ofRank(static_cast<std::int32_t>(middle));
        (binByDefinition(value, low, range) >= bin ? inside : below) = middle;
    }
    return ofRank(static_cast<std::int32_t>(inside));
}

/// x / 0 and 0 / 0 are failures of their own.
double quotient(double dividend, double divisor)
{
    if (divisor == 0)
        throw Error(dividend == 0 ? errors::kOverflow : errors::kDivisionByZero);
    return dividend / divisor;
}

} // namespace

std::int32_t peakOf(const HourBins& bins)
{
    return *std::max_element(bins.begin() + 1, bins.end());
}

double shareOfPeak(std::int32_t hours, std::int32_t peak)
{
    return static_cast<double>(static_cast<float>(hours)) / static_cast<float>(peak);
}

float binEdge(int bin, float low, float range)
{
    return ToSingle(static_cast<double>(bin) * range / kBinCount + low);
}

std::int32_t binByDefinition(float value, float low, float range)
{
    const float share = ToSingle(quotient(static_cast<double>(value) - low, range));
    const float rounded = roundTrip(share, kPlaces);
    // The ceiling is taken as the floor of the negative.
    const float negative = ToSingle(-static_cast<double>(rounded) * kBinCount);
    const std::int32_t bin = toInt32(-std::floor(roundTripToDouble(negative, kPlaces)));
    return bin == 0 ? 1 : bin;
}

BinScale::BinScale(float low, float top)
    : low_(low), top_(top), range_(ToSingle(static_cast<double>(top) - low)),
      isOrdered_(range_ > 0 && binByDefinition(top, low, range_) == kBinCount)
{
    if (!isOrdered_)
        return;
    for (int bin = 2; bin <= kBinCount; ++bin)
        begins_[static_cast<std::size_t>(bin) - 2] = beginOf(bin, low_, top_, range_);
}

int BinScale::binOf(float value) const
{
    if (!isOrdered_ || value < low_ || value > top_)
        return binOfOther(value);
    const auto binsBelow =
        std::upper_bound(begins_.begin(), begins_.end(), value) - begins_.begin();
    return static_cast<int>(binsBelow) + 1;
}

int BinScale::binOfOther(float value) const
{
    const std::int32_t bin = binByDefinition(value, low_, range_);
    if (bin < 0 || bin > kBinCount)
        throw Error(errors::kSubscript);
    return bin;
}

void InRangeHours::resetInRange()
{
    Bins.fill(0);
    HighHours = 0;
    MidHours = 0;
    LowHours = 0;
}

void InRangeHours::countInRange(float value, const BinScale& scale)
{
    ++Bins[static_cast<std::size_t>(scale.binOf(value))];
    if (value > HighThreshold)
        ++HighHours;
    else if (value > LowThreshold)
        ++MidHours;
    else
        ++LowHours;
}

float sixDecimals(double value, const RegionalSettings& regional)
{
    return ToSingle(FormatNumber(value, "0.000000", regional), regional);
}

std::string percentText(std::int32_t hours, std::int32_t total, const std::string& tail,
                        const RegionalSettings& regional)
{
    if (total == 0)
        return "-----";
    const float hundredfold = static_cast<float>(hours) * 100.0F;
    return FormatNumber(hundredfold / static_cast<float>(total), "##0.0", regional) + tail;
}

} // namespace k7deval::histogram
