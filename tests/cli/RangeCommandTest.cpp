#include "cli/CommandRun.h"
#include "cli/PrintedJson.h"
#include "cli/SampleSites.h"
#include "range/ctrlRangeEval.h"
#include "sitedb/SiteDatabase.h"
#include "support/FakeServices.h"
#include "support/FakeSite.h"

#include <gtest/gtest.h>

/// `k7deval range` shows what the range tool shows, `k7deval ranges` what it offers.
namespace k7deval::cli::test
{

namespace
{

using k7deval::test::TemporaryFolder;
using nlohmann::json;

Arguments gas()
{
    return {"--site", siteOfGas()};
}

Arguments upTo100()
{
    return gas() + Arguments{"--scale", "HIGH", "--mec", "20", "--mpc", "80"};
}

TEST(RangeCommand, PrintsTheScreen)
{
    const CommandRun range = run(Arguments{"range"} + upTo100());
    EXPECT_EQ(range.out, R"(U1 SO2 01 HIGH
Instrument Range: 100
Maximum Expected: 20
Maximum Potential: 80
Range evaluation summary ending the last day of : 2021 Q1

 0 to   20  4 hours  44.4%
20 to   80  3 hours  33.3%
80 to  100  2 hours  22.2%

From   To  Hours  Percent
   0    5      1    11.1%  ####################
   5   10      2    22.2%  ########################################
  10   15      0     0.0%
  15   20      1    11.1%  ####################
  20   25      1    11.1%  ####################
  25   30      0     0.0%
  30   35      0     0.0%
  35   40      0     0.0%
  40   45      0     0.0%
  45   50      0     0.0%
  50   55      0     0.0%
  55   60      1    11.1%  ####################
  60   65      0     0.0%
  65   70      0     0.0%
  70   75      0     0.0%
  75   80      1    11.1%  ####################
  80   85      1    11.1%  ####################
  85   90      0     0.0%
  90   95      0     0.0%
  95  100      1    11.1%  ####################

Hours above MEC:  5
Hours above MPC:  2
Hours over Range:  1
Hours with 200% replacement:  1
Invalid Hours:  26294
)");
    EXPECT_EQ(range.notes, "");
    EXPECT_EQ(range.status, 0);
}

// Twelve quarters of 1096 days, of which ten hours are valid.
TEST(RangeCommand, HoldsTheWholeScreenTheEvaluationAndTheCatalogue)
{
    const json document = printedAsJson("range", upTo100());
    EXPECT_EQ(document.at("Evaluation"), json::parse(R"({
        "RangeValue": 100.0, "LowThreshold": 20.0, "HighThreshold": 80.0,
        "MECValue": 20.0, "MPCValue": 80.0, "LowHours": 4, "MidHours": 3, "HighHours": 2,
        "OverRangeHours": 1, "AboveMECHours": 5, "AboveMPCHours": 2, "ReplacedHours": 1,
        "InvalidHours": 26294,
        "Bins": [0, 1, 2, 0, 1, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 1, 1, 0, 0, 1],
        "NeedsEvaluation": false})"));
    EXPECT_EQ(document.at("UnitCatalogue"), json::parse(R"({
        "100100000": {"110007501": {"1": 50.0, "3": 100.0}, "122007501": {"3": 25.0}},
        "200100000": {"211007501": {"3": 33.3}}})"));
    EXPECT_EQ(document.at("Messages"), json::array());
    EXPECT_EQ(document.size(), 4U);
}

// The same done at the control itself leaves the same screen.
TEST(RangeCommand, HoldsTheScreenThatTheControlHas)
{
    k7deval::test::FakeServices services;
    const k7deval::test::FixedClock clock(timeOfRuns());
    const RegionalSettings regional;
    ctrlRangeEval tool({services, clock, regional});
    tool.SetDIServer(sitedb::SiteDatabase::open(siteOfGas(), sitedb::OpenMode::ReadOnly).server());
    tool.cmbScale.Pick(1);
    tool.chkMEC.Press();
    tool.txtMEC.Type("20");
    tool.txtMPC.Type("80");
    tool.cmdCalculate.Press();
    EXPECT_EQ(printedAsJson("range", upTo100()).at("Screen"), printed(tool.Properties()));
}

struct RangeOption {
    std::string what;
    std::string arguments;
    std::string property; ///< Of a widget: "cmbUnit/Text".
    json content;
};

TEST(RangeCommand, SetsAWidgetByEachOption)
{
    const std::string so2High = "--scale HIGH";
    const std::vector<RangeOption> cases{
        {"the first unit", "", "cmbUnit/Text", "U1"},
        {"a unit", "--unit U2", "cmbUnit/Text", "U2"},
        {"its first parameter", "", "cmbParam/Text", "SO2 01"},
        {"a parameter", "--parameter 'O2 02'", "cmbParam/Text", "O2 02"},
        {"PIDs", "--show-pid", "cmbParam/Text", "[1-100-0-75-01] SO2 01"},
        {"the first scale", "", "cmbScale/Text", "LOW"},
        {"a scale", so2High, "cmbScale/Text", "HIGH"},
        {"the span of the scale", so2High, "txtRange/Text", "100"},
        {"a range", "--range 62.5", "txtRange/Text", "62.5"},
        {"the proposed MEC", "", "txtMEC/Text", "10"},
        {"the proposed MEC counts", "", "chkMEC/Value", 1},
        {"no proposed MEC", so2High, "txtMEC/Text", "N/A"},
        {"no proposed MEC counts", so2High, "chkMEC/Value", 0},
        {"an MEC where none is proposed", so2High + " --mec 15", "txtMEC/Text", "15"},
        {"which counts", so2High + " --mec 15", "chkMEC/Value", 1},
        {"no MEC", "--mec none", "chkMEC/Value", 0},
        {"which leaves the proposal", "--mec none", "txtMEC/Text", "10"},
        {"the proposed MPC", "", "txtMPC/Text", "50"},
        {"which counts, too", "", "chkMPC/Value", 1},
        {"an MPC", "--mpc 45", "txtMPC/Text", "45"},
        {"no MPC", "--mpc none", "chkMPC/Value", 0},
        {"limits of a percent gas", "--parameter 'O2 02'", "txtMPC/Text", "N/A"},
        {"its own limit", "--parameter 'O2 02' --mpc 21", "chkMPC/Value", 1},
        {"the last finished quarter", "", "cmbQTR/Text", "Q1"},
        {"its year", "", "cmbYear/Text", "2021"},
        {"a quarter with its year", "--quarter 2018Q2", "cmbQTR/Text", "Q2"},
        {"the year of that", "--quarter 2018Q2", "cmbYear/Text", "2018"},
        {"a year", "--year 2020", "cmbYear/Text", "2020"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what + ": " + row.property);
        const json document = printedAsJson("range", gas() + argumentsOf(row.arguments));
        EXPECT_EQ(document.at(json::json_pointer("/Screen/Widgets/" + row.property)), row.content);
    }
}

TEST(RangeCommand, ShowsALimitThatTakesNoPartAsNone)
{
    const CommandRun range = run(Arguments{"range", "--mpc", "none", "--mec", "none"} + gas());
    EXPECT_NE(range.out.find("Maximum Expected: none\nMaximum Potential: none\n"),
              std::string::npos);
    EXPECT_NE(range.out.find("Hours above MEC:  N/A\nHours above MPC:  N/A\n"), std::string::npos);
}

TEST(RangeCommand, ReadsAndWritesAsTheRegionDoes)
{
    const CommandRun range = run(Arguments{"range", "--unit", "U2", "--region", "fr-FR", "--mec",
                                           "6,5", "--range", "33,25"} +
                                 gas());
    EXPECT_EQ(range.notes, "");
    EXPECT_EQ(range.out.substr(0, range.out.find("Range eval")),
              "U2 NOX 03 HIGH\nInstrument Range: 33,25\nMaximum Expected: 6,5\n"
              "Maximum Potential: 33,3\n");
    EXPECT_NE(range.out.find("26,6 to  33,25  0 hours  -----\n"), std::string::npos);
}

// 736 hours, one of them missing, in twelve quarters of 26304.
TEST(RangeCommand, EvaluatesTheMercuryOfCrystalRiver)
{
    const json evaluation = printedAsJson("range", {"--site", siteOfRanges(), "--unit", "4",
                                                    "--parameter", "HG", "--quarter", "2021Q3"})
                                .at("Evaluation");
    EXPECT_EQ(evaluation.at("RangeValue"), 5.0);
    EXPECT_EQ(evaluation.at("LowHours"), 716);
    EXPECT_EQ(evaluation.at("MidHours"), 19);
    EXPECT_EQ(evaluation.at("InvalidHours"), 26304 - 735);
}

struct FailureCase {
    const char* what;
    std::string value; ///< In place of an hour's 80.
    Arguments arguments;
    std::string sentence;
};

TEST(RangeCommand, SaysWhyAnEvaluationFailed)
{
    const std::vector<FailureCase> cases{
        {"a value of 0 in a range of 0",
         "0",
         {"--range", "0"},
         "There is no result because the range is 0 (error 6, Overflow)."},
        {"a value below a range of 0",
         "-1",
         {"--range", "0"},
         "There is no result because the range is 0 (error 11, Division by zero)."},
        {"a value far below 0",
         "-50",
         {},
         "There is no result because a value lies too far below 0 (error 9, Subscript out of "
         "range)."},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        const TemporaryFolder folder;
        const std::string site =
            alteredSite(siteOfGas(), folder,
                        {"UPDATE hourly_value SET value = " + row.value + " WHERE value = 80"});
        const std::string pdf = folder.file("never.pdf");
        const CommandRun failed =
            run(Arguments{"range", "--site", site, "--pdf", pdf} + row.arguments);
        EXPECT_EQ(failed.notes, row.sentence + "\n");
        EXPECT_EQ(failed.out, "");
        EXPECT_EQ(failed.status, 2);
        EXPECT_EQ(folder.names(), std::vector<std::string>{"altered.site"});
    }
}

// No hour has to be put into a bin of it.
TEST(RangeCommand, CountsAllHoursAsOverARangeOfZero)
{
    const CommandRun range = run(Arguments{"range", "--range", "0"} + gas());
    EXPECT_NE(range.out.find("Hours over Range:  10\n"), std::string::npos);
    EXPECT_EQ(range.status, 0);
}

TEST(RangesCommand, ListsParametersAndScalesOfAllUnits)
{
    const CommandRun ranges = run({"ranges", "--site", siteOfGas()});
    EXPECT_EQ(ranges.out, "U1\tSO2 01\tLOW\t50\nU1\tSO2 01\tHIGH\t100\nU1\tO2 02\tHIGH\t25\n"
                          "U2\tNOX 03\tHIGH\t33.3\n");
    EXPECT_EQ(ranges.notes, "");
    EXPECT_EQ(ranges.status, 0);
}

TEST(RangesCommand, ListsThoseOfAUnit)
{
    EXPECT_EQ(run({"ranges", "--site", siteOfGas(), "--unit", "U2"}).out,
              "U2\tNOX 03\tHIGH\t33.3\n");
}

} // namespace

} // namespace k7deval::cli::test
