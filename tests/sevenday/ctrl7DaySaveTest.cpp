#include "foundation/ExpectError.h"
#include "report/PdfWriter.h"
#include "sevenday/ToolBench.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

/// The click of the save button.
namespace k7deval::test
{

namespace
{

using screen::MsgBoxAnswer;
using testing::contentOf;
using testing::writeFile;

constexpr std::int32_t kPdf = 1;
constexpr std::int32_t kXml = 2;

const screen::MsgBoxRequest kDeleteQuestion{"Delete Existing File?", "Delete Existing File?",
                                            screen::MsgBoxButtons::YesNo, screen::MsgBoxIcon::None};
const screen::MsgBoxRequest kFailedQuestion{
    "The 7-Day Drift Test has not been completed.\r\nAre you sure want to export the data?",
    "Failed Drift Test", screen::MsgBoxButtons::YesNo, screen::MsgBoxIcon::Exclamation};

screen::MsgBoxRequest failureBox(const std::string& failure)
{
    return {"Error Deleting File:  " + failure, "7-Day Drift", screen::MsgBoxButtons::OK,
            screen::MsgBoxIcon::None};
}

using Boxes = std::vector<screen::MsgBoxRequest>;

/// The tool on its results page, and a folder to save in.
struct SaveBench : ToolBench {
    explicit SaveBench(std::int32_t filterIndex = kPdf,
                       std::shared_ptr<SiteData> data = siteWithDailyCals(7))
        : ToolBench(std::move(data)), path(folder.file(filterIndex == kPdf ? "7Day.pdf" : "7.xml"))
    {
        services.saveAnswer = screen::SaveAnswer{path, filterIndex};
        next();
    }

    SaveBench& save()
    {
        tool.cmdSave.Press();
        return *this;
    }
    SaveBench& existing(const std::vector<MsgBoxAnswer>& answers)
    {
        writeFile(path, "old");
        services.answers = answers;
        return *this;
    }
    /// Every call of that name fails from now on.
    SaveBench& failing(const std::string& name)
    {
        site->failure = [name](const std::string& call, std::size_t) {
            return call == name ? std::optional(Error(440, "the line is down")) : std::nullopt;
        };
        return *this;
    }
    [[nodiscard]] std::string beginning(std::size_t length) const
    {
        return contentOf(path).substr(0, length);
    }

