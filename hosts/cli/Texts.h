#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Texts for people.
namespace k7deval::cli
{

/// "a, b, c"
std::string listed(const std::vector<std::string>& entries);
/// The text in quotation marks.
std::string inQuotes(const std::string& text);

/// How many characters a UTF-8 text has.
std::size_t characters(std::string_view text);

enum class Align { Left, Right };
/// The text with blanks to a width in characters; a longer one stays as it is.
std::string padded(const std::string& text, std::size_t width, Align align = Align::Left);

} // namespace k7deval::cli
