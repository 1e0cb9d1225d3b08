#include "sitedb/tables/Modc.h"
#include "sitedb/EmissionsCase.h"
#include "sitedb/sql/Connection.h"
#include "sitedb/tables/SiteIds.h"

#include <gtest/gtest.h>

#include <set>

namespace k7deval::sitedb::test
{

namespace
{

struct ModcCase {
    const char* code;
    std::int32_t word;
    bool valid;
    bool excluded;
};

// As the instructions for the emissions file describe the codes of monitor hours.
constexpr ModcCase kCases[] = {
    // Measured by a monitor that is quality-assured.
    {"01", 101, true, false},
    {"02", 102, true, false},
    {"03", 103, true, false},
    {"04", 104, true, false},
    {"17", 117, true, false},
    {"21", 121, true, false},
    {"22", 122, true, false},
    {"53", 153, true, false},
    {"54", 154, true, false},
    // The hours of 200 % replacement have words of their own.
    {"19", 35, true, false},
    {"20", 36, true, false},
    // Quality-assured, but nothing by which a range is judged.
    {"16", 116, true, true},
    {"32", 132, true, true},
    {"33", 133, true, true},
    {"41", 141, true, true},
    {"42", 142, true, true},
    {"43", 143, true, true},
    {"44", 144, true, true},
    // Substituted, missing or not used.
    {"05", 105, false, false},
    {"06", 106, false, false},
    {"07", 107, false, false},
    {"08", 108, false, false},
    {"09", 109, false, false},
    {"10", 110, false, false},
    {"11", 111, false, false},
    {"12", 112, false, false},
    {"13", 113, false, false},
    {"14", 114, false, false},
    {"15", 115, false, false},
    {"18", 118, false, false},
    {"23", 123, false, false},
    {"24", 124, false, false},
    {"34", 134, false, false},
    {"35", 135, false, false},
    {"46", 146, false, false},
    {"47", 147, false, false},
    {"48", 148, false, false},
    {"55", 155, false, false},
};

void PrintTo(const ModcCase& entry, std::ostream* stream)
{
    *stream << "MODC " << entry.code;
}

class ModcWord : public testing::TestWithParam<ModcCase>
{
};

TEST_P(ModcWord, SaysWhetherTheHourCounts)
{
    const auto& entry = GetParam();
    EmptySite held;
    const auto codes = held.site.server()->StatusCodes();
    const Modc* modc = findModc(entry.code);
    ASSERT_NE(modc, nullptr);
    const std::int32_t word = statusWord(*modc);
    EXPECT_EQ(word, entry.word);
    EXPECT_EQ(codes->IsValid(word), entry.valid);
    EXPECT_EQ(codes->IsExcluded(word), entry.excluded);
    EXPECT_FALSE(codes->IsUnitOffline(word));
}

INSTANTIATE_TEST_SUITE_P(All, ModcWord, testing::ValuesIn(kCases));

TEST(Modc, TheTableHasNoOthers)
{
    EXPECT_EQ(allModcs().size(), std::size(kCases));
    std::set<std::int32_t> words;
    for (const auto& modc : allModcs())
        words.insert(statusWord(modc));
    EXPECT_EQ(words.size(), std::size(kCases));
}

TEST(Modc, OnlyOneOrTwoDigitsNameACode)
{
    EXPECT_EQ(findModc("1")->code, 1);
    for (const char* text : {"", "0", "00", "001", "1 ", " 1", "-1", "+1", "1.", "AB", "25", "26",
                             "31", "36", "40", "45", "49", "56", "99"})
        EXPECT_EQ(findModc(text), nullptr) << text;
}

TEST(Modc, EveryCodeStaysReadableInTheSite)
{
    EmptySite held;
    const auto row =
        held.site.connection().prepare("SELECT meaning FROM status_word WHERE word = 106");
    ASSERT_TRUE(row->step());
    EXPECT_EQ(row->text(0), "MODC 06: average of the hours before and after");
    for (const auto& modc : allModcs())
        EXPECT_EQ(count(held.site, "SELECT COUNT(*) FROM status_word WHERE word = " +
                                       std::to_string(statusWord(modc))),
                  1);
}

/// A site as an earlier program made it: without the words of the codes, and with a word that the
/// plant changed.
std::string makeOlder(EmptySite& held)
{
    held.site.connection().execute("DELETE FROM status_word WHERE word > 100");
    held.site.connection().execute("UPDATE status_word SET meaning = 'test run' WHERE word = 3");
    return dump(held.site);
}

TEST(OlderSite, GetsTheMissingWordsWhenItIsOpenedForWriting)
{
    EmptySite held;
    const std::string complete = dump(held.site);
    const std::string older = makeOlder(held);
    ASSERT_NE(older, complete);
    auto opened = SiteDatabase::open(held.path, OpenMode::ReadWrite);
    std::string expected = complete;
    const std::string changed = "'left out of evaluations'";
    expected.replace(expected.find(changed), changed.size(), "'test run'");
    EXPECT_EQ(dump(opened), expected);
    importText(held, "emissions.json", emissionsOf({emissionsHour("2021-01-01", 0, 1)}));
}

TEST(OlderSite, IsLeftAloneWhenItIsOpenedForReading)
{
    EmptySite held;
    const std::string older = makeOlder(held);
    const std::string bytes = readFile(held.path);
    EXPECT_EQ(dump(SiteDatabase::open(held.path, OpenMode::ReadOnly)), older);
    EXPECT_TRUE(readFile(held.path) == bytes);
}

TEST(OlderSite, ACompleteSiteIsOpenedWithoutWriting)
{
    EmptySite held;
    auto other = SiteDatabase::open(held.path, OpenMode::ReadWrite);
    const sql::Transaction writing(other.connection());
    EXPECT_NO_THROW(SiteDatabase::open(held.path, OpenMode::ReadWrite));
}

} // namespace

} // namespace k7deval::sitedb::test
