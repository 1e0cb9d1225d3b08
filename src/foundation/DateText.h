#pragma once

#include "foundation/Date.h"
#include "foundation/RegionalSettings.h"

#include <string>
#include <string_view>

namespace k7deval
{

std::string ShortDate(Date value, const RegionalSettings& settings);  ///< "3/10/2024"
std::string longTime(Date value, const RegionalSettings& settings);   ///< "3:05:09 PM"
std::string mediumTime(Date value, const RegionalSettings& settings); ///< "03:05 PM"
std::string ShortTime(Date value, const RegionalSettings& settings);  ///< "15:05"

/// The hour of a day (0 to 23) as a twelve-hour clock shows it: 12, 1, ... 11.
int twelveHour(int hour);

/// Whether the text is a date, a time or both, as the region writes them; see ToDate.
/// `today` gives the year of a date without one.
bool IsDate(std::string_view text, const RegionalSettings& settings, Date today);

/// The date that a text holds: numeric day, month and year with "/", "-" or "." in the region's
/// order (an impossible month swaps day and month), year first, or a month name; an optional time.
/// A time alone lies on the zero date. Error 13 for any other text.
Date ToDate(std::string_view text, const RegionalSettings& settings, Date today);

} // namespace k7deval
