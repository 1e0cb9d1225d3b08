#include "histogram/HistogramPage.h"
#include "range/ctrlRangeEval.h"

/// The report of the range tool: what the labels show at the moment, over the bins of the last
/// evaluation.
namespace k7deval
{

namespace
{

using namespace layout;

constexpr float kLowCentre = 108;
constexpr float kMidCentre = 396;
constexpr float kHighCentre = 684;
constexpr histogram::InnerMarks kMarks{180, 612};
constexpr float kSecondColumn = 396;
constexpr float kLowestRow = 49.2F;
constexpr float kGapAboveCounts = 5;

/// Two texts beside each other. Returns their height.
float drawPair(ReportPage& page, const screen::Label& left, const screen::Label& right, float y)
{
    alignLeft(addText(page, left.Caption(), kBodyFont, kBodySize), kLeft, y);
    ReportTextItem& second = addText(page, right.Caption(), kBodyFont, kBodySize);
    alignLeft(second, kSecondColumn, y);
    return second.Height();
}

} // namespace

std::unique_ptr<ReportDocument> ctrlRangeEval::buildReport() const
{
    auto document = std::make_unique<ReportDocument>();
    document->SetAuthor("Kelvo Range Evaluation");
    document->SetCreator("Kelvo Range Evaluation");
    document->SetSubject("Range Evaluation");
    document->SetTitle("Range Evaluation");
    const std::string facility = facilityName(data());

    ReportPage& page = addPage(*document);
    const float head =
        histogram::drawHead(page, {.facility = facility,
                                   .heading = "Range Evaluation Summary",
                                   .period = "Range summary ending the last day of " +
                                             cmbYear.Text() + " " + cmbQTR.Text(),
                                   .analyzed = lblHeader.Caption(),
                                   .printed = printTime()});
    const auto hours = [](std::int32_t count) { return std::to_string(count) + " Hours"; };
    const float top = histogram::drawLevels(
        page,
        {{{kLowCentre, lblLowOpPercent.Caption(), hours(evaluation_.LowHours)},
          {kMidCentre, lblMidOpPercent.Caption(), hours(evaluation_.MidHours)},
          {kHighCentre, lblHighOpPercent.Caption(), hours(evaluation_.HighHours)}}},
        head);

    ReportTextItem& overRange = addText(page, lblOverRange.Caption(), kBodyFont, kBodySize);
    float y = kLowestRow + overRange.Height();
    alignLeft(overRange, kLeft, y);
    y += overRange.Height() + kGap;
    y += drawPair(page, lblAboveMPC, lblInvalid, y) + kGap;
    y += drawPair(page, lblAboveMEC, lblReplaced, y) + kGapAboveCounts;
    const float bottom = histogram::drawScale(
        page, kMarks,
        {{{lbl000.Caption(), lbl020.Caption(), lbl080.Caption(), lbl100.Caption()},
          {lblMinSafe.Caption(), lblLow.Caption(), lblMid.Caption(), lblMax.Caption()}}},
        y);
    histogram::drawChart(page, kMarks, evaluation_.Bins, bottom, top);
    return document;
}

} // namespace k7deval
