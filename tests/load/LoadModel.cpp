#include "load/LoadModel.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace k7deval::test
{

namespace
{

constexpr std::size_t kPlaces = 6;
constexpr int kSingleDigits = 7;
constexpr int kDoubleDigits = 15;

/// Adds one to the last digit.
void increment(std::string& digits)
{
    auto digit = digits.rbegin();
    while (digit != digits.rend() && *digit == '9')
        *digit++ = '0';
    if (digit == digits.rend())
        digits.insert(digits.begin(), '1');
    else
        ++*digit;
}

/// A decimal number of so many significant digits: its digits, and how many stand ahead of the
/// point.
struct Decimal {
    std::string digits;
    int ahead = 0;
};

Decimal decimalOf(double value, int significant)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.*e", significant - 1, std::abs(value));
    const std::string written = text;
    const auto mark = written.find('e');
    std::string digits = written.substr(0, mark);
    digits.erase(1, 1);
    return {digits, std::atoi(written.c_str() + mark + 1) + 1};
}

std::string sixDecimals(double value, int significant)
{
    auto [digits, ahead] = decimalOf(value, significant);
    if (ahead < 1) {
        digits.insert(0, static_cast<std::size_t>(1 - ahead), '0');
        ahead = 1;
    }
    const std::size_t kept = static_cast<std::size_t>(ahead) + kPlaces;
    const bool isUp = digits.size() > kept && digits[kept] >= '5';
    digits.resize(kept, '0');
    if (isUp)
        increment(digits);
    const bool isZero = digits.find_first_not_of('0') == std::string::npos;
    digits.insert(digits.size() - kPlaces, 1, '.');
    return (value < 0 && !isZero ? "-" : "") + digits;
}

} // namespace

std::string sixDecimals(float value)
{
    return sixDecimals(value, kSingleDigits);
}

std::string sixDecimals(double value)
{
    return sixDecimals(value, kDoubleDigits);
}

float singleOf(const std::string& text)
{
    return static_cast<float>(std::strtod(text.c_str(), nullptr));
}

float neighbour(float value, int steps)
{
    const float towards = steps < 0 ? -std::numeric_limits<float>::infinity()
                                    : std::numeric_limits<float>::infinity();
    for (int i = 0; i < std::abs(steps); ++i)
        value = std::nextafter(value, towards);
    return value;
}

LoadModel::LoadModel(float minimum, float capacityValue)
    : minSafe(minimum), capacity(capacityValue),
      range(static_cast<float>(double(capacityValue) - double(minimum))),
      high(singleOf(sixDecimals(double(range) * 0.6 + double(minimum)))),
      low(singleOf(sixDecimals(double(range) * 0.3 + double(minimum))))
{
}

int LoadModel::binOf(float value) const
{
    const auto share = static_cast<float>((double(value) - double(minSafe)) / double(range));
    const float f = singleOf(sixDecimals(share));
    const auto t = static_cast<float>(-double(f) * 20);
    const double floored = std::floor(std::strtod(sixDecimals(t).c_str(), nullptr));
    const int index = static_cast<int>(-floored);
    return index == 0 ? 1 : index;
}

void LoadModel::take(double hour)
{
    const auto v = static_cast<float>(hour);
    if (v < minSafe) {
        ++counts.under;
        return;
    }
    if (v > capacity) {
        ++counts.over;
        maxObserved = std::max(maxObserved, v);
        return;
    }
    ++bins.at(static_cast<std::size_t>(binOf(v)));
    ++(v > high ? counts.high : v > low ? counts.mid : counts.low);
}

} // namespace k7deval::test
