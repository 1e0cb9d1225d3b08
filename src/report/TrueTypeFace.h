#pragma once

#include "report/CharacterMap.h"
#include "report/FontFiles.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace k7deval
{

/// The extent of a face or a glyph in 1/1000 of the font size, from the origin on the base line.
struct FaceBox {
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;
};

/// A TrueType face in memory: which characters it has and how wide each is drawn. All measures are
/// rounded to 1/1000 of the font size, the unit in which a PDF file states them.
///
/// The files are read here and not by a library: docs/architecture.md, "Reports", says why.
class TrueTypeFace
{
public:
    /// Reads a face; null if the file is not there, holds no TrueType outlines or no list of
    /// Unicode characters, or forbids that a part of it is embedded in a document.
    static std::unique_ptr<const TrueTypeFace> load(const FontFile& file);

    /// The file's name without its ending; letters, digits and hyphens only.
    [[nodiscard]] const std::string& name() const { return name_; }

    /// The glyph that draws a character; none if the face does not have it. No face has control
    /// characters, nor the sign that stands in for a character that could not be read (U+FFFD).
    [[nodiscard]] std::optional<std::uint16_t> glyph(char32_t character) const;

    [[nodiscard]] int advance(std::uint16_t glyph) const;
    [[nodiscard]] int ascender() const { return thousandths(signedWord("hhea", 4)); }
    /// Below the base line, so a negative number.
    [[nodiscard]] int descender() const { return thousandths(signedWord("hhea", 6)); }
    [[nodiscard]] int capHeight() const;
    [[nodiscard]] FaceBox box() const;
    /// Degrees against the clock from the upright: 0, or negative for a face that leans right.
    [[nodiscard]] float italicAngle() const;

    [[nodiscard]] std::uint16_t glyphCount() const { return word("maxp", 4); }
    /// The outline of a glyph as the file has it; empty for a blank.
    [[nodiscard]] std::string_view outline(std::uint16_t glyph) const;
    /// The glyphs that a glyph is put together from; empty for a simple one.
    [[nodiscard]] std::vector<std::uint16_t> components(std::uint16_t glyph) const;
    /// Advance width and left bearing of a glyph, in the file's own form: 4 bytes.
    [[nodiscard]] std::string metrics(std::uint16_t glyph) const;
    /// A table of the file; empty if the file does not have it.
    [[nodiscard]] std::string_view table(const std::string& tag) const;

private:
    TrueTypeFace(std::string name, std::map<std::string, std::string> tables);

    [[nodiscard]] bool isUsable() const;
    [[nodiscard]] bool hasWholeTables() const;
    [[nodiscard]] bool mayBeEmbedded() const;
    [[nodiscard]] bool hasLongOffsets() const;
    [[nodiscard]] std::uint32_t outlineOffset(std::size_t index) const;
    [[nodiscard]] std::uint16_t word(const std::string& tag, std::size_t offset) const;
    [[nodiscard]] std::int16_t signedWord(const std::string& tag, std::size_t offset) const;
    [[nodiscard]] int thousandths(int units) const;

    std::string name_;
    std::map<std::string, std::string> tables_;
    CharacterMap characters_;
};

} // namespace k7deval
