#include "cli/CommandRun.h"
#include "cli/PrintedJson.h"
#include "cli/SampleSites.h"
#include "load/ctrlMaxMW.h"
#include "sitedb/SiteDatabase.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"

#include <gtest/gtest.h>

/// `k7deval load` shows what the load tool shows.
namespace k7deval::cli::test
{

namespace
{

using k7deval::test::TemporaryFolder;
using nlohmann::json;

constexpr const char* kVerifyZero =
    "Verify a minimum safe operating load of zero from the Part 75 Monitoring Plan.";

Arguments fromTenTo110()
{
    return {"--site", siteOfLoad(), "--minimum", "10", "--capacity", "110"};
}

TEST(LoadCommand, PrintsTheScreen)
{
    const CommandRun load = run(Arguments{"load"} + fromTenTo110());
    EXPECT_EQ(load.out, R"(U1 Load
Minimum Safe Operating Value: 10
Nameplate/Rated Capacity: 110
4 operating quarters ending the last day of: 2021 Q1

10 to   40  4 hours  50.0% Low Op Load
40 to   70  2 hours  25.0% Mid Op Load
70 to  110  2 hours  25.0% High Op Load

From   To  Hours  Percent
  10   15      2    25.0%  ########################################
  15   20      1    12.5%  ####################
  20   25      0     0.0%
  25   30      0     0.0%
  30   35      0     0.0%
  35   40      1    12.5%  ####################
  40   45      1    12.5%  ####################
  45   50      0     0.0%
  50   55      0     0.0%
  55   60      0     0.0%
  60   65      0     0.0%
  65   70      1    12.5%  ####################
  70   75      1    12.5%  ####################
  75   80      0     0.0%
  80   85      0     0.0%
  85   90      0     0.0%
  90   95      0     0.0%
  95  100      0     0.0%
 100  105      0     0.0%
 105  110      1    12.5%  ####################

1 hour(s) under 10
1 hour(s) over 110 - Maximum 111
)");
    EXPECT_EQ(load.notes, "");
    EXPECT_EQ(load.status, 0);
}

// All hours lie outside the range, so the bars stay flat.
TEST(LoadCommand, PrintsNoBarsWithoutHoursInTheRange)
{
    const CommandRun load =
        run({"load", "--site", siteOfLoad(), "--minimum", "200", "--capacity", "300"});
    EXPECT_EQ(load.out, R"(U1 Load
Minimum Safe Operating Value: 200
Nameplate/Rated Capacity: 300
4 operating quarters ending the last day of: 2021 Q1

200 to  230  0 hours  -----
230 to  260  0 hours  -----
260 to  300  0 hours  -----

10 hour(s) under 200
0 hours(s) over 300
)");
    EXPECT_EQ(load.status, 0);
}

TEST(LoadCommand, PrintsBarsOfNegativeLoads)
{
    const CommandRun load =
        run({"load", "--site", siteOfLoad(), "--minimum", "-10", "--capacity", "110"});
    EXPECT_NE(load.out.find("From   To  Hours  Percent\n -10   -4      0     0.0%\n"
                            "  -4    2      0     0.0%\n   2    8      1    11.1%  ####"),
              std::string::npos)
        << load.out;
}

TEST(LoadCommand, HoldsTheWholeScreenAndTheEvaluation)
{
    const json document = printedAsJson("load", fromTenTo110());
    EXPECT_EQ(document.at("Evaluation"), json::parse(R"({
        "HighThreshold": 70.0, "LowThreshold": 40.0, "MinSafeValue": 10.0, "CapacityValue": 110.0,
        "HighHours": 2, "MidHours": 2, "LowHours": 4, "OverHours": 1, "MaxObserved": 111.0,
        "UnderHours": 1, "Bins": [0, 2, 1, 0, 0, 0, 1, 1, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0, 0, 1],
        "NeedsEvaluation": false,
        "StartDate": "2021-01-01 00:00", "EndDate": "2021-03-31 00:00"})"));
    EXPECT_EQ(document.at("Messages"), json::array());
    EXPECT_EQ(document.size(), 3U);
}

// The same done at the control itself leaves the same screen.
TEST(LoadCommand, HoldsTheScreenThatTheControlHas)
{
    k7deval::test::FakeServices services;
    const k7deval::test::FixedClock clock(timeOfRuns());
    const RegionalSettings regional;
    ctrlMaxMW tool({services, clock, regional});
    tool.SetDIServer(sitedb::SiteDatabase::open(siteOfLoad(), sitedb::OpenMode::ReadOnly).server());
    tool.txtMinSafe.Type("10");
    tool.txtMinSafe.Leave();
    tool.txtCapacity.Type("110");
    tool.txtCapacity.Leave();
    tool.cmdCalculate.Press();
    EXPECT_EQ(printedAsJson("load", fromTenTo110()).at("Screen"), printed(tool.Properties()));
}

struct LoadOption {
    std::string what;
    std::string arguments;
    std::string property; ///< Of a widget: "cmbUnit/Text".
    json content;
};

TEST(LoadCommand, SetsAWidgetByEachOption)
{
    const std::vector<LoadOption> cases{
        {"the first unit", "", "cmbUnit/Text", "U1"},
        {"a unit", "--unit U1", "cmbUnit/Text", "U1"},
        {"the unit's load", "", "cmbParam/Text", "Load"},
        {"a parameter", "--parameter 'Operating Time'", "cmbParam/Text", "Operating Time"},
        {"no PIDs", "", "chkShowPID/Value", 0},
        {"PIDs", "--show-pid", "cmbParam/Text", "[1-602-0-75-01] Load"},
        {"no minimum", "", "txtMinSafe/Text", "0"},
        {"a minimum", "--minimum 45", "txtMinSafe/Text", "45"},
        {"a capacity", "--capacity 195.5", "txtCapacity/Text", "195.5"},
        {"four quarters", "", "optTimeEnd/Value", true},
        {"the last finished quarter", "", "cmbQTR/Text", "Q1"},
        {"its year", "", "cmbYear/Text", "2021"},
        {"a quarter", "--quarter Q3", "cmbQTR/Text", "Q3"},
        {"a year of the list", "--year 2020", "cmbYear/ListIndex", 1},
        {"a year that is not in the list", "--year 2017", "cmbYear/Text", "2017"},
        {"a quarter with its year", "--quarter 2018Q2", "cmbQTR/Text", "Q2"},
        {"the year of that", "--quarter 2018Q2", "cmbYear/Text", "2018"},
        {"dates", "--from 2020-02-29", "optTimeSelect/Value", true},
        {"the first day", "--from 2020-02-29", "txtFrom/Text", "2/29/2020"},
        {"the proposed last day", "--from 2020-02-29", "txtTo/Text", "3/31/2021"},
        {"the last day", "--to 6/30/2021", "txtTo/Text", "6/30/2021"},
        {"days in reverse order", "--from 2021-06-30 --to 2019-01-01", "txtFrom/Text", "1/1/2019"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        const json document =
            printedAsJson("load", Arguments{"--site", siteOfLoad()} + argumentsOf(row.arguments));
        EXPECT_EQ(document.at(json::json_pointer("/Screen/Widgets/" + row.property)), row.content);
    }
}

TEST(LoadCommand, TellsWhatTheScreenAsksToVerify)
{
    const CommandRun zero = run({"load", "--site", siteOfLoad(), "--capacity", "110"});
    EXPECT_EQ(zero.notes, std::string(kVerifyZero) + "\n");
    EXPECT_EQ(zero.status, 0);
}

TEST(LoadCommand, TellsThatItShortensAPeriod)
{
    const Arguments years =
        Arguments{"--from", "2019-01-01", "--to", "2021-03-31"} + fromTenTo110();
    const std::string message = "A custom evaluation period greater than 5 quarters is not "
                                "supported. Setting evaluation start time to 12/30/19.";
    const CommandRun load = run(Arguments{"load"} + years);
    EXPECT_EQ(load.notes, message + "\n");
    EXPECT_NE(load.out.find("\nSpecified Dates: 12/30/2019 to 3/31/2021\n"), std::string::npos);
    EXPECT_EQ(printedAsJson("load", years).at("Messages"), json::array({message}));
}

TEST(LoadCommand, ShowsPIDsWhereTheyAreWanted)
{
    const CommandRun load = run(Arguments{"load", "--show-pid"} + fromTenTo110());
    EXPECT_EQ(load.out.substr(0, 45), "U1 Load\nParameter: [1-602-0-75-01] Load\nMinim");
}

TEST(LoadCommand, ReadsAndWritesAsTheRegionDoes)
{
    const CommandRun load =
        run({"load", "--site", siteOfLoad(), "--region", "de-DE", "--minimum", "10,5", "--capacity",
             "110", "--from", "31.03.2021", "--to", "31.03.2021"});
    EXPECT_EQ(load.notes, "");
    EXPECT_NE(load.out.find("Minimum Safe Operating Value: 10,5\n"), std::string::npos);
    EXPECT_NE(load.out.find("Specified Dates: 31.03.2021 to 31.03.2021\n"), std::string::npos);
    EXPECT_NE(load.out.find("40,35 to   70,2  2 hours  28,6% Mid Op Load\n"), std::string::npos);
    EXPECT_NE(load.out.find("\n   10,5   15,475      1    14,3%  #####"), std::string::npos);
}

// The site's capacity is what the screen proposes.
TEST(LoadCommand, TakesTheCapacityOfTheSite)
{
    const TemporaryFolder folder;
    const std::string site = alteredSite(siteOfLoad(), folder, {});
    ASSERT_EQ(run({"import", "--site", site, "--capacity", "U1=110"}).status, 0);
    const CommandRun load = run({"load", "--site", site, "--minimum", "10"});
    EXPECT_EQ(load.out, run(Arguments{"load"} + fromTenTo110()).out);
}

TEST(LoadCommand, SaysWhenThereIsNoRangeToEvaluate)
{
    const CommandRun load = run({"load", "--site", siteOfLoad(), "--minimum", "10", "--capacity",
                                 "10", "--pdf", "never.pdf"});
    EXPECT_EQ(load.notes, "There is no result because the minimum and the capacity are both 10; "
                          "see --minimum and --capacity.\n");
    EXPECT_NE(load.out.find("0 hour(s) under 10\n"), std::string::npos);
    EXPECT_EQ(load.status, 2);
    EXPECT_FALSE(std::filesystem::exists("never.pdf"));
}

} // namespace

} // namespace k7deval::cli::test
