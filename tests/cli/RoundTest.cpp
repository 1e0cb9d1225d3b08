#include "cli/CommandRun.h"
#include "cli/SampleSites.h"

#include <gtest/gtest.h>

namespace k7deval::cli::test
{

namespace
{

using k7deval::test::contentOf;
using k7deval::test::TemporaryFolder;
using k7deval::test::writeFile;

constexpr const char* kHeader =
    "unit_id,component_type,component_id,span_scale,test_number,begin,end,reported_result\n";

class Round : public ::testing::Test
{
protected:
    CommandRun runRound(const std::string& rows, const std::string& site = siteOfTests(),
                        const std::string& header = kHeader)
    {
        writeFile(table_, header + rows);
        return run({"round", "--site", site, "--tests", table_, "--out", out_});
    }

    TemporaryFolder folder_;
    const std::string table_ = folder_.file("tests.csv");
    const std::string out_ = folder_.file("out");
};

TEST_F(Round, PrintsOneLineForEachTest)
{
    const CommandRun round = runRound("GT1,NOX,012,H,A-1,2015-05-20 07:20,2015-05-30 09:51,PASSED\n"
                                      "GT2,NOX,213,H,B-2,2015-11-09,2015-11-14,PASSAPS\n"
                                      "GT3,NOX,310,L,C-3,2021-05-10,2021-05-03,\n");
    EXPECT_EQ(
        round.out,
        "GT1  NOX 012/H  2015-05-20 to 2015-05-30  passed                 marked: 05-20 05-25 "
        "05-26 05-27 05-28 05-29 05-30  plant reported: PASSED\n"
        "GT2  NOX 213/H  2015-11-09 to 2015-11-14  not passed: 6 counted  marked: 11-09 11-10 "
        "11-11 11-12 11-13 11-14        plant reported: PASSAPS\n"
        "GT3  NOX 310/L  2021-05-10 to 2021-05-03  passed                 marked: 05-03 05-04 "
        "05-05 05-06 05-07 05-08 05-09  plant reported: \n");
    EXPECT_EQ(round.notes, "");
    EXPECT_EQ(round.status, 0);
}

TEST_F(Round, SavesReportAndExportOfEachTest)
{
    runRound("GT1,NOX,012,H,A-1,2015-05-20,2015-05-30,PASSED\n"
             "GT2,NOX,213,H,B-2,2015-11-09,2015-11-14,PASSAPS\n");
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(out_))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"GT1_A-1.pdf", "GT1_A-1.xml", "GT2_B-2.pdf",
                                               "GT2_B-2.xml"}));
    EXPECT_NE(contentOf(out_ + "/GT2_B-2.xml").find("<TestNumber>B-2</TestNumber>"),
              std::string::npos);
}

TEST_F(Round, SavesAgainOverAnEarlierRound)
{
    const std::string row = "GT1,NOX,012,H,A-1,2015-05-20,2015-05-30,PASSED\n";
    runRound(row);
    const std::string exported = contentOf(out_ + "/GT1_A-1.xml");
    writeFile(out_ + "/GT1_A-1.xml", "old");
    EXPECT_EQ(runRound(row).notes, "");
    EXPECT_EQ(contentOf(out_ + "/GT1_A-1.xml"), exported);
}

TEST_F(Round, GoesOnWhereThereIsNoVerdict)
{
    const CommandRun round = runRound("GT9,NOX,012,H,A-1,2015-05-20,2015-05-30,PASSED\n"
                                      "GT1,NOX,12,H,A-2,2015-05-20,2015-05-30,PASSAPS\n"
                                      "GT2,CO2,031,H,A-3,2015-05-20,2015-05-26,PASSED\n"
                                      "GT1,CO2,031,H,A-5,2016-05-20,2016-05-30,\n"
                                      "GT1,NOX,012,H,A-4,2015-05-20,2015-05-30,PASSED\n");
    const std::string none =
        "  no verdict             marked: none                                  "
        "     plant reported: ";
    EXPECT_EQ(round.out,
              "GT9  NOX 012/H  2015-05-20 to 2015-05-30" + none +
                  "PASSED   There is no unit \"GT9\"; the list holds: GT1, GT2, GT3, GT4.\n"
                  "GT1  NOX 12/H   2015-05-20 to 2015-05-30" +
                  none +
                  "PASSAPS  Unit GT1 has no analyzer \"NOX 12/H\"; the list holds: NOX 012/H, NOX "
                  "013/H, CO2 031/H, CO2 032/H.\n"
                  "GT2  CO2 031/H  2015-05-20 to 2015-05-26" +
                  none +
                  "PASSED   There is no result because a calibration of the interval lacks a value "
                  "(DEval-003: 94, Invalid use of Null).\n"
                  "GT1  CO2 031/H  2016-05-20 to 2016-05-30" +
                  none +
                  "         There are no calibrations in selected time range.\n"
                  "GT1  NOX 012/H  2015-05-20 to 2015-05-30  passed                 marked: 05-20 "
                  "05-25 05-26 05-27 05-28 05-29 05-30  plant reported: PASSED\n");
    EXPECT_EQ(round.notes, "");
    EXPECT_EQ(round.status, 0);
    EXPECT_FALSE(std::filesystem::exists(out_ + "/GT2_A-3.pdf"));
    EXPECT_TRUE(std::filesystem::exists(out_ + "/GT1_A-4.pdf"));
}

