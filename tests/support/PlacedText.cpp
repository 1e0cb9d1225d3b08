#include "support/PlacedText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

namespace k7deval::test
{

namespace
{

constexpr double kTolerance = 0.02;

bool isNear(double a, double b)
{
    return std::abs(a - b) <= kTolerance;
}

bool stands(const ReportTextItem& item, const PlacedText& expected)
{
    return item.Text() == expected.text && item.Font() == expected.font &&
           isNear(item.Size(), expected.size) && isNear(item.X(), expected.x) &&
           isNear(item.Y(), expected.y);
}

/// A length or a place with two decimals, without those that are zero.
std::string lengthOf(double value)
{
    std::ostringstream text;
    const double hundredths = std::round(value * 100);
    text << (hundredths == 0 ? 0 : hundredths / 100);
    return text.str();
}

std::string placeOf(double x, double y)
{
    return lengthOf(x) + ", " + lengthOf(y);
}

std::string colorOf(std::int32_t color)
{
    std::ostringstream text;
    text << std::hex << std::uppercase << color;
    return text.str();
}

std::string described(const ReportRectangle& box)
{
    return "rectangle at " + placeOf(box.X(), box.Y()) + ", " + lengthOf(box.Width()) + " wide, " +
           lengthOf(box.Height()) + " high, filled " + colorOf(box.FillColor()) + ", drawn " +
           colorOf(box.LineColor());
}

std::string described(const ReportLine& line)
{
    return std::string(line.isDashed() ? "dashed line" : "line") + " from " +
           placeOf(line.X1(), line.Y1()) + " to " + placeOf(line.X2(), line.Y2());
}

std::string described(const ReportTextItem& item)
{
    return "text at " + placeOf(item.X(), item.Y()) + ", font " + std::to_string(item.Font()) +
           ", size " + lengthOf(item.Size()) + (item.readsUpward() ? ", upward" : "") + ": \"" +
           item.Text() + '"';
}

std::string itemsOf(const ReportPage& page)
{
    std::ostringstream text;
    for (const ReportRectangle& box : page.Rectangles())
        text << "  " << described(box) << '\n';
    for (const ReportLine& line : page.Lines())
        text << "  " << described(line) << '\n';
    for (const ReportTextItem& item : page.TextItems())
        text << "  " << described(item) << '\n';
    return text.str();
}

} // namespace

std::string itemsOf(const ReportDocument& document)
{
    std::ostringstream text;
    text << "title \"" << document.Title() << "\", subject \"" << document.Subject()
         << "\", author \"" << document.Author() << "\", creator \"" << document.Creator()
         << "\"\n";
    int number = 0;
    for (const ReportPage& page : document.Pages()) {
        text << "page " << ++number << ", " << lengthOf(page.Width()) << " by "
             << lengthOf(page.Height()) << '\n'
             << itemsOf(page);
    }
    return text.str();
}

std::string listingOf(const ReportPage& page)
{
    std::ostringstream listing;
    for (const ReportTextItem& item : page.TextItems())
        listing << '"' << item.Text() << "\" (" << item.Font() << ", " << item.Size() << ") at "
                << item.X() << ", " << item.Y() << '\n';
    return listing.str();
}

void expectText(const ReportPage& page, const PlacedText& expected)
{
    const auto& items = page.TextItems();
    EXPECT_TRUE(std::any_of(items.begin(), items.end(),
                            [&](const auto& item) { return stands(item, expected); }))
        << '"' << expected.text << "\" (" << expected.font << ", " << expected.size << ") at "
        << expected.x << ", " << expected.y << " is not on the page:\n"
        << listingOf(page);
}

std::vector<std::string> textsAt(const ReportPage& page, double y)
{
    std::vector<const ReportTextItem*> row;
    for (const ReportTextItem& item : page.TextItems()) {
        if (isNear(item.Y(), y))
            row.push_back(&item);
    }
    std::sort(row.begin(), row.end(), [](auto* a, auto* b) { return a->X() < b->X(); });
    std::vector<std::string> texts;
    texts.reserve(row.size());
    for (const ReportTextItem* item : row)
        texts.push_back(item->Text());
    return texts;
}

std::size_t countTexts(const ReportPage& page)
{
    return static_cast<std::size_t>(page.TextItems().Count());
}

} // namespace k7deval::test
