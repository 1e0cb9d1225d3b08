#include "sevenday/clsDaySummary.h"

#include <algorithm>

namespace k7deval
{

bool clsDaySummary::AnyCalMatches(bool blnOnline, bool blnUsed) const
{
    return std::any_of(calsInDay_.begin(), calsInDay_.end(), [&](const auto& entry) {
        const cls7DayAnalyzerCal& run = *entry.second;
        return (blnOnline && run.IsOnline) || (blnUsed && run.IsUsedIn7Day);
    });
}

bool clsDaySummary::HasOnlineCals() const
{
    return AnyCalMatches(true, false);
}

bool clsDaySummary::DayIsUsedIn7Day() const
{
    return AnyCalMatches(false, true);
}

bool clsDaySummary::IsOpDay() const
{
    return isOpDay_ || HasOnlineCals();
}

void clsDaySummary::SetIsOpDay(bool operated)
{
    isOpDay_ = operated || HasOnlineCals();
}

} // namespace k7deval
