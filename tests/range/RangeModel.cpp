#include "range/RangeModel.h"

#include "foundation/NumberText.h"
#include "histogram/LiteralBins.h"

namespace k7deval::test
{

namespace
{

struct Hour {
    std::optional<double> value;
    std::int32_t status = 0;
};

/// A threshold: the product in double, written with six places and read back.
float threshold(float range, double share)
{
    return ToSingle(FormatNumber(static_cast<double>(range) * share, "0.000000", {}),
                    RegionalSettings{});
}

Hour hourAt(const HourlyValues& series, std::int64_t index)
{
    if (index < 0 || index >= static_cast<std::int64_t>(series.values.size()))
        return {};
    const auto at = static_cast<std::size_t>(index);
    return {series.values[at], at < series.statuses.size() ? series.statuses[at] : 0};
}

/// Counts an hour; true when it is a valid one.
bool countHour(RangeAnswer& answer, const Hour& hour, const StatusMeaning& meaning,
               const RangeQuestion& question)
{
    Counters& counters = answer.counters;
    if (!hour.value || meaning.excluded || !meaning.valid) {
        counters.invalid += meaning.offline ? 0 : 1;
        return false;
    }
    const auto value = static_cast<float>(*hour.value);
    if (value > question.range) {
        ++counters.overRange;
        return true;
    }
    ++answer.bins[static_cast<std::size_t>(literalBin(value, 0, question.range))];
    const bool isHigh = value > threshold(question.range, 0.8);
    const bool isLow = value <= threshold(question.range, 0.2);
    ++(isHigh ? counters.high : isLow ? counters.low : counters.mid);
    counters.aboveMEC += question.mec && value > *question.mec ? 1 : 0;
    counters.aboveMPC += question.mpc && value > *question.mpc ? 1 : 0;
    counters.replaced += hour.status == 35 || hour.status == 36 ? 1 : 0;
    return true;
}

} // namespace

RangeAnswer answerFrom(const SiteData& site, const HourlyValues& series,
                       const RangeQuestion& question)
{
    RangeAnswer answer;
    int operating = 0;
    int month = 3 * question.quarter - 2;
    while (answer.quartersRead < 12) {
        const Date start = makeDate(question.year, month, 1);
        const auto hours = hourBoundariesBetween(start, makeDate(question.year, month + 3, 1));
        const auto offset = hourBoundariesBetween(series.start, start);
        bool hasValid = false;
        for (std::int64_t i = 0; i < hours; ++i) {
            const Hour hour = hourAt(series, offset + i);
            hasValid |= countHour(answer, hour, site.meaningOf(hour.status), question);
        }
        ++answer.quartersRead;
        operating += hasValid ? 1 : 0;
        const Counters& counted = answer.counters;
        if (counted.low + counted.mid + counted.high + counted.overRange > 720 && operating >= 4)
            break;
        month -= 3;
    }
    return answer;
}

} // namespace k7deval::test
