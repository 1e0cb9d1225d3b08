#include "report/FontSet.h"

#include "foundation/Error.h"
#include "foundation/ExpectError.h"
#include "report/ReportFace.h"
#include "report/TestFonts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace k7deval
{
namespace
{

using test::kSans;
using test::kSansBold;

/// The runs as "standard face|characters" or "DejaVuSans|characters".
std::vector<std::pair<std::string, std::u32string>> runsOf(const TextLayout& layout)
{
    std::vector<std::pair<std::string, std::u32string>> runs;
    for (const TextRun& run : layout.runs)
        runs.emplace_back(run.face == nullptr ? "standard" : run.face->name(), run.characters);
    return runs;
}

using Runs = std::vector<std::pair<std::string, std::u32string>>;

TEST(FontSet, DrawsTextOfWindows1252WithTheStandardFace)
{
    const FontSet fonts(test::sansOnly());
    EXPECT_EQ(runsOf(fonts.layout("Caf\u00E9 5 \u20AC \u2013 \u2122", 5)),
              (Runs{{"standard", U"Caf\u00E9 5 \u20AC \u2013 \u2122"}}));
    EXPECT_EQ(runsOf(fonts.layout("", 5)), Runs{});
}

TEST(FontSet, DrawsAnyOtherTextAsAWholeWithAFaceThatHasAllOfIt)
{
    const FontSet fonts(test::sansOnly());
    EXPECT_EQ(runsOf(fonts.layout("Unit \u0141\u00F3d\u017A 1", 5)),
              (Runs{{"DejaVuSans", U"Unit \u0141\u00F3d\u017A 1"}}));
    EXPECT_EQ(runsOf(fonts.layout("\u03A9 \U0001F600", 5)),
              (Runs{{"DejaVuSans", U"\u03A9 \U0001F600"}}));
}

TEST(FontSet, TakesTheFaceOfTheFontCode)
{
    const FontSet fonts(FontFiles{{kSans}, {kSansBold}, {}});
    EXPECT_EQ(runsOf(fonts.layout("\u03A9", 5)), (Runs{{"DejaVuSans", U"\u03A9"}}));
    EXPECT_EQ(runsOf(fonts.layout("\u03A9", 6)), (Runs{{"DejaVuSans-Bold", U"\u03A9"}}));
    EXPECT_EQ(runsOf(fonts.layout("\u03A9", 7)), (Runs{{"standard", U"[U+03A9]"}}));
}

TEST(FontSet, SpellsACharacterThatNoFaceHas)
{
    const FontSet fonts(test::sansOnly());
    const TextLayout layout = fonts.layout("Unit \u5E02 1", 5);
    EXPECT_EQ(runsOf(layout), (Runs{{"standard", U"Unit [U+5E02] 1"}}));
    EXPECT_EQ(layout.width, fonts.layout("Unit [U+5E02] 1", 5).width);
    EXPECT_EQ(runsOf(fonts.layout("\u0141 \u5E02 \U0001D504", 5)),
              (Runs{{"DejaVuSans", U"\u0141 [U+5E02] [U+1D504]"}}));
}

TEST(FontSet, SpellsControlCharactersAndTheSignForUnreadableOnes)
{
    const FontSet fonts(test::sansOnly());
    EXPECT_EQ(runsOf(fonts.layout("a\x07z", 5)), (Runs{{"standard", U"a[U+0007]z"}}));
    EXPECT_EQ(runsOf(fonts.layout(std::string("a\0z", 3), 5)), (Runs{{"standard", U"a[U+0000]z"}}));
    EXPECT_EQ(runsOf(fonts.layout("\u0085", 5)), (Runs{{"standard", U"[U+0085]"}}));
    EXPECT_EQ(runsOf(fonts.layout("\uFFFD", 5)), (Runs{{"standard", U"[U+FFFD]"}}));
    EXPECT_EQ(runsOf(fonts.layout("Caf\xE9", 5)), (Runs{{"standard", U"Caf[0xE9]"}}));
}

TEST(FontSet, PassesOverFilesThatAreMissingOrNoFonts)
{
    const test::TemporaryFolder folder;
    test::writeFile(folder.file("text.ttf"), "no font at all");
    const FontSet fonts(
        FontFiles{{{folder.file("missing.ttf")}, {folder.file("text.ttf")}, kSans}, {}, {}});
    EXPECT_EQ(runsOf(fonts.layout("\u03A9", 5)), (Runs{{"DejaVuSans", U"\u03A9"}}));
}

TEST(FontSet, SharesATextAmongFacesWhenNoneHasAllOfIt)
{
    // A face with nothing but the character U+5E02, which it draws as another face draws an A.
    const test::TemporaryFolder folder;
    std::string font = test::contentOf(kSans.path);
    const std::size_t map = test::tableStart(font, "cmap");
    std::string list;
    for (const int word :
         {0, 1, 3, 10, 0, 12, 12, 0, 0, 28, 0, 0, 0, 1, 0, 0x5E02, 0, 0x5E02, 0, 36})
        appendWord(list, static_cast<std::uint16_t>(word));
    font.replace(map, list.size(), list);
    test::writeFile(folder.file("City.ttf"), font);

    const FontSet fonts(FontFiles{{kSans, {folder.file("City.ttf")}}, {}, {}});
    const TextLayout layout = fonts.layout("Unit \u5E02 \u0141\u00F3d\u017A", 5);
    EXPECT_EQ(runsOf(layout), (Runs{{"standard", U"Unit "},
                                    {"City", U"\u5E02"},
                                    {"DejaVuSans", U" \u0141\u00F3d\u017A"}}));
    EXPECT_EQ(layout.ascender, 928) << "the larger of 905 and 928";
    EXPECT_EQ(layout.descender, -236);
    EXPECT_EQ(layout.width, fonts.layout("Unit ", 5).width + fonts.layout("\u5E02", 5).width +
                                fonts.layout(" \u0141\u00F3d\u017A", 5).width);
}

TEST(FontSet, RefusesAFontCodeThatIsNone)
{
    const FontSet fonts(test::sansOnly());
    for (const int code : {0, 4, 8, -5}) {
        EXPECT_EQ(errorOf([&] { return fonts.layout("text", code); }), errors::kInvalidCall);
        EXPECT_EQ(errorOf([&] { return ReportFace::ofCode(code).code; }), errors::kInvalidCall);
    }
}

TEST(DefaultFontFiles, OfferAFaceForEachFontCodeHere)
{
    const FontSet fonts(defaultFontFiles());
    for (const int code : {5, 6, 7})
        EXPECT_THAT(runsOf(fonts.layout("\u0395\u03BB\u03BB\u03AC\u03B4\u03B1", code)),
                    ::testing::ElementsAre(::testing::Pair(
                        ::testing::Ne("standard"), U"\u0395\u03BB\u03BB\u03AC\u03B4\u03B1")));
}

} // namespace
} // namespace k7deval
