#include "load/LoadReportRig.h"
#include "support/PdfImage.h"
#include "support/PdfText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

/// The load report as a reader of its saved file finds it.
namespace k7deval::test
{

namespace
{

using test::PdfImage;
using test::PdfPage;
using test::PdfWord;

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

double middleOf(const PdfWord& word)
{
    return (word.left + word.right) / 2;
}

/// How bright the grey of a bar is.
constexpr int kBar = 0xB4;
constexpr int kWhite = 255;
/// What a thin line leaves of white, at four pixels a point.
constexpr int kDark = 100;

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

TEST(LoadReportPdf, HasItsWordsInTheirPlaces)
{
    const PdfRig rig;
    const auto pages = test::pdfPages(rig.path);
    ASSERT_EQ(pages.size(), 1U);
    const PdfPage& page = pages[0];
    EXPECT_EQ(page.width, 792);
    EXPECT_EQ(page.height, 612);
    EXPECT_NEAR(middleOf(page.word("Bethpage")), 392, 0.1);
    EXPECT_NEAR(page.word("Bethpage").bottom, kFacilityY, 0.6);
    EXPECT_NEAR(page.word("Minimum").left, 36, 0.1);
    EXPECT_NEAR(page.word("Minimum").bottom, kNamesY, 0.6);
    EXPECT_NEAR(middleOf(page.word("30%")), 252, 0.1);
    EXPECT_NEAR(middleOf(page.word("60%")), 468, 0.1);
    EXPECT_NEAR(page.word("Maximum").right, 756, 0.1);
    EXPECT_NEAR(page.word("5/10/2024").bottom, kFooterY, 0.6);
}

TEST(LoadReportPdf, ReadsAsItsRows)
{
    const PdfRig rig;
    const std::string text = test::pdfPlainText(rig.path);
    for (const char* row :
         {"Bethpage", "Load summary ending the last day of 2024 Q1", "GT1 GT1 Load",
          "61.5% Low Op Load", "30.8% Mid Op Load", "7.7% High Op Load", "800 Hours", "400 Hours",
          "100 Hours", "0 hour(s) under 10", "0 hours(s) over 110",
          "Load Evaluation Summary 5/10/2024 2:30 PM"})
        EXPECT_NE(text.find(row), std::string::npos) << row << " in " << text;
}

TEST(LoadReportPdf, TheCountsReadUpwardOverTheMiddleOfTheirBars)
{
    const PdfRig rig;
    const auto pages = test::pdfPages(rig.path);
    struct Count {
        int bar;
        double bottom;
    };
    const double height = kChartTop - kChartBottom;
    const std::vector<Count> counts = {{6, kChartTop - widthOf("800") - 1},
                                       {7, kChartBottom + height / 2 + 1},
                                       {20, kChartBottom + height / 8 + 1}};
    for (const Count& count : counts) {
        const double middle = 36 + (count.bar - 0.5) * 36;
        const bool stands =
            std::any_of(pages[0].words.begin(), pages[0].words.end(), [&](const PdfWord& word) {
                return std::abs(middleOf(word) - middle) < 1 &&
                       std::abs(word.bottom - count.bottom) < 0.6 &&
                       word.top - word.bottom > word.right - word.left;
            });
        EXPECT_TRUE(stands) << count.bar;
    }
}

TEST(LoadReportPdf, TheBarsAreGreyAsHighAsTheirHours)
{
    const PdfRig rig;
    const PdfImage image = PdfImage::render(rig.path);
    const double height = kChartTop - kChartBottom;
    const PdfImage::Pixel grey{kBar, kBar, kBar};
    const PdfImage::Pixel white{kWhite, kWhite, kWhite};
    EXPECT_EQ(image.at(36 + 5.2 * 36, kChartTop - 2), grey);
    EXPECT_EQ(image.at(36 + 5.2 * 36, kChartTop + 2), white);
    EXPECT_EQ(image.at(36 + 6.8 * 36, kChartBottom + height / 2 - 2), grey);
    EXPECT_EQ(image.at(36 + 6.8 * 36, kChartBottom + height / 2 + 2), white);
    EXPECT_EQ(image.at(36 + 19.2 * 36, kChartBottom + height / 8 - 2), grey);
    EXPECT_EQ(image.at(36 + 19.2 * 36, kChartBottom + height / 8 + 2), white);
    EXPECT_EQ(image.at(36 + 3.5 * 36, kChartBottom + 2), white) << "a bin without hours";
}

TEST(LoadReportPdf, TheMarksAndTheBaseLieOverTheBars)
{
    const PdfRig rig;
    const PdfImage image = PdfImage::render(rig.path);
    // The 30% mark runs between bars 6 and 7.
    EXPECT_LT(image.darkest(251, kChartBottom + 20, 253, kChartBottom + 60), kDark);
    EXPECT_LT(image.darkest(467, kChartBottom + 20, 469, kChartBottom + 60), kDark);
    EXPECT_LT(image.darkest(36 + 5.2 * 36, kChartBottom - 1, 36 + 5.8 * 36, kChartBottom + 1),
              kDark);
    EXPECT_GE(image.darkest(36 + 5.1 * 36, kChartBottom + 20, 36 + 5.2 * 36, kChartBottom + 60),
              kBar)
        << "between the marks a bar is plain";
}

TEST(LoadReportPdf, TheMarksAreDashedAndTheBaseIsNot)
{
    const PdfRig rig;
    const PdfImage image = PdfImage::render(rig.path);
    int gaps = 0;
    for (double y = kChartBottom + 20; y < kChartBottom + 80; y += 0.25)
        gaps += image.darkest(467.5, y, 468.5, y) == kWhite ? 1 : 0;
    EXPECT_GT(gaps, 80) << "two thirds of a mark are left out";
    EXPECT_LT(gaps, 220);
    for (double x = 40; x < 750; x += 10)
        EXPECT_LT(image.darkest(x, kChartBottom - 1, x, kChartBottom + 1), kDark) << x;
}

TEST(LoadReportPdf, OfTheSameScreenIsTheSameFile)
{
    PdfRig rig;
    const std::string first = test::contentOf(rig.path);
    rig.services.answers = {screen::MsgBoxAnswer::Yes};
    rig.tool.cmdSave.Press();
    EXPECT_EQ(test::contentOf(rig.path), first);
}

TEST(LoadReportPdf, KeepsNamesOfAnyScript)
{
    ReportRig rig;
    rig.site->facilityName = "Kraftwerk Łódź";
    const test::TemporaryFolder folder;
    const std::string path = folder.file("Load.pdf");
    rig.calculate();
    rig.services.saveAnswer = screen::SaveAnswer{path, 1};
    rig.tool.cmdSave.Press();
    EXPECT_NE(test::pdfPlainText(path).find("Kraftwerk Łódź"), std::string::npos);
}

} // namespace k7deval::test
