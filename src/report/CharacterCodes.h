#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace k7deval
{

/// The characters of a UTF-8 text. A byte that is part of no character comes out as its value in
/// square brackets, "[0xE9]".
[[nodiscard]] std::u32string charactersOf(std::string_view text);

/// The byte that stands for a character in Windows-1252; none for a character outside it or a
/// control character.
[[nodiscard]] std::optional<unsigned char> windows1252(char32_t character);

/// The character that a byte of Windows-1252 stands for; none for a control character.
[[nodiscard]] std::optional<char32_t> ofWindows1252(unsigned char byte);

/// The bytes of the characters in UTF-16, high byte first.
[[nodiscard]] std::string utf16BigEndian(std::u32string_view characters);

/// `value` in upper-case hexadecimal, with leading zeros up to `digits` places.
[[nodiscard]] std::string hexadecimal(char32_t value, int digits);

/// Bytes in upper-case hexadecimal, two digits each.
[[nodiscard]] std::string hexadecimal(std::string_view bytes);

} // namespace k7deval
