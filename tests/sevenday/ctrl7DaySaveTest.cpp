#include "foundation/ExpectError.h"
#include "report/PdfWriter.h"
#include "sevenday/ToolRig.h"
#include "support/HourlySite.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <limits>

/// The click of the save button.
namespace k7deval::test
{

namespace
{

using screen::MsgBoxAnswer;
using test::contentOf;
using test::writeFile;

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
struct SaveRig : ToolRig {
    explicit SaveRig(std::int32_t filterIndex = kPdf,
                     std::shared_ptr<SiteData> data = siteWithDailyCals(7))
        : ToolRig(std::move(data)), path(folder.file(filterIndex == kPdf ? "7Day.pdf" : "7.xml"))
    {
        services.saveAnswer = screen::SaveAnswer{path, filterIndex};
        next();
    }

    SaveRig& save()
    {
        tool.cmdSave.Press();
        return *this;
    }
    SaveRig& existing(const std::vector<MsgBoxAnswer>& answers)
    {
        writeFile(path, "old");
        services.answers = answers;
        return *this;
    }
    SaveRig& failing(const std::string& name)
    {
        failAt(*site, name);
        return *this;
    }
    [[nodiscard]] std::string beginning(std::size_t length) const
    {
        return contentOf(path).substr(0, length);
    }

    test::TemporaryFolder folder;
    std::string path;
};

/// A test of six good runs and the allowed failed one.
std::shared_ptr<SiteData> siteOfSixOfSeven()
{
    auto site = siteWithDailyCals(6);
    addCal(*site, {.time = march(7), .spanMeasured = 170});
    return site;
}

struct SixOfSevenRig : SaveRig {
    SixOfSevenRig() : SaveRig(kXml, siteOfSixOfSeven())
    {
        back().setUp().chk6of7.Press();
        next();
    }
};

} // namespace

TEST(Save, OffersTheExportForAParameterUnder40CFR75)
{
    SaveRig rig;
    rig.save();
    EXPECT_EQ(rig.services.filters, Lines{"PDF File (*.pdf)|*.pdf|ECMPS Export(*.xml)|*.xml"});
    EXPECT_EQ(rig.services.extensions, Lines{".pdf"});
}

TEST(Save, OffersTheReportAloneForAnyOtherProgram)
{
    AnalyzerFacts facts;
    facts.program = 60;
    SaveRig rig(kPdf, siteOf(facts));
    rig.save();
    EXPECT_EQ(rig.services.filters, Lines{"PDF File (*.pdf)|*.pdf"});
    EXPECT_EQ(rig.beginning(5), "%PDF-");
}

TEST(Save, CannotBePressedOnTheFirstPage)
{
    SaveRig rig;
    rig.back();
    rig.save();
    EXPECT_TRUE(rig.services.filters.empty());
}

TEST(Save, WritesTheReportAndOpensIt)
{
    SaveRig rig;
    rig.save();
    EXPECT_EQ(rig.beginning(5), "%PDF-");
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.messages->lines(), Lines());
}

TEST(Save, WritesTheExportOfAPassedTestWithoutAQuestionAndOpensIt)
{
    SaveRig rig(kXml);
    rig.save();
    EXPECT_EQ(rig.beginning(24), "<QualityAssuranceAndCert");
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.messages->lines(), Lines());
}

TEST(Save, OpensNothingWithoutThePreview)
{
    for (const std::int32_t filterIndex : {kPdf, kXml}) {
        SaveRig rig(filterIndex);
        rig.tool.chkPreview.Press();
        rig.save();
        EXPECT_EQ(rig.folder.names().size(), 1U);
        EXPECT_EQ(rig.services.opened, Lines());
    }
}

TEST(Save, LeavesTheScreenAsItIs)
{
    SaveRig rig;
    rig.save();
    EXPECT_EQ(rig.changesBy([&] { rig.existing({MsgBoxAnswer::Yes}).save(); }), Lines());
}

TEST(Save, CancellingTheDialogPostsNothing)
{
    SaveRig rig;
    rig.services.saveAnswer.reset();
    rig.save();
    EXPECT_EQ(rig.messages->lines(), Lines());
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
}

TEST(Save, AFailingDialogPostsItsLineAndNothingElseHappens)
{
    SaveRig rig;
    rig.services.saveError = Error(440, "no dialog");
    rig.site->calls.clear();
    rig.save();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-002: 440, no dialog"});
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.site->calls, Lines()) << "no report was begun";
}

TEST(Save, WithoutAMessageSinkAFailingDialogIsSilent)
{
    SaveRig rig;
    rig.tool.Setup(nullptr, rig.server);
    rig.next();
    rig.services.saveError = Error(440);
    EXPECT_NO_THROW(rig.save());
    EXPECT_EQ(rig.messages->lines(), Lines());
}

TEST(Save, AskedWhetherToDeleteNoLeavesTheFileAsItWas)
{
    for (const std::int32_t filterIndex : {kPdf, kXml}) {
        SaveRig rig(filterIndex);
        rig.existing({MsgBoxAnswer::No}).save();
        EXPECT_EQ(rig.services.boxes, Boxes{kDeleteQuestion});
        EXPECT_EQ(contentOf(rig.path), "old");
        EXPECT_EQ(rig.services.opened, Lines());
    }
}

TEST(Save, AReportThatFailsBehindADeletionShowsTheBoxAndNoPreview)
{
    SaveRig rig;
    rig.existing({MsgBoxAnswer::Yes}).failing("DIServer.LookupService").save();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-011: 440, the line is down"});
    EXPECT_EQ(rig.services.boxes, (Boxes{kDeleteQuestion, failureBox("440:the line is down")}));
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
}

