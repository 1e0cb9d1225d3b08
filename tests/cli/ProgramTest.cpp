#include "cli/SampleSites.h"
#include "support/Places.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>

#include <sys/wait.h>

/// The program itself, run by the shell.
namespace k7deval::cli::test
{

namespace
{

using k7deval::test::contentOf;
using k7deval::test::TemporaryFolder;

class Program : public ::testing::Test
{
protected:
    /// Runs the program with arguments as the shell reads them and returns its exit status.
    int status(const std::string& arguments) const
    {
        const std::string command =
            k7deval::test::commandLineProgram() + " " + arguments + " >" + out_ + " 2>" + notes_;
        const int ended = std::system(command.c_str());
        return WIFEXITED(ended) ? WEXITSTATUS(ended) : -1;
    }
    [[nodiscard]] std::string out() const { return contentOf(out_); }
    [[nodiscard]] std::string notes() const { return contentOf(notes_); }

    TemporaryFolder folder_;
    const std::string out_ = folder_.file("out");
    const std::string notes_ = folder_.file("notes");
};

TEST_F(Program, PrintsAndEndsWithStatus0)
{
    EXPECT_EQ(status("units --site " + siteOfTests()), 0);
    EXPECT_EQ(out(), "GT1\nGT2\nGT3\nGT4\n");
    EXPECT_EQ(notes(), "");
}

TEST_F(Program, EndsWithStatus1WhenACheckedTestIsNotPassed)
{
    const std::string drift = "drift --check --json --site " + siteOfTests() + " --from 2015-05-20";
    EXPECT_EQ(status(drift + " --to 2015-05-29"), 1);
    EXPECT_TRUE(nlohmann::json::accept(out()));
    EXPECT_EQ(status(drift + " --to 2015-05-30"), 0);
}

TEST_F(Program, TellsARefusalOnStandardErrorAndEndsWithStatus2)
{
    EXPECT_EQ(status("drift --site " + siteOfTests() + " --unit 'GT 9'"), 2);
    EXPECT_EQ(out(), "");
    EXPECT_EQ(notes(), "There is no unit \"GT 9\"; the list holds: GT1, GT2, GT3, GT4.\n");
    EXPECT_EQ(status(""), 2);
    EXPECT_EQ(notes(), "A command is missing; see k7deval --help.\n");
}

TEST_F(Program, ShowsTodaysIntervalByItself)
{
    EXPECT_EQ(status("drift --site " + siteOfTests()), 0);
    EXPECT_NE(out().find("There are no calibrations in selected time range."), std::string::npos);
}

TEST_F(Program, SaysThatItsResultCouldNotBePrinted)
{
    const std::string command = k7deval::test::commandLineProgram() + " units --site " +
                                siteOfTests() + " >/dev/full 2>" + notes_;
    const int ended = std::system(command.c_str());
    EXPECT_EQ(WEXITSTATUS(ended), 2);
    EXPECT_EQ(notes(), "The result could not be printed completely.\n");
}

} // namespace

} // namespace k7deval::cli::test
