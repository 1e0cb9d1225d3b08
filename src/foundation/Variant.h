#pragma once

#include "foundation/Date.h"

#include <cstdint>
#include <string>
#include <variant>

namespace k7deval
{

/// A value that was never given.
struct Empty {
    friend bool operator==(const Empty&, const Empty&) = default;
};

/// A value that is known to be missing.
struct Null {
    friend bool operator==(const Null&, const Null&) = default;
};

/// A fixed-point amount in ten-thousandths.
struct Currency {
    std::int64_t tenThousandths = 0;
    friend bool operator==(const Currency&, const Currency&) = default;
};

/// A value as the data interface hands it: its type matters to the rules that read it.
using Variant = std::variant<Empty, Null, bool, std::uint8_t, std::int16_t, std::int32_t, float,
                             double, Currency, Date, std::string>;

[[nodiscard]] inline bool isNull(const Variant& value)
{
    return std::holds_alternative<Null>(value);
}

/// Whether the value counts as a number: numbers, booleans, numeric texts of the settings' region
/// and Empty do; Null, dates and other texts do not.
struct RegionalSettings;
bool IsNumeric(const Variant& value, const RegionalSettings& settings);

/// Conversions of a value to a plain type. Error 94 for Null, 13 for a text that does not fit,
/// 6 for a number outside the type's range. Texts are read under the settings' region.
float singleIn(const Variant& value, const RegionalSettings& settings);
double doubleIn(const Variant& value, const RegionalSettings& settings);
std::int32_t integerIn(const Variant& value, const RegionalSettings& settings);
bool booleanIn(const Variant& value, const RegionalSettings& settings);
/// Numbers in general number form, booleans as "True" or "False", dates as short date and long
/// time.
std::string toText(const Variant& value, const RegionalSettings& settings);

} // namespace k7deval
