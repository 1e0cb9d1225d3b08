#include "sevenday/ReportRig.h"
#include "support/PdfText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

/// The report as a reader of its file finds it.
namespace k7deval::test
{

namespace
{

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

} // namespace k7deval::test
