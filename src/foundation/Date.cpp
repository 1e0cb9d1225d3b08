#include "foundation/Date.h"

#include "foundation/Error.h"
#include "foundation/TextFunctions.h"

#include <chrono>
#include <cmath>
#include <string_view>

namespace k7deval
{

namespace
{

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::int64_t kMonthsPerYear = 12;

constexpr sys_days kZeroDay{std::chrono::year{1899} / 12 / 30};

constexpr std::int64_t dayNumber(int year, unsigned month, unsigned day)
{
    const sys_days date{std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day)};
    return (date - kZeroDay).count();
}

constexpr std::int64_t kFirstDay = dayNumber(kFirstYear, 1, 1);
constexpr std::int64_t kEndDay = dayNumber(kLastYear, 12, 31) + 1;

std::int64_t floorDivide(std::int64_t value, std::int64_t divisor)
{
    const std::int64_t quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

// The seconds of a day that the calendar has; a month or a day that was carried too far has none.
std::int64_t checkedSeconds(std::int64_t seconds)
{
    if (seconds < kFirstDay * kSecondsPerDay || seconds >= kEndDay * kSecondsPerDay)
        throw Error(errors::kInvalidCall);
    return seconds;
}

std::string calendarText(const DateParts& parts, std::string_view separator)
{
    std::string text = withZerosAhead(std::to_string(parts.year), 4);
    text += separator;
    text += twoDigits(parts.month);
    text += separator;
    text += twoDigits(parts.day);
    return text;
}

} // namespace

DateParts dateParts(Date value)
{
    const std::int64_t seconds = wholeSeconds(value);
    const std::int64_t day = floorDivide(seconds, kSecondsPerDay);
    const auto ofDay = static_cast<int>(seconds - day * kSecondsPerDay);
    const year_month_day calendar{kZeroDay + std::chrono::days{day}};
    DateParts parts;
    parts.year = static_cast<int>(calendar.year());
    parts.month = static_cast<int>(static_cast<unsigned>(calendar.month()));
    parts.day = static_cast<int>(static_cast<unsigned>(calendar.day()));
    parts.hour = ofDay / static_cast<int>(kSecondsPerHour);
    parts.minute = ofDay / static_cast<int>(kSecondsPerMinute) % 60;
    parts.second = ofDay % static_cast<int>(kSecondsPerMinute);
    return parts;
}

Date makeDate(int year, int month, int day, int hour, int minute, int second)
{
    const std::int64_t months = year * kMonthsPerYear + (std::int64_t{month} - 1);
    const std::int64_t carriedYear = floorDivide(months, kMonthsPerYear);
    if (carriedYear < kFirstYear - 1 || carriedYear > kLastYear + 1)
        throw Error(errors::kInvalidCall);
    const auto carriedMonth = static_cast<unsigned>(months - carriedYear * kMonthsPerYear + 1);
    const std::int64_t days =
        dayNumber(static_cast<int>(carriedYear), carriedMonth, 1) + (std::int64_t{day} - 1);
    return dateFromSeconds(checkedSeconds(days * kSecondsPerDay + hour * kSecondsPerHour +
                                          minute * kSecondsPerMinute + second));
}

Date dateOnly(Date value)
{
    return dateFromSeconds(floorDivide(wholeSeconds(value), kSecondsPerDay) * kSecondsPerDay);
}

std::int64_t wholeSeconds(Date value)
{
    const bool inCalendar = value.days > static_cast<double>(kFirstDay - 1) &&
                            value.days < static_cast<double>(kEndDay + 1);
    if (!inCalendar)
        throw Error(errors::kInvalidCall);
    return checkedSeconds(std::llround(value.days * static_cast<double>(kSecondsPerDay)));
}

Date dateFromSeconds(std::int64_t seconds)
{
    return Date{static_cast<double>(seconds) / static_cast<double>(kSecondsPerDay)};
}

std::int64_t hourBoundariesBetween(Date from, Date to)
{
    return floorDivide(wholeSeconds(to), kSecondsPerHour) -
           floorDivide(wholeSeconds(from), kSecondsPerHour);
}

std::int64_t dayBoundariesBetween(Date from, Date to)
{
    return floorDivide(wholeSeconds(to), kSecondsPerDay) -
           floorDivide(wholeSeconds(from), kSecondsPerDay);
}

std::string minuteKey(Date value)
{
    const DateParts parts = dateParts(value);
    return calendarText(parts, "/") + ' ' + twoDigits(parts.hour) + ':' + twoDigits(parts.minute);
}

std::string dayKey(Date value)
{
    return calendarText(dateParts(value), "/");
}

std::string isoDate(Date value)
{
    return calendarText(dateParts(value), "-");
}

} // namespace k7deval
