#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace k7deval
{

/// Whether a character is one of 0 to 9.
constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The text with the letters a to z as capitals; codes of the data interface know no others.
std::string upperCase(std::string_view text);
/// The text with the letters A to Z and their accented kin of Western Europe in lower case.
std::string lowerCase(std::string_view text);

/// The part of a text without the blanks at its beginning, its end, or both.
std::string_view trimLeft(std::string_view text, std::string_view blanks = " ");
std::string_view trimRight(std::string_view text, std::string_view blanks = " ");
std::string_view trimmed(std::string_view text, std::string_view blanks = " ");

/// A text with zeros ahead of it, up to a width.
std::string withZerosAhead(std::string_view text, std::size_t width);
/// A number in at least two digits: "07". No negative number.
std::string twoDigits(std::int32_t number);

/// The text with each occurrence of a piece replaced.
std::string replaceAll(std::string text, std::string_view piece, std::string_view by);
/// The parts of a text between separators, at least one.
std::vector<std::string_view> splitAt(char separator, std::string_view text);

} // namespace k7deval
