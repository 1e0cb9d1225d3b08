#include "foundation/DateText.h"
#include "foundation/NumberText.h"
#include "foundation/UtilityFunctions.h"
#include "report/PageLayout.h"
#include "sevenday/DriftReport.h"
#include "sevenday/NumberedLine.h"

#include <array>
#include <cmath>

/// What stands on a page of the report: head and footer, a row, the outcome.
namespace k7deval
{

namespace
{

using namespace layout;

constexpr std::uint32_t kBandColor = 0xF0F0F0;
constexpr const char* kSummaryLineBreak = "\r\n";

struct Column {
    float centre;
    const char* upper;
    const char* lower;
};

constexpr std::array<Column, 11> kColumns{{
    {86, "", "Time"},
    {166, "Instrument", "Span"},
    {226, "Zero", "Reference"},
    {286, "Zero", "Measured"},
    {346, "Zero", "Drift"},
    {406, "Zero", "Drift Limit"},
    {466, "Span", "Reference"},
    {526, "Span", "Measured"},
    {586, "Span", "Drift"},
    {646, "Span", "Drift Limit"},
    {716, "", "Status"},
}};
constexpr std::size_t kTimeColumn = 0;
constexpr std::size_t kSpanColumn = 1;
constexpr std::size_t kZeroColumns = 2;
constexpr std::size_t kUpscaleColumns = 6;
constexpr std::size_t kStatusColumn = 10;

/// One line of the column heads: the first head of it sets the y for the others.
float drawHeadLine(ReportPage& page, const char* Column::*head, float above)
{
    std::optional<float> y;
    for (const Column& column : kColumns) {
        if (*(column.*head) == '\0')
            continue;
        ReportTextItem& item = addText(page, column.*head, kBodyFont, kBodySize);
        if (y)
            centre(item, column.centre, *y);
        else
            y = centreBelow(item, column.centre, above);
    }
    return *y;
}

void drawBand(ReportPage& page, float above, float y)
{
    ReportRectangle& band = page.Rectangles().Add();
    band.SetX(kLeft);
    band.SetWidth(kRight - kLeft);
    band.SetY(y - 1);
    band.SetHeight(above - 1 - band.Y() - 3);
    band.SetFillColor(kBandColor);
    band.SetLineColor(kBandColor);
}

} // namespace

void DriftReport::drawPageNumber(ReportPage& page, std::int32_t number)
{
    ReportTextItem& item =
        addText(page, "Page " + std::to_string(number), kFooterFont, kFooterSize);
    alignRight(item, kRight, kFooterRule - item.Height());
}

float DriftReport::DrawPageHeader(ReportPage& page)
{
    float y = kTop;
    runPosting(test_->irm, NumberedLine::DrawPageHeader, [&] {
        drawRule(page, kFooterRule);
        const Date now = CurrentDateTime(surroundings_.clock);
        drawFooterText(page,
                       "7-Day Drift Summary " + FormatTimeStamp(now, 10, surroundings_.regional));
        y = drawTitle(page, strFacilityName, "7-Day Drift Test");
        y = centreBelow(addText(page, setUp_->AnalyzerInfoText(), kBodyFont, kBodySize), kCentre,
                        y);
        y = drawHeadLine(page, &Column::upper, y);
        y = drawHeadLine(page, &Column::lower, y) - kGap;
        drawRule(page, y);
    });
    return y;
}

float DriftReport::DrawCalRow(ReportPage& page, const cls7DayAnalyzerCal& cal, float y, bool shaded)
{
    float row = y;
    runPosting(test_->irm, NumberedLine::DrawCalRow, [&] {
        const RegionalSettings& regional = surroundings_.regional;
        const auto draw = [&](std::size_t column, const std::string& text) {
            centre(addText(page, text, kBodyFont, kBodySize), kColumns[column].centre, row);
        };
        const std::string time =
            ShortDate(cal.CalTime, regional) + " " + ShortTime(cal.CalTime, regional);
        row =
            centreBelow(addText(page, time, kBodyFont, kBodySize), kColumns[kTimeColumn].centre, y);
        draw(kSpanColumn, GeneralNumber(cal.InstrumentSpan, regional));
        if (cal.ZeroCal)
            drawFigures(page, *cal.ZeroCal, kZeroColumns, row);
        if (cal.SpanCal)
            drawFigures(page, *cal.SpanCal, kUpscaleColumns, row);
        draw(kStatusColumn, cal.IsOnline ? "On-Line" : "Off-Line");
        if (shaded)
            drawBand(page, y, row);
    });
    return row;
}

void DriftReport::drawFigures(ReportPage& page, const clsStrippedCal& injection,
                              std::size_t firstColumn, float y)
{
    const auto draw = [&](std::size_t column, float value, int font) {
        centre(addText(page, FormatNumber(value, strPrecision, surroundings_.regional), font,
                       kBodySize),
               kColumns[firstColumn + column].centre, y);
    };
    draw(0, injection.ReferenceValue, kBodyFont);
    draw(1, injection.MeasuredValue, kBodyFont);
    draw(2, injection.Drift(), injection.isWithinLimit() ? kBodyFont : kHeadingFont);
    draw(3, injection.DriftLimit, kBodyFont);
}

float DriftReport::DrawSummaryText(ReportPage& page, float y)
{
    runPosting(test_->irm, NumberedLine::DrawSummaryText, [&] {
        const std::string& text = test_->strSummary;
        const auto lineBreak = text.find(kSummaryLineBreak);
        ReportTextItem& first = addText(page, text.substr(0, lineBreak), kBodyFont, kBodySize);
        alignLeft(first, kLeft, y - first.Height() - kGap);
        y = first.Y();
        if (lineBreak == std::string::npos)
            return;
        // Only the first line break splits the text; an empty line parts the two.
        ReportTextItem& second = addText(page, text.substr(lineBreak + 2), kBodyFont, kBodySize);
        alignLeft(second, kLeft, y - 2 * (second.Height() + kGap));
        y = second.Y();
    });
    return y;
}

} // namespace k7deval
