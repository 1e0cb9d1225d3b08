#include "foundation/ExpectError.h"
#include "report/PdfWriter.h"
#include "sevenday/ToolRig.h"
#include "support/HourlySite.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <limits>
#include <string_view>

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

const std::string kFailed = "Error Deleting File:  ";

screen::MsgBoxRequest failureBox(const std::string& failure)
{
    return {kFailed + failure, "7-Day Drift", screen::MsgBoxButtons::OK, screen::MsgBoxIcon::None};
}

using Boxes = std::vector<screen::MsgBoxRequest>;

const std::vector<MsgBoxAnswer> kYes = {MsgBoxAnswer::Yes};
const std::vector<MsgBoxAnswer> kNo = {MsgBoxAnswer::No};
const std::vector<MsgBoxAnswer> kYesNo = {MsgBoxAnswer::Yes, MsgBoxAnswer::No};

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
    /// Makes the row of 3 March fail.
    void spoilRow()
    {
        test().dictCals->Item("2024/03/03 08:15")->InstrumentSpan =
            std::numeric_limits<float>::infinity();
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

/// The boxes that were shown: "delete?", "failed?", or the text of a failure box.
std::string boxesOf(const FakeServices& services)
{
    std::string text;
    for (const screen::MsgBoxRequest& box : services.boxes) {
        const std::string shown = box == kDeleteQuestion   ? "delete?"
                                  : box == kFailedQuestion ? "failed?"
                                  : box == failureBox(box.prompt.substr(kFailed.size()))
                                      ? box.prompt
                                      : "another box";
        text += (text.empty() ? "" : ", ") + shown;
    }
    return text;
}

/// A click and all that comes of it.
struct SaveCase {
    const char* what;
    std::int32_t filterIndex;
    int runs; ///< Passed ones; seven complete the test.
    void (*prepare)(SaveRig& rig);
    const char* posted;
    const char* boxes;
    std::string_view content; ///< The beginning of the file; empty for none.
    bool isOpened;
};

constexpr std::string_view kReport = "%PDF-";
constexpr std::string_view kExport = "<QualityAssuranceAndCert";
constexpr std::string_view kNoFile;

const SaveCase kSaves[] = {
    {"a report", kPdf, 7, [](auto&) {}, "", "", kReport, true},
    {"an export", kXml, 7, [](auto&) {}, "", "", kExport, true},
    {"a report without the preview", kPdf, 7, [](auto& rig) { rig.tool.chkPreview.Press(); }, "",
     "", kReport, false},
    {"an export without the preview", kXml, 7, [](auto& rig) { rig.tool.chkPreview.Press(); }, "",
     "", kExport, false},
    {"a cancelled dialog", kPdf, 7, [](auto& rig) { rig.services.saveAnswer.reset(); }, "", "",
     kNoFile, false},
    {"a failing dialog", kPdf, 7,
     [](auto& rig) { rig.services.saveError = Error(440, "no dialog"); },
     "DEval-002: 440, no dialog", "", kNoFile, false},
    {"a failing viewer", kPdf, 7,
     [](auto& rig) { rig.services.openError = Error(errors::kFileNotFound); },
     "DEval-002: 53, File not found", "", kReport, true},
    // An existing file is deleted on Yes alone. A writer that fails behind that shows the box and
    // no preview; one that fails without goes on to the preview.
    {"a report over a file that stays", kPdf, 7, [](auto& rig) { rig.existing(kNo); }, "",
     "delete?", "old", false},
    {"an export over a file that stays", kXml, 7, [](auto& rig) { rig.existing(kNo); }, "",
     "delete?", "old", false},
    {"a failing report behind a deletion", kPdf, 7,
     [](auto& rig) { rig.existing(kYes).failing("DIServer.LookupService"); },
     "DEval-011: 440, the line is down", "delete?, Error Deleting File:  440:the line is down",
     kNoFile, false},
    {"a failing export behind a deletion", kXml, 7,
     [](auto& rig) { rig.existing(kYes).setUp().txtORIS.SetText(""); },
     "DEval-015: 13, Type mismatch", "delete?, Error Deleting File:  13:Type mismatch", kNoFile,
     false},
    {"a failing report without a deletion", kPdf, 7,
     [](auto& rig) { rig.failing("DIServer.LookupService"); }, "DEval-011: 440, the line is down",
     "", kNoFile, true},
    {"a report with a failed row behind a deletion", kPdf, 7,
     [](auto& rig) { rig.existing(kYes).spoilRow(); }, "DEval-013: 6, Overflow", "delete?", kReport,
     true},
    // A test that is not completed is reported without a question and exported on Yes alone. The
    // file is asked about first, and is gone whatever the second answer.
    {"the report of a failed test", kPdf, 6, [](auto&) {}, "", "", kReport, true},
    {"the export of a failed test, yes", kXml, 6, [](auto& rig) { rig.services.answers = kYes; },
     "", "failed?", kExport, true},
    {"the export of a failed test, no", kXml, 6, [](auto& rig) { rig.services.answers = kNo; }, "",
     "failed?", kNoFile, false},
    {"the export of a failed test, OK", kXml, 6, [](auto& rig) { rig.services.answers.clear(); },
     "", "failed?", kNoFile, false},
    {"the export of a failed test over a file", kXml, 6, [](auto& rig) { rig.existing(kYesNo); },
     "", "delete?, failed?", kNoFile, false},
    {"the export of a failed test without an answer", kXml, 6,
     [](auto& rig) { rig.services.msgBoxError = Error(440, "no box"); }, "DEval-002: 440, no box",
     "failed?", kNoFile, false},
};

TEST(Save, WritesPostsAsksAndOpens)
{
    for (const SaveCase& row : kSaves) {
        SCOPED_TRACE(row.what);
        SaveRig rig(row.filterIndex, siteWithDailyCals(row.runs));
        row.prepare(rig);
        rig.save();
        EXPECT_EQ(rig.messages->lines(), *row.posted == '\0' ? Lines() : Lines{row.posted});
        EXPECT_EQ(boxesOf(rig.services), row.boxes);
        EXPECT_EQ(rig.services.opened, row.isOpened ? Lines{rig.path} : Lines());
        EXPECT_EQ(rig.folder.names().size(), row.content.empty() ? 0U : 1U);
        const bool hasFile = !row.content.empty();
        EXPECT_EQ(hasFile ? rig.beginning(row.content.size()) : "", row.content);
    }
}

TEST(Save, AFailingDialogBeginsNoReport)
{
    SaveRig rig;
    rig.services.saveError = Error(440, "no dialog");
    rig.site->calls.clear();
    rig.save();
    EXPECT_EQ(rig.site->calls, Lines());
}

TEST(Save, LeavesTheScreenAsItIs)
{
    SaveRig rig;
    rig.save();
    EXPECT_EQ(rig.changesBy([&] { rig.existing({MsgBoxAnswer::Yes}).save(); }), Lines());
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

TEST(SaveExport, AsksAboutATestPassedWithTheAllowedFailureToo)
{
    SixOfSevenRig rig;
    ASSERT_EQ(rig.summary(), "The 7-Day Drift Test has been passed.");
    rig.services.answers = {MsgBoxAnswer::No};
    rig.save();
    EXPECT_EQ(rig.services.boxes, Boxes{kFailedQuestion});
}

} // namespace k7deval::test
