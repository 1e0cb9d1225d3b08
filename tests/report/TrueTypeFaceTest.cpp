#include "report/TrueTypeFace.h"

#include "report/TestFonts.h"
#include "report/TrueTypeSubset.h"

#include <gtest/gtest.h>

#include <functional>

namespace k7deval
{
namespace
{

using test::kSans;
using test::tableStart;
using test::TemporaryFolder;

std::unique_ptr<const TrueTypeFace> loadChanged(const std::function<void(std::string&)>& change)
{
    const TemporaryFolder folder;
    std::string font = test::contentOf(kSans.path);
    change(font);
    test::writeFile(folder.file("Changed.ttf"), font);
    return TrueTypeFace::load({folder.file("Changed.ttf")});
}

TEST(TrueTypeFace, ReadsMeasuresInThousandths)
{
    const auto face = TrueTypeFace::load(kSans);
    ASSERT_TRUE(face);
    EXPECT_EQ(face->name(), "DejaVuSans");
    EXPECT_EQ(face->ascender(), 928);   // 1901 of 2048 units
    EXPECT_EQ(face->descender(), -236); // -483
    EXPECT_EQ(face->capHeight(), 928) << "the ascender, since this face does not state it";
    EXPECT_EQ(face->italicAngle(), 0);
    EXPECT_EQ(face->advance(face->glyph(U'A').value()), 684);    // 1401
    EXPECT_EQ(face->advance(face->glyph(U'\u0301').value()), 0); // A mark that combines.
}

TEST(TrueTypeFace, TellsWhichCharactersItHas)
{
    const auto face = TrueTypeFace::load(kSans);
    ASSERT_TRUE(face);
    for (const char32_t character : {U' ', U'A', U'\u0141', U'\u03A9', U'\u0416', U'\U0001F600'})
        EXPECT_TRUE(face->glyph(character)) << std::hex << std::uint32_t{character};
    for (const char32_t character :
         {U'\u5E02', U'\u0000', U'\r', U'\u0085', U'\uFFFD', U'\U0001D504'})
        EXPECT_FALSE(face->glyph(character)) << std::hex << std::uint32_t{character};
}

TEST(TrueTypeFace, IsNoneWithoutAFileOrWithoutAFont)
{
    const TemporaryFolder folder;
    EXPECT_FALSE(TrueTypeFace::load({folder.file("missing.ttf")}));
    EXPECT_FALSE(TrueTypeFace::load({folder.path()})) << "a folder";
    test::writeFile(folder.file("empty.ttf"), "");
    EXPECT_FALSE(TrueTypeFace::load({folder.file("empty.ttf")}));
}

TEST(TrueTypeFace, IsNoneWhenItsLicenceForbidsWhatADocumentDoes)
{
    constexpr std::size_t kRights = 8;
    for (const unsigned rights : {0x0002U, 0x0100U, 0x0200U})
        EXPECT_FALSE(loadChanged([rights](std::string& font) {
            test::replaceWord(font, tableStart(font, "OS/2") + kRights, rights);
        })) << rights;
    for (const unsigned rights : {0x0000U, 0x0004U, 0x0008U})
        EXPECT_TRUE(loadChanged([rights](std::string& font) {
            test::replaceWord(font, tableStart(font, "OS/2") + kRights, rights);
        })) << rights;
}

TEST(TrueTypeFace, IsNoneWithoutATableThatADocumentNeeds)
{
    for (const char* const tag : {"cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp"})
        EXPECT_FALSE(loadChanged([tag](std::string& font) {
            font.replace(test::tableEntry(font, tag), 4, "gone");
        })) << tag;
    for (const char* const tag : {"OS/2", "post", "cvt ", "fpgm", "prep"})
        EXPECT_TRUE(loadChanged([tag](std::string& font) {
            font.replace(test::tableEntry(font, tag), 4, "gone");
        })) << tag;
}

TEST(TrueTypeFace, IsNoneWhenItsFileIsCutOff)
{
    // The list of characters, the outlines, the last of the tables needed.
    for (const std::size_t size : {std::size_t{11}, std::size_t{100}, std::size_t{20000}})
        EXPECT_FALSE(loadChanged([size](std::string& font) { font.resize(size); })) << size;
}

// A collection of two faces: the second is the face itself, the first is one without a name for any
// character.
std::string collection()
{
    constexpr std::size_t kHead = 20;
    const std::string whole = test::contentOf(kSans.path);
    const std::size_t directory = test::kDirectory + test::kDirectoryEntry * wordAt(whole, 4);
    const std::size_t shift = kHead + directory;
    std::string moved = whole;
    for (std::size_t entry = test::kDirectory; entry < directory; entry += test::kDirectoryEntry) {
        std::string offset;
        appendLong(offset, static_cast<std::uint32_t>(longAt(whole, entry + 8) + shift));
        moved.replace(entry + 8, 4, offset);
    }
    std::string nameless = moved.substr(0, directory);
    nameless.replace(test::tableEntry(moved, "cmap"), 4, "gone");
    std::string file = "ttcf";
    for (const std::size_t value : {std::size_t{0x00010000}, std::size_t{2}, kHead, shift})
        appendLong(file, static_cast<std::uint32_t>(value));
    return file + nameless + moved;
}

TEST(TrueTypeFace, IsTakenOutOfACollectionByItsIndex)
{
    const TemporaryFolder folder;
    test::writeFile(folder.file("Two faces.ttc"), collection());
    EXPECT_FALSE(TrueTypeFace::load({folder.file("Two faces.ttc"), 0}));
    EXPECT_FALSE(TrueTypeFace::load({folder.file("Two faces.ttc"), 2}));
    const auto face = TrueTypeFace::load({folder.file("Two faces.ttc"), 1});
    ASSERT_TRUE(face);
    EXPECT_EQ(face->name(), "Twofaces");
    EXPECT_EQ(face->advance(face->glyph(U'A').value()), 684);
}

TEST(TrueTypeFace, GivesEveryGlyphPastTheLastFullEntryItsAdvance)
{
    const auto face = loadChanged([](std::string& font) {
        constexpr std::size_t kEntryCount = 34;
        test::replaceWord(font, tableStart(font, "hhea") + kEntryCount, 3);
    });
    ASSERT_TRUE(face);
    const auto third = face->advance(2);
    EXPECT_EQ(face->advance(face->glyph(U'A').value()), third);
    EXPECT_EQ(face->advance(face->glyph(U'\u0416').value()), third);
}

std::size_t outlineBytes(const std::string& font, std::uint16_t glyph)
{
    const std::size_t entry = tableStart(font, "loca") + std::size_t{4} * glyph;
    return longAt(font, entry + 4) - longAt(font, entry);
}

TEST(TrueTypeSubset, HasTheOutlinesOfItsGlyphsAndNoOthers)
{
    const auto face = TrueTypeFace::load(kSans);
    const std::uint16_t used = face->glyph(U'A').value();
    const std::uint16_t unused = face->glyph(U'B').value();
    const std::string font = trueTypeSubset(*face, {used});
    EXPECT_EQ(outlineBytes(font, used), (face->outline(used).size() + 3) / 4 * 4);
    EXPECT_EQ(outlineBytes(font, unused), 0U);
    EXPECT_GT(outlineBytes(font, 0), 0U) << "the glyph for a missing character always stays";
    EXPECT_EQ(wordAt(font, tableStart(font, "hmtx") + std::size_t{4} * used), 1401);
}

// "Latin small letter a with circumflex and acute" is made of an a with circumflex, which is itself
// made of two glyphs.
TEST(TrueTypeSubset, HasThePartsOfPartsToo)
{
    const auto face = TrueTypeFace::load(kSans);
    const std::uint16_t letter = face->glyph(U'\u1EA5').value();
    const std::string font = trueTypeSubset(*face, {letter});
    int partsOfParts = 0;
    for (const std::uint16_t part : face->components(letter)) {
        EXPECT_GT(outlineBytes(font, part), 0U) << part;
        for (const std::uint16_t inner : face->components(part)) {
            EXPECT_GT(outlineBytes(font, inner), 0U) << inner;
            ++partsOfParts;
        }
    }
    EXPECT_EQ(partsOfParts, 2);
}

TEST(TrueTypeSubset, HasTheChecksumThatTheFormatAsksFor)
{
    const auto face = TrueTypeFace::load(kSans);
    const std::string font = trueTypeSubset(*face, {face->glyph(U'\u0416').value()});
    ASSERT_EQ(font.size() % 4, 0U);
    std::uint32_t sum = 0;
    for (std::size_t offset = 0; offset < font.size(); offset += 4)
        sum += longAt(font, offset);
    EXPECT_EQ(sum, 0xB1B0AFBAU);
}

} // namespace
} // namespace k7deval
