#include "report/TrueTypeFace.h"

#include "report/BigEndian.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <utility>

namespace k7deval
{

namespace
{

using Tables = std::map<std::string, std::string>;

// The bits of the flags that tell how a composite glyph goes on.
constexpr unsigned kWordArguments = 0x0001;
constexpr unsigned kOneScale = 0x0008;
constexpr unsigned kMoreComponents = 0x0020;
constexpr unsigned kTwoScales = 0x0040;
constexpr unsigned kFourScales = 0x0080;

// The tables that are looked into or go into a document. The rest (kerning, script rules, ...) may
// be larger than all of these.
bool isNeeded(const std::string& tag)
{
    static constexpr std::array<std::string_view, 12> kNeeded{"OS/2", "cmap", "cvt ", "fpgm",
                                                              "glyf", "head", "hhea", "hmtx",
                                                              "loca", "maxp", "post", "prep"};
    return std::find(kNeeded.begin(), kNeeded.end(), tag) != kNeeded.end();
}

/// As much of the file as there is, at most `size` bytes from `offset` on.
std::string readBytes(std::ifstream& file, std::size_t offset, std::size_t size)
{
    constexpr std::size_t kLargestTable = std::size_t{64} * 1024 * 1024;
    std::string bytes(std::min(size, kLargestTable), '\0');
    file.clear();
    file.seekg(static_cast<std::streamoff>(offset));
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

/// Where the list of a face's tables begins: at once, or where a collection says.
std::size_t directoryOffset(std::ifstream& file, unsigned index)
{
    const std::string start = readBytes(file, 0, 12);
    if (start.substr(0, 4) != "ttcf")
        return 0;
    const std::size_t entry = 12 + 4 * std::size_t{index};
    return index < longAt(start, 8) ? longAt(readBytes(file, entry, 4), 0) : std::string::npos;
}

Tables readTables(std::ifstream& file, unsigned index)
{
    Tables tables;
    const std::size_t directory = directoryOffset(file, index);
    if (directory == std::string::npos)
        return tables;
    const std::size_t count = wordAt(readBytes(file, directory, 12), 4);
    const std::string entries = readBytes(file, directory + 12, 16 * count);
    for (std::size_t entry = 0; entry + 16 <= entries.size(); entry += 16) {
        const std::string tag = entries.substr(entry, 4);
        if (isNeeded(tag))
            tables[tag] = readBytes(file, longAt(entries, entry + 8), longAt(entries, entry + 12));
    }
    return tables;
}

/// What a font may be called in a PDF file without escapes.
std::string plainName(const std::filesystem::path& path)
{
    std::string name;
    for (const char8_t unit : path.stem().u8string()) {
        if ((unit >= u8'0' && unit <= u8'9') || (unit >= u8'A' && unit <= u8'Z') ||
            (unit >= u8'a' && unit <= u8'z') || unit == u8'-')
            name += static_cast<char>(unit);
    }
    return name;
}

bool isControl(char32_t character)
{
    return character < 0x20 || (character >= 0x7F && character <= 0x9F);
}

std::size_t argumentBytes(unsigned flags)
{
    std::size_t bytes = (flags & kWordArguments) != 0 ? 4 : 2;
    if ((flags & kOneScale) != 0)
        bytes += 2;
    else if ((flags & kTwoScales) != 0)
        bytes += 4;
    else if ((flags & kFourScales) != 0)
        bytes += 8;
    return bytes;
}

} // namespace

TrueTypeFace::TrueTypeFace(std::string name, std::map<std::string, std::string> tables)
    : name_(std::move(name)), tables_(std::move(tables)), characters_(table("cmap"))
{
}

std::unique_ptr<const TrueTypeFace> TrueTypeFace::load(const FontFile& file)
{
    std::ifstream stream(file.path, std::ios::binary);
    if (!stream)
        return nullptr;
    std::unique_ptr<const TrueTypeFace> face(
        new TrueTypeFace(plainName(file.path), readTables(stream, file.index)));
    return face->isUsable() ? std::move(face) : nullptr;
}

bool TrueTypeFace::isUsable() const
{
    return hasWholeTables() && characters_.isUsable() && mayBeEmbedded() && word("head", 18) != 0 &&
           glyphCount() != 0 && word("hhea", 34) != 0;
}

// Long enough for all that is read from them, and for what is changed in them for a document.
bool TrueTypeFace::hasWholeTables() const
{
    constexpr std::size_t kHead = 54;
    constexpr std::size_t kHhea = 36;
    constexpr std::size_t kMaxp = 6;
    const std::size_t offsets = std::size_t{glyphCount()} + 1;
    return table("head").size() >= kHead && table("hhea").size() >= kHhea &&
           table("maxp").size() >= kMaxp && !table("hmtx").empty() && !table("glyf").empty() &&
           table("loca").size() >= offsets * (hasLongOffsets() ? 4 : 2);
}

// The embedding rights of the OS/2 table: a restricted licence, no embedding of a part, bitmaps
// only.
bool TrueTypeFace::mayBeEmbedded() const
{
    constexpr unsigned kForbidding = 0x0002 | 0x0100 | 0x0200;
    return (word("OS/2", 8) & kForbidding) == 0;
}

std::optional<std::uint16_t> TrueTypeFace::glyph(char32_t character) const
{
    constexpr char32_t kReplacementSign = 0xFFFD;
    if (isControl(character) || character == kReplacementSign)
        return std::nullopt;
    const std::uint16_t found = characters_.glyph(character);
    if (found == 0 || found >= glyphCount())
        return std::nullopt;
    return found;
}

// The glyphs behind the last full entry share its advance and have only a bearing of their own.
std::string TrueTypeFace::metrics(std::uint16_t glyph) const
{
    const std::size_t full = word("hhea", 34);
    const std::size_t bearing =
        glyph < full ? 4 * std::size_t{glyph} + 2 : 4 * full + 2 * (glyph - full);
    std::string bytes;
    appendWord(bytes, word("hmtx", 4 * std::min<std::size_t>(glyph, full - 1)));
    appendWord(bytes, word("hmtx", bearing));
    return bytes;
}

int TrueTypeFace::advance(std::uint16_t glyph) const
{
    return thousandths(wordAt(metrics(glyph), 0));
}

int TrueTypeFace::capHeight() const
{
    const int stated = thousandths(signedWord("OS/2", 88));
    return word("OS/2", 0) >= 2 && stated > 0 ? stated : ascender();
}

FaceBox TrueTypeFace::box() const
{
    return {thousandths(signedWord("head", 36)), thousandths(signedWord("head", 38)),
            thousandths(signedWord("head", 40)), thousandths(signedWord("head", 42))};
}

float TrueTypeFace::italicAngle() const
{
    constexpr float kFraction = 65536;
    return static_cast<float>(signedWord("post", 4)) +
           static_cast<float>(word("post", 6)) / kFraction;
}

bool TrueTypeFace::hasLongOffsets() const
{
    return word("head", 50) != 0;
}

std::uint32_t TrueTypeFace::outlineOffset(std::size_t index) const
{
    return hasLongOffsets() ? longAt(table("loca"), 4 * index)
                            : 2 * std::uint32_t{wordAt(table("loca"), 2 * index)};
}

std::string_view TrueTypeFace::outline(std::uint16_t glyph) const
{
    const std::size_t from = outlineOffset(glyph);
    const std::size_t end = outlineOffset(std::size_t{glyph} + 1);
    const std::string_view outlines = table("glyf");
    return from < end && end <= outlines.size() ? outlines.substr(from, end - from)
                                                : std::string_view();
}

std::vector<std::uint16_t> TrueTypeFace::components(std::uint16_t glyph) const
{
    std::vector<std::uint16_t> parts;
    const std::string_view data = outline(glyph);
    const bool isComposite = static_cast<std::int16_t>(wordAt(data, 0)) < 0;
    unsigned flags = isComposite ? kMoreComponents : 0;
    for (std::size_t offset = 10; (flags & kMoreComponents) != 0;) {
        flags = wordAt(data, offset);
        parts.push_back(wordAt(data, offset + 2));
        offset += 4 + argumentBytes(flags);
    }
    return parts;
}

std::string_view TrueTypeFace::table(const std::string& tag) const
{
    const auto found = tables_.find(tag);
    return found == tables_.end() ? std::string_view() : found->second;
}

std::uint16_t TrueTypeFace::word(const std::string& tag, std::size_t offset) const
{
    return wordAt(table(tag), offset);
}

std::int16_t TrueTypeFace::signedWord(const std::string& tag, std::size_t offset) const
{
    return static_cast<std::int16_t>(word(tag, offset));
}

int TrueTypeFace::thousandths(int units) const
{
    const double unitsPerEm = word("head", 18);
    return static_cast<int>(std::lround(units * 1000.0 / unitsPerEm));
}

} // namespace k7deval
