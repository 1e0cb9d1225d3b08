#include "range/RangeRig.h"
#include "support/PdfText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

/// The report as a reader of its file finds it.
namespace k7deval::test
{

namespace
{

/// The saved report of one low, 250 middle and 500 high hours.
struct PdfRig : RangeRig {
    PdfRig()
    {
        hours({10});
        series().fill(makeDate(2024, 1, 2), makeDate(2024, 1, 12, 9), 30);
        series().fill(makeDate(2024, 2, 1), makeDate(2024, 2, 21, 19), 90);
        services.saveAnswer = screen::SaveAnswer{path, 1};
        calculate().tool.cmdSave.Press();
    }

    test::TemporaryFolder folder;
    const std::string path = folder.file("range.pdf");
};

} // namespace

TEST(RangeReportPdf, IsAValidFileWithItsInformation)
{
    const PdfRig rig;
    EXPECT_NO_THROW(test::requireValidPdf(rig.path));
    auto information = test::pdfInformation(rig.path);
    EXPECT_EQ(information["Title"], "Range Evaluation");
    EXPECT_EQ(information["Subject"], "Range Evaluation");
    EXPECT_EQ(information["Author"], "Kelvo Range Evaluation");
    EXPECT_EQ(information["Creator"], "Kelvo Range Evaluation");
    EXPECT_EQ(information["Pages"], "1");
}

TEST(RangeReportPdf, ReadsAsTheScreen)
{
    const PdfRig rig;
    const std::string text = test::pdfPlainText(rig.path);
    for (const char* words :
         {"Range Evaluation Summary", "Range summary ending the last day of 2024 Q1", "GT1 NOX",
          "1 Hours", "250 Hours", "500 Hours",
          "Hours above MEC:", "Hours above MPC:", "Hours over Range:",
          "Hours with 200% replacement:", "Invalid Hours:", "5/15/2024 2:30 PM"})
        EXPECT_NE(text.find(words), std::string::npos) << words << " is not in\n" << text;
}

TEST(RangeReportPdf, KeepsAFacilityNameOfAnyScript)
{
    PdfRig rig;
    rig.site->facilityName = "Kraftwerk Łódź";
    rig.services.answers = {screen::MsgBoxAnswer::Yes};
    rig.tool.cmdSave.Press();
    EXPECT_NE(test::pdfPlainText(rig.path).find("Kraftwerk Łódź"), std::string::npos);
}

} // namespace k7deval::test
