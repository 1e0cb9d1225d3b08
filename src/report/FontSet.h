#pragma once

#include "report/FontFiles.h"
#include "report/StandardFace.h"
#include "report/TrueTypeFace.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace k7deval
{

/// A stretch of a text that one face draws.
struct TextRun {
    const TrueTypeFace* face = nullptr; ///< Null: the standard face of the text's font code.
    std::u32string characters;          ///< Of Windows-1252 where the standard face draws them.
};

/// A text as it is drawn, and its extent in 1/1000 of the font size.
struct TextLayout {
    std::vector<TextRun> runs; ///< From left to right; none for an empty text.
    int width = 0;             ///< The sum of the advances.
    int ascender = 0;  ///< Of the face that draws the text; the largest where there are several.
    int descender = 0; ///< The same below the base line: a negative number.

    /// How far the base line lies above the text's lower edge, at a font size.
    [[nodiscard]] double baseLine(float size) const { return -descender / 1000.0 * size; }
};

/// Decides with which faces a text is drawn. Measuring and drawing both go by its answer, so that
/// what is measured is what is drawn.
class FontSet
{
public:
    explicit FontSet(FontFiles files);

    /// The layout of a UTF-8 text at a font code (5, 6 or 7). A line break or a tab becomes one
    /// blank. The standard face draws a text of Windows-1252; any other is drawn by the first
    /// TrueType face that has all of it, or where there is none by as few faces as possible. A
    /// character that no face has is spelled as its code, "[U+5E02]". Any other font code: error 5.
    [[nodiscard]] TextLayout layout(std::string_view text, int fontCode) const;

private:
    [[nodiscard]] const std::vector<FontFile>& files(int fontCode) const;
    [[nodiscard]] const StandardFace& standardFace(int fontCode) const;
    [[nodiscard]] const TrueTypeFace* face(const FontFile& file) const;
    [[nodiscard]] bool isInAnyFace(char32_t character, int fontCode) const;
    [[nodiscard]] std::u32string spelledOut(std::u32string_view characters, int fontCode) const;
    [[nodiscard]] TextRun firstRun(std::u32string_view characters, int fontCode) const;
    void add(TextLayout& layout, TextRun run, int fontCode) const;

    using FaceKey = std::pair<std::filesystem::path, unsigned>;

    FontFiles files_;
    // Faces are read when a text first needs them; most reports need none beyond the standard ones.
    mutable std::map<int, StandardFace> standardFaces_;
    mutable std::map<FaceKey, std::unique_ptr<const TrueTypeFace>> faces_;
};

} // namespace k7deval
