#pragma once

#include "sevenday/clsDaySummary.h"

#include <memory>
#include <vector>

/// Days and runs of a drift test, made by hand for the screens, the report and the export.
namespace k7deval::test
{

inline const Date kDay = makeDate(2024, 3, 10);
inline const Date kMorning = makeDate(2024, 3, 10, 8, 15);
inline const Date kEvening = makeDate(2024, 3, 10, 20, 15);
inline const Date kNextMorning = makeDate(2024, 3, 11, 8, 15);

using CalRun = std::shared_ptr<cls7DayAnalyzerCal>;
using CalDay = std::shared_ptr<clsDaySummary>;

std::shared_ptr<clsStrippedCal> injection(float reference, float measured, float limit,
                                          bool usesAPS = false);

/// An on-line run that is used in the test: span 200, zero gas 0 and span gas 160, both read
/// exactly and held to a limit of 5. Its injections end 5 and 10 minutes behind its time.
CalRun runAt(Date time);
/// The same, but its span gas is read 6 too high.
CalRun failedRunAt(Date time);
CalRun offline(CalRun run);
CalRun unused(CalRun run);

/// A day without operating hours, with the runs and all of them displayed; no run leaves the
/// displayed runs never sized.
CalDay dayWith(Date date, const std::vector<CalRun>& runs);
CalDay operated(CalDay day);

DayArray arrayOf(const std::vector<CalDay>& days);

} // namespace k7deval::test
