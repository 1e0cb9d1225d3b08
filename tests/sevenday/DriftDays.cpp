#include "sevenday/DriftDays.h"

#include "foundation/UtilityFunctions.h"

namespace k7deval::test
{

namespace
{

constexpr float kSpan = 200;
constexpr float kSpanGas = 160;
constexpr float kLimit = 5;

} // namespace

std::shared_ptr<clsStrippedCal> injection(float reference, float measured, float limit,
                                          bool usesAPS)
{
    auto made = std::make_shared<clsStrippedCal>();
    made->ReferenceValue = reference;
    made->MeasuredValue = measured;
    made->DriftLimit = limit;
    made->UsesAPS = usesAPS;
    return made;
}

CalRun runAt(Date time)
{
    auto run = std::make_shared<cls7DayAnalyzerCal>();
    run->CalTime = time;
    run->InstrumentSpan = kSpan;
    run->IsOnline = true;
    run->IsUsedIn7Day = true;
    run->ZeroCal = injection(0, 0, kLimit);
    run->ZeroCal->GasLevel = "ZERO";
    run->ZeroCal->InjectionEndTime = DateAddExact("n", 5, time);
    run->SpanCal = injection(kSpanGas, kSpanGas, kLimit);
    run->SpanCal->GasLevel = "HIGH";
    run->SpanCal->InjectionEndTime = DateAddExact("n", 10, time);
    return run;
}

CalRun failedRunAt(Date time)
{
    CalRun run = runAt(time);
    run->SpanCal->MeasuredValue = kSpanGas + kLimit + 1;
    return run;
}

CalRun offline(CalRun run)
{
    run->IsOnline = false;
    return run;
}

CalRun unused(CalRun run)
{
    run->IsUsedIn7Day = false;
    return run;
}

CalDay dayWith(Date date, const std::vector<CalRun>& runs)
{
    auto day = std::make_shared<clsDaySummary>();
    day->TStamp = date;
    for (const CalRun& run : runs)
        day->CalsInDay().Add(minuteKey(run->CalTime), run);
    if (!runs.empty())
        day->DisplayedCals = RunArray(runs);
    return day;
}

CalDay operated(CalDay day)
{
    day->SetIsOpDay(true);
    return day;
}

DayArray arrayOf(const std::vector<CalDay>& days)
{
    return DayArray(days);
}

} // namespace k7deval::test