    testing::TemporaryFolder folder;
    std::string path;
};

/// A test of six good runs and the allowed failed one.
std::shared_ptr<SiteData> siteOfSixOfSeven()
{
    auto site = siteWithDailyCals(6);
    addCal(*site, {.time = march(7), .spanMeasured = 170});
    return site;
}

struct SixOfSevenBench : SaveBench {
    SixOfSevenBench() : SaveBench(kXml, siteOfSixOfSeven())
    {
        back().setUp().chk6of7.Press();
        next();
    }
};

} // namespace

TEST(Save, OffersTheExportForAParameterUnder40CFR75)
{
    SaveBench bench;
    bench.save();
    EXPECT_EQ(bench.services.filters, Lines{"PDF File (*.pdf)|*.pdf|ECMPS Export(*.xml)|*.xml"});
    EXPECT_EQ(bench.services.extensions, Lines{".pdf"});
}

TEST(Save, OffersTheReportAloneForAnyOtherProgram)
{
    AnalyzerFacts facts;
    facts.program = 60;
    SaveBench bench(kPdf, siteOf(facts));
    bench.save();
    EXPECT_EQ(bench.services.filters, Lines{"PDF File (*.pdf)|*.pdf"});
    EXPECT_EQ(bench.beginning(5), "%PDF-");
}

TEST(Save, CannotBePressedOnTheFirstPage)
{
    SaveBench bench;
    bench.back();
    bench.save();
    EXPECT_TRUE(bench.services.filters.empty());
}

TEST(Save, WritesTheReportAndOpensIt)
{
    SaveBench bench;
    bench.save();
    EXPECT_EQ(bench.beginning(5), "%PDF-");
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(Save, WritesTheExportOfAPassedTestWithoutAQuestionAndOpensIt)
{
    SaveBench bench(kXml);
    bench.save();
    EXPECT_EQ(bench.beginning(24), "<QualityAssuranceAndCert");
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(Save, OpensNothingWithoutThePreview)
{
    for (const std::int32_t filterIndex : {kPdf, kXml}) {
        SaveBench bench(filterIndex);
        bench.tool.chkPreview.Press();
        bench.save();
        EXPECT_EQ(bench.folder.names().size(), 1U);
        EXPECT_EQ(bench.services.opened, Lines());
    }
}

TEST(Save, LeavesTheScreenAsItIs)
{
    SaveBench bench;
    bench.save();
    EXPECT_EQ(bench.changesBy([&] { bench.existing({MsgBoxAnswer::Yes}).save(); }), Lines());
}

TEST(Save, CancellingTheDialogPostsNothing)
{
    SaveBench bench;
    bench.services.saveAnswer.reset();
    bench.save();
    EXPECT_EQ(bench.messages->lines(), Lines());
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(Save, AFailingDialogPostsItsLineAndNothingElseHappens)
{
    SaveBench bench;
    bench.services.saveError = Error(440, "no dialog");
    bench.site->calls.clear();
    bench.save();
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-002: 440, no dialog"});
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.site->calls, Lines()) << "no report was begun";
}

TEST(Save, WithoutAMessageSinkAFailingDialogIsSilent)
{
    SaveBench bench;
    bench.tool.Setup(nullptr, bench.server);
    bench.next();
    bench.services.saveError = Error(440);
    EXPECT_NO_THROW(bench.save());
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(Save, AskedWhetherToDeleteNoLeavesTheFileAsItWas)
{
    for (const std::int32_t filterIndex : {kPdf, kXml}) {
        SaveBench bench(filterIndex);
        bench.existing({MsgBoxAnswer::No}).save();
        EXPECT_EQ(bench.services.boxes, Boxes{kDeleteQuestion});
        EXPECT_EQ(contentOf(bench.path), "old");
        EXPECT_EQ(bench.services.opened, Lines());
    }
}

TEST(Save, AskedWhetherToDeleteYesReplacesTheFile)
{
    SaveBench bench;
    bench.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(bench.services.boxes, Boxes{kDeleteQuestion});
    EXPECT_EQ(bench.beginning(5), "%PDF-");
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
}

TEST(Save, AWriteProtectedFileStaysAndABoxSaysWhy)
{
    SaveBench bench;
    bench.existing({MsgBoxAnswer::Yes});
    std::filesystem::permissions(bench.path, std::filesystem::perms::owner_read);
    bench.save();
    EXPECT_EQ(contentOf(bench.path), "old");
    EXPECT_EQ(bench.services.boxes, (Boxes{kDeleteQuestion, failureBox("70:Permission denied")}));
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(Save, AReportThatFailsBehindADeletionShowsTheBoxAndNoPreview)
{
    SaveBench bench;
    bench.existing({MsgBoxAnswer::Yes}).failing("DIServer.LookupService").save();
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-011: 440, the line is down"});
    EXPECT_EQ(bench.services.boxes, (Boxes{kDeleteQuestion, failureBox("440:the line is down")}));
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(Save, AnExportThatFailsBehindADeletionShowsTheBoxAndNoPreview)
{
    SaveBench bench(kXml);
    bench.setUp().txtORIS.SetText("");
    bench.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-015: 13, Type mismatch"});
    EXPECT_EQ(bench.services.boxes, (Boxes{kDeleteQuestion, failureBox("13:Type mismatch")}));
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(Save, AReportThatFailsWithoutADeletionGoesOnToThePreview)
{
    SaveBench bench;
    bench.failing("DIServer.LookupService").save();
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-011: 440, the line is down"});
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
}

TEST(Save, AnExportThatFailsWithoutADeletionGoesOnToThePreview)
{
    SaveBench bench(kXml);
    bench.setUp().txtORIS.SetText("");
    bench.save();
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-015: 13, Type mismatch"});
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
    EXPECT_EQ(bench.folder.names(), Lines());
}

TEST(Save, WritesTheReportThatAHostCanBuildToo)
{
    SaveBench bench;
    bench.save();
    EXPECT_EQ(contentOf(bench.path), pdfOf(*bench.tool.buildReport()));
}

TEST(Save, ABuiltReportIsThatOfTheResultsAsTheyAreNow)
{
    SaveBench bench(kPdf, siteWithDailyCals(7));
    bench.back();
    bench.setUp().chkShowSummary.Press();
    bench.next();
    bench.save();
    EXPECT_EQ(contentOf(bench.path), pdfOf(*bench.tool.buildReport()));
}

TEST(Save, ABuiltReportRaisesWhatAWriterPosts)
{
    SaveBench bench;
    bench.failing("DIServer.LookupService");
    EXPECT_EQ(errorOf([&] { static_cast<void>(bench.tool.buildReport()); }), 440);
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(Save, AFolderThatIsNotThereIsTheWritersFailure)
{
    for (const auto& [filterIndex, line] :
         {std::pair(kPdf, "DEval-011: "), std::pair(kXml, "DEval-015: ")}) {
        SaveBench bench(filterIndex);
        bench.services.saveAnswer->path = bench.folder.file("nowhere/7Day");
        bench.save();
        EXPECT_EQ(bench.messages->lines(), Lines{std::string(line) + "76, Path not found"});
    }
}

TEST(Save, AFailedRowIsNoFailureOfTheReport)
{
    SaveBench bench;
    bench.test().dictCals->Item("2024/03/03 08:15")->InstrumentSpan =
        std::numeric_limits<float>::infinity();
    bench.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-013: 6, Overflow"});
    EXPECT_EQ(bench.services.boxes, Boxes{kDeleteQuestion});
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
}

TEST(Save, AFailingViewerPostsTheLineOfTheClick)
{
    SaveBench bench;
    bench.services.openError = Error(errors::kFileNotFound);
    bench.save();
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-002: 53, File not found"});
    EXPECT_EQ(bench.services.boxes, Boxes());
}

TEST(Save, AFailingViewerBehindADeletionShowsTheBox)
{
    SaveBench bench;
    bench.services.openError = Error(errors::kFileNotFound);
    bench.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(bench.messages->lines(), Lines());
    EXPECT_EQ(bench.services.boxes, (Boxes{kDeleteQuestion, failureBox("53:File not found")}));
}

TEST(SaveExport, HoldsTheRunsOfTheTestThatTheDisplayShows)
{
    auto site = siteWithDailyCals(9);
    addCal(*site, {.time = march(3, 20, 30), .manual = true});
    SaveBench bench(kXml, site);
    bench.save();
    const std::string text = contentOf(bench.path);
    for (const char* date : {"2024-03-01", "2024-03-02", "2024-03-03", "2024-03-04", "2024-03-05",
                             "2024-03-06", "2024-03-07"})
        EXPECT_NE(text.find("<ZeroInjectionDate>" + std::string(date) +
                            "</ZeroInjectionDate><ZeroInjectionHour>8</ZeroInjectionHour>"),
                  std::string::npos)
            << text;
    EXPECT_EQ(text.find("2024-03-08"), std::string::npos) << "behind the end of the test";
    EXPECT_EQ(text.find("<ZeroInjectionHour>20"), std::string::npos) << "not counted";
    EXPECT_NE(text.find("<TestResultCode>PASSED</TestResultCode>"), std::string::npos);
}

TEST(SaveExport, AsksAboutATestThatIsNotCompleted)
{
    SaveBench bench(kXml, siteWithDailyCals(6));
    bench.services.answers = {MsgBoxAnswer::Yes};
    bench.save();
    EXPECT_EQ(bench.services.boxes, Boxes{kFailedQuestion});
    EXPECT_EQ(bench.folder.names(), Lines{"7.xml"});
    EXPECT_EQ(bench.services.opened, Lines{bench.path});
}

TEST(SaveExport, AnyAnswerButYesEndsTheClick)
{
    for (const MsgBoxAnswer answer : {MsgBoxAnswer::No, MsgBoxAnswer::OK}) {
        SaveBench bench(kXml, siteWithDailyCals(6));
        bench.services.answers = {answer};
        bench.save();
        EXPECT_EQ(bench.services.boxes, Boxes{kFailedQuestion});
        EXPECT_EQ(bench.folder.names(), Lines());
        EXPECT_EQ(bench.services.opened, Lines());
        EXPECT_EQ(bench.messages->lines(), Lines());
    }
}

TEST(SaveExport, AsksAboutATestPassedWithTheAllowedFailureToo)
{
    SixOfSevenBench bench;
    ASSERT_EQ(bench.summary(), "The 7-Day Drift Test has been passed.");
    bench.services.answers = {MsgBoxAnswer::No};
    bench.save();
    EXPECT_EQ(bench.services.boxes, Boxes{kFailedQuestion});
}

TEST(SaveExport, AsksAboutTheFileFirstAndThatFileIsGoneWhateverTheSecondAnswer)
{
    SaveBench bench(kXml, siteWithDailyCals(6));
    bench.existing({MsgBoxAnswer::Yes, MsgBoxAnswer::No}).save();
    EXPECT_EQ(bench.services.boxes, (Boxes{kDeleteQuestion, kFailedQuestion}));
    EXPECT_EQ(bench.folder.names(), Lines());
    EXPECT_EQ(bench.services.opened, Lines());
    EXPECT_EQ(bench.messages->lines(), Lines());
}

TEST(SaveExport, TheReportOfATestThatIsNotCompletedIsWrittenWithoutAQuestion)
{
    SaveBench bench(kPdf, siteWithDailyCals(6));
    bench.save();
    EXPECT_EQ(bench.services.boxes, Boxes());
    EXPECT_EQ(bench.beginning(5), "%PDF-");
}

TEST(SaveExport, AFailingQuestionPostsTheLineOfTheClickAndWritesNothing)
{
    SaveBench bench(kXml, siteWithDailyCals(6));
    bench.services.msgBoxError = Error(440, "no box");
    bench.save();
    EXPECT_EQ(bench.messages->lines(), Lines{"DEval-002: 440, no box"});
    EXPECT_EQ(bench.folder.names(), Lines());
}

} // namespace k7deval::test
