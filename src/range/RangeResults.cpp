#include "range/ctrlRangeEval.h"

#include <string>

/// What the screen shows of an evaluation.
namespace k7deval
{

namespace
{

// Two blanks behind the colons: the report copies these lines as they stand.
constexpr const char* kAboveMEC = "Hours above MEC:  ";
constexpr const char* kAboveMPC = "Hours above MPC:  ";
constexpr const char* kOverRange = "Hours over Range:  ";
constexpr const char* kReplaced = "Hours with 200% replacement:  ";
constexpr const char* kInvalid = "Invalid Hours:  ";
constexpr const char* kNotApplicable = "N/A";

} // namespace

void ctrlRangeEval::DrawChart()
{
    lblBar.DrawChart(evaluation_.Bins, 0, evaluation_.RangeValue, surroundings_.regional);
}

/// Whether a limit is shown goes by its box and text as they stand now, not by what was counted.
void ctrlRangeEval::ShowResults()
{
    showHeader();
    showScale("0", evaluation_.LowThreshold, evaluation_.HighThreshold, evaluation_.RangeValue);
    showLevels(evaluation_, {.low = "%", .mid = "%", .high = "%"});
    const auto countOrNone = [](bool isShown, std::int32_t hours) {
        return isShown ? std::to_string(hours) : kNotApplicable;
    };
    lblAboveMEC.SetCaption(kAboveMEC +
                           countOrNone(takesPart(chkMEC, txtMEC), evaluation_.AboveMECHours));
    lblAboveMPC.SetCaption(kAboveMPC +
                           countOrNone(takesPart(chkMPC, txtMPC), evaluation_.AboveMPCHours));
    lblOverRange.SetCaption(kOverRange + std::to_string(evaluation_.OverRangeHours));
    lblReplaced.SetCaption(kReplaced + std::to_string(evaluation_.ReplacedHours));
    lblInvalid.SetCaption(kInvalid + std::to_string(evaluation_.InvalidHours));
}

void ctrlRangeEval::ClearResults()
{
    HistogramTool::ClearResults();
    lblAboveMEC.SetCaption(std::string(kAboveMEC) + kNotApplicable);
    lblAboveMPC.SetCaption(std::string(kAboveMPC) + kNotApplicable);
    lblOverRange.SetCaption(std::string(kOverRange) + kNotApplicable);
    lblReplaced.SetCaption(std::string(kReplaced) + kNotApplicable);
    lblInvalid.SetCaption(std::string(kInvalid) + kNotApplicable);
}

} // namespace k7deval
