#pragma once

#include "foundation/ArrayFunctions.h"
#include "foundation/Date.h"
#include "sevenday/cls7DayAnalyzerCal.h"

#include <memory>
#include <string>
#include <string_view>

namespace k7deval
{

using RunArray = Array<std::shared_ptr<cls7DayAnalyzerCal>>;

/// One calendar day of the test interval: its runs and whether the unit operated.
class clsDaySummary
{
public:
    static constexpr std::string_view kTypeName = "clsDaySummary";

    /// An hour has no operating data, or none can be had at all.
    bool OpStatusIsUndetermined = false;
    Date TStamp;            ///< Midnight at the beginning of the day.
    RunArray DisplayedCals; ///< The runs that the results page and the report show.

    /// The runs of the day, keyed by minuteKey, in the order of insertion. They are shared with the
    /// map of all runs.
    [[nodiscard]] RunMap& CalsInDay() { return calsInDay_; }
    [[nodiscard]] const RunMap& CalsInDay() const { return calsInDay_; }

    [[nodiscard]] bool HasOnlineCals() const;
    [[nodiscard]] bool DayIsUsedIn7Day() const;

    /// The unit operated, by its hours or because an analyzer was calibrated on-line.
    [[nodiscard]] bool IsOpDay() const;
    /// An operating hour or an on-line run does not clear an undetermined status.
    void SetIsOpDay(bool operated);

    /// Its runs stand there by their keys.
    [[nodiscard]] PropertyList Properties() const;

private:
    [[nodiscard]] bool AnyCalMatches(bool blnOnline, bool blnUsed) const;

    RunMap calsInDay_;
    bool isOpDay_ = false;
};

using DayMap = OrderedMap<std::string, std::shared_ptr<clsDaySummary>>;
using DayArray = Array<std::shared_ptr<clsDaySummary>>;

} // namespace k7deval
