#include "cli/CommandRun.h"
#include "cli/SampleSites.h"

#include <gtest/gtest.h>

namespace k7deval::cli::test
{

namespace
{

struct StatusCase {
    const char* what;
    Arguments interval;
    int status;        ///< Without --check.
    int checkedStatus; ///< With it.
};

TEST(CheckStatus, TellsAPassedTestFromOthers)
{
    const std::vector<StatusCase> cases{
        {"passed", {"--from", "2015-05-20", "--to", "2015-05-30"}, 0, 0},
        {"one day short", {"--from", "2015-05-25", "--to", "2015-05-30"}, 0, 1},
        {"no calibrations", {"--from", "2016-05-20", "--to", "2016-05-30"}, 0, 1},
        {"no interval", {"--from", "never"}, 2, 2},
    };
    const Arguments drift{"drift", "--site", siteOfTests(), "--unit", "GT1"};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(run(drift + row.interval).status, row.status);
        EXPECT_EQ(run(drift + row.interval + Arguments{"--check"}).status, row.checkedStatus);
        EXPECT_EQ(run(drift + row.interval + Arguments{"--check", "--json"}).status,
                  row.checkedStatus);
    }
}

TEST(CheckStatus, IsPassedWithTheAllowedFailedRun)
{
    // 2015-11-13 is out without the alternative specification, the six other days are not.
    const Arguments drift{"drift",      "--site",    siteOfTests(), "--unit",     "GT2",
                          "--analyzer", "NOX 213/H", "--from",      "2015-11-09", "--to",
                          "2015-11-15", "--no-aps",  "--check"};
    EXPECT_EQ(run(drift).status, 1);
    EXPECT_EQ(run(drift + Arguments{"--six-of-seven"}).status, 0);
}

TEST(CheckStatus, HasNothingToTellOfATestWithoutAResult)
{
    const CommandRun check =
        run({"drift", "--site", siteOfTests(), "--unit", "GT2", "--analyzer", "CO2 031/H", "--from",
             "2015-05-20", "--to", "2015-05-26", "--check"});
    EXPECT_EQ(check.out, "");
    EXPECT_EQ(check.notes, "DEval-003: 94, Invalid use of Null\n"
                           "DEval-004: 91, Object variable or With block variable not set\n"
                           "DEval-006: 91, Object variable or With block variable not set\n"
                           "DEval-010: 91, Object variable or With block variable not set\n"
                           "DEval-001: 91, Object variable or With block variable not set\n"
                           "There is no result because a calibration of the interval lacks a value "
                           "(DEval-003: 94, Invalid use of Null).\n");
    EXPECT_EQ(check.status, 2);
}

TEST(CheckStatus, DoesNotRelyOnAResultWithAFailedStep)
{
    const CommandRun check = run({"drift", "--site", siteOfTests(), "--from", "9999-12-30", "--to",
                                  "9999-12-31", "--check"});
    EXPECT_NE(check.out, "");
    EXPECT_EQ(check.notes,
              "DEval-005: 5, Invalid procedure call or argument\n"
              "There is no sure result because the interval reaches beyond the calendar "
              "(DEval-005: 5, Invalid procedure call or argument).\n");
    EXPECT_EQ(check.status, 2);
}

} // namespace

} // namespace k7deval::cli::test
