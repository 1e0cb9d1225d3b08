#include "sevenday/DriftReport.h"

#include "foundation/DataInterface.h"
#include "foundation/PropertyOf.h"
#include "report/PageLayout.h"
#include "sevenday/NumberedLine.h"

namespace k7deval
{

namespace
{

/// Rows end above this y, on top of what the summary needs.
constexpr float kLowestRow = 48;
/// The summary is given the height of so many rows.
constexpr float kSummaryRows = 4;

} // namespace

std::optional<Error> DriftReport::WriteDriftReport(const std::string& fileName)
{
    return runPosting(test_->irm, NumberedLine::WriteDriftReport, [&] {
        if (const auto document = build())
            document->SaveToFile(fileName);
    });
}

PropertyList DriftReport::Properties() const
{
    return {
        property("strFacilityName", strFacilityName, "The title line of the last report."),
        property("strPrecision", strPrecision,
                 "The number format of the last report's figures, such as \"0.00\"."),
    };
}

std::unique_ptr<ReportDocument> DriftReport::build()
{
    strFacilityName = facilityName(present(test_->DIServer));
    strPrecision = setUp_->AnalyzedPrecision();
    auto document = std::make_unique<ReportDocument>();
    document->SetAuthor("Kelvo Data Evaluation");
    document->SetCreator("Kelvo Data Evaluation");
    document->SetSubject("7-Day Drift Testing");
    document->SetTitle("7-Day Drift Testing");

    Position at = newPage(*document);
    if (test_->hasRunsToShow(setUp_->ShowOnlyDriftCals())) {
        if (SafeUBound(test_->objDaysToDisplay) < SafeLBound(test_->objDaysToDisplay))
            return nullptr;
        drawRows(*document, at);
    }
    if (!test_->strSummary.empty())
        DrawSummaryText(*at.page, at.y - at.reserve / kSummaryRows);
    return document;
}

DriftReport::Position DriftReport::newPage(ReportDocument& document)
{
    ReportPage& page = layout::addPage(document);
    return {&page, DrawPageHeader(page), 0};
}

std::optional<std::int32_t> DriftReport::firstDayWithCals() const
{
    const DayArray& days = test_->objDaysToDisplay;
    for (std::int32_t i = SafeLBound(days); i <= SafeUBound(days); ++i) {
        if (SafeUBound(days[i]->DisplayedCals) >= 0)
            return i;
    }
    return std::nullopt;
}

void DriftReport::drawRows(ReportDocument& document, Position& at)
{
    at.reserve = at.y;
    const auto firstDay = firstDayWithCals();
    if (!firstDay)
        return;
    // Of the first day only its first calibration is reported.
    const float head = at.y;
    drawRow(*test_->objDaysToDisplay[*firstDay]->DisplayedCals[0], at);
    at.reserve = test_->strSummary.empty() ? 0 : kSummaryRows * (head - at.y);
    drawRowsBehind(document, *firstDay, at);
}

void DriftReport::drawRowsBehind(ReportDocument& document, std::int32_t firstDay, Position& at)
{
    const DayArray& days = test_->objDaysToDisplay;
    for (std::int32_t i = firstDay + 1; i <= SafeUBound(days); ++i) {
        for (const auto& cal : days[i]->DisplayedCals.items()) {
            drawRow(*cal, at);
            // The row that crosses the limit stays; the break comes behind it.
            if (at.y - at.reserve < kLowestRow)
                breakPage(document, at);
        }
    }
}

void DriftReport::drawRow(const cls7DayAnalyzerCal& cal, Position& at)
{
    at.y = DrawCalRow(*at.page, cal, at.y, !cal.IsUsedIn7Day);
}

void DriftReport::breakPage(ReportDocument& document, Position& at)
{
    // A report of one page bears no page number.
    if (document.Pages().Count() == 1)
        drawPageNumber(*at.page, 1);
    const float reserve = at.reserve;
    at = newPage(document);
    at.reserve = reserve;
    drawPageNumber(*at.page, document.Pages().Count());
}

} // namespace k7deval
