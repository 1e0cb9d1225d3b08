#pragma once

#include "histogram/HistogramTool.h"
#include "histogram/NumberField.h"
#include "load/EvaluationPeriod.h"
#include "load/LoadEvaluation.h"
#include "screen/TextBox.h"

#include <memory>
#include <string>

namespace k7deval
{

/// The load tool: how does this unit's load spread over its range of operation (40 CFR 75 App. A
/// 6.5.2.1)?
class ctrlMaxMW : public histogram::HistogramTool
{
public:
    explicit ctrlMaxMW(const screen::Surroundings& surroundings);

    /// Hands over the data, lists the units and picks the first. Error 381 for data without units.
    void SetDIServer(std::shared_ptr<k7deval::DIServer> server) override;

    /// The results of the last evaluation, whatever the screen shows.
    [[nodiscard]] const LoadEvaluation& evaluation() const { return evaluation_; }
    [[nodiscard]] PropertyList results() const override;
    /// The dates of the option "Specified Dates:".
    [[nodiscard]] Date StartDate() const { return period_.StartDate(); }
    [[nodiscard]] Date EndDate() const { return period_.EndDate(); }

    [[nodiscard]] std::unique_ptr<ReportDocument> buildReport() const override;

    screen::Label lblMinSafeValue{fraSetup, "lblMinSafeValue", "Minimum Safe Operating Value:"};
    screen::TextBox txtMinSafe{fraSetup, "txtMinSafe"};
    screen::Label lblCapacity{fraSetup, "lblCapacity", "Nameplate/Rated Capacity:"};
    screen::TextBox txtCapacity{fraSetup, "txtCapacity"};

    screen::Frame fraTimeFrame{fraSetup, "fraTimeFrame", ""};
    screen::Label lblTimeFrameHeading{fraTimeFrame, "lblTimeFrameHeading", " Use Data From:"};
    screen::OptionGroup periods;
    screen::OptionButton optTimeEnd{fraTimeFrame, periods, "optTimeEnd",
                                    "4 operating quarters ending the last day of:"};
    screen::ComboBox cmbYear{fraTimeFrame, "cmbYear", screen::EditField::Yes};
    screen::ComboBox cmbQTR{fraTimeFrame, "cmbQTR"};
    screen::OptionButton optTimeSelect{fraTimeFrame, periods, "optTimeSelect", "Specified Dates:"};
    screen::TextBox txtFrom{fraTimeFrame, "txtFrom"};
    screen::Button cmdFrom{fraTimeFrame, "cmdFrom", "..."};
    screen::Label lblTo{fraTimeFrame, "lblTo", "to"};
    screen::TextBox txtTo{fraTimeFrame, "txtTo"};
    screen::Button cmdTo{fraTimeFrame, "cmdTo", "..."};

    screen::Label lbl030{
        fraResults, "lbl030", "30%", {1170, 3000, 1350, 0}, screen::Alignment::Centre};
    screen::Label lbl060{
        fraResults, "lbl060", "60%", {2895, 3000, 1350, 0}, screen::Alignment::Centre};
    screen::Label lblBelow{fraResults, "lblBelow", "n hour(s) below x", {120, 3300, 5655, 0}};
    screen::Label lblAbove{fraResults, "lblAbove", "n hour(s) above x", {120, 3600, 5535, 0}};

private:
    void startUp();
    void connectRules();

    void unitRule();
    void listParameters(std::int32_t unit);
    void proposeParameter();
    void lookUpCapacity(std::int32_t unit);
    bool takeCapacity(DIParameter& constant);
    void showPIDRule();

    void calculate();
    void EvaluateLoad(PID pid);

    void DrawChart();
    void ShowResults();
    void ClearResults() override;
    [[nodiscard]] std::string overText() const;
    [[nodiscard]] std::string periodLine() const;
    [[nodiscard]] std::string numberText(float value) const;

    LoadEvaluation evaluation_;
    histogram::NumberField minSafe_{txtMinSafe, evaluation_.MinSafeValue, surroundings_.regional};
    histogram::NumberField capacity_{txtCapacity, evaluation_.CapacityValue,
                                     surroundings_.regional};
    EvaluationPeriod period_{
        {optTimeEnd, cmbYear, cmbQTR, optTimeSelect, txtFrom, cmdFrom, txtTo, cmdTo},
        surroundings_};
};

} // namespace k7deval
