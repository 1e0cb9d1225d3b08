#include "cli/CommandRun.h"
#include "cli/SampleSites.h"

#include "foundation/TextFunctions.h"

#include <gtest/gtest.h>

#include <filesystem>

/// What the program refuses: each row by one sentence on standard error and status 2, with nothing
/// printed.
namespace k7deval::cli::test
{

namespace
{

using k7deval::test::TemporaryFolder;

struct UsageCase {
    std::string what;
    std::string arguments; ///< "{tests}" stands for a site, "{folder}" for a folder, ...
    std::string sentence;
};

class Usage : public ::testing::Test
{
protected:
    Usage()
    {
        k7deval::test::writeFile(folder_.path() / "nothing.site", "");
        k7deval::test::writeFile(folder_.path() / "letter.txt", "Dear operator\n");
    }

    void expectRefusals(const std::vector<UsageCase>& cases) const
    {
        for (const auto& row : cases) {
            SCOPED_TRACE(row.what);
            Arguments arguments;
            for (const auto& word : argumentsOf(row.arguments))
                arguments.push_back(filled(word));
            const CommandRun refused = run(arguments);
            EXPECT_EQ(refused.notes, filled(row.sentence) + "\n");
            EXPECT_EQ(refused.status, 2);
            EXPECT_EQ(refused.out, "");
        }
    }

