#include "foundation/UtilityFunctions.h"

#include "foundation/DateText.h"
#include "foundation/Error.h"
#include "foundation/TextFunctions.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <string_view>

namespace k7deval
{

namespace
{

// Ten thousand years: no sum from farther away lies in the calendar.
constexpr double kFarthestMonths = 120000;
constexpr double kFarthestSeconds = 3.2e11;

bool startsWithTwoDigits(std::string_view text)
{
    return text.size() > 1 && isDigit(text[0]) && isDigit(text[1]);
}

// How the region's long time shows the hour.
struct HourForm {
    bool twelveHours = false;
    bool isPadded = false;
};

HourForm hourForm(Date value, const RegionalSettings& settings)
{
    const std::string text = upperCase(longTime(value, settings));
    return {text.find_first_of("PA") != std::string::npos, startsWithTwoDigits(text)};
}

// The hour alone: "hh AMPM", "h AMPM", "HH" or "H".
std::string hourAlone(Date value, const HourForm& form, const RegionalSettings& settings)
{
    const int hour = dateParts(value).hour;
    const int shown = form.twelveHours ? twelveHour(hour) : hour;
    std::string text = form.isPadded ? twoDigits(shown) : std::to_string(shown);
    if (form.twelveHours)
        text += ' ' + (hour < 12 ? settings.amMark : settings.pmMark);
    return text;
}

std::string derivedTime(Date value, std::int32_t style, const RegionalSettings& settings)
{
    const HourForm form = hourForm(value, settings);
    std::string text;
    if (style == 2 || style == 12)
        text = hourAlone(value, form, settings);
    else
        text = form.twelveHours ? mediumTime(value, settings) : ShortTime(value, settings);
    if (!form.isPadded && startsWithTwoDigits(text) && text.front() == '0')
        text.erase(0, 1);
    return text;
}

std::string timeText(Date value, std::int32_t style, const RegionalSettings& settings)
{
    switch (style) {
    case -3:
    case 1:
    case 11:
        return longTime(value, settings);
    case -2:
        return mediumTime(value, settings);
    case -1:
        return ShortTime(value, settings);
    case 13:
        return ShortDate(value, settings);
    default:
        return derivedTime(value, style, settings);
    }
}

int daysInMonth(int year, int month)
{
    const auto last = std::chrono::year{year} / month / std::chrono::last;
    return static_cast<int>(static_cast<unsigned>(last.day()));
}

Date addMonths(Date value, double amount)
{
    if (!(std::abs(amount) < kFarthestMonths))
        throw Error(errors::kInvalidCall);
    const DateParts parts = dateParts(value);
    const int months = static_cast<int>(std::lround(amount));
    const DateParts first = dateParts(makeDate(parts.year, parts.month + months, 1));
    const int day = std::min(parts.day, daysInMonth(first.year, first.month));
    return makeDate(first.year, first.month, day, parts.hour, parts.minute, parts.second);
}

// Through whole seconds, so that the sum lies on a whole second of its day.
Date addSeconds(Date value, double seconds)
{
    const std::int64_t start = wholeSeconds(value);
    if (!(std::abs(seconds) < kFarthestSeconds))
        throw Error(errors::kInvalidCall);
    const Date sum = dateFromSeconds(start + std::llround(seconds));
    return dateFromSeconds(wholeSeconds(sum)); // Refuses a sum outside the calendar.
}

} // namespace

Date CurrentDateTime(const Clock& clock)
{
    return dateFromSeconds(wholeSeconds(clock.now()));
}

std::string FormatTimeStamp(Date value, std::int32_t style, const RegionalSettings& settings)
{
    const std::string time = timeText(value, style, settings);
    const bool withDate = style == 10 || style == 11 || style == 12;
    return withDate ? ShortDate(value, settings) + ' ' + time : time;
}

Date DateAddExact(const std::string& interval, double amount, Date value)
{
    const char letter = interval.size() == 1 ? interval.front() : '\0';
    switch (letter) {
    case 'm':
    case 'M':
        return addMonths(value, amount);
    case 'd':
    case 'D':
        return addSeconds(value, amount * kSecondsPerDay);
    case 'h':
    case 'H':
        return addSeconds(value, amount * kSecondsPerHour);
    case 'n':
    case 'N':
        return addSeconds(value, amount * kSecondsPerMinute);
    case 's':
    case 'S':
        return addSeconds(value, amount);
    default:
        throw Error(errors::kInvalidCall);
    }
}

Date IntervalStart(Date value, std::int32_t seconds, bool previous)
{
    if (seconds < 1 || seconds > kSecondsPerDay)
        return {};
    const std::int64_t midnight = wholeSeconds(dateOnly(value));
    const std::int64_t count = (wholeSeconds(value) - midnight) / seconds - (previous ? 1 : 0);
    return dateFromSeconds(midnight + count * seconds);
}

bool IsNoDate(Date value)
{
    return value == Date{};
}

} // namespace k7deval
