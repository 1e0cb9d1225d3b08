#pragma once

#include "foundation/Date.h"
#include "foundation/OrderedMap.h"
#include "sevenday/clsStrippedCal.h"

#include <memory>
#include <string>
#include <string_view>

namespace k7deval
{

/// One calibration run of an analyzer: a zero and an upscale injection at the same minute.
struct cls7DayAnalyzerCal {
    static constexpr std::string_view kTypeName = "cls7DayAnalyzerCal";

    bool UseZeroCal = true; ///< A run without a zero injection counts as failed.
    Date CalTime;           ///< Time stamp; identifies the run to the minute.
    float InstrumentSpan = 0;
    bool IsOnline = false;
    bool IsUsedIn7Day = false; ///< The evaluation counted this run in the test.
    bool ManualCal = false;    ///< Started by hand.
    std::shared_ptr<clsStrippedCal> ZeroCal;
    std::shared_ptr<clsStrippedCal> SpanCal;

    /// Both injections are there.
    [[nodiscard]] bool IsCompleteRun() const { return ZeroCal && SpanCal; }
    /// Each injection that is there is within its limit, the upscale one is there, and so is the
    /// zero one unless UseZeroCal forgives its absence.
    [[nodiscard]] bool AnalyzerPassed() const;

    [[nodiscard]] PropertyList Properties() const;
};

using RunMap = OrderedMap<std::string, std::shared_ptr<cls7DayAnalyzerCal>>;

} // namespace k7deval
