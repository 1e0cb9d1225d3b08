#include "sevenday/cls7DayAnalyzerCal.h"

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

} // namespace k7deval
