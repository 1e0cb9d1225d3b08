#include "sevenday/cls7DayAnalyzerCal.h"

#include "foundation/PropertyOf.h"

namespace k7deval
{

bool cls7DayAnalyzerCal::AnalyzerPassed() const
{
    bool passed = true;
    if (!ZeroCal && UseZeroCal)
        passed = false;
    if (ZeroCal && !ZeroCal->isWithinLimit())
        passed = false;
    if (!SpanCal)
        passed = false;
    if (SpanCal && !SpanCal->isWithinLimit())
        passed = false;
    return passed;
}

PropertyList cls7DayAnalyzerCal::Properties() const
{
    return {
        {"CalTime", {CalTime}},
        {"InstrumentSpan", {InstrumentSpan}},
        {"IsOnline", {IsOnline}},
        {"ManualCal", {ManualCal}},
        {"UseZeroCal", {UseZeroCal}},
        {"IsCompleteRun", {IsCompleteRun()}},
        {"AnalyzerPassed", workedOut([this] { return AnalyzerPassed(); })},
        {"IsUsedIn7Day", {IsUsedIn7Day}},
        {"ZeroCal", PropertyOf<std::shared_ptr<clsStrippedCal>>::value(ZeroCal)},
        {"SpanCal", PropertyOf<std::shared_ptr<clsStrippedCal>>::value(SpanCal)},
    };
}

} // namespace k7deval
