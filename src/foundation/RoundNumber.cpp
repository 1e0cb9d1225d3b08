#include "foundation/Error.h"
#include "foundation/NumberText.h"
#include "foundation/UtilityFunctions.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <cstdlib>
#include <limits>

namespace k7deval
{

namespace
{

constexpr std::int32_t kMostDigits = 9;

template <class Real> Real powerOfTen(std::int32_t exponent)
{
    Real power = 1;
    for (std::int32_t i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

template <class Real> Real wholePartRoundedUp(Real value)
{
    constexpr Real kHalf = 0.5;
    const Real whole = std::trunc(value);
    return value - whole >= kHalf ? whole + 1 : whole;
}

// Every step in the value's own type: the single 0.35 comes up to 3.5 tenths on the way.
template <class Real> Real roundedMagnitude(Real value, std::int32_t digits)
{
    const Real whole = std::trunc(value);
    const Real fraction = value - whole;
    if (digits < 0) {
        const auto unit = powerOfTen<Real>(-digits);
        return wholePartRoundedUp(whole / unit) * unit;
    }
    if (digits > 0) {
        const auto parts = powerOfTen<Real>(digits);
        return wholePartRoundedUp(fraction * parts) / parts + whole;
    }
    return wholePartRoundedUp(value);
}

template <class Real> Real roundedReal(Real value, std::int32_t digits)
{
    const Real magnitude = roundedMagnitude(std::abs(value), digits);
    if (!std::isfinite(magnitude))
        throw Error(errors::kOverflow);
    return value < 0 ? -magnitude : magnitude;
}

std::int64_t roundedInteger(std::int64_t value, std::int32_t digits)
{
    if (digits >= 0)
        return value;
    const auto unit = powerOfTen<std::int64_t>(-digits - 1);
    std::int64_t count = std::abs(value) / unit;
    if (count % 10 >= 5)
        count += 10;
    const std::int64_t magnitude = count / 10 * 10 * unit;
    return value < 0 ? -magnitude : magnitude;
}

// Amounts are exact in ten-thousandths, so the digit behind the last one kept decides.
Currency roundedCurrency(Currency value, std::int32_t digits)
{
    constexpr std::int32_t kPlaces = 4;
    if (digits >= kPlaces)
        return value;
    const auto unit = powerOfTen<std::uint64_t>(kPlaces - digits);
    const bool negative = value.tenThousandths < 0;
    const auto bits = static_cast<std::uint64_t>(value.tenThousandths);
    const std::uint64_t magnitude = negative ? std::uint64_t{0} - bits : bits;
    const std::uint64_t rounded = (magnitude + unit / 2) / unit * unit;
    if (rounded > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
        throw Error(errors::kOverflow);
    const auto amount = static_cast<std::int64_t>(rounded);
    return Currency{negative ? -amount : amount};
}

struct Rounding {
    std::int32_t digits;
    const RegionalSettings& settings;

    Variant operator()(Empty) const { return Empty{}; }
    Variant operator()(Null) const { return Empty{}; }
    Variant operator()(Date) const { return Empty{}; }
    Variant operator()(bool value) const { return roundedInteger(value ? -1 : 0, digits) != 0; }
    template <std::integral Integer> Variant operator()(Integer value) const
    {
        const std::int64_t rounded = roundedInteger(value, digits);
        if (rounded < std::numeric_limits<Integer>::min() ||
            rounded > std::numeric_limits<Integer>::max())
            throw Error(errors::kOverflow);
        return static_cast<Integer>(rounded);
    }
    template <std::floating_point Real> Variant operator()(Real value) const
    {
        return roundedReal(value, digits);
    }
    Variant operator()(Currency value) const { return roundedCurrency(value, digits); }
    Variant operator()(const std::string& text) const
    {
        if (!IsNumeric(text, settings))
            return Empty{};
        // A text becomes a number only where its sign is put aside, so a positive one stays as it
        // is.
        const double value = toDouble(text, settings);
        return GeneralNumber(value < 0 ? roundedReal(value, digits) : value, settings);
    }
};

} // namespace

Variant RoundNumber(const Variant& value, std::int32_t digits, const RegionalSettings& settings)
{
    return std::visit(Rounding{std::clamp(digits, -kMostDigits, kMostDigits), settings}, value);
}

float roundSingle(float value, std::int32_t digits)
{
    return roundedReal(value, std::clamp(digits, -kMostDigits, kMostDigits));
}

} // namespace k7deval
