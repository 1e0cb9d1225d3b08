#include "cli/CommandRun.h"
#include "cli/SampleSites.h"

#include <gtest/gtest.h>

namespace k7deval::cli::test
{

namespace
{

using k7deval::test::TemporaryFolder;

void expectPrinted(const Arguments& arguments, const std::string& out,
                   const std::string& notes = "")
{
    const CommandRun list = run(arguments);
    EXPECT_EQ(list.out, out);
    EXPECT_EQ(list.notes, notes);
    EXPECT_EQ(list.status, 0);
}

TEST(ListCommands, ListTheUnits)
{
    expectPrinted({"units", "--site", siteOfTests()}, "GT1\nGT2\nGT3\nGT4\n");
}

TEST(ListCommands, ListTheAnalyzersOfAUnit)
{
    expectPrinted({"analyzers", "--site", siteOfTests(), "--unit", "GT3"},
                  "GT3\tNOX 310/L\nGT3\tNOX 310/H\nGT3\tO2 320/H\nGT3\tO2 105/H\n");
}

TEST(ListCommands, ListTheAnalyzersOfAllUnits)
{
    expectPrinted({"analyzers", "--site", siteOfTests()},
                  "GT1\tNOX 012/H\nGT1\tNOX 013/H\nGT1\tCO2 031/H\nGT1\tCO2 032/H\n"
                  "GT2\tNOX 012/H\nGT2\tNOX 013/H\nGT2\tNOX 213/H\n"
                  "GT2\tCO2 031/H\nGT2\tCO2 032/H\nGT2\tCO2 232/H\n"
                  "GT3\tNOX 310/L\nGT3\tNOX 310/H\nGT3\tO2 320/H\nGT3\tO2 105/H\n"
                  "GT4\tNOX 206/H\nGT4\tNOX 207/H\nGT4\tO2 208/H\n");
}

TEST(ListCommands, ShowAUnitWithoutAnalyzersAsTheScreenDoes)
{
    const TemporaryFolder folder;
    const std::string site = folder.file("load.site");
    run({"import", "--site", site, "--unit", "GT3", sampleFile("hourly_load_GT3.csv.gz")});
    expectPrinted({"analyzers", "--site", site}, "GT3\tN/A\n");
    const CommandRun drift = run({"drift", "--site", site});
    EXPECT_EQ(drift.notes, "Unit GT3 has no analyzer.\n");
    EXPECT_EQ(drift.status, 2);
    EXPECT_EQ(run({"drift", "--site", site, "--analyzer", "N/A"}).notes, drift.notes);
}

TEST(ListCommands, TellTheLinesThatTheScreenPosts)
{
    expectPrinted({"analyzers", "--site", siteOfSpans(), "--unit", "GT4"},
                  "GT4\tNOX 206/H\nGT4\tNOX 207/H\nGT4\tO2 208/H\n",
                  "DEval-018: 94, Invalid use of Null\n");
}

TEST(ListCommands, ExplainThemselves)
{
    for (const char* command :
         {"import", "units", "analyzers", "drift", "load", "ranges", "range", "round"}) {
        SCOPED_TRACE(command);
        EXPECT_NE(run({"--help"}).out.find(command), std::string::npos);
        const CommandRun help = run({command, "--help"});
        EXPECT_NE(help.out.find("--site"), std::string::npos);
        EXPECT_EQ(help.notes, "");
        EXPECT_EQ(help.status, 0);
    }
}

} // namespace

} // namespace k7deval::cli::test
