#include "sevenday/DriftTest.h"
#include "sevenday/NumberedLine.h"

#include <algorithm>

namespace k7deval
{

namespace
{

enum class DayKind { Failed, Missed, Clean };

/// An off-line run never fails a day; an excluded manual run does.
bool fails(const cls7DayAnalyzerCal& run)
{
    return run.IsOnline && !run.AnalyzerPassed();
}

DayKind kindOf(const clsDaySummary& day)
{
    const RunMap& runs = day.CalsInDay();
    // All runs are looked at, also behind a failed one: a drift that can't be computed ends the
    // evaluation wherever it stands.
    if (std::count_if(runs.begin(), runs.end(),
                      [](const auto& entry) { return fails(*entry.second); }) > 0)
        return DayKind::Failed;
    // An operating day without an on-line run, whether or not it has off-line ones.
    if (day.IsOpDay() && !day.HasOnlineCals())
        return DayKind::Missed;
    return DayKind::Clean;
}

const std::string& keyAt(const std::vector<std::string>& days, std::int32_t index)
{
    return days[static_cast<std::size_t>(index)];
}

std::int32_t upperBound(const std::vector<std::string>& days)
{
    return static_cast<std::int32_t>(days.size()) - 1;
}

} // namespace

void DriftTest::EvaluateDriftTest()
{
    runPosting(irm, NumberedLine::EvaluateDriftTest, [this] {
        dictDays = DayMap();
        AnalyzeOperatingDays();
        placeRunsInDays();
        const std::vector<std::string> days = dictDays.Keys();
        startScan(upperBound(days));
        scanDays(days);
        clearMarksBeforeTest(days);
    });
}

void DriftTest::placeRunsInDays()
{
    for (const auto& [key, run] : present(dictCals)) {
        run->IsUsedIn7Day = false;
        const std::string day = dayKey(run->CalTime);
        if (!dictDays.Exists(day)) {
            const auto unknownDay = std::make_shared<clsDaySummary>();
            unknownDay->OpStatusIsUndetermined = true;
            dictDays.Add(day, unknownDay);
        }
        dictDays.Item(day)->CalsInDay().Add(minuteKey(run->CalTime), run);
    }
}

void DriftTest::startScan(std::int32_t lastDay)
{
    lngLastFailDay = lastDay + 1;
    lngPrevFailDay = lastDay + 1;
    lngGoodCals = 0;
    lngFailedCals = 0;
    lngUndeterminedDays = 0;
}

void DriftTest::scanDays(const std::vector<std::string>& days)
{
    for (std::int32_t i = 0; i <= upperBound(days); ++i) {
        const clsDaySummary& objDay = *dictDays.Item(keyAt(days, i));
        const DayKind kind = kindOf(objDay);
        if (kind == DayKind::Clean)
            countDay(objDay);
        else if (kind == DayKind::Failed && blnSixOfSeven)
            takeAllowedFailure(days, i);
        else
            restartAt(i);

        const bool complete = lngGoodCals + lngFailedCals >= kRunsOfATest;
        if (objDay.OpStatusIsUndetermined && !objDay.IsOpDay())
            ++lngUndeterminedDays;
        if (complete)
            return;
    }
}

bool DriftTest::isEligible(const cls7DayAnalyzerCal& run) const
{
    return run.IsOnline && (!run.ManualCal || blnIncludeManualCals);
}

/// The day counts once, with its last automatic run, or with its first run when none is automatic.
void DriftTest::countDay(const clsDaySummary& day)
{
    std::shared_ptr<cls7DayAnalyzerCal> objPicked;
    for (const auto& [key, run] : day.CalsInDay()) {
        if (!isEligible(*run))
            continue;
        if (!objPicked)
            ++lngGoodCals;
        else if (!run->ManualCal)
            objPicked->IsUsedIn7Day = false;
        else
            continue;
        objPicked = run;
        objPicked->IsUsedIn7Day = true;
    }
}

/// A failed run taken as the allowed one stays counted after a restart.
void DriftTest::restartAt(std::int32_t day)
{
    lngLastFailDay = day;
    lngPrevFailDay = day;
    lngGoodCals = 0;
}

void DriftTest::takeAllowedFailure(const std::vector<std::string>& days, std::int32_t day)
{
    const std::int32_t ub = upperBound(days);
    const clsDaySummary& objDay = *dictDays.Item(keyAt(days, day));
    if (lngLastFailDay > ub) {
        // First failure.
        markAllowedFailure(objDay);
        lngLastFailDay = day;
    } else if (lngPrevFailDay > ub) {
        // Second failure: the good runs from before the first one stay counted, although their
        // marks are cleared in the end.
        markAllowedFailure(objDay);
        lngPrevFailDay = lngLastFailDay;
        lngLastFailDay = day;
    } else {
        // Later failure, and any after a restart.
        lngPrevFailDay = lngLastFailDay;
        lngLastFailDay = day;
        recountGoodCals(days, lngPrevFailDay + 1, day);
        markAllowedFailure(objDay);
    }
}

/// Marks the day's first eligible run, whether or not it is the one that failed.
void DriftTest::markAllowedFailure(const clsDaySummary& day)
{
    for (const auto& [key, run] : day.CalsInDay()) {
        if (!isEligible(*run))
            continue;
        run->IsUsedIn7Day = true;
        lngFailedCals = 1;
        return;
    }
}

void DriftTest::recountGoodCals(const std::vector<std::string>& days, std::int32_t first,
                                std::int32_t last)
{
    lngGoodCals = 0;
    for (std::int32_t i = first; i <= last; ++i) {
        for (const auto& [key, run] : dictDays.Item(keyAt(days, i))->CalsInDay()) {
            if (run->IsUsedIn7Day && run->AnalyzerPassed() && run->IsOnline)
                ++lngGoodCals;
        }
    }
}

/// After a restart or a second failure the test begins on the day behind the previous fail day. A
/// single failure cuts nothing: the failed run lies inside the test.
void DriftTest::clearMarksBeforeTest(const std::vector<std::string>& days) const
{
    std::string strCut;
    if (lngPrevFailDay <= upperBound(days))
        strCut = keyAt(days, lngPrevFailDay);
    else if (lngLastFailDay <= upperBound(days) && !blnSixOfSeven)
        strCut = keyAt(days, lngLastFailDay);
    if (strCut.empty())
        return;
    for (const auto& [key, run] : present(dictCals)) {
        if (dayKey(run->CalTime) <= strCut)
            run->IsUsedIn7Day = false;
    }
}

} // namespace k7deval
