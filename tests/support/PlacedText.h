#pragma once

#include "report/ReportDocument.h"

#include <cstddef>
#include <string>
#include <vector>

/// What stands on the pages of a report.
namespace k7deval::test
{

/// The heights of texts in the standard faces: 1.117 of their size, 0.905 above the base line and
/// 0.212 below it.
inline constexpr double kBodyHeight = 11.17;     // At 10 points.
inline constexpr double kHeadingHeight = 13.404; // At 12 points.
inline constexpr double kFooterHeight = 8.936;   // At 8 points.
/// From one row of body text or headings to the next, with a gap of 2 between them.
inline constexpr double kBodyRow = kBodyHeight + 2;
inline constexpr double kHeadingRow = kHeadingHeight + 2;
/// A footer hangs from its rule at 49.1.
inline constexpr double kFooterY = 49.1 - kFooterHeight;

/// A text as it stands on a page: font code, size, and its lower left corner in points.
struct PlacedText {
    std::string text;
    int font = 5;
    float size = 10;
    double x = 0;
    double y = 0;
};

/// The texts that stand on a page, one a line as "text (font, size) at x, y".
std::string listingOf(const ReportPage& page);

/// All that is placed on the pages of a report, one item a line in the order in which it was added,
/// rectangles first as they lie undermost. Numbers have two decimals.
std::string itemsOf(const ReportDocument& document);

/// Fails with the listing of the page unless the text stands there, to a fiftieth of a point.
void expectText(const ReportPage& page, const PlacedText& expected);

/// The texts whose lower edge is at that y, from left to right.
std::vector<std::string> textsAt(const ReportPage& page, double y);

/// How many texts a page has.
std::size_t countTexts(const ReportPage& page);

} // namespace k7deval::test
