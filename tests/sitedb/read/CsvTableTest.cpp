#include "sitedb/read/CsvTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace k7deval::sitedb::test
{

namespace
{

using testing::ElementsAre;

SourceFile file(std::string content)
{
    SourceFile source;
    source.name = "t.csv";
    source.content = std::move(content);
    return source;
}

TEST(CsvTable, RowsKnowTheLineTheyBeginIn)
{
    const SourceFile source = file("a,b\n\n1,\"x\ny\"\n2,z\r\n\n3,\n");
    const auto table = CsvTable::parse(source);
    ASSERT_EQ(table.rows().size(), 3U);
    EXPECT_EQ(table.rows()[0].line, 3);
    EXPECT_THAT(table.rows()[0].fields, ElementsAre("1", "x\ny"));
    EXPECT_EQ(table.rows()[1].line, 5);
    EXPECT_THAT(table.rows()[1].fields, ElementsAre("2", "z"));
    EXPECT_EQ(table.rows()[2].line, 7);
    EXPECT_THAT(table.rows()[2].fields, ElementsAre("3", ""));
}

struct NumberCase {
    const char* text = "";
    std::optional<double> value;
};

const NumberCase kNumbers[] = {
    {"0", 0},     {"-0.5", -0.5}, {"12.25", 12.25}, {".5", 0.5},   {"1e3", 1000},
    {"", {}},     {" 1", {}},     {"1 ", {}},       {"+1", {}},    {"1,5", {}},
    {"0x10", {}}, {"nan", {}},    {"inf", {}},      {"1e999", {}}, {"1-", {}},
};

TEST(CsvTable, ANumberIsWrittenPlainly)
{
    for (const auto& entry : kNumbers)
        EXPECT_EQ(plainNumber(entry.text), entry.value) << "'" << entry.text << "'";
}

TEST(CsvTable, ANumberIsShownWithoutAnExponent)
{
    EXPECT_EQ(numberText(1'000'000), "1000000");
    EXPECT_EQ(numberText(-0.00001), "-0.00001");
    EXPECT_EQ(numberText(89.25), "89.25");
}

std::string quotedField(const std::string& field)
{
    std::string text = "\"";
    for (const char letter : field)
        text += letter == '"' ? std::string("\"\"") : std::string(1, letter);
    return text + "\"";
}

TEST(CsvTable, EveryQuotedFieldComesBack)
{
    EXPECT_TRUE(
        rc::check("quoted and back", [](const std::string& first, const std::string& second) {
            const SourceFile source =
                file("a,b\n" + quotedField(first) + "," + quotedField(second) + "\r\n");
            const auto table = CsvTable::parse(source);
            RC_ASSERT(table.rows().size() == 1U);
            RC_ASSERT((table.rows()[0].fields == std::vector<std::string>{first, second}));
        }));
}

TEST(CsvTable, AnyTextIsATableOrIsRefusedWithItsLine)
{
    EXPECT_TRUE(rc::check("no text does harm", [] {
        const auto content =
            *rc::gen::container<std::string>(rc::gen::elementOf(std::string("ab1,,\"\r\n\n\xff")));
        const SourceFile source = file("a,b\n" + content);
        try {
            const auto table = CsvTable::parse(source);
            for (const auto& row : table.rows())
                RC_ASSERT(row.fields.size() == 2U);
        } catch (const ImportError& error) {
            RC_ASSERT(error.description().starts_with("t.csv: "));
            RC_ASSERT(error.description().ends_with("."));
        }
    }));
}

} // namespace

} // namespace k7deval::sitedb::test
