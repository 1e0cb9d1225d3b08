#include "cli/CommandRun.h"
#include "cli/SampleSites.h"

#include <gtest/gtest.h>

/// What `load` and `range` refuse: each row by one sentence on standard error and status 2, with
/// nothing printed.
namespace k7deval::cli::test
{

namespace
{

using k7deval::test::TemporaryFolder;

struct RefusalCase {
    std::string what;
    std::string arguments;
    std::string sentence;
};

void expectRefusals(const Arguments& command, const std::vector<RefusalCase>& cases)
{
    for (const auto& row : cases) {
        SCOPED_TRACE(command.front() + ": " + row.what);
        const CommandRun refused = run(command + argumentsOf(row.arguments));
        EXPECT_EQ(refused.notes, row.sentence + "\n");
        EXPECT_EQ(refused.status, 2);
        EXPECT_EQ(refused.out, "");
    }
}

Arguments loadCommand()
{
    return {"load", "--site", siteOfLoad()};
}

Arguments rangeCommand()
{
    return {"range", "--site", siteOfGas()};
}

TEST(HistogramUsage, PicksOnlyWhatTheListsHold)
{
    expectRefusals(loadCommand(),
                   {
                       {"unit", "--unit U2", "There is no unit \"U2\"; the list holds: U1."},
                       {"parameter", "--parameter Speed",
                        "Unit U1 has no parameter \"Speed\"; the list holds: Operating Time, "
                        "Load."},
                   });
    expectRefusals(
        rangeCommand(),
        {
            {"unit", "--unit U3", "There is no unit \"U3\"; the list holds: U1, U2."},
            {"parameter", "--unit U2 --parameter 'SO2 01'",
             "Unit U2 has no parameter \"SO2 01\"; the list holds: NOX 03."},
            {"scale", "--scale MID", "U1 SO2 01 has no scale \"MID\"; the list holds: LOW, HIGH."},
        });
}

TEST(HistogramUsage, TakesOnlyQuartersThatThereAre)
{
    for (const auto& command : {loadCommand(), rangeCommand()})
        expectRefusals(
            command,
            {
                {"quarter", "--quarter Q5",
                 "There is no quarter \"Q5\"; the list holds: Q1, Q2, Q3, Q4."},
                {"quarter of a year", "--quarter 2021q4",
                 "There is no quarter \"2021q4\"; the list holds: Q1, Q2, Q3, Q4."},
                {"short quarter", "--quarter 4",
                 "There is no quarter \"4\"; the list holds: Q1, Q2, Q3, Q4."},
                {"year in words", "--year this",
                 "\"this\" is no year, which is a whole number from 100 to 9999."},
                {"year with a blank", "--quarter '2021 Q4'",
                 "\"2021 \" is no year, which is a whole number from 100 to 9999."},
                {"year too early", "--year 099",
                 "\"099\" is no year, which is a whole number from 100 to 9999."},
                {"year too late", "--year 10000",
                 "\"10000\" is no year, which is a whole number from 100 to 9999."},
                {"year twice", "--year 2021 --quarter 2021Q4",
                 "The quarter \"2021Q4\" has its year with it; --year is for one without."},
            });
}

TEST(HistogramUsage, TakesOnlyNumbersAndDates)
{
    const auto noNumber = [](const std::string& text, const std::string& what) {
        return "\"" + text + "\" is no number that can be the " + what +
               "; one is written as 1234.5.";
    };
    expectRefusals(loadCommand(),
                   {
                       {"minimum", "--minimum low", noNumber("low", "minimum")},
                       {"capacity", "--capacity '84 MW'", noNumber("84 MW", "capacity")},
                       {"too large", "--capacity 1e39", noNumber("1e39", "capacity")},
                       {"mark of another region", "--region de-DE --minimum 1.5.5,5,5",
                        "\"1.5.5,5,5\" is no number that can be the minimum; one is written as "
                        "1234,5."},
                       {"from", "--from 'last week'",
                        "\"last week\" is no date; one is written as 2024-05-31 or 5/31/2024."},
                       {"to", "--to 2021-02-30",
                        "\"2021-02-30\" is no date; one is written as 2024-05-31 or 5/31/2024."},
                   });
    expectRefusals(rangeCommand(),
                   {
                       {"range", "--range wide", noNumber("wide", "range")},
                       {"MEC", "--mec N/A", noNumber("N/A", "maximum expected concentration")},
                       {"MPC", "--mpc None", noNumber("None", "maximum potential concentration")},
                   });
}

TEST(HistogramUsage, TakesOnePeriod)
{
    const std::string sentence =
        "--from and --to stand in place of --quarter and --year; they can't be given together.";
    expectRefusals(loadCommand(), {
                                      {"quarter", "--from 2021-01-01 --quarter Q1", sentence},
                                      {"year", "--to 2021-01-01 --year 2021", sentence},
                                  });
}

TEST(HistogramUsage, NeedsASiteWithSomethingToEvaluate)
{
    for (const char* command : {"load", "range", "ranges"}) {
        expectRefusals(
            {command},
            {
                {"no site", "",
                 "--site is required; see k7deval " + std::string(command) + " --help."},
                {"no such file", "--site none.site", "none.site: there is no such file."},
                {"no units", "--site " + emptySite(),
                 "The site empty has no unit yet; import a monitoring plan, a span table or hourly "
                 "data first."},
            });
    }
    for (const char* command : {"range", "ranges"})
        expectRefusals({command, "--site", siteOfLoad()},
                       {{"no analyzer", "",
                         "The site load has no analyzer with a range to evaluate; import its spans "
                         "or its monitoring plan first."}});
    expectRefusals({"ranges", "--site", siteOfGas()},
                   {{"unit", "--unit U3", "There is no unit \"U3\"; the list holds: U1, U2."}});
}

// An analyzer's unit may have neither load nor any other hourly parameter that is listed.
TEST(HistogramUsage, NeedsAParameter)
{
    const TemporaryFolder folder;
    const std::string site =
        alteredSite(siteOfLoad(), folder, {"DELETE FROM parameter WHERE param_type = 11"});
    expectRefusals({"load", "--site", site},
                   {{"no parameter", "", "Unit U1 has no parameter with hourly values."}});
}

TEST(HistogramUsage, SavesOnlyWhereNothingElseIsLost)
{
    const TemporaryFolder folder;
    for (const auto& command : {loadCommand(), rangeCommand()})
        expectRefusals(
            command,
            {
                {"over the site", "--pdf " + command.back(), "--pdf names the site itself."},
                {"to a folder", "--pdf " + folder.path().string(),
                 folder.path().string() + " is a folder; --pdf needs a file."},
                {"region", "--region en",
                 "\"en\" is no region; it is one of: en-US, en-GB, de-DE, fr-FR."},
                {"option of another command", "--xml a",
                 "k7deval " + command.front() + " does not take \"--xml\"; see k7deval " +
                     command.front() + " --help."},
            });
}

} // namespace

} // namespace k7deval::cli::test
