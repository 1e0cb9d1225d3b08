#include "report/PageLayout.h"
#include "report/ReportDocument.h"
#include "report/TestFonts.h"
#include "support/PdfImage.h"
#include "support/PdfText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace k7deval
{
namespace
{

using test::PdfImage;
using test::PdfWord;
using ::testing::HasSubstr;
using ::testing::Not;

// Readers round positions to 1/1000000, and advances are given in 1/1000 of the font size.
constexpr double kNear = 0.01;

/// A document with one page of the usual size, to draw on and to look at.
class PdfDrawing : public ::testing::Test
{
protected:
    PdfDrawing() : document(test::sansOnly()), page(document.Pages().Add())
    {
        page.SetHeight(612);
        page.SetWidth(792);
    }

    ReportTextItem& addText(const std::string& text, float x, float y, int font = 5)
    {
        ReportTextItem& item = page.TextItems().Add(text);
        item.SetFont(font);
        item.SetX(x);
        item.SetY(y);
        return item;
    }

    void addRectangle(float x, float y, float width, float height, int color)
    {
        ReportRectangle& rectangle = page.Rectangles().Add();
        rectangle.SetX(x);
        rectangle.SetY(y);
        rectangle.SetWidth(width);
        rectangle.SetHeight(height);
        rectangle.SetFillColor(color);
        rectangle.SetLineColor(color);
    }

    void addLine(float x1, float y1, float x2, float y2, int style = 0)
    {
        ReportLine& line = page.Lines().Add();
        line.SetX1(x1);
        line.SetY1(y1);
        line.SetX2(x2);
        line.SetY2(y2);
        line.SetStyle(style);
    }

    /// The document as a file, which every reader takes without complaint.
    std::string saved()
    {
        document.SaveToFile(folder.file("drawing.pdf"));
        test::requireValidPdf(folder.file("drawing.pdf"));
        return folder.file("drawing.pdf");
    }

    test::PdfPage drawnPage() { return test::pdfPages(saved()).at(0); }
    std::string source() { return test::pdfSource(saved()); }
    std::string plainText() { return test::pdfPlainText(saved()); }

    test::TemporaryFolder folder;
    ReportDocument document;
    ReportPage& page;
};

TEST_F(PdfDrawing, APageHasItsSize)
{
    document.Pages().Add().SetHeight(100);
    std::prev(document.Pages().end())->SetWidth(200.5F);
    const auto pages = test::pdfPages(saved());
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].width, 792);
    EXPECT_EQ(pages[0].height, 612);
    EXPECT_EQ(pages[1].width, 200.5);
    EXPECT_EQ(pages[1].height, 100);
}

TEST_F(PdfDrawing, EachPageHasItsOwnItems)
{
    addText("first", 100, 200);
    ReportPage& second = document.Pages().Add();
    second.SetHeight(612);
    second.SetWidth(792);
    second.TextItems().Add("\u0394\u03B5\u03CD\u03C4\u03B5\u03C1\u03B7");
    EXPECT_EQ(plainText(), "first\n\f\u0394\u03B5\u03CD\u03C4\u03B5\u03C1\u03B7\n\f");
}

TEST_F(PdfDrawing, ATextStartsAtItsXAndTakesTheWidthThatWasMeasured)
{
    const ReportTextItem* const items[] = {
        &addText("On-Line", 100, 500, 5),
        &addText("12.3457", 100, 480, 6),
        &addText("Page", 100, 460, 7),
        &addText("Caf\u00E9\u20AC", 100, 440, 5),
        &addText("\u0141\u00F3d\u017A", 100, 420, 5),
        &addText("\u0416\u0443\u043A", 100, 400, 6),
        &addText("e\u0301\u1EA5\U0001F600", 100, 380, 5),
        &addText("Unit\u5E02", 100, 360, 5),
    };
    const auto words = drawnPage().words;
    ASSERT_EQ(words.size(), std::size(items));
    for (std::size_t i = 0; i < words.size(); ++i) {
        EXPECT_NEAR(words[i].left, 100, kNear) << words[i].text;
        EXPECT_NEAR(words[i].right, 100 + items[i]->Width(), kNear) << words[i].text;
    }
}

TEST_F(PdfDrawing, TheLowerEdgeOfATextIsAtItsY)
{
    addText("standard", 100, 200);
    addText("\u0394", 100, 300);
    EXPECT_THAT(source(), HasSubstr("\n1 0 0 1 100 202.12 Tm\n/F1 10 Tf\n(standard) Tj"))
        << "the base line of Helvetica lies 212/1000 of the size above the lower edge";
    EXPECT_THAT(source(), HasSubstr("\n1 0 0 1 100 302.36 Tm"))
        << "that of the other face 236/1000";
}

