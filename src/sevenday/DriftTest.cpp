#include "sevenday/DriftTest.h"

#include "foundation/PropertyOf.h"

namespace k7deval
{

PropertyList DriftTest::Properties() const
{
    return {
        property("lngAnalyzedPID", lngAnalyzedPID, "PID of the analyzer."),
        property("strAnalyzedScale", strAnalyzedScale, "Scale under test."),
        property("dtStart", dtStart, "First moment of the interval."),
        property("dtEnd", dtEnd, "Last minute of the interval."),
        property("sngPercentOfSpanLimit", sngPercentOfSpanLimit, "Percent."),
        property("sngPercentOfRefLimit", sngPercentOfRefLimit, "Percent."),
        property("sngAbsoluteLimit", sngAbsoluteLimit, "In the analyzer's units."),
        property("lngLimitRule", lngLimitRule, "How the limit is set."),
        property("blnSixOfSeven", blnSixOfSeven, "One failure is allowed."),
        property("blnIncludeManualCals", blnIncludeManualCals, "Runs started by hand count."),
        property("blnUseZeroCals", blnUseZeroCals, "Runs need a zero injection."),
        property("blnRetrieveCals", blnRetrieveCals, "dictCals is out of date."),
        property("blnApplyLimits", blnApplyLimits, "The limits are out of date."),
        property("lngOpTimePID", lngOpTimePID, "PID of the operating time."),
        property("lngGoodCals", lngGoodCals, "Good runs counted in the test."),
        property("lngFailedCals", lngFailedCals, "The allowed failure: 0 or 1."),
        property("lngLastFailDay", lngLastFailDay, "Index of a day."),
        property("lngPrevFailDay", lngPrevFailDay, "Index of a day."),
        property("lngUndeterminedDays", lngUndeterminedDays,
                 "Days of undetermined status before the end of the test."),
        property("strSummary", strSummary, "The outcome in words."),
        property("dictCals", dictCals,
                 "All runs by their time, ascending; absent before the first retrieval. The runs "
                 "are\nthe live ones."),
        property("dictDays", dictDays,
                 "The days of the interval, which are the live ones, by their dates."),
        property("objDaysToDisplay", objDaysToDisplay,
                 "The days that the results page shows; absent before there are any."),
    };
}

} // namespace k7deval
