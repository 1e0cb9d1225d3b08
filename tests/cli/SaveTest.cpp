#include "cli/CommandRun.h"
#include "cli/SampleSites.h"
#include "support/PdfText.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace k7deval::cli::test
{

namespace
{

namespace fs = std::filesystem;
using k7deval::test::contentOf;
using k7deval::test::TemporaryFolder;
using k7deval::test::writeFile;

Arguments passed()
{
    return {"drift", "--site", siteOfTests(), "--from", "2015-05-20", "--to", "2015-05-30"};
}

Arguments notPassed()
{
    return {"drift", "--site", siteOfTests(), "--from", "2015-05-25", "--to", "2015-05-30"};
}

constexpr const char* kDelete = "Delete Existing File? Yes\n";
constexpr const char* kExport =
    "The 7-Day Drift Test has not been completed. Are you sure want to export the data? Yes\n";

class Save : public ::testing::Test
{
protected:
    [[nodiscard]] Arguments both() const { return {"--pdf", pdf_, "--xml", xml_}; }

    TemporaryFolder folder_;
    const std::string pdf_ = folder_.file("test.pdf");
    const std::string xml_ = folder_.file("test.xml");
};

TEST_F(Save, WritesReportAndExport)
{
    const CommandRun saved = run(passed() + both());
    EXPECT_EQ(saved.notes, "");
    EXPECT_EQ(saved.status, 0);
    EXPECT_EQ(folder_.names(), (std::vector<std::string>{"test.pdf", "test.xml"}));
    k7deval::test::requireValidPdf(pdf_);
    EXPECT_EQ(contentOf(xml_).substr(0, 57),
              "<QualityAssuranceAndCert><ORISCode>50292</ORISCode><Versi");
    EXPECT_EQ(saved.out, run(passed()).out);
}

TEST_F(Save, TakesThePlaceOfWhatIsThere)
{
    run(passed() + both());
    const std::string report = contentOf(pdf_);
    const std::string exported = contentOf(xml_);
    writeFile(pdf_, "old");
    writeFile(xml_, std::string(1000000, 'x'));
    const CommandRun saved = run(passed() + both());
    EXPECT_EQ(saved.notes, std::string(kDelete) + kDelete);
    EXPECT_EQ(saved.status, 0);
    EXPECT_EQ(contentOf(pdf_), report);
    EXPECT_EQ(contentOf(xml_), exported);
}

TEST_F(Save, TellsWhatItWasAskedAboutATestThatIsNotComplete)
{
    const CommandRun saved = run(notPassed() + both());
    EXPECT_EQ(saved.notes, kExport);
    EXPECT_EQ(saved.status, 0);
    EXPECT_NE(contentOf(xml_).find("<TestResultCode>FAILED</TestResultCode>"), std::string::npos);
    EXPECT_EQ(run(notPassed() + both()).notes, std::string(kDelete) + kDelete + kExport);
}

TEST_F(Save, TakesNamesOfAnyLetters)
{
    const std::string name = folder_.file("Prüfung 電站.pdf");
    EXPECT_EQ(run(passed() + Arguments{"--pdf", name}).status, 0);
    k7deval::test::requireValidPdf(name);
}

struct FaultCase {
    const char* what;
    Arguments arguments;
    std::string sentence;
};

TEST_F(Save, SaysWhichFileCouldNotBeWritten)
{
    const std::string none = folder_.file("none/a");
    const std::string& site = siteOfTests();
    const std::vector<FaultCase> cases{
        {"report",
         {"--pdf", none},
         none + " could not be written (DEval-011: 76, Path not found)."},
        {"export",
         {"--xml", none},
         none + " could not be written (DEval-015: 76, Path not found)."},
        {"a file as folder",
         {"--pdf", site + "/a"},
         site + "/a could not be written (DEval-011: 76, Path not found)."},
        {"a device",
         {"--pdf", "/dev/null"},
         "/dev/null could not be written (DEval-011: 75, Path/File access error)."},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        const CommandRun saved = run(passed() + row.arguments);
        EXPECT_EQ(saved.notes, row.sentence + "\n");
        EXPECT_EQ(saved.status, 2);
        EXPECT_EQ(saved.out, run(passed()).out);
    }
    EXPECT_TRUE(folder_.names().empty());
}

TEST_F(Save, HasNothingToExportOfAnIntervalWithoutCalibrations)
{
    const CommandRun saved = run(Arguments{"drift", "--site", siteOfTests()} + both());
    EXPECT_EQ(saved.notes, kExport + xml_ +
                               " could not be written because no calibration is shown (DEval-015: "
                               "9, Subscript out of range).\n");
    EXPECT_EQ(saved.status, 2);
    EXPECT_EQ(folder_.names(), (std::vector<std::string>{"test.pdf"}));
}

TEST_F(Save, SaysWhatAnExportLacks)
{
    const CommandRun noOris =
        run({"drift", "--site", siteOfSpans(), "--analyzer", "NOX 012/H", "--xml", xml_});
    EXPECT_EQ(noOris.notes, "DEval-018: 94, Invalid use of Null\n" + std::string(kExport) + xml_ +
                                " could not be written because the ORIS code is missing "
                                "(DEval-015: 13, Type mismatch).\n");
    const CommandRun noZero =
        run({"drift", "--site", siteOfTests(), "--analyzer", "NOX 013/H", "--from", "2015-05-20",
             "--to", "2015-05-20", "--specification", "ps9", "--xml", xml_});
    EXPECT_EQ(noZero.notes, kExport + xml_ +
                                " could not be written because a calibration that counts lacks its "
                                "zero or its upscale injection (DEval-015: 91, Object variable or "
                                "With block variable not set).\n");
    EXPECT_TRUE(folder_.names().empty());
}

TEST_F(Save, SaysThatAFileIsNotComplete)
{
    const TemporaryFolder siteFolder;
    const std::string site =
        alteredSite(siteOfTests(), siteFolder, {"UPDATE calibration_record SET span = 0"});
    const CommandRun saved =
        run({"drift", "--site", site, "--from", "2015-05-20", "--to", "2015-05-30",
             "--specification", "other-absolute", "--limit", "5", "--xml", xml_});
    EXPECT_EQ(saved.notes, xml_ + " is not complete (DEval-016: 11, Division by zero).\n");
    EXPECT_EQ(saved.status, 2);
    EXPECT_EQ(folder_.names(), (std::vector<std::string>{"test.xml"}));
}

TEST_F(Save, KeepsAWriteProtectedFile)
{
    writeFile(pdf_, "kept");
    fs::permissions(pdf_, fs::perms::owner_read);
    const CommandRun saved = run(passed() + both());
    EXPECT_EQ(saved.notes, kDelete + pdf_ +
                               " could not be written (Error Deleting File:  70:Permission "
                               "denied).\n");
    EXPECT_EQ(saved.status, 2);
    EXPECT_EQ(contentOf(pdf_), "kept");
    EXPECT_EQ(folder_.names(), (std::vector<std::string>{"test.pdf"}));
}

TEST_F(Save, LeavesFilesAloneThatAreRefused)
{
    writeFile(pdf_, "kept");
    writeFile(xml_, "kept");
    const TemporaryFolder siteFolder;
    const std::vector<std::pair<const char*, Arguments>> refusals{
        {"bad usage", passed() + Arguments{"--nothing"}},
        {"no such site", {"drift", "--site", folder_.file("none.site")}},
        {"no such unit", passed() + Arguments{"--unit", "GT9"}},
        {"no date", {"drift", "--site", siteOfTests(), "--from", "never"}},
        {"no limit", passed() + Arguments{"--limit", "3"}},
        {"no ORIS code", passed() + Arguments{"--oris", "none"}},
        {"no reason", passed() + Arguments{"--reason", "none"}},
        {"no region", passed() + Arguments{"--region", "none"}},
        {"no export", {"drift", "--site", siteWithPart60(siteFolder), "--analyzer", "CO2 031/H"}},
        {"no result",
         {"drift", "--site", siteOfTests(), "--unit", "GT2", "--analyzer", "CO2 031/H", "--from",
          "2015-05-20", "--to", "2015-05-26"}},
        {"no sure result",
         {"drift", "--site", siteOfTests(), "--from", "9999-12-30", "--to", "9999-12-31"}},
    };
    for (const auto& [what, arguments] : refusals) {
        SCOPED_TRACE(what);
        EXPECT_EQ(run(arguments + both()).status, 2);
        EXPECT_EQ(contentOf(pdf_), "kept");
        EXPECT_EQ(contentOf(xml_), "kept");
    }
}

TEST_F(Save, MakesNoFileThatIsRefused)
{
    EXPECT_EQ(run(passed() + both() + Arguments{"--unit", "GT9"}).status, 2);
    EXPECT_TRUE(folder_.names().empty());
}

TEST_F(Save, WritesTheReportOfAnAnalyzerUnderPart60)
{
    const TemporaryFolder siteFolder;
    const CommandRun saved =
        run({"drift", "--site", siteWithPart60(siteFolder), "--analyzer", "CO2 031/H", "--from",
             "2015-05-20", "--to", "2015-05-30", "--pdf", pdf_, "--check"});
    EXPECT_EQ(saved.notes, "");
    EXPECT_EQ(saved.status, 0);
    EXPECT_EQ(folder_.names(), (std::vector<std::string>{"test.pdf"}));
}

} // namespace

} // namespace k7deval::cli::test
