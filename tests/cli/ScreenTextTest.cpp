#include "cli/CommandRun.h"
#include "cli/SampleSites.h"
#include "support/Places.h"

#include <gtest/gtest.h>

namespace k7deval::cli::test
{

namespace
{

using k7deval::test::TemporaryFolder;

/// An approved text: what the program prints with the same arguments.
std::string approved(const std::string& name)
{
    return k7deval::test::contentOf(k7deval::test::projectFile("tests/golden/drift-text/" + name));
}

// A failed run with a drift above the alternative limit, and the six marked ones behind it.
TEST(ScreenText, StandsInColumns)
{
    const CommandRun drift = run({"drift", "--site", fullSite(), "--unit", "GT4", "--analyzer",
                                  "NOX 206/H", "--from", "2018-05-04", "--to", "2018-06-18"});
    EXPECT_EQ(drift.out, approved("gt4-nox-206.txt"));
    EXPECT_EQ(drift.notes, "");
    EXPECT_EQ(drift.status, 0);
}

// A day of two runs with an entry of its own, an operating day without a calibration, and the
// region's way of writing.
TEST(ScreenText, IndentsTheRunsOfADay)
{
    const CommandRun drift =
        run({"drift", "--site", fullSite(), "--unit", "GT4", "--analyzer", "O2 208/H", "--from",
             "2020-06-25", "--to", "2020-07-03", "--region", "de-DE"});
    EXPECT_EQ(drift.out, approved("gt4-o2-208.txt"));
    EXPECT_EQ(drift.notes, "");
}

TEST(ScreenText, ShowsNothingButNAWhereThereIsNothing)
{
    const CommandRun drift = run({"drift", "--site", siteOfTests()});
    EXPECT_EQ(drift.out, "GT1 NOX 012/H\n"
                         "There are no calibrations in selected time range.\n"
                         "\n"
                         "NA\n");
}

TEST(ScreenText, LeavesTheSummaryOutWithTheScreen)
{
    const CommandRun drift = run({"drift", "--site", siteOfTests(), "--from", "2015-05-20", "--to",
                                  "2015-05-20", "--no-summary"});
    EXPECT_EQ(drift.out.substr(0, drift.out.find("Zero Gas")),
              "GT1 NOX 012/H\n\n" + std::string(51, ' '));
}

TEST(ScreenText, ShowsAnUndeterminedOperatingStatus)
{
    const CommandRun drift =
        run({"drift", "--site", siteOfTests(), "--from", "2015-05-20", "--to", "2015-05-30"});
    EXPECT_EQ(
        drift.out.substr(0, drift.out.find("\n\n")),
        "GT1 NOX 012/H\n"
        "The 7-Day Drift Test has been passed.\n"
        "Unit operating status cannot be determined for 4 days in selected timeframe prior to "
        "completion of the test. Test results may be inaccurate.");
}

TEST(ScreenText, TellsWhatFailedOnTheWay)
{
    const TemporaryFolder folder;
    const std::string site = alteredSite(siteOfTests(), folder, {"DROP TABLE calibration_record"});
    const CommandRun drift = run({"drift", "--site", site});
    EXPECT_EQ(drift.out, "");
    EXPECT_NE(drift.notes.find("There is no result because a step failed (DEval-003: 440, "
                               "altered.site: the database reports: no such table: "
                               "calibration_record).\n"),
              std::string::npos)
        << drift.notes;
    EXPECT_EQ(drift.status, 2);
}

} // namespace

} // namespace k7deval::cli::test
