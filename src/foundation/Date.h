#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace k7deval
{

inline constexpr std::int64_t kSecondsPerMinute = 60;
inline constexpr std::int64_t kSecondsPerHour = 3600;
inline constexpr std::int64_t kSecondsPerDay = 86400;
inline constexpr std::int32_t kHoursPerDay = 24;
/// The years that the calendar has.
inline constexpr int kFirstYear = 100;
inline constexpr int kLastYear = 9999;

/// A date and time: days since 1899-12-30 00:00, the fraction being the time of day. Local standard
/// time throughout. The zero date means "not set".
struct Date {
    double days = 0;

    friend bool operator==(const Date&, const Date&) = default;
    friend auto operator<=>(const Date& one, const Date& other) { return one.days <=> other.days; }
};

/// A calendar date and a clock reading. month and day count from 1.
struct DateParts {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;

    friend bool operator==(const DateParts&, const DateParts&) = default;
};

/// The calendar date and clock reading of a date, to the nearest whole second.
DateParts dateParts(Date value);

/// The date of a calendar date and clock reading. Month and day may lie outside their ranges and
/// are carried over, as may hour, minute and second. Error 5 outside the years 100 to 9999.
Date makeDate(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

/// Midnight at the beginning of the date's day.
Date dateOnly(Date value);

/// Whole seconds since 1899-12-30 00:00, the nearest one.
std::int64_t wholeSeconds(Date value);
Date dateFromSeconds(std::int64_t seconds);

/// Hour boundaries crossed from one date to the other, negative when `to` lies before.
std::int64_t hourBoundariesBetween(Date from, Date to);
/// Midnights crossed from one date to the other, negative when `to` lies before.
std::int64_t dayBoundariesBetween(Date from, Date to);

/// The key of a run: "yyyy/MM/dd HH:nn". Text order is time order.
std::string minuteKey(Date value);
/// The key of a day: "yyyy/MM/dd". Text order is time order.
std::string dayKey(Date value);
/// "yyyy-mm-dd", as the exchange formats write a date.
std::string isoDate(Date value);

} // namespace k7deval
