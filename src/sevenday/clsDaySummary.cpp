#include "sevenday/clsDaySummary.h"

#include "foundation/PropertyOf.h"

#include <algorithm>
#include <utility>

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

PropertyList clsDaySummary::Properties() const
{
    PropertyValue displayed;
    if (DisplayedCals.isSized()) {
        PropertyValues keys;
        for (const auto& run : DisplayedCals.items())
            keys.push_back({minuteKey(run->CalTime)});
        displayed = {std::move(keys)};
    }
    return {
        {"TStamp", {TStamp}},
        {"IsOpDay", {IsOpDay()}},
        {"OpStatusIsUndetermined", {OpStatusIsUndetermined}},
        {"HasOnlineCals", {HasOnlineCals()}},
        {"DayIsUsedIn7Day", {DayIsUsedIn7Day()}},
        {"CalsInDay", listOf(calsInDay_.Keys())},
        {"DisplayedCals", std::move(displayed)},
    };
}

} // namespace k7deval
