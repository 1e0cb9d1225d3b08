#include "load/ctrlMaxMW.h"

#include <string>

/// What the screen shows of an evaluation.
namespace k7deval
{

void ctrlMaxMW::DrawChart()
{
    lblBar.DrawChart(evaluation_.Bins, evaluation_.MinSafeValue, evaluation_.Range(),
                     surroundings_.regional);
}

void ctrlMaxMW::ShowResults()
{
    showHeader();
    showScale(numberText(evaluation_.MinSafeValue), evaluation_.LowThreshold,
              evaluation_.HighThreshold, evaluation_.CapacityValue);
    showLevels(evaluation_,
               {.low = "% Low Op Load", .mid = "% Mid Op Load", .high = "% High Op Load"});
    lblBelow.SetCaption(std::to_string(evaluation_.UnderHours) + " hour(s) under " +
                        numberText(evaluation_.MinSafeValue));
    lblAbove.SetCaption(overText());
}

/// "hours(s)" where there are none is how operators know the line.
std::string ctrlMaxMW::overText() const
{
    const std::string hours = std::to_string(evaluation_.OverHours);
    const std::string capacity = numberText(evaluation_.CapacityValue);
    if (evaluation_.OverHours >= 1)
        return hours + " hour(s) over " + capacity + " - Maximum " +
               numberText(evaluation_.MaxObserved);
    return hours + " hours(s) over " + capacity;
}

void ctrlMaxMW::ClearResults()
{
    HistogramTool::ClearResults();
    lblBelow.SetCaption("0 hour(s) under minimum");
    lblAbove.SetCaption("0 hour(s) over maximum");
}

} // namespace k7deval
