#include "report/PageLayout.h"

namespace k7deval::layout
{

namespace
{

constexpr float kPageHeight = 612;
constexpr float kPageWidth = 792;

} // namespace

ReportPage& addPage(ReportDocument& document)
{
    ReportPage& page = document.Pages().Add();
    page.SetHeight(kPageHeight);
    page.SetWidth(kPageWidth);
    return page;
}

ReportTextItem& addText(ReportPage& page, const std::string& text, int font, float size)
{
    ReportTextItem& item = page.TextItems().Add("");
    item.SetText(text);
    item.SetFont(font);
    item.SetSize(size);
    return item;
}

void centre(ReportTextItem& item, float x, float y)
{
    alignLeft(item, x - item.Width() / 2, y);
}

float centreBelow(ReportTextItem& item, float x, float above)
{
    centre(item, x, above - item.Height() - kGap);
    return item.Y();
}

void alignLeft(ReportTextItem& item, float x, float y)
{
    item.SetX(x);
    item.SetY(y);
}

void alignRight(ReportTextItem& item, float x, float y)
{
    alignLeft(item, x - item.Width(), y);
}

void drawRule(ReportPage& page, float y)
{
    ReportLine& rule = page.Lines().Add();
    rule.SetX1(kLeft);
    rule.SetX2(kRight);
    rule.SetY1(y);
    rule.SetY2(y);
}

void drawFooterText(ReportPage& page, const std::string& text)
{
    ReportTextItem& item = addText(page, text, kFooterFont, kFooterSize);
    alignLeft(item, kLeft, kFooterRule - item.Height());
}

float drawTitle(ReportPage& page, const std::string& facility, const std::string& heading)
{
    centre(addText(page, facility, kHeadingFont, kFacilitySize), kCentre, kTop);
    return centreBelow(addText(page, heading, kHeadingFont, kHeadingSize), kCentre, kTop);
}

} // namespace k7deval::layout
