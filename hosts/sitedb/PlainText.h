#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace k7deval::sitedb
{

/// The text of a path as UTF-8, whatever the platform keeps paths in.
std::string utf8Text(const std::filesystem::path& path);

/// Whether a byte is a printable ASCII character or a blank.
bool isPrintable(char letter);
/// A text in quotes for a sentence: cut if it is long, with "?" for what is not printable ASCII.
std::string inQuotes(std::string_view text);

/// The number that a text holds: digits with an optional minus, decimal point and exponent, nothing
/// else.
std::optional<double> plainNumber(std::string_view text);

/// The whole number that a text holds: digits with an optional minus, nothing else.
std::optional<std::int32_t> plainWhole(std::string_view text);

/// A number without needless zeros and without an exponent.
std::string numberText(double value);

} // namespace k7deval::sitedb
