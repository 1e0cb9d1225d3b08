#pragma once

#include "report/TrueTypeFace.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace k7deval
{

/// The part of a TrueType face that goes into a document. The characters drawn get consecutive
/// 16-bit codes, from 1 on in the order of their first use, so that each can be told from all
/// others when text is taken out of the document again, even where two share a glyph.
class EmbeddedFont
{
public:
    explicit EmbeddedFont(const TrueTypeFace& face) : face_(&face) {}

    [[nodiscard]] const TrueTypeFace& face() const { return *face_; }

    /// The codes of a run that this face draws, two bytes each, high byte first.
    [[nodiscard]] std::string codes(std::u32string_view characters);

    /// The advances of the codes from 1 on, in 1/1000 of the font size.
    [[nodiscard]] std::vector<int> advances() const;
    /// The glyph numbers of the codes from 0 on, two bytes each, high byte first.
    [[nodiscard]] std::string glyphNumbers() const;
    /// The list that leads from the codes back to the characters, as a PDF file holds it.
    [[nodiscard]] std::string toUnicode() const;
    /// The font file, with the outlines of the characters used.
    [[nodiscard]] std::string fontFile() const;

private:
    [[nodiscard]] std::uint16_t glyph(char32_t character) const;

    const TrueTypeFace* face_;
    std::map<char32_t, std::uint16_t> codes_;
    std::u32string characters_; // By code, less 1.
};

} // namespace k7deval