    TemporaryFolder folder_;

private:
    [[nodiscard]] std::string filled(std::string text) const
    {
        text = replaceAll(text, "{folder}", folder_.path().string());
        text = replaceAll(text, "{empty}", emptySite());
        text = replaceAll(text, "{spans}", siteOfSpans());
        text = replaceAll(text, "{tests}", siteOfTests());
        return replaceAll(text, "{data}", sampleFile(""));
    }
};

TEST_F(Usage, NeedsACommandThatThereIs)
{
    expectRefusals({
        {"nothing", "", "A command is missing; see k7deval --help."},
        {"an unknown command", "test", "There is no command \"test\"; see k7deval --help."},
        {"an unknown option", "--site", "There is no command \"--site\"; see k7deval --help."},
        {"a command of another case", "Drift",
         "There is no command \"Drift\"; see k7deval --help."},
    });
}

TEST_F(Usage, NeedsArgumentsThatTheCommandTakes)
{
    expectRefusals({
        {"import: no site", "import", "--site is required; see k7deval import --help."},
        {"units: no site", "units", "--site is required; see k7deval units --help."},
        {"analyzers: no site", "analyzers", "--site is required; see k7deval analyzers --help."},
        {"drift: no site", "drift", "--site is required; see k7deval drift --help."},
        {"round: no site", "round", "--site is required; see k7deval round --help."},
        {"round: no table", "round --site {tests} --out {folder}",
         "--tests is required; see k7deval round --help."},
        {"round: no folder", "round --site {tests} --tests {data}tests.csv",
         "--out is required; see k7deval round --help."},
        {"an option of another command", "units --site {tests} --unit GT1",
         "k7deval units does not take \"--unit\"; see k7deval units --help."},
        {"a text that belongs to no option", "drift --site {tests} GT1",
         "k7deval drift does not take \"GT1\"; see k7deval drift --help."},
        {"two commands", "units --site {tests} drift",
         "k7deval units does not take \"drift\"; see k7deval units --help."},
        {"an option at the end without its text", "drift --site {tests} --pdf",
         "--pdf needs a text behind it; see k7deval drift --help."},
        {"an option in place of a text", "drift --site --json",
         "--site: a text is missing ahead of --json; see k7deval drift --help."},
        {"an option given twice", "drift --site {tests} --unit GT1 --unit GT2",
         "--unit is given twice; see k7deval drift --help."},
        {"an empty text", "drift --site {tests} --from ''",
         "--from: the text is empty; see k7deval drift --help."},
    });
}

TEST_F(Usage, NeedsASiteThatCanBeRead)
{
    const std::vector<std::pair<std::string, std::string>> faults{
        {"{folder}/none.site", "none.site: there is no such file."},
        {"{folder}", "{folder} is a folder; a site is one file."},
        {"{folder}/nothing.site", "nothing.site: the file is no site database."},
        {"{folder}/letter.txt", "letter.txt: the file is no site database."},
        {"{empty}", "The site empty has no unit yet; import a monitoring plan, a span table or "
                    "hourly data first."},
    };
    for (const auto& [site, sentence] : faults) {
        expectRefusals({
            {"units", "units --site " + site, sentence},
            {"analyzers", "analyzers --site " + site, sentence},
            {"drift", "drift --site " + site + " --json", sentence},
        });
    }
    expectRefusals({
        {"round", "round --site {folder}/none.site --tests {data}tests.csv --out {folder}",
         "none.site: there is no such file."},
        {"an empty name", "units --site ''",
         "--site: the text is empty; see k7deval units --help."},
    });
    EXPECT_FALSE(std::filesystem::exists(folder_.path() / "none.site"));
}

TEST_F(Usage, ImportsOnlyWhatItKnows)
{
    const std::string site = "{folder}/new.site";
    expectRefusals({
        {"nothing to import", "import --site " + site,
         "There is nothing to import; name a file, the facility by --facility or a capacity by "
         "--capacity."},
        {"a capacity without its unit", "import --site {folder}/new.site --capacity 84",
         "\"84\" is no capacity; write UNIT=MW, such as GT4=84."},
        {"a capacity of a unit without a name", "import --site {folder}/new.site --capacity =84",
         "\"=84\" is no capacity; write UNIT=MW, such as GT4=84."},
        {"a capacity that is no number", "import --site {folder}/new.site --capacity GT4=84MW",
         "\"GT4=84MW\" is no capacity; write UNIT=MW, such as GT4=84."},
        {"a capacity of a unit that the site has not", "import --site {tests} --capacity GT9=84",
         "The site has no unit GT9."},
        {"a capacity of nothing", "import --site {tests} --capacity GT4=0",
         "A capacity is a number of MW above 0, at most 999999."},
        {"a file that is not there", "import --site " + site + " {folder}/none.csv",
         "none.csv: there is no such file."},
        {"a folder", "import --site " + site + " {folder}",
         folder_.path().filename().string() + ": this is no file that can be read."},
        {"another table", "import --site " + site + " {data}tests.csv",
         "tests.csv: this is none of the files that can be imported."},
        {"a letter", "import --site " + site + " {folder}/letter.txt",
         "letter.txt: this is none of the files that can be imported."},
        {"hourly load of no unit", "import --site " + site + " {data}hourly_load_GT3.csv.gz",
         "hourly_load_GT3.csv.gz: unit: the unit that the load belongs to has to be named."},
        {"tests of analyzers that are not there",
         "import --site " + site + " --leave-out {data}ecmps_qa_50292.json",
         "ecmps_qa_50292.json: testSummaryData[0].unitId: the site has no unit GT1, so its "
         "monitoring plan or span "
         "table has to be imported first."},
        {"tests with an hour that can't be read", "import --site {spans} {data}ecmps_qa_50292.json",
         "ecmps_qa_50292.json: "
         "testSummaryData[1].calibrationInjectionData[0].zeroInjectionHour: 24 is no hour from 0 "
         "to 23."},
        {"a file for the second time", "import --site {tests} {data}spans.csv",
         "spans.csv: the site has imported this file before, as spans.csv."},
        {"a site in a folder that is not there",
         "import --site {folder}/none/new.site {data}spans.csv",
         "new.site: the file can't be opened."},
        {"a site that is a folder", "import --site {folder} {data}spans.csv",
         "{folder} is a folder; a site is one file."},
        {"a site that is no site", "import --site {folder}/letter.txt {data}spans.csv",
         "letter.txt: the file is no site database."},
    });
    EXPECT_EQ(folder_.names(), (std::vector<std::string>{"letter.txt", "nothing.site"}));
}

TEST_F(Usage, EvaluatesOnlyWhatTheListsHold)
{
    const std::string drift = "drift --site {tests}";
    expectRefusals({
        {"unknown unit", drift + " --unit GT9",
         "There is no unit \"GT9\"; the list holds: GT1, GT2, GT3, GT4."},
        {"unit in other letters", drift + " --unit gt1",
         "There is no unit \"gt1\"; the list holds: GT1, GT2, GT3, GT4."},
        {"unknown analyzer", drift + " --unit GT4 --analyzer 'NOX 206'",
         "Unit GT4 has no analyzer \"NOX 206\"; the list holds: NOX 206/H, NOX 207/H, O2 208/H."},
        {"analyzer of another unit", drift + " --analyzer 'NOX 206/H'",
         "Unit GT1 has no analyzer \"NOX 206/H\"; the list holds: NOX 012/H, NOX 013/H, "
         "CO2 031/H, CO2 032/H."},
        {"unknown unit of a list", "analyzers --site {tests} --unit GT9",
         "There is no unit \"GT9\"; the list holds: GT1, GT2, GT3, GT4."},
        {"unknown specification", drift + " --specification 3-span",
         "\"3-span\" is no specification; it is one of: 2.5-span, 5-span, 0.5-absolute, "
         "other-span, other-absolute, ps9."},
        {"unknown choice to show", drift + " --show all",
         "\"all\" is no choice of calibrations to show; it is one of: interval, test-end, "
         "test-only."},
        {"unknown reason", drift + " --reason repair",
         "\"repair\" is no reason for a test; it is one of: initial, recertification, "
         "diagnostic."},
        {"unknown region", drift + " --region en",
         "\"en\" is no region; it is one of: en-US, en-GB, de-DE, fr-FR."},
        {"a unit without an ORIS code", "drift --site {spans}",
         "The setup page of GT1 could not be filled in because the unit lacks a figure such as its "
         "ORIS code, which comes with QA data (DEval-018: 94, Invalid use of Null)."},
    });
}

TEST_F(Usage, TypesOnlyWhatTheFieldsTake)
{
    const std::string drift = "drift --site {tests}";
    const auto oris = [](const std::string& text) {
        return "\"" + text + "\" is no ORIS code, which is a whole number from 0 to 999999.";
    };
    const auto limit = [](const std::string& text) {
        return "\"" + text + "\" is no number that can be a limit.";
    };
    const std::string span = " --specification other-span --limit";
    const std::string absolute = " --specification other-absolute --limit";
    expectRefusals({
        {"from: no date", drift + " --from 'last week'",
         "\"last week\" is no date; one is written as 2024-05-31 or 5/31/2024."},
        {"to: no such day", drift + " --to 2021-02-30",
         "\"2021-02-30\" is no date; one is written as 2024-05-31 or 5/31/2024."},
        {"a date of another region", drift + " --region de-DE --to 'fin mai'",
         "\"fin mai\" is no date; one is written as 2024-05-31 or 31.05.2024."},
        {"a limit that is a word", drift + span + " much", limit("much")},
        {"a limit with a unit", drift + span + " '3 %'", limit("3 %")},
        {"a limit of blanks", drift + absolute + " ' '", limit(" ")},
        {"a limit too large", drift + absolute + " 1e39", limit("1e39")},
        {"a limit of another region", drift + span + " 2.5.5", limit("2.5.5")},
        {"a limit without a specification of its own", drift + " --limit 3",
         "--limit needs the specification other-span or other-absolute, the others have their "
         "own."},
        {"ORIS code: a word", drift + " --oris plant", oris("plant")},
        {"ORIS code: below 0", drift + " --oris=-1", oris("-1")},
        {"ORIS code: too long", drift + " --oris 1234567",
         "\"1234567\" is too long; the ORIS code has at most 6 characters."},
        {"stack: too long", drift + " --stack CS00001",
         "\"CS00001\" is too long; the unit or stack identifier has at most 6 characters."},
        {"component: too long", drift + " --component 0123",
         "\"0123\" is too long; the component identifier has at most 3 characters."},
        {"APS with a specification that has none", drift + " --specification 5-span --aps",
         "\"Use APS of 5 if appropriate\" can't be chosen with this specification."},
        {"APS with an analyzer whose own specification has none",
         drift + " --analyzer 'CO2 031/H' --aps",
         "\"Use APS of 5 if appropriate\" can't be chosen with this specification."},
    });
}

TEST_F(Usage, SavesOnlyWhereNothingElseIsLost)
{
    const std::string drift = "drift --site {tests}";
    const std::filesystem::path site = siteOfTests();
    expectRefusals({
        {"report over the site", drift + " --pdf {tests}", "--pdf names the site itself."},
        {"export over the site, written another way",
         drift + " --xml " + (site.parent_path() / "." / site.filename()).string(),
         "--xml names the site itself."},
        {"report to a folder", drift + " --pdf {folder}",
         "{folder} is a folder; --pdf needs a file."},
        {"both to one file", drift + " --pdf {folder}/a --xml {folder}/a",
         "--pdf and --xml name the same file."},
    });
    EXPECT_EQ(run({"units", "--site", siteOfTests()}).status, 0);
}

TEST_F(Usage, HasTestInformationAndExportOnlyUnder40CFR75)
{
    const std::string site = siteWithPart60(folder_);
    const std::string drift = "drift --site " + site + " --analyzer 'CO2 031/H'";
    const std::string noInformation =
        "GT1 CO2 031/H is not under 40 CFR 75, so it takes no test information.";
    expectRefusals({
        {"export", drift + " --pdf {folder}/a.pdf --xml {folder}/a.xml",
         "GT1 CO2 031/H is not under 40 CFR 75, so there is no ECMPS export of it."},
        {"ORIS code", drift + " --oris 1", noInformation},
        {"stack", drift + " --stack 1", noInformation},
        {"component", drift + " --component 1", noInformation},
        {"reason", drift + " --reason initial", noInformation},
        {"test number", drift + " --test-number 1", noInformation},
    });
    EXPECT_EQ(folder_.names(),
              (std::vector<std::string>{"altered.site", "letter.txt", "nothing.site"}));
}

} // namespace

} // namespace k7deval::cli::test