TEST(Save, AnExportThatFailsBehindADeletionShowsTheBoxAndNoPreview)
{
    SaveRig rig(kXml);
    rig.setUp().txtORIS.SetText("");
    rig.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-015: 13, Type mismatch"});
    EXPECT_EQ(rig.services.boxes, (Boxes{kDeleteQuestion, failureBox("13:Type mismatch")}));
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.folder.names(), Lines());
}

TEST(Save, AReportThatFailsWithoutADeletionGoesOnToThePreview)
{
    SaveRig rig;
    rig.failing("DIServer.LookupService").save();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-011: 440, the line is down"});
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
}

TEST(Save, WritesTheReportThatAHostCanBuildToo)
{
    SaveRig rig;
    rig.save();
    EXPECT_EQ(contentOf(rig.path), pdfOf(*rig.tool.buildReport()));
}

TEST(Save, ABuiltReportRaisesWhatAWriterPosts)
{
    SaveRig rig;
    rig.failing("DIServer.LookupService");
    EXPECT_EQ(errorOf([&] { static_cast<void>(rig.tool.buildReport()); }), 440);
    EXPECT_EQ(rig.messages->lines(), Lines());
}

TEST(Save, AFolderThatIsNotThereIsTheWritersFailure)
{
    for (const auto& [filterIndex, line] :
         {std::pair(kPdf, "DEval-011: "), std::pair(kXml, "DEval-015: ")}) {
        SaveRig rig(filterIndex);
        rig.services.saveAnswer->path = rig.folder.file("nowhere/7Day");
        rig.save();
        EXPECT_EQ(rig.messages->lines(), Lines{std::string(line) + "76, Path not found"});
    }
}

TEST(Save, AFailedRowIsNoFailureOfTheReport)
{
    SaveRig rig;
    rig.test().dictCals->Item("2024/03/03 08:15")->InstrumentSpan =
        std::numeric_limits<float>::infinity();
    rig.existing({MsgBoxAnswer::Yes}).save();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-013: 6, Overflow"});
    EXPECT_EQ(rig.services.boxes, Boxes{kDeleteQuestion});
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
}

TEST(Save, AFailingViewerPostsTheLineOfTheClick)
{
    SaveRig rig;
    rig.services.openError = Error(errors::kFileNotFound);
    rig.save();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-002: 53, File not found"});
    EXPECT_EQ(rig.services.boxes, Boxes());
}

TEST(SaveExport, HoldsTheRunsOfTheTestThatTheDisplayShows)
{
    auto site = siteWithDailyCals(9);
    addCal(*site, {.time = march(3, 20, 30), .manual = true});
    SaveRig rig(kXml, site);
    rig.save();
    const std::string text = contentOf(rig.path);
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
    SaveRig rig(kXml, siteWithDailyCals(6));
    rig.services.answers = {MsgBoxAnswer::Yes};
    rig.save();
    EXPECT_EQ(rig.services.boxes, Boxes{kFailedQuestion});
    EXPECT_EQ(rig.folder.names(), Lines{"7.xml"});
    EXPECT_EQ(rig.services.opened, Lines{rig.path});
}

TEST(SaveExport, AnyAnswerButYesEndsTheClick)
{
    for (const MsgBoxAnswer answer : {MsgBoxAnswer::No, MsgBoxAnswer::OK}) {
        SaveRig rig(kXml, siteWithDailyCals(6));
        rig.services.answers = {answer};
        rig.save();
        EXPECT_EQ(rig.services.boxes, Boxes{kFailedQuestion});
        EXPECT_EQ(rig.folder.names(), Lines());
        EXPECT_EQ(rig.services.opened, Lines());
        EXPECT_EQ(rig.messages->lines(), Lines());
    }
}

TEST(SaveExport, AsksAboutATestPassedWithTheAllowedFailureToo)
{
    SixOfSevenRig rig;
    ASSERT_EQ(rig.summary(), "The 7-Day Drift Test has been passed.");
    rig.services.answers = {MsgBoxAnswer::No};
    rig.save();
    EXPECT_EQ(rig.services.boxes, Boxes{kFailedQuestion});
}

TEST(SaveExport, AsksAboutTheFileFirstAndThatFileIsGoneWhateverTheSecondAnswer)
{
    SaveRig rig(kXml, siteWithDailyCals(6));
    rig.existing({MsgBoxAnswer::Yes, MsgBoxAnswer::No}).save();
    EXPECT_EQ(rig.services.boxes, (Boxes{kDeleteQuestion, kFailedQuestion}));
    EXPECT_EQ(rig.folder.names(), Lines());
    EXPECT_EQ(rig.services.opened, Lines());
    EXPECT_EQ(rig.messages->lines(), Lines());
}

TEST(SaveExport, TheReportOfATestThatIsNotCompletedIsWrittenWithoutAQuestion)
{
    SaveRig rig(kPdf, siteWithDailyCals(6));
    rig.save();
    EXPECT_EQ(rig.services.boxes, Boxes());
    EXPECT_EQ(rig.beginning(5), "%PDF-");
}

TEST(SaveExport, AFailingQuestionPostsTheLineOfTheClickAndWritesNothing)
{
    SaveRig rig(kXml, siteWithDailyCals(6));
    rig.services.msgBoxError = Error(440, "no box");
    rig.save();
    EXPECT_EQ(rig.messages->lines(), Lines{"DEval-002: 440, no box"});
    EXPECT_EQ(rig.folder.names(), Lines());
}

} // namespace k7deval::test
