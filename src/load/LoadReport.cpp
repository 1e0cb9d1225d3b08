#include "histogram/HistogramPage.h"
#include "load/ctrlMaxMW.h"

/// The report of the load tool: what the labels show at the moment, over the bins of the last
/// evaluation.
namespace k7deval
{

namespace
{

using namespace layout;

constexpr float kLowCentre = 144;
constexpr float kMidCentre = 360;
constexpr float kHighCentre = 612;
constexpr histogram::InnerMarks kMarks{252, 468};
constexpr float kLowestRow = 49.2F;
constexpr float kGapAboveCounts = 5;

} // namespace

std::unique_ptr<ReportDocument> ctrlMaxMW::buildReport() const
{
    auto document = std::make_unique<ReportDocument>();
    document->SetAuthor("Kelvo Load Evaluation");
    document->SetCreator("Kelvo Load Evaluation");
    document->SetSubject("Load Evaluation");
    // The title is known under this spelling.
    document->SetTitle("Load Evalution");
    const std::string facility = facilityName(data());

    ReportPage& page = addPage(*document);
    const float head = histogram::drawHead(page, {.facility = facility,
                                                  .heading = "Load Evaluation Summary",
                                                  .period = periodLine(),
                                                  .analyzed = lblHeader.Caption(),
                                                  .printed = printTime()});
    const auto hours = [](std::int32_t count) { return std::to_string(count) + " Hours"; };
    const float top = histogram::drawLevels(
        page,
        {{{kLowCentre, lblLowOpPercent.Caption(), hours(evaluation_.LowHours)},
          {kMidCentre, lblMidOpPercent.Caption(), hours(evaluation_.MidHours)},
          {kHighCentre, lblHighOpPercent.Caption(), hours(evaluation_.HighHours)}}},
        head);

    ReportTextItem& below = addText(page, lblBelow.Caption(), kBodyFont, kBodySize);
    const float y = kLowestRow + below.Height();
    alignLeft(below, kLeft, y);
    ReportTextItem& above = addText(page, lblAbove.Caption(), kBodyFont, kBodySize);
    alignRight(above, kRight, y);
    const float bottom = histogram::drawScale(
        page, kMarks,
        {{{lbl000.Caption(), lbl030.Caption(), lbl060.Caption(), lbl100.Caption()},
          {lblMinSafe.Caption(), lblLow.Caption(), lblMid.Caption(), lblMax.Caption()}}},
        y + above.Height() + kGapAboveCounts);
    histogram::drawChart(page, kMarks, evaluation_.Bins, bottom, top);
    return document;
}

std::string ctrlMaxMW::periodLine() const
{
    if (optTimeSelect.isSelected())
        return "Load summary from " + txtFrom.Text() + " to " + txtTo.Text();
    return "Load summary ending the last day of " + cmbYear.Text() + " " + cmbQTR.Text();
}

} // namespace k7deval
