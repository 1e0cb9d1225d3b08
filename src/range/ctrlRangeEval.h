#pragma once

#include "histogram/HistogramTool.h"
#include "histogram/NumberField.h"
#include "range/RangeEvaluation.h"
#include "range/UnitCatalogue.h"
#include "screen/TextBox.h"

#include <memory>
#include <string>

namespace k7deval
{

/// The range tool: does this analyzer's range fit what it measured (40 CFR 75 App. A 2.1)?
class ctrlRangeEval : public histogram::HistogramTool
{
public:
    explicit ctrlRangeEval(const screen::Surroundings& surroundings);

    /// Hands over the data, adds its analyzers to the catalogue, and picks the first unit. No data
    /// at all empties the boxes.
    void SetDIServer(std::shared_ptr<k7deval::DIServer> server) override;
    void Terminate() override;

    /// Units, their hourly parameters, and the scales of those with their spans.
    [[nodiscard]] const Catalogue& UnitCatalogue() const { return catalogue_; }
    /// The results of the last evaluation, whatever the screen shows.
    [[nodiscard]] const RangeEvaluation& evaluation() const { return evaluation_; }
    [[nodiscard]] PropertyList results() const override;

    [[nodiscard]] std::unique_ptr<ReportDocument> buildReport() const override;

    screen::ComboBox cmbScale{fraSetup, "cmbScale"};
    screen::Label lblRange{fraSetup, "lblRange", "Instrument Range:"};
    screen::TextBox txtRange{fraSetup, "txtRange"};
    screen::CheckBox chkMEC{fraSetup, "chkMEC", "Maximum Expected:"};
    screen::TextBox txtMEC{fraSetup, "txtMEC"};
    screen::CheckBox chkMPC{fraSetup, "chkMPC", "Maximum Potential:"};
    screen::TextBox txtMPC{fraSetup, "txtMPC"};
    screen::Label lblQuarter{fraSetup, "lblQuarter",
                             "Range evaluation summary ending the last day of :"};
    screen::ComboBox cmbYear{fraSetup, "cmbYear", screen::EditField::Yes};
    screen::ComboBox cmbQTR{fraSetup, "cmbQTR"};

    screen::Label lbl020{fraResults, "lbl020", "20%", {1320, 3000, 0, 0}};
    screen::Label lbl080{
        fraResults, "lbl080", "80%", {3960, 3000, 750, 0}, screen::Alignment::Right};
    screen::Label lblAboveMEC{fraResults, "lblAboveMEC", "Hours above MEC: n", {120, 3285, 0, 0}};
    screen::Label lblAboveMPC{fraResults, "lblAboveMPC", "Hours above MPC: n", {120, 3510, 0, 0}};
    screen::Label lblOverRange{
        fraResults, "lblOverRange", "Hours over Range: n", {120, 3720, 0, 0}};
    screen::Label lblReplaced{
        fraResults, "lblReplaced", "Hours with 200% replacement: n", {120, 3945, 0, 0}};
    screen::Label lblInvalid{fraResults, "lblInvalid", "Invalid Hours: n", {120, 4185, 0, 0}};

private:
    void startUp();
    void connectRules();

    void listUnits();
    void unitRule();
    void parameterRule();
    void scaleRule();
    void proposeLimits(std::int32_t scale);
    void showPIDRule();
    [[nodiscard]] const ParameterScales& pickedUnit() const;
    [[nodiscard]] const ScaleSpans& pickedParameter() const;

    void calculate();
    void EvaluateRange(PID pid);
    [[nodiscard]] RangeEvaluation::Limits readLimits();
    /// Whether a limit takes part: its box is checked and its text is a number.
    [[nodiscard]] bool takesPart(const screen::CheckBox& box, const screen::TextBox& field) const;

    void DrawChart();
    void ShowResults();
    void ClearResults() override;

    Catalogue catalogue_;
    RangeEvaluation evaluation_;
    histogram::NumberField range_{txtRange, evaluation_.RangeValue, surroundings_.regional};
};

} // namespace k7deval
