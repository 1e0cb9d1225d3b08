#include "foundation/TextFunctions.h"

#include <algorithm>

namespace k7deval
{

std::string upperCase(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char character) {
        return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                    : character;
    });
    return result;
}

std::string lowerCase(std::string_view text)
{
    // The accented capitals are two bytes: this one, and one that is 32 below the small letter's.
    constexpr unsigned kAccentLead = 0xC3;
    constexpr unsigned kFirstAccented = 0x80;
    constexpr unsigned kLastAccented = 0x9E;
    constexpr unsigned kMultiplicationSign = 0x97;
    std::string lower(text);
    unsigned previous = 0;
    for (char& character : lower) {
        const unsigned byte = static_cast<unsigned char>(character);
        const bool capital = byte >= 'A' && byte <= 'Z';
        const bool accented = previous == kAccentLead && byte >= kFirstAccented &&
                              byte <= kLastAccented && byte != kMultiplicationSign;
        if (capital || accented)
            character = static_cast<char>(byte + ('a' - 'A'));
        previous = byte;
    }
    return lower;
}

std::string_view trimLeft(std::string_view text, std::string_view blanks)
{
    return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

std::string_view trimRight(std::string_view text, std::string_view blanks)
{
    // Where there is nothing but blanks, the position found is the last of all, and one more is 0.
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

std::string_view trimmed(std::string_view text, std::string_view blanks)
{
    return trimRight(trimLeft(text, blanks), blanks);
}

std::string withZerosAhead(std::string_view text, std::size_t width)
{
    return std::string(width - std::min(width, text.size()), '0').append(text);
}

std::string twoDigits(std::int32_t number)
{
    return withZerosAhead(std::to_string(number), 2);
}

std::string replaceAll(std::string text, std::string_view piece, std::string_view by)
{
    for (auto at = text.find(piece); at != std::string::npos; at = text.find(piece, at + by.size()))
        text.replace(at, piece.size(), by);
    return text;
}

std::vector<std::string_view> splitAt(char separator, std::string_view text)
{
    std::vector<std::string_view> parts;
    for (auto end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

} // namespace k7deval