TEST_F(PdfDrawing, ATextLiesBetweenItsYAndItsHeightAboveIt)
{
    const ReportTextItem& item = addText("\u00C5gj(|)", 100, 200);
    const PdfImage image = PdfImage::render(saved());
    const double top = 200.0 + item.Height();
    EXPECT_LT(image.darkest(100, 200, 100 + item.Width(), top), 60);
    EXPECT_EQ(image.darkest(90, 190, 160, 199.5), 255) << "nothing below the lower edge";
    EXPECT_LT(image.darkest(100, 200, 160, 201.5), 128) << "the descenders reach it";
}

TEST_F(PdfDrawing, TheTextOfAFooterIsClearOfTheRuleItHangsFrom)
{
    page.SetHeight(60);
    page.SetWidth(200);
    layout::drawRule(page, layout::kFooterRule);
    layout::drawFooterText(page, "7-Day Drift Summary (EPA)");
    const PdfImage image = PdfImage::render(saved(), 1, 8);
    EXPECT_LT(image.darkest(36, 48.9, 199, 49.3), 60) << "the rule, half a point wide";
    EXPECT_EQ(image.darkest(36, 48, 199, 48.7), 255) << "blank between rule and letters";
    EXPECT_LT(image.darkest(36, 42, 199, 47.5), 60) << "the letters";
}

TEST_F(PdfDrawing, AnAccentedCapitalIsClearOfTheRowAboveIt)
{
    page.SetHeight(60);
    page.SetWidth(200);
    float y = 50;
    for (int row = 0; row < 2; ++row)
        y = layout::centreBelow(addText("Enjoy (|) \u00C5", 0, 0), 100, y);
    const PdfImage image = PdfImage::render(saved(), 1, 8);
    const double top = double(y) + 11.17;
    EXPECT_EQ(image.darkest(0, top + 0.8, 199, top + 1.6), 255) << "blank between the two rows";
}

TEST_F(PdfDrawing, ATextTurnedUpwardStartsAtItsPlaceAndRunsUp)
{
    ReportTextItem& item = addText("Upward", 300, 100);
    item.SetOrientation(2);
    const std::string path = saved();
    EXPECT_THAT(test::pdfSource(path), HasSubstr("\n0 1 -1 0 297.88 100 Tm\n"));
    const PdfWord word = test::pdfPages(path).at(0).word("Upward");
    EXPECT_NEAR(word.bottom, 100, kNear);
    EXPECT_NEAR(word.top, 100 + item.Width(), kNear);
    const PdfImage image = PdfImage::render(path);
    EXPECT_LT(image.darkest(300 - item.Height(), 100, 300, 100 + item.Width()), 60);
    EXPECT_EQ(image.darkest(300.5, 90, 320, 150), 255) << "nothing right of the lower edge";
    EXPECT_EQ(image.darkest(270, 90, 299 - item.Height(), 150), 255);
}

TEST_F(PdfDrawing, AnyOtherOrientationReadsHorizontally)
{
    for (const int orientation : {0, 1, 3, -2})
        addText("level", 300, 100).SetOrientation(orientation);
    EXPECT_THAT(source(), Not(HasSubstr("0 1 -1 0")));
}

TEST_F(PdfDrawing, ARectangleAddedAfterTextsAndLinesDoesNotHideThem)
{
    addText("0.0123", 100, 200, 6);
    addLine(100, 230, 200, 230);
    addRectangle(36, 195, 720, 40, 0xF0F0F0);
    const PdfImage image = PdfImage::render(saved());
    EXPECT_LT(image.darkest(100, 200, 140, 210), 60) << "the text";
    EXPECT_LT(image.darkest(100, 229, 200, 231), 60) << "the line";
    EXPECT_EQ(image.at(50, 200), (PdfImage::Pixel{0xF0, 0xF0, 0xF0})) << "the band";
}

TEST_F(PdfDrawing, RectanglesComeBeforeLinesAndLinesBeforeTexts)
{
    addText("text", 100, 200);
    addLine(1, 2, 3, 4);
    addRectangle(36, 195, 720, 20, 0);
    const std::string drawn = source();
    const auto rectangle = drawn.find("36 195 720 20 re\nB\n");
    const auto line = drawn.find("1 2 m\n3 4 l\nS\n");
    const auto text = drawn.find("(text) Tj\n");
    ASSERT_NE(text, std::string::npos);
    EXPECT_LT(rectangle, line);
    EXPECT_LT(line, text);
}

