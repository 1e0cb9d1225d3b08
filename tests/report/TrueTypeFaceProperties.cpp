#include "report/TestFonts.h"
#include "report/TrueTypeFace.h"
#include "report/TrueTypeSubset.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace k7deval
{
namespace
{

using test::kSans;
using test::TemporaryFolder;

/// Everything that a document asks of a face.
void useAsADocumentDoes(const TrueTypeFace& face)
{
    std::set<std::uint16_t> glyphs;
    for (const char32_t character : {U'A', U'\u1EA5', U'\u0416', U'\U0001F600'}) {
        if (const auto glyph = face.glyph(character)) {
            static_cast<void>(face.advance(*glyph));
            glyphs.insert(*glyph);
        }
    }
    static_cast<void>(face.box());
    static_cast<void>(face.capHeight());
    static_cast<void>(face.italicAngle());
    static_cast<void>(trueTypeSubset(face, glyphs));
}

// Damage falls into the list of tables and into the short tables that say how to read the others,
// where it does most harm.
TEST(TrueTypeFaceProperties, ADamagedFontFileNeverLeadsOutOfItsTables)
{
    const std::string whole = test::contentOf(kSans.path);
    const TemporaryFolder folder;
    EXPECT_TRUE(rc::check([&] {
        std::string font = whole;
        const auto tag = *rc::gen::element<std::string>("", "head", "hhea", "maxp", "cmap", "loca",
                                                        "glyf", "OS/2");
        const std::size_t start = tag.empty() ? 0 : test::tableStart(whole, tag);
        const auto changes = *rc::gen::inRange(1, 8);
        for (int change = 0; change < changes; ++change)
            font.at(start + *rc::gen::inRange<std::size_t>(0, 300)) =
                static_cast<char>(*rc::gen::inRange(0, 256));
        font.resize(*rc::gen::element(whole.size(), whole.size() / 2, std::size_t{400000}));
        test::writeFile(folder.file("Damaged.ttf"), font);
        if (const auto face = TrueTypeFace::load({folder.file("Damaged.ttf")}))
            useAsADocumentDoes(*face);
    }));
}

} // namespace
} // namespace k7deval
