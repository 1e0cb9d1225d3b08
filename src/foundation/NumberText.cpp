#include "foundation/NumberText.h"

#include "foundation/Error.h"
#include "foundation/NumericText.h"
#include "foundation/TextFunctions.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <limits>

namespace k7deval
{

namespace
{

template <class Real> constexpr int kSignificantDigits = 0;
template <> constexpr int kSignificantDigits<float> = 7;
template <> constexpr int kSignificantDigits<double> = 15;

// The powers of ten that a double holds exactly.
constexpr std::array kPowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                  1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                  1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int kHighestExactPower = static_cast<int>(kPowersOfTen.size()) - 1;

// A number as decimal text has it: digits x 10^exponent, with at most 15 digits.
struct Decimal {
    bool negative = false;
    std::uint64_t digits = 0;
    int exponent = 0;
};

std::uint64_t powerOfTen(int exponent)
{
    std::uint64_t power = 1;
    for (int i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

// The decimal of a value's exact binary one, correctly rounded to the digits its type is read with.
template <class Real> Decimal toDecimal(Real value)
{
    if (!std::isfinite(value))
        throw Error(errors::kOverflow);
    constexpr int kDecimals = kSignificantDigits<Real> - 1;
    std::array<char, 32> buffer{};
    char* const begin = buffer.data();
    const char* const end = std::to_chars(begin, begin + buffer.size(), std::abs(value),
                                          std::chars_format::scientific, kDecimals)
                                .ptr;
    // The text is "d.ddde+dd"; its fraction moves up to close the gap of the point.
    std::copy_n(begin + 2, kDecimals, begin + 1);
    Decimal decimal;
    decimal.negative = value < 0;
    std::from_chars(begin, begin + kSignificantDigits<Real>, decimal.digits);
    const char* const exponent = begin + kDecimals + 3;
    std::from_chars(*exponent == '+' ? exponent + 1 : exponent, end, decimal.exponent);
    decimal.exponent -= kDecimals;
    return decimal;
}

// The decimal rounded to so many places, halves away from zero; zero bears no sign.
Decimal roundToPlaces(Decimal decimal, int places)
{
    constexpr int kMostDigits = 15;
    const int excess = -(decimal.exponent + places);
    if (excess > kMostDigits) {
        decimal.digits = 0;
    } else if (excess > 0) {
        const std::uint64_t unit = powerOfTen(excess);
        decimal.digits = (decimal.digits + unit / 2) / unit;
    }
    if (excess > 0)
        decimal.exponent = -places;
    if (decimal.digits == 0)
        decimal.negative = false;
    return decimal;
}

// The digits of a decimal that has at most so many places, with all of its places.
std::string scaledDigits(const Decimal& decimal, int places)
{
    std::string text = std::to_string(decimal.digits);
    const int zeros = decimal.exponent + places;
    if (decimal.digits != 0)
        text.append(static_cast<std::size_t>(zeros), '0');
    return text == "0" ? std::string() : text;
}

std::string fixedText(const Decimal& decimal, const NumberFormat& format,
                      const RegionalSettings& settings)
{
    std::string text = scaledDigits(decimal, format.places);
    const int missing = format.places + format.integerDigits - static_cast<int>(text.size());
    if (missing > 0)
        text.insert(0, static_cast<std::size_t>(missing), '0');
    if (format.mark)
        text.insert(text.size() - static_cast<std::size_t>(format.places), settings.decimalMark);
    return decimal.negative ? '-' + text : text;
}

template <class Real>
std::string formatted(Real value, std::string_view format, const RegionalSettings& settings)
{
    const NumberFormat parsed = NumberFormat::parse(format);
    return fixedText(roundToPlaces(toDecimal(value), parsed.places), parsed, settings);
}

Decimal withoutTrailingZeros(Decimal decimal)
{
    while (decimal.digits != 0 && decimal.digits % 10 == 0) {
        decimal.digits /= 10;
        ++decimal.exponent;
    }
    return decimal;
}

std::string scientificText(const Decimal& decimal, int exponent, const RegionalSettings& settings)
{
    std::string text = std::to_string(decimal.digits);
    if (text.size() > 1)
        text.insert(1, settings.decimalMark);
    const std::string power = std::to_string(std::abs(exponent));
    text += exponent < 0 ? "E-" : "E+";
    text += withZerosAhead(power, 2);
    return decimal.negative ? '-' + text : text;
}

template <class Real> std::string general(Real value, const RegionalSettings& settings)
{
    constexpr int kSmallestFixedExponent = -4;
    const Decimal full = toDecimal(value);
    if (full.digits == 0)
        return "0";
    const Decimal decimal = withoutTrailingZeros(full);
    const int exponent = full.exponent + kSignificantDigits<Real> - 1;
    if (exponent < kSmallestFixedExponent || exponent >= kSignificantDigits<Real>)
        return scientificText(decimal, exponent, settings);
    const int places = std::max(0, -decimal.exponent);
    return fixedText(decimal, NumberFormat{1, places, places > 0}, settings);
}

// The double next to a decimal.
double nearestDouble(const Decimal& decimal)
{
    const auto digits = static_cast<double>(decimal.digits);
    if (decimal.exponent < 0 && -decimal.exponent <= kHighestExactPower)
        return digits / kPowersOfTen[static_cast<std::size_t>(-decimal.exponent)];
    if (decimal.exponent >= 0 && decimal.exponent <= kHighestExactPower)
        return digits * kPowersOfTen[static_cast<std::size_t>(decimal.exponent)];
    constexpr std::size_t kDigitsRoom = 20;
    std::array<char, 2 * kDigitsRoom> buffer{};
    char* const begin = buffer.data();
    char* end = std::to_chars(begin, begin + kDigitsRoom, decimal.digits).ptr;
    *end++ = 'e';
    end = std::to_chars(end, begin + buffer.size(), decimal.exponent).ptr;
    double value = 0;
    std::from_chars(begin, end, value);
    return value;
}

float nearestSingle(double value)
{
    // Half a unit above the largest single and beyond, a value would round to infinity.
    constexpr double kFirstOutOfRange = 0x1.ffffffp127;
    if (!(std::abs(value) < kFirstOutOfRange))
        throw Error(errors::kOverflow);
    return static_cast<float>(value);
}

} // namespace

NumberFormat NumberFormat::parse(std::string_view format)
{
    const std::size_t mark = format.find('.');
    const std::string_view ahead = format.substr(0, mark);
    const std::size_t optional = std::min(ahead.find_first_not_of('#'), ahead.size());
    NumberFormat parsed;
    parsed.integerDigits = static_cast<int>(ahead.size() - optional);
    parsed.mark = mark != std::string_view::npos;
    const std::string_view behind = parsed.mark ? format.substr(mark + 1) : std::string_view();
    parsed.places = static_cast<int>(behind.size());
    const auto isZeros = [](std::string_view text) {
        return text.find_first_not_of('0') == std::string_view::npos;
    };
    if (format.find_first_of("0#") == std::string_view::npos || !isZeros(ahead.substr(optional)) ||
        !isZeros(behind))
        throw Error(errors::kInvalidCall);
    return parsed;
}

std::string FormatNumber(float value, std::string_view format, const RegionalSettings& settings)
{
    return formatted(value, format, settings);
}

std::string FormatNumber(double value, std::string_view format, const RegionalSettings& settings)
{
    return formatted(value, format, settings);
}

std::string GeneralNumber(float value, const RegionalSettings& settings)
{
    return general(value, settings);
}

std::string GeneralNumber(double value, const RegionalSettings& settings)
{
    return general(value, settings);
}

double roundTripToDouble(float value, int places)
{
    assert(places >= 0 && places <= 9);
    const Decimal rounded = roundToPlaces(toDecimal(value), places);
    const double magnitude = nearestDouble(rounded);
    return rounded.negative ? -magnitude : magnitude;
}

float roundTrip(float value, int places)
{
    return nearestSingle(roundTripToDouble(value, places));
}

double toDouble(std::string_view text, const RegionalSettings& settings)
{
    const auto number = NumericText::read(text, settings);
    if (!number)
        throw Error(errors::kTypeMismatch);
    return number->value();
}

std::optional<double> numberIn(std::string_view text, const RegionalSettings& settings)
{
    try {
        return toDouble(text, settings);
    } catch (const Error&) {
        return std::nullopt;
    }
}

bool IsNumeric(std::string_view text, const RegionalSettings& settings)
{
    return NumericText::read(text, settings).has_value();
}

float ToSingle(double value)
{
    return nearestSingle(value);
}

float ToSingle(std::string_view text, const RegionalSettings& settings)
{
    return nearestSingle(toDouble(text, settings));
}

std::int32_t toInt32(double value)
{
    const double nearest = std::nearbyint(value);
    const bool inRange = nearest >= std::numeric_limits<std::int32_t>::min() &&
                         nearest <= std::numeric_limits<std::int32_t>::max();
    if (!inRange)
        throw Error(errors::kOverflow);
    return static_cast<std::int32_t>(nearest);
}

std::int32_t toInt32(std::string_view text, const RegionalSettings& settings)
{
    return toInt32(toDouble(text, settings));
}

} // namespace k7deval