TEST_F(PdfDrawing, RectanglesLieOnEachOtherInTheOrderInWhichTheyWereAdded)
{
    addRectangle(100, 100, 50, 50, 0x0000FF);
    addRectangle(120, 100, 50, 50, 0xFF0000);
    const PdfImage image = PdfImage::render(saved());
    EXPECT_EQ(image.at(110, 125), (PdfImage::Pixel{255, 0, 0}));
    EXPECT_EQ(image.at(140, 125), (PdfImage::Pixel{0, 0, 255}));
}

TEST_F(PdfDrawing, ARectangleHasItsFillAndItsOutline)
{
    page.SetHeight(200);
    page.SetWidth(200);
    addRectangle(100, 100, 50, 50, 0x00FF00);
    page.Rectangles().begin()->SetLineColor(0x0000FF);
    const PdfImage image = PdfImage::render(saved(), 1, 8);
    EXPECT_EQ(image.at(125, 125), (PdfImage::Pixel{0, 255, 0}));
    EXPECT_EQ(image.at(100.05, 125), (PdfImage::Pixel{255, 0, 0})) << "half a point wide";
    EXPECT_EQ(image.at(100.5, 125), (PdfImage::Pixel{0, 255, 0}));
}

struct ColorCase {
    int bbggrr;
    const char* operands;
};

constexpr ColorCase kColorCases[] = {
    {0x000000, "0 0 0 rg\n0 0 0 RG\n"},
    {0xF0F0F0, "0.9412 0.9412 0.9412 rg\n0.9412 0.9412 0.9412 RG\n"},
    {0xB4B4B4, "0.7059 0.7059 0.7059 rg\n"},
    {0x0000FF, "1 0 0 rg\n1 0 0 RG\n"},
    {0x00FF00, "0 1 0 rg\n"},
    {0xFF0000, "0 0 1 rg\n"},
    {0x123456, "0.3373 0.2039 0.0706 rg\n"},
    {static_cast<int>(0xFF0000FF), "1 0 0 rg\n"},
};

TEST_F(PdfDrawing, ColoursAreReadFromBlueToRed)
{
    for (const auto& row : kColorCases) {
        page.Rectangles().Add().SetFillColor(row.bbggrr);
        std::prev(page.Rectangles().end())->SetLineColor(row.bbggrr);
    }
    const std::string drawn = source();
    for (const auto& row : kColorCases)
        EXPECT_THAT(drawn, HasSubstr(row.operands)) << std::hex << row.bbggrr;
}

TEST_F(PdfDrawing, OnlyStyle3IsDashed)
{
    addLine(36, 100, 756, 100, 0);
    addLine(36, 110, 756, 110, 3);
    addLine(36, 120, 756, 120, 2);
    const std::string drawn = source();
    EXPECT_THAT(drawn, HasSubstr("[] 0 d\n36 100 m\n756 100 l\nS\n"));
    EXPECT_THAT(drawn, HasSubstr("[1 2] 0 d\n36 110 m\n756 110 l\nS\n"));
    EXPECT_THAT(drawn, HasSubstr("[] 0 d\n36 120 m\n756 120 l\nS\n"));
}

TEST_F(PdfDrawing, EveryLineIsHalfAPointWideAndBlack)
{
    page.SetHeight(200);
    page.SetWidth(200);
    addRectangle(20, 20, 50, 50, 0x0000FF);
    addLine(36, 100, 156, 100);
    const std::string path = saved();
    const std::string drawn = test::pdfSource(path);
    EXPECT_THAT(drawn, HasSubstr("\n0.5 w\n"));
    EXPECT_EQ(drawn.find(" w\n"), drawn.rfind(" w\n")) << "set once for the page";
    const PdfImage image = PdfImage::render(path, 1, 8);
    EXPECT_EQ(image.at(100, 100), PdfImage::Pixel{});
    EXPECT_EQ(image.darkest(99, 100.5, 101, 101), 255);
}

TEST_F(PdfDrawing, NumbersAreWrittenInPlainDecimals)
{
    addLine(0.00001F, -0.00001F, 49.1F, -36.25F);
    addLine(1e10F, 123456.7F, 0, 100);
    const std::string drawn = source();
    EXPECT_THAT(drawn, HasSubstr("\n0 0 m\n49.1 -36.25 l\n"));
    EXPECT_THAT(drawn, HasSubstr("\n10000000000 123456.7031 m\n0 100 l\n"));
}

