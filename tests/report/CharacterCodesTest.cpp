#include "report/CharacterCodes.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace k7deval
{
namespace
{

struct DecodingCase {
    const char* what;
    const char* text;
    const char32_t* characters;
};

constexpr DecodingCase kDecodingCases[] = {
    {"plain ASCII", "NOx 1", U"NOx 1"},
    {"two bytes", "\xC3\xA9\xC2\xA0", U"\u00E9\u00A0"},
    {"three bytes", "\xE2\x82\xAC\xE5\xB8\x82", U"\u20AC\u5E02"},
    {"four bytes", "\xF0\x9F\x98\x80", U"\U0001F600"},
    {"the last character there is", "\xF4\x8F\xBF\xBF", U"\U0010FFFF"},
    {"one past the last", "\xF4\x90\x80\x80", U"[0xF4][0x90][0x80][0x80]"},
    {"a byte of another encoding", "Caf\xE9 1", U"Caf[0xE9] 1"},
    {"a lone continuation", "a\x80z", U"a[0x80]z"},
    {"cut off at the end", "\xE2\x82", U"[0xE2][0x82]"},
    {"a slash written too long", "\xC0\xAF", U"[0xC0][0xAF]"},
    {"three bytes for what needs two", "\xE0\x82\xA9", U"[0xE0][0x82][0xA9]"},
    {"half of a surrogate pair", "\xED\xA0\x80", U"[0xED][0xA0][0x80]"},
};

TEST(CharactersOf, TakeEveryFormOfUtf8AndSpellWhatIsNone)
{
    for (const auto& row : kDecodingCases)
        EXPECT_TRUE(charactersOf(row.text) == row.characters) << row.what;
}

TEST(CharactersOf, KeepAZeroCharacter)
{
    EXPECT_TRUE(charactersOf(std::string_view("a\0b", 3)) == std::u32string(U"a\0b", 3));
}

struct ByteCase {
    char32_t character;
    int byte; // -1 for none
};

constexpr ByteCase kByteCases[] = {
    {U' ', 0x20},      {U'~', 0x7E},      {0x7F, -1},      {0x80, -1},        {0x9F, -1},
    {0xA0, 0xA0},      {U'\u00FF', 0xFF}, {U'\u0100', -1}, {U'\u20AC', 0x80}, {U'\u0178', 0x9F},
    {U'\u2019', 0x92}, {U'\n', -1},       {0, -1},         {U'\u0141', -1},
};

TEST(Windows1252, HasItsBytes)
{
    for (const auto& row : kByteCases) {
        const auto byte = windows1252(row.character);
        EXPECT_EQ(byte ? int{*byte} : -1, row.byte) << std::hex << std::uint32_t{row.character};
    }
}

TEST(Windows1252, BothWaysAgreeForEveryByte)
{
    int characters = 0;
    for (int byte = 0; byte < 256; ++byte) {
        const auto character = ofWindows1252(static_cast<unsigned char>(byte));
        if (character) {
            EXPECT_EQ(windows1252(*character), byte);
            ++characters;
        }
    }
    EXPECT_EQ(characters, 95 + 27 + 96);
}

TEST(Utf16, WritesAPairBeyondTheFirstPlane)
{
    EXPECT_EQ(utf16BigEndian(U"A\u5E02\U0001F600"), std::string("\0A\x5E\x02\xD8\x3D\xDE\x00", 8));
}

TEST(Hexadecimal, FillsUpToItsPlaces)
{
    EXPECT_EQ(hexadecimal(0x7, 4), "0007");
    EXPECT_EQ(hexadecimal(0x5E02, 4), "5E02");
    EXPECT_EQ(hexadecimal(0x1D504, 4), "1D504");
    EXPECT_EQ(hexadecimal(0, 2), "00");
}

TEST(CharactersOf, NeverLoseAByteOfAnyText)
{
    EXPECT_TRUE(rc::check([](const std::string& bytes) {
        std::size_t taken = 0;
        const std::u32string characters = charactersOf(bytes);
        for (const char32_t character : characters)
            taken += character < 0x80 ? 1U : character < 0x800 ? 2U : character < 0x10000 ? 3U : 4U;
        // A stray byte is spelled with six.
        RC_ASSERT(taken >= bytes.size());
        RC_ASSERT((taken - bytes.size()) % 5 == 0U);
    }));
}

} // namespace
} // namespace k7deval
