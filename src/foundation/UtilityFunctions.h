#pragma once

#include "foundation/Clock.h"
#include "foundation/Date.h"
#include "foundation/RegionalSettings.h"
#include "foundation/Variant.h"

#include <cstdint>
#include <string>

namespace k7deval
{

/// The present date and time, to the second.
Date CurrentDateTime(const Clock& clock);

/// A time of day in one of the region's forms, with the date ahead of it for the styles 10, 11
/// and 12. -3, 1, 11: long time; -2: medium time; -1: short time; 13: short date; any other: hours
/// alone (2, 12) or hours and minutes, 12 or 24 hour clock and leading zero as the region's long
/// time has them.
std::string FormatTimeStamp(Date value, std::int32_t style, const RegionalSettings& settings);

/// Adds by calendar: "m" month, "d" day, "h" hour, "n" minute, "s" second (either case). A month
/// keeps the day, cut to the last day of the month; months are whole, the nearest. The result lies
/// on a whole second. Error 5 for another interval letter and outside the years 100 to 9999.
Date DateAddExact(const std::string& interval, double amount, Date value);

/// The beginning of the interval of so many seconds (1 to 86400, counted from midnight) that the
/// value lies in, or of the one before it. The zero date for any other number of seconds.
Date IntervalStart(Date value, std::int32_t seconds, bool previous);

/// Rounds half away from zero, each step in the value's own type, and keeps that type. True counts
/// as -1. Empty for a value that is not numeric. digits is cut to -9 to 9. Error 6 on overflow.
/// A numeric text, read under the settings' region, comes back as the text of its number, which is
/// rounded only when negative.
Variant RoundNumber(const Variant& value, std::int32_t digits,
                    const RegionalSettings& settings = {});
/// RoundNumber of a single.
float roundSingle(float value, std::int32_t digits);

/// Whether the date is the zero date, which stands for a date that is not set.
bool IsNoDate(Date value);

} // namespace k7deval
