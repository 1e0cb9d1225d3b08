#include "sitedb/ImportCase.h"

#include "sitedb/sql/Connection.h"

#include <gtest/gtest.h>

namespace k7deval::sitedb::test
{

namespace
{

const std::string kTwoHours = "date,hour,gross_load_mw\n2020-01-01,0,10\n2020-01-01,1,0\n";

using FileRefusal = ImportTest<SmallSite>;

TEST_F(FileRefusal, AFileThatIsNotThere)
{
    EXPECT_EQ(refusal(held, held.directory / "none.csv", {}), "none.csv: there is no such file.");
    try {
        importFile(site, held.directory / "none.csv", {});
    } catch (const ImportError& error) {
        EXPECT_EQ(error.number(), errors::kFileNotFound);
    }
}

TEST_F(FileRefusal, ADirectory)
{
    std::filesystem::create_directory(held.directory / "folder");
    EXPECT_EQ(refusal(held, held.directory / "folder", {}),
              "folder: this is no file that can be read.");
}

struct ContentCase {
    const char* what;
    std::string content;
    const char* sentence;
};

TEST_F(FileRefusal, AContentOfNoKnownFormat)
{
    const char* unknown = "this is none of the files that can be imported.";
    const ContentCase cases[] = {
        {"nothing", "", "the file is empty."},
        {"nothing, packed", gzip(""), "the file is empty."},
        {"a mark and nothing", "\xEF\xBB\xBF", "the file is empty."},
        {"prose", "Dear operator\n", unknown},
        {"a JSON list", "[1, 2]", unknown},
        {"a table of something else", "unit_id,test_number\nU1,7\n", unknown},
        {"a load table with semicolons", "date;hour;gross_load_mw\n2020-01-01;0;1\n", unknown},
        {"bytes", std::string("\0\1\2\xff", 4), unknown},
        {"a quote without an end", R"("date,hour,gross_load_mw)", unknown},
    };
    for (const auto& entry : cases) {
        SmallSite fresh;
        const auto file = fresh.directory.write("file.dat", entry.content);
        EXPECT_EQ(refusal(fresh, file, forUnit("U1")), std::string("file.dat: ") + entry.sentence)
            << entry.what;
    }
}

TEST_F(FileRefusal, AGzipFileThatIsCutOffAnywhere)
{
    const std::string packed = gzip(kTwoHours);
    for (std::size_t length = 2; length < packed.size(); ++length) {
        const auto file = held.directory.write("load.csv.gz", packed.substr(0, length));
        EXPECT_EQ(refusal(held, file, forUnit("U1")), "load.csv.gz: the gzip file is cut off.")
            << length << " bytes";
    }
}

TEST_F(FileRefusal, ALongGzipFileThatIsCutOffInTheMiddle)
{
    const std::string packed = readFile(sampleFile("hourly_load_GT3.csv.gz"));
    const auto file = held.directory.write("load.csv.gz", packed.substr(0, packed.size() / 2));
    EXPECT_EQ(refusal(held, file, forUnit("U1")), "load.csv.gz: the gzip file is cut off.");
}

TEST_F(FileRefusal, AGzipFileWithAChangedByte)
{
    std::string packed = gzip(kTwoHours);
    packed[packed.size() - 6] = static_cast<char>(packed[packed.size() - 6] ^ 1);
    EXPECT_EQ(refused("load.csv.gz", packed, forUnit("U1")),
              "load.csv.gz: the gzip file is damaged.");
}

TEST_F(FileRefusal, AGzipFileWithSomethingBehindIt)
{
    EXPECT_EQ(refused("load.csv.gz", gzip(kTwoHours) + "rest", forUnit("U1")),
              "load.csv.gz: the gzip file is damaged.");
}

TEST_F(FileRefusal, AGzipFileOfTwoMembersWithSomethingBehindThem)
{
    const std::string packed = gzip("date,hour,gross_load_mw\n") + gzip("2020-01-01,0,10\n");
    EXPECT_EQ(refused("load.csv.gz", packed + "some bytes", forUnit("U1")),
              "load.csv.gz: the gzip file is damaged.");
    take("load.csv.gz", packed, forUnit("U1"));
}

TEST_F(FileRefusal, ASiteOpenForReadingOnlyTakesNothing)
{
    auto reader = SiteDatabase::open(held.path, OpenMode::ReadOnly);
    const std::string before = readFile(held.path);
    try {
        importFile(reader, held.directory.write("load.csv", kTwoHours), forUnit("U1"));
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), errors::kPermissionDenied);
        EXPECT_EQ(error.description(),
                  "site.k7site: the site is open for reading only or write-protected.");
    }
    EXPECT_TRUE(readFile(held.path) == before);
}

TEST_F(FileRefusal, ASiteThatAnotherProgramWritesToTakesNothing)
{
    auto other = SiteDatabase::open(held.path, OpenMode::ReadWrite);
    const auto file = held.directory.write("load.csv", kTwoHours);
    const sql::Transaction writing(other.connection());
    try {
        importFile(site, file, forUnit("U1"));
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.description(), "site.k7site: another program is writing to the site.");
    }
}

} // namespace

} // namespace k7deval::sitedb::test
