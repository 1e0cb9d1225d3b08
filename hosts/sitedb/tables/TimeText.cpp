#include "sitedb/tables/TimeText.h"

#include "foundation/Error.h"
#include "foundation/TextFunctions.h"
#include "sitedb/PlainText.h"

#include <chrono>

namespace k7deval::sitedb
{

namespace
{

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2199;
constexpr std::size_t kDayLength = 10;
constexpr std::size_t kMinuteLength = 16;

/// The number that the text is made of, when it is made of nothing but digits.
std::optional<int> digits(std::string_view text)
{
    int value = 0;
    for (const char letter : text) {
        if (!isDigit(letter))
            return std::nullopt;
        value = value * 10 + (letter - '0');
    }
    return value;
}

std::optional<std::chrono::year_month_day> calendarDay(std::string_view day)
{
    if (day.size() != kDayLength || day[4] != '-' || day[7] != '-')
        return std::nullopt;
    const auto year = digits(day.substr(0, 4));
    const auto month = digits(day.substr(5, 2));
    const auto dayOfMonth = digits(day.substr(8, 2));
    if (!year || !month || !dayOfMonth || *year < kFirstYear || *year > kLastYear)
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year{*year},
                                           std::chrono::month{static_cast<unsigned>(*month)},
                                           std::chrono::day{static_cast<unsigned>(*dayOfMonth)}};
    return date.ok() ? std::optional(date) : std::nullopt;
}

std::string clockText(int hour, int minute)
{
    return ' ' + twoDigits(hour) + ':' + twoDigits(minute);
}

} // namespace

std::optional<std::int64_t> dayNumber(std::string_view day)
{
    using namespace std::chrono;
    const auto date = calendarDay(day);
    if (!date)
        return std::nullopt;
    constexpr sys_days kZero = year{1899} / December / 30;
    return (sys_days{*date} - kZero).count();
}

std::string dayText(Date value)
{
    return isoDate(value);
}

std::string minuteText(Date value)
{
    const DateParts parts = dateParts(value);
    return isoDate(value) + clockText(parts.hour, parts.minute);
}

std::string minuteTextFrom(Date value)
{
    const std::int64_t seconds = wholeSeconds(value);
    const int secondsOver = dateParts(value).second;
    return minuteText(
        secondsOver == 0 ? value : dateFromSeconds(seconds + kSecondsPerMinute - secondsOver));
}

std::string minuteText(const std::string& day, int hour, int minute)
{
    return day + clockText(hour, minute);
}

Date dateOfMinute(std::string_view text)
{
    const auto day = calendarDay(text.substr(0, kDayLength));
    if (day && text.size() == kMinuteLength && text[10] == ' ' && text[13] == ':') {
        const auto hour = digits(text.substr(11, 2));
        const auto minute = digits(text.substr(14, 2));
        if (hour && minute && *hour < kHoursPerDay && *minute < 60)
            return makeDate(int{day->year()}, static_cast<int>(unsigned{day->month()}),
                            static_cast<int>(unsigned{day->day()}), *hour, *minute);
    }
    throw Error(errors::kTypeMismatch, inQuotes(text) + " is no time in the site database.");
}

} // namespace k7deval::sitedb
