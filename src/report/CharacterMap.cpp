#include "report/CharacterMap.h"

#include "report/BigEndian.h"

#include <cstddef>

namespace k7deval
{

namespace
{

constexpr std::uint16_t kBy16Bits = 4;
constexpr std::uint16_t kBy32Bits = 12;

bool isUnicode(std::uint16_t platform, std::uint16_t encoding)
{
    constexpr std::uint16_t kUnicodePlatform = 0;
    constexpr std::uint16_t kWindowsPlatform = 3;
    return platform == kUnicodePlatform ||
           (platform == kWindowsPlatform && (encoding == 1 || encoding == 10));
}

/// The Unicode list of that format in a `cmap` table; empty if there is none.
std::string_view listOf(std::string_view table, std::uint16_t format)
{
    const std::size_t count = wordAt(table, 2);
    for (std::size_t entry = 4; entry < 4 + 8 * count; entry += 8) {
        const std::size_t offset = longAt(table, entry + 4);
        if (isUnicode(wordAt(table, entry), wordAt(table, entry + 2)) && offset < table.size() &&
            wordAt(table, offset) == format)
            return table.substr(offset);
    }
    return {};
}

} // namespace

CharacterMap::CharacterMap(std::string_view cmapTable) : list_(listOf(cmapTable, kBy32Bits))
{
    if (list_.empty())
        list_ = listOf(cmapTable, kBy16Bits);
}

std::uint16_t CharacterMap::glyph(char32_t character) const
{
    return wordAt(list_, 0) == kBy32Bits ? glyphBy32Bits(character) : glyphBy16Bits(character);
}

// Four parallel arrays, one entry for each segment: last code, first code, difference between code
// and glyph, and where the segment's own glyph list lies, counted from that very entry.
std::uint16_t CharacterMap::glyphBy16Bits(char32_t character) const
{
    const std::size_t bytes = wordAt(list_, 6);
    const std::size_t lastCodes = 14;
    const std::size_t firstCodes = lastCodes + bytes + 2;
    const std::size_t differences = firstCodes + bytes;
    const std::size_t glyphLists = differences + bytes;
    if (glyphLists + bytes > list_.size())
        return 0;
    std::size_t segment = 0;
    while (segment < bytes && wordAt(list_, lastCodes + segment) < character)
        segment += 2;
    const std::uint16_t first = wordAt(list_, firstCodes + segment);
    if (segment >= bytes || character < first)
        return 0;
    const std::uint16_t difference = wordAt(list_, differences + segment);
    const std::size_t toList = wordAt(list_, glyphLists + segment);
    if (toList == 0)
        return static_cast<std::uint16_t>(character + difference);
    const auto listed =
        wordAt(list_, glyphLists + segment + toList + std::size_t{2} * (character - first));
    return listed == 0 ? listed : static_cast<std::uint16_t>(listed + difference);
}

// Groups of first code, last code and the glyph of the first.
std::uint16_t CharacterMap::glyphBy32Bits(char32_t character) const
{
    const std::size_t count = longAt(list_, 12);
    for (std::size_t group = 16; group < list_.size() && group < 16 + 12 * count; group += 12) {
        const std::uint32_t first = longAt(list_, group);
        if (character >= first && character <= longAt(list_, group + 4))
            return static_cast<std::uint16_t>(longAt(list_, group + 8) + (character - first));
    }
    return 0;
}

} // namespace k7deval
