#include "report/EmbeddedFont.h"

#include "foundation/Error.h"
#include "report/BigEndian.h"
#include "report/CharacterCodes.h"
#include "report/TrueTypeSubset.h"

#include <set>

namespace k7deval
{

namespace
{

/// The lines for some of the characters, the first of which has the code `first`.
std::string characterLines(std::u32string_view characters, std::size_t first)
{
    std::string lines = std::to_string(characters.size()) + " beginbfchar\n";
    for (std::size_t index = 0; index < characters.size(); ++index) {
        const auto code = static_cast<char32_t>(first + index);
        lines += "<" + hexadecimal(code, 4) + "> <" +
                 hexadecimal(utf16BigEndian(characters.substr(index, 1))) + ">\n";
    }
    return lines + "endbfchar\n";
}

} // namespace

std::string EmbeddedFont::codes(std::u32string_view characters)
{
    constexpr std::size_t kMostCodes = 0xFFFF;
    std::string bytes;
    for (const char32_t character : characters) {
        if (codes_.size() == kMostCodes && codes_.count(character) == 0)
            throw Error(errors::kOverflow);
        const auto next = static_cast<std::uint16_t>(codes_.size() + 1);
        const auto [entry, isNew] = codes_.try_emplace(character, next);
        if (isNew)
            characters_ += character;
        appendWord(bytes, entry->second);
    }
    return bytes;
}

std::uint16_t EmbeddedFont::glyph(char32_t character) const
{
    return face_->glyph(character).value();
}

std::vector<int> EmbeddedFont::advances() const
{
    std::vector<int> advances;
    for (const char32_t character : characters_)
        advances.push_back(face_->advance(glyph(character)));
    return advances;
}

std::string EmbeddedFont::glyphNumbers() const
{
    std::string bytes(2, '\0');
    for (const char32_t character : characters_)
        appendWord(bytes, glyph(character));
    return bytes;
}

std::string EmbeddedFont::toUnicode() const
{
    constexpr std::size_t kMostInOneBlock = 100;
    std::string list = "/CIDInit /ProcSet findresource begin\n"
                       "12 dict begin\n"
                       "begincmap\n"
                       "/CIDSystemInfo << /Registry (Adobe) /Ordering (UCS) /Supplement 0 >> def\n"
                       "/CMapName /Adobe-Identity-UCS def\n"
                       "/CMapType 2 def\n"
                       "1 begincodespacerange\n<0000> <FFFF>\nendcodespacerange\n";
    const std::u32string_view all = characters_;
    for (std::size_t start = 0; start < all.size(); start += kMostInOneBlock)
        list += characterLines(all.substr(start, kMostInOneBlock), start + 1);
    return list + "endcmap\n"
                  "CMapName currentdict /CMap defineresource pop\n"
                  "end\nend\n";
}

std::string EmbeddedFont::fontFile() const
{
    std::set<std::uint16_t> glyphs;
    for (const char32_t character : characters_)
        glyphs.insert(glyph(character));
    return trueTypeSubset(*face_, glyphs);
}

} // namespace k7deval
