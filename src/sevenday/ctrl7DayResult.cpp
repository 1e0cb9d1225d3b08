#include "sevenday/ctrl7DayResult.h"

#include "foundation/DateText.h"
#include "foundation/NumberText.h"

#include <cmath>
#include <utility>

namespace k7deval
{

namespace
{

namespace image
{
constexpr const char* kOnlinePass = "OnlinePass";
constexpr const char* kOfflinePass = "OfflinePass";
constexpr const char* kOnlineFail = "OnlineFail";
constexpr const char* kOfflineFail = "OfflineFail";
constexpr const char* kOpDayNoCals = "OpDayNoCals";
} // namespace image

std::string imageOf(bool passed, bool online)
{
    if (passed)
        return online ? image::kOnlinePass : image::kOfflinePass;
    return online ? image::kOnlineFail : image::kOfflineFail;
}

/// White for what was used in the drift test.
screen::Color backgroundOf(bool used)
{
    return used ? screen::color::kWhite : screen::color::kLight3D;
}

} // namespace

InjectionLabels::InjectionLabels(screen::Container& page, const std::string& prefix,
                                 const std::string& caption)
    : frame(page, "fra" + prefix, caption),
      refLabel(frame, "lbl" + prefix + "RefLabel", "Reference:"),
      refData(frame, "lbl" + prefix + "RefData"),
      measLabel(frame, "lbl" + prefix + "MeasLabel", "Measured:"),
      measData(frame, "lbl" + prefix + "MeasData"),
      driftLabel(frame, "lbl" + prefix + "DriftLabel", "Drift:"),
      driftData(frame, "lbl" + prefix + "DriftData"),
      limitLabel(frame, "lbl" + prefix + "LimitLabel", "Limit:"),
      limitData(frame, "lbl" + prefix + "LimitData"), apsLabel(frame, "lbl" + prefix + "APSLabel")
{
}

ctrl7DayResult::ctrl7DayResult(screen::Container& parent, std::string name,
                               const RegionalSettings& regional)
    : Control(parent, std::move(name)),
      imgOnOffLine(*this, "imgOnOffLine",
                   {image::kOnlinePass, image::kOfflinePass, image::kOnlineFail,
                    image::kOfflineFail, image::kOpDayNoCals}),
      regional_(&regional)
{
    takeLegendImages();
    tvwCalTimes.NodeClicked.Connect([this](const screen::TreeNode& node) { showDetails(node); });
}

/// The legend's pictures are blended with the page, the tree's with its window.
void ctrl7DayResult::takeLegendImages()
{
    imgOnOffLine.SetBackColor(screen::color::kButtonFace);
    imgOnlinePass.SetPicture(imgOnOffLine, image::kOnlinePass);
    imgOfflinePass.SetPicture(imgOnOffLine, image::kOfflinePass);
    imgOnlineFail.SetPicture(imgOnOffLine, image::kOnlineFail);
    imgOfflineFail.SetPicture(imgOnOffLine, image::kOfflineFail);
    imgOpDayNoCals.SetPicture(imgOnOffLine, image::kOpDayNoCals);
    imgOnOffLine.SetBackColor(screen::color::kWindow);
}

void ctrl7DayResult::SetSummaryText(const std::string& strNewText)
{
    lblSummary.SetCaption(strNewText);
}

void ctrl7DayResult::SetAnalyzerText(const std::string& strNewText)
{
    lblAnalyzerLabel.SetCaption(strNewText);
}

void ctrl7DayResult::ClearTreeView()
{
    tvwCalTimes.clear();
    showDetails(
        tvwCalTimes.addRoot({"NA", "NA", image::kOfflineFail, screen::color::kLight3D, {}, {}}));
}

void ctrl7DayResult::SetTreeView(const DayArray& objDaysToDisplay)
{
    tvwCalTimes.clear();
    const std::int32_t lo = SafeLBound(objDaysToDisplay);
    const std::int32_t hi = SafeUBound(objDaysToDisplay);
    if (hi < lo) {
        ClearTreeView();
        return;
    }
    for (std::int32_t i = lo; i <= hi; ++i)
        showDay(*objDaysToDisplay[i]);
    const screen::TreeNode& first = *tvwCalTimes.Nodes().front();
    showDetails(first);
    tvwCalTimes.SetSelectedItem(first);
}

void ctrl7DayResult::showDay(const clsDaySummary& day)
{
    const std::int32_t n = SafeUBound(day.DisplayedCals);
    if (n < 0) {
        // Such a day can never show as used.
        const std::string dayText = ShortDate(day.TStamp, *regional_);
        tvwCalTimes.addRoot(
            {dayText, dayText, image::kOpDayNoCals, screen::color::kLight3D, {}, {}});
    } else if (n == 0) {
        tvwCalTimes.addRoot(runNode(day.DisplayedCals[0]));
    } else {
        showSeveralRuns(day);
    }
}

void ctrl7DayResult::showSeveralRuns(const clsDaySummary& day)
{
    const std::string dayText = ShortDate(day.TStamp, *regional_);
    screen::TreeNode& dayNode =
        tvwCalTimes.addRoot({dayText, dayText, {}, screen::color::kWindow, {}, {}});
    bool noneFailed = true;
    for (const auto& run : day.DisplayedCals.items()) {
        tvwCalTimes.addChild(dayText, runNode(run));
        noneFailed = noneFailed && run->AnalyzerPassed();
    }
    const bool hasItsCals = day.HasOnlineCals() || !day.IsOpDay();
    dayNode.Image = hasItsCals ? imageOf(noneFailed, day.IsOpDay()) : image::kOpDayNoCals;
    dayNode.BackColor = backgroundOf(day.DayIsUsedIn7Day());
}

std::string ctrl7DayResult::runText(const cls7DayAnalyzerCal& run) const
{
    return ShortDate(run.CalTime, *regional_) + " " + ShortTime(run.CalTime, *regional_);
}

screen::TreeNode ctrl7DayResult::runNode(const std::shared_ptr<cls7DayAnalyzerCal>& run) const
{
    const std::string text = runText(*run);
    return {
        text, text, imageOf(run->AnalyzerPassed(), run->IsOnline), backgroundOf(run->IsUsedIn7Day),
        run,  {}};
}

void ctrl7DayResult::showDetails(const screen::TreeNode& node)
{
    if (const auto run = runOf(node))
        showRun(*run);
    else
        blankDetails();
}

void ctrl7DayResult::showRun(const cls7DayAnalyzerCal& run)
{
    const bool passed = run.AnalyzerPassed();
    lblCalTimeData.SetCaption(runText(run));
    lblInstSpanData.SetCaption(GeneralNumber(run.InstrumentSpan, *regional_));
    lblCalResultLabel.SetForeColor(passed ? screen::color::kBlack : screen::color::kRed);
    lblCalResultLabel.SetBold(!passed);
    lblCalResultLabel.SetCaption(passed ? "Passed" : "Failed");
    lblCalOnline.SetCaption(run.IsOnline ? "On-Line" : "Off-Line");
    if (run.ZeroCal)
        showInjection(zero, *run.ZeroCal);
    else
        blankInjection(zero);
    if (run.SpanCal)
        showInjection(span, *run.SpanCal);
    else
        blankInjection(span);
}

void ctrl7DayResult::showInjection(InjectionLabels& labels, const clsStrippedCal& injection) const
{
    labels.refData.SetCaption(GeneralNumber(injection.ReferenceValue, *regional_));
    labels.measData.SetCaption(GeneralNumber(injection.MeasuredValue, *regional_));
    labels.driftData.SetCaption(GeneralNumber(injection.Drift(), *regional_));
    labels.driftData.SetForeColor(injection.isWithinLimit() ? screen::color::kBlack
                                                            : screen::color::kRed);
    labels.limitData.SetCaption(GeneralNumber(injection.DriftLimit, *regional_));
    labels.apsLabel.SetCaption(injection.UsesAPS ? "APS" : "");
}

/// Colours and bold stay as they were.
void ctrl7DayResult::blankInjection(InjectionLabels& labels)
{
    for (screen::Label* label : {&labels.refData, &labels.measData, &labels.driftData,
                                 &labels.limitData, &labels.apsLabel})
        label->SetCaption("");
}

void ctrl7DayResult::blankDetails()
{
    for (screen::Label* label :
         {&lblCalTimeData, &lblInstSpanData, &lblCalResultLabel, &lblCalOnline})
        label->SetCaption("");
    blankInjection(zero);
    blankInjection(span);
}

std::shared_ptr<cls7DayAnalyzerCal> runOf(const screen::TreeNode& node)
{
    const auto* run = std::any_cast<std::shared_ptr<cls7DayAnalyzerCal>>(&node.Tag);
    return run == nullptr ? nullptr : *run;
}

} // namespace k7deval
