#include "histogram/Quarters.h"

#include "foundation/NumberText.h"
#include "foundation/UtilityFunctions.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

namespace k7deval::histogram
{

namespace
{

constexpr int kQuarters = 4;
constexpr int kMonthsPerQuarter = 3;
constexpr int kYearsOffered = 3;

Quarter after(Quarter quarter)
{
    return quarter.number == kQuarters ? Quarter{quarter.year + 1, 1}
                                       : Quarter{quarter.year, quarter.number + 1};
}

Quarter before(Quarter quarter)
{
    return quarter.number == 1 ? Quarter{quarter.year - 1, kQuarters}
                               : Quarter{quarter.year, quarter.number - 1};
}

std::string nameOf(int quarterNumber)
{
    return "Q" + std::to_string(quarterNumber);
}

void select(screen::ComboBox& list, const std::string& text)
{
    const auto& entries = list.List();
    const auto found = std::ranges::find(entries, text);
    if (found != entries.end())
        list.SetListIndex(static_cast<std::int32_t>(found - entries.begin()));
}

/// The year in a text; nothing for any text but a whole number from 100 to 9999.
std::optional<int> yearIn(const std::string& text, const RegionalSettings& regional)
{
    const auto number = numberIn(text, regional);
    if (!number || *number != std::floor(*number) || *number < kFirstYear || *number > kLastYear)
        return std::nullopt;
    return static_cast<int>(*number);
}

int selectedYear(screen::ComboBox& cmbYear, const screen::Surroundings& surroundings)
{
    if (const auto year = yearIn(cmbYear.Text(), surroundings.regional))
        return *year;
    const int presentYear = dateParts(CurrentDateTime(surroundings.clock)).year;
    cmbYear.SetText(std::to_string(presentYear));
    return presentYear;
}

int selectedQuarter(screen::ComboBox& cmbQTR)
{
    for (int number = 1; number <= kQuarters; ++number) {
        if (cmbQTR.Text() == nameOf(number))
            return number;
    }
    select(cmbQTR, nameOf(1));
    return 1;
}

} // namespace

Quarter quarterOf(Date time)
{
    const DateParts parts = dateParts(time);
    return {parts.year, (parts.month - 1) / kMonthsPerQuarter + 1};
}

Quarter lastFinishedQuarter(Date today)
{
    return before(quarterOf(today));
}

Date firstDayOf(Quarter quarter)
{
    return makeDate(quarter.year, (quarter.number - 1) * kMonthsPerQuarter + 1, 1);
}

Date lastDayOf(Quarter quarter)
{
    return DateAddExact("d", -1, firstDayOf(after(quarter)));
}

Date GetQuarterStart(Date time)
{
    return firstDayOf(quarterOf(time));
}

void offerQuarters(screen::ComboBox& cmbQTR, screen::ComboBox& cmbYear, Date today)
{
    for (int number = 1; number <= kQuarters; ++number)
        cmbQTR.addItem(nameOf(number));
    const int presentYear = dateParts(today).year;
    for (int back = 0; back < kYearsOffered; ++back)
        cmbYear.addItem(std::to_string(presentYear - back));
    const Quarter last = lastFinishedQuarter(today);
    select(cmbQTR, nameOf(last.number));
    select(cmbYear, std::to_string(last.year));
}

Date GetSelectedQuarterEnd(screen::ComboBox& cmbQTR, screen::ComboBox& cmbYear,
                           const screen::Surroundings& surroundings)
{
    const int year = selectedYear(cmbYear, surroundings);
    const Quarter chosen{year, selectedQuarter(cmbQTR)};
    return DateAddExact("h", -1, firstDayOf(after(chosen)));
}

void walkQuarters(DIParameter& parameter, Date lastHour, std::optional<Date> firstDay,
                  const TakeChunk& take)
{
    DIDataSet hours;
    Date chunkEnd = lastHour;
    while (!firstDay || chunkEnd >= *firstDay) {
        const Date quarterStart = GetQuarterStart(chunkEnd);
        const Date chunkStart = firstDay ? std::max(quarterStart, *firstDay) : quarterStart;
        const std::int64_t hourCount = hourBoundariesBetween(chunkStart, chunkEnd) + 1;
        hours.Init(chunkStart, static_cast<std::int32_t>(hourCount), "h", 1, 0);
        parameter.ReadData(hours);
        if (!take(hours))
            return;
        chunkEnd = DateAddExact("h", -1, chunkStart);
    }
}

} // namespace k7deval::histogram
