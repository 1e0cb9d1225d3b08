#include "cli/TextTable.h"

#include <gtest/gtest.h>

#include <sstream>

namespace k7deval::cli
{

namespace
{

std::string printed(const TextTable& table)
{
    std::ostringstream out;
    table.print(out);
    return out.str();
}

TEST(Texts, CountCharactersNotBytes)
{
    EXPECT_EQ(characters(""), 0U);
    EXPECT_EQ(characters("GT1"), 3U);
    EXPECT_EQ(characters("Orléans"), 7U);
    EXPECT_EQ(characters("µg/m³"), 5U);
    EXPECT_EQ(characters("電站"), 2U);
}

TEST(Texts, ArePaddedToAWidth)
{
    EXPECT_EQ(padded("é", 3), "é  ");
    EXPECT_EQ(padded("é", 3, Align::Right), "  é");
    EXPECT_EQ(padded("wide", 3), "wide");
    EXPECT_EQ(padded("", 0), "");
}

TEST(Texts, AreListed)
{
    EXPECT_EQ(listed({}), "");
    EXPECT_EQ(listed({"a"}), "a");
    EXPECT_EQ(listed({"a", "b", "c"}), "a, b, c");
    EXPECT_EQ(inQuotes("a"), "\"a\"");
}

TEST(TextTable, StandsInColumnsWhateverTheLetters)
{
    TextTable table({Align::Left, Align::Right, Align::Left});
    table.add({"Unité", "µg", "x"});
    table.add({"GT1", "1000", "y"});
    EXPECT_EQ(printed(table), "Unité    µg  x\n"
                              "GT1    1000  y\n");
}

TEST(TextTable, LeavesOutAColumnThatIsEmpty)
{
    TextTable table({Align::Left, Align::Right, Align::Left});
    table.add({"a", "", "b"});
    table.add({"cc", "", "d"});
    EXPECT_EQ(printed(table), "a   b\ncc  d\n");
}

TEST(TextTable, LetsAShortRowRunOn)
{
    TextTable table({Align::Left, Align::Left, Align::Right});
    table.add({"day", "a long story"});
    table.add({"time", "short", "1"});
    EXPECT_EQ(printed(table), "day   a long story\n"
                              "time  short  1\n");
}

TEST(TextTable, EndsItsLinesWithoutBlanks)
{
    TextTable table({Align::Left, Align::Left});
    table.add({"a", "b"});
    table.add({"a", ""});
    EXPECT_EQ(printed(table), "a  b\na\n");
    EXPECT_EQ(printed(TextTable({Align::Left})), "");
}

} // namespace

} // namespace k7deval::cli
