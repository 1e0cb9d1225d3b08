#include "histogram/HistogramPage.h"
#include "range/ctrlRangeEval.h"

#include <array>
#include <utility>

/// The report of the range tool: what the labels show at the moment, over the bins of the last
/// evaluation.
namespace k7deval
{

namespace
{

using namespace layout;

constexpr std::array<float, 3> kLevelCentres{108, 396, 684};
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
    auto [document, page, top] = beginReport(
        {.author = "Kelvo Range Evaluation",
         .subject = "Range Evaluation",
         .title = "Range Evaluation",
         .heading = "Range Evaluation Summary",
         .period = "Range summary ending the last day of " + cmbYear.Text() + " " + cmbQTR.Text()},
        kLevelCentres, evaluation_);
    ReportTextItem& overRange = addText(*page, lblOverRange.Caption(), kBodyFont, kBodySize);
    float y = kLowestRow + overRange.Height();
    alignLeft(overRange, kLeft, y);
    y += overRange.Height() + kGap;
    y += drawPair(*page, lblAboveMPC, lblInvalid, y) + kGap;
    y += drawPair(*page, lblAboveMEC, lblReplaced, y) + kGapAboveCounts;
    const float bottom = histogram::drawScale(
        *page, kMarks,
        {{{lbl000.Caption(), lbl020.Caption(), lbl080.Caption(), lbl100.Caption()},
          {lblMinSafe.Caption(), lblLow.Caption(), lblMid.Caption(), lblMax.Caption()}}},
        y);
    histogram::drawBarChart(*page, kMarks, evaluation_.Bins, bottom, top);
    return std::move(document);
}

} // namespace k7deval
