#include "report/EmbeddedFont.h"

#include "report/TestFonts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace k7deval
{
namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class EmbeddedFontTest : public ::testing::Test
{
protected:
    std::unique_ptr<const TrueTypeFace> face = TrueTypeFace::load(test::kSans);
    EmbeddedFont font{*face};
};

TEST_F(EmbeddedFontTest, NumbersCharactersInTheOrderOfTheirFirstUse)
{
    EXPECT_EQ(font.codes(U"\u03A9A\u03A9"), std::string("\0\1\0\2\0\1", 6));
    EXPECT_EQ(font.codes(U"BA"), std::string("\0\3\0\2", 4));
}

TEST_F(EmbeddedFontTest, KnowsAdvanceAndGlyphOfEachCode)
{
    static_cast<void>(font.codes(U"A\u0301"));
    EXPECT_THAT(font.advances(), ElementsAre(684, 0));
    const std::string glyphs = font.glyphNumbers();
    ASSERT_EQ(glyphs.size(), 6U);
    EXPECT_EQ(wordAt(glyphs, 0), 0) << "code 0 stands for no character";
    EXPECT_EQ(wordAt(glyphs, 2), face->glyph(U'A'));
    EXPECT_EQ(wordAt(glyphs, 4), face->glyph(U'\u0301'));
}

TEST_F(EmbeddedFontTest, LeadsFromCodesBackToCharacters)
{
    static_cast<void>(font.codes(U"\u03A9\u2126\U0001F600"));
    EXPECT_THAT(font.toUnicode(), HasSubstr("3 beginbfchar\n"
                                            "<0001> <03A9>\n"
                                            "<0002> <2126>\n"
                                            "<0003> <D83DDE00>\n"
                                            "endbfchar\n"));
}

// A PDF file may list at most 100 characters in one go.
TEST_F(EmbeddedFontTest, ListsNoMoreThan100CharactersInOneBlock)
{
    std::u32string characters;
    for (char32_t character = 0x0400; character < 0x0400 + 201; ++character)
        characters += character;
    static_cast<void>(font.codes(characters));
    const std::string list = font.toUnicode();
    const auto second = list.find("endbfchar\n100 beginbfchar\n<0065> <0464>\n");
    const auto third = list.find("endbfchar\n1 beginbfchar\n<00C9> <04C8>\nendbfchar\nendcmap\n");
    EXPECT_THAT(list, HasSubstr("endcodespacerange\n100 beginbfchar\n<0001> <0400>\n"));
    EXPECT_NE(third, std::string::npos);
    EXPECT_LT(second, third);
}

TEST_F(EmbeddedFontTest, HasAFontFileEvenWithoutAnyCharacter)
{
    EXPECT_THAT(font.advances(), ::testing::IsEmpty());
    EXPECT_THAT(font.toUnicode(), Not(HasSubstr("beginbfchar")));
    EXPECT_GT(font.fontFile().size(), 0U);
}

} // namespace
} // namespace k7deval
