#include "report/CharacterMap.h"

#include "report/BigEndian.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace k7deval
{
namespace
{

std::string words(std::initializer_list<int> values)
{
    std::string bytes;
    for (const int value : values)
        appendWord(bytes, static_cast<std::uint16_t>(value));
    return bytes;
}

std::string longs(std::initializer_list<std::uint32_t> values)
{
    std::string bytes;
    for (const std::uint32_t value : values)
        appendLong(bytes, value);
    return bytes;
}

// Four segments: A to C by a difference, a to c by a list with a gap in it, one character alone,
// the end mark.
std::string list16()
{
    const std::string last = words({'C', 'c', 0x20AC, 0xFFFF});
    const std::string first = words({'A', 'a', 0x20AC, 0xFFFF});
    const std::string difference = words({10 - 'A', 5, 0x10000 - 0x20AC + 77, 1});
    const std::string toGlyphs = words({0, 6, 0, 0});
    const std::string glyphs = words({20, 0, 22});
    return words({4, 0, 0, 8, 0, 0, 0}) + last + words({0}) + first + difference + toGlyphs +
           glyphs;
}

std::string list32()
{
    return words({12, 0}) + longs({0, 0, 2}) + longs({'A', 'C', 100}) +
           longs({0x1F600, 0x1F602, 200});
}

std::string withEntry(int platform, int encoding, const std::string& list)
{
    return words({0, 1, platform, encoding}) + longs({12}) + list;
}

TEST(CharacterMap, FindsGlyphsByDifferenceAndByList)
{
    const CharacterMap map(withEntry(3, 1, list16()));
    ASSERT_TRUE(map.isUsable());
    EXPECT_EQ(map.glyph(U'A'), 10);
    EXPECT_EQ(map.glyph(U'C'), 12);
    EXPECT_EQ(map.glyph(U'a'), 20 + 5);
    EXPECT_EQ(map.glyph(U'c'), 22 + 5);
    EXPECT_EQ(map.glyph(U'\u20AC'), 77);
}

TEST(CharacterMap, TellsWhatTheFaceDoesNotHave)
{
    const CharacterMap map(withEntry(3, 1, list16()));
    EXPECT_EQ(map.glyph(U'@'), 0);
    EXPECT_EQ(map.glyph(U'D'), 0);
    EXPECT_EQ(map.glyph(U'b'), 0) << "a gap in the list is no glyph, whatever the difference";
    EXPECT_EQ(map.glyph(U'\U0001F600'), 0);
}

TEST(CharacterMap, FindsGlyphsBeyondTheFirstPlane)
{
    const CharacterMap map(withEntry(3, 10, list32()));
    EXPECT_EQ(map.glyph(U'B'), 101);
    EXPECT_EQ(map.glyph(U'\U0001F602'), 202);
    EXPECT_EQ(map.glyph(U'\U0001F603'), 0);
    EXPECT_EQ(map.glyph(U'D'), 0);
}

TEST(CharacterMap, PrefersTheListWithMoreCharacters)
{
    const std::string first = list16();
    const std::string table = words({0, 2, 3, 1}) + longs({20}) + words({3, 10}) +
                              longs({static_cast<std::uint32_t>(20 + first.size())}) + first +
                              list32();
    EXPECT_EQ(CharacterMap(table).glyph(U'A'), 100);
}

TEST(CharacterMap, HasNoUseForAListThatIsNotUnicode)
{
    EXPECT_FALSE(CharacterMap(withEntry(3, 0, list16())).isUsable()) << "a face of symbols";
    EXPECT_FALSE(CharacterMap(withEntry(1, 0, list16())).isUsable()) << "an old byte encoding";
    EXPECT_FALSE(CharacterMap("").isUsable());
    EXPECT_FALSE(CharacterMap(withEntry(3, 1, "")).isUsable());
}

TEST(CharacterMap, ReadsNothingBeyondAListThatIsCutOff)
{
    const std::string whole = withEntry(3, 1, list16());
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const CharacterMap map(std::string_view(whole).substr(0, size));
        for (const char32_t character : {U'A', U'b', U'c', U'\u20AC', U'\uFFFF'})
            static_cast<void>(map.glyph(character));
        EXPECT_EQ(map.glyph(U'@'), 0) << size;
    }
}

} // namespace
} // namespace k7deval
