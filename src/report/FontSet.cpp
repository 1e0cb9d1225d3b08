#include "report/FontSet.h"

#include "report/CharacterCodes.h"
#include "report/ReportFace.h"

#include <algorithm>
#include <cstddef>

namespace k7deval
{

namespace
{

bool isBreak(char32_t character)
{
    return character == U'\r' || character == U'\n' || character == U'\t';
}

std::u32string onOneLine(const std::u32string& characters)
{
    std::u32string line;
    char32_t previous = 0;
    for (const char32_t character : characters) {
        const bool endsBreakBegun = character == U'\n' && previous == U'\r';
        if (!endsBreakBegun)
            line += isBreak(character) ? U' ' : character;
        previous = character;
    }
    return line;
}

bool has(const TrueTypeFace* face, char32_t character)
{
    return face == nullptr ? windows1252(character).has_value()
                           : face->glyph(character).has_value();
}

/// How many characters from the first on a face has.
std::size_t stretch(const TrueTypeFace* face, std::u32string_view characters)
{
    const auto* const end = std::find_if(characters.begin(), characters.end(),
                                         [face](char32_t c) { return !has(face, c); });
    return static_cast<std::size_t>(end - characters.begin());
}

int standardAdvance(const StandardFace& face, char32_t character)
{
    return face.advance.at(windows1252(character).value());
}

int trueTypeAdvance(const TrueTypeFace& face, char32_t character)
{
    return face.advance(face.glyph(character).value());
}

} // namespace

FontSet::FontSet(FontFiles files) : files_(std::move(files)) {}

TextLayout FontSet::layout(std::string_view text, int fontCode) const
{
    TextLayout layout;
    const std::u32string characters = spelledOut(onOneLine(charactersOf(text)), fontCode);
    std::u32string_view rest = characters;
    do {
        TextRun run = firstRun(rest, fontCode);
        rest.remove_prefix(run.characters.size());
        add(layout, std::move(run), fontCode);
    } while (!rest.empty());
    return layout;
}

// The longest stretch wins, and with it the face that has the whole text if there is one. Of equals
// the first does: the standard face, then the candidates in their order.
TextRun FontSet::firstRun(std::u32string_view characters, int fontCode) const
{
    const TrueTypeFace* best = nullptr;
    std::size_t length = stretch(nullptr, characters);
    for (const FontFile& file : files(fontCode)) {
        if (length == characters.size())
            break;
        const TrueTypeFace* const candidate = face(file);
        const std::size_t reached = candidate == nullptr ? 0 : stretch(candidate, characters);
        if (reached > length) {
            best = candidate;
            length = reached;
        }
    }
    return {best, std::u32string(characters.substr(0, length))};
}

void FontSet::add(TextLayout& layout, TextRun run, int fontCode) const
{
    const StandardFace& standard = standardFace(fontCode);
    for (const char32_t character : run.characters)
        layout.width += run.face == nullptr ? standardAdvance(standard, character)
                                            : trueTypeAdvance(*run.face, character);
    const int ascender = run.face == nullptr ? standard.ascender : run.face->ascender();
    const int descender = run.face == nullptr ? standard.descender : run.face->descender();
    layout.ascender = std::max(layout.ascender, ascender);
    layout.descender = std::min(layout.descender, descender);
    if (!run.characters.empty())
        layout.runs.push_back(std::move(run));
}

std::u32string FontSet::spelledOut(std::u32string_view characters, int fontCode) const
{
    std::u32string text;
    for (const char32_t character : characters) {
        if (isInAnyFace(character, fontCode)) {
            text += character;
        } else {
            const std::string code = "[U+" + hexadecimal(character, 4) + "]";
            text.append(code.begin(), code.end());
        }
    }
    return text;
}

bool FontSet::isInAnyFace(char32_t character, int fontCode) const
{
    if (windows1252(character))
        return true;
    const auto& candidates = files(fontCode);
    return std::any_of(candidates.begin(), candidates.end(), [&](const FontFile& file) {
        const TrueTypeFace* const candidate = face(file);
        return candidate != nullptr && candidate->glyph(character).has_value();
    });
}

const std::vector<FontFile>& FontSet::files(int fontCode) const
{
    return files_.*ReportFace::ofCode(fontCode).fontFiles;
}

const StandardFace& FontSet::standardFace(int fontCode) const
{
    auto found = standardFaces_.find(fontCode);
    if (found == standardFaces_.end())
        found = standardFaces_.emplace(fontCode, StandardFace::ofCode(fontCode)).first;
    return found->second;
}

const TrueTypeFace* FontSet::face(const FontFile& file) const
{
    const FaceKey key(file.path, file.index);
    auto found = faces_.find(key);
    if (found == faces_.end())
        found = faces_.emplace(key, TrueTypeFace::load(file)).first;
    return found->second.get();
}

} // namespace k7deval