TEST_F(PdfDrawing, ATextReadsAsItWasSet)
{
    const std::string texts[] = {
        "Plain (with) \\ and ) (",
        "Caf\u00E9 \u20AC \u2013 \u2022 \u0178 \u00FF",
        "Za\u017C\u00F3\u0142\u0107 g\u0119\u015Bl\u0105 ja\u017A\u0144",
        "\u0395\u03BB\u03BB\u03AC\u03B4\u03B1 \u03A9 \u2126",
        "\u041A\u0438\u0440\u0438\u043B\u043B\u0438\u0446\u0430 \u0410 A",
        "ti\u1EBFng Vi\u1EC7t \u1EA5\u1EAD",
        "\u2264 \u2265 \u2192 \u0394 \u00B5g/m\u00B3",
        "\U0001F600 beyond",
    };
    float y = 500;
    for (const std::string& text : texts) {
        addText(text, 100, y);
        y -= 20;
    }
    std::string expected;
    for (const std::string& text : texts)
        expected += text + "\n";
    EXPECT_EQ(plainText(), expected + "\f");
}

TEST_F(PdfDrawing, ALineBreakAndATabReadAsBlanks)
{
    addText("one\r\ntwo\rthree\nfour\tfive", 100, 200);
    EXPECT_EQ(plainText(), "one two three four five\n\f");
}

TEST_F(PdfDrawing, ACharacterThatNoFaceHasReadsAsItsCode)
{
    addText("Unit \u5E02 1", 100, 200);
    addText("\u0141 \u5E02 \U0001D504", 100, 180);
    addText("Caf\xE9", 100, 160);
    EXPECT_EQ(plainText(), "Unit [U+5E02] 1\n\u0141 [U+5E02] [U+1D504]\nCaf[0xE9]\n\f");
}

TEST_F(PdfDrawing, PartsOfLettersAreDrawn)
{
    // With the accents of the second letter lost, both would look the same.
    addText("\u1EA1", 100, 100).SetSize(100);
    addText("\u1EAD", 300, 100).SetSize(100);
    const PdfImage image = PdfImage::render(saved(), 1, 1);
    EXPECT_EQ(image.darkest(100, 182, 170, 210), 255) << "a with a dot below";
    EXPECT_LT(image.darkest(300, 182, 370, 210), 100) << "the same with a circumflex";
}

TEST_F(PdfDrawing, StandardFacesAreNamedAndOthersEmbeddedInPart)
{
    for (const int font : {5, 6, 7})
        addText("standard", 100, 200, font);
    addText("\u0394", 100, 200, 5);
    addText("\u0394", 100, 200, 6);
    const auto fonts = test::pdfFonts(saved());
    ASSERT_EQ(fonts.size(), 5U);
    EXPECT_THAT(fonts[0], ::testing::ContainsRegex("^Helvetica +Type 1 +WinAnsi +no +no +no "));
    EXPECT_THAT(fonts[1],
                ::testing::ContainsRegex("^Helvetica-Bold +Type 1 +WinAnsi +no +no +no "));
    EXPECT_THAT(fonts[2],
                ::testing::ContainsRegex("^Helvetica-Oblique +Type 1 +WinAnsi +no +no +no "));
    EXPECT_THAT(fonts[3], ::testing::ContainsRegex(
                              "^AAAAAA\\+DejaVuSans +CID TrueType +Identity-H +yes +yes +yes "));
    EXPECT_THAT(fonts[4],
                ::testing::ContainsRegex(
                    "^AAAAAA\\+DejaVuSans-Bold +CID TrueType +Identity-H +yes +yes +yes "));
}

TEST_F(PdfDrawing, AnEmbeddedFaceIsSmall)
{
    addText("\u0395\u03BB\u03BB\u03AC\u03B4\u03B1", 100, 200);
    const auto size = std::filesystem::file_size(saved());
    EXPECT_LT(size, 20000U) << "the whole face takes 757076 bytes";
}

TEST_F(PdfDrawing, ManyDifferentCharactersKeepTheirText)
{
    std::string text;
    for (int character = 0x0410; character < 0x0410 + 250; ++character) {
        text += static_cast<char>(0xC0 + (character >> 6));
        text += static_cast<char>(0x80 + (character & 0x3F));
    }
    page.SetWidth(3000);
    addText(text, 0, 200);
    EXPECT_EQ(plainText(), text + "\n\f");
}

TEST_F(PdfDrawing, AnEmptyTextDrawsNothing)
{
    addText("", 100, 200);
    addText("", 100, 200).SetOrientation(2);
    EXPECT_THAT(source(), Not(HasSubstr("BT")));
    EXPECT_TRUE(drawnPage().words.empty());
}

} // namespace
} // namespace k7deval