TEST_F(Round, SavesNoExportOfAnAnalyzerUnderPart60)
{
    const CommandRun round =
        runRound("GT1,CO2,031,H,A-1,2015-05-20,2015-05-30,PASSED\n", siteWithPart60(folder_));
    EXPECT_NE(round.out.find("  passed  "), std::string::npos) << round.out;
    EXPECT_EQ(round.status, 0);
    EXPECT_TRUE(std::filesystem::exists(out_ + "/GT1_A-1.pdf"));
    EXPECT_FALSE(std::filesystem::exists(out_ + "/GT1_A-1.xml"));
}

struct RowCase {
    const char* what;
    std::string row;
    std::string sentence; ///< Behind the file's name.
};

TEST_F(Round, RefusesATableWithABadRowBeforeAnyTest)
{
    const std::string good = "GT1,NOX,012,H,A-0,2015-05-20,2015-05-30,PASSED\n";
    const std::vector<RowCase> cases{
        {"no unit", ",NOX,012,H,A,2015-05-20,2015-05-30,PASSED",
         "line 3: unit_id: the field is empty."},
        {"unit no file can be named by", "GT/1,NOX,012,H,A,2015-05-20,2015-05-30,PASSED",
         "line 3: unit_id: \"GT/1\" can't be part of a file name."},
        {"no gas", "GT1,,012,H,A,2015-05-20,2015-05-30,PASSED",
         "line 3: component_type: the field is empty."},
        {"no component", "GT1,NOX,,H,A,2015-05-20,2015-05-30,PASSED",
         "line 3: component_id: the field is empty."},
        {"unknown scale", "GT1,NOX,012,HIGH,A,2015-05-20,2015-05-30,PASSED",
         "line 3: span_scale: \"HIGH\" is not H or L."},
        {"no test number", "GT1,NOX,012,H,,2015-05-20,2015-05-30,PASSED",
         "line 3: test_number: the field is empty."},
        {"test number that leads elsewhere", "GT1,NOX,012,H,../A,2015-05-20,2015-05-30,PASSED",
         "line 3: test_number: \"../A\" can't be part of a file name."},
        {"test number for the second time", "GT1,NOX,013,H,A-0,2015-05-20,2015-05-30,PASSED",
         "line 3: test_number: \"A-0\" stands there twice for the unit."},
        {"no begin", "GT1,NOX,012,H,A,,2015-05-30,PASSED", "line 3: begin: the field is empty."},
        {"begin that is no day", "GT1,NOX,012,H,A,2015-02-30,2015-05-30,PASSED",
         "line 3: begin: \"2015-02-30\" is no date such as 2024-05-31."},
        {"begin written another way", "GT1,NOX,012,H,A,5/20/2015,2015-05-30,PASSED",
         "line 3: begin: \"5/20/2015\" is no date such as 2024-05-31."},
        {"end that runs on", "GT1,NOX,012,H,A,2015-05-20,2015-05-300,PASSED",
         "line 3: end: \"2015-05-300\" is no date such as 2024-05-31."},
        {"a field short", "GT1,NOX,012,H,A,2015-05-20,2015-05-30",
         "line 3: the line has 7 fields, the header 8."},
        {"a stray quote", "GT1,NOX,012,H,A\"B,2015-05-20,2015-05-30,PASSED",
         "line 3: a quote stands inside a field."},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        const CommandRun round = runRound(good + row.row + "\n");
        EXPECT_EQ(round.notes, "tests.csv: " + row.sentence + "\n");
        EXPECT_EQ(round.out, "");
        EXPECT_EQ(round.status, 2);
    }
    EXPECT_FALSE(std::filesystem::exists(out_));
}

TEST_F(Round, RefusesWhatIsNoTableOfTests)
{
    const CommandRun noRows = runRound("");
    EXPECT_EQ(noRows.notes, "tests.csv: the table has no rows.\n");
    const CommandRun noColumn = runRound("GT1,012\n", siteOfTests(), "unit_id,component_id\n");
    EXPECT_EQ(noColumn.notes, "tests.csv: line 1: the column span_scale is missing.\n");
    const CommandRun none =
        run({"round", "--site", siteOfTests(), "--tests", folder_.file("none"), "--out", out_});
    EXPECT_EQ(none.notes, "none: there is no such file.\n");
    for (const auto& round : {noRows, noColumn, none})
        EXPECT_EQ(round.status, 2);
    EXPECT_FALSE(std::filesystem::exists(out_));
}

TEST_F(Round, NeedsAFolderThatCanBeMade)
{
    const CommandRun round = run({"round", "--site", siteOfTests(), "--tests",
                                  sampleFile("tests.csv"), "--out", siteOfTests()});
    EXPECT_EQ(round.notes, "The folder " + siteOfTests() + " could not be made.\n");
    EXPECT_EQ(round.status, 2);
    const CommandRun inside = run({"round", "--site", siteOfTests(), "--tests",
                                   sampleFile("tests.csv"), "--out", siteOfTests() + "/a/b"});
    EXPECT_EQ(inside.notes, "The folder " + siteOfTests() + "/a/b could not be made.\n");
}

TEST_F(Round, EndsAtAFileThatCannotBeWritten)
{
    std::filesystem::create_directories(out_ + "/GT1_A-1.xml");
    const CommandRun round = runRound("GT1,NOX,012,H,A-1,2015-05-20,2015-05-30,PASSED\n"
                                      "GT1,NOX,012,H,A-2,2015-05-20,2015-05-30,PASSED\n");
    EXPECT_EQ(std::count(round.out.begin(), round.out.end(), '\n'), 1);
    EXPECT_EQ(round.notes, out_ + "/GT1_A-1.xml could not be written (DEval-015: 75, Path/File "
                                  "access error).\n");
    EXPECT_EQ(round.status, 2);
}

} // namespace

} // namespace k7deval::cli::test
