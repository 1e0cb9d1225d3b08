#include "range/RangeRig.h"
#include "support/PdfImage.h"
#include "support/PdfText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

/// The report as a reader of its file finds it.
namespace k7deval::test
{

namespace
{

using test::PdfImage;
using test::PdfPage;
using test::PdfWord;

constexpr int kBarGrey = 0xB4;
constexpr int kWhite = 0xFF;
/// Where the chart stands on the page.
constexpr double kBottom = 129.22;
constexpr double kTop = 466.158;

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

double middleOf(const PdfWord& word)
{
    return (word.left + word.right) / 2;
}

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

TEST(RangeReportPdf, HasItsWordsInTheirPlaces)
{
    const PdfRig rig;
    const auto pages = test::pdfPages(rig.path);
    ASSERT_EQ(pages.size(), 1U);
    const PdfPage& page = pages[0];
    EXPECT_EQ(page.width, 792);
    EXPECT_EQ(page.height, 612);
    EXPECT_NEAR(middleOf(page.word("Bethpage")), 392, 0.1);
    EXPECT_NEAR(page.word("Bethpage").bottom, 563.05, 1);
    EXPECT_NEAR(middleOf(page.word("0.1%")), 108, 0.1);
    EXPECT_NEAR(middleOf(page.word("33.3%")), 396, 0.1);
    EXPECT_NEAR(middleOf(page.word("66.6%")), 684, 0.1);
    EXPECT_NEAR(page.word("Maximum").right, 756, 0.1);
    EXPECT_NEAR(middleOf(page.word("20%")), 180, 0.1);
    EXPECT_NEAR(page.word("replacement:").bottom, 86.71, 1);
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

TEST(RangeReportPdf, TheBarsAreGreyAndAsHighAsTheirHours)
{
    const PdfRig rig;
    const PdfImage image = PdfImage::render(rig.path);
    // Of the bars at 25 to 30% and 85 to 90%: half and full height, in the left of each.
    const double middle = (kBottom + kTop) / 2;
    EXPECT_NEAR(image.at(6 * 36 + 6, middle - 3).brightness(), kBarGrey, 2);
    EXPECT_NEAR(image.at(6 * 36 + 6, middle + 3).brightness(), kWhite, 2);
    EXPECT_NEAR(image.at(18 * 36 + 6, kTop - 3).brightness(), kBarGrey, 2);
    EXPECT_NEAR(image.at(18 * 36 + 6, kTop + 3).brightness(), kWhite, 2);
    EXPECT_NEAR(image.at(10 * 36 + 6, kBottom + 3).brightness(), kWhite, 2);
}

TEST(RangeReportPdf, TheHoursStandUprightAboveTheirBarOrInsideIt)
{
    const PdfRig rig;
    const PdfImage image = PdfImage::render(rig.path);
    const double middle = (kBottom + kTop) / 2;
    // Three digits are 16.68 long; the text lies around the middle of its bar.
    EXPECT_LT(image.darkest(6 * 36 + 12, middle + 2, 7 * 36 - 12, middle + 17), 80);
    EXPECT_GT(image.darkest(6 * 36 + 2, middle + 20, 7 * 36 - 2, middle + 60), 250);
    EXPECT_LT(image.darkest(18 * 36 + 12, kTop - 16, 19 * 36 - 12, kTop - 2), 80);
    EXPECT_GT(image.darkest(18 * 36 + 2, kTop - 60, 19 * 36 - 2, kTop - 20), 150);
}

TEST(RangeReportPdf, TheMarksAreDashedAndTheBaseIsSolid)
{
    const PdfRig rig;
    const PdfImage image = PdfImage::render(rig.path);
    for (const double x : {36.0, 180.0, 612.0, 756.0}) {
        int dark = 0;
        int light = 0;
        for (double y = 300; y < 360; y += 0.5)
            ++(image.darkest(x - 0.5, y, x + 0.5, y) < 160 ? dark : light);
        EXPECT_NEAR(dark, 40, 14) << x;
        EXPECT_NEAR(light, 80, 14) << x;
    }
    for (double x = 300; x < 330; x += 0.5)
        EXPECT_LT(image.darkest(x, kBottom - 0.5, x, kBottom + 0.5), 160) << x;
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
