#include "report/TrueTypeSubset.h"

#include "report/BigEndian.h"

#include <cstddef>
#include <map>
#include <vector>

namespace k7deval
{

namespace
{

using Tables = std::map<std::string, std::string>;

constexpr std::size_t kHeaderBytes = 12;
constexpr std::size_t kDirectoryEntryBytes = 16;
constexpr std::size_t kChecksumAdjustment = 8; // In the table "head".

/// With the parts of composite glyphs, and theirs in turn.
std::set<std::uint16_t> withComponents(const TrueTypeFace& face,
                                       const std::set<std::uint16_t>& glyphs)
{
    std::set<std::uint16_t> all;
    std::vector<std::uint16_t> open(glyphs.begin(), glyphs.end());
    open.push_back(0);
    while (!open.empty()) {
        const std::uint16_t glyph = open.back();
        open.pop_back();
        if (!all.insert(glyph).second)
            continue;
        for (const std::uint16_t part : face.components(glyph))
            open.push_back(part);
    }
    return all;
}

void padToLong(std::string& data)
{
    data.resize((data.size() + 3) / 4 * 4, '\0');
}

void replaceWord(std::string& data, std::size_t offset, std::uint16_t value)
{
    std::string bytes;
    appendWord(bytes, value);
    data.replace(offset, bytes.size(), bytes);
}

// Blank entries for the glyphs left out: equal bytes, which compress to next to nothing.
void addOutlines(Tables& tables, const TrueTypeFace& face, const std::set<std::uint16_t>& glyphs)
{
    std::string& outlines = tables["glyf"];
    std::string& offsets = tables["loca"];
    std::string& metrics = tables["hmtx"];
    for (std::uint16_t glyph = 0; glyph < face.glyphCount(); ++glyph) {
        appendLong(offsets, static_cast<std::uint32_t>(outlines.size()));
        if (glyphs.count(glyph) == 0) {
            appendLong(metrics, 0);
            continue;
        }
        metrics += face.metrics(glyph);
        outlines += face.outline(glyph);
        padToLong(outlines);
    }
    appendLong(offsets, static_cast<std::uint32_t>(outlines.size()));
}

Tables subsetTables(const TrueTypeFace& face, const std::set<std::uint16_t>& glyphs)
{
    Tables tables;
    for (const char* const tag : {"cvt ", "fpgm", "head", "hhea", "maxp", "prep"}) {
        if (!face.table(tag).empty())
            tables[tag] = face.table(tag);
    }
    constexpr std::size_t kOffsetForm = 50;
    constexpr std::size_t kMetricsCount = 34;
    tables["head"].replace(kChecksumAdjustment, 4, 4, '\0');
    replaceWord(tables["head"], kOffsetForm, 1);
    replaceWord(tables["hhea"], kMetricsCount, face.glyphCount());
    addOutlines(tables, face, glyphs);
    return tables;
}

std::uint32_t checksum(const std::string& data)
{
    std::string padded = data;
    padToLong(padded);
    std::uint32_t sum = 0;
    for (std::size_t offset = 0; offset < padded.size(); offset += 4)
        sum += longAt(padded, offset);
    return sum;
}

// The number of tables, and what a binary search over them starts from.
std::string fileHeader(std::size_t tableCount)
{
    constexpr std::uint32_t kTrueType = 0x00010000;
    std::uint16_t log = 0;
    while (std::size_t{2} << log <= tableCount)
        ++log;
    const auto searchRange = static_cast<std::uint16_t>(kDirectoryEntryBytes << log);
    std::string header;
    appendLong(header, kTrueType);
    appendWord(header, static_cast<std::uint16_t>(tableCount));
    appendWord(header, searchRange);
    appendWord(header, log);
    appendWord(header, static_cast<std::uint16_t>(kDirectoryEntryBytes * tableCount - searchRange));
    return header;
}

std::string assembled(const Tables& tables)
{
    std::string file = fileHeader(tables.size());
    std::string content;
    const std::size_t start = kHeaderBytes + kDirectoryEntryBytes * tables.size();
    for (const auto& [tag, data] : tables) {
        file += tag;
        appendLong(file, checksum(data));
        appendLong(file, static_cast<std::uint32_t>(start + content.size()));
        appendLong(file, static_cast<std::uint32_t>(data.size()));
        content += data;
        padToLong(content);
    }
    return file + content;
}

std::size_t tableOffset(const std::string& file, const std::string& tag)
{
    std::size_t entry = kHeaderBytes;
    while (file.compare(entry, tag.size(), tag) != 0)
        entry += kDirectoryEntryBytes;
    return longAt(file, entry + 8);
}

} // namespace

std::string trueTypeSubset(const TrueTypeFace& face, const std::set<std::uint16_t>& glyphs)
{
    constexpr std::uint32_t kWholeFileSum = 0xB1B0AFBA;
    std::string file = assembled(subsetTables(face, withComponents(face, glyphs)));
    std::string adjustment;
    appendLong(adjustment, kWholeFileSum - checksum(file));
    const std::size_t head = tableOffset(file, "head");
    return file.replace(head + kChecksumAdjustment, adjustment.size(), adjustment);
}

} // namespace k7deval
