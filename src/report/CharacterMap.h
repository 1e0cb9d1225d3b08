#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace k7deval
{

/// The list of a TrueType face that says which glyph draws which Unicode character.
class CharacterMap
{
public:
    CharacterMap() = default;
    /// Takes the list with the most characters out of a face's `cmap` table: the segments with
    /// 32-bit codes (format 12), else those with 16-bit codes (format 4).
    explicit CharacterMap(std::string_view cmapTable);

    /// False if the face lists no Unicode characters in a form that is understood.
    [[nodiscard]] bool isUsable() const { return !list_.empty(); }
    /// The glyph of a character; 0 if the face does not have it.
    [[nodiscard]] std::uint16_t glyph(char32_t character) const;

private:
    [[nodiscard]] std::uint16_t glyphBy16Bits(char32_t character) const;
    [[nodiscard]] std::uint16_t glyphBy32Bits(char32_t character) const;

    std::string list_;
};

} // namespace k7deval
