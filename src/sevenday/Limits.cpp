#include "foundation/NumberText.h"
#include "sevenday/DriftTest.h"
#include "sevenday/NumberedLine.h"

#include <cmath>

namespace k7deval
{

namespace
{

constexpr int kLimitPlaces = 3;

float roundedLimit(double product)
{
    return roundTrip(ToSingle(product), kLimitPlaces);
}

float percentOfSpan(float span, float percent)
{
    return roundedLimit(static_cast<double>(span) * static_cast<double>(percent) / 100);
}

float percentOfReference(float percent, float reference)
{
    return roundedLimit(static_cast<double>(percent) / 100 * static_cast<double>(reference));
}

bool isWithin(const clsStrippedCal& injection, float limit)
{
    return std::abs(injection.Drift()) <= limit;
}

void hold(clsStrippedCal& injection, float limit, bool usesAPS)
{
    injection.DriftLimit = limit;
    injection.UsesAPS = usesAPS;
}

template <class Rule> void forEachInjection(const cls7DayAnalyzerCal& run, Rule rule)
{
    if (run.ZeroCal)
        rule(*run.ZeroCal);
    if (run.SpanCal)
        rule(*run.SpanCal);
}

} // namespace

void DriftTest::ApplyLimits()
{
    runPosting(irm, NumberedLine::ApplyLimits, [this] {
        for (const auto& [key, run] : present(dictCals)) {
            switch (lngLimitRule) {
            case CalLimitRules_AbsoluteValue:
                limitByAbsoluteValue(*run);
                break;
            case CalLimitRules_PercentOfSpan:
                limitByPercentOfSpan(*run);
                break;
            case CalLimitRules_PercentOfSpanAndAbsoluteAPS:
                limitByPercentOfSpanOrAPS(*run);
                break;
            case CalLimitRules_PercentOfRef:
                limitByPercentOfReference(*run);
                break;
            }
        }
    });
}

void DriftTest::limitByAbsoluteValue(const cls7DayAnalyzerCal& run) const
{
    forEachInjection(run,
                     [&](clsStrippedCal& injection) { hold(injection, sngAbsoluteLimit, false); });
}

void DriftTest::limitByPercentOfSpan(const cls7DayAnalyzerCal& run) const
{
    const float limit = percentOfSpan(run.InstrumentSpan, sngPercentOfSpanLimit);
    forEachInjection(run, [&](clsStrippedCal& injection) { hold(injection, limit, false); });
}

void DriftTest::limitByPercentOfSpanOrAPS(const cls7DayAnalyzerCal& run) const
{
    const float limit = percentOfSpan(run.InstrumentSpan, sngPercentOfSpanLimit);
    // Each injection by itself: one of a run may need the alternative and the other not.
    forEachInjection(run, [&](clsStrippedCal& injection) {
        if (isWithin(injection, limit))
            hold(injection, limit, false);
        else
            hold(injection, sngAbsoluteLimit, true);
    });
}

void DriftTest::limitByPercentOfReference(const cls7DayAnalyzerCal& run) const
{
    // The specification belongs to gas chromatographs, which are not given a zero gas.
    if (run.ZeroCal)
        hold(*run.ZeroCal, kNoLimit, false);
    if (!run.SpanCal)
        return;
    // An injection that misses the limit keeps what it had: 0 on a fresh run, which fails it, or
    // what an earlier pass under another rule left there.
    const float limit = percentOfReference(sngPercentOfRefLimit, run.SpanCal->ReferenceValue);
    if (isWithin(*run.SpanCal, limit))
        hold(*run.SpanCal, limit, false);
}

} // namespace k7deval
