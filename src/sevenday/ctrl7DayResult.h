#pragma once

#include "foundation/RegionalSettings.h"
#include "screen/Container.h"
#include "screen/Label.h"
#include "screen/TreeView.h"
#include "sevenday/clsDaySummary.h"

#include <array>
#include <memory>
#include <string>

namespace k7deval
{

/// The fields that show one injection of the selected run, in a frame of its own.
struct InjectionLabels {
    /// prefix is "Zero" or "Span", caption that of the frame.
    InjectionLabels(screen::Container& page, const std::string& prefix, const std::string& caption);

    screen::Frame frame;
    screen::Label refLabel;
    screen::Label refData;
    screen::Label measLabel;
    screen::Label measData;
    screen::Label driftLabel;
    screen::Label driftData;
    screen::Label limitLabel;
    screen::Label limitData;
    screen::Label apsLabel;
};

/// The second page of the 7-Day tool: what the evaluation found, a tree of days and runs, and the
/// details of the run that is selected in it. It only displays.
class ctrl7DayResult : public screen::Control
{
public:
    ctrl7DayResult(screen::Container& parent, std::string name, const RegionalSettings& regional);

    void SetSummaryText(const std::string& strNewText);
    void SetAnalyzerText(const std::string& strNewText);
    /// Puts the tree in its empty state, the entry "NA".
    void ClearTreeView();
    /// Shows the days. Error 9 for an array that was never sized, 457 when two entries would get
    /// one text.
    void SetTreeView(const DayArray& objDaysToDisplay);

    screen::ImageList imgOnOffLine;
    screen::TreeView tvwCalTimes{*this, "tvwCalTimes"};
    screen::Frame fraSummary{*this, "fraSummary", "Summary"};
    screen::Label lblSummary{fraSummary, "lblSummary"};
    screen::Label lblAnalyzerLabel{*this, "lblAnalyzerLabel"};

    screen::Image imgOnlinePass{*this, "imgOnlinePass"};
    screen::Label lblOnlinePass{*this, "lblOnlinePass", "Pass On-Line"};
    screen::Image imgOfflinePass{*this, "imgOfflinePass"};
    screen::Label lblOfflinePass{*this, "lblOfflinePass", "Pass Off-Line"};
    screen::Image imgOnlineFail{*this, "imgOnlineFail"};
    screen::Label lblOnlineFail{*this, "lblOnlineFail", "Fail On-Line"};
    screen::Image imgOfflineFail{*this, "imgOfflineFail"};
    screen::Label lblOfflineFail{*this, "lblOfflineFail", "Fail Off-Line"};
    screen::Image imgOpDayNoCals{*this, "imgOpDayNoCals"};
    screen::Label lblOpDayNoCals{*this, "lblOpDayNoCals",
                                 "Unit Operated in Day Without On-line Cal"};

    screen::Label lblCalTimeLabel{*this, "lblCalTimeLabel", "Calibration Time:"};
    screen::Label lblCalTimeData{*this, "lblCalTimeData"};
    screen::Label lblInstSpanLabel{*this, "lblInstSpanLabel", "Instrument Span:"};
    screen::Label lblInstSpanData{*this, "lblInstSpanData"};
    screen::Label lblCalResultLabel{*this, "lblCalResultLabel"};
    screen::Label lblCalOnline{*this, "lblCalOnline"};

    /// fraZero with lblZeroRefData and so on; fraSpan with lblSpanRefData and so on.
    InjectionLabels zero{*this, "Zero", "Zero Gas"};
    InjectionLabels span{*this, "Span", "Span Gas"};

private:
    void takeLegendImages();
    void showDay(const clsDaySummary& day);
    void showSeveralRuns(const clsDaySummary& day);
    void showDetails(const screen::TreeNode& node);
    void showRun(const cls7DayAnalyzerCal& run);
    void showInjection(InjectionLabels& labels, const clsStrippedCal& injection) const;
    static void blankInjection(InjectionLabels& labels);
    void blankDetails();
    [[nodiscard]] std::string runText(const cls7DayAnalyzerCal& run) const;
    [[nodiscard]] screen::TreeNode runNode(const std::shared_ptr<cls7DayAnalyzerCal>& run) const;

    const RegionalSettings* regional_;
};

/// The run that a tree entry stands for, or null.
std::shared_ptr<cls7DayAnalyzerCal> runOf(const screen::TreeNode& node);

} // namespace k7deval
