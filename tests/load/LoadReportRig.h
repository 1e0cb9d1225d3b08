#pragma once

#include "load/LoadRig.h"
#include "support/PlacedText.h"

#include <memory>
#include <string>
#include <vector>

namespace k7deval::test
{

/// The rows of the page, from the top down.
inline constexpr double kFacilityY = 563.05;
inline constexpr double kTitleY = kFacilityY - kHeadingRow;
inline constexpr double kPeriodY = kTitleY - kHeadingRow;
inline constexpr double kHeaderY = kPeriodY - kHeadingRow;
inline constexpr double kPercentsY = kHeaderY - 2 * kBodyHeight - 2;
inline constexpr double kHoursY = kPercentsY - kBodyRow;
inline constexpr double kChartTop = kHoursY - kBodyRow;
/// And from the bottom up.
inline constexpr double kBeyondY = 49.2 + kBodyHeight;
inline constexpr double kNamesY = kBeyondY + kBodyHeight + 5;
inline constexpr double kValuesY = kNamesY + kBodyRow;
inline constexpr double kChartBottom = kValuesY + kBodyRow;

/// The width of a text on paper in points.
double widthOf(const std::string& text, int font = 5, float size = 10);

/// A text whose middle, or whose right end, stands at an x.
PlacedText centred(const std::string& text, double x, double y, int font = 5, float size = 10);
PlacedText rightAligned(const std::string& text, double x, double y);

/// GT1 of the facility "Bethpage" on 15 May 2024 at 14:30, with a minimum of 10 and a capacity of
/// 110.
struct ReportRig : LoadRig {
    explicit ReportRig(const std::string& region = "en-US")
        : LoadRig(siteOfLoads(), kAfternoonInMay, region)
    {
        site->facilityName = "Bethpage";
        range("10", "110");
    }
    /// The page of the report as it would be saved now.
    const ReportPage& page()
    {
        document = tool.buildReport();
        return *document->Pages().begin();
    }
    /// So many hours in a bin.
    ReportRig& inBin(int bin, std::size_t count)
    {
        addHours(count, 10 + bin * 5 - 2.5);
        return *this;
    }
    std::unique_ptr<ReportDocument> document;
};

/// The rectangles of a page, by their left edges.
std::vector<ReportRectangle> rectanglesOf(const ReportPage& page);
/// The texts of a page that read upward, by their x.
std::vector<ReportTextItem> upwardTexts(const ReportPage& page);

} // namespace k7deval::test
