#include "report/CharacterCodes.h"

#include "report/BigEndian.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>

namespace k7deval
{

namespace
{

// The bytes 0x80 to 0x9F of Windows-1252; 0 where a byte stands for nothing.
constexpr std::array<char32_t, 32> kWindowsOnly{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

/// One character of a UTF-8 text and the number of bytes it takes; 0 bytes if it is malformed.
struct Decoded {
    char32_t character = 0;
    std::size_t bytes = 0;
};

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

bool isSurrogate(char32_t character)
{
    return character >= 0xD800 && character <= 0xDFFF;
}

std::size_t sequenceLength(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

// The shortest form only: each length has a least character that needs it.
bool isWellFormed(char32_t character, std::size_t bytes)
{
    constexpr std::array<char32_t, 5> kLeast{0, 0, 0x80, 0x800, 0x10000};
    return character >= kLeast.at(bytes) && character <= 0x10FFFF && !isSurrogate(character);
}

Decoded firstCharacter(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t bytes = sequenceLength(lead);
    if (bytes < 2)
        return {lead, bytes};
    if (text.size() < bytes || !std::all_of(text.begin() + 1, text.begin() + bytes, isContinuation))
        return {};
    char32_t character = lead & (0x7FU >> bytes);
    for (const char byte : text.substr(1, bytes - 1))
        character = character << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    return isWellFormed(character, bytes) ? Decoded{character, bytes} : Decoded{};
}

bool isTheSameInWindows1252(char32_t character)
{
    return (character >= 0x20 && character <= 0x7E) || (character >= 0xA0 && character <= 0xFF);
}

} // namespace

std::u32string charactersOf(std::string_view text)
{
    std::u32string characters;
    while (!text.empty()) {
        const Decoded next = firstCharacter(text);
        if (next.bytes == 0) {
            const auto stray = static_cast<unsigned char>(text.front());
            const std::string spelled = "[0x" + hexadecimal(stray, 2) + "]";
            characters.append(spelled.begin(), spelled.end());
        } else {
            characters += next.character;
        }
        text.remove_prefix(std::max<std::size_t>(next.bytes, 1));
    }
    return characters;
}

std::optional<unsigned char> windows1252(char32_t character)
{
    if (isTheSameInWindows1252(character))
        return static_cast<unsigned char>(character);
    const auto* const found = std::find(kWindowsOnly.begin(), kWindowsOnly.end(), character);
    if (character == 0 || found == kWindowsOnly.end())
        return std::nullopt;
    return static_cast<unsigned char>(0x80 + std::distance(kWindowsOnly.begin(), found));
}

std::optional<char32_t> ofWindows1252(unsigned char byte)
{
    if (isTheSameInWindows1252(byte))
        return byte;
    if (byte < 0x80 || byte > 0x9F || kWindowsOnly.at(byte - 0x80U) == 0)
        return std::nullopt;
    return kWindowsOnly.at(byte - 0x80U);
}

std::string utf16BigEndian(std::u32string_view characters)
{
    std::string bytes;
    for (const char32_t character : characters) {
        if (character >= 0x10000) {
            appendWord(bytes, static_cast<std::uint16_t>(0xD800 + ((character - 0x10000) >> 10U)));
            appendWord(bytes,
                       static_cast<std::uint16_t>(0xDC00 + ((character - 0x10000) & 0x3FFU)));
        } else {
            appendWord(bytes, static_cast<std::uint16_t>(character));
        }
    }
    return bytes;
}

std::string hexadecimal(char32_t value, int digits)
{
    std::string text;
    for (; value != 0 || digits > 0; value >>= 4U, --digits)
        text.insert(text.begin(), "0123456789ABCDEF"[value & 0xFU]);
    return text;
}

std::string hexadecimal(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes)
        text += hexadecimal(static_cast<unsigned char>(byte), 2);
    return text;
}

} // namespace k7deval
