#include "cli/CommandRun.h"
#include "cli/SampleSites.h"
#include "support/PdfText.h"
#include "support/RunTool.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <sstream>

/// The reports of load and range evaluation, saved from the command line.
namespace k7deval::cli::test
{

namespace
{

using k7deval::test::contentOf;
using k7deval::test::TemporaryFolder;
using k7deval::test::writeFile;

Arguments loadOfUnit()
{
    return {"load", "--site", siteOfLoad(), "--minimum", "10", "--capacity", "110"};
}

Arguments rangeOfUnit()
{
    return {"range", "--site", siteOfGas(), "--scale", "HIGH", "--mec", "20"};
}

/// The lines of a PDF page that lies as it is read, each with single blanks.
std::vector<std::string> linesOfPdf(const std::string& pdf)
{
    std::istringstream text(k7deval::test::runTool({"pdftotext", "-layout", pdf, "-"}));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        std::istringstream words(line);
        std::string joined;
        for (std::string word; words >> word;)
            joined += (joined.empty() ? "" : " ") + word;
        if (!joined.empty())
            lines.push_back(joined);
    }
    return lines;
}

class HistogramSave : public ::testing::Test
{
protected:
    TemporaryFolder folder_;
    const std::string pdf_ = folder_.file("report.pdf");
};

TEST_F(HistogramSave, WritesTheReportOfALoadEvaluation)
{
    const CommandRun saved = run(loadOfUnit() + Arguments{"--pdf", pdf_});
    EXPECT_EQ(saved.notes, "");
    EXPECT_EQ(saved.status, 0);
    EXPECT_EQ(saved.out, run(loadOfUnit()).out);
    k7deval::test::requireValidPdf(pdf_);
    const auto lines = linesOfPdf(pdf_);
    EXPECT_THAT(lines, ::testing::IsSupersetOf(
                           {"Unit One", "Load Evaluation Summary",
                            "Load summary ending the last day of 2021 Q1", "U1 Load",
                            "50.0% Low Op Load 25.0% Mid Op Load 25.0% High Op Load",
                            "4 Hours 2 Hours 2 Hours", "10 40 70 110", "Minimum 30% 60% Maximum",
                            "1 hour(s) under 10 1 hour(s) over 110 - Maximum 111",
                            "Load Evaluation Summary 5/20/2021 12:00 PM"}));
}

TEST_F(HistogramSave, WritesTheReportOfARangeEvaluation)
{
    const CommandRun saved = run(rangeOfUnit() + Arguments{"--pdf", pdf_});
    EXPECT_EQ(saved.notes, "");
    EXPECT_EQ(saved.status, 0);
    k7deval::test::requireValidPdf(pdf_);
    const auto lines = linesOfPdf(pdf_);
    EXPECT_THAT(
        lines,
        ::testing::IsSupersetOf(
            {"Unit One", "Range Evaluation Summary", "Range summary ending the last day of 2021 Q1",
             "U1 SO2 01", "44.4% 33.3% 22.2%", "4 Hours 3 Hours 2 Hours", "0 20 80 100",
             "Minimum 20% 80% Maximum", "Hours above MEC: 5 Hours with 200% replacement: 1",
             "Hours above MPC: 0 Invalid Hours: 26294", "Hours over Range: 1",
             "Range Evaluation Summary 5/20/2021 12:00 PM"}));
}

TEST_F(HistogramSave, WritesDatesAndNumbersOfTheRegion)
{
    const CommandRun saved =
        run({"load", "--site", siteOfLoad(), "--region", "de-DE", "--minimum", "10,5", "--capacity",
             "110", "--from", "31.03.2021", "--to", "31.03.2021", "--pdf", pdf_});
    ASSERT_EQ(saved.status, 0) << saved.notes;
    EXPECT_THAT(linesOfPdf(pdf_),
                ::testing::IsSupersetOf({"Load summary from 31.03.2021 to 31.03.2021",
                                         "10,5 40,35 70,2 110",
                                         "Load Evaluation Summary 20.05.2021 12:00"}));
}

TEST_F(HistogramSave, TakesThePlaceOfWhatIsThere)
{
    run(loadOfUnit() + Arguments{"--pdf", pdf_});
    const std::string report = contentOf(pdf_);
    writeFile(pdf_, "old");
    const CommandRun saved = run(loadOfUnit() + Arguments{"--pdf", pdf_});
    EXPECT_EQ(saved.notes, "Delete Existing File? Yes\n");
    EXPECT_EQ(saved.status, 0);
    EXPECT_EQ(contentOf(pdf_), report);
}

TEST_F(HistogramSave, SaysWhichFileCouldNotBeWritten)
{
    const std::string none = folder_.file("none/a.pdf");
    for (const auto& command : {loadOfUnit(), rangeOfUnit()}) {
        const CommandRun noFolder = run(command + Arguments{"--pdf", none});
        EXPECT_EQ(noFolder.notes,
                  none + " could not be written because its folder is not there.\n");
        EXPECT_EQ(noFolder.status, 2);
        EXPECT_EQ(noFolder.out, run(command).out);
        EXPECT_EQ(run(command + Arguments{"--pdf", "/dev/null"}).notes,
                  "/dev/null could not be written.\n");
    }
    EXPECT_TRUE(folder_.names().empty());
}

TEST_F(HistogramSave, KeepsAWriteProtectedFile)
{
    writeFile(pdf_, "kept");
    std::filesystem::permissions(pdf_, std::filesystem::perms::owner_read);
    const CommandRun saved = run(rangeOfUnit() + Arguments{"--pdf", pdf_});
    EXPECT_EQ(saved.notes, "Delete Existing File? Yes\n" + pdf_ +
                               " could not be written (Error Deleting File:  70:Permission "
                               "denied).\n");
    EXPECT_EQ(saved.status, 2);
    EXPECT_EQ(contentOf(pdf_), "kept");
}

TEST_F(HistogramSave, LeavesAFileAloneWithoutAResult)
{
    writeFile(pdf_, "kept");
    EXPECT_EQ(run({"load", "--site", siteOfLoad(), "--pdf", pdf_}).status, 2);
    EXPECT_EQ(run(rangeOfUnit() + Arguments{"--scale", "MID", "--pdf", pdf_}).status, 2);
    EXPECT_EQ(contentOf(pdf_), "kept");
}

} // namespace

} // namespace k7deval::cli::test
