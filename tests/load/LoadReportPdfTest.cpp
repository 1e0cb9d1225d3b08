#include "load/LoadReportRig.h"
#include "support/PdfText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

/// The load report as a reader of its saved file finds it.
namespace k7deval::test
{

namespace
{

/// A saved report with bars in bins 6, 7 and 20: full, half and an eighth high.
struct PdfRig : ReportRig {
    PdfRig()
    {
        services.saveAnswer = screen::SaveAnswer{path, 1};
        inBin(6, 800).inBin(7, 400).inBin(20, 100).calculate();
        tool.cmdSave.Press();
    }
    test::TemporaryFolder folder;
    const std::string path = folder.file("Load.pdf");
};

} // namespace

TEST(LoadReportPdf, IsAValidFile)
{
    const PdfRig rig;
    EXPECT_NO_THROW(test::requireValidPdf(rig.path));
}

TEST(LoadReportPdf, BearsItsInformation)
{
    const PdfRig rig;
    auto information = test::pdfInformation(rig.path);
    EXPECT_EQ(information["Title"], "Load Evalution");
    EXPECT_EQ(information["Subject"], "Load Evaluation");
    EXPECT_EQ(information["Author"], "Kelvo Load Evaluation");
    EXPECT_EQ(information["Creator"], "Kelvo Load Evaluation");
    EXPECT_EQ(information["Pages"], "1");
}

TEST(LoadReportPdf, ReadsAsItsRows)
{
    const PdfRig rig;
    const std::string text = test::pdfPlainText(rig.path);
    for (const char* row :
         {"Bethpage", "Load summary ending the last day of 2024 Q1", "GT1 GT1 Load",
          "61.5% Low Op Load", "30.8% Mid Op Load", "7.7% High Op Load", "800 Hours", "400 Hours",
          "100 Hours", "0 hour(s) under 10", "0 hours(s) over 110",
          "Load Evaluation Summary 5/15/2024 2:30 PM"})
        EXPECT_NE(text.find(row), std::string::npos) << row << " in " << text;
}

} // namespace k7deval::test
