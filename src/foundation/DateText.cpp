#include "foundation/DateText.h"

#include "foundation/DateReader.h"
#include "foundation/Error.h"
#include "foundation/TextFunctions.h"

namespace k7deval
{

namespace
{

constexpr int kHoursPerHalfDay = 12;

std::string numberText(int value, bool isPadded)
{
    return isPadded ? twoDigits(value) : std::to_string(value);
}

// The mark of the half day with the blank ahead of it; nothing in a region without marks.
std::string halfDayMark(int hour, const RegionalSettings& settings)
{
    const std::string& mark = hour < kHoursPerHalfDay ? settings.amMark : settings.pmMark;
    return mark.empty() ? mark : ' ' + mark;
}

} // namespace

int twelveHour(int hour)
{
    const int shown = hour % kHoursPerHalfDay;
    return shown == 0 ? kHoursPerHalfDay : shown;
}

std::string ShortDate(Date value, const RegionalSettings& settings)
{
    const DateParts parts = dateParts(value);
    const std::string day = numberText(parts.day, settings.twoDigitDayAndMonth);
    const std::string month = numberText(parts.month, settings.twoDigitDayAndMonth);
    const std::string year = std::to_string(parts.year);
    const std::string& separator = settings.dateSeparator;
    switch (settings.dateOrder) {
    case DateOrder::DayMonthYear:
        return day + separator + month + separator + year;
    case DateOrder::YearMonthDay:
        return year + separator + month + separator + day;
    case DateOrder::MonthDayYear:
        break;
    }
    return month + separator + day + separator + year;
}

std::string longTime(Date value, const RegionalSettings& settings)
{
    const DateParts parts = dateParts(value);
    const bool twelveHours = settings.twelveHourLongTime;
    const int hour = twelveHours ? twelveHour(parts.hour) : parts.hour;
    return numberText(hour, settings.twoDigitHour) + ':' + twoDigits(parts.minute) + ':' +
           twoDigits(parts.second) +
           (twelveHours ? halfDayMark(parts.hour, settings) : std::string());
}

std::string mediumTime(Date value, const RegionalSettings& settings)
{
    const DateParts parts = dateParts(value);
    return twoDigits(twelveHour(parts.hour)) + ':' + twoDigits(parts.minute) +
           halfDayMark(parts.hour, settings);
}

std::string ShortTime(Date value, const RegionalSettings& /*settings*/)
{
    const DateParts parts = dateParts(value);
    return twoDigits(parts.hour) + ':' + twoDigits(parts.minute);
}

bool IsDate(std::string_view text, const RegionalSettings& settings, Date today)
{
    return readDateText(text, settings, dateParts(today).year).has_value();
}

Date ToDate(std::string_view text, const RegionalSettings& settings, Date today)
{
    const auto date = readDateText(text, settings, dateParts(today).year);
    if (!date)
        throw Error(errors::kTypeMismatch);
    return *date;
}

} // namespace k7deval
