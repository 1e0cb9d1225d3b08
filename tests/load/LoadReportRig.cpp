#include "load/LoadReportRig.h"

#include <algorithm>

namespace k7deval::test
{

double widthOf(const std::string& text, int font, float size)
{
    ReportDocument document;
    ReportTextItem& item = document.Pages().Add().TextItems().Add(text);
    item.SetFont(font);
    item.SetSize(size);
    return item.Width();
}

PlacedText centred(const std::string& text, double x, double y, int font, float size)
{
    return {text, font, size, x - widthOf(text, font, size) / 2, y};
}

PlacedText rightAligned(const std::string& text, double x, double y)
{
    return {text, 5, 10, x - widthOf(text), y};
}

std::vector<ReportRectangle> rectanglesOf(const ReportPage& page)
{
    std::vector<ReportRectangle> rectangles(page.Rectangles().begin(), page.Rectangles().end());
    std::sort(rectangles.begin(), rectangles.end(),
              [](const auto& a, const auto& b) { return a.X() < b.X(); });
    return rectangles;
}

std::vector<ReportTextItem> upwardTexts(const ReportPage& page)
{
    std::vector<ReportTextItem> texts;
    for (const ReportTextItem& item : page.TextItems()) {
        if (item.Orientation() == 2)
            texts.push_back(item);
    }
    std::sort(texts.begin(), texts.end(),
              [](const auto& a, const auto& b) { return a.X() < b.X(); });
    return texts;
}

} // namespace k7deval::test
