#pragma once

#include "sevenday/DriftDays.h"
#include "sevenday/DriftReport.h"
#include "sevenday/SetUpRig.h"
#include "support/PlacedText.h"

#include <memory>
#include <string>
#include <vector>

namespace k7deval::test
{

/// A drift test made by hand and its report, on the setup page of a NOx analyzer with one decimal,
/// on 10 March 2024 at 14:30. The test has no runs and no summary.
struct ReportRig : SetUpRig {
    explicit ReportRig(const AnalyzerFacts& facts = {}, const std::string& region = "en-US");

    /// Makes the days those to display, and their runs those of the test.
    ReportRig& show(const std::vector<CalDay>& days);

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

/// Where the first row hangs: the rule under the head of a page, which comes down from 563.05 by
/// the title and three rows of body text.
inline constexpr double kHeadRule = 563.05 - kHeadingRow - 3 * kBodyRow - 2;

/// The lower edge of a page's n-th row, from 1.
inline double rowY(int n)
{
    return kHeadRule - n * kBodyRow;
}

/// So many days from 1 January 2024, each with one used run at 08:15.
std::vector<CalDay> daysOfOneRun(int count);

} // namespace k7deval::test
