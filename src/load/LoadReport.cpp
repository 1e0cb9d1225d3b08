#include "histogram/HistogramPage.h"
#include "load/ctrlMaxMW.h"

#include <array>
#include <utility>

/// The report of the load tool: what the labels show at the moment, over the bins of the last
/// evaluation.
namespace k7deval
{

namespace
{

using namespace layout;

constexpr std::array<float, 3> kLevelCentres{144, 360, 612};
constexpr histogram::InnerMarks kMarks{252, 468};
constexpr float kLowestRow = 49.2F;
constexpr float kGapAboveCounts = 5;

} // namespace

std::unique_ptr<ReportDocument> ctrlMaxMW::buildReport() const
{
    // The title is known under this spelling.
    auto [document, page, top] = beginReport({.author = "Kelvo Load Evaluation",
                                              .subject = "Load Evaluation",
                                              .title = "Load Evalution",
                                              .heading = "Load Evaluation Summary",
                                              .period = periodLine()},
                                             kLevelCentres, evaluation_);
    ReportTextItem& below = addText(*page, lblBelow.Caption(), kBodyFont, kBodySize);
    const float y = kLowestRow + below.Height();
    alignLeft(below, kLeft, y);
    ReportTextItem& above = addText(*page, lblAbove.Caption(), kBodyFont, kBodySize);
    alignRight(above, kRight, y);
    const float bottom = histogram::drawScale(
        *page, kMarks,
        {{{lbl000.Caption(), lbl030.Caption(), lbl060.Caption(), lbl100.Caption()},
          {lblMinSafe.Caption(), lblLow.Caption(), lblMid.Caption(), lblMax.Caption()}}},
        y + above.Height() + kGapAboveCounts);
    histogram::drawBarChart(*page, kMarks, evaluation_.Bins, bottom, top);
    return std::move(document);
}

std::string ctrlMaxMW::periodLine() const
{
    if (optTimeSelect.isSelected())
        return "Load summary from " + txtFrom.Text() + " to " + txtTo.Text();
    return "Load summary ending the last day of " + cmbYear.Text() + " " + cmbQTR.Text();
}

} // namespace k7deval
