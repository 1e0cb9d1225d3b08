#include "foundation/TextFunctions.h"

#include <gtest/gtest.h>

namespace k7deval
{

namespace
{

TEST(TextCase, KnowsTheLettersOfWesternEuropeDownwardAndAToZUpward)
{
    EXPECT_EQ(lowerCase("März FÉVRIER ÀÞ× 12"), "märz février àþ× 12");
    EXPECT_EQ(upperCase("low Bin 3"), "LOW BIN 3");
    EXPECT_EQ(upperCase("août"), "AOûT");
}

TEST(Digits, AreTheTenOfTheAlphabet)
{
    EXPECT_TRUE(isDigit('0'));
    EXPECT_TRUE(isDigit('9'));
    for (const char other : {'/', ':', 'a', '-', ' ', '\xB2'})
        EXPECT_FALSE(isDigit(other)) << other;
}

TEST(Trimming, TakesBlanksFromTheEndsAndNowhereElse)
{
    EXPECT_EQ(trimLeft("  a b  "), "a b  ");
    EXPECT_EQ(trimRight("  a b  "), "  a b");
    EXPECT_EQ(trimmed("  a b  "), "a b");
    EXPECT_EQ(trimmed("a"), "a");
}

TEST(Trimming, LeavesNothingOfBlanksAlone)
{
    for (const char* text : {"", " ", "   "}) {
        EXPECT_EQ(trimLeft(text), "");
        EXPECT_EQ(trimRight(text), "");
        EXPECT_EQ(trimmed(text), "");
    }
}

TEST(Trimming, TakesTheBlanksThatItIsTold)
{
    EXPECT_EQ(trimmed("\t 1 \t"), "\t 1 \t");
    EXPECT_EQ(trimmed("\t 1 \t", " \t"), "1");
    EXPECT_EQ(trimRight("1200", "0"), "12");
}

TEST(ZerosAhead, FillUpToTheWidthAndCutNothing)
{
    EXPECT_EQ(withZerosAhead("7", 3), "007");
    EXPECT_EQ(withZerosAhead("", 2), "00");
    EXPECT_EQ(withZerosAhead("123", 3), "123");
    EXPECT_EQ(withZerosAhead("1234", 3), "1234");
}

TEST(ZerosAhead, MakeTwoDigitsOfOne)
{
    EXPECT_EQ(twoDigits(0), "00");
    EXPECT_EQ(twoDigits(9), "09");
    EXPECT_EQ(twoDigits(10), "10");
    EXPECT_EQ(twoDigits(123), "123");
}

TEST(Replacing, GoesOnBehindWhatItPutIn)
{
    EXPECT_EQ(replaceAll("O2DRY and O2DRY", "O2DRY", "O2"), "O2 and O2");
    EXPECT_EQ(replaceAll("aa", "a", "aa"), "aaaa");
    EXPECT_EQ(replaceAll("abc", "x", "y"), "abc");
}

TEST(Splitting, GivesOnePartMoreThanThereAreSeparators)
{
    using Parts = std::vector<std::string_view>;
    EXPECT_EQ(splitAt(';', "a;b c;d"), (Parts{"a", "b c", "d"}));
    EXPECT_EQ(splitAt(';', "a"), (Parts{"a"}));
    EXPECT_EQ(splitAt(';', ""), (Parts{""}));
    EXPECT_EQ(splitAt(';', ";a;"), (Parts{"", "a", ""}));
}

} // namespace

} // namespace k7deval
