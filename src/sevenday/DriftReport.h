#pragma once

#include "foundation/Property.h"
#include "report/ReportDocument.h"
#include "screen/Services.h"
#include "sevenday/DriftTest.h"
#include "sevenday/ctrl7DaySetUp.h"

#include <memory>
#include <optional>
#include <string>

namespace k7deval
{

/// The report of a drift test: landscape pages with one row per displayed calibration, and the
/// outcome. Positions are in points from the bottom left of a page.
///
/// Each procedure has its own handler; a row that fails leaves a gap.
class DriftReport
{
public:
    /// The test and the page outlive the report.
    DriftReport(const DriftTest& test, const ctrl7DaySetUp& setUp,
                const screen::Surroundings& surroundings)
        : test_(&test), setUp_(&setUp), surroundings_(surroundings)
    {
    }

    /// Builds and saves the report. Returns the failure that ended it, after its line was posted;
    /// no file is left then.
    std::optional<Error> WriteDriftReport(const std::string& fileName);

    /// The report with everything in its place, ready to be saved. Null when there are runs but no
    /// days to show them in. Raises what keeps it from being built, such as error 9 for days
    /// that were never sized.
    [[nodiscard]] std::unique_ptr<ReportDocument> build();

    std::string strFacilityName; ///< The title line of each page.
    std::string strPrecision;    ///< The number format of all figures but the span.

    /// The fields above, as the last report left them.
    [[nodiscard]] PropertyList Properties() const;

private:
    /// Where the next row goes, and the space that the summary takes under the last one.
    struct Position {
        ReportPage* page = nullptr;
        float y = 0;
        float reserve = 0;
    };
    [[nodiscard]] std::optional<std::int32_t> firstDayWithCals() const;
    Position newPage(ReportDocument& document);
    void drawRows(ReportDocument& document, Position& at);
    void drawRowsBehind(ReportDocument& document, std::int32_t firstDay, Position& at);
    void drawRow(const cls7DayAnalyzerCal& cal, Position& at);
    void breakPage(ReportDocument& document, Position& at);
    static void drawPageNumber(ReportPage& page, std::int32_t number);

    float DrawPageHeader(ReportPage& page);
    float DrawCalRow(ReportPage& page, const cls7DayAnalyzerCal& cal, float y, bool shaded);
    float DrawSummaryText(ReportPage& page, float y);

    void drawFigures(ReportPage& page, const clsStrippedCal& injection, std::size_t firstColumn,
                     float y);

    const DriftTest* test_;
    const ctrl7DaySetUp* setUp_;
    screen::Surroundings surroundings_;
};

} // namespace k7deval
