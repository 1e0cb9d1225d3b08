#include "histogram/HistogramRig.h"

#include <algorithm>

namespace k7deval::test
{

namespace
{

constexpr int kHoursADay = 24;
constexpr float kBase = 2700;
constexpr float kFlat = 15;

} // namespace

ReadRequest quarterOfHours(PID pid, int year, int quarter)
{
    const Date first = makeDate(year, 3 * quarter - 2, 1);
    const Date next = makeDate(year, 3 * quarter + 1, 1);
    return {pid, first, static_cast<std::int32_t>(next.days - first.days) * kHoursADay};
}

Reads quartersBackFrom(PID pid, int year, int quarter, int count)
{
    Reads reads;
    for (int i = 0; i < count; ++i) {
        reads.push_back(quarterOfHours(pid, year, quarter));
        if (--quarter == 0) {
            quarter = 4;
            --year;
        }
    }
    return reads;
}

bool barsLieFlat(const histogram::BarLabels& bars)
{
    for (int bar = 1; bar <= histogram::kBinCount; ++bar) {
        const screen::Label& label = bars[bar];
        if (label.place().Top != kBase || label.place().Height != kFlat ||
            !label.ToolTipText().empty())
            return false;
    }
    return true;
}

} // namespace k7deval::test
