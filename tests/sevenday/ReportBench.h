#pragma once

#include "sevenday/DriftDays.h"
#include "sevenday/DriftReport.h"
#include "sevenday/SetUpBench.h"

#include <memory>
#include <string>
#include <vector>

namespace k7deval::test
{

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

/// Fails with the listing of the page unless the text stands there, to a fiftieth of a point.
void expectText(const ReportPage& page, const PlacedText& expected);

/// The texts whose lower edge is at that y, from left to right.
std::vector<std::string> textsAt(const ReportPage& page, double y);

/// How many texts a page has.
std::size_t countTexts(const ReportPage& page);

/// A drift test made by hand and its report, on the setup page of a NOx analyzer with one decimal,
/// on 10 March 2024 at 14:30. The test has no runs and no summary.
struct ReportBench : SetUpBench {
    explicit ReportBench(const AnalyzerFacts& facts = {}, const std::string& region = "en-US");

    /// Makes the days those to display, and their runs those of the test.
    ReportBench& show(const std::vector<CalDay>& days);

    /// The report as it would be saved, which must not fail.
    ReportDocument& build();
    /// A page of it, from 0.
    ReportPage& sheet(std::size_t index);
    [[nodiscard]] std::size_t countPages() const
    {
        return static_cast<std::size_t>(document->Pages().Count());
    }

    DriftTest test{regional};
    DriftReport report{test, page, {services, clock, regional}};
    std::unique_ptr<ReportDocument> document;
};

/// Where the first row hangs: the rule under the head of a page. Helvetica is 0.925 of its size
/// high (ascender 718, descender -207), so head and rows come down from 563.05 by the title's 11.1
/// + 2, and five or more times by 9.25 + 2.
inline constexpr double kHeadRule = 563.05 - 13.1 - 3 * 11.25 - 2;
inline constexpr double kRowHeight = 11.25;

/// The lower edge of a page's n-th row, from 1.
inline double rowY(int n)
{
    return kHeadRule - n * kRowHeight;
}

/// So many days from 1 January 2024, each with one used run at 08:15.
std::vector<CalDay> daysOfOneRun(int count);

} // namespace k7deval::test
