#include "histogram/HistogramPage.h"

#include <cstddef>

namespace k7deval::histogram
{

namespace
{

using namespace layout;

constexpr float kWidth = kRight - kLeft;
constexpr float kScaleGap = 2;
constexpr std::int32_t kBarColor = 0xB4B4B4;

ReportTextItem& addBodyText(ReportPage& page, const std::string& text)
{
    return addText(page, text, kBodyFont, kBodySize);
}

float barEdge(int bar)
{
    return static_cast<float>(static_cast<double>(bar) * kWidth / kBinCount + kLeft);
}

void drawMark(ReportPage& page, float x, float bottom, float top)
{
    ReportLine& mark = page.Lines().Add();
    mark.SetX1(x);
    mark.SetX2(x);
    mark.SetY1(top);
    mark.SetY2(bottom);
    mark.SetStyle(ReportLine::kDashed);
}

ReportRectangle& drawBar(ReportPage& page, int bar, float bottom, float height)
{
    ReportRectangle& box = page.Rectangles().Add();
    box.SetX(barEdge(bar - 1));
    box.SetWidth(barEdge(bar) - box.X());
    box.SetY(bottom);
    box.SetHeight(height);
    box.SetFillColor(kBarColor);
    box.SetLineColor(kBarColor);
    return box;
}

/// The hours of a bar, inside it where there is no room above.
void drawCount(ReportPage& page, const ReportRectangle& bar, std::int32_t hours, float chartTop)
{
    ReportTextItem& count = addBodyText(page, std::to_string(hours));
    count.SetOrientation(ReportTextItem::kReadsUpward);
    const float barTop = bar.Y() + bar.Height();
    const bool hasRoomAbove = barTop + count.Width() <= chartTop;
    count.SetY(hasRoomAbove ? barTop + 1 : barTop - count.Width() - 1);
    count.SetX(bar.X() + bar.Width() / 2 + count.Height() / 2);
}

} // namespace

float drawHead(ReportPage& page, const PageTexts& texts)
{
    drawRule(page, kFooterRule);
    drawFooterText(page, texts.heading + " " + texts.printed);
    float y = drawTitle(page, texts.facility, texts.heading);
    for (const std::string& row : {texts.period, texts.analyzed})
        y = centreBelow(addText(page, row, kHeadingFont, kHeadingSize), kCentre, y);
    return y;
}

float drawLevels(ReportPage& page, const LevelColumns& levels, float above)
{
    float y = above;
    float height = 0;
    const auto drawRow = [&](std::string LevelColumn::*text, float lineHeights) {
        bool isFirst = true;
        for (const LevelColumn& level : levels) {
            ReportTextItem& item = addBodyText(page, level.*text);
            height = item.Height();
            if (isFirst)
                y = y - lineHeights * height - kGap;
            centre(item, level.centre, y);
            isFirst = false;
        }
    };
    drawRow(&LevelColumn::percent, 2);
    drawRow(&LevelColumn::hours, 1);
    return y - height - kGap;
}

float drawScale(ReportPage& page, const InnerMarks& marks, const std::array<ScaleRow, 2>& rows,
                float y)
{
    for (const auto& [minimum, low, high, maximum] : rows) {
        alignLeft(addBodyText(page, minimum), kLeft, y);
        centre(addBodyText(page, low), marks.low, y);
        centre(addBodyText(page, high), marks.high, y);
        ReportTextItem& last = addBodyText(page, maximum);
        alignRight(last, kRight, y);
        y += last.Height() + kScaleGap;
    }
    return y;
}

void drawBarChart(ReportPage& page, const InnerMarks& marks, const HourBins& bins, float bottom,
                  float top)
{
    drawRule(page, bottom);
    for (const float x : {kLeft, marks.low, marks.high, kRight})
        drawMark(page, x, bottom, top);
    const std::int32_t peak = peakOf(bins);
    if (peak == 0)
        return;
    for (int bar = 1; bar <= kBinCount; ++bar) {
        const std::int32_t hours = bins[static_cast<std::size_t>(bar)];
        const double height = shareOfPeak(hours, peak) * (static_cast<double>(top) - bottom);
        const ReportRectangle& box = drawBar(page, bar, bottom, static_cast<float>(height));
        if (hours > 0)
            drawCount(page, box, hours, top);
    }
}

} // namespace k7deval::histogram
