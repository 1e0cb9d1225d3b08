#include "foundation/Date.h"

#include "foundation/Error.h"

#include <chrono>
#include <cmath>
#include <string_view>

namespace k7deval
{

namespace
{

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
constexpr std::int64_t kSecondsPerMinute = 60;
constexpr std::int64_t kSecondsPerHour = 3600;
constexpr std::int64_t kSecondsPerDay = 86400;
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

void appendPadded(std::string& text, int value, int width)
{
    const std::string digits = std::to_string(value);
    for (auto length = static_cast<int>(digits.size()); length < width; ++length)
        text += '0';
    text += digits;
}

std::string calendarText(const DateParts& parts, std::string_view separator)
{
    std::string text;
    appendPadded(text, parts.year, 4);
    text += separator;
    appendPadded(text, parts.month, 2);
    text += separator;
    appendPadded(text, parts.day, 2);
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
    std::string key = calendarText(parts, "/");
    key += ' ';
    appendPadded(key, parts.hour, 2);
    key += ':';
    appendPadded(key, parts.minute, 2);
    return key;
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
