#pragma once

#include "foundation/RegionalSettings.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace k7deval
{

/// A number format such as "0.0000" or "##0.0". "0." prints the mark and no places.
struct NumberFormat {
    int integerDigits = 0; ///< The fewest digits ahead of the mark: the format's zeros there.
    int places = 0;        ///< The digits behind the mark.
    bool mark = false;     ///< The format holds a decimal mark.

    /// Reads a format of "#"s, then "0"s, then "." and "0"s; any of these parts may be absent.
    /// Error 5 for anything else.
    static NumberFormat parse(std::string_view format);
};

/// The value as decimal text (a single with at most 7 significant digits, a double with at most
/// 15), rounded to the format's places, halves away from zero. Zero has no sign.
/// Error 5 for a format that NumberFormat does not read, 6 for a value that is not finite.
std::string FormatNumber(float value, std::string_view format, const RegionalSettings& settings);
std::string FormatNumber(double value, std::string_view format, const RegionalSettings& settings);

/// General number form, what "%.7G" (single) and "%.15G" (double) print, with the region's decimal
/// mark; zero is "0". Error 6 for a value that is not finite.
std::string GeneralNumber(float value, const RegionalSettings& settings);
std::string GeneralNumber(double value, const RegionalSettings& settings);

/// The value written with so many decimals and read back: the rounding that the rules for drifts,
/// limits and bins are defined by. Equal to ToSingle(FormatNumber(...)) for every single, whatever
/// the region; no allocation. places: 0 to 9. Error 6 for a value that is not finite.
float roundTrip(float value, int places);
/// The same, read back as a double.
double roundTripToDouble(float value, int places);

/// Whether the text is a number as the region writes it; see toDouble.
bool IsNumeric(std::string_view text, const RegionalSettings& settings);
// A string and a literal fit a Variant as well as a view; these settle it.
inline bool IsNumeric(const std::string& text, const RegionalSettings& settings)
{
    return IsNumeric(std::string_view(text), settings);
}
inline bool IsNumeric(const char* text, const RegionalSettings& settings)
{
    return IsNumeric(std::string_view(text), settings);
}

/// The number that a text holds: blanks around, a sign before or behind or parentheses, the
/// currency mark at either end, group marks ahead of the decimal mark, an exponent with E or D.
/// Error 13 when the text is not numeric, 6 when the number is too large; one too small is 0.
double toDouble(std::string_view text, const RegionalSettings& settings);
/// The number that a text holds; nothing where it holds none, or one too large for any number.
std::optional<double> numberIn(std::string_view text, const RegionalSettings& settings);
/// The nearest single; error 6 out of a single's range.
float ToSingle(double value);
/// As toDouble, then the nearest single; error 6 out of a single's range.
float ToSingle(std::string_view text, const RegionalSettings& settings);
/// As toDouble, then the nearest integer, halves to even; error 6 out of range.
std::int32_t toInt32(std::string_view text, const RegionalSettings& settings);
/// The nearest integer, halves to even; error 6 out of range.
std::int32_t toInt32(double value);

} // namespace k7deval
