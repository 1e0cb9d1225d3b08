#include "sevenday/DriftTest.h"
#include "sevenday/NumberedLine.h"

namespace k7deval
{

namespace
{

void displayRun(RunArray& displayed, const std::shared_ptr<cls7DayAnalyzerCal>& run,
                std::int32_t index)
{
    displayed.resizeKeeping(index);
    displayed[index] = run;
}

/// Shows the runs of a day that a choice holds for, from index 0 up; with none the array stays as
/// it is.
template <class Choice> void displayRuns(clsDaySummary& day, Choice isShown)
{
    std::int32_t next = 0;
    for (const auto& [key, run] : day.CalsInDay()) {
        if (isShown(*run))
            displayRun(day.DisplayedCals, run, next++);
    }
}

bool isIdleDay(const clsDaySummary& day)
{
    return !day.IsOpDay() && day.CalsInDay().isEmpty();
}

} // namespace

/// The array grows and is cut by its writing alone: when nothing is written, it keeps the days of
/// the evaluation before.
void DriftTest::displayDay(std::int32_t index, const std::shared_ptr<clsDaySummary>& day)
{
    objDaysToDisplay.resizeKeeping(index);
    objDaysToDisplay[index] = day;
}

void DriftTest::ShowDriftCals()
{
    runPosting(irm, NumberedLine::ShowDriftCals, [this] {
        std::int32_t next = 0;
        for (const auto& [key, day] : dictDays) {
            if (!day->DayIsUsedIn7Day())
                continue;
            displayRuns(*day, [](const cls7DayAnalyzerCal& run) { return run.IsUsedIn7Day; });
            displayDay(next++, day);
        }
    });
}

void DriftTest::ShowCalsWithinDrift()
{
    runPosting(irm, NumberedLine::ShowCalsWithinDrift, [this] {
        std::int32_t lngUsed = 0;
        std::int32_t next = 0;
        for (const auto& [key, day] : dictDays) {
            if (!isIdleDay(*day)) {
                displayRuns(*day, [&](const cls7DayAnalyzerCal& run) {
                    lngUsed += run.IsUsedIn7Day ? 1 : 0;
                    return lngUsed <= kRunsOfATest;
                });
                displayDay(next++, day);
            }
            if (lngUsed == kRunsOfATest)
                return;
        }
    });
}

void DriftTest::ShowIntervalCals()
{
    runPosting(irm, NumberedLine::ShowIntervalCals, [this] {
        std::int32_t next = 0;
        for (const auto& [key, day] : dictDays) {
            if (isIdleDay(*day))
                continue;
            displayRuns(*day, [](const cls7DayAnalyzerCal&) { return true; });
            displayDay(next++, day);
        }
    });
}

} // namespace k7deval
