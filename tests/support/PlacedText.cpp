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

} // namespace

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
