#include "histogram/LiteralBins.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

namespace k7deval::test
{

namespace
{

__extension__ using Wide = __int128;

constexpr int kPlaces = 6;
constexpr int kSignificantDigits = 7;
constexpr double kMillion = 1e6;
/// Anything smaller has zeros alone in its first six places.
constexpr float kSmallest = 1e-9F;
constexpr float kLargest = 1e9F;

/// The powers of ten from 1 / 10^8, each the double next to it: no single lies in between.
constexpr std::array<double, 18> kPowers = {1e-8, 1e-7, 1e-6, 1e-5, 1e-4, 1e-3, 1e-2, 1e-1, 1e0,
                                            1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9};
constexpr int kFirstPower = -8;

Wide powerOfTen(int exponent)
{
    Wide power = 1;
    for (int i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

Wide powerOfTwo(int exponent)
{
    return Wide{1} << (exponent > 0 ? exponent : 0);
}

/// A positive single, exactly, times a power of ten, as a fraction.
struct Fraction {
    Wide numerator;
    Wide denominator;
};

Fraction scaled(float value, int tens)
{
    int twos = 0;
    const auto mantissa = static_cast<Wide>(std::ldexp(std::frexp(value, &twos), 24));
    twos -= 24;
    return {mantissa * powerOfTen(tens) * powerOfTwo(twos), powerOfTen(-tens) * powerOfTwo(-twos)};
}

Wide nearestHalfToEven(const Fraction& fraction)
{
    const Wide whole = fraction.numerator / fraction.denominator;
    const Wide twiceRest = 2 * (fraction.numerator % fraction.denominator);
    const bool up =
        twiceRest > fraction.denominator || (twiceRest == fraction.denominator && whole % 2 != 0);
    return up ? whole + 1 : whole;
}

Wide nearestHalfUp(Wide numerator, Wide denominator)
{
    return (2 * numerator + denominator) / (2 * denominator);
}

/// How many digits a positive value has ahead of its decimal mark; 0 or less below 0.1.
int digitsAhead(float value)
{
    const auto* const above = std::upper_bound(kPowers.begin(), kPowers.end(), value);
    return static_cast<int>(above - kPowers.begin()) + kFirstPower;
}

std::int64_t floorOfMillionths(std::int64_t millionths)
{
    constexpr std::int64_t kOne = 1'000'000;
    const std::int64_t whole = millionths / kOne;
    return millionths % kOne < 0 ? whole - 1 : whole;
}

} // namespace

std::int64_t millionthsOf(float value)
{
    const float size = std::abs(value);
    if (size < kSmallest)
        return 0;
    if (size >= kLargest)
        throw std::logic_error("too large to be written out");
    const int decimals = kSignificantDigits - digitsAhead(size);
    const Wide digits = nearestHalfToEven(scaled(size, decimals));
    const Wide millionths = decimals <= kPlaces
                                ? digits * powerOfTen(kPlaces - decimals)
                                : nearestHalfUp(digits, powerOfTen(decimals - kPlaces));
    return static_cast<std::int64_t>(value < 0 ? -millionths : millionths);
}

std::int64_t literalBin(float value, float low, float range)
{
    const auto share = static_cast<float>((static_cast<double>(value) - static_cast<double>(low)) /
                                          static_cast<double>(range));
    const auto ratio = static_cast<float>(static_cast<double>(millionthsOf(share)) / kMillion);
    const auto negated = static_cast<float>(-static_cast<double>(ratio) * 20);
    const std::int64_t bin = -floorOfMillionths(millionthsOf(negated));
    return bin == 0 ? 1 : bin;
}

} // namespace k7deval::test
