#include "cli/CommandRun.h"
#include "cli/SampleSites.h"
#include "sitedb/SiteDatabase.h"
#include "sitedb/sql/Connection.h"
#include "support/Places.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace k7deval::cli::test
{

namespace
{

using k7deval::test::TemporaryFolder;

std::string textIn(const std::string& site, const std::string& query)
{
    const auto database = sitedb::SiteDatabase::open(site, sitedb::OpenMode::ReadOnly);
    const auto row = database.connection().prepare(query);
    return row->step() ? row->text(0) : "nothing";
}

std::string facilityOf(const std::string& site)
{
    return textIn(site, "SELECT value FROM lookup WHERE lookup_key = 'FacilityName'");
}

TEST(ImportCommand, PrintsWhatItTookFileByFile)
{
    const TemporaryFolder folder;
    const std::string site = folder.file("bethpage.site");
    const CommandRun import = run({"import", "--site", site, "--leave-out", sampleFile("spans.csv"),
                                   sampleFile("ecmps_qa_50292.json")});
    EXPECT_EQ(
        import.out,
        "spans.csv (span table): 4 units, 16 analyzers, 17 spans\n"
        "ecmps_qa_50292.json (ECMPS QA data): 19 tests, 131 zero injections, 132 upscale "
        "injections, 1 injection left out\n"
        "  left out: ecmps_qa_50292.json: "
        "testSummaryData[1].calibrationInjectionData[0].zeroInjectionHour: 24 is no hour from "
        "0 to 23.\n");
    EXPECT_EQ(import.notes, "");
    EXPECT_EQ(import.status, 0);
    EXPECT_EQ(textIn(site, "SELECT value FROM lookup WHERE lookup_key = 'SiteKey'"), "bethpage");
}

TEST(ImportCommand, PrintsWhatItSteppedOver)
{
    const TemporaryFolder folder;
    const CommandRun import = run({"import", "--site", folder.file("a.site"), "--unit", "GT3",
                                   sampleFile("hourly_load_GT3.csv.gz")});
    EXPECT_EQ(import.out, "hourly_load_GT3.csv.gz (hourly load): 52608 hours, 19403 hours with "
                          "load\n  stepped over: The column \"heat_input_mmbtu\".\n");
    EXPECT_EQ(import.status, 0);
}

TEST(ImportCommand, TakesAnEmissionsFileAndTellsNothingOfItsProgressSinceItIsSmall)
{
    const TemporaryFolder folder;
    const CommandRun import =
        run({"import", "--site", folder.file("a.site"),
             k7deval::test::projectFile("tests/sitedb/data/ecmps_emissions_small.json")});
    EXPECT_TRUE(
        import.out.starts_with("ecmps_emissions_small.json (ECMPS emissions data): 4 hours, "
                               "6 monitor values, 3 calibration injections\n"))
        << import.out;
    EXPECT_EQ(import.notes, "");
    EXPECT_EQ(import.status, 0);
}

TEST(ImportCommand, GivesTheHoursOfATableToTheComponentThatIsNamed)
{
    const TemporaryFolder folder;
    const std::string site = folder.file("a.site");
    std::ofstream(folder.file("hours.csv"))
        << "date,hour,parameter,unadjusted_hourly_value,modc\n2021-01-01,0,SO2C,5,01\n";
    const CommandRun import = run(
        {"import", "--site", site, "--unit", "1", "--component", "A07", folder.file("hours.csv")});
    EXPECT_EQ(import.out, "hours.csv (hours of a monitor): 1 hour, 1 measured hour\n");
    EXPECT_EQ(textIn(site, "SELECT name FROM parameter WHERE pid = 110007501"), "SO2 A07");
}

TEST(ImportCommand, NamesTheFacility)
{
    const TemporaryFolder folder;
    const std::string site = alteredSite(siteOfSpans(), folder, {});
    EXPECT_EQ(facilityOf(site), "Bethpage Energy Center");
    const CommandRun named = run({"import", "--site", site, "--facility", "Centrale d'Orléans"});
    EXPECT_EQ(named.out, "");
    EXPECT_EQ(named.notes, "");
    EXPECT_EQ(named.status, 0);
    EXPECT_EQ(facilityOf(site), "Centrale d'Orléans");
}

TEST(ImportCommand, SetsCapacitiesOfUnitsByHand)
{
    const TemporaryFolder folder;
    const std::string site = alteredSite(siteOfSpans(), folder, {});
    const CommandRun set =
        run({"import", "--site", site, "--capacity", "GT4=84", "--capacity", "GT3=84.5"});
    EXPECT_EQ(set.out, "");
    EXPECT_EQ(set.notes, "");
    EXPECT_EQ(set.status, 0);
    EXPECT_EQ(textIn(site, "SELECT GROUP_CONCAT(pid || ' ' || value, ', ') FROM constant"),
              "360200000 84.5, 460200000 84.0");
    EXPECT_EQ(run({"import", "--site", site, "--capacity", "GT4=90"}).status, 0);
    EXPECT_EQ(textIn(site, "SELECT CAST(value AS TEXT) FROM constant WHERE pid = 460200000"),
              "90.0");
}

TEST(ImportCommand, LeavesTheFileBehindACapacityAFile)
{
    const TemporaryFolder folder;
    const std::string site = folder.file("a.site");
    const CommandRun import =
        run({"import", "--site", site, "--capacity", "GT1=50", sampleFile("spans.csv")});
    EXPECT_EQ(import.out, "spans.csv (span table): 4 units, 16 analyzers, 17 spans\n");
    EXPECT_EQ(textIn(site, "SELECT CAST(value AS TEXT) FROM constant WHERE pid = 160200000"),
              "50.0");
}

TEST(ImportCommand, LogsTheTimeOfTheImport)
{
    EXPECT_EQ(textIn(siteOfSpans(), "SELECT imported_at FROM import_log"), "2021-05-20 12:00");
}

TEST(ImportCommand, KeepsTheFilesTakenBeforeTheOneThatFailed)
{
    const TemporaryFolder folder;
    const std::string site = folder.file("a.site");
    const CommandRun import = run({"import", "--site", site, "--facility", "Bethpage",
                                   sampleFile("spans.csv"), sampleFile("tests.csv")});
    EXPECT_EQ(import.out, "spans.csv (span table): 4 units, 16 analyzers, 17 spans\n");
    EXPECT_EQ(import.notes, "tests.csv: this is none of the files that can be imported.\n");
    EXPECT_EQ(import.status, 2);
    EXPECT_EQ(run({"units", "--site", site}).out, "GT1\nGT2\nGT3\nGT4\n");
    EXPECT_EQ(facilityOf(site), "nothing");
}

TEST(ImportCommand, LeavesASiteAloneThatItCouldAddNothingTo)
{
    const TemporaryFolder folder;
    const std::string site = alteredSite(siteOfSpans(), folder, {});
    const std::string before = k7deval::test::contentOf(site);
    const CommandRun import =
        run({"import", "--site", site, "--facility", "Other", sampleFile("ecmps_qa_50292.json")});
    EXPECT_EQ(import.status, 2);
    EXPECT_EQ(k7deval::test::contentOf(site), before);
}

} // namespace

} // namespace k7deval::cli::test
