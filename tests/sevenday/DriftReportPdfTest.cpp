#include "sevenday/ReportRig.h"
#include "support/PdfText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

/// The report as a reader of its file finds it.
namespace k7deval::test
{

namespace
{

using test::PdfPage;
using test::PdfWord;

/// The saved report of so many days.
struct PdfRig : ReportRig {
    explicit PdfRig(int days)
    {
        test.strSummary = "The 7-Day Drift Test has been passed.";
        std::vector<CalDay> shown = daysOfOneRun(days);
        shown.back()->DisplayedCals[0] =
            unused(failedRunAt(shown.back()->DisplayedCals[0]->CalTime));
        show(shown);
        EXPECT_EQ(report.WriteDriftReport(path), std::nullopt);
    }

    test::TemporaryFolder folder;
    const std::string path = folder.file("7Day.pdf");
};

} // namespace

TEST(ReportPdf, IsAValidFile)
{
    const PdfRig rig(7);
    EXPECT_NO_THROW(test::requireValidPdf(rig.path));
}

TEST(ReportPdf, BearsItsInformation)
{
    const PdfRig rig(7);
    auto information = test::pdfInformation(rig.path);
    EXPECT_EQ(information["Title"], "7-Day Drift Testing");
    EXPECT_EQ(information["Subject"], "7-Day Drift Testing");
    EXPECT_EQ(information["Author"], "Kelvo Data Evaluation");
    EXPECT_EQ(information["Creator"], "Kelvo Data Evaluation");
    EXPECT_EQ(information["Pages"], "1");
}

TEST(ReportPdf, HasItsWordsInTheirPlaces)
{
    const PdfRig rig(7);
    const auto pages = test::pdfPages(rig.path);
    ASSERT_EQ(pages.size(), 1U);
    const PdfPage& page = pages[0];
    EXPECT_EQ(page.width, 792);
    EXPECT_EQ(page.height, 612);
    const PdfWord& facility = page.word("Bethpage");
    EXPECT_NEAR((facility.left + facility.right) / 2, 392, 0.1);
    const PdfWord& status = page.word("Status");
    EXPECT_NEAR((status.left + status.right) / 2, 716, 0.1);
    EXPECT_NEAR(page.word("Summary").bottom, kFooterY, 0.6);
    EXPECT_LT(page.word("passed.").bottom, page.word("1/7/2024").bottom);
}

TEST(ReportPdf, ReadsAsItsRows)
{
    const PdfRig rig(7);
    const std::string text = test::pdfPlainText(rig.path);
    EXPECT_NE(text.find("1/1/2024 08:15 200 0.0 0.0 0.0 5.0 160.0 160.0 0.0 5.0 On-Line"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("1/7/2024 08:15 200 0.0 0.0 0.0 5.0 160.0 166.0 6.0 5.0 On-Line"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("The 7-Day Drift Test has been passed."), std::string::npos) << text;
    EXPECT_EQ(text.find("Page 1"), std::string::npos) << text;
}

TEST(ReportPdf, OfManyDaysHasNumberedPages)
{
    const PdfRig rig(100);
    const auto pages = test::pdfPages(rig.path);
    ASSERT_EQ(pages.size(), 4U);
    for (const PdfPage& page : pages) {
        EXPECT_NO_THROW(static_cast<void>(page.word("Bethpage")));
        EXPECT_NEAR(page.word("Page").bottom, kFooterY, 0.6);
    }
    EXPECT_THROW(static_cast<void>(pages[0].word("passed.")), std::runtime_error);
    EXPECT_NO_THROW(static_cast<void>(pages[3].word("passed.")));
}

TEST(ReportPdf, KeepsAFacilityNameOfAnyScript)
{
    ReportRig rig;
    rig.site->facilityName = "Kraftwerk Łódź";
    const test::TemporaryFolder folder;
    const std::string path = folder.file("7Day.pdf");
    ASSERT_EQ(rig.report.WriteDriftReport(path), std::nullopt);
    EXPECT_NE(test::pdfPlainText(path).find("Kraftwerk Łódź"), std::string::npos);
}

} // namespace k7deval::test
