#pragma once

#include "foundation/DataInterface.h"
#include "screen/Buttons.h"
#include "screen/ComboBox.h"
#include "screen/Container.h"
#include "screen/Label.h"
#include "screen/Services.h"
#include "screen/TextBox.h"
#include "sevenday/PerformanceSpecification.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace k7deval
{

/// The first page of the 7-Day tool: unit and analyzer, interval, performance specification, what
/// to show, and for a parameter under 40 CFR 75 the test information of the export. It keeps no
/// evaluation logic; its properties are read at the moment they are needed.
///
/// AnalyzedPID, AnalyzedScale and AnalyzedPrecision raise error 91 while no analyzer was ever
/// selected, OrisCode error 13 while its field holds no number.
class ctrl7DaySetUp : public screen::Control
{
public:
    ctrl7DaySetUp(screen::Container& parent, std::string name,
                  const screen::Surroundings& surroundings);

    /// Lists the units of the site and picks the first.
    void Setup(std::shared_ptr<MessageSink> irm, std::shared_ptr<DIServer> objDI);

    /// Drops the sink and the data.
    void Terminate();

    [[nodiscard]] PID AnalyzedUnitPID() const { return cmbUnit.ItemData(); }
    [[nodiscard]] PID AnalyzedPID() const;
    [[nodiscard]] std::string AnalyzedScale() const;
    /// A number format with as many decimals as the analyzer has, such as "0.00".
    [[nodiscard]] std::string AnalyzedPrecision() const;
    [[nodiscard]] Date StartDate() const; ///< The earlier of the two dates.
    [[nodiscard]] Date EndDate() const;   ///< The later of the two dates.
    [[nodiscard]] bool IncludeManualCals() const { return chkManualCals.isChecked(); }
    [[nodiscard]] bool SixOfSevenCals() const { return chk6of7.isChecked(); }
    [[nodiscard]] bool UseZeroCals() const { return !optPS9GC.isSelected(); }
    [[nodiscard]] bool ShowInterval() const { return optShowInterval.isSelected(); }
    [[nodiscard]] bool ShowAllCalsWithinDrift() const { return optShowAllCals.isSelected(); }
    [[nodiscard]] bool ShowOnlyDriftCals() const { return optShowDriftTestCals.isSelected(); }
    [[nodiscard]] bool ShowSummary() const { return chkShowSummary.isChecked(); }
    [[nodiscard]] CalLimitRulesEnum LimitRules() const { return specification_.LimitRules(); }
    /// The limits below are -999 where they do not apply; the absolute one is in the analyzer's
    /// units, the others are percents.
    [[nodiscard]] float AbsoluteLimit() const { return specification_.AbsoluteLimit(); }
    [[nodiscard]] float PercentOfSpanLimit() const { return specification_.PercentOfSpanLimit(); }
    [[nodiscard]] float PercentOfRefLimit() const { return specification_.PercentOfRefLimit(); }
    [[nodiscard]] std::string AnalyzerInfoText() const;

    [[nodiscard]] std::string StackID() const;
    void SetStackID(const std::string& value);
    [[nodiscard]] std::string ComponentID() const { return txtComponentID.Text(); }
    void SetComponentID(const std::string& value) { txtComponentID.SetText(value); }
    [[nodiscard]] std::string TestReason() const;
    [[nodiscard]] std::string TestNumber() const { return txtTestNumber.Text(); }
    void SetTestNumber(const std::string& value) { txtTestNumber.SetText(value); }
    [[nodiscard]] bool Is40CFR75() const { return is40CFR75_; }
    void SetIs40CFR75(bool value);
    [[nodiscard]] std::int32_t OrisCode() const;
    void SetOrisCode(std::int32_t value);

    screen::ComboBox cmbUnit{*this, "cmbUnit"};
    screen::ComboBox cmbAnalyzer{*this, "cmbAnalyzer"};

    screen::Frame fraTargetTime{*this, "fraTargetTime", "Interval to Check for 7-Day Drift"};
    screen::Label lblFromDate{fraTargetTime, "lblFromDate", "From:"};
    screen::TextBox txtFromDate{fraTargetTime, "txtFromDate"};
    screen::Button cmdFromDate{fraTargetTime, "cmdFromDate", "..."};
    screen::Label lblToDate{fraTargetTime, "lblToDate", "To:"};
    screen::TextBox txtToDate{fraTargetTime, "txtToDate"};
    screen::Button cmdToDate{fraTargetTime, "cmdToDate", "..."};

    screen::Frame fraCriteria{*this, "fraCriteria", "7-Day Drift Criteria"};
    screen::CheckBox chkManualCals{fraCriteria, "chkManualCals", "Include Manual Cals"};
    screen::CheckBox chk6of7{fraCriteria, "chk6of7", "6 of 7 Calibration Days Passed (CO ppm)"};

    screen::Frame fraDisplay{*this, "fraDisplay", "Display Options"};
    screen::OptionGroup displayOptions;
    screen::OptionButton optShowInterval{fraDisplay, displayOptions, "optShowInterval",
                                         "Show All Cals in Selected Interval"};
    screen::OptionButton optShowAllCals{fraDisplay, displayOptions, "optShowAllCals",
                                        "Show All Cals from Interval Start to Test End"};
    screen::OptionButton optShowDriftTestCals{fraDisplay, displayOptions, "optShowDriftTestCals",
                                              "Show Only Cals Used to Pass Drift Test"};
    screen::CheckBox chkShowSummary{fraDisplay, "chkShowSummary", "Show Drift Test Summary"};

    screen::Frame fraPerfSpec{*this, "fraPerfSpec", "Performance Specifications"};
    screen::OptionGroup specifications;
    screen::OptionButton opt025Span{fraPerfSpec, specifications, "opt025Span", "2.5% of Span"};
    screen::Label lbl025Span{fraPerfSpec, "lbl025Span", "(NOx ppm, SO2 ppm ...)"};
    screen::CheckBox chkUseAPS{fraPerfSpec, "chkUseAPS", "Use APS of 5 if appropriate"};
    screen::OptionButton opt05Span{fraPerfSpec, specifications, "opt05Span", "5% of Span"};
    screen::Label lbl05Span{fraPerfSpec, "lbl05Span", "(CO ppm)"};
    screen::OptionButton opt005Absolute{fraPerfSpec, specifications, "opt005Absolute",
                                        "0.5 Absolute Scale"};
    screen::Label lbl005Absolute{fraPerfSpec, "lbl005Absolute", "(O2 %, CO2 %)"};
    screen::OptionButton optOtherSpan{fraPerfSpec, specifications, "optOtherSpan",
                                      "Other % of Span"};
    screen::Label lblOtherSpan{fraPerfSpec, "lblOtherSpan", "(ex. Flow  3 ...)"};
    screen::TextBox txtOtherSpanValue{fraPerfSpec, "txtOtherSpanValue"};
    screen::Label lblOtherSpanValue{fraPerfSpec, "lblOtherSpanValue", "Limit:"};
    screen::OptionButton optOtherAbsolute{fraPerfSpec, specifications, "optOtherAbsolute",
                                          "Other Absolute Scale"};
    screen::Label lblOtherAbsolute{fraPerfSpec, "lblOtherAbsolute", "(ex. APS 5 ...)"};
    screen::TextBox txtOtherAbsoluteValue{fraPerfSpec, "txtOtherAbsoluteValue"};
    screen::Label lblOtherAbsoluteValue{fraPerfSpec, "lblOtherAbsoluteValue", "Limit:"};
    screen::OptionButton optPS9GC{fraPerfSpec, specifications, "optPS9GC",
                                  "PS 9  (Gas chromatograph)"};
    screen::Label lblPS9GC{fraPerfSpec, "lblPS9GC", "10% of ref, mid gas only"};

    screen::Frame fraTestInfo{*this, "fraTestInfo", "40CFR75 Test Information"};
    screen::Label lblORIS{fraTestInfo, "lblORIS", "ORISPL Code:"};
    screen::TextBox txtORIS{fraTestInfo, "txtORIS", 6};
    screen::Label lblStackID{fraTestInfo, "lblStackID", "Unit/Stack ID:"};
    screen::TextBox txtStackID{fraTestInfo, "txtStackID", 6};
    screen::ComboBox cmbStackID{fraTestInfo, "cmbStackID", screen::EditField::Yes};
    screen::Label lblComponentID{fraTestInfo, "lblComponentID", "Component ID:"};
    screen::TextBox txtComponentID{fraTestInfo, "txtComponentID", 3};
    screen::Label lblTestReason{fraTestInfo, "lblTestReason", "Reason For Test:"};
    screen::ComboBox cmbTestReason{fraTestInfo, "cmbTestReason", screen::EditField::Yes};
    screen::Label lblTestNumber{fraTestInfo, "lblTestNumber", "Test Number:"};
    screen::TextBox txtTestNumber{fraTestInfo, "txtTestNumber"};

private:
    void startUp();
    void connectRules();

    void unitRule();
    void listAnalyzers(PID unit);
    void listAnalyzer(DIParameter& parameter);
    [[nodiscard]] std::string analyzerName(DIParameter& parameter) const;
    void takeUnitFacts(PID unit);

    void analyzerRule();
    void takeAnalyzer(PID pid, std::int32_t program);

    void validateOris();
    void validateDate(screen::TextBox& field, Date& date) const;
    void askDate(screen::TextBox& field, Date& date) const;

    [[nodiscard]] Variant selectedAttribute(std::int32_t id) const;
    [[nodiscard]] std::string textOf(const Variant& value) const;

    screen::Surroundings surroundings_;
    PerformanceSpecification specification_{{opt025Span, chkUseAPS, opt05Span, opt005Absolute,
                                             optOtherSpan, txtOtherSpanValue, optOtherAbsolute,
                                             txtOtherAbsoluteValue, optPS9GC},
                                            surroundings_.regional};
    std::shared_ptr<MessageSink> irm_;
    std::shared_ptr<DIServer> server_;
    Date fromDate_;
    Date toDate_;
    std::vector<PID> calibrationPIDs_; ///< Of the entries of cmbAnalyzer; entry n stands at n - 1.
    std::shared_ptr<DIParameter> selectedParameter_;
    bool is40CFR75_ = false;
};

} // namespace k7deval
