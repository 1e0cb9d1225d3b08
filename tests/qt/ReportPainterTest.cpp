#include "qt/ReportPainter.h"
#include "load/LoadRig.h"
#include "report/PageLayout.h"
#include "support/PdfImage.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

/// What is drawn on a screen or a printer, beside what a PDF reader draws of the same document.
namespace k7deval::qt::test
{

namespace
{

using k7deval::test::LoadRig;
using k7deval::test::PdfImage;
using k7deval::test::TemporaryFolder;

constexpr int kScale = 4;

QImage painted(const ReportPage& page)
{
    QImage image(QSizeF(page.Width() * kScale, page.Height() * kScale).toSize(),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(kScale, kScale);
    drawPage(painter, page);
    return image;
}

/// The mean colour of a square of the page, so that the edges of letters may differ.
using Color = std::array<double, 3>;
constexpr int kSquare = 4;

template <class ColorAt> Color meanOf(ColorAt colorAt)
{
    Color sum{};
    constexpr int kPixels = kSquare * kScale;
    for (int pixel = 0; pixel < kPixels * kPixels; ++pixel) {
        const Color color = colorAt(pixel % kPixels, pixel / kPixels);
        for (std::size_t part = 0; part < sum.size(); ++part)
            sum.at(part) += color.at(part) / (kPixels * kPixels);
    }
    return sum;
}

/// A square of the page whose top left corner stands at a place in points, from the top left.
Color meanOf(const QImage& image, int left, int top)
{
    return meanOf([&](int x, int y) -> Color {
        const QRgb pixel = image.pixel(left * kScale + x, top * kScale + y);
        return {double(qRed(pixel)), double(qGreen(pixel)), double(qBlue(pixel))};
    });
}

Color meanOf(const PdfImage& image, int left, int top, double pageHeight)
{
    return meanOf([&](int x, int y) -> Color {
        const auto pixel =
            image.at(left + (x + 0.5) / kScale, pageHeight - top - (y + 0.5) / kScale);
        return {double(pixel.red), double(pixel.green), double(pixel.blue)};
    });
}

double distance(const Color& one, const Color& other)
{
    double most = 0;
    for (std::size_t part = 0; part < one.size(); ++part)
        most = std::max(most, std::abs(one.at(part) - other.at(part)));
    return most;
}

/// The largest difference of any square of the page, from 0 to 255, and where it is.
struct Difference {
    double most = 0;
    int left = 0;
    int top = 0;
};

Difference difference(const ReportDocument& document)
{
    const TemporaryFolder folder;
    document.SaveToFile(folder.file("page.pdf"));
    const PdfImage read = PdfImage::render(folder.file("page.pdf"), 1, kScale);
    const ReportPage& page = *document.Pages().begin();
    const auto width = static_cast<int>(page.Width());
    const auto height = static_cast<int>(page.Height());
    const QImage image = painted(page);
    Difference found;
    for (int top = 0; top + kSquare <= height; top += kSquare) {
        for (int left = 0; left + kSquare <= width; left += kSquare) {
            const double most = distance(meanOf(image, left, top), meanOf(read, left, top, height));
            if (most > found.most)
                found = {most, left, top};
        }
    }
    return found;
}

/// All that a page can have, on a small page.
struct SamplePage {
    SamplePage()
    {
        page.SetWidth(300);
        page.SetHeight(200);
        rectangle(20, 150, 120, 30, 0x00D0FF, 0xFF0000);
        rectangle(160, 150, 120, 30, 0xC0C0C0, 0xC0C0C0);
        line(20, 140, 280, 140, 0);
        line(20, 130, 280, 130, 3);
        line(150, 20, 150, 120, 3);
        line(160, 20, 280, 120, 0);
        text("Facility, \xC2\xB5g/m\xC2\xB3 && (upscale)", 6, 14, 24, 158);
        text("Off-Line 12.5 %", 5, 10, 170, 158);
        text("AVAWATo. T. y, kerned if at all", 5, 9, 20, 100);
        text("Page 1", 7, 8, 20, 20);
        text("Kraftwerk \xC5\x81\xC3\xB3"
             "d\xC5\xBA",
             5, 12, 20, 60);
        text("reads upward", 5, 10, 290, 30).SetOrientation(2);
    }

    void rectangle(float x, float y, float width, float height, int fill, int edge)
    {
        ReportRectangle& box = page.Rectangles().Add();
        box.SetX(x);
        box.SetY(y);
        box.SetWidth(width);
        box.SetHeight(height);
        box.SetFillColor(fill);
        box.SetLineColor(edge);
    }
    void line(float x1, float y1, float x2, float y2, int style)
    {
        ReportLine& drawn = page.Lines().Add();
        drawn.SetX1(x1);
        drawn.SetY1(y1);
        drawn.SetX2(x2);
        drawn.SetY2(y2);
        drawn.SetStyle(style);
    }
    ReportTextItem& text(const std::string& words, int font, float size, float x, float y)
    {
        ReportTextItem& item = layout::addText(page, words, font, size);
        layout::alignLeft(item, x, y);
        return item;
    }

    ReportDocument document;
    ReportPage& page = document.Pages().Add();
};

/// Letters of the faces differ by less, a letter in place of none by more.
constexpr double kTolerance = 30;

void expectAlike(const ReportDocument& document)
{
    const Difference found = difference(document);
    EXPECT_LT(found.most, kTolerance)
        << "at " << found.left << ", " << found.top << " from the top";
}

/// How much of a page is drawn upon in a row of it, in square points.
double inkAt(const QImage& image, double fromTop)
{
    double ink = 0;
    for (int y = static_cast<int>((fromTop - 1) * kScale); y < (fromTop + 1) * kScale; ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += (255 - qGray(image.pixel(x, y))) / 255.0 / (kScale * kScale);
    }
    return ink;
}

} // namespace

TEST(ReportPainter, DrawsAllThatAPageCanHave)
{
    const SamplePage sample;
    expectAlike(sample.document);
}

TEST(ReportPainter, DrawsTheReportOfALoad)
{
    LoadRig rig;
    rig.range("10", "100").hours({5, 10, 15, 16, 30, 31, 60, 61, 99, 100, 110}).calculate();
    expectAlike(*rig.tool.buildReport());
}

TEST(ReportPainter, ADashedLineIsDrawnForAThirdOfItsLength)
{
    const SamplePage sample;
    const QImage image = painted(sample.page);
    EXPECT_NEAR(inkAt(image, 60), 130, 2) << "half a point wide";
    EXPECT_NEAR(inkAt(image, 70), 130 / 3.0, 2);
}

TEST(ReportPainter, TheTextOfAFooterIsClearOfTheRuleItHangsFrom)
{
    ReportDocument document;
    ReportPage& page = layout::addPage(document);
    layout::drawRule(page, layout::kFooterRule);
    layout::drawFooterText(page, "7-Day Drift Summary (EPA)");
    const QImage image = painted(page);
    const auto isBlank = [&](int row) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, row)) != 255)
                return false;
        }
        return true;
    };
    const int rule = static_cast<int>((page.Height() - layout::kFooterRule) * kScale);
    EXPECT_FALSE(isBlank(rule));
    EXPECT_TRUE(isBlank(rule + kScale / 2 + 1)) << "half a point below the rule";
    EXPECT_TRUE(isBlank(rule + kScale)) << "a point below it";
    EXPECT_FALSE(isBlank(rule + 4 * kScale)) << "the letters";
}

TEST(ReportPainter, ContentIsAllThatStandsOnAPage)
{
    SamplePage sample;
    const QRectF content = contentOf(sample.page);
    EXPECT_NEAR(content.left(), 19.75, 0.01);
    EXPECT_NEAR(content.top(), 19.75, 0.01);
    EXPECT_NEAR(content.bottom(), 180, 0.3) << "a footer and the end of a line";
    EXPECT_NEAR(content.right(), 290, 0.01) << "the lower edge of the text that reads upward";
    EXPECT_TRUE(contentOf(ReportDocument().Pages().Add()).isEmpty());
}

} // namespace k7deval::qt::test
